#include "tools/CatalogueRules.h"

#include <algorithm>
#include <map>
#include <string>

#include "internet/ComponentRecords.h"
#include "tools/SiteFiles.h"

namespace CatalogueRules {

namespace {

using Catalogue::AddOn;

std::string Quoted(const std::string& text) {
  return "\"" + text + "\"";
}

// The last add-on whose display name begins with that text: the pack takes it for the one meant.
const AddOn& LastThatBeginsWith(const std::vector<AddOn>& addOns, const std::string& text) {
  return *std::find_if(addOns.rbegin(), addOns.rend(),
                       [&](const AddOn& addOn) { return addOn.displayName.starts_with(text); });
}

}  // namespace

void JudgeDisplayNames(const Catalogue::Contents& contents, Catalogue::Faults& faults) {
  std::map<std::string, const AddOn*> earlierKinds;
  for (const std::vector<AddOn>& addOns : contents.addOns) {
    const std::string list = ComponentRecords::LinesIn(SiteFiles::ListOf(addOns)).text;
    for (const AddOn& addOn : addOns) {
      const std::string& name = addOn.displayName;
      if (ComponentRecords::FileNameOf(list, name) != addOn.archive.name) {
        const AddOn& other = LastThatBeginsWith(addOns, name);
        const std::string how = other.displayName == name
                                    ? "is also that of "
                                    : "is the beginning of " + Quoted(other.displayName) + " of ";
        faults.push_back({addOn.archive.path, "The display name " + Quoted(name) + " " + how +
                                                  Quoted(other.archive.name) +
                                                  ", which players would get instead."});
      }
      const auto earlier = earlierKinds.find(name);
      if (earlier == earlierKinds.end()) continue;
      faults.push_back({addOn.archive.path, "The display name " + Quoted(name) +
                                                " is also that of " +
                                                Quoted(earlier->second->archive.path) + "."});
    }
    for (const AddOn& addOn : addOns) earlierKinds.emplace(addOn.displayName, &addOn);
  }
}

void JudgeVersions(const Catalogue::Contents& contents, std::string_view published,
                   Catalogue::Faults& faults) {
  const auto refuse = [&](const std::string& reason) {
    faults.push_back({Catalogue::VersionsFile, reason});
  };
  for (const Versions::Record& record : contents.versions) {
    const std::string before = Versions::VersionIn(published, record.product, Versions::Separator);
    const auto version = Versions::Published(before);
    if (!version) continue;  // there is none yet
    const Versions::Comparison comparison = Versions::Compare(record.version, *version);
    if (comparison == Versions::Older) {
      refuse("The version " + record.version + " of " + Quoted(record.product) + " is lower than " +
             before + ", which is published.");
    }
    const bool hasInstaller =
        std::ranges::any_of(contents.software, [](const Catalogue::File& file) {
          return SiteFiles::PathOf(Versions::InstallerPath) == SiteFiles::SoftwarePathOf(file);
        });
    if (comparison == Versions::Newer && record.product == Versions::Product && !hasInstaller) {
      refuse("The version " + record.version + " of " + Quoted(record.product) +
             " is higher than " + before +
             ", which is published, and its installer software\\sk2up.exe is missing.");
    }
  }
}

}  // namespace CatalogueRules
