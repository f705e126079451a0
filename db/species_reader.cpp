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

void SpeciesReader::require(Field& field) {
  bool found = false;
  try {
    found = fields_.next(field);
  } catch (const FieldError& error) {
    fail(error.what());
  }
  if (!found) fail(records_ == 0 ? "the file ends too early" : "the file ends inside the record");
}

std::string SpeciesReader::read_model() {
  fields_.begin_record();
  Field model;
  require(model);
  return std::string(model.text);
}

BlmFields SpeciesReader::read_blm() {
  fields_.begin_record();
  Field description, label, critical_f;
  require(description);
  require(label);
  require(critical_f);
  const auto value = critical_f.number();
  if (!value) fail("the critical f value is \"" + std::string(critical_f.text) + "\", not a number");
  return {std::string(description.text), std::string(label.text), *value};
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
  fields_.begin_record();
  for (Field& field : record_.head) require(field);
  if (record_.head[kId].number() == 0.) {
    end_ = End::Marker;
    return nullptr;
  }
  const int components = whole(record_.head[kComponents], "the number of components");
  record_.n = components > kMbBlock ? components - kMbBlock : components;
  read_pairs(record_.pair_array, record_.n, "component pairs");

  // Not the same as components > kMbBlock: 100.5 has a block too (and then too many pairs).
  record_.has_mb = *record_.head[kComponents].number() > kMbBlock;
  record_.k = 0;
  if (record_.has_mb) {
    require(record_.mb_count);
    record_.k = whole(record_.mb_count, "the number of M.B. pairs");
    read_pairs(record_.mb_array, record_.k, "M.B. pairs");
  }
  return &record_;
}

// The whole-number part of a count; below zero, which means none, it is 0 here.
int SpeciesReader::whole(const Field& field, const char* what) const {
  const auto value = field.number();
  if (!value) fail(std::string(what) + " is \"" + std::string(field.text) + "\", not a number");
  if (*value < 0) return 0;
  return static_cast<int>(std::min(std::floor(*value), 1e6));
}

void SpeciesReader::read_pairs(std::array<Pair, kMaxPairs>& pairs, int count, const char* what) {
  if (count > kMaxPairs) fail("it has more than " + std::to_string(kMaxPairs) + " " + what);
  for (int i = 0; i < count; ++i) {
    require(pairs[static_cast<std::size_t>(i)].stoich);
    require(pairs[static_cast<std::size_t>(i)].compno);
  }
}

}  // namespace db
