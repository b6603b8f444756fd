#include "internet/ConnectionCheck.h"

#include "base/SharedTexts.h"
#include "internet/Internet.h"
#include "internet/InternetTexts.h"
#include "ui/Messages.h"

bool IsOnlineOrTold() {
  if (Internet::IsInternetConnected()) return true;
  Messages::Show(InternetTexts.NoConnection, SharedTexts.Error, Platform::Icon::Critical);
  return false;
}
