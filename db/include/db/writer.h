// Writes the lines of a species database, the counterpart of species_reader.h.
#pragma once

#include <string>
#include <string_view>

#include "db/species_reader.h"

namespace db {

// One line: values between commas, without blanks.
class LineWriter {
 public:
  explicit LineWriter(std::string& out) : out_(out) {}
  LineWriter& number(double value);
  LineWriter& text(std::string_view value);  // in double quotes, unless it holds one
  // A field as read, {} for an empty one: its type stays, a number takes the form of this writer (1.50 becomes 1.5).
  LineWriter& field(const Field& field);
  void end() { out_ += kLineEnd; }

 private:
  std::string& next();  // the line, ready for one more value

  std::string& out_;
  bool first_ = true;
};

// A record unchanged. Reading the result gives the same values.
void append_record(std::string& out, const Record& record);

// The fields before the first record, each group on lines of its own.
void append_leading(std::string& out, const LeadingFields& fields);

}  // namespace db
