// sk2check: judges the files of authors as the pack judges them.
#include <iostream>

#include "platform/Console.h"
#include "tools/CheckRun.h"

int main(int count, char** arguments) {
  return Tools::RunCheck(Platform::StartConsole(count, arguments), std::cout, std::cerr,
                         SK2_VERSION);
}
