// Reads a species database: its leading fields, then its records one after another. Loading, display, saving, deletion
// and the search for an ID number all read through this one scan.
#pragma once

#include <array>
#include <span>
#include <string>

#include "db/field_reader.h"
#include "db/format.h"

namespace db {

// The twelve fields of a head line, in file order.
enum HeadField { kId, kName, kDhr, kLogK, kKsel, kLk2, kCharge, kUnused8, kUnused9, kUnused10, kUnused11, kComponents };
inline constexpr int kHeadFields = 12;

// Pairs of a stoichiometry and the number of the component that it belongs to.
class Pairs {
 public:
  int count() const { return count_; }
  const Field& stoich(int i) const { return fields_[static_cast<std::size_t>(2 * i)]; }
  const Field& compno(int i) const { return fields_[static_cast<std::size_t>(2 * i + 1)]; }
  // All of them, in file order.
  std::span<const Field> fields() const { return {fields_.data(), static_cast<std::size_t>(2 * count_)}; }

 private:
  friend class SpeciesReader;
  std::array<Field, 2 * kMaxPairs> fields_;
  int count_ = 0;
};

// One species as the file holds it. All fields are views that end when the next record is read.
struct Record {
  std::array<Field, kHeadFields> head;
  Pairs pairs;
  bool has_mb = false;
  Field mb_count;  // the number of M.B. pairs as it stands in the file
  Pairs mb_pairs;
};

struct BlmFields {
  std::string description, label;  // no meaning here; kept as they are
  double critical_f = 0;
};

class SpeciesReader {
 public:
  // How a list ended: at its marker, at the end of the file, or after kMaxRecords with more to come.
  enum class End { None, Marker, File, Limit };

  // Throws file::Error, like every function here: what is wrong, in which file and record.
  SpeciesReader(file::System& system, const std::string& path) : fields_(system, path) {}

  // The leading field of an isotherm or NICA-Donnan database.
  std::string read_model();
  // The three leading fields of a BLM parameter database.
  BlmFields read_blm();
  // Whichever of these the file has: by its path an isotherm or NICA-Donnan database, whose model is returned, else a BLM
  // parameter database when `blifile` is set.
  std::optional<std::string> skip_leading_fields(bool blifile);

  // The next species, valid until the next call; null at the end of the list. A record cut short by the end of the file,
  // more than kMaxPairs pairs, or text in place of a number of pairs is an error.
  const Record* next();
  End end() const { return end_; }

  // Throws file::Error about the record that was read last.
  [[noreturn]] void fail(const std::string& reason) const;

 private:
  template <typename Read>
  auto located(Read read);
  void require(std::span<Field> fields);
  static double number(const Field& field, const char* what);
  void read_pairs(Pairs& pairs, double count, const char* what);
  const Record* read_record();

  FieldReader fields_;
  Record record_;
  int records_ = 0;
  End end_ = End::None;
};

}  // namespace db
