#include "edit/saving.h"

#include "db/rewrite.h"
#include "edit/values.h"

namespace edit {
namespace {

db::NewLeading leading(const db::Database& open, std::string_view model, std::string_view critical_f) {
  return {.model = model, .critical_f = open.blifile() ? number_rule(critical_f) : 0};
}

std::string record_of(file::System& system, const db::Database& open, const std::string& compdb, const Entry& entry) {
  return species_record(entry, open, numbers_of(system, compdb, entry.components()));
}

}  // namespace

std::optional<std::string> add_species(file::System& system, const db::Database& open, const std::string& compdb,
                                       const Entry& entry, std::string_view critical_f) {
  db::Rewrite rewrite(system, open, compdb, leading(open, open.isomodel, critical_f));
  rewrite.put(record_of(system, open, compdb, entry));
  rewrite.keep_until(std::nullopt);
  return rewrite.commit();
}

std::optional<std::string> change_species(file::System& system, const db::Database& open, const std::string& compdb,
                                          std::optional<std::string_view> name, const Entry& entry,
                                          std::string_view critical_f) {
  db::Rewrite rewrite(system, open, compdb, leading(open, open.isoselect, critical_f));
  while (rewrite.keep_until(name)) rewrite.put(record_of(system, open, compdb, entry));
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
