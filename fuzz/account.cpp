// Reads a database once more, by code that the program does not have.
#include "account.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string_view>
#include <system_error>

namespace fuzz {
namespace {

std::optional<double> number_of(const std::string& text) {
  const char *begin = text.data() + (text.starts_with('+') ? 1 : 0), *end = text.data() + text.size();
  const char* const digit = begin + (begin != end && *begin == '-' && begin == text.data() ? 1 : 0);
  if (digit == end || std::string_view("0123456789.").find(*digit) == std::string_view::npos) return std::nullopt;
  double value = 0;
  const auto [stop, error] = std::from_chars(begin, end, value);
  return stop == end && error == std::errc() ? std::optional(value) : std::nullopt;
}

struct Read {
  std::string text;
  bool bare;

  bool is_empty() const { return bare && text.empty(); }
  std::optional<double> value() const { return is_empty() ? 0 : number_of(text); }
  std::string account() const {
    const auto value = bare ? number_of(text) : std::nullopt;
    if (!value) return is_empty() ? "" : "t" + text;
    char shortened[40];  // to what a file keeps, if it is a number then
    std::snprintf(shortened, sizeof shortened, std::abs(*value) < 1e308 ? "n%.15g" : "n%.17g", *value == 0 ? 0 : *value);
    return shortened;
  }
};

// Up to a quote that is left open or a field longer than any reader takes.
std::vector<Read> fields_of(const std::string& content, bool& broken) {
  std::vector<Read> fields;
  for (std::size_t at = content.starts_with("\xEF\xBB\xBF") ? 3 : 0; at < content.size();) {
    const std::size_t begin = at;
    at = std::min(content.find_first_not_of(" \t", at), content.size());
    Read field{"", content[at] != '"'};
    const std::size_t end = content.find_first_of(field.bare ? ",\r\n" : "\"\r\n", at + (field.bare ? 0 : 1));
    broken = !field.bare && (end == content.npos || content[end] != '"');
    if (!field.bare) ++at;
    field.text = content.substr(at, end == content.npos ? end : end - at);
    if (field.bare) field.text.resize(field.text.find_last_not_of(" \t") + 1);
    at = std::min(content.find_first_of(",\r\n", std::min(end, content.size())), content.size());
    broken |= at - begin > 64 * 1024;
    if (broken) break;
    fields.push_back(field);
    if (at < content.size() && content[at++] == '\r' && at < content.size() && content[at] == '\n') ++at;
  }
  return fields;
}

class Accountant {
 public:
  Accountant(const std::string& content, db::Kind kind) : fields_(fields_of(content, broken_)) {
    const bool model = kind == db::Kind::Isotherm || kind == db::Kind::NicaDonnan, blm = kind == db::Kind::Blm;
    const std::size_t leading = model ? 1 : blm ? 3 : 0;
    if (fields_.size() < leading || (blm && !fields_[2].value())) return;
    for (; at_ < leading; ++at_) account_.leading.push_back(fields_[at_].text);
    account_.readable = read_records();
  }
  Account account() { return account_; }

 private:
  // The next fields; false when there are not so many.
  bool take(std::size_t count, std::vector<std::string>& into) {
    for (; count > 0; --count, ++at_) {
      if (at_ == fields_.size()) return false;
      into.push_back(fields_[at_].account());
    }
    return true;
  }

  bool read_records() {
    while (!only_blanks_left()) {
      if (account_.records.size() == 4000 || at_ + 12 > fields_.size()) return false;
      const Read& id = fields_[at_];
      if (id.value() == 0.) {
        account_.marker = true;
        return !id.is_empty() || nothing_follows();
      }
      const auto count = fields_[at_ + 11].value();
      Account::Record record{fields_[at_ + 1].text, {}};
      if (!count || !take(12, record.fields) ||
          !take_pairs(std::floor(*count) - (std::floor(*count) > 100 ? 100 : 0), record.fields))
        return false;
      if (*count > 100) {
        const auto mb_count = at_ < fields_.size() ? fields_[at_].value() : std::nullopt;
        if (!mb_count || !take(1, record.fields) || !take_pairs(std::floor(*mb_count), record.fields)) return false;
      }
      account_.records.push_back(record);
    }
    return true;
  }

  bool take_pairs(double count, std::vector<std::string>& into) {
    return count <= 10 && take(count > 0 ? static_cast<std::size_t>(2 * count) : 0, into);
  }

  bool only_blanks_left() const {
    int marks = 0;
    for (std::size_t i = at_; i < fields_.size(); ++i)
      if (!fields_[i].is_empty() && !(fields_[i].bare && fields_[i].text == "\x1a" && ++marks == 1)) return false;
    return !broken_;
  }

  bool nothing_follows() const {
    for (std::size_t i = at_; i < fields_.size(); ++i) {
      const std::string& text = fields_[i].text;
      if (!text.empty() && number_of(text) != 0. && text != "For KELMAR" && text != "\x1a") return false;
    }
    return !broken_;
  }

  bool broken_ = false;
  std::vector<Read> fields_;
  std::size_t at_ = 0;
  Account account_;
};

}  // namespace

Account account_of(const std::string& content, db::Kind kind) { return Accountant(content, kind).account(); }

}  // namespace fuzz
