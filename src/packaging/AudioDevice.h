// The window where the user chooses the device to record from.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/SharedTexts.h"
#include "packaging/PackagingTexts.h"
#include "ui/Forms.h"

// One for a run: PerRun<AudioDevice>().
class AudioDevice final : public Platform::Form {
 public:
  AudioDevice();

  // Shows the devices in place of the window in use, the first one selected.
  //   onChosen  goes on with the row that is selected at OK, or -1 if none is, after the window has
  //             given up the stage. The window does not know who opened it.
  // Fails as Show does.
  void Choose(std::vector<std::string> devices, std::function<void(int device)> onChosen);

 private:
  // In reading order.
  Platform::ListBox Devices{*this, {.label = PackagingTexts.AudioDevicesText}};
  Platform::Button Submit{*this, {.text = SharedTexts.OKButton, .isDefault = true}};
  Platform::Button Ccl{*this, {.text = PackagingTexts.CCLButton, .isCancel = true}};

  std::function<void(int device)> onChosen_;

  void Form_Close();
  void Submit_Click();
  void Ccl_Click();
};
