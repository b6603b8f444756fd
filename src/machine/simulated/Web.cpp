#include "platform/Web.h"

#include "machine/simulated/Machine.h"
#include "platform/LongStep.h"
#include "platform/Paths.h"

namespace Platform {

int32_t DownloadToFile(const std::string& url, const std::string& path) {
  const LongStep step;
  Simulated::Machine& machine = Simulated::TheMachine();
  machine.user.ActsDuringLongStep();
  if (machine.faults.Strikes("DownloadToFile " + url)) return Simulated::Web::NotFound;
  const Simulated::WebAnswer answer = machine.web.Download(url);
  if (!answer.bytes) return answer.result;
  // A place where no file can be made is no failure to the system: its result is that of the fetch.
  const Simulated::DiskEntry* const file = machine.files.Find(path);
  const bool isRefused =
      file ? file->isFolder || file->IsOpen() || (file->attributes & Simulated::ReadOnly) != 0
           : !machine.files.Exists(FolderOf(path));
  if (!isRefused) machine.files.Put(path, *answer.bytes);
  return answer.result;
}

void DropFromWebCache(const std::string& url) {
  Simulated::TheMachine().web.Drop(url);
}

}  // namespace Platform
