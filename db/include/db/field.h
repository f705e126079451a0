// One field of a database file, as read: a view into the reader's block, converted only when asked for.
#pragma once

#include <optional>
#include <string_view>

#include "db/number.h"

namespace db {

// Without the blanks at both ends. A blank is the space character only.
constexpr std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

enum class FieldType { Empty, Number, Text };

// `text` is the value without quotes and surrounding blanks. It is valid as long as its reader says.
struct Field {
  std::string_view text;
  bool quoted = false;

  // A quoted field is text, whatever it holds; `""` is a text too.
  FieldType type() const {
    if (quoted) return FieldType::Text;
    if (text.empty()) return FieldType::Empty;
    return parse_number(text) ? FieldType::Number : FieldType::Text;
  }

  // The value where a number is needed: an empty field counts as 0, and a text that reads as a number as that number.
  // Nothing for any other text.
  std::optional<double> number() const {
    if (text.empty()) return quoted ? std::nullopt : std::optional<double>(0);
    return parse_number(text);
  }

  // number() == 0. Most numbers show by their first digit that they are not.
  bool is_zero() const { return (text.empty() || text.front() < '1' || text.front() > '9') && number() == 0.; }
};

}  // namespace db
