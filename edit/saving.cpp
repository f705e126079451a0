// Texts of the window as a record, and the three ways in which it reaches the database.
#include "edit/saving.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <span>
#include <system_error>
#include <vector>

#include "db/components.h"
#include "db/rewrite.h"

namespace edit {
namespace {

// The power of ten of the first digit that is not 0: 2 for 123, -3 for .00123, 7 for 1.5E7.
long leading_power(std::string_view number) {
  const auto e = std::min(number.find_first_of("eE"), number.size());
  const auto point = std::min(number.find('.'), e), first = number.find_first_of("123456789");
  const long power = static_cast<long>(point) - static_cast<long>(first) - (first < point ? 1 : 0);
  long exponent = 0;
  if (e == number.size()) return power;
  number.remove_prefix(e + (number.substr(e + 1).starts_with('+') ? 2 : 1));
  if (std::from_chars(number.data(), number.data() + number.size(), exponent).ec != std::errc())
    exponent = number.front() == '-' ? LONG_MIN / 2 : LONG_MAX / 2;
  return power + exponent;
}

// The rule; a message shows `typed`.
double value_of(std::string_view text, std::string_view typed) {
  std::string digits;
  for (const char c : text)
    if (c != ' ' && c != '\t' && c != '\n') digits += c;
  const char* begin = digits.data();
  const char* const end = begin + digits.size();
  const bool negative = begin != end && *begin == '-';
  if (begin != end && (*begin == '-' || *begin == '+')) ++begin;
  if (begin == end || (*begin != '.' && (*begin < '0' || *begin > '9'))) return 0;

  double value = 0;
  const auto [stop, error] = std::from_chars(begin, end, value);
  const bool out_of_range = error == std::errc::result_out_of_range;
  if (out_of_range && leading_power(std::string_view(begin, stop)) < 0) return 0;  // too small for a double is as good as 0
  if (out_of_range || value >= db::kTooLarge)
    throw file::Refusal("\"" + file::named(typed) + "\" is too large a number. Correct it before saving.");
  return negative ? -value : value;
}

// An M.B. stoichiometry from here on is none at all: the mark of a blank field in the file's program of origin.
constexpr double kNoMb = 99;

double lk2_field(const Entry& entry, const db::Database& open) {
  if (entry.lk2) return comma_number(*entry.lk2);
  return open.blifile() && db::trimmed(entry.ksel.value_or("")) == "Yes" ? 1 : 0;
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
      numbers.push_back(at != found.end() ? at->second : db::site_number(name));
  }
  return numbers;
}

db::Rewrite begin(file::System& system, const db::Database& open, std::string_view model, std::string_view critical_f) {
  return {system, open, model, open.blifile() ? number_rule(critical_f) : 0};
}

}  // namespace

double number_rule(std::string_view text) { return value_of(text, text); }

double comma_number(std::string_view text) {
  std::string with_point(text);
  if (const auto comma = with_point.find(','); comma != std::string::npos) with_point[comma] = '.';
  return value_of(with_point, text);
}

std::string species_record(file::System& system, const db::Database& open, const Entry& entry) {
  const double count = std::floor(number_rule(entry.nocomp));
  if (count > db::kShownPairs)
    throw file::Refusal("A species has at most eight components, and the number of components is " +
                        file::named(db::trimmed(entry.nocomp)) + ". Correct it before saving.");
  const auto rows = std::span(entry.rows).first(static_cast<std::size_t>(std::max(count, 0.)));
  const auto numbers = numbers_of(system, open.compdb, rows);
  const double id = number_rule(entry.id);
  if (id == 0) throw file::Refusal("The ID number is 0, which would end the list of species. Give another one.");
  const auto name = db::trimmed(entry.name);
  if (name.find_first_of("\"\r\n") != name.npos)
    throw file::Refusal("A species name cannot hold a double quote or a line end. Correct it before saving.");
  if (name.size() > db::kLongestText) throw file::Refusal("The species name is longer than 65534 characters. Shorten it.");

  std::string pairs, mb;
  db::LineWriter line(pairs), mb_line(mb);
  const auto put = [](db::LineWriter& to, double stoich, std::optional<double> number) {
    to.number(stoich);
    number ? to.number(*number) : to.field({});
  };
  int blocks = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    put(line, comma_number(rows[i].stoich), numbers[i]);
    if (!open.mbfields || db::trimmed(rows[i].mbstoich).empty()) continue;
    const double stoich = comma_number(rows[i].mbstoich);
    if (stoich >= kNoMb) continue;
    put(mb_line, stoich, numbers[i]);
    ++blocks;
  }
  if (!pairs.empty()) line.end();

  std::string out;
  const bool has_ksel = open.isomodel == "NICA" || open.cdbfile();
  db::LineWriter head(out);
  head.number(id).text(name).number(comma_number(entry.dhr)).number(comma_number(entry.logk));
  head.number(has_ksel ? comma_number(entry.ksel.value_or("")) : 0).number(lk2_field(entry, open));
  head.number(comma_number(entry.charge)).number(0).number(0).number(0).number(0);
  head.number(count + (blocks > 0 ? db::kMbBlock : 0)).end();
  if (blocks == 0) return out + pairs;
  out += pairs;
  db::LineWriter(out).number(blocks).end();
  mb_line.end();
  return out + mb;
}

std::optional<std::string> add_species(file::System& system, const db::Database& open, const Entry& entry,
                                       std::string_view critical_f) {
  db::Rewrite rewrite = begin(system, open, open.isomodel, critical_f);
  rewrite.put(species_record(system, open, entry));
  rewrite.keep_until(std::nullopt);
  return rewrite.commit();
}

std::optional<std::string> change_species(file::System& system, const db::Database& open,
                                          std::optional<std::string_view> name, const Entry& entry,
                                          std::string_view critical_f) {
  db::Rewrite rewrite = begin(system, open, open.isoselect, critical_f);
  while (rewrite.keep_until(name)) rewrite.put(species_record(system, open, entry));
  return rewrite.commit();
}

std::optional<std::string> delete_species(file::System& system, const db::Database& open, std::string_view name,
                                          std::string_view critical_f) {
  db::Rewrite rewrite = begin(system, open, open.isomodel, critical_f);
  while (rewrite.keep_until(name)) {
  }
  return rewrite.commit();
}

}  // namespace edit
