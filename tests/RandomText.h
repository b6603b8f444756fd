// Random files that are nearly right: what a checker must tell apart lies close to a good file.
#pragma once

#include <random>
#include <string>
#include <vector>

class RandomText {
 public:
  explicit RandomText(unsigned seed) : random_(seed) {}

  size_t Below(size_t limit) { return random_() % limit; }
  bool OneIn(size_t chances) { return Below(chances) == 0; }

  const std::string& OneOf(const std::vector<std::string>& texts) {
    return texts[Below(texts.size())];
  }

  // Mostly CR LF, now and then another one, or none.
  std::string LineEnd() {
    return OneIn(12) ? OneOf({"\r", "\n", "", "\r\r\n", "\n\r", "\r\n\r\n"}) : "\r\n";
  }

  // The text with a few bytes changed, taken out, put in or doubled.
  std::string Mutated(std::string text) {
    for (size_t times = Below(4); times > 0 && !text.empty(); --times) {
      const size_t at = Below(text.size());
      const char other =
          OneIn(2) ? "\r\n=-+. ,0159eE()&H\t"[Below(18)] : static_cast<char>(Below(256));
      switch (Below(5)) {
        case 0: text[at] = other; break;
        case 1: text.erase(at, 1 + Below(3)); break;
        case 2: text.insert(at, 1, other); break;
        case 3: text.insert(at, text.substr(at, Below(20))); break;
        case 4: text.resize(at); break;
      }
    }
    return text;
  }

  // The text with one place in it stretched beyond the length at which a line comes in pieces.
  std::string Stretched(std::string text) {
    const std::string fillers[] = {"0", "9", " ", "x", "=", "\n", "1234567890", "a=", "0.", "- "};
    const std::string& filler = fillers[Below(std::size(fillers))];
    std::string stretch;
    for (const size_t size = 66000 + Below(70000); stretch.size() < size;) stretch += filler;
    return text.insert(Below(text.size() + 1), stretch);
  }

 private:
  std::mt19937 random_;
};
