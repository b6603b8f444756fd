// The windows of the program and its menu bar, as they are when they are opened: what the pages of
// keys and windows tell is read here, on the simulated machine.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "machine/simulated/Machine.h"
#include "ui/Forms.h"

namespace Help {

// A key that a window takes besides those of its controls.
struct OwnKey {
  std::string keys;  // as the user presses them, such as "Ctrl+Shift+N"
  std::string what;  // what they do, without a full stop
};

// What the help says of a window, and how the window is opened.
struct WindowTopic {
  std::string form;          // its class, which is also where it stands on the page of windows
  std::string heading = {};  // empty: its title
  std::string page;          // tells all about it
  std::string purpose;
  std::function<void(Simulated::Machine&, const std::function<void()>& look)> open;
  // The rows of its lists are the same for everybody, and are told.
  bool hasFixedRows = false;
  std::vector<OwnKey> ownKeys = {};
};
const std::vector<WindowTopic>& WindowTopics();

// What the help says of an item of the menu bar.
struct MenuTopic {
  std::string path;  // captions on the way to it, such as "Vehicle > New"
  std::string page;  // tells all about it
  std::string what;  // what it does, without a full stop
};
const std::vector<MenuTopic>& MenuTopics();

// What a window shows when it is opened.
struct ShownControl {
  Platform::Control::Kind kind;
  std::string name;  // without "&"; that of its label where it has one
  char accessKey;    // a capital letter; 0 if there is none
  bool isReadOnly;
  bool isDefault;
  bool isCancel;
  std::vector<std::string> rows;
};
struct ShownWindow {
  std::string form;  // the name of its class
  std::string title;
  std::vector<ShownControl> controls;
};

// An item of the menu bar, without "&" and without the keys behind its caption.
struct ShownItem {
  std::string path;  // as in MenuTopic
  std::string caption;
  std::string shortcut;  // what stands in brackets behind the caption; empty if there is nothing
  std::vector<char> accessKeys;  // those of the menus on the way and its own; 0 where there is none
  bool isMenu;
};

// Starts the pack on a machine with an installed game, opens the window, and lets it be looked at.
void Open(const WindowTopic& topic, const std::function<void(Platform::Form&)>& look);
ShownWindow ShownIn(const Platform::Form& form);
// The whole menu bar, in its order.
std::vector<ShownItem> MenuBar();

}  // namespace Help
