#include "platform/RenamedFolders.h"

#include "base/RuntimeError.h"
#include "platform/FileFailure.h"
#include "platform/Files.h"
#include "platform/ServedFolder.h"

namespace Platform::RenamedFolders {

namespace {

// Names that nobody gives a folder of their own by chance: what is under them is removed.
std::string Previous(const std::string& site) {
  return site + "\\previous.sk2";
}

}  // namespace

Lock::Lock(const std::string& site) : path_(site + "\\lock.sk2") {
  // One that an ended program has left can be removed, one that is held cannot.
  if (FileExists(path_)) RemoveFile(path_);
  Require(file_.Open(path_, OpenFile::How::New), path_, FileStep::Writing);
}

Lock::~Lock() {
  file_.Close();
  // If that fails, the next one does it.
  FileCalls::Delete(path_);
}

std::string Next(const std::string& site) {
  return site + "\\next.sk2";
}

std::vector<std::string> Unserved(const std::string& site) {
  const std::string served = ServedFolder(site);
  // Cut off between the two names: what was served last is served again.
  if (!FileExists(served) && FileExists(Previous(site))) RenameFile(Previous(site), served);
  std::vector<std::string> folders;
  for (const std::string& folder : {Next(site), Previous(site)}) {
    if (FileExists(folder)) folders.push_back(folder);
  }
  return folders;
}

void ServeNext(const std::string& site) {
  const std::string served = ServedFolder(site);
  const bool isFirst = !FileExists(served);
  if (!isFirst) RenameFile(served, Previous(site));
  try {
    RenameFile(Next(site), served);
  } catch (const RuntimeError&) {
    // Told is why it cannot be; if this fails too, the next run makes it good.
    try {
      if (!isFirst) RenameFile(Previous(site), served);
    } catch (const RuntimeError&) {
    }
    throw;
  }
}

}  // namespace Platform::RenamedFolders
