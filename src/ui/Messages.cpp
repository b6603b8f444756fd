#include "ui/Messages.h"

#include "text/StringTable.h"

namespace Messages {

void Show(const LangText& text, const LangText& title, Platform::Icon icon) {
  Show(GetLangString(text), title, icon);
}

void Show(const std::string& text, const LangText& title, Platform::Icon icon) {
  Platform::MsgBox(text, GetLangString(title), icon);
}

bool Ask(const LangText& question, const LangText& title, Platform::Buttons buttons) {
  return Ask(GetLangString(question), title, buttons);
}

bool Ask(const std::string& question, const LangText& title, Platform::Buttons buttons) {
  return Platform::MsgBox(question, GetLangString(title), Platform::Icon::Question, buttons) ==
         Platform::Answer::Yes;
}

}  // namespace Messages
