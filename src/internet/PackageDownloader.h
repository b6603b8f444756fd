// The window in which the user chooses what kind of add-on to look for on the maker's server.
#pragma once

#include "base/SharedTexts.h"
#include "internet/InternetTexts.h"
#include "ui/Forms.h"

class PackageDownloader final : public Platform::Form {
 public:
  PackageDownloader();

  // Shows the window with the first kind selected.
  void Open();

  // Shows the server's list of a kind in place of this window; or tells why it cannot be had, and
  // goes back to the opener.
  void ShowComponentFiles(int kind);

 private:
  Platform::ListBox Selection{*this, {.label = InternetTexts.PackageDownloaderText}};
  Platform::Button Submit{*this, {.text = SharedTexts.SelectButton, .isDefault = true}};
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};

  void Form_Load();  // fills the list
  void Submit_Click();
  void Ccl_Click();
};

// Opens the window, or tells that the computer is not online. Fails as Internet::GetPublicIP does;
// the window in use is then still there.
void ShowPackageDownloader();
