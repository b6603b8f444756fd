// sk2check: judges the files of authors as the pack judges them.
#include <iostream>

#include "platform/Console.h"
#include "text/StringTable.h"
#include "tracks/TrackChecker.h"

int main(int count, char** arguments) {
  SpeakOnlyFrom("");
  int status = 0;
  for (const std::string& path : Platform::StartConsole(count, arguments)) {
    int32_t code = 0;
    std::string message;
    const int32_t line = CheckTrackFile(path, code, message);
    std::cout << line << " " << message << "\n";
    if (code) status = 1;
  }
  return status;
}
