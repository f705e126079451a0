#include "edit/species_record.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "db/field.h"
#include "db/writer.h"
#include "edit/marks.h"
#include "edit/values.h"

namespace edit {
namespace {

// An M.B. stoichiometry from here on is none at all: the mark of a blank field in the file's program of origin.
constexpr double kNoMb = 99;

double lk2_field(const Entry& entry, const db::Database& open) {
  if (entry.lk2) return comma_number(*entry.lk2);
  return open.blifile() && db::trimmed(entry.ksel) == "Yes" ? 1 : 0;
}

double component_count(const Entry& entry) { return std::floor(number_rule(entry.nocomp)); }

}  // namespace

std::span<const Row> Entry::components() const {
  const double n = component_count(*this);
  if (n > db::kShownPairs)
    throw file::Refusal("A species has at most eight components, and the number of components is " +
                        file::named(db::trimmed(nocomp)) + ". Correct it before saving.");
  return std::span(rows).first(static_cast<std::size_t>(std::max(n, 0.)));
}

std::vector<std::optional<double>> numbers_of(file::System& system, const std::string& compdb, std::span<const Row> rows) {
  std::vector<std::string> unknown;
  for (const Row& row : rows)
    if (const auto name = db::trimmed(row.comp); !db::site_number(name)) unknown.emplace_back(name);
  db::FoundNumbers found;
  try {
    if (!unknown.empty()) found = db::component_numbers(system, compdb, unknown, db::NameMatch::Trimmed);
  } catch (const file::Error& error) {
    throw file::Refusal(std::string("The component numbers cannot be looked up: ") + error.what() +
                        " Nothing was saved. Choose another component database, or mend this one.");
  }
  std::vector<std::optional<double>> numbers;
  for (const Row& row : rows) {
    const auto name = db::trimmed(row.comp);
    if (const auto at = found.find(name); is_mark(name))
      numbers.push_back(number_of_mark(name));
    else
      numbers.push_back(at != found.end() ? at->second.value : db::site_number(name));
  }
  return numbers;
}

std::string species_record(const Entry& entry, const db::Database& open, std::span<const std::optional<double>> numbers) {
  const double id = number_rule(entry.id);
  if (id == 0) throw file::Refusal("The ID number is 0, which would end the list of species. Give another one.");
  const auto name = db::trimmed(entry.name);
  if (name.find_first_of("\"\r\n") != name.npos)
    throw file::Refusal("A species name cannot hold a double quote or a line end. Correct it before saving.");
  if (name.size() > db::kLongestText) throw file::Refusal("The species name is longer than 65534 characters. Shorten it.");

  struct Pair {
    double stoich;
    std::optional<double> number;
  };
  std::vector<Pair> pairs, mb;
  for (const Row& row : entry.components()) {
    const auto number = numbers[pairs.size()];
    pairs.push_back({comma_number(row.stoich), number});
    if (!open.mbfields || db::trimmed(row.mbstoich).empty()) continue;
    if (const double stoich = comma_number(row.mbstoich); stoich < kNoMb) mb.push_back({stoich, number});
  }

  std::string out;
  const bool has_ksel = open.isomodel == "NICA" || open.cdbfile();
  db::LineWriter head(out);
  head.number(id).text(name).number(comma_number(entry.dhr)).number(comma_number(entry.logk));
  head.number(has_ksel ? comma_number(entry.ksel) : 0).number(lk2_field(entry, open)).number(comma_number(entry.charge));
  head.number(0).number(0).number(0).number(0).number(component_count(entry) + (mb.empty() ? 0 : db::kMbBlock)).end();
  const auto append_pairs = [&out](std::span<const Pair> all) {
    db::LineWriter line(out);
    for (const Pair& pair : all) {
      line.number(pair.stoich);
      pair.number ? line.number(*pair.number) : line.empty();
    }
    line.end();
  };
  if (!pairs.empty()) append_pairs(pairs);
  if (mb.empty()) return out;
  db::LineWriter(out).number(static_cast<double>(mb.size())).end();
  append_pairs(mb);
  return out;
}

}  // namespace edit
