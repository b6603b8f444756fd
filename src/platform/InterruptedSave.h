// Rewriting a file in place, and making good what an ended program left of it.
//
// While it goes on, three files in the system's temporary folder, named after the file's path, say
// how far it has come:
//   sk2pack-0123456789abcdef.new   what the file is to hold
//   ... .part                      the old contents, while they are copied
//   ... .old                       the old contents, whole: the file may be half rewritten
// The copy goes as soon as the new contents are flushed. Where a copy is found later, each byte of
// the file is compared with the two: a file that holds some of both was cut off half way and gets
// its old contents back. One that holds anything else was written by another program meanwhile; it
// is left alone, and the copy is put aside under a name of its own.
#pragma once

#include <string>
#include <vector>

#include "base/LangText.h"
#include "platform/CheckedFile.h"

namespace Platform {

// The files of the rewriting of one file. Their names are empty where the system has no folder for
// them.
struct RescueFiles {
  explicit RescueFiles(const std::string& path);
  bool CanBeMade() const { return !old.empty(); }

  std::string contents;
  std::string part;
  std::string old;
  std::string stem;  // of all three names, without the extension
};

// Opens a file that is there to rewrite it. Other programs may write to it too only where one of
// them does already.
SystemError TryToRewrite(const std::string& path, OpenFile& file);
// The same, patiently.
SystemError OpenToRewrite(const std::string& path, OpenFile& file);

// Gives an open file the bytes of another.
//   target    opened by OpenToRewrite. Path is its path.
//   contents  what it is to hold: written to RescueFiles(path).contents, and still open.
// Fails as Files.h says of rewriting in place. Removes the old copy, but not the contents.
void RewriteInPlace(CheckedFile& target, const std::string& path, CheckedFile& contents);

// If the file was cut off half way by an ended program, puts its old contents back and notes it for
// the user. Fails where that cannot be done; the failure names the copy.
void MakeGoodInterruptedSave(const std::string& path);

// Removes what an ended rewriting has left and nobody needs: all but the copy of the old contents.
void RemoveAbandonedContents(const std::string& path);

// Removes all of it, when the file itself has gone.
void ForgetInterruptedSave(const std::string& path);

// What the user must be told of a save that was cut off earlier.
struct SaveNote {
  LangText text;
  std::string file;
  std::string copy;  // the copy that is still there; empty if none is
};

// The notes since the last call.
std::vector<SaveNote> TakeSaveNotes();

}  // namespace Platform
