#include "tools/SiteFiles.h"

#include <algorithm>

#include "base/Text.h"
#include "internet/ComponentRecords.h"
#include "tools/IndexPage.h"

namespace SiteFiles {

namespace {

constexpr const char* SoftwareAddress = "/orvane/software/";
constexpr const char* HomePage = "/index.html";

SiteFile Made(std::string text) {
  SiteFile file;
  file.sum = SumOfText(text);
  file.text = std::move(text);
  return file;
}

SiteFile CopyOf(const std::string& folder, const Catalogue::File& file) {
  return {"", folder + "\\" + file.path, file.sum};
}

// True if the path is that of one of the files, of a folder of theirs, or lies below one of them.
// Servers and disks may disregard letter case.
bool IsTaken(const std::string& path, const Files& files) {
  const std::string name = Text::LowerAscii(path);
  return std::ranges::any_of(files, [&](const auto& each) {
    const std::string other = Text::LowerAscii(each.first);
    return name == other || name.starts_with(other + "\\") || other.starts_with(name + "\\");
  });
}

}  // namespace

std::string PathOf(const std::string& address) {
  return Text::Replace(address.substr(1), "/", "\\");
}

std::string SoftwarePathOf(const Catalogue::File& file) {
  return PathOf(SoftwareAddress + file.name);
}

std::string ListOf(const std::vector<Catalogue::AddOn>& addOns) {
  std::vector<ComponentRecords::Record> records;
  records.reserve(addOns.size());
  for (const Catalogue::AddOn& addOn : addOns) {
    records.push_back({addOn.displayName, addOn.archive.name});
  }
  return ComponentRecords::ListOf(records);
}

Files Of(const std::string& folder, const Catalogue::Contents& contents,
         Catalogue::Faults& faults) {
  Files files;
  for (int kind = 0; kind < ComponentPlaces::Count; ++kind) {
    const auto& addOns = contents.addOns[static_cast<size_t>(kind)];
    files[PathOf(ComponentPlaces::ListPathOf(kind))] = Made(ListOf(addOns));
    for (const Catalogue::AddOn& addOn : addOns) {
      files[PathOf(ComponentPlaces::ArchivePathOf(kind, addOn.archive.name))] =
          CopyOf(folder, addOn.archive);
    }
  }
  if (!contents.versions.empty()) {
    files[PathOf(Versions::RecordsPath)] = Made(Versions::RecordsOf(contents.versions));
  }
  for (const Catalogue::File& file : contents.software) {
    files[SoftwarePathOf(file)] = CopyOf(folder, file);
  }
  const std::string page = IndexPage::Of(contents);
  files[PathOf(IndexPage::Address)] = Made(page);
  for (const Catalogue::File& file : contents.pages) {
    const std::string path = file.path.substr(std::string(Catalogue::PagesFolder).size() + 1);
    if (IsTaken(path, files)) {
      faults.push_back({file.path, "Something else is served at the place of this page."});
    } else {
      files[path] = CopyOf(folder, file);
    }
  }
  // A maker without a page of their own has this one.
  if (!IsTaken(PathOf(HomePage), files)) files[PathOf(HomePage)] = Made(page);
  return files;
}

}  // namespace SiteFiles
