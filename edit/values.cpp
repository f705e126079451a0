#include "edit/values.h"

#include <charconv>

#include "file/error.h"

namespace edit {

double number_rule(std::string_view text) {
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
  if (error == std::errc::result_out_of_range) {
    // Too small for a double is as good as 0; the two cases differ in the sign of the exponent.
    const std::string_view number(begin, static_cast<std::size_t>(stop - begin));
    if (number.find("e-") == number.npos && number.find("E-") == number.npos)
      throw file::Refusal("\"" + std::string(text) + "\" is too large a number. Correct it before saving.");
    return 0;
  }
  return negative ? -value : value;
}

double comma_number(std::string_view text) {
  std::string with_point(text);
  if (const auto comma = with_point.find(','); comma != std::string::npos) with_point[comma] = '.';
  return number_rule(with_point);
}

}  // namespace edit
