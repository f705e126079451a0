#include "db/field_reader.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

namespace db {
namespace {

constexpr std::array<bool, 256> table_of(std::string_view characters) {
  std::array<bool, 256> table{};
  for (const char c : characters) table[static_cast<unsigned char>(c)] = true;
  return table;
}

constexpr auto kEndsField = table_of(",\r\n");
constexpr auto kEndsQuotedText = table_of("\"\r\n");
constexpr auto kBlank = table_of(" \t");
constexpr auto kEmpty = table_of(" \t,\r\n");  // what fields without a value are made of
constexpr std::ptrdiff_t kLongestPlain = kLongestText;
constexpr const char* kTooLong = "a field is longer than 64 KiB";

// The first character from `at` on that is none of a plain field. The comma and all that ends a field or needs a second
// look (blanks, quotes) come no later than it in the code page; of the characters of numbers only '+' does too.
const char* after_plain(const char* at) {
  while (static_cast<unsigned char>(*at) > ',') ++at;
  return at;
}

bool is_in(const std::array<bool, 256>& table, char c) { return table[static_cast<unsigned char>(c)]; }

// The first character from `at` on that is in the table.
const char* find(const std::array<bool, 256>& table, const char* at) {
  while (!is_in(table, *at)) ++at;
  return at;
}

}  // namespace

FieldReader::FieldReader(file::System& system, const std::string& path, std::string name)
    : input_(system, path, std::move(name)) {
  blocks_.push_back(std::make_unique_for_overwrite<Block>());
  blocks_.back()->front() = '\n';
  next_ = end_ = blocks_.back()->data();
  const char* at = next_;
  while (end_ - next_ < std::ssize(kByteOrderMark) && refill(at)) {
  }
  if (std::string_view(next_, end_).starts_with(kByteOrderMark)) next_ += kByteOrderMark.size();
}

void FieldReader::forget() {
  if (blocks_.size() == 1) return;
  spare_ = std::move(blocks_.front());
  blocks_.erase(blocks_.begin(), blocks_.end() - 1);
}

bool FieldReader::begin_record() {
  forget();
  return !at_end() && (static_cast<unsigned char>(*next_) > ',' || !only_blanks_left());
}

// Looks ahead without taking anything: what only begins like the end may be a record.
bool FieldReader::only_blanks_left() const {
  int marks = 0;
  const auto is_nothing = [&marks](char c) { return is_in(kEmpty, c) || (c == kCtrlZ && ++marks == 1); };
  if (!std::all_of(next_, end_, is_nothing)) return false;
  std::array<char, 4096> ahead;
  for (std::uint64_t offset = offset_;;) {
    const std::size_t got = input_.read(offset, ahead.data(), ahead.size());
    if (got == 0 || !std::all_of(ahead.begin(), ahead.begin() + got, is_nothing)) return got == 0;
    offset += got;
  }
}

// Reads on after the last byte. When the block is full, a new one begins with the bytes from next_ on, and `at` moves with
// them; the old one lives on for the fields of this record that point into it. False at the end of the file.
bool FieldReader::refill(const char*& at) {
  if (file_ended_) return false;
  Block* block = blocks_.back().get();
  std::size_t used = static_cast<std::size_t>(end_ - block->data());
  if (block->size() - 1 - used < kLeastRead) {
    const std::size_t kept = static_cast<std::size_t>(end_ - next_);
    if (kept > kLongestField) throw FieldError(kTooLong);
    const std::ptrdiff_t offset = at - next_;
    blocks_.push_back(spare_ ? std::move(spare_) : std::make_unique_for_overwrite<Block>());
    block = blocks_.back().get();
    std::memcpy(block->data(), next_, kept);
    next_ = block->data();
    at = next_ + offset;
    used = kept;
  }
  const std::size_t got = input_.read(offset_, block->data() + used, block->size() - 1 - used);
  offset_ += got;
  end_ = block->data() + used + got;
  (*block)[used + got] = '\n';
  file_ended_ = got == 0;
  return !file_ended_;
}

// A last line without its end, or a comma at the very end, leaves nothing.
bool FieldReader::at_end() {
  const char* at = next_;
  return next_ == end_ && !refill(at);
}

// Nearly every field stands without blanks and ends inside the block, with a comma or CR LF: it is found here, any other in
// next_of_any_kind(). No search runs beyond the line end after the block.
bool FieldReader::next(std::span<Field> fields) {
  const char* at = next_;
  for (Field& field : fields) {
    const char* const begin = at;
    const char* end = after_plain(at);
    if (end - begin <= kLongestPlain) {
      if (*end == ',') {
        field = {{begin, static_cast<std::size_t>(end - begin)}, false};
        at = end + 1;
        continue;
      }
      if (*end == '\r' && end[1] == '\n' && end + 1 != end_) {
        field = {{begin, static_cast<std::size_t>(end - begin)}, false};
        at = end + 2;
        continue;
      }
      if (*end == '"' && end == begin) {
        end = find(kEndsQuotedText, begin + 1);
        if (*end == '"' && end[1] == ',' && end - begin <= kLongestPlain) {
          field = {{begin + 1, static_cast<std::size_t>(end - begin - 1)}, true};
          at = end + 2;
          continue;
        }
      }
    }
    next_ = begin;
    if (!next_of_any_kind(field)) return false;
    at = next_;
  }
  next_ = at;
  return true;
}

bool FieldReader::next_of_any_kind(Field& field) {
  if (at_end()) return false;
  // Every search stops at the line end after the last byte read; there it goes on once more has been read.
  const char* at = next_;
  do
    while (is_in(kBlank, *at)) ++at;
  while (at == end_ && refill(at));

  field.quoted = *at == '"';
  if (field.quoted) ++at;
  const std::ptrdiff_t before_text = at - next_;
  if (field.quoted) {
    do at = find(kEndsQuotedText, at);
    while (at == end_ && refill(at));
    if (*at != '"') throw FieldError("a quoted text is not closed on its line");
    field.text = {next_ + before_text, static_cast<std::size_t>(at - next_ - before_text)};
  }
  do at = find(kEndsField, at);
  while (at == end_ && refill(at));
  if (at - next_ > static_cast<std::ptrdiff_t>(kLongestField)) throw FieldError(kTooLong);
  if (!field.quoted) {
    const char* end = at;
    while (end != next_ + before_text && is_in(kBlank, end[-1])) --end;
    field.text = {next_ + before_text, static_cast<std::size_t>(end - next_ - before_text)};
  }

  next_ = at;
  if (at == end_) return true;
  const bool may_be_pair = *next_++ == '\r';
  if (may_be_pair && !at_end() && *next_ == '\n') ++next_;
  return true;
}

}  // namespace db
