#include "internet/IPView.h"

#include "base/PerRun.h"
#include "internet/ConnectionCheck.h"
#include "internet/Internet.h"
#include "platform/Clipboard.h"

IPView::IPView() : Form(InternetTexts.PIPVTitle) {
  CopyGlobal.OnClick = [this] { CopyGlobal_Click(); };
  Ccl.OnClick = [this] { Ccl_Click(); };
}

void IPView::ShowAddress(const std::string& address) {
  GlobalIP.SetText(address);
  Show();
}

void IPView::CopyGlobal_Click() {
  Platform::SetClipboardText(GlobalIP.text());
}

void IPView::Ccl_Click() {
  Unload();
  GlobalIP.SetText("");
}

void ShowPersonalIPViewer() {
  if (!IsOnlineOrTold()) return;
  // Fetched before the window is shown, so that a failure is told over the window in use.
  PerRun<IPView>().ShowAddress(Internet::GetPublicIP());
}
