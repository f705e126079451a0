// The rules by which texts of the window become numbers.
#pragma once

#include <string>
#include <string_view>

namespace edit {

// The value of the longest leading part of `text` that is a decimal number: sign, digits with at most one point,
// exponent. Blanks, tabs and line feeds count as not there; a text that begins with no number gives 0. " 1 2.5x" is 12.5.
// Throws file::Refusal for a number too large for a double.
double number_rule(std::string_view text);

// The same after the first comma, if any, has become a point: "1,234,5" is 1.234.
double comma_number(std::string_view text);

}  // namespace edit
