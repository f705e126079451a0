#pragma once

#include <string_view>

namespace db {

// Without the blanks at both ends. A blank is the space character only.
constexpr std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace db
