#include "orec/Worker.h"

#include <memory>
#include <utility>

#include "orec/win32/System.h"

namespace ORec {

namespace {

struct Task {
  std::function<void()> work;
  HMODULE library;
};

DWORD WINAPI Run(void* parameter) {
  std::unique_ptr<Task> task(static_cast<Task*>(parameter));
  task->work();
  const HMODULE library = task->library;
  task.reset();
  // In one call, since the library may be gone when it returns.
  FreeLibraryAndExitThread(library, 0);
}

}  // namespace

bool StartWorker(std::function<void()> work) {
  auto task = std::make_unique<Task>(Task{std::move(work), nullptr});
  if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(&Run),
                          &task->library)) {
    return false;
  }
  const HANDLE thread = CreateThread(nullptr, 0, &Run, task.get(), 0, nullptr);
  if (!thread) {
    FreeLibrary(task->library);
    return false;
  }
  [[maybe_unused]] const Task* taken = task.release();
  CloseHandle(thread);
  return true;
}

}  // namespace ORec
