#include "tools/PublishCommand.h"

#include <algorithm>
#include <exception>
#include <ostream>
#include <string_view>

#include "base/Text.h"
#include "platform/Characters.h"
#include "platform/ServedFolder.h"
#include "text/FailureText.h"
#include "tools/Publisher.h"

namespace PublishCommand {

namespace {

constexpr const char* Usage = "usage: sk2publish FOLDER SITE\n";

constexpr const char* Help =
    R"(Publishes add-ons for Skidrun2 and releases of its Utility Pack: makes, of a
folder of archives, the files of a web site that players' packs read.

usage: sk2publish FOLDER SITE
       sk2publish --help | --version

FOLDER holds what is offered. Each of these may be missing:
  cars/coach.zip         an archive with one car: its .vhc file and its sounds
  tracks/marsh.zip       an archive with one track: its .trk file and, if there is
                         one, its description as a .wav file
  langs/Francais.zip     an archive with a language; players find it in a folder
                         named as the archive
  cars/coach.txt         a text beside an archive, saved as UTF-8: its first line
                         is the name that players choose ("Night Coach"), the
                         others are shown on the web page. Without it the name is
                         the archive's, without ".zip"
  software/versions.txt  a line "sk2up=1.2.0" for the pack's newest version
  software/sk2up.exe     its installer; any other file there is served too
  pages/                 web pages of your own; pages/index.html is the first page
SITE is where the result goes. A web server is to serve SITE/current. The folder
is made if there is none, and must not lie in FOLDER.

All or nothing: the new state of the site is made beside the old one and takes its
place in one step, and only if nothing in FOLDER is at fault. Ended at any moment,
the old state or the new one is served. If nothing has changed, nothing is written.

Refused are, each with its file and the reason, all in one run:
  - archives that cannot be unpacked safely, or that do not hold exactly one car
    or track that the pack finds without a fault, with the sounds it names;
  - files in cars, tracks and langs that are neither .zip archives nor texts
    about one, and names with ":" or with characters that web addresses change;
  - display names that are the beginning of a later one in the list, since the
    pack then fetches the later one, or that another kind has too;
  - versions that are not three whole numbers, and those lower than the published.

Exit status: 0 published, or nothing had changed; 1 refused, the site is as it
was; 2 the folder could not be read or the site not written, the site is as it was.
)";

// As this system writes paths in what it says.
std::string Shown(const std::string& path) {
  return Platform::ToUtf8(Text::Replace(path, "\\", "/"));
}

// A path as the program's own files have it, without a separator at its end.
std::string PathIn(const std::string& argument) {
  std::string path = Text::Replace(argument, "/", "\\");
  while (path.size() > 1 && path.ends_with('\\')) path.pop_back();
  return path;
}

std::string Counted(size_t count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

void TellOutcome(const Publisher::Report& report, const std::string& site, std::ostream& out) {
  const auto& addOns = report.contents.addOns;
  out << (report.outcome == Publisher::Outcome::Published ? "Published " : "Nothing has changed: ")
      << Counted(addOns[ComponentPlaces::Car].size(), "car", "cars") << ", "
      << Counted(addOns[ComponentPlaces::Track].size(), "track", "tracks") << ", "
      << Counted(addOns[ComponentPlaces::Language].size(), "language", "languages") << ", "
      << Counted(report.contents.software.size(), "program", "programs") << " in "
      << Shown(Platform::ServedFolder(site)) << "\n";
}

int Publish(const std::string& folder, const std::string& site, std::ostream& out,
            std::ostream& errors) {
  const Publisher::Report report = Publisher::Publish(folder, site);
  if (report.outcome != Publisher::Outcome::Refused) {
    TellOutcome(report, site, out);
    return Done;
  }
  for (const Catalogue::Fault& fault : report.faults) {
    errors << Shown(fault.file.empty() ? folder : folder + "\\" + fault.file) << ": "
           << Platform::ToUtf8(fault.reason) << "\n";
  }
  errors << "Refused, nothing was published: " << Counted(report.faults.size(), "fault", "faults")
         << "\n";
  return Refused;
}

}  // namespace

int Run(const std::vector<std::string>& arguments, const std::string& version, std::ostream& out,
        std::ostream& errors) {
  const auto has = [&](const char* option) {
    return std::ranges::find(arguments, option) != arguments.end();
  };
  if (has("--help")) {
    out << Help;
    return Done;
  }
  if (has("--version")) {
    out << "sk2publish " << version << "\n";
    return Done;
  }
  const bool hasOption =
      std::ranges::any_of(arguments, [](const auto& text) { return text.starts_with('-'); });
  if (arguments.size() != 2 || hasOption || arguments[0].empty() || arguments[1].empty()) {
    errors << Usage << "More is told by: sk2publish --help\n";
    return Failed;
  }
  try {
    return Publish(PathIn(arguments[0]), PathIn(arguments[1]), out, errors);
  } catch (const std::exception& error) {
    const std::string text = Text::Replace(FailureText(error), Text::LineEnd, "\n");
    errors << "sk2publish: " << Platform::ToUtf8(text) << "\n";
    return Failed;
  }
}

}  // namespace PublishCommand
