#include "e2e/driver/Keyboard.h"

#include <windows.h>

#include <array>
#include <cctype>
#include <stdexcept>
#include <utility>
#include <vector>

namespace E2e::Keyboard {
namespace {

WORD KeyCode(const std::string& name) {
  static constexpr std::array<std::pair<const char*, WORD>, 18> named{{
      {"Ctrl", VK_CONTROL},
      {"Shift", VK_SHIFT},
      {"Alt", VK_MENU},
      {"Enter", VK_RETURN},
      {"Escape", VK_ESCAPE},
      {"Tab", VK_TAB},
      {"Space", VK_SPACE},
      {"Backspace", VK_BACK},
      {"Delete", VK_DELETE},
      {"Home", VK_HOME},
      {"End", VK_END},
      {"Up", VK_UP},
      {"Down", VK_DOWN},
      {"Left", VK_LEFT},
      {"Right", VK_RIGHT},
      {"F4", VK_F4},
      {"PageUp", VK_PRIOR},
      {"PageDown", VK_NEXT},
  }};
  for (const auto& [key, code] : named) {
    if (name == key) return code;
  }
  if (name.size() == 1 && std::isalnum(static_cast<unsigned char>(name[0]))) {
    return static_cast<WORD>(std::toupper(static_cast<unsigned char>(name[0])));
  }
  throw std::runtime_error("no such key: " + name);
}

INPUT Stroke(WORD code, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = code;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(code, MAPVK_VK_TO_VSC));
  const bool isExtended = (code >= VK_PRIOR && code <= VK_DOWN) || code == VK_DELETE;
  input.ki.dwFlags = flags | (isExtended ? static_cast<DWORD>(KEYEVENTF_EXTENDEDKEY) : 0);
  return input;
}

void Send(std::vector<INPUT>& strokes) {
  if (SendInput(static_cast<UINT>(strokes.size()), strokes.data(), sizeof(INPUT)) !=
      strokes.size()) {
    throw std::runtime_error("the system takes no keys");
  }
}

}  // namespace

void Press(const std::string& keys) {
  std::vector<WORD> codes;
  size_t start = 0;
  while (start <= keys.size()) {
    const size_t plus = std::min(keys.find('+', start), keys.size());
    codes.push_back(KeyCode(keys.substr(start, plus - start)));
    start = plus + 1;
  }
  std::vector<INPUT> strokes;
  for (const WORD code : codes) strokes.push_back(Stroke(code, 0));
  for (auto code = codes.rbegin(); code != codes.rend(); ++code) {
    strokes.push_back(Stroke(*code, KEYEVENTF_KEYUP));
  }
  Send(strokes);
}

void Type(const std::string& text) {
  if (text.empty()) return;
  std::wstring wide(text.size(), L'\0');
  wide.resize(
      static_cast<size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                              wide.data(), static_cast<int>(wide.size()))));
  std::vector<INPUT> strokes;
  for (const wchar_t character : wide) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    strokes.push_back(input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    strokes.push_back(input);
  }
  Send(strokes);
}

}  // namespace E2e::Keyboard
