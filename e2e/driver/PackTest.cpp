#include "e2e/driver/PackTest.h"

namespace E2e {

void PackTest::TearDown() {
  if (HasFailure()) {
    const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    SavePictureOf(screen, "failed");
  }
}

const std::string& PackTest::PutProgramFolder(const std::string& name) {
  programFolder_ = scratch.path() + "\\" + name;
  CopyFolder(Given().pack, programFolder_);
  return programFolder_;
}

Pack& PackTest::StartPack() {
  if (programFolder_.empty()) PutProgramFolder();
  pack_ = std::make_unique<Pack>(programFolder_ + "\\sk2pack.exe");
  return *pack_;
}

BoxText PackTest::Information(const std::string& title, const std::string& text) {
  return {title, text, BoxIcon::Information, {"OK"}};
}

BoxText PackTest::Critical(const std::string& title, const std::string& text) {
  return {title, text, BoxIcon::Critical, {"OK"}};
}

BoxText PackTest::Question(const std::string& title, const std::string& text) {
  return {title, text, BoxIcon::Question, {"Yes", "No"}};
}

}  // namespace E2e
