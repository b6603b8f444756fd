// Archives that must be unpacked, and archives that must be refused, with the reason.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "archive/ArchiveTexts.h"
#include "base/LangText.h"
#include "base/RuntimeErrorTexts.h"
#include "tests/archive/ZipBytes.h"

namespace ArchiveCorpus {

// What stands in a folder: the contents of files by their paths, and folders, which have a
// backslash at their ends.
using Tree = std::map<std::string, std::string>;

// The tree with long contents told by their size and their checksum, to be compared and shown.
inline Tree Short(Tree tree) {
  for (auto& [path, contents] : tree) {
    if (contents.size() < 100) continue;
    contents =
        std::to_string(contents.size()) + " bytes, " + std::to_string(ZipBytes::Checksum(contents));
  }
  return tree;
}

struct Good {
  std::string what;
  std::string bytes;
  Tree tree;
};

struct Hostile {
  std::string what;
  std::string bytes;
  LangText cause;
};

inline std::string Song() {
  std::string song;
  for (int i = 0; i < 3000; ++i) song += "The car has gone by " + std::to_string(i) + " times.\r\n";
  return song;
}

// In the Western code page.
inline std::vector<Good> GoodArchives() {
  using namespace ZipBytes;
  const Tree one{{"hill.trk", Song()}};
  std::vector<Good> all;
  const auto add = [&](const std::string& what, const ZipBytes::Archive& archive,
                       const Tree& tree) {
    all.push_back({what, Bytes(archive), tree});
  };
  const auto addOne = [&](const std::string& what, Member member) {
    member.name = "hill.trk";
    member.contents = Song();
    add(what, {.members = {member}}, one);
  };
  addOne("deflated", {});
  addOne("stored", {.method = Stored});
  addOne("with a descriptor", {.descriptor = Descriptor::Signed});
  addOne("with a descriptor without signature", {.descriptor = Descriptor::Unsigned});
  addOne("with a wide descriptor", {.descriptor = Descriptor::WideSigned, .isWide = true});
  addOne("with a wide descriptor without signature",
         {.descriptor = Descriptor::WideUnsigned, .isWide = true});
  addOne("stored with a descriptor", {.method = Stored, .descriptor = Descriptor::Signed});
  addOne("with wide fields", {.isWide = true});
  addOne("with extra fields of others",
         {.extras = Extra(0x9999, "abc"), .localExtras = Extra(0x7777, "")});
  addOne("with a piece of an extra field", {.extras = "\x55", .localExtras = "abc"});
  addOne("with a comment of its own", {.comment = "uphill"});
  addOne("of a system with rights", {.madeOn = 3, .attributes = 0100644u << 16});
  addOne("without a date", {.dosTime = 0});
  addOne("with a date that there is not", {.dosTime = 0xFFFFFFFF});

  const Member hill{.name = "hill.trk", .contents = Song()};
  add("with a wide end", {.members = {hill}, .isWide = true}, one);
  add("behind a program", {.members = {hill}, .stub = "MZ program PK\3\4 PK\5\6"}, one);
  add("behind a program that is counted",
      {.members = {hill}, .stub = "MZ program", .countsStub = true}, one);
  add("behind a program, with a wide end",
      {.members = {hill}, .stub = std::string(500, 'p'), .isWide = true}, one);
  add("with a comment", {.members = {hill}, .comment = "PK\5\6 a hill"}, one);
  add("with the longest comment", {.members = {hill}, .comment = std::string(65535, 'c')}, one);
  add("with a gap before the directory", {.members = {hill}, .beforeDirectory = "gap"}, one);
  add("with zeros behind it", {.members = {hill}, .behind = std::string(10239, '\0')}, one);
  add("with a comment and zeros behind it",
      {.members = {hill}, .comment = "a hill", .behind = std::string(1, '\0')}, one);
  add("without anything", {}, {});
  add("without anything, with a wide end", {.isWide = true}, {});

  add("of an empty file", {.members = {{.name = "empty.trk", .method = Stored}}},
      {{"empty.trk", ""}});
  add("of an empty file that is deflated", {.members = {{.name = "empty.trk"}}},
      {{"empty.trk", ""}});
  add("with folders",
      {.members = {{.name = "sounds/", .method = Stored, .attributes = 0x10},
                   {.name = "sounds/a/horn.wav", .contents = "toot"},
                   {.name = "sounds/b/", .packed = std::string("\3\0", 2)},
                   {.name = "car.vhc", .contents = "x=1"}}},
      {{"sounds\\", ""},
       {"sounds\\a\\", ""},
       {"sounds\\a\\horn.wav", "toot"},
       {"sounds\\b\\", ""},
       {"car.vhc", "x=1"}});
  add("with backslashes", {.members = {{.name = "sounds\\"}, {.name = "sounds\\horn.wav"}}},
      {{"sounds\\", ""}, {"sounds\\horn.wav", ""}});
  add("with a folder in two letter cases",
      {.members = {{.name = "Sounds/a.wav"}, {.name = "sounds/b.wav"}, {.name = "SOUNDS/"}}},
      {{"Sounds\\", ""}, {"Sounds\\a.wav", ""}, {"Sounds\\b.wav", ""}});
  add("with the folder itself", {.members = {{.name = "./"}, {.name = "./a/./b.trk"}}},
      {{"a\\", ""}, {"a\\b.trk", ""}});
  add("with names that only look odd",
      {.members = {{.name = " a"},
                   {.name = "..b"},
                   {.name = "console.txt"},
                   {.name = "com0"},
                   {.name = "com10"},
                   {.name = ".c"},
                   {.name = "~d [1] #%&'()+,-;=@^_`{}!.txt"}}},
      {{" a", ""},
       {"..b", ""},
       {"console.txt", ""},
       {"com0", ""},
       {"com10", ""},
       {".c", ""},
       {"~d [1] #%&'()+,-;=@^_`{}!.txt", ""}});
  add("with letters in UTF-8",
      {.members = {{.name = "H\xC3\xBCgel \xE2\x82\xAC.trk", .contents = "u", .flags = Utf8}}},
      {{"H\xFCgel \x80.trk", "u"}});
  add("with letters of the code page", {.members = {{.name = "H\xFCgel.trk", .contents = "p"}}},
      {{"H\xFCgel.trk", "p"}});
  add("with letters of a Unix in UTF-8 that does not say so",
      {.members = {{.name = "H\xC3\xBCgel.trk", .madeOn = 3}}}, {{"H\xFCgel.trk", ""}});
  add("with letters of a Unix that are not UTF-8",
      {.members = {{.name = "H\xFCgel.trk", .madeOn = 3}}}, {{"H\xFCgel.trk", ""}});
  const auto unicodeName = [](const std::string& other, const std::string& name) {
    std::string bytes("\1");
    Put(Checksum(other), bytes);
    return Extra(0x7075, bytes + name);
  };
  add("with a second name in UTF-8",
      {.members = {{.name = "H_gel.trk", .extras = unicodeName("H_gel.trk", "H\xC3\xBCgel.trk")}}},
      {{"H\xFCgel.trk", ""}});
  add("with a second name that is of another",
      {.members = {{.name = "H_gel.trk", .extras = unicodeName("other", "H\xC3\xBCgel.trk")}}},
      {{"H_gel.trk", ""}});
  add("in another order than its directory",
      {.members = {{.name = "b", .contents = "2"}, {.name = "a", .contents = "1"}}},
      {{"a", "1"}, {"b", "2"}});
  return all;
}

inline void AddHostileNames(std::vector<Hostile>& all) {
  using namespace ZipBytes;
  const ArchiveTextTable& texts = ArchiveTexts;
  // Behind a good one, which must not be written either.
  const auto addName = [&](const std::string& name, const LangText& cause, uint16_t flags = 0) {
    const Member good{.name = "good.trk", .contents = "good"};
    const Member evil{.name = name, .contents = name.ends_with('/') ? "" : "evil", .flags = flags};
    all.push_back(
        {"the name '" + name.substr(0, 50) + "'", Bytes({.members = {good, evil}}), cause});
  };
  for (const char* name : {"../evil.txt",
                           "..\\evil.txt",
                           "a/../../evil.txt",
                           "a\\..\\..\\evil.txt",
                           "a/../evil.txt",
                           "/evil.txt",
                           "\\evil.txt",
                           "//server/share/evil.txt",
                           "\\\\server\\share\\evil.txt",
                           "\\\\?\\C:\\evil.txt",
                           "\\\\.\\C:\\evil.txt",
                           "C:\\evil.txt",
                           "C:/evil.txt",
                           "C:evil.txt",
                           "c:",
                           "a:b.txt",
                           "a/b.txt:stream",
                           "a.txt::$DATA",
                           "..",
                           "../",
                           "a/..",
                           "a/../",
                           "./../b",
                           "a/c:/b"}) {
    addName(name, texts.ArchiveLeadsOutside);
  }
  for (const char* name : {"nul", "NUL.txt", "con", "a/Con.trk", "prn.a.b", "aux ", "aux .wav",
                           "com1", "COM9.txt", "lpt1", "LPT9.x/b.txt", "conin$", "CONOUT$.txt",
                           "com\xB9", "com\xB2.txt", "LPT\xB3", "nul/", "nul/b.txt"}) {
    addName(name, texts.ArchiveNameNotUsable);
  }
  for (const char* name :
       {"a.",       "a ",  "a./b", "a /b", "...",    "a/.../b", ".. /b", ".. ", "a.txt.",
        "a.txt . ", "a/ ", " ",    "a//b", "a\\\\b", "a/\\b",   ".",     "a<b", "a>b",
        "a\"b",     "a|b", "a?b",  "a*b",  "a\nb",   "a\x1F",   "\x01",  "a\tb"}) {
    addName(name, texts.ArchiveNameNotUsable);
  }
  addName(std::string("a\0b", 3), texts.ArchiveNameNotUsable);
  addName(std::string("a.txt\0", 6), texts.ArchiveNameNotUsable);
  addName("", texts.ArchiveNameNotUsable);
  addName("a\xC3.txt", texts.ArchiveNameNotUsable, Utf8);
  addName("a\xC0\xAF..\xC0\xAF.txt", texts.ArchiveNameNotUsable, Utf8);
  addName("a?\xE5\xB1\xB1.txt", texts.ArchiveNameNotInLanguage, Utf8);
  addName("\xE5\xB1\xB1.txt", texts.ArchiveNameNotInLanguage, Utf8);
  // Letters that only look like "a", "/" and ".".
  addName("\xEF\xBD\x81.txt", texts.ArchiveNameNotInLanguage, Utf8);
  addName("..\xE2\x88\x95x", texts.ArchiveNameNotInLanguage, Utf8);
  addName("\xEF\xBC\x8E./x", texts.ArchiveNameNotInLanguage, Utf8);
  addName(std::string(300, 'n'), texts.ArchiveNameNotUsable);
  std::string deep;
  for (int i = 0; i < 150; ++i) deep += "d/";
  addName(deep, RuntimeErrorTexts.NameNotUsable);
  addName(deep + "file", RuntimeErrorTexts.NameNotUsable);
  addName(std::string(65535, 'x'), texts.ArchiveNameNotUsable);

  const auto addNames = [&](const std::vector<std::string>& names) {
    ZipBytes::Archive archive;
    std::string what = "the names";
    for (const std::string& name : names) {
      archive.members.push_back({.name = name, .contents = name.ends_with('/') ? "" : name});
      what += " " + name;
    }
    all.push_back({what, Bytes(archive), texts.ArchiveNameTwice});
  };
  addNames({"a.txt", "a.txt"});
  addNames({"a.txt", "A.TXT"});
  addNames({"\xE4.txt", "\xC4.txt"});
  addNames({"x/a.txt", "X\\A.txt"});
  addNames({"a", "a/b.txt"});
  addNames({"A/b.txt", "a"});
  addNames({"a", "a/"});
  addNames({"a", "./a"});
}

inline void AddLies(std::vector<Hostile>& all) {
  using namespace ZipBytes;
  const ArchiveTextTable& texts = ArchiveTexts;
  const std::string song = Song();
  const std::string packed = Deflated(song);
  const Member good{.name = "good.trk", .contents = "good"};
  const auto add = [&](const std::string& what, Member member,
                       const LangText& cause = ArchiveTexts.ArchiveDamaged) {
    if (member.name.empty()) member.name = "hill.trk";
    if (member.contents.empty()) member.contents = Song();
    all.push_back({what, Bytes({.members = {good, member}}), cause});
  };
  add("a wrong checksum", {.checksum = 1});
  add("a wrong checksum of a stored entry", {.method = Stored, .checksum = 1});
  add("a wrong checksum in a descriptor",
      {.descriptor = Descriptor::Signed, .descriptorChecksum = 1});
  add("a checksum of its own before the data", {.localChecksum = 1});
  add("a size of its own before the data", {.localSize = 1});
  add("a size that is too small", {.size = song.size() - 1});
  add("a size that is too large", {.size = song.size() + 1});
  add("no size", {.size = 0});
  add("a stored entry with two sizes", {.method = Stored, .size = song.size() - 1});
  add("deflated data that is cut", {.packed = packed.substr(0, packed.size() / 2)});
  add("deflated data with something behind it", {.packed = packed + "x"});
  add("deflated data that says less than all", {.packedSize = packed.size() - 1});
  add("deflated data that reaches into what follows", {.packedSize = packed.size() + 1});
  add("no deflated data", {.packed = ""}, texts.ArchiveTooLarge);
  add("no data that could be inflated", {.packed = std::string(packed.size(), '\xFF')});
  add("more data than the file has", {.method = Stored, .size = 1u << 30, .packedSize = 1u << 30});
  add("wide sizes beyond all bounds",
      {.method = Stored, .isWide = true, .size = ~uint64_t{0}, .packedSize = ~uint64_t{0}});
  add("a wide place beyond all bounds", {.isWide = true, .offset = ~uint64_t{0}});
  add("another name before the data", {.localName = "other.trk"});
  add("another letter case before the data", {.localName = "HILL.trk"});
  add("another method before the data", {.localMethod = Stored});
  add("no header before the data", {.localSignature = 0});
  add("no record", {.signature = 0});
  add("a place beyond the end", {.offset = 1u << 30});
  add("a place in another's data", {.offset = 5});
  add("another's place", {.offset = 0});
  add("a folder with contents", {.name = "folder/"});
  add("the size of a bomb", {.size = uint64_t{packed.size()} * 1033}, texts.ArchiveTooLarge);

  add("a password", {.flags = 1}, texts.ArchiveEncrypted);
  add("a password before the data", {.localFlags = 1}, texts.ArchiveEncrypted);
  add("strong encryption", {.flags = 0x41}, texts.ArchiveEncrypted);
  add("hidden headers", {.flags = 0x2000}, texts.ArchiveEncrypted);
  add("another encryption", {.method = 99}, texts.ArchiveEncrypted);
  for (const uint16_t method : {1, 6, 9, 12, 14, 93, 95, 98, 65535}) {
    add("the method " + std::to_string(method), {.method = method}, texts.ArchiveMethodUnknown);
  }
  add("data for a patch", {.flags = 0x20}, texts.ArchiveMethodUnknown);
  add("another part", {.disk = 1}, texts.ArchiveInSeveralParts);
  add("a link", {.madeOn = 3, .attributes = 0120777u << 16}, texts.ArchiveHoldsLink);
  add("a link of another system", {.madeOn = 0, .attributes = 0120777u << 16},
      texts.ArchiveHoldsLink);
  add("a link of Windows", {.madeOn = 10, .attributes = 0x400}, texts.ArchiveHoldsLink);
  add("a device", {.madeOn = 3, .attributes = 0060600u << 16}, texts.ArchiveHoldsLink);
  add("a pipe", {.madeOn = 19, .attributes = 0010600u << 16}, texts.ArchiveHoldsLink);

  // One entry within the data of another, and two with the same data.
  const Member inner{.name = "inner.trk", .contents = "inner"};
  const std::string innerFile = Bytes({.members = {inner}});
  Member outer{.name = "outer.trk", .contents = innerFile, .method = Stored};
  const size_t innerPlace = 30 + outer.name.size();
  Member within = inner;
  within.offset = innerPlace;
  within.localSignature = 0;
  all.push_back({"an entry within another's data", Bytes({.members = {outer, within}}),
                 texts.ArchiveDamaged});
}

inline void AddBrokenEnds(std::vector<Hostile>& all) {
  using namespace ZipBytes;
  const ArchiveTextTable& texts = ArchiveTexts;
  const Member good{.name = "good.trk", .contents = Song()};
  const auto add = [&](const std::string& what, ZipBytes::Archive archive,
                       const LangText& cause = ArchiveTexts.ArchiveDamaged) {
    archive.members = {good};
    all.push_back({what, Bytes(archive), cause});
  };
  add("too many entries", {.count = 2});
  add("too few entries", {.count = 0});
  add("a directory that is too short", {.size = 20});
  add("a directory beyond the start", {.size = 1u << 30});
  add("a directory elsewhere", {.offset = 1u << 30});
  add("another part's end", {.disk = 1}, texts.ArchiveInSeveralParts);
  add("another part's wide end", {.isWide = true, .disk = 1}, texts.ArchiveInSeveralParts);
  add("a wide end of two parts", {.isWide = true, .disks = 2}, texts.ArchiveInSeveralParts);
  add("a wide end with a wrong size", {.isWide = true, .wideSize = 45});
  add("more entries than are ever read", {.isWide = true, .count = 1u << 20},
      texts.ArchiveTooLarge);
  add("entries beyond all bounds", {.isWide = true, .count = ~uint64_t{0}}, texts.ArchiveTooLarge);
  add("a directory beyond all bounds", {.isWide = true, .size = ~uint64_t{0}});
  add("a wide place beyond all bounds", {.isWide = true, .offset = ~uint64_t{0}});
  add("something behind the end", {.behind = "x"});
  add("something behind zeros", {.behind = std::string("\0\0\0x", 4)});
  add("too many zeros", {.behind = std::string(140000, '\0')});
  all.push_back({"no bytes", "", texts.ArchiveNotAZip});
  all.push_back({"a text", "This is no archive.", texts.ArchiveNotAZip});
  all.push_back({"zeros", std::string(100000, '\0'), texts.ArchiveNotAZip});
  all.push_back({"signatures alone", "PK\1\2PK\3\4PK\5\6PK\6\6PK\6\7", texts.ArchiveNotAZip});
  all.push_back({"a header alone", "PK\3\4", texts.ArchiveDamaged});
  const std::string whole = Of(good);
  all.push_back({"no end", whole.substr(0, whole.size() - 22), texts.ArchiveDamaged});
  all.push_back({"the end alone", whole.substr(whole.size() - 22), texts.ArchiveDamaged});
  std::string damaged = whole;
  damaged[200] = static_cast<char>(damaged[200] ^ 1);
  all.push_back({"a damaged bit", damaged, texts.ArchiveDamaged});
}

inline std::vector<Hostile> HostileArchives() {
  std::vector<Hostile> all;
  AddHostileNames(all);
  AddLies(all);
  AddBrokenEnds(all);
  return all;
}

}  // namespace ArchiveCorpus
