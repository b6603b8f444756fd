#include "ui/Messages.h"

#include "text/StringTable.h"

namespace Messages {

void Show(const LangText& text, const LangText& title, Platform::Icon icon) {
  const std::string shown = GetLangString(text);
  Platform::MsgBox(shown, GetLangString(title), icon);
}

bool Ask(const LangText& question, const LangText& title, Platform::Buttons buttons) {
  const std::string shown = GetLangString(question);
  return Platform::MsgBox(shown, GetLangString(title), Platform::Icon::Question, buttons) ==
         Platform::Answer::Yes;
}

}  // namespace Messages
