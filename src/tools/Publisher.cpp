#include "tools/Publisher.h"

#include "base/RuntimeError.h"
#include "platform/LetterCase.h"
#include "tools/CatalogueRules.h"
#include "tools/PackageJudge.h"
#include "tools/SiteFiles.h"
#include "tools/SiteState.h"

namespace Publisher {

namespace {

constexpr LangText OneInTheOther{
    "", "The folder that is published and the site must not lie in each other."};

bool IsIn(const std::string& path, const std::string& folder) {
  return Platform::LowerCase(path + "\\").starts_with(Platform::LowerCase(folder + "\\"));
}

void JudgeArchives(const std::string& folder, const Catalogue::Contents& contents,
                   Catalogue::Faults& faults) {
  for (int kind = 0; kind < ComponentPlaces::Count; ++kind) {
    for (const Catalogue::AddOn& addOn : contents.addOns[static_cast<size_t>(kind)]) {
      const std::string& path = addOn.archive.path;
      for (const std::string& reason : PackageJudge::FaultsOf(folder + "\\" + path, kind)) {
        faults.push_back({path, reason});
      }
    }
  }
}

}  // namespace

Report Publish(const std::string& folder, const std::string& site) {
  if (IsIn(folder, site) || IsIn(site, folder)) {
    throw RuntimeError(RuntimeError::InvalidCall, OneInTheOther, site);
  }
  // First, so that a site that an ended run has left without a state has one again, even if nothing
  // is published now.
  SiteState state(site);
  Report report;
  report.contents = Catalogue::Read(folder, report.faults);
  CatalogueRules::JudgeDisplayNames(report.contents, report.faults);
  CatalogueRules::JudgeVersions(
      report.contents, state.ServedText(SiteFiles::PathOf(Versions::RecordsPath)), report.faults);
  JudgeArchives(folder, report.contents, report.faults);
  const SiteFiles::Files files = SiteFiles::Of(folder, report.contents, report.faults);
  if (!report.faults.empty()) return report;
  if (state.IsServed(files)) {
    report.outcome = Outcome::Unchanged;
  } else {
    state.Serve(files);
    report.outcome = Outcome::Published;
  }
  return report;
}

}  // namespace Publisher
