// The kind of a species database, told by the last characters of its path alone. Upper or lower case throughout counts;
// mixed case does not: x.Iso is a complexation database.
#pragma once

#include <string_view>

namespace db {

enum class Kind { Complexation, Counterion, Isotherm, NicaDonnan, Blm };

constexpr Kind kind_of(std::string_view path) {
  const auto ends = [path](std::string_view upper, std::string_view lower) {
    return path.ends_with(upper) || path.ends_with(lower);
  };
  if (ends("CDB", "cdb")) return Kind::Counterion;
  if (ends("ISO", "iso")) return Kind::Isotherm;
  if (ends("NIC", "nic")) return Kind::NicaDonnan;
  if (ends("BLI", "bli")) return Kind::Blm;
  return Kind::Complexation;
}

// The one counterion selectivity database whose K-sel values are not shown.
constexpr bool is_donnica(std::string_view path) { return path.ends_with("donnica.cdb"); }

// Whether the first field of the file is the isotherm model (or "NICA-Donnan") of all its species.
constexpr bool has_model(std::string_view path) {
  return kind_of(path) == Kind::Isotherm || kind_of(path) == Kind::NicaDonnan;
}

}  // namespace db
