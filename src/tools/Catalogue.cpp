#include "tools/Catalogue.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <tuple>

#include "base/KeyValue.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "internet/ComponentRecords.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tools/FolderTree.h"

namespace Catalogue {

namespace {

using Platform::FolderEntry;

// A text about an archive, and the versions, are a few lines.
constexpr uint64_t LongestText = 64 << 10;

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

// True if an address on the web can carry the name as it is, whatever system asks for it.
bool IsWebName(std::string_view name) {
  const auto isFine = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view(" -_.()!'+,&=@~").find(c) != std::string_view::npos;
  };
  return std::ranges::all_of(name, isFine);
}

std::string Quoted(const std::string& text) {
  return "\"" + text + "\"";
}

class Reader {
 public:
  Reader(const std::string& folder, Faults& faults) : folder_(folder), faults_(faults) {}

  Contents Read() {
    const bool isFolder = Platform::FileExists(folder_) && !Platform::StampOf(folder_);
    if (!isFolder) throw RuntimeError(RuntimeError::PathNotFound, folder_);
    JudgeTop();
    for (int kind = 0; kind < ComponentPlaces::Count; ++kind) ReadKind(kind);
    ReadSoftware();
    ReadPages(PagesFolder);
    return std::move(contents_);
  }

 private:
  void Refuse(const std::string& file, const std::string& reason) {
    faults_.push_back({file, reason});
  }

  // What is in a folder of the folder, sorted, without what is hidden.
  std::vector<FolderEntry> Visible(const std::string& path) {
    const std::string folder = path.empty() ? folder_ : folder_ + "\\" + path;
    // A file in place of one of the folders has been refused already.
    if (Platform::StampOf(folder)) return {};
    std::vector<FolderEntry> entries = Platform::ListFolder(folder);
    std::erase_if(entries, [&](const FolderEntry& entry) {
      if (entry.name.starts_with('.')) return true;
      // A name that cannot be used cannot be asked either; it is refused later.
      const std::string entryPath = folder + "\\" + entry.name;
      return Platform::IsNameUsable(entryPath) && Platform::AttributesOf(entryPath).isHidden;
    });
    std::ranges::sort(entries, {}, &FolderEntry::name);
    return entries;
  }

  void JudgeTop() {
    std::set<std::string> known = {SoftwareFolder, PagesFolder};
    for (int kind = 0; kind < ComponentPlaces::Count; ++kind) {
      known.insert(ComponentPlaces::FolderNameOf(kind));
    }
    bool isEmpty = true;
    for (const FolderEntry& entry : Visible("")) {
      isEmpty = false;
      if (entry.isFolder && known.contains(entry.name)) continue;
      Refuse(entry.name,
             "Nothing is published from here: archives lie in the folders cars, tracks and langs, "
             "programs in software, and web pages in pages.");
    }
    if (isEmpty) Refuse("", "There is nothing in this folder that could be published.");
  }

  // True if the file's name may stand in a list and in an address.
  bool JudgeName(const std::string& path, const std::string& name) {
    if (name.find(':') != std::string::npos) {
      Refuse(path, "The name has a \":\", which stands between names in a list.");
      return false;
    }
    if (!IsWebName(name)) {
      Refuse(path,
             "The name may have only the letters A to Z, digits, blanks and -_.()!'+,&=@~: others "
             "do not come through the web alike everywhere.");
      return false;
    }
    if (!Platform::IsPlainFileName(name)) {
      Refuse(path, "Windows cannot have a file of this name.");
      return false;
    }
    return true;
  }

  // Players' systems, and the folders into which languages are unpacked, disregard letter case.
  bool IsFirstOfItsName(const std::string& path, std::map<std::string, std::string>& names) {
    const auto [first, isNew] = names.emplace(Text::LowerAscii(path), path);
    if (!isNew) {
      Refuse(path, "It differs from " + Quoted(Platform::NameOf(first->second)) +
                       " in letter case alone.");
    }
    return isNew;
  }

  File FileAt(const std::string& path) {
    return {path, Platform::NameOf(path), SumOfFile(folder_ + "\\" + path)};
  }

  void ReadKind(int kind) {
    const std::string folder = ComponentPlaces::FolderNameOf(kind);
    std::map<std::string, std::string> names;
    std::map<std::string, std::string> texts;  // about an archive, by its name without ".zip"
    std::vector<std::string> archives;
    for (const FolderEntry& entry : Visible(folder)) {
      const std::string path = folder + "\\" + entry.name;
      if (entry.isFolder) {
        Refuse(path, "This is a folder. Only archives, and texts about them, belong here.");
      } else if (!JudgeName(path, entry.name) || !IsFirstOfItsName(path, names)) {
        continue;
      } else if (Platform::HasExtension(entry.name, ".txt")) {
        texts[Text::LowerAscii(ComponentPlaces::WithoutExtension(entry.name))] = path;
      } else if (!Platform::HasExtension(entry.name, ".zip")) {
        Refuse(path, "The name of an archive ends in \".zip\".");
      } else if (!ComponentPlaces::IsInstallable(kind, entry.name)) {
        Refuse(path, "The pack installs no archive of this name.");
      } else {
        archives.push_back(path);
      }
    }
    for (const std::string& path : archives) {
      const std::string stem(ComponentPlaces::WithoutExtension(Platform::NameOf(path)));
      const auto text = texts.find(Text::LowerAscii(stem));
      AddOn addOn{FileAt(path), stem, ""};
      const bool isDescribed = text != texts.end();
      if (isDescribed && !ReadText(text->second, addOn)) continue;
      if (!JudgeDisplayName(isDescribed ? text->second : path, addOn.displayName)) continue;
      contents_.addOns[static_cast<size_t>(kind)].push_back(std::move(addOn));
    }
    // Only those that are about something are left out: a slip of the pen is told.
    for (const std::string& path : archives) {
      texts.erase(Text::LowerAscii(ComponentPlaces::WithoutExtension(Platform::NameOf(path))));
    }
    for (const auto& [stem, path] : texts) {
      Refuse(path, "There is no archive " + Quoted(stem + ".zip") + " that this text is about.");
    }
    std::ranges::sort(contents_.addOns[static_cast<size_t>(kind)], {}, [](const AddOn& addOn) {
      return std::tuple(Text::LowerAscii(addOn.displayName), addOn.displayName, addOn.archive.name);
    });
  }

