// The inner loop of every reading: where fields end.
#include "db/field_reader.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <utility>

namespace db {
namespace {

using Table = std::array<bool, 256>;

constexpr Table table_of(std::string_view characters, bool in_it = true) {
  Table table{};
  table.fill(!in_it);
  for (const char c : characters) table[static_cast<unsigned char>(c)] = in_it;
  return table;
}

constexpr auto kEndsField = table_of(",\r\n");
constexpr auto kEndsQuotedText = table_of("\"\r\n");
constexpr auto kBlank = table_of(" \t"), kNoBlank = table_of(" \t", false);
constexpr auto kEmpty = table_of(" \t,\r\n");  // what fields without a value are made of
constexpr const char* kTooLong = "a field is longer than 64 KiB";

// The first character from `at` on that is none of a plain field. The comma and all that ends a field or needs a second
// look (blanks, quotes) come no later than it in the code page; of the characters of numbers only '+' does too.
const char* after_plain(const char* at) {
  while (static_cast<unsigned char>(*at) > ',') ++at;
  return at;
}

bool is_in(const Table& table, char c) { return table[static_cast<unsigned char>(c)]; }

// The first character from `at` on that is in the table.
const char* find(const Table& table, const char* at) {
  while (!is_in(table, *at)) ++at;
  return at;
}

}  // namespace

FieldReader::FieldReader(file::System& system, const std::string& path, const std::string& name)
    : input_(system, path, name),
      bytes_(std::make_unique_for_overwrite<char[]>(kRoom)),
      next_(bytes_.get()),
      end_(next_) {
  while (end_ - next_ < std::ssize(kByteOrderMark) && refill()) {
  }
  if (std::string_view(next_, end_).starts_with(kByteOrderMark)) next_ += kByteOrderMark.size();
}

// Room for a field of any length from next_ on, and for the blocks in which it and its line end. Where that is short, what
// was not read yet moves to new memory; the old stays for the fields that point into it.
void FieldReader::make_room() {
  if (static_cast<std::size_t>(next_ - bytes_.get()) + kLongestField + 3 * kBlock < kRoom) return;
  const std::uint64_t begin = offset_ - static_cast<std::uint64_t>(end_ - bytes_.get());
  full_.push_back({std::exchange(bytes_, std::make_unique_for_overwrite<char[]>(kRoom)), begin});
  end_ = std::copy(next_, end_ + 1, bytes_.get()) - 1;
  next_ = bytes_.get();
}

std::uint64_t FieldReader::offset_of(const Field& field) const {
  const char* const at = field.text.data();
  for (const Full& full : full_)
    if (std::less_equal<>()(full.bytes.get(), at) && std::less<>()(at, full.bytes.get() + kRoom))
      return full.offset + static_cast<std::uint64_t>(at - full.bytes.get());
  return offset_ - static_cast<std::uint64_t>(end_ - at);
}

bool FieldReader::begin_record() {
  forget();
  return !at_end() && (static_cast<unsigned char>(*next_) > ',' || !only_blanks_left());
}

// Looks ahead without taking anything: what only begins like the end may be a record. What it comes upon is remembered, so
// that a file of blank fields is not looked through for each of them.
bool FieldReader::only_blanks_left() {
  if (offset() < something_) return false;
  int marks = 0;
  const auto something_in = [&](std::span<const char> bytes, std::uint64_t offset) {
    const auto it =
        std::ranges::find_if_not(bytes, [&](char c) { return is_in(kEmpty, c) || (c == kCtrlZ && ++marks == 1); });
    if (it == bytes.end()) return false;
    if (*it != kCtrlZ) something_ = offset + static_cast<std::uint64_t>(it - bytes.begin());
    return true;
  };
  if (something_in({next_, end_}, offset())) return false;
  std::array<char, 4096> ahead;
  for (std::uint64_t at = offset_;;) {
    const std::size_t got = input_.read(at, ahead.data(), ahead.size());
    if (got == 0) return true;
    if (something_in(std::span(ahead).first(got), at)) return false;
    at += got;
  }
}

// Reads on after the last byte, inside a field that is not too long yet; false at the end of the file.
bool FieldReader::refill() {
  if (file_ended_) return false;
  if (end_ - next_ > static_cast<std::ptrdiff_t>(kLongestField)) throw FieldError(kTooLong);
  const auto used = static_cast<std::size_t>(end_ - bytes_.get());
  const std::size_t got = input_.read(offset_, &bytes_[used], kBlock);
  bytes_[used + got] = '\n';
  end_ += got;
  offset_ += got;
  file_ended_ = got == 0;
  return !file_ended_;
}

// Nearly every field stands without blanks and ends inside what was read, with a comma or CR LF: it is found here, any other
// in next_of_any_kind(). No search runs beyond the line end after the last byte.
bool FieldReader::next(std::span<Field> fields) {
  const char* at = next_;
  for (Field& field : fields) {
    const char* const begin = at;
    const char* end = after_plain(at);
    const bool quoted = *end == '"' && end == begin;
    if (quoted) end = find(kEndsQuotedText, begin + 1);
    if (*end == ',')
      at = end + 1;
    else if (quoted ? *end == '"' && end[1] == ',' : *end == '\r' && end[1] == '\n' && end + 1 != end_)
      at = end + 2;
    if (at == begin) {
      next_ = begin;
      if (!next_of_any_kind(field)) return false;
      at = next_;
    } else {
      field = {{begin + quoted, end}, quoted};
    }
  }
  next_ = at;
  return true;
}

bool FieldReader::next_of_any_kind(Field& field) {
  if (at_end()) return false;
  make_room();
  const char* at = next_;
  const auto search = [&](const Table& table) {
    do at = find(table, at);
    while (at == end_ && refill());
  };
  search(kNoBlank);
  field.quoted = *at == '"';
  const char* const begin = field.quoted ? ++at : at;
  if (field.quoted) {
    search(kEndsQuotedText);
    if (*at != '"') throw FieldError("a quoted text is not closed on its line");
  }
  const char* end = at;
  field.text = {begin, end};  // a quoted one: a message may name it
  search(kEndsField);
  if (at - next_ > static_cast<std::ptrdiff_t>(kLongestField)) throw FieldError(kTooLong);
  if (!field.quoted)
    for (end = at; end != begin && is_in(kBlank, end[-1]);) --end;
  field.text = {begin, end};

  next_ = at;
  if (at == end_) return true;
  if (*next_++ == '\r' && !at_end() && *next_ == '\n') ++next_;
  return true;
}

std::string first_field(file::System& system, const std::string& path) {
  FieldReader reader(system, path, path);
  Field field;
  try {
    if (reader.next(field)) return std::string(field.text);
  } catch (const FieldError& error) {
    throw file::Error(file::named(path) + ": " + error.what() + ".");
  }
  throw file::Error(file::named(path) + " is empty.");
}

}  // namespace db
