// A dialog without controls, described in memory for the system's dialog manager.
#pragma once

#include <vector>

#include "machine/win32/System.h"

namespace Platform {

class DialogTemplate {
 public:
  // The dialog has the user's message font.
  DialogTemplate(DWORD style, DWORD exStyle);

  const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  void Add(WORD word) { words_.push_back(word); }
  void AddLong(DWORD value);
  void AddText(const wchar_t* text);

  std::vector<WORD> words_;
};

}  // namespace Platform
