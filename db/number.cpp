// The two forms of a number: as it is read and as it is written.
#include "db/number.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>

namespace db {
namespace {

constexpr int kDigits = 15;  // what a double keeps of any decimal number

bool is_digit(char c) { return c >= '0' && c <= '9'; }

const char* after_digits(const char* at, const char* end) {
  while (at != end && is_digit(*at)) ++at;
  return at;
}

}  // namespace

std::optional<double> parse_longer_number(std::string_view text) {
  const char* const end = text.data() + text.size();
  if (text.size() <= kDigits && after_digits(text.data(), end) == end && !text.empty()) {  // ID and component numbers
    std::int64_t whole = 0;
    for (const char digit : text) whole = 10 * whole + (digit - '0');
    return static_cast<double>(whole);
  }
  // from_chars takes no plus sign, and takes words like inf.
  const char* begin = text.data() + (text.starts_with('+') ? 1 : 0);
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
  char* const last = buffer.data() + buffer.size();
  const auto end =
      (std::abs(value) < kTooLarge ? std::to_chars(buffer.data(), last, value, std::chars_format::general, kDigits)
                                   : std::to_chars(buffer.data(), last, value, std::chars_format::general))
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

bool is_longer_formatted(std::string_view text) {
  const char* const end = text.data() + text.size();
  const char* const whole = text.data() + (text.starts_with('-') ? 1 : 0);
  const char* const point = after_digits(whole, end);
  if (point != whole && *whole == '0') return false;
  if (point == end) return point != whole && end - whole <= kDigits;
  const char* const fraction = point + 1;
  if (*point != '.' || after_digits(fraction, end) != end) return false;
  if (fraction == end || end[-1] == '0' || end - whole - 1 > kDigits) return false;
  return point != whole || !std::string_view(fraction, static_cast<std::size_t>(end - fraction)).starts_with("0000");
}

}  // namespace db
