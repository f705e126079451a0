// Reads a species database: its leading fields, then its records one after another. Loading, display, saving, deletion
// and the search for an ID number all read through this one scan.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "db/field_reader.h"
#include "db/format.h"

namespace db {

// The twelve fields of a head line, in file order.
enum HeadField { kId, kName, kDhr, kLogK, kKsel, kLk2, kCharge, kUnused8, kUnused9, kUnused10, kUnused11, kComponents };
inline constexpr int kHeadFields = 12;

// One species as the file holds it. All fields are views that end when the next record is read.
struct Record {
  std::array<Field, kHeadFields> head;
  std::span<const Field> pairs;  // a stoichiometry and the number of its component, in turn
  bool has_mb = false;
  Field mb_count;                   // the number of M.B. pairs as it stands in the file
  std::span<const Field> mb_pairs;  // the same of the M.B. stoichiometries

  std::string_view name() const { return head[kName].text; }
};

struct LeadingFields {
  Leading which = Leading::None;
  bool begins_with_number = false;  // as a database without leading fields does
  bool model_is_empty = false;      // an empty line or field, not an empty text
  std::string model{};
  std::string description{}, label{};  // no meaning here; kept as they are
  double critical_f = 0;
  Field critical_f_field{};  // as it stands in the file; a view that ends when the first record is read
};

class SpeciesReader {
 public:
  // How a list ended: at its marker (the ID number 0), at an empty ID number, which counts as 0, at the end of the file, or
  // after kMaxRecords with more to come.
  enum class End { None, Marker, Empty, File, Limit };

  // Throws file::Error, like every function here: what is wrong, in which file and record.
  SpeciesReader(file::System& system, const std::string& path) : SpeciesReader(system, path, path) {}
  SpeciesReader(file::System& system, const std::string& path, const std::string& name) : fields_(system, path, name) {}

  // Reads the fields before the first record. A critical f value that is text is refused.
  LeadingFields read_leading(Leading leading);

  // The next species, valid until the next call; null at the end of the list. A record cut short by the end of the file,
  // more than kMaxPairs pairs, or text in place of a number of pairs is an error.
  const Record* next();
  End end() const { return end_; }
  // The number of the record that was read last, from 1 on.
  int number() const { return records_; }
  // Its name; none where its ID number is empty.
  std::string_view name() const { return record_.head[kId].is_empty() ? std::string_view() : record_.name(); }
  // Where in the file, in bytes, it begins; at the end of the list, what has ended it.
  std::uint64_t offset() const { return begin_; }
  std::uint64_t offset_of(const Field& field) const { return fields_.offset_of(field); }
  // Before the database is replaced: nothing can be read after it.
  void close() { fields_.close(); }
  // At the end of the list: the first field after its ID number that is no part of an end marker and its trailer. Reads on
  // to the end of the file.
  struct Rest {
    std::uint64_t offset = 0;  // in the file, in bytes
    bool number = false;
    bool in_marker = false;  // among the fields of the record that has ended the list
  };
  std::optional<Rest> rest();

  // The value of a field of the record that was read last, in which text is an error; `what` it is to the user.
  double number(const Field& field, const char* what) const;
  // Throws file::Error, or file::Refusal, about the record that was read last.
  [[noreturn]] void fail(const std::string& reason) const { fail_as<file::Error>(reason); }
  [[noreturn]] void refuse(const std::string& reason) const { fail_as<file::Refusal>(reason); }

 private:
  std::string place() const;
  template <typename Error>
  [[noreturn]] void fail_as(const std::string& reason) const {
    const std::string where = place() + ": ";
    throw Error(where + reason + ".", where.size());
  }
  void require(std::span<Field> fields);
  std::span<const Field> read_pairs(std::span<Field> room, double count, const char* what);
  const Record* read_record();

  FieldReader fields_;
  Record record_;
  std::array<Field, 2 * kMaxPairs> pairs_, mb_pairs_;
  int records_ = 0;
  std::uint64_t begin_ = 0;
  End end_ = End::None;
};

// Loading ends in silence where the file ends or cannot be read further; what was read before counts.
struct Listing {
  bool opened = false;             // the file could be opened
  bool led = false;                // and its leading fields read
  LeadingFields leading;           // those that leading_by_name() says
  std::vector<std::string> names;  // of the species, in file order, as read
};

Listing list_species(file::System& system, const Database& open);

}  // namespace db
