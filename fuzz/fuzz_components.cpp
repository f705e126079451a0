// Any bytes as a component database: every lookup ends, with a result or an error.
#include <cstddef>
#include <string>

#include "bytes_system.h"
#include "db/components.h"
#include "edit/models.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  fuzz::BytesSystem system({reinterpret_cast<const char*>(data), size}, size % 2 == 0 ? 5 : 65536);
  const double numbers[] = {0, 150, 812};
  const auto names = db::component_names(system, "c", numbers);
  fuzz::require(names.names.size() == 3);
  fuzz::require(!names.names[2] || names.names[2] == "=SOH");
  const std::string wanted[] = {"", "Ca+2", "=SOH"};
  for (const auto match : {db::NameMatch::Trimmed, db::NameMatch::AsRead}) {
    try {
      for (const auto& [name, number] : db::component_numbers(system, "c", wanted, match)) fuzz::require(name != "Cu+2");
    } catch (const file::Error&) {
    }
  }
  const auto choices =
      edit::component_choices(system, {.path = "",
                                       .compdb = "c",
                                       .kind = size % 5 == 0 ? db::Kind::Counterion : db::Kind::Complexation,
                                       .isomodel = size % 3 == 0 ? "NICA" : ""});
  fuzz::require(!choices.names.empty() && choices.names.back() == "H2O" && choices.names.size() <= 501);
  return 0;
}
