// Message boxes whose text and title are looked up in the user's language.
#pragma once

#include "base/LangText.h"
#include "ui/MsgBox.h"

namespace Messages {

// Tells something, with the button OK. As in Ask, the text is looked up before the title: in that
// order the two get into a language file that lacks them.
void Show(const LangText& text, const LangText& title, Platform::Icon icon);

// Asks a question with the buttons Yes and No. True for Yes.
bool Ask(const LangText& question, const LangText& title, Platform::Buttons buttons);

}  // namespace Messages
