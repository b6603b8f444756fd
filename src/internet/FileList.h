// The window in which the user chooses one of the server's add-ons, and gets it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/SharedTexts.h"
#include "internet/InternetTexts.h"
#include "ui/Forms.h"

class FileList final : public Platform::Form {
 public:
  FileList();

  // Shows the window with the add-ons of a kind.
  //   showComponents  shows the window in which a kind is chosen: when the user wants to choose
  //                   another, and when an add-on could not be had, so that they can try again.
  void ShowFiles(int kind, std::vector<std::string> displayNames,
                 std::function<void()> showComponents);

  // Downloads an archive and unpacks it into the game, and tells the user what came of it. The list
  // goes, and Progress stands in its place; in the end comes the window from which the list's own
  // opener came, or after a failure the choice of a kind.
  //   fileName  from the server's list; a carriage return at its end does not count. One that is
  //             not installable, as ComponentPlaces::IsInstallable has it, is told as a failed
  //             download, and nothing is fetched.
  // Fails as Application::GameFolder does, with the list still there, and as Archive::Extract does.
  void DownloadComponent(const std::string& fileName, int kind);

 private:
  Platform::ListBox Selection{*this, {.label = InternetTexts.FileListText}};
  Platform::Button Submit{*this, {.text = InternetTexts.DownloadButton, .isDefault = true}};
  Platform::Button SelectComponent{*this, {.text = InternetTexts.SelectComponentButton}};
  Platform::Button Ccl{*this, {.text = SharedTexts.CclButton, .isCancel = true}};

  void Submit_Click();
  void SelectComponent_Click();
  void Ccl_Click();

  void BackToComponents();

  int kind_ = 0;
  std::function<void()> showComponents_;
};
