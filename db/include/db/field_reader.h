// Walks forward through the fields of a database file, a block of bounded size at a time.
// Fields are separated by commas and by line ends (CR LF, LF or CR), which mean the same. doc/file-format.md has it all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "db/format.h"
#include "db/number.h"
#include "file/input.h"

namespace db {

// Without the blanks at both ends. A blank is the space character only.
constexpr std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// One field as read: a view into what its reader holds, converted only when asked for. `text` is the value without quotes
// and surrounding blanks.
struct Field {
  std::string_view text;
  bool quoted = false;

  // A quoted field is text, whatever it holds; `""` is a text too.
  bool is_empty() const { return !quoted && text.empty(); }

  // The value where a number is needed: an empty field counts as 0, and a text that reads as a number as that number.
  // Nothing for any other text.
  std::optional<double> number() const {
    if (text.empty()) return quoted ? std::nullopt : std::optional<double>(0);
    return parse_number(text);
  }

  // number() == 0. Most numbers show by their first digit that they are not.
  bool is_zero() const { return (text.empty() || text.front() < '1' || text.front() > '9') && number() == 0.; }
};

// What is wrong with a field, without file and record; the readers of records add those.
class FieldError : public file::Error {
  using Error::Error;
};

class FieldReader {
 public:
  // Throws file::Error when the file cannot be opened; messages call it `name`.
  FieldReader(file::System& system, const std::string& path, const std::string& name);

  // Begins a record; false at the end of the file, where nothing is left but blank fields and at most one Ctrl-Z, the end
  // mark of old text editors. Forgets the fields read before.
  bool begin_record();
  // The fields read before are no longer needed, and their views end here.
  void forget() { full_.clear(); }
  // Reads the next fields; false when the file ends before the last of them. The views hold until forget(). Throws
  // FieldError for a quoted text that is not closed on its line or a field above the limit, and file::Error for a failed
  // read.
  bool next(std::span<Field> fields);
  bool next(Field& field) { return next(std::span(&field, 1)); }

  const std::string& name() const { return input_.name(); }
  // Where in the file, in bytes from its beginning, the next field begins; and where one read since forget() begins, the
  // quote not counted.
  std::uint64_t offset() const { return offset_ - static_cast<std::uint64_t>(end_ - next_); }
  std::uint64_t offset_of(const Field& field) const;
  void close() { input_.close(); }

 private:
  static constexpr std::size_t kBlock = 32 * 1024;  // bytes read at a time
  static_assert(kBlock + kByteOrderMark.size() < kLongestText, "a field that has been read whole may be too long");
  static constexpr std::size_t kRoom = 4 * (kLongestField + 2 * kBlock);

  void make_room();
  bool refill();
  bool at_end() { return next_ == end_ && !refill(); }
  bool only_blanks_left();
  bool next_of_any_kind(Field& field);

  file::Input input_;
  struct Full {
    std::unique_ptr<char[]> bytes;
    std::uint64_t offset;  // of its beginning, in the file
  };
  std::vector<Full> full_;         // that fields of this record point into
  std::unique_ptr<char[]> bytes_;  // a part of the file, and a line end after it that stops every search
  const char* next_;               // the first byte that belongs to no field yet
  const char* end_;                // after the last byte read
  std::uint64_t offset_ = 0;       // of end_, in the file
  std::uint64_t something_ = 0;    // where in the file there is more than blank fields; 0: not known
  bool file_ended_ = false;
};

// The first field of a file, as text. Throws file::Error, also when there is none.
std::string first_field(file::System& system, const std::string& path);

}  // namespace db
