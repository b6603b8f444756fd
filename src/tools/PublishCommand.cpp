#include "tools/PublishCommand.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <ostream>
#include <string_view>

#include "base/Ecdsa.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Characters.h"
#include "platform/Files.h"
#include "platform/ServedFolder.h"
#include "text/FailureText.h"
#include "tools/Publisher.h"

namespace PublishCommand {

namespace {

constexpr const char* Usage =
    "usage: sk2publish [--key KEY.pem] [--public-key KEY.pem] FOLDER SITE\n";

constexpr const char* Help =
    R"(Publishes add-ons for Skidrun2 and releases of its Utility Pack: makes, of a
folder of archives, the files of a web site that players' packs read.

usage: sk2publish [--key KEY.pem] [--public-key KEY.pem] FOLDER SITE
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

--key KEY.pem         signs the installer with this private key, by which packs know
                      that it is yours: software/sk2up.exe.sig on the site. Without
                      it, a signature that lies beside the installer is published.
--public-key KEY.pem  the public key that players' packs were built with; without it,
                      the one that this program was built with, if any. An installer
                      that packs with this key would not start is refused.

Refused are, each with its file and the reason, all in one run:
  - archives that cannot be unpacked safely, or that do not hold exactly one car
    or track that the pack finds without a fault, with the sounds it names;
  - files in cars, tracks and langs that are neither .zip archives nor texts
    about one, and names with ":" or with characters that web addresses change;
  - display names that are the beginning of a later one in the list, since the
    pack then fetches the later one, or that another kind has too;
  - an installer whose signature is missing or wrong, if packs ask for one;
  - versions that are not three whole numbers, and those lower than the published.

Exit status: 0 published, or nothing had changed; 1 refused, the site is as it
was; 2 the folder could not be read or the site not written, the site is as it was.
)";

// What is told, with "/" between folders on every system, as addresses have it too.
std::string Shown(const std::string& text) {
  return Platform::ToUtf8(Text::Replace(text, "\\", "/"));
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

constexpr LangText NoPublicKey{"",
                               "This is no public key on the curve P-256, as \"openssl ec "
                               "-pubout\" writes it, in a PEM file."};

constexpr LangText KeyAlone{
    "", "With --key, --public-key must tell the key that players' packs were built with."};

std::string KeyIn(const std::string& text, const std::string& file) {
  std::optional<std::string> key = Ecdsa::KeyInPem(text);
  if (!key) throw RuntimeError(RuntimeError::InvalidCall, NoPublicKey, file);
  return *std::move(key);
}

// The key that players' packs have; empty if they have none.
std::string PacksKey(const std::string& file, const Build& build) {
  if (file.empty()) return build.updateKey == "none" ? "" : KeyIn(build.updateKey, "");
  const auto text = Platform::ReadWholeFile(file);
  if (!text) throw RuntimeError(RuntimeError::FileNotFound, file);
  return KeyIn(*text, file);
}

struct Call {
  std::string folder;
  std::string site;
  std::string keyFile;
  std::string publicKeyFile;
};

// What the arguments ask for; nothing if they are wrong.
std::optional<Call> Understood(const std::vector<std::string>& arguments) {
  Call call;
  std::vector<std::string> folders;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (!argument.starts_with('-')) {
      folders.push_back(PathIn(argument));
      continue;
    }
    std::string* const file = argument == "--key"          ? &call.keyFile
                              : argument == "--public-key" ? &call.publicKeyFile
                                                           : nullptr;
    // Each once, with a file behind it.
    if (!file || !file->empty() || ++i == arguments.size()) return std::nullopt;
    *file = PathIn(arguments[i]);
    if (file->empty()) return std::nullopt;
  }
  if (folders.size() != 2 || folders[0].empty() || folders[1].empty()) return std::nullopt;
  call.folder = folders[0];
  call.site = folders[1];
  return call;
}

int Publish(const Call& call, const Build& build, std::ostream& out, std::ostream& errors) {
  const auto& [folder, site, keyFile, publicKeyFile] = call;
  const InstallerSigning::Keys keys{PacksKey(publicKeyFile, build), keyFile};
  if (keys.packsKey.empty() && !keyFile.empty()) {
    throw RuntimeError(RuntimeError::InvalidCall, KeyAlone);
  }
  const Publisher::Report report = Publisher::Publish(folder, site, keys);
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

int Run(const std::vector<std::string>& arguments, const Build& build, std::ostream& out,
        std::ostream& errors) {
  const auto has = [&](const char* option) {
    return std::ranges::find(arguments, option) != arguments.end();
  };
  if (has("--help")) {
    out << Help;
    return Done;
  }
  if (has("--version")) {
    out << "sk2publish " << build.version << "\n";
    return Done;
  }
  const std::optional<Call> call = Understood(arguments);
  if (!call) {
    errors << Usage << "More is told by: sk2publish --help\n";
    return Failed;
  }
  try {
    return Publish(*call, build, out, errors);
  } catch (const std::exception& error) {
    const std::string text = Text::Replace(FailureText(error), Text::LineEnd, "\n");
    errors << "sk2publish: " << Shown(text) << "\n";
    return Failed;
  }
}

}  // namespace PublishCommand
