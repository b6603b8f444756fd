#include "machine/win32/Display.h"

#include <algorithm>
#include <numeric>

#include "base/RuntimeErrorTexts.h"
#include "machine/win32/Failure.h"

namespace Platform::Display {

namespace {

// What the first releases of Windows 10 lack is asked for by name: the system would not start a
// program that imports it there.
template <class Function>
Function FromUser32(const char* name) {
  return reinterpret_cast<Function>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32"), name)));
}

UINT SystemDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return static_cast<UINT>(dpi);
}

}  // namespace

UINT DpiOf(HWND window) {
  static const auto getDpi = FromUser32<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
  const UINT dpi = getDpi ? getDpi(window) : 0;
  return dpi ? dpi : SystemDpi();
}

LOGFONTW MessageFont(UINT dpi) {
  static const auto getForDpi =
      FromUser32<BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT)>("SystemParametersInfoForDpi");
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  if (getForDpi && getForDpi(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0, dpi)) {
    return metrics.lfMessageFont;
  }
  if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0)) {
    LOGFONTW font = metrics.lfMessageFont;
    font.lfHeight = MulDiv(font.lfHeight, static_cast<int>(dpi), static_cast<int>(SystemDpi()));
    return font;
  }
  LOGFONTW font{};
  GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
  return font;
}

Font::Font(UINT dpi) {
  const LOGFONTW description = MessageFont(dpi);
  handle_.reset(CreateFontIndirectW(&description));
  context_.reset(CreateCompatibleDC(nullptr));
  if (!handle_ || !context_) FailAt(RuntimeErrorTexts.MeasuringTexts);
  previous_ = SelectObject(context_.get(), handle_.get());

  // The dialog manager's own way to the mean width.
  constexpr wchar_t Letters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  SIZE size{};
  GetTextExtentPoint32W(context_.get(), Letters, 52, &size);
  TEXTMETRICW metrics{};
  GetTextMetricsW(context_.get(), &metrics);
  units_ = {static_cast<int>((size.cx / 26 + 1) / 2), static_cast<int>(metrics.tmHeight)};
  if (!GetCharWidth32W(context_.get(), FirstPlain, LastPlain, plainWidths_.data())) {
    FailAt(RuntimeErrorTexts.MeasuringTexts);
  }
}

Font::~Font() {
  // A font in use by a context cannot be deleted.
  SelectObject(context_.get(), previous_);
}

Layout::Size Font::Measure(const std::string& text, int width) const {
  RECT rect{0, 0, width, 0};
  DrawTextA(context_.get(), text.c_str(), -1, &rect, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
  return {static_cast<int>(rect.right), static_cast<int>(rect.bottom)};
}

int Font::Width(const std::string& text) const {
  // Asking the system takes longer than adding the row to its list, and lists have many rows.
  const auto isPlain = [](char c) { return c >= FirstPlain && c <= LastPlain; };
  if (std::all_of(text.begin(), text.end(), isPlain)) {
    return std::accumulate(text.begin(), text.end(), 0, [this](int width, char c) {
      return width + plainWidths_[static_cast<size_t>(c - FirstPlain)];
    });
  }
  SIZE size{};
  GetTextExtentPoint32A(context_.get(), text.c_str(), static_cast<int>(text.size()), &size);
  return static_cast<int>(size.cx);
}

RECT WorkArea(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  if (GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor)) {
    return monitor.rcWork;
  }
  RECT area{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  return area;
}

SIZE WithFrame(HWND window, Layout::Size client) {
  static const auto adjustForDpi =
      FromUser32<BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT)>("AdjustWindowRectExForDpi");
  RECT rect{0, 0, client.width, client.height};
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
  const auto exStyle = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE));
  const BOOL hasMenu = GetMenu(window) != nullptr;
  if (adjustForDpi) {
    adjustForDpi(&rect, style, hasMenu, exStyle, DpiOf(window));
  } else {
    AdjustWindowRectEx(&rect, style, hasMenu, exStyle);
  }
  return {rect.right - rect.left, rect.bottom - rect.top};
}

void KeepLayoutOurs(HWND dialog) {
  // DIALOG_DPI_CHANGE_BEHAVIORS, DDC_DISABLE_ALL
  static const auto setBehavior =
      FromUser32<BOOL(WINAPI*)(HWND, UINT, UINT)>("SetDialogDpiChangeBehavior");
  constexpr UINT DisableAll = 1;
  if (setBehavior) setBehavior(dialog, DisableAll, DisableAll);
}

}  // namespace Platform::Display
