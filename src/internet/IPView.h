// The window that tells the user the address under which others on the internet reach them.
#pragma once

#include <string>

#include "internet/InternetTexts.h"
#include "ui/Forms.h"

class IPView final : public Platform::Form {
 public:
  IPView();

  // Shows the window with an address.
  void ShowAddress(const std::string& address);

 private:
  Platform::TextBox GlobalIP{*this, {.label = InternetTexts.PIPVPrompt, .isReadOnly = true}};
  Platform::Button CopyGlobal{*this, {.text = InternetTexts.CopyIPButton, .isDefault = true}};
  Platform::Button Ccl{*this, {.text = InternetTexts.ExitPIPVButton, .isCancel = true}};

  void CopyGlobal_Click();
  void Ccl_Click();
};

// Opens the window with the user's public address, or tells that the computer is not online. The
// address is asked for twice, once to find that out; if it cannot be had the second time, the
// window shows none. Fails as Internet::GetPublicIP does; the window in use is then still there.
void ShowPersonalIPViewer();
