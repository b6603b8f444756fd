// A file that the maker's web site, which the machine around the tests serves, has while a test
// wants it. Whatever is not served as a file is, WebServer sends.
#pragma once

#include <string>

namespace E2e {

class ServedFile {
 public:
  // The file is served in place of what the site has there.
  //   host  such as "www.orvane.example".
  //   path  on the host, such as "/orvane/software/versions.dat".
  // Throws std::runtime_error if it cannot be written.
  ServedFile(const std::string& host, const std::string& path, const std::string& bytes);
  // The site has again what it had.
  ~ServedFile();
  ServedFile(const ServedFile&) = delete;
  ServedFile& operator=(const ServedFile&) = delete;

 private:
  std::string path_;
};

}  // namespace E2e
