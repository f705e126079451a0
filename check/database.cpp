// The rules, in the order in which a reader of the file meets what they are about.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "check/check.h"
#include "db/species_reader.h"
#include "file/replacement.h"

namespace check {
namespace {

using db::Field;
using enum Severity;

// More than doubles leave of a sum like .84 + 1.16, and less than any charge that somebody writes.
constexpr double kSmallestCharge = 1E-06;

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();  // equal to no number

std::string component(double number) { return "component " + db::format_number(number); }

// Given the key of one record after the other, tells the first record with that key. The library's table would take longer
// than reading the database does.
template <typename Key>
struct Firsts {
  Firsts() { keys_.reserve(db::kMaxRecords); }
  int first_with(Key key) {
    keys_.push_back(std::move(key));
    for (std::size_t slot = std::hash<Key>()(keys_.back());; ++slot) {
      int& first = slots_[slot % slots_.size()];
      if (first == 0) return first = static_cast<int>(keys_.size());
      if (keys_[static_cast<std::size_t>(first) - 1] == keys_.back()) return first;
    }
  }

  std::vector<Key> keys_;
  std::array<int, 8192> slots_{};  // twice as many as records; which record, from 1 on, or 0
};

struct Check {
  Check(file::System& system, const std::string& path, const Components* components, bool charges)
      : kind_(db::kind_of(path)),
        reader_(system, path),
        components_(components),
        charges_(charges) {}

  std::vector<Finding> run(std::string_view path) {
    check_extension(path);
    try {
      if (check_leading(reader_.read_leading(db::leading_of(kind_)))) check_list();
    } catch (const file::Error& error) {
      if (!error.tells_where()) throw;
      add(Error, reader_.number() == 0 ? "first-line" : "unreadable-record",
          std::string(error.reason()) + "; the editor reads no further; no save is made");
    }
    if (other_forms_ > 0)
      add_to_file(first_other_form_, Note, "number-form",
                  "a save writes numbers in another form: " + std::to_string(other_forms_) + ", this one first");
    return std::move(findings_);
  }

  // About the record that was read last, at its beginning or at one of its fields.
  void add(Severity severity, std::string_view rule, std::string reason, const Field* field = nullptr) {
    findings_.push_back({field ? reader_.offset_of(*field) : reader_.offset(), severity, rule, std::move(reason),
                         reader_.number(), std::string(reader_.name())});
  }

  void add_to_file(std::uint64_t offset, Severity severity, std::string_view rule, std::string reason) {
    findings_.push_back({offset, severity, rule, std::move(reason)});
  }

  void check_extension(std::string_view path) {
    std::string end(path.substr(path.size() - std::min<std::size_t>(path.size(), 3)));
    for (char& c : end)
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    if (const db::Kind meant = db::kind_of(end); meant != kind_)
      add_to_file(0, Warning, "extension",
                  "its name has capital and small letters: to the editor it is that of " + std::string(name_of(kind_).name));
  }

  // False when the rest of the file cannot mean what it should.
  bool check_leading(const db::LeadingFields& leading) {
    const bool model_is_known = kind_ == db::Kind::Isotherm ? std::ranges::count(db::kIsothermModels, leading.model) > 0
                                                            : leading.model == db::kNicaDonnan;
    if (leading.begins_with_number)
      add_to_file(0, Error, "first-line", "a number stands where such a database begins with a text; no save is made");
    else if (leading.which == db::Leading::Model && !model_is_known)
      add_to_file(0, Warning, "first-line", "\"" + file::named(leading.model) + "\" is no model of such a database");
    else if (leading.which == db::Leading::Blm)
      check_number(leading.critical_f_field);
    return !leading.begins_with_number;
  }

  void check_list() {
    while ((record_ = reader_.next())) {
      if (const Field& id = record_->head[db::kId]; reader_.number() == 1 && !id.text.empty() && !id.number())
        return add(Error, "first-line", "a text stands in the place of the first ID number; no save is made");
      check_name();
      check_numbers();
      check_components();
      if (charges_ && components_ && kind_ != db::Kind::Isotherm) check_charge();
    }
    check_end();
  }

  void check_name() {
    const std::string_view name = record_->name(), trimmed = db::trimmed(name);
    if (trimmed.empty())
      add(Warning, "name-empty", "it has no name, by which the editor finds a species");
    else if (trimmed != name)
      add(Warning, "name-blanks", "blanks stand around its name: the editor looks for it without them, in vain");
    if (const int first = names_.first_with(std::string(name)); first != reader_.number())
      add(Warning, "name-twice",
          "its name is that of record " + std::to_string(first) + ", too: a change or a deletion takes both");
  }

  void check_numbers() {
    // A name that reads as a number takes another form, too.
    if (const Field& name = record_->head[db::kName]; !name.quoted && name.number()) check_number(name);
    if (const int first = ids_.first_with(number_of(record_->head[db::kId])); first != reader_.number())
      add(Warning, "id-twice", "its ID number is that of record " + std::to_string(first) + ", too");
    for (std::size_t i = db::kDhr; i < record_->head.size(); ++i)  // four of them mean nothing to the editor
      check_number(record_->head[i], i >= db::kUnused8 && i <= db::kUnused11 ? Warning : Error);
    for (std::size_t i = 0; i < record_->pairs.size(); i += 2) check_number(record_->pairs[i]);
    if (record_->has_mb) check_number(record_->mb_count);
    for (std::size_t i = 0; i < record_->mb_pairs.size(); i += 2) check_number(record_->mb_pairs[i]);
  }