  // The lines of a text, whatever ends them; nothing if it is refused.
  std::optional<std::vector<std::string>> LinesOfFile(const std::string& path) {
    const std::string file = folder_ + "\\" + path;
    const auto stamp = Platform::StampOf(file);
    if (stamp && stamp->size > LongestText) {
      Refuse(path, "The text is longer than 64 kilobytes.");
      return std::nullopt;
    }
    std::string text = Platform::ReadWholeFile(file).value_or("");
    if (text.starts_with(Utf8Mark)) text.erase(0, Utf8Mark.size());
    if (!Utf8::IsWhole(text)) {
      Refuse(path, "The text is not saved as UTF-8.");
      return std::nullopt;
    }
    text = Text::Replace(Text::Replace(text, Text::LineEnd, "\n"), "\r", "\n");
    std::vector<std::string> lines;
    for (size_t begin = 0; begin < text.size();) {
      const size_t end = std::min(text.find('\n', begin), text.size());
      lines.emplace_back(Text::Trim(std::string_view(text).substr(begin, end - begin)));
      begin = end + 1;
    }
    return lines;
  }

  bool ReadText(const std::string& path, AddOn& addOn) {
    const auto lines = LinesOfFile(path);
    if (!lines) return false;
    addOn.displayName = lines->empty() ? "" : lines->front();
    for (size_t i = 1; i < lines->size(); ++i) {
      if (i > 1) addOn.description += '\n';
      addOn.description += (*lines)[i];
    }
    const size_t begin = addOn.description.find_first_not_of('\n');
    addOn.description.erase(0, begin);
    addOn.description.erase(addOn.description.find_last_not_of('\n') + 1);
    return true;
  }

  bool JudgeDisplayName(const std::string& path, const std::string& name) {
    if (name.empty()) {
      Refuse(path, "The first line is empty: it is the display name.");
    } else if (name.find(':') != std::string::npos) {
      Refuse(path, "The display name " + Quoted(name) + " has a \":\", which ends it in the list.");
    } else if (!IsAscii(name)) {
      Refuse(path, "The display name " + Quoted(name) +
                       " has other characters than those of plain English text: they are not the "
                       "same on every player's Windows.");
    } else {
      return true;
    }
    return false;
  }

  void ReadSoftware() {
    std::map<std::string, std::string> names;
    for (const FolderEntry& entry : Visible(SoftwareFolder)) {
      const std::string path = std::string(SoftwareFolder) + "\\" + entry.name;
      const std::string name = Text::LowerAscii(entry.name);
      if (entry.isFolder) {
        Refuse(path, "This is a folder. Only files belong here.");
      } else if (!JudgeName(path, entry.name) || !IsFirstOfItsName(path, names)) {
        continue;
      } else if (name == Platform::NameOf(VersionsFile)) {
        ReadVersions(path);
      } else if (name == "versions.dat") {
        Refuse(path, "It is made of " + std::string(Platform::NameOf(VersionsFile)) +
                         ", and must not be here itself.");
      } else {
        contents_.software.push_back(FileAt(path));
      }
    }
  }

  void ReadVersions(const std::string& path) {
    const auto lines = LinesOfFile(path);
    std::set<std::string> products;
    for (size_t i = 0; lines && i < lines->size(); ++i) {
      const std::string& line = (*lines)[i];
      const auto refuse = [&](const std::string& reason) {
        Refuse(path, "Line " + std::to_string(i + 1) + ": " + reason);
      };
      if (line.empty()) continue;
      const auto pair = KeyValue::Split(line);
      if (!pair || pair->key.empty() || !IsAscii(line)) {
        refuse(Quoted(line) + " is not of the form product=version.");
      } else if (!Versions::Published(pair->value)) {
        refuse(Quoted(std::string(pair->value)) +
               " is not a version: three whole numbers up to 65535, with \".\" between them.");
      } else if (!products.insert(Text::LowerAscii(pair->key)).second) {
        refuse("There is a version of " + Quoted(std::string(pair->key)) + " already.");
      } else {
        contents_.versions.push_back({std::string(pair->key), std::string(pair->value)});
      }
    }
  }

  void ReadPages(const std::string& folder) {
    std::map<std::string, std::string> names;
    for (const FolderEntry& entry : Visible(folder)) {
      const std::string path = folder + "\\" + entry.name;
      if (!Platform::IsPlainFileName(entry.name)) {
        Refuse(path, "Windows cannot have a file of this name.");
      } else if (!IsFirstOfItsName(path, names)) {
        continue;
      } else if (entry.isFolder && entry.isLink) {
        // It may lead round in a circle.
        Refuse(path, "This is a link to a folder, which is not followed.");
      } else if (entry.isFolder) {
        ReadPages(path);
      } else {
        contents_.pages.push_back(FileAt(path));
      }
    }
  }

  const std::string& folder_;
  Faults& faults_;
  Contents contents_;
};

}  // namespace

Contents Read(const std::string& folder, Faults& faults) {
  return Reader(folder, faults).Read();
}

}  // namespace Catalogue
