// A text that the user sees: the key under which translators find it, and its English default.
#pragma once

#include <array>
#include <bit>

struct LangText {
  const char* key;  // null for a text that is the same in every language
  const char* english;
};

// A text that is never translated: it is shown as it stands, never looked up, and translators do
// not get it. In a table: "LangText Car = FixedText("Car");".
constexpr LangText FixedText(const char* text) {
  return {nullptr, text};
}

// All texts of a table, in the order they stand in it. A table is a struct that holds LangTexts and
// nothing else, so that a text cannot be declared without also being listed for the translators.
// Fixed texts stand among them, with null keys.
template <class Table>
std::array<LangText, sizeof(Table) / sizeof(LangText)> TextsOf(const Table& table) {
  static_assert(sizeof(Table) % sizeof(LangText) == 0, "a text table holds LangTexts only");
  return std::bit_cast<std::array<LangText, sizeof(Table) / sizeof(LangText)>>(table);
}
