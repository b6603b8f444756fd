#include "machine/win32/DialogTemplate.h"

#include "machine/win32/Display.h"

namespace Platform {

DialogTemplate::DialogTemplate(DWORD style, DWORD exStyle) {
  // In points, which the dialog manager turns into the pixels of the screen.
  constexpr UINT UsualDpi = 96;
  constexpr int PointsPerInch = 72;
  const LOGFONTW font = Display::MessageFont(UsualDpi);

  // DLGTEMPLATEEX, which no header declares.
  Add(1);       // version
  Add(0xFFFF);  // marks the extended template
  AddLong(0);   // help id
  AddLong(exStyle);
  AddLong(style | DS_SHELLFONT);
  Add(0);                                    // controls
  for (int i = 0; i < 4; ++i) Add(0);        // place and size, which follow from the controls
  for (int i = 0; i < 3; ++i) AddText(L"");  // menu, class, title
  Add(static_cast<WORD>(MulDiv(-font.lfHeight, PointsPerInch, UsualDpi)));
  Add(static_cast<WORD>(font.lfWeight));
  Add(static_cast<WORD>(font.lfItalic | font.lfCharSet << 8));
  AddText(font.lfFaceName);
}

void DialogTemplate::AddLong(DWORD value) {
  Add(LOWORD(value));
  Add(HIWORD(value));
}

void DialogTemplate::AddText(const wchar_t* text) {
  do {
    Add(static_cast<WORD>(*text));
  } while (*text++);
}

}  // namespace Platform
