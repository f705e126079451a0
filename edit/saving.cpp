#include "edit/saving.h"

#include "db/rewrite.h"
#include "edit/values.h"

namespace edit {
namespace {

db::NewLeading leading(const db::Database& open, std::string_view model, std::string_view critical_f) {
  return {.model = model, .critical_f = open.blifile() ? number_rule(critical_f) : 0};
}

}  // namespace

std::optional<std::string> save(file::System& system, const db::Database& open, const std::string& compdb,
                                const Change& change) {
  db::Rewrite rewrite(system, open, compdb, leading(open, change.adds ? open.isomodel : open.isoselect, change.critical_f));
  const auto put = [&] {
    rewrite.put(species_record(change.entry, open, numbers_of(system, compdb, change.entry.components())));
  };
  if (change.adds) put();
  while (rewrite.keep_until(change.adds ? std::nullopt : change.species)) put();
  return rewrite.commit();
}

std::optional<std::string> delete_species(file::System& system, const db::Database& open, const std::string& compdb,
                                          std::string_view name, std::string_view critical_f) {
  db::Rewrite rewrite(system, open, compdb, leading(open, open.isomodel, critical_f));
  while (rewrite.keep_until(name)) {
  }
  return rewrite.commit();
}

}  // namespace edit
