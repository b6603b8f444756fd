// A folder that a web server serves, and the exchange of all that is in it in one step.
//
// A site is a folder with one called "current" in it, which is the one that the web server is told
// of. The next state of the site is made beside it and put in its place whole. Wherever the program
// is ended, "current" is the old state or the new one, and never some of both. On Linux the name is
// a symbolic link, so that there is no moment without it. Windows gives nobody such links unasked:
// there the folders are renamed, one after the other, and a program that is ended between the two
// leaves a site without "current", which the next run puts right before it does anything else.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Platform {

// The folder that is served; it is there once something has been published.
std::string ServedFolder(const std::string& site);

// Where the next state of the site is to be made. It changes with each exchange.
std::string NextServedFolder(const std::string& site);

// Keeps other programs from exchanging the same site while it lives: two at once would make the
// next state of both their files.
class SiteLock {
 public:
  //   site  must be there.
  // Fails with PermissionDenied if another program has it, and as RemoveFile does.
  explicit SiteLock(const std::string& site);
  ~SiteLock();
  SiteLock(const SiteLock&) = delete;
  SiteLock& operator=(const SiteLock&) = delete;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

// What follows is for whoever has the lock.

// Makes good what an exchange that was cut off has left. Returns the paths of the folders in the
// site that are not served, and that nobody needs: what has been served before, and what was to be.
// Fails as RenameFile does; with FileAlreadyExists if "current" stands there and is none of ours.
std::vector<std::string> UnservedFolders(const std::string& site);

// Serves the next state in place of the one that is served, if any. Call UnservedFolders before
// that state is made, and after this. What was served before is then one of those folders; a
// program that serves it may still have files of it open. Fails as RenameFile does, and what was
// served is served still.
void ServeNextFolder(const std::string& site);

}  // namespace Platform
