// Waits for a window in front and saves a picture of it:
//   windowpicture TITLE FILE      TITLE is how the window's title begins
#include <windows.h>

#include <cstdio>
#include <exception>
#include <string>

#include "e2e/driver/Picture.h"
#include "e2e/driver/Wait.h"
#include "e2e/driver/Window.h"

int main(int count, char** arguments) {
  if (count != 3) {
    std::fprintf(stderr, "usage: windowpicture TITLE FILE\n");
    return 2;
  }
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  const std::string title = arguments[1];
  try {
    E2e::WaitUntil("the window \"" + title + "\"", [&] {
      const E2e::Window front(GetForegroundWindow());
      return front.Exists() && front.IsVisible() && front.text().starts_with(title);
    });
    const E2e::Window window(GetForegroundWindow());
    window.WaitUntilDrawn();
    E2e::SavePicture(E2e::TakePicture(window.rectangle()), arguments[2]);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
  return 0;
}
