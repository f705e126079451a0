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

struct KindName {
  std::string_view name, extension;
};
constexpr KindName name_of(Kind kind) {
  switch (kind) {
    case Kind::Counterion: return {"a counterion selectivity database", "CDB"};
    case Kind::Isotherm: return {"an isotherm database", "ISO"};
    case Kind::NicaDonnan: return {"a NICA-Donnan database", "NIC"};
    case Kind::Blm: return {"a BLM parameter database", "BLI"};
    default: return {"a complexation / sorption database", "MDB"};
  }
}

}  // namespace db
