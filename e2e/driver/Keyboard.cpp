#include "e2e/driver/Keyboard.h"

#include <windows.h>

#include <stdexcept>
#include <vector>

#include "tests/machine/RealMachineKeys.h"

namespace E2e::Keyboard {
namespace {

INPUT InputOf(WORD code, DWORD flags) {
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
  const auto stroke = KeyNames::StrokeNamed(keys);
  if (!stroke) throw std::runtime_error("no such key: " + keys);
  std::vector<WORD> codes;
  if (stroke->isCtrl) codes.push_back(VK_CONTROL);
  if (stroke->isShift) codes.push_back(VK_SHIFT);
  if (stroke->isAlt) codes.push_back(VK_MENU);
  codes.push_back(stroke->key);
  std::vector<INPUT> strokes;
  for (const WORD code : codes) strokes.push_back(InputOf(code, 0));
  for (auto code = codes.rbegin(); code != codes.rend(); ++code) {
    strokes.push_back(InputOf(*code, KEYEVENTF_KEYUP));
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
