#include "base/File.h"

#include <gtest/gtest.h>

namespace {

TEST(File, FolderAndNameMeetAtTheLastBackslash) {
  EXPECT_EQ(File::FolderOf("C:\\Games\\hill.trk"), "C:\\Games");
  EXPECT_EQ(File::NameOf("C:\\Games\\hill.trk"), "hill.trk");
  EXPECT_EQ(File::FolderOf("C:\\hill.trk"), "C:");
  EXPECT_EQ(File::NameOf("C:\\Games\\"), "");
  EXPECT_EQ(File::FolderOf("C:\\Games\\"), "C:\\Games");
}

TEST(File, APathWithoutBackslashIsAName) {
  EXPECT_EQ(File::FolderOf("hill.trk"), "");
  EXPECT_EQ(File::NameOf("hill.trk"), "hill.trk");
  EXPECT_EQ(File::FolderOf(""), "");
  EXPECT_EQ(File::NameOf(""), "");
}

TEST(File, AnExtensionIsFoundInAnyLetterCase) {
  EXPECT_TRUE(File::HasExtension("C:\\hill.trk", ".trk"));
  EXPECT_TRUE(File::HasExtension("C:\\HILL.TRK", ".trk"));
  EXPECT_TRUE(File::HasExtension("C:\\hill.trk", ".TRK"));
  EXPECT_FALSE(File::HasExtension("C:\\hill.trk.bak", ".trk"));
  EXPECT_FALSE(File::HasExtension("C:\\trk", ".trk"));
  EXPECT_FALSE(File::HasExtension("rk", ".trk"));
}

}  // namespace
