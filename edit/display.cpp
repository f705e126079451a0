#include "edit/display.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "edit/marks.h"

namespace edit {
namespace {

using db::numtext;

bool is_empty(const db::Field& field) { return field.type() == db::FieldType::Empty; }

class Display {
 public:
  Display(const db::SpeciesReader& reader, const db::Record& record, const db::Database& database)
      : reader_(reader),
        record_(record),
        database_(database) {}

  Shown shown(file::System& system, const std::string& compdb) {
    show_by_kind();
    show_common();
    show_rows(system, compdb);
    return std::move(shown_);
  }

 private:
  double number(const db::Field& field, const std::string& what) const {
    const auto value = field.number();
    if (!value) reader_.fail("the " + what + " is \"" + file::named(field.text) + "\", not a number");
    return *value;
  }
  double number(db::HeadField field, const char* what) const { return number(record_.head[field], what); }
  std::string_view name() const { return record_.head[db::kName].text; }

  void show_by_kind() {
    const double id = number(db::kId, "ID number");
    shown_.id = numtext(id);
    const IdRange range = range_of(id);
    if (range == IdRange::Lk2 && name() != "/FA-" && name() != "/HA-") {
      shown_.lk2_caption = "Lk2";
    } else if (range == IdRange::Nica) {
      shown_.ksel_is_m_ref = database_.isomodel == "NICA";
      shown_.lk2_caption = id < 13299999 ? "m" : id < 13399999 ? "b" : "n";
    } else if (database_.blifile()) {
      shown_.ksel = number(db::kLk2, "toxicity flag") == 0 ? " No" : " Yes";
    }
    if (!shown_.lk2_caption.empty()) shown_.lk2 = " " + numtext(number(db::kLk2, "second constant"));
  }

  void show_common() {
    shown_.logk = " " + numtext(number(db::kLogK, "log K"));
    shown_.dhr = " " + numtext(number(db::kDhr, "dHr"));
    if (database_.isomodel == "NICA" || database_.cdbfile()) shown_.ksel = " " + numtext(number(db::kKsel, "K-sel"));
    shown_.name = name();
    shown_.charge = numtext(number(db::kCharge, "charge"));
    const double components = record_.head[db::kComponents].number().value_or(0);  // a number, or it had not been read
    shown_.nocomp = numtext(components > db::kMbBlock ? components - db::kMbBlock : components);
  }

  void show_rows(file::System& system, const std::string& compdb) {
    const db::Pairs& pairs = record_.pairs;
    if (pairs.count() > db::kShownPairs)
      shown_.notice = file::named(name()) + " has " + std::to_string(pairs.count()) +
                      " components: the window holds eight, and the others stay in the database unseen. "
                      "Change this species with a text editor.";
    const int rows = std::min(pairs.count(), db::kShownPairs);
    std::vector<double> compno;  // of the rows that have one
    for (int i = 0; i < rows; ++i)
      if (!is_empty(pairs.compno(i))) compno.push_back(number(pairs.compno(i), "component number"));
    const auto found = compno.empty() ? db::ComponentNames() : db::component_names(system, compdb, compno);
    if (found.failure)
      shown_.notice = "The components are shown by number: " + *found.failure +
                      " Choose another component database, or mend this one." + (shown_.notice ? " " + *shown_.notice : "");
    for (std::size_t i = 0, found_at = 0; i < static_cast<std::size_t>(rows); ++i) {
      Row row;
      row.stoich = numtext(number(pairs.stoich(static_cast<int>(i)), "stoichiometry"));
      const db::Field& field = pairs.compno(static_cast<int>(i));
      if (is_empty(field)) {
        row.comp = "#";
      } else {
        row.comp = shown_name(found.names[found_at].value_or("#"), compno[found_at]);
        ++found_at;
      }
      if (database_.mbfields) row.mbstoich = mb_text(field);
      shown_.rows.push_back(std::move(row));
    }
  }

  // Of several M.B. stoichiometries of a component the last counts.
  std::string mb_text(const db::Field& compno) const {
    const db::Pairs& pairs = record_.mb_pairs;
    for (int i = pairs.count() - 1; i >= 0; --i)
      if (pairs.compno(i).number() == compno.number())
        return is_empty(pairs.stoich(i)) ? "" : numtext(number(pairs.stoich(i), "M.B. stoichiometry"));
    return "";
  }

  const db::SpeciesReader& reader_;
  const db::Record& record_;
  const db::Database& database_;
  Shown shown_;
};

}  // namespace

IdRange range_of(double id) {
  if (id > 11000000 && id < 12999999) return IdRange::Lk2;
  if (id > 13110000 && id < 13599999) return IdRange::Nica;
  return IdRange::None;
}

std::optional<Shown> show_species(file::System& system, db::Database& open, const std::string& compdb,
                                  std::string_view name) {
  db::SpeciesReader reader(system, open.path);
  if (const auto read = reader.read_leading(db::leading_by_name(open)); read.model) open.isomodel = *read.model;
  while (const db::Record* record = reader.next())
    if (record->name() == name) return Display(reader, *record, open).shown(system, compdb);
  return std::nullopt;
}

}  // namespace edit
