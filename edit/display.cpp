// A record as texts of the window.
#include "edit/display.h"

#include <algorithm>
#include <span>
#include <utility>

#include "db/components.h"
#include "db/species_reader.h"

namespace edit {
namespace {

using db::numtext;

// Of several M.B. stoichiometries of a component the last counts.
std::string mb_text(const db::SpeciesReader& reader, std::span<const db::Field> pairs, const db::Field& compno) {
  for (std::size_t i = pairs.size(); i > 0; i -= 2) {
    const db::Field& stoich = pairs[i - 2];
    if (pairs[i - 1].number() == compno.number())
      return stoich.is_empty() ? "" : numtext(reader.number(stoich, "the M.B. stoichiometry"));
  }
  return "";
}

void show_rows(file::System& system, const db::Database& open, const db::SpeciesReader& reader, const db::Record& record,
               Shown& shown) {
  std::span<const db::Field> pairs = record.pairs;
  const std::size_t rows = std::min<std::size_t>(pairs.size() / 2, db::kShownPairs);
  if (pairs.size() / 2 > rows)
    shown.notice = file::named(record.name()) + " has " + std::to_string(pairs.size() / 2) +
                   " components: the window holds eight, and the others stay in the database unseen. "
                   "Change this species with a text editor.";
  std::vector<double> compno;  // of the rows that have one
  for (std::size_t i = 0; i < rows; ++i)
    if (!pairs[2 * i + 1].is_empty()) compno.push_back(reader.number(pairs[2 * i + 1], "the component number"));
  const auto found = compno.empty() ? db::ComponentNames() : db::component_names(system, open.compdb, compno);
  if (found.failure)
    shown.notice = "The components are shown by number: " + *found.failure +
                   " Choose another component database, or mend this one." + (shown.notice ? " " + *shown.notice : "");
  for (std::size_t i = 0, at = 0; i < rows; ++i) {
    Row row{.stoich = numtext(reader.number(pairs[2 * i], "the stoichiometry")), .comp = "#", .mbstoich = ""};
    if (!pairs[2 * i + 1].is_empty()) {
      row.comp = shown_name(found.names[at].value_or("#"), compno[at]);
      ++at;
    }
    if (open.mbfields) row.mbstoich = mb_text(reader, record.mb_pairs, pairs[2 * i + 1]);
    shown.boxes.rows.push_back(std::move(row));
  }
}

Shown shown_of(file::System& system, const db::Database& open, const db::SpeciesReader& reader, const db::Record& record) {
  const auto number = [&](db::HeadField field, const char* what) { return reader.number(record.head[field], what); };
  Shown shown;
  Entry& boxes = shown.boxes;
  const double id = number(db::kId, "the ID number");
  const IdRange range = range_of(id);
  boxes.id = numtext(id);
  boxes.name = record.name();
  if (range == IdRange::Lk2 && boxes.name != "/FA-" && boxes.name != "/HA-") {
    shown.lk2_caption = "Lk2";
  } else if (range == IdRange::Nica) {
    shown.ksel_is_m_ref = open.isomodel == "NICA";
    shown.lk2_caption = id < 13299999 ? "m" : id < 13399999 ? "b" : "n";
  } else if (open.blifile()) {
    boxes.ksel = number(db::kLk2, "the toxicity flag") == 0 ? " No" : " Yes";
  }
  if (!shown.lk2_caption.empty()) boxes.lk2 = " " + numtext(number(db::kLk2, "the second constant"));
  boxes.logk = " " + numtext(number(db::kLogK, "the log K"));
  boxes.dhr = " " + numtext(number(db::kDhr, "the dHr"));
  if (open.isomodel == "NICA" || open.cdbfile()) boxes.ksel = " " + numtext(number(db::kKsel, "the K-sel"));
  boxes.charge = numtext(number(db::kCharge, "the charge"));
  const double components = number(db::kComponents, "the number of components");
  boxes.nocomp = numtext(components > db::kMbBlock ? components - db::kMbBlock : components);
  show_rows(system, open, reader, record, shown);
  return shown;
}

}  // namespace

IdRange range_of(double id) {
  if (id > 11000000 && id < 12999999) return IdRange::Lk2;
  if (id > 13110000 && id < 13599999) return IdRange::Nica;
  return IdRange::None;
}

std::optional<Shown> show_species(file::System& system, db::Database& open, std::string_view name) {
  db::SpeciesReader reader(system, open.path);
  if (const auto read = reader.read_leading(db::leading_by_name(open)); read.which == db::Leading::Model)
    open.isomodel = read.model;
  while (const db::Record* record = reader.next())
    if (record->name() == name) return shown_of(system, open, reader, *record);
  return std::nullopt;
}

bool is_mark(std::string_view name) { return name == "#" || (name.starts_with('#') && number_of_mark(name)); }

std::string shown_name(std::string_view name, double number) {
  return is_mark(name) ? "#" + db::format_number(number) : std::string(name);
}

}  // namespace edit
