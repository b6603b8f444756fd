// Message boxes whose text and title are looked up in the user's language.
#pragma once

#include "base/LangText.h"
#include "platform/MsgBox.h"

namespace Messages {

void Show(const LangText& text, const LangText& title, Platform::Icon icon);

// Asks a question with the buttons Yes and No. True for Yes.
bool Ask(const LangText& question, const LangText& title, Platform::Buttons buttons);

}  // namespace Messages
