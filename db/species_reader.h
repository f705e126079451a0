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

struct Pair {
  Field stoich;  // stoichiometry of the component
  Field compno;  // its component number
};

// One species as the file holds it. All fields are views that end when the next record is read.
struct Record {
  std::array<Field, kHeadFields> head;
  std::array<Pair, kMaxPairs> pair_array;
  std::array<Pair, kMaxPairs> mb_array;
  int n = 0;  // number of component pairs
  int k = 0;  // number of M.B. pairs
  bool has_mb = false;
  Field mb_count;  // k as it stands in the file

  std::span<const Pair> pairs() const { return {pair_array.data(), static_cast<std::size_t>(n)}; }
  std::span<const Pair> mb_pairs() const { return {mb_array.data(), static_cast<std::size_t>(k)}; }
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
  void require(Field& field);
  int whole(const Field& field, const char* what) const;
  void read_pairs(std::array<Pair, kMaxPairs>& pairs, int count, const char* what);

  FieldReader fields_;
  Record record_;
  int records_ = 0;
  End end_ = End::None;
};

}  // namespace db
