#include "platform/Translation.h"

#include <utility>

#include "base/PerRun.h"

namespace Platform {

namespace {
struct TheTranslator {
  std::function<std::string(const LangText&)> look;
};
}  // namespace

void SetTranslator(std::function<std::string(const LangText&)> translator) {
  PerRun<TheTranslator>().look = std::move(translator);
}

std::string Translate(const LangText& text) {
  const auto& look = PerRun<TheTranslator>().look;
  return look && text.key ? look(text) : text.english;
}

}  // namespace Platform
