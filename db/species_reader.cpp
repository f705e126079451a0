#include "db/species_reader.h"

#include <algorithm>
#include <cmath>

#include "db/kind.h"

namespace db {

void SpeciesReader::fail(const std::string& reason) const {
  std::string where = fields_.path();
  if (records_ == 0) {
    where += ", before the first record: ";
  } else {
    where += ", record " + std::to_string(records_);
    if (!record_.head[kName].text.empty()) where.append(" (").append(record_.head[kName].text).append(")");
    where += ": ";
  }
  throw file::Error(where + reason + ".");
}

// Whatever is wrong with a field is told with file and record.
template <typename Read>
auto SpeciesReader::located(Read read) {
  fields_.begin_record();
  try {
    return read();
  } catch (const FieldError& error) {
    fail(error.what());
  }
}

void SpeciesReader::require(std::span<Field> fields) {
  if (!fields_.next(fields)) throw FieldError(records_ == 0 ? "the file ends too early" : "the file ends inside the record");
}

std::string SpeciesReader::read_model() {
  return located([this] {
    Field model;
    require(std::span(&model, 1));
    return std::string(model.text);
  });
}

BlmFields SpeciesReader::read_blm() {
  return located([this] {
    std::array<Field, 3> fields;
    require(fields);
    return BlmFields{std::string(fields[0].text), std::string(fields[1].text), number(fields[2], "the critical f value")};
  });
}

std::optional<std::string> SpeciesReader::skip_leading_fields(bool blifile) {
  if (has_model(fields_.path())) return read_model();
  if (blifile) read_blm();
  return std::nullopt;
}

const Record* SpeciesReader::next() {
  if (end_ != End::None) return nullptr;
  if (records_ == kMaxRecords) {
    end_ = fields_.at_end() ? End::File : End::Limit;
    return nullptr;
  }
  if (fields_.at_end()) {
    end_ = End::File;
    return nullptr;
  }
  ++records_;
  record_.head[kName] = {};
  return located([this] { return read_record(); });
}

const Record* SpeciesReader::read_record() {
  require(record_.head);
  if (record_.head[kId].is_zero()) {
    end_ = End::Marker;
    return nullptr;
  }
  const double components = number(record_.head[kComponents], "the number of components");
  const double whole = std::floor(components);
  read_pairs(record_.pairs, whole > kMbBlock ? whole - kMbBlock : whole, "component pairs");

  // Not the same as whole > kMbBlock: 100.5 has a block too (and then too many pairs).
  record_.has_mb = components > kMbBlock;
  if (record_.has_mb) require(std::span(&record_.mb_count, 1));
  read_pairs(record_.mb_pairs, record_.has_mb ? std::floor(number(record_.mb_count, "the number of M.B. pairs")) : 0,
             "M.B. pairs");
  return &record_;
}

double SpeciesReader::number(const Field& field, const char* what) {
  const auto value = field.number();
  if (!value) throw FieldError(std::string(what) + " is \"" + std::string(field.text) + "\", not a number");
  return *value;
}

// A count below 1 means none.
void SpeciesReader::read_pairs(Pairs& pairs, double count, const char* what) {
  if (count > kMaxPairs) throw FieldError("it has more than " + std::to_string(kMaxPairs) + " " + what);
  pairs.count_ = static_cast<int>(std::max(count, 0.));
  require(std::span(pairs.fields_).first(static_cast<std::size_t>(2 * pairs.count_)));
}

}  // namespace db
