#include "platform/Numbers.h"

#include "machine/win32/System.h"

#include <oleauto.h>

#include <limits>

#include "machine/win32/CodePage.h"
#include "machine/win32/SystemLibrary.h"

namespace Platform {

namespace {

SystemFunction<decltype(::VarR8FromStr)> VarR8FromStr("oleaut32.dll", "VarR8FromStr");

}  // namespace

std::optional<double> ParseLocaleNumber(std::string_view text) {
  // The system's parser ends at a NUL and would take the digits before it for the whole.
  if (text.empty() || text.find('\0') != std::string_view::npos) return std::nullopt;
  double value = 0;
  std::wstring wide = Widen(text);  // not const only because the system's declaration is not
  const HRESULT result = VarR8FromStr(wide.data(), LOCALE_USER_DEFAULT, 0, &value);
  if (result == DISP_E_OVERFLOW) return std::numeric_limits<double>::infinity();
  if (FAILED(result)) return std::nullopt;
  return value;
}

}  // namespace Platform