  // Nearly all stand as the editor writes them.
  void check_number(const Field& field, Severity severity = Error) {
    if (!field.quoted && db::is_formatted(field.text)) return;
    const auto value = field.number();
    if (!value)
      add(severity, "text-number", "\"" + file::named(field.text) + "\" stands where a number belongs", &field);
    else if (!field.quoted && !field.text.empty() && std::abs(*value) < db::kTooLarge &&
             db::format_number(*value) != field.text) {
      ++other_forms_;
      first_other_form_ = std::min(first_other_form_, reader_.offset_of(field));
    }
  }

  void check_components() {
    const std::size_t count = record_->pairs.size() / 2;
    if (count > db::kShownPairs)
      add(Warning, "more-than-eight", "it has " + std::to_string(count) + " components, and the window shows eight");
    for (std::size_t i = 0; i < count; ++i) {
      const Field& field = record_->pairs[2 * i + 1];
      const double number = number_of(field);
      if (field.is_empty())
        add(Warning, "component-missing", "a component has no number", &field);
      else if (is_among(number, i))
        add(Warning, "component-twice", component(number) + " stands twice in its reaction", &field);
      else if (components_ && !components_->is_plain(number) && !std::isnan(number))
        check_component(field, number);
      numbers_[i] = number;
    }
    for (std::size_t i = 1; i < record_->mb_pairs.size(); i += 2) {
      const Field& field = record_->mb_pairs[i];
      const double number = number_of(field);
      if (field.is_empty() || (!std::isnan(number) && !is_among(number, count)))
        add(Warning, "mb-component",
            (field.is_empty() ? "a component without a number" : component(number)) +
                " has an M.B. stoichiometry, and is not in its reaction",
            &field);
    }
  }

  // Of a component or a species, kNone for what is no number. Nearly all are a few digits.
  double number_of(const Field& field) {
    const char *const begin = field.text.data(), *const end = begin + field.text.size();
    int whole = 0;
    if (std::from_chars(begin, end, whole).ptr == end && whole > 0 && *begin != '0' && !field.quoted) return whole;
    check_number(field);
    return field.is_empty() ? kNone : field.number().value_or(kNone);
  }

  bool is_among(double number, std::size_t count) const {
    return std::ranges::count(std::span(numbers_).first(count), number) > 0;
  }

  void check_component(const Field& field, double number) {
    const auto* found = components_->find(number);
    if (!found || found->record > db::kLookupRecords)
      add(Warning, found ? "component-behind-400" : "component-unknown",
          component(number) + (found ? " stands behind record 400 of " : " is not in ") + file::named(components_->path) +
              ": it shows as #" + db::format_number(number),
          &field);
    else if (found->saved != number)
      add(Warning, "component-name",
          component(number) + " shares the name \"" + file::named(found->name) + "\": a change saves " +
              (found->saved ? component(*found->saved) : "no number"),
          &field);
  }

  void check_charge() {
    double sum = 0;
    for (std::size_t i = 0; i < record_->pairs.size() / 2; ++i) {
      const auto stoichiometry = record_->pairs[2 * i].number();
      const auto* found = components_->find(numbers_[i]);
      if (!stoichiometry || !found || !found->charge)
        return add(Note, "charge-unknown", "its charge cannot be checked: not every component has one charge");
      sum += *stoichiometry * *found->charge;
    }
    if (const auto its = record_->head[db::kCharge].number(); its && std::abs(*its - sum) > kSmallestCharge)
      add(Warning, "charge",
          "its charge is " + db::format_number(*its) + ", that of its components " + db::format_number(sum));
  }

  void check_end() {
    using End = db::SpeciesReader::End;
    const std::uint64_t end = reader_.offset();
    const auto rest = reader_.rest();
    if (end > file::kLargestDatabase) add_to_file(0, Error, "too-large", "it is larger than 64 MiB; no save is made");
    if (reader_.end() == End::Limit)
      add_to_file(end, Error, "too-many-records", "the editor reads 4000 records, and no further; no save is made");
    if (reader_.end() == End::File)  // told of the last line
      add_to_file(end - (end > 0), Warning, "no-end-marker", "the file ends without an end marker");
    if (reader_.end() == End::Empty)
      add(rest ? Error : Note, "empty-line",
          std::string("an empty line or field ends the list") + (rest ? "; more stands behind it; no save is made" : ""));
    else if (rest && rest->in_marker)
      add(Error, "id-zero", "its ID number is 0, which ends the list; a save leaves it out, and all behind it");
    else if (rest)
      add_to_file(rest->offset, rest->number ? Error : Warning, "behind-end",
                  std::string(rest->number ? "records stand" : "text stands") + " behind the end, which a save leaves out");
  }

  db::Kind kind_;
  db::SpeciesReader reader_;
  const Components* components_;
  bool charges_;
  const db::Record* record_ = nullptr;
  std::array<double, db::kMaxPairs> numbers_{};  // of the components of the record, or kNone
  Firsts<std::string> names_;
  Firsts<double> ids_;
  int other_forms_ = 0;
  std::uint64_t first_other_form_ = std::numeric_limits<std::uint64_t>::max();
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> check_database(file::System& system, const std::string& path, const Components* components,
                                    bool charges) {
  return Check(system, path, components, charges).run(path);
}

}  // namespace check
