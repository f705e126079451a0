#include "edit/species_record.h"

#include <cmath>

#include "db/text.h"
#include "db/writer.h"
#include "edit/values.h"

namespace edit {
namespace {

// An M.B. stoichiometry from here on is none at all: the mark of a blank field in the file's program of origin.
constexpr double kNoMb = 99;

double lk2_field(const Entry& entry, const Database& database) {
  if (entry.lk2) return comma_number(*entry.lk2);
  return database.blifile && db::trimmed(entry.ksel) == "Yes" ? 1 : 0;
}

int component_count(const Entry& entry) {
  const double n = std::floor(number_rule(entry.nocomp));
  if (n > db::kShownPairs)
    throw file::Refusal("A species has at most eight components, and the number of components is " +
                        std::string(db::trimmed(entry.nocomp)) + ". Correct it before saving.");
  return static_cast<int>(std::max(n, -1e6));
}

std::vector<std::optional<double>> numbers_of(std::span<const Row> rows, file::System& system, const std::string& compdb) {
  std::vector<std::string> names;
  for (const Row& row : rows) names.emplace_back(db::trimmed(row.comp));
  try {
    return numgenerator3(system, compdb, names);
  } catch (const file::Error& error) {
    throw file::Refusal(std::string("The component numbers cannot be looked up: ") + error.what() +
                        " Nothing was saved. Choose another component database, or mend this one.");
  }
}

}  // namespace

std::vector<std::optional<double>> numgenerator3(file::System& system, const std::string& compdb,
                                                 std::span<const std::string> names) {
  std::vector<std::string> unknown;
  for (const std::string& name : names)
    if (!db::site_number(name)) unknown.push_back(name);
  const auto found =
      unknown.empty() ? db::FoundNumbers() : db::component_numbers(system, compdb, unknown, db::NameMatch::Trimmed);
  std::vector<std::optional<double>> numbers;
  for (const std::string& name : names) {
    if (const auto site = db::site_number(name)) {
      numbers.push_back(site);
    } else if (const auto at = found.find(name); at != found.end()) {
      numbers.push_back(at->second.value);
    } else {
      numbers.push_back(name.starts_with('#') ? db::parse_number(std::string_view(name).substr(1)) : std::nullopt);
    }
  }
  return numbers;
}

void append_species(std::string& out, const Entry& entry, const Database& database, file::System& system,
                    const std::string& compdb) {
  const double id = number_rule(entry.id);
  if (id == 0) throw file::Refusal("The ID number is 0, which would end the list of species. Give another one.");
  const auto name = db::trimmed(entry.name);
  if (name.find_first_of("\"\r\n") != name.npos)
    throw file::Refusal("A species name cannot hold a double quote or a line end. Correct it before saving.");
  const bool has_ksel = database.isomodel == "NICA" || database.cdbfile;
  const int n = component_count(entry);
  const std::span<const Row> rows(entry.rows.data(), static_cast<std::size_t>(std::max(n, 0)));

  struct MbPair {
    double stoich;
    std::size_t component;
  };
  std::vector<MbPair> mb;
  for (std::size_t i = 0; database.mbfields && i < rows.size(); ++i) {
    if (db::trimmed(rows[i].mbstoich).empty()) continue;
    if (const double stoich = comma_number(rows[i].mbstoich); stoich < kNoMb) mb.push_back({stoich, i});
  }
  const auto compno = numbers_of(rows, system, compdb);

  db::LineWriter head(out);
  head.number(id).text(name).number(comma_number(entry.dhr)).number(comma_number(entry.logk));
  head.number(has_ksel ? comma_number(entry.ksel) : 0).number(lk2_field(entry, database)).number(comma_number(entry.charge));
  head.number(0).number(0).number(0).number(0).number(mb.empty() ? n : n + db::kMbBlock).end();

  const auto append_compno = [&](db::LineWriter& line, std::size_t i) {
    compno[i] ? line.number(*compno[i]) : line.empty();
  };
  if (!rows.empty()) {
    db::LineWriter pairs(out);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      pairs.number(comma_number(rows[i].stoich));
      append_compno(pairs, i);
    }
    pairs.end();
  }
  if (mb.empty()) return;
  db::LineWriter(out).number(static_cast<double>(mb.size())).end();
  db::LineWriter pairs(out);
  for (const MbPair& pair : mb) {
    pairs.number(pair.stoich);
    append_compno(pairs, pair.component);
  }
  pairs.end();
}

}  // namespace edit
