#include "help/generator/ProgramWindows.h"

#include <cxxabi.h>

#include <cctype>
#include <cstdlib>
#include <memory>
#include <typeinfo>

#include "app/Start.h"
#include "tests/SimulatedGame.h"

namespace Help {

namespace {

using Platform::Control;

std::string ClassOf(const Platform::Form& form) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> name(
      abi::__cxa_demangle(typeid(form).name(), nullptr, nullptr, &status), &std::free);
  const std::string whole = name.get();
  const size_t colon = whole.rfind(':');
  return colon == std::string::npos ? whole : whole.substr(colon + 1);
}

char KeyOf(const std::string& caption) {
  return static_cast<char>(std::toupper(static_cast<unsigned char>(Platform::AccessKey(caption))));
}

ShownControl Shown(const Control& control) {
  ShownControl shown{.kind = control.kind(),
                     .name = Platform::WithoutAccessKey(control.caption()),
                     .accessKey = KeyOf(control.caption()),
                     .isReadOnly = false,
                     .isDefault = false,
                     .isCancel = false,
                     .rows = {}};
  if (control.kind() == Control::Kind::TextBox) {
    shown.isReadOnly = static_cast<const Platform::TextBox&>(control).IsReadOnly();
  }
  if (control.kind() == Control::Kind::ListBox) {
    const auto& list = static_cast<const Platform::ListBox&>(control);
    for (int i = 0; i < list.count(); ++i) shown.rows.push_back(list.row(i));
  }
  if (control.kind() == Control::Kind::Button) {
    const auto& button = static_cast<const Platform::Button&>(control);
    shown.isDefault = button.IsDefault();
    shown.isCancel = button.IsCancel();
  }
  return shown;
}

void AddItems(const std::vector<Platform::MenuItem*>& items, const ShownItem& parent,
              std::vector<ShownItem>& all) {
  for (const Platform::MenuItem* item : items) {
    ShownItem shown = parent;
    shown.accessKeys.push_back(KeyOf(item->caption()));
    shown.caption = Platform::WithoutAccessKey(item->caption());
    shown.shortcut.clear();
    if (const size_t bracket = shown.caption.find(" ("); bracket != std::string::npos) {
      shown.shortcut = shown.caption.substr(bracket + 2, shown.caption.size() - bracket - 3);
      shown.caption.erase(bracket);
    }
    shown.path += (shown.path.empty() ? "" : " > ") + shown.caption;
    shown.isMenu = !item->items().empty();
    all.push_back(shown);
    AddItems(item->items(), shown, all);
  }
}

}  // namespace

void Open(const WindowTopic& topic, const std::function<void(Platform::Form&)>& look) {
  Simulated::Machine machine;
  InstallGame(machine, "C:\\Games\\Skidrun2");
  machine.files.PutFolder(machine.executable.folder);
  StartPack();
  topic.open(machine, [&look] { look(*Platform::ActiveForm()); });
}

ShownWindow ShownIn(const Platform::Form& form) {
  ShownWindow shown{.form = ClassOf(form), .title = form.title(), .controls = {}};
  for (const Control* control : form.controls()) {
    if (control->IsVisible()) shown.controls.push_back(Shown(*control));
  }
  return shown;
}

std::vector<ShownItem> MenuBar() {
  const Simulated::Machine machine;
  StartPack();
  std::vector<ShownItem> all;
  AddItems(Platform::MainForm().menus(), {}, all);
  return all;
}

}  // namespace Help
