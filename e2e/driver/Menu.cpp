#include "e2e/driver/Menu.h"

#include <memory>
#include <sstream>
#include <stdexcept>
#include <type_traits>

#include "e2e/driver/Keyboard.h"
#include "e2e/driver/Wait.h"
#include "e2e/menureader/Protocol.h"

namespace E2e {
namespace {

std::string ReaderPath() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, sizeof path);
  const std::string program = path;
  return program.substr(0, program.rfind('\\')) + "\\menureader.dll";
}

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
struct ViewCloser {
  void operator()(char* view) const { UnmapViewOfFile(view); }
};
struct HookRemover {
  void operator()(HHOOK hook) const { UnhookWindowsHookEx(hook); }
};

// The hook in the window's thread, for as long as this lives.
class Reader {
 public:
  explicit Reader(const Window& window) {
    static const HMODULE library = LoadLibraryA(ReaderPath().c_str());
    const FARPROC hook = library ? GetProcAddress(library, "ReadMenuHook") : nullptr;
    if (!hook) throw std::runtime_error("cannot load " + ReaderPath());
    memory_.reset(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                     MenuReader::MemorySize, MenuReader::Memory));
    view_.reset(static_cast<char*>(MapViewOfFile(memory_.get(), FILE_MAP_ALL_ACCESS, 0, 0, 0)));
    hook_.reset(SetWindowsHookExA(WH_CALLWNDPROC,
                                  reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(hook)),
                                  library, window.threadId()));
    if (!view_ || !hook_)
      throw std::runtime_error("cannot read the menu of \"" + window.text() + "\"");
  }

  std::string Read(const Window& window) {
    static const UINT message = RegisterWindowMessageA(MenuReader::Message);
    window.Ask(message);
    return view_.get();
  }

 private:
  // What goes first stands last.
  std::unique_ptr<void, HandleCloser> memory_;
  std::unique_ptr<char, ViewCloser> view_;
  std::unique_ptr<std::remove_pointer_t<HHOOK>, HookRemover> hook_;
};

// The index of the item in the submenu of `parent` (-1: the bar) with that caption.
int Find(const std::vector<MenuLine>& lines, int parent, const std::string& caption) {
  const int depth = parent < 0 ? 0 : lines[static_cast<size_t>(parent)].depth + 1;
  for (size_t i = static_cast<size_t>(parent + 1); i < lines.size(); i++) {
    if (lines[i].depth < depth) break;
    const std::string shown = WithoutAccessKey(lines[i].caption);
    const bool isIt = shown == caption || shown.starts_with(caption + " (");
    if (lines[i].depth == depth && isIt) return static_cast<int>(i);
  }
  throw std::runtime_error("no menu item \"" + caption + "\"");
}

// The menus that are open now: the first, and each submenu of it.
int OpenPopups(const Window& window) {
  int count = 0;
  for (const Window& top : TopWindows(window.processId())) count += top.IsClass("#32768");
  return count;
}

void MoveTo(const Window& window, int index) {
  const auto isThere = [&] {
    return ReadMenu(window).at(static_cast<size_t>(index)).isHighlighted;
  };
  const size_t all = ReadMenu(window).size();
  for (size_t steps = 0; steps <= all && !isThere(); steps++) {
    const auto before = ReadMenu(window);
    Keyboard::Press("Down");
    WaitUntil("the next menu item", [&] { return ReadMenu(window) != before; });
  }
}

}  // namespace

bool IsInMenu(const Window& window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  return GetGUIThreadInfo(window.threadId(), &info) &&
         (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

std::vector<MenuLine> ReadMenu(const Window& window) {
  if (!GetMenu(window.handle())) return {};
  Reader reader(window);
  std::istringstream text(reader.Read(window));
  std::vector<MenuLine> lines;
  std::string depth, state, caption;
  while (std::getline(text, depth, MenuReader::Separator) &&
         std::getline(text, state, MenuReader::Separator) && std::getline(text, caption)) {
    const unsigned long flags = std::stoul(state);
    lines.push_back({std::stoi(depth), caption, (flags & MFS_GRAYED) != 0,
                     (flags & MFS_CHECKED) != 0, (flags & MFS_HILITE) != 0});
  }
  return lines;
}

void ChooseFromMenu(const Window& window, const std::vector<std::string>& path) {
  const std::vector<MenuLine> lines = ReadMenu(window);
  int item = -1;
  for (size_t i = 0; i < path.size(); i++) {
    item = Find(lines, item, path[i]);
    const char key = AccessKey(lines[static_cast<size_t>(item)].caption);
    const bool isLast = i + 1 == path.size();
    if (i == 0) {
      if (!key) throw std::runtime_error("no access key: " + path[i]);
      Keyboard::Press(std::string("Alt+") + key);
    } else if (key) {
      Keyboard::Press(std::string(1, key));
    } else {
      MoveTo(window, item);
      Keyboard::Press("Enter");
    }
    if (!isLast) {
      WaitUntil("the menu " + path[i] + " open",
                [&] { return IsInMenu(window) && OpenPopups(window) == static_cast<int>(i) + 1; });
    }
  }
}

}  // namespace E2e
