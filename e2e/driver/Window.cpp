#include "e2e/driver/Window.h"

#include <stdexcept>

#include "e2e/driver/Wait.h"
#include "tests/machine/RealMachineNames.h"

namespace E2e {
namespace {

// Asked in wide characters: between programs, Wine hands the row over in them whatever is asked
// for.
std::string RowOf(HWND list, LRESULT row, LRESULT length) {
  std::wstring text(static_cast<size_t>(length) + 1, L'\0');
  DWORD_PTR copied = 0;
  if (!SendMessageTimeoutW(list, LB_GETTEXT, static_cast<WPARAM>(row),
                           reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG, 10'000,
                           &copied) ||
      static_cast<LRESULT>(copied) <= 0) {
    return "";
  }
  std::string narrow(static_cast<size_t>(copied) * 2, '\0');
  narrow.resize(static_cast<size_t>(
      WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(copied), narrow.data(),
                          static_cast<int>(narrow.size()), nullptr, nullptr)));
  return narrow;
}

}  // namespace

DWORD Window::processId() const {
  DWORD id = 0;
  GetWindowThreadProcessId(handle_, &id);
  return id;
}

std::string Window::className() const {
  char name[256] = "";
  GetClassNameA(handle_, name, sizeof name);
  return name;
}

bool Window::IsClass(const char* name) const {
  return lstrcmpiA(className().c_str(), name) == 0;
}

std::optional<LRESULT> Window::Ask(UINT message, WPARAM first, LPARAM second) const {
  DWORD_PTR answer = 0;
  if (!SendMessageTimeoutA(handle_, message, first, second, SMTO_ABORTIFHUNG, 10'000, &answer)) {
    return std::nullopt;
  }
  return static_cast<LRESULT>(answer);
}

std::string Window::text() const {
  const auto length = Ask(WM_GETTEXTLENGTH);
  if (!length || *length <= 0) return "";
  std::string text(static_cast<size_t>(*length) + 1, '\0');
  const auto copied = Ask(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(copied ? static_cast<size_t>(*copied) : 0);
  return text;
}

RECT Window::rectangle() const {
  RECT rectangle{};
  GetWindowRect(handle_, &rectangle);
  return rectangle;
}

RECT Window::clientSize() const {
  RECT rectangle{};
  GetClientRect(handle_, &rectangle);
  return rectangle;
}

std::vector<Window> Window::children() const {
  std::vector<Window> children;
  for (HWND child = GetWindow(handle_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    children.emplace_back(child);
  }
  return children;
}

std::vector<Window> Window::controls(const char* className) const {
  std::vector<Window> found;
  for (const Window& child : children()) {
    if (child.IsVisible() && child.IsClass(className)) found.push_back(child);
  }
  return found;
}

std::optional<Window> Window::previousSibling() const {
  const HWND previous = GetWindow(handle_, GW_HWNDPREV);
  return previous ? std::optional<Window>(previous) : std::nullopt;
}

std::string Window::name() const {
  const HWND giver = NativeNames::GiverOf(handle_);
  if (!giver) return "";
  const std::string text = Window(giver).text();
  return NativeNames::MarksAccessKey(giver) ? WithoutAccessKey(text) : text;
}

Window Window::control(const std::string& name) const {
  std::string seen;
  for (const Window& child : children()) {
    if (!child.IsVisible() || child.IsClass("Static")) continue;
    if (child.name() == name) return child;
    seen += " \"" + child.name() + "\"";
  }
  throw std::runtime_error("no control \"" + name + "\" in \"" + text() + "\", only" + seen);
}

std::vector<std::string> Window::rows() const {
  std::vector<std::string> rows;
  for (LRESULT row = 0; row < Ask(LB_GETCOUNT).value_or(0); row++) {
    rows.push_back(RowOf(handle_, row, Ask(LB_GETTEXTLEN, static_cast<WPARAM>(row)).value_or(0)));
  }
  return rows;
}

std::string Window::selectedRow() const {
  const LRESULT selected = Ask(LB_GETCURSEL).value_or(LB_ERR);
  return selected == LB_ERR ? "" : rows().at(static_cast<size_t>(selected));
}

std::optional<Window> Window::focus() const {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  if (!GetGUIThreadInfo(threadId(), &info) || !info.hwndFocus) return std::nullopt;
  return Window(info.hwndFocus);
}

void Window::WaitUntilDrawn() const {
  const auto isDrawn = [](HWND window) {
    return !IsWindowVisible(window) || !GetUpdateRect(window, nullptr, FALSE);
  };
  // Drawing comes last: when this is drawn, all that was to be done before it has been. With all
  // controls, over which a box draws its background.
  RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  WaitUntil("\"" + text() + "\" completely drawn", [&] {
    if (!IsVisible()) return true;
    if (!Ask(WM_NULL) || !isDrawn(handle_)) return false;
    for (const Window& child : children()) {
      if (!isDrawn(child.handle())) return false;
    }
    return true;
  });
}

void Window::Click() const {
  const RECT at = rectangle();
  const int width = GetSystemMetrics(SM_CXSCREEN);
  const int height = GetSystemMetrics(SM_CYSCREEN);
  INPUT input[3]{};
  for (INPUT& each : input) {
    each.type = INPUT_MOUSE;
    each.mi.dx = ((at.left + at.right) / 2 * 65536 + width - 1) / width;
    each.mi.dy = ((at.top + at.bottom) / 2 * 65536 + height - 1) / height;
    each.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
  }
  input[1].mi.dwFlags |= MOUSEEVENTF_LEFTDOWN;
  input[2].mi.dwFlags |= MOUSEEVENTF_LEFTUP;
  SendInput(3, input, sizeof(INPUT));
}

std::vector<Window> TopWindows(DWORD processId) {
  struct Search {
    DWORD processId;
    std::vector<Window> found;
  } search{processId, {}};
  EnumWindows(
      [](HWND handle, LPARAM parameter) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(parameter);
        const Window window(handle);
        if (window.IsVisible() && window.processId() == wanted.processId) {
          wanted.found.push_back(window);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::string WithoutAccessKey(const std::string& caption) {
  std::string shown;
  for (size_t i = 0; i < caption.size(); i++) {
    if (caption[i] == '&' && i + 1 < caption.size()) i++;
    shown += caption[i];
  }
  return shown;
}

char AccessKey(const std::string& caption) {
  for (size_t i = 0; i + 1 < caption.size(); i++) {
    if (caption[i] != '&') continue;
    i++;
    if (caption[i] != '&') {
      char letter[] = {caption[i], '\0'};
      return *CharUpperA(letter);
    }
  }
  return 0;
}

}  // namespace E2e
