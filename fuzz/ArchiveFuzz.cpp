// Archives of any bytes: one is unpacked into its folder or refused with a cause, and a refused one
// leaves nothing anywhere. What is unpacked can be packed again, and comes back the same.
#include <string_view>

#include "archive/ArchiveTexts.h"
#include "archive/Extraction.h"
#include "archive/Packing.h"
#include "base/RuntimeError.h"
#include "fuzz/FileInput.h"
#include "fuzz/Require.h"

namespace {

bool IsCause(const RuntimeError& error) {
  // A name that is too long, or that the disk refuses.
  if (error.number() == RuntimeError::PathFileAccess) return true;
  if (error.number() != RuntimeError::InvalidCall) return false;
  for (const LangText& text : TextsOf(ArchiveTexts)) {
    if (std::string_view(text.key) == error.cause().key) return true;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Simulated::Machine machine;
  const std::string archive = "C:\\Pack\\temp.zip";
  const std::string folder = "C:\\Game\\vehicles";
  const std::string bytes = PutFileInput(machine, archive, data, size);
  machine.files.LimitReads(SIZE_MAX);  // such archives are small
  machine.locale.codePage = size > 0 && (data[0] & 2) ? 932 : 1252;
  machine.files.PutFolder(folder);
  const auto atTop = machine.files.Names("C:");
  bool isUnpacked = false;
  try {
    Archive::Extract(archive, folder, "");
    isUnpacked = true;
  } catch (const RuntimeError& error) {
    Require(IsCause(error));
    Require(machine.files.Names(folder).empty());
  }
  Require(machine.files.Names("C:") == atTop);
  Require(machine.files.Names("C:\\Game").size() == 1);
  Require(machine.files.Names("C:\\Pack").size() == 1);
  Require(machine.files.Text(archive) == bytes);

  machine.files.Put("C:\\Pack\\hill.trk", "uphill");
  try {
    Archive::Pack(archive, {"C:\\Pack\\hill.trk"});
    if (!isUnpacked) return 0;
    Archive::Extract(archive, "C:\\Game\\again", "");
    Require(machine.files.Text("C:\\Game\\again\\hill.trk") == "uphill");
    for (const std::string& name : machine.files.Names(folder)) {
      Require(machine.files.Exists("C:\\Game\\again\\" + name));
    }
  } catch (const RuntimeError& error) {
    // An entry that is called "hill.trk" may be a folder.
    Require(!isUnpacked || machine.files.Exists(folder + "\\hill.trk"));
    Require(IsCause(error));
    Require(machine.files.Text(archive) == bytes || isUnpacked);
  }
  return 0;
}
