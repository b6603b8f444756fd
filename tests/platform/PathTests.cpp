#include "platform/Paths.h"

#include "tests/Story.h"

namespace {

class PathStory : public Story {};

TEST_F(PathStory, FolderAndNameMeetAtTheLastBackslash) {
  EXPECT_EQ(Platform::FolderOf("C:\\Games\\hill.trk"), "C:\\Games");
  EXPECT_EQ(Platform::NameOf("C:\\Games\\hill.trk"), "hill.trk");
  EXPECT_EQ(Platform::FolderOf("C:\\hill.trk"), "C:");
  EXPECT_EQ(Platform::NameOf("C:\\Games\\"), "");
  EXPECT_EQ(Platform::FolderOf("C:\\Games\\"), "C:\\Games");
}

TEST_F(PathStory, APathWithoutBackslashIsAName) {
  EXPECT_EQ(Platform::FolderOf("hill.trk"), "");
  EXPECT_EQ(Platform::NameOf("hill.trk"), "hill.trk");
  EXPECT_EQ(Platform::FolderOf(""), "");
  EXPECT_EQ(Platform::NameOf(""), "");
}

TEST_F(PathStory, AnExtensionIsFoundInAnyLetterCase) {
  EXPECT_TRUE(Platform::HasExtension("C:\\hill.trk", ".trk"));
  EXPECT_TRUE(Platform::HasExtension("C:\\HILL.TRK", ".trk"));
  EXPECT_TRUE(Platform::HasExtension("C:\\hill.trk", ".TRK"));
  EXPECT_FALSE(Platform::HasExtension("C:\\hill.trk.bak", ".trk"));
  EXPECT_FALSE(Platform::HasExtension("C:\\trk", ".trk"));
  EXPECT_FALSE(Platform::HasExtension("rk", ".trk"));
}

// Japanese letters of two bytes, of which the second is that of "\\" or "|".
TEST_F(PathStory, HalfACharacterIsNoBackslash) {
  machine.locale.codePage = 932;
  EXPECT_EQ(Platform::FolderOf("C:\\\x83\x5C\\\x95\x5C.vhc"), "C:\\\x83\x5C");
  EXPECT_EQ(Platform::NameOf("C:\\\x83\x5C\\\x95\x5C.vhc"), "\x95\x5C.vhc");
  EXPECT_EQ(Platform::FolderOf("C:\\\x83\x5C\\"), "C:\\\x83\x5C");
  EXPECT_EQ(Platform::NameOf("\x95\x5C.trk"), "\x95\x5C.trk");
  EXPECT_TRUE(Platform::HasExtension("\x95\x5C.TRK", ".trk"));
  EXPECT_FALSE(Platform::HasExtension("\x95\x5Ctrk", ".trk"));
  machine.locale.codePage = 1252;
  EXPECT_EQ(Platform::NameOf("\x95\x5C.trk"), ".trk") << "the same bytes are two characters here";
}

}  // namespace
