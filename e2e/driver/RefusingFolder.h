// A program folder as a plain user has it below "Program Files": everything in it can be read and
// run, but no file be made or deleted there.
#pragma once

#include <string>

namespace E2e {

class RefusingFolder {
 public:
  // Copies a folder with all that is in it, and takes from the user the right to change the copy.
  explicit RefusingFolder(const std::string& from);
  // Gives it back and removes the copy. A program in there must have ended.
  ~RefusingFolder();
  RefusingFolder(const RefusingFolder&) = delete;
  RefusingFolder& operator=(const RefusingFolder&) = delete;

  const std::string& path() const { return path_; }
  // False if this machine cannot do so.
  bool refuses() const { return refuses_; }

 private:
  std::string path_;
  bool refuses_;
};

}  // namespace E2e
