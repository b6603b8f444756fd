#include "e2e/driver/ServedFile.h"

#include <filesystem>
#include <stdexcept>

#include "e2e/driver/Places.h"

namespace E2e {

ServedFile::ServedFile(const std::string& host, const std::string& path, const std::string& bytes)
    : path_(Given().web + "\\" + host + path) {
  if (Given().web.empty()) throw std::runtime_error("the option --web is missing");
  std::filesystem::create_directories(std::filesystem::path(path_).parent_path());
  WriteFile(path_, bytes);
}

ServedFile::~ServedFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

}  // namespace E2e
