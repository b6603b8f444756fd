// Message boxes in the user's language.
//
// In all of them the text is looked up, or has been built, before the title: in that order the two
// get into a language file that lacks them.
#pragma once

#include <string>

#include "base/LangText.h"
#include "ui/MsgBox.h"

namespace Messages {

// Tells something, with the button OK.
void Show(const LangText& text, const LangText& title, Platform::Icon icon);

// Tells something whose text has been built of looked-up texts and of others.
void Show(const std::string& text, const LangText& title, Platform::Icon icon);

// Asks a question with the buttons Yes and No. True for Yes.
bool Ask(const LangText& question, const LangText& title, Platform::Buttons buttons);

// Asks a question whose text has been built.
bool Ask(const std::string& question, const LangText& title, Platform::Buttons buttons);

}  // namespace Messages
