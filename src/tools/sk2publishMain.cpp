// sk2publish: publishes a maker's folder of add-ons and programs.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "platform/Console.h"
#include "text/StringTable.h"
#include "tools/PublishCommand.h"

int main(int count, char** arguments) {
  // The reasons of the pack, in its own words, which are English by default.
  SpeakOnlyFrom("");
  return PublishCommand::Run(Platform::StartConsole(count, arguments), SK2_VERSION, std::cout,
                             std::cerr);
}
