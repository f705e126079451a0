#include "db/number.h"

#include <array>

namespace db {
namespace {

constexpr std::size_t kDigits = 15;  // what a double keeps of any decimal number

bool is_digit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::optional<double> parse_any_number(std::string_view text) {
  // from_chars takes no plus sign, and takes words like inf.
  const char* begin = text.data() + (text.starts_with('+') ? 1 : 0);
  const char* const end = text.data() + text.size();
  const char* const unsigned_part = begin + (text.starts_with('-') ? 1 : 0);
  if (unsigned_part == end || (!is_digit(*unsigned_part) && *unsigned_part != '.')) return std::nullopt;
  double value = 0;
  const auto [stop, error] = std::from_chars(begin, end, value);
  if (stop != end || error != std::errc()) return std::nullopt;
  return value;
}

void append_number(std::string& out, double value) {
  if (value == 0) {  // negative zero too
    out += '0';
    return;
  }
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general,
                                 static_cast<int>(kDigits))
                       .ptr;
  const char* from = buffer.data();
  if (*from == '-') out += *from++;
  if (*from == '0') ++from;
  for (; from != end; ++from) out += *from == 'e' ? 'E' : *from;
}

std::string format_number(double value) {
  std::string text;
  append_number(text, value);
  return text;
}

bool is_formatted(std::string_view text) {
  if (text.size() == 1) return is_digit(text.front());
  if (!text.empty() && text.front() == '-') text.remove_prefix(1);
  std::size_t whole = 0;
  while (whole < text.size() && is_digit(text[whole])) ++whole;
  if (whole > 0 && text[0] == '0') return false;
  if (whole == text.size()) return whole > 0 && whole <= kDigits;
  if (text[whole] != '.') return false;
  const std::string_view fraction = text.substr(whole + 1);
  if (fraction.empty() || fraction.back() == '0' || whole + fraction.size() > kDigits) return false;
  for (const char c : fraction)
    if (!is_digit(c)) return false;
  return whole > 0 || fraction.substr(0, 4) != "0000";  // smaller ones have an exponent
}

std::string numtext(double value) {
  std::string text(value < 0 ? "" : " ");
  append_number(text, value);
  return text;
}

}  // namespace db
