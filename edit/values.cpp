#include "edit/values.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <system_error>

#include "db/number.h"
#include "file/error.h"

namespace edit {
namespace {

// The power of ten of the first digit that is not 0: 2 for 123, -3 for .00123, 7 for 1.5E7.
long leading_power(std::string_view number) {
  const auto e = std::min(number.find_first_of("eE"), number.size());
  const auto point = std::min(number.find('.'), e), first = number.find_first_of("123456789");
  const long power = static_cast<long>(point) - static_cast<long>(first) - (first < point ? 1 : 0);
  long exponent = 0;
  if (e == number.size()) return power;
  number.remove_prefix(e + (number.substr(e + 1).starts_with('+') ? 2 : 1));
  if (std::from_chars(number.data(), number.data() + number.size(), exponent).ec != std::errc())
    exponent = number.front() == '-' ? LONG_MIN / 2 : LONG_MAX / 2;
  return power + exponent;
}

// The rule; a message shows `typed`.
double value_of(std::string_view text, std::string_view typed) {
  std::string digits;
  for (const char c : text)
    if (c != ' ' && c != '\t' && c != '\n') digits += c;
  const char* begin = digits.data();
  const char* const end = begin + digits.size();
  const bool negative = begin != end && *begin == '-';
  if (begin != end && (*begin == '-' || *begin == '+')) ++begin;
  if (begin == end || (*begin != '.' && (*begin < '0' || *begin > '9'))) return 0;

  double value = 0;
  const auto [stop, error] = std::from_chars(begin, end, value);
  const bool out_of_range = error == std::errc::result_out_of_range;
  if (out_of_range && leading_power(std::string_view(begin, stop)) < 0) return 0;  // too small for a double is as good as 0
  if (out_of_range || value >= db::kTooLarge)
    throw file::Refusal("\"" + file::named(typed) + "\" is too large a number. Correct it before saving.");
  return negative ? -value : value;
}

}  // namespace

double number_rule(std::string_view text) { return value_of(text, text); }

double comma_number(std::string_view text) {
  std::string with_point(text);
  if (const auto comma = with_point.find(','); comma != std::string::npos) with_point[comma] = '.';
  return value_of(with_point, text);
}

}  // namespace edit
