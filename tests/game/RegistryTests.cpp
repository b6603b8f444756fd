#include "game/Registry.h"

#include <gmock/gmock.h>

#include "base/RuntimeError.h"
#include "game/Application.h"
#include "tests/Story.h"

namespace {

using Platform::RegistryRoot;
using Platform::RegistryView;

const std::string Uninstall =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
    "{7A3C51E2-94D0-4B6F-A1C8-2E5D90F4B317}_is1";

class RegistryStory : public Story {
 protected:
  std::string Read(const std::string& name = "Value") {
    return Registry::ReadRegistryValue(RegistryRoot::LocalMachine, "SOFTWARE\\Key", name);
  }
  void Put(const std::string& bytes, RegistryView view = RegistryView::Of32Bit) {
    machine.registry.PutString(RegistryRoot::LocalMachine, view, "SOFTWARE\\Key", "Value", bytes);
  }
  void PutLocation(const std::string& text, RegistryView view = RegistryView::Of32Bit) {
    machine.registry.PutString(RegistryRoot::LocalMachine, view, Uninstall, "InstallLocation",
                               text + '\0');
  }
};

TEST_F(RegistryStory, AStringIsReturnedWithoutItsFinalNul) {
  Put(std::string("text\0", 5));
  EXPECT_EQ(Read(), "text");
}

TEST_F(RegistryStory, AStringStoredWithoutANulIsReturnedWhole) {
  Put("text");
  EXPECT_EQ(Read(), "text");
}

TEST_F(RegistryStory, OnlyOneNulIsDropped) {
  Put(std::string("text\0\0", 6));
  EXPECT_EQ(Read(), std::string("text\0", 5));
}

TEST_F(RegistryStory, AnEmptyStringIsEmpty) {
  Put("");
  EXPECT_EQ(Read(), "");
}

TEST_F(RegistryStory, ANumberIsReturnedInDecimal) {
  const auto put = [this](uint32_t number) {
    machine.registry.PutNumber(RegistryRoot::LocalMachine, RegistryView::Of32Bit, "SOFTWARE\\Key",
                               "Number", number);
  };
  put(0);
  EXPECT_EQ(Read("Number"), "0");
  put(0x01020304);
  EXPECT_EQ(Read("Number"), "16909060");
  put(0x7FFFFFFF);
  EXPECT_EQ(Read("Number"), "2147483647");
  put(0xFFFFFFFF);
  EXPECT_EQ(Read("Number"), "-1");
}

TEST_F(RegistryStory, ANumberOfOtherThanFourBytesIsMadeOfTheBytesThereAre) {
  const auto read = [this](const std::string& bytes) {
    machine.registry.Put(RegistryRoot::LocalMachine, RegistryView::Of32Bit, "SOFTWARE\\Key",
                         "Number", {Platform::RegistryType::Number, bytes});
    return Read("Number");
  };
  EXPECT_EQ(read("\x2A"), "42");
  EXPECT_EQ(read("\x01\x02\x03"), "197121");
  EXPECT_EQ(read(std::string("\x2A\0\0\0\0", 5)), "42");
  EXPECT_EQ(read("\x01\x01\x01\x01\x01"), "") << "more than 32 bits";
  EXPECT_EQ(read(""), "");
}

TEST_F(RegistryStory, OtherTypesAreEmpty) {
  machine.registry.PutOther(RegistryRoot::LocalMachine, RegistryView::Of32Bit, "SOFTWARE\\Key",
                            "Binary", "bytes");
  EXPECT_EQ(Read("Binary"), "");
}

TEST_F(RegistryStory, AValueUpTo1024BytesIsRead) {
  Put(std::string(1024, 'x'));
  EXPECT_EQ(Read(), std::string(1024, 'x'));
  Put(std::string(1025, 'x'));
  EXPECT_EQ(Read(), "");
}

TEST_F(RegistryStory, AMissingKeyOrValueIsEmpty) {
  EXPECT_EQ(Read(), "");
  Put("text");
  EXPECT_EQ(Read("Other"), "");
}

TEST_F(RegistryStory, The32BitViewIsTriedFirstAndThe64BitViewAfterIt) {
  Put("of 64 bits", RegistryView::Of64Bit);
  EXPECT_EQ(Read(), "of 64 bits");
  Put("of 32 bits", RegistryView::Of32Bit);
  EXPECT_EQ(Read(), "of 32 bits");
}

TEST_F(RegistryStory, ValuesOfTwoInstallationsAreNotMixed) {
  PutLocation("C:\\Old\\", RegistryView::Of32Bit);
  machine.registry.PutString(RegistryRoot::LocalMachine, RegistryView::Of64Bit, Uninstall,
                             "DisplayVersion", "2.0");
  EXPECT_EQ(Application::GameFolder(), "C:\\Old");
  EXPECT_EQ(Application::GameVersion(), "") << "that of another installation";
  machine.registry.Delete(RegistryRoot::LocalMachine, RegistryView::Of32Bit, Uninstall,
                          "InstallLocation");
  EXPECT_EQ(Application::GameVersion(), "2.0");
}

TEST_F(RegistryStory, AValueOfTheChosenViewThatCannotBeReadIsEmpty) {
  Put(std::string(1025, 'x'));
  Put("of 64 bits", RegistryView::Of64Bit);
  EXPECT_EQ(Read(), "");
}

TEST_F(RegistryStory, TheGameFolderIsTheLocationWithoutItsBackslash) {
  PutLocation("C:\\Games\\Skidrun2\\");
  EXPECT_EQ(Application::GameFolder(), "C:\\Games\\Skidrun2");
}

TEST_F(RegistryStory, ALocationWithoutABackslashLosesItsLastCharacter) {
  PutLocation("C:\\Games\\Skidrun2");
  EXPECT_EQ(Application::GameFolder(), "C:\\Games\\Skidrun");
}

TEST_F(RegistryStory, TheShortestLocationLeavesOneCharacter) {
  PutLocation("G\\");
  EXPECT_EQ(Application::GameFolder(), "G");
}

TEST_F(RegistryStory, TheGameFolderIsReadAtEveryUse) {
  PutLocation("C:\\One\\");
  EXPECT_EQ(Application::GameFolder(), "C:\\One");
  PutLocation("C:\\Two\\");
  EXPECT_EQ(Application::GameFolder(), "C:\\Two");
}

TEST_F(RegistryStory, WithoutTheGameThereIsNoFolder) {
  for (const char* location : {"", "\\"}) {
    PutLocation(location);
    try {
      Application::GameFolder();
      ADD_FAILURE() << "a folder from '" << location << "'";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), RuntimeError::InvalidCall);
      EXPECT_THAT(error.what(), testing::HasSubstr("Skidrun2 was not found"));
    }
  }
}

TEST_F(RegistryStory, TheOtherValuesOfTheGameAreReadAsTheyStand) {
  const auto put = [this](const std::string& name, const std::string& text) {
    machine.registry.PutString(RegistryRoot::LocalMachine, RegistryView::Of32Bit, Uninstall, name,
                               text + '\0');
  };
  EXPECT_EQ(Application::GamePublisher(), "");
  put("Publisher", "Gloamworks");
  put("DisplayVersion", "2.1");
  put("Contact", "help@gloamworks.example");
  EXPECT_EQ(Application::GamePublisher(), "Gloamworks");
  EXPECT_EQ(Application::GameVersion(), "2.1");
  EXPECT_EQ(Application::GameContact(), "help@gloamworks.example");
}

}  // namespace
