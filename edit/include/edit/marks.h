// What stands in the window for a component without a name: "#231" for its number, "#" for an empty number. A component that
// bears such a name is shown by its number too, so that a mark always means what it says.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "db/number.h"

namespace edit {

inline std::string mark_of(double number) { return "#" + db::format_number(number); }
inline std::optional<double> number_of_mark(std::string_view mark) { return db::parse_number(mark.substr(1)); }
inline bool is_mark(std::string_view name) {
  return name == "#" || (name.starts_with('#') && number_of_mark(name).has_value());
}
inline std::string shown_name(std::string_view name, double number) {
  return is_mark(name) ? mark_of(number) : std::string(name);
}

}  // namespace edit
