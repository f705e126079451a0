// A free ID number from the components, by sorted numbers in use.
#include "edit/suggestion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "db/components.h"
#include "db/species_reader.h"
#include "edit/models.h"

namespace edit {
namespace {

// A whole number; of a very large one only some digits are written.
double as_written(double id) {
  constexpr double kExact = 1e15;
  return std::abs(id) < kExact ? std::nearbyint(id) : db::parse_number(db::format_number(id)).value_or(id);
}

}  // namespace

void look_up(file::System& system, const db::Database& open, const std::string& comp1, const std::string& comp2,
             IdBase& base) {
  const std::array names{std::string(db::trimmed(comp1)), std::string(db::trimmed(comp2))};
  const auto found = db::component_numbers(system, open.compdb, names, db::NameMatch::AsRead);
  if (const auto at = found.find(names[0]); at != found.end()) base.first = at->second.value_or(0);
  if (const auto at = found.find(names[1]); at != found.end()) base.second = at->second.value_or(0);
}

IdBase with_site(IdBase base, std::string_view isomodel, std::string_view first_component) {
  if (isomodel.empty()) return base;
  const Model& its = model(isomodel);
  const auto site = std::ranges::find(its.sites, first_component, &Model::Site::component);
  return {site == its.sites.end() ? its.site : site->number, its.sites_alike ? base.first : base.second};
}

double first_candidate(const IdBase& base) { return base.first * 10000 + base.second * 10; }

double free_id(file::System& system, const db::Database& open, const IdBase& base) {
  std::vector<double> used;
  db::SpeciesReader reader(system, open.path);
  reader.read_leading(db::leading_by_name(open));
  while (const db::Record* record = reader.next())
    if (const auto id = record->head[db::kId].number()) used.push_back(as_written(*id));
  const double candidate = first_candidate(base), exchanged = first_candidate({base.second, base.first});
  if (!std::isfinite(candidate) || !std::isfinite(exchanged))
    throw file::Refusal("The component numbers are too large to build an ID number of. Type one.");
  std::ranges::stable_sort(used);  // they stand nearly in order, often in one that costs the other sort most
  const auto is_free = [&](double id) { return !std::ranges::binary_search(used, as_written(id)); };
  for (int i = 0; i < 10; ++i)
    if (is_free(candidate + i)) return candidate + i;
  for (int i = 0; i < 10; ++i)
    if (is_free(exchanged + i)) return exchanged + i;
  double id = exchanged + 11;
  for (const double taken : used)
    while (taken == as_written(id)) id = std::max(id + 1, std::nextafter(id, std::numeric_limits<double>::infinity()));
  return id;
}

}  // namespace edit
