// A system that has no room for another window, menu or timer: this program's calls for one are
// refused. Those of the system itself, such as for a box, are not.
#include "tests/machine/RealMachine.h"
#include "tests/machine/RealMachineImports.h"
#include "tests/machine/TestMachine.h"

namespace {

struct Plan {
  TestMachine::Scarce thing{};
  int callsLeft = 0;
  bool isMade = false;
  bool hasRefused = false;
};

Plan& ThePlan() {
  static Plan plan;
  return plan;
}

bool IsRefused(TestMachine::Scarce thing) {
  Plan& plan = ThePlan();
  if (!plan.isMade || plan.hasRefused || plan.thing != thing || plan.callsLeft-- > 0) return false;
  plan.hasRefused = true;
  SetLastError(ERROR_NO_MORE_USER_HANDLES);
  return true;
}

// The tests' own timers belong to no window.
template <class... Rest>
bool IsOfTheTests(HWND window, Rest...) {
  return !window;
}
template <class First, class... Rest>
bool IsOfTheTests(First, Rest...) {
  return false;
}
bool IsOfTheTests() {
  return false;
}

// One of the system's functions and what is called in its place.
template <int Number, TestMachine::Scarce Thing, class Result, class... Arguments>
struct Hook {
  using Function = Result(WINAPI*)(Arguments...);
  static inline Function original = nullptr;
  static Result WINAPI Call(Arguments... arguments) {
    if (!IsOfTheTests(arguments...) && IsRefused(Thing)) return Result{};
    return original(arguments...);
  }
  static void Install(const char* name) {
    if (original) return;
    original = reinterpret_cast<Function>(
        RealMachine::ReplaceImport(name, reinterpret_cast<void*>(&Call)));
  }
};

template <int Number, TestMachine::Scarce Thing, class Result, class... Arguments>
void Install(const char* name, Result(WINAPI*)(Arguments...)) {
  Hook<Number, Thing, Result, Arguments...>::Install(name);
}

}  // namespace

namespace TestMachine {

void Refuse(Scarce thing, int calls) {
#define SK2_INSTALL(thing, function) Install<__COUNTER__, Scarce::thing>(#function, &function)
  SK2_INSTALL(Windows, CreateWindowExA);
  SK2_INSTALL(Windows, CreateDialogIndirectParamA);
  SK2_INSTALL(Menus, CreateMenu);
  SK2_INSTALL(Menus, CreatePopupMenu);
  SK2_INSTALL(Menus, AppendMenuA);
  SK2_INSTALL(Menus, SetMenu);
  SK2_INSTALL(Timers, SetTimer);
#undef SK2_INSTALL
  ThePlan() = {thing, calls, true, false};
}

bool HasRefused() {
  return ThePlan().hasRefused;
}

}  // namespace TestMachine

void RealMachine::PutBackRoom() {
  ThePlan() = {};
}
