// Numbers as the files hold them and as the window shows them. No locale, no stream: '.' is the decimal point everywhere.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace db {

// Most fields are one digit; the functions for longer ones are called by those below.
inline bool is_digit(std::string_view text) { return text.size() == 1 && text.front() >= '0' && text.front() <= '9'; }
inline bool is_negative_digit(std::string_view text) {
  return text.size() == 2 && text[0] == '-' && text[1] > '0' && text[1] <= '9';
}
std::optional<double> parse_longer_number(std::string_view text);
bool is_longer_formatted(std::string_view text);

// The value of `text` when the whole of it is a number: an optional sign, digits with at most one point (also first or
// last), an optional exponent as in 1E-05 or 1e5. Nothing for anything else: hexadecimal, infinity, a value that a
// double cannot hold.
inline std::optional<double> parse_number(std::string_view text) {
  return is_digit(text) ? text.front() - '0' : parse_longer_number(text);
}

// The largest number that 15 digits can hold lies below this; with so many the larger ones would round to none.
inline constexpr double kTooLarge = 1.797693134862315E308;

// Appends `value` as the files hold it: at most 15 significant digits, no zero before the point (.5, -.25), integral
// values without a point (100), an exponent below 1E-04 and from 1E+15 on (1E-05, 1.5E+20); every zero is 0. From kTooLarge
// on all digits, so that what is written can always be read.
void append_number(std::string& out, double value);
std::string format_number(double value);

// Whether `text` is just what append_number would make of its value, so that it can be copied as it stands.
inline bool is_formatted(std::string_view text) {
  return is_digit(text) || is_negative_digit(text) || is_longer_formatted(text);
}

// A number as the window shows it: as in a file, with one blank in the place of a sign that is not there.
// numtext(3) is " 3", numtext(-.25) is "-.25".
inline std::string numtext(double value) { return (value < 0 ? "" : " ") + format_number(value); }

}  // namespace db
