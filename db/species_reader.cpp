// The one scan of a species database, with all that may be wrong in it.
#include "db/species_reader.h"

#include <algorithm>
#include <cmath>

namespace db {

std::string SpeciesReader::place() const {
  std::string where = file::named(fields_.name());
  if (records_ == 0) {
    where += ", before the first record";
  } else {
    where += ", record " + std::to_string(records_);
    if (!name().empty()) where.append(" (").append(file::named(name())).append(")");
  }
  return where;
}

void SpeciesReader::require(std::span<Field> fields) {
  if (!fields_.next(fields)) throw FieldError(records_ == 0 ? "the file ends too early" : "the file ends inside the record");
}

LeadingFields SpeciesReader::read_leading(Leading leading) {
  try {
    LeadingFields read{.which = leading};
    std::array<Field, 3> fields;
    if (leading == Leading::Model) {
      require(std::span(fields).first(1));
      read.model = fields[0].text;
      read.model_is_empty = fields[0].is_empty();
    }
    if (leading == Leading::Blm) {
      require(fields);
      const auto critical_f = fields[2].number();
      if (!critical_f)
        refuse("the critical f value is \"" + file::named(fields[2].text) +
               "\", not a number. Mend the file with a text editor");
      read.description = fields[0].text;
      read.label = fields[1].text;
      read.critical_f = *critical_f;
      read.critical_f_field = fields[2];
    }
    read.begins_with_number = !fields[0].quoted && !fields[0].is_empty() && fields[0].number();
    return read;
  } catch (const FieldError& error) {
    fail(error.what());
  }
}

const Record* SpeciesReader::next() {
  begin_ = fields_.offset();
  if (!fields_.begin_record())
    end_ = End::File;
  else if (records_ == kMaxRecords)
    end_ = End::Limit;
  if (end_ != End::None) return nullptr;
  ++records_;
  record_.head[kId] = record_.head[kName] = {};
  try {
    return read_record();
  } catch (const FieldError& error) {
    fail(error.what());
  }
}

std::optional<SpeciesReader::Rest> SpeciesReader::rest() {
  const auto is_more = [](const Field& field) {
    return !field.text.empty() && field.number() != 0. && field.text != kTrailerText &&
           field.text != std::string_view(&kCtrlZ, 1);
  };
  const auto found = [this](const Field& field, bool in_marker) {
    return Rest{offset_of(field), !field.quoted && field.number(), in_marker};
  };
  if (end_ != End::Empty && end_ != End::Marker) return std::nullopt;
  for (const Field& field : record_.head)
    if (is_more(field)) return found(field, true);
  try {
    for (Field field; fields_.next(field); fields_.forget())
      if (is_more(field)) return found(field, false);
  } catch (const FieldError&) {
    return Rest{fields_.offset()};
  }
  return std::nullopt;
}

const Record* SpeciesReader::read_record() {
  const bool complete = fields_.next(record_.head);
  const Field& id = record_.head[kId];
  if (!complete && id.is_empty())
    refuse(
        "an empty line or field begins the record, and the file ends inside it; in a rewrite what stands there would be "
        "lost. Remove the empty line with a text editor");
  if (!complete) throw FieldError("the file ends inside the record");
  if (id.is_zero()) {
    end_ = id.text.empty() ? End::Empty : End::Marker;
    return nullptr;
  }
  const double components = number(record_.head[kComponents], "the number of components");
  const double whole = std::floor(components);
  record_.pairs = read_pairs(pairs_, whole > kMbBlock ? whole - kMbBlock : whole, "component pairs");

  // Not the same as whole > kMbBlock: 100.5 has a block too (and then too many pairs).
  record_.has_mb = components > kMbBlock;
  if (record_.has_mb) require(std::span(&record_.mb_count, 1));
  record_.mb_pairs = read_pairs(
      mb_pairs_, record_.has_mb ? std::floor(number(record_.mb_count, "the number of M.B. pairs")) : 0, "M.B. pairs");
  return &record_;
}

double SpeciesReader::number(const Field& field, const char* what) const {
  const auto value = field.number();
  if (!value) fail(std::string(what) + " is \"" + file::named(field.text) + "\", not a number");
  return *value;
}

// A count below 1 means none.
std::span<const Field> SpeciesReader::read_pairs(std::span<Field> room, double count, const char* what) {
  if (count > kMaxPairs) throw FieldError("it has more than " + std::to_string(kMaxPairs) + " " + what);
  const auto pairs = room.first(2 * static_cast<std::size_t>(std::max(count, 0.)));
  require(pairs);
  return pairs;
}

Listing list_species(file::System& system, const Database& open) {
  Listing listing;
  try {
    SpeciesReader reader(system, open.path);
    listing.opened = true;
    listing.leading = reader.read_leading(leading_by_name(open));
    listing.led = true;
    while (const Record* record = reader.next()) listing.names.emplace_back(record->name());
  } catch (const file::Error&) {
  }
  return listing;
}

}  // namespace db
