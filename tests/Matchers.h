// What stories say about what the user was shown.
#pragma once

#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <vector>

#include "machine/simulated/Script.h"
#include "ui/MsgBox.h"

namespace Platform {
inline void PrintTo(Icon icon, std::ostream* out) {
  *out << (icon == Icon::Information ? "Information"
           : icon == Icon::Critical  ? "Critical"
                                     : "Question");
}
}  // namespace Platform

namespace Simulated {
inline void PrintTo(const Box& box, std::ostream* out) {
  *out << "a box with the icon ";
  PrintTo(box.icon, out);
  *out << ", the title \"" << box.title << "\" and the text \"" << box.text << "\"";
}
}  // namespace Simulated

// A message box with this icon and text; either may be a value or a matcher.
template <class IconMatcher, class TextMatcher>
testing::Matcher<const Simulated::Box&> Shows(IconMatcher icon, TextMatcher text) {
  return testing::AllOf(testing::Field("icon", &Simulated::Box::icon, icon),
                        testing::Field("text", &Simulated::Box::text, text));
}

template <class IconMatcher, class TextMatcher, class TitleMatcher>
testing::Matcher<const Simulated::Box&> Shows(IconMatcher icon, TextMatcher text,
                                              TitleMatcher title) {
  return testing::AllOf(Shows(icon, text), testing::Field("title", &Simulated::Box::title, title));
}

// The names that a folder holds.
template <class... Name>
std::vector<std::string> Names(const Name&... names) {
  return {names...};
}
