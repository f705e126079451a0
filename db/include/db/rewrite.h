// Writes the lines of a species database, and a whole database anew.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "db/species_reader.h"
#include "file/replacement.h"

namespace db {

// One line: values between commas, without blanks.
class LineWriter {
 public:
  explicit LineWriter(std::string& out) : out_(out) {}
  LineWriter& number(double value);
  LineWriter& text(std::string_view value);  // in double quotes, unless it holds one or is too long
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

inline constexpr const char* kTemporaryFile = "dbnamep.mdb";  // in the working folder, during a rewrite only

// Copies the open database to a new path, with the result of file::copy_over. Throws file::Refusal or file::Error.
[[nodiscard]] std::optional<std::string> copy_to(file::System& system, const Database& open, const std::string& path);

// What the user has to be told when the name of the file says another kind than it holds.
std::optional<std::string> misnamed(const Database& open);

// The records of the open database are read one after another, each is kept or another is put in its place, and the result
// takes the place of the file in one step (file/replacement.h).
class Rewrite {
 public:
  // Begins with the leading fields of the kind held, whatever the path says, with this model (an empty one leaves that of
  // the file) or this critical f value in their place. Throws file::Refusal or file::Error when the database cannot be
  // replaced or read.
  Rewrite(file::System& system, const Database& open, std::string_view model, double critical_f);

  // Copies old records as they are up to the next one of this name, which is left out; false at the end of the list, and
  // without a name. Throws file::Error.
  bool keep_until(std::optional<std::string_view> name);
  // Writes whole lines of another record here.
  void put(std::string_view record);

  // After the last record: the new content. Throws file::Refusal when something would be lost or could not be read back.
  const std::string& content();
  // Puts the content in the place of the file. Throws as content(), and file::Error when the file cannot be replaced; it
  // then is as it was. Returns what the user has to be told of a success.
  [[nodiscard]] std::optional<std::string> commit() {
    const std::string& whole = content();
    reader_.close();
    return replacement_.commit(whole);
  }

 private:
  [[noreturn]] void refuse_kind(const std::string& sign) const;
  void count();

  file::Replacement replacement_;  // first: nobody else may replace the file once it is read
  SpeciesReader reader_;
  std::string name_;
  std::string out_;
  bool no_model_ = false;  // its place is empty
  int old_species_ = 0, species_ = 0;
};

}  // namespace db
