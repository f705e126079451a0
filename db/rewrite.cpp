// The form in which records are written, and what a rewrite refuses lest something be lost.
#include "db/rewrite.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace db {
namespace {

// The place in the file where these fields stand in a row just as a LineWriter would write them; nothing when they do not.
std::string_view as_written(std::span<const Field> fields) {
  const auto begin_of = [](const Field& field) { return field.text.data() - (field.quoted ? 1 : 0); };
  const char* const begin = begin_of(fields.front());
  const char* at = begin;
  for (const Field& field : fields) {
    if (at != begin && *at++ != ',') return {};
    if (at != begin_of(field)) return {};
    if (!field.quoted && !field.text.empty() && !is_formatted(field.text)) return {};
    at = field.text.data() + field.text.size() + (field.quoted ? 1 : 0);
  }
  return {begin, static_cast<std::size_t>(at - begin)};
}

void append_line(std::string& out, std::span<const Field> fields) {
  if (fields.empty()) return;
  if (const auto line = as_written(fields); !line.empty()) {
    out += line;
    out += kLineEnd;
    return;
  }
  LineWriter line(out);
  for (const Field& field : fields) line.field(field);
  line.end();
}

// The component database is never written.
file::Spared spared(const Database& open) { return {open.compdb, "the component database"}; }

file::Refusal misplaced(const Database& open) {
  return file::Refusal(file::named(open.path) +
                       " is another database than the one that was open, which could not be copied there. Open the one or " +
                       "the other with the File menu.");
}

}  // namespace

std::string& LineWriter::next() {
  if (!first_) out_ += ',';
  first_ = false;
  return out_;
}

LineWriter& LineWriter::number(double value) {
  append_number(next(), value);
  return *this;
}

LineWriter& LineWriter::text(std::string_view value) {
  next();
  // Between quotes a quote of its own would end it, and a reader takes no longer field than kLongestField; bare, as it must
  // have been read, it reads the same again.
  const bool fits = value.size() <= kLongestText;
  const std::string_view quote = fits && value.find('"') == std::string_view::npos ? "\"" : "";
  if (quote.empty() && out_.empty() && value.starts_with(kByteOrderMark)) out_ += kByteOrderMark;  // which is passed over
  out_.append(quote).append(value).append(quote);
  return *this;
}

LineWriter& LineWriter::field(const Field& field) {
  if (field.quoted) return text(field.text);
  if (!field.text.empty() && !is_formatted(field.text)) {
    const auto value = parse_number(field.text);
    if (!value) return text(field.text);
    if (std::abs(*value) < kTooLarge) return number(*value);
  }
  next() += field.text;
  return *this;
}

void append_record(std::string& out, const Record& record) {
  append_line(out, record.head);
  append_line(out, record.pairs);
  if (!record.has_mb) return;
  append_line(out, std::span(&record.mb_count, 1));
  append_line(out, record.mb_pairs);
}

void append_leading(std::string& out, const LeadingFields& fields) {
  LineWriter line(out);
  if (fields.which == Leading::Model) (fields.model_is_empty ? line.field({}) : line.text(fields.model)).end();
  if (fields.which != Leading::Blm) return;
  line.text(fields.description).end();
  LineWriter(out).text(fields.label).number(fields.critical_f).end();
}

std::optional<std::string> misnamed(const Database& open) {
  const Kind by_name = kind_of(open.path);
  if (by_name == open.kind) return std::nullopt;
  return file::named(open.path) + " holds " + std::string(name_of(open.kind).name) + ", but its name is that of " +
         std::string(name_of(by_name).name) +
         ". The list and the boxes may therefore be wrong: give it a name that ends in ." +
         std::string(name_of(open.kind).extension) + " and open it again.";
}

std::optional<std::string> copy_to(file::System& system, const Database& open, const std::string& path) {
  file::Status present;
  const bool there = !system.status(open.path, file::Follow::Links, present) && present.type != file::Type::Missing;
  if (open.misplaced && there) throw misplaced(open);
  if (file::same_place(system, path, kTemporaryFile))
    throw file::Refusal(file::named(path) + " is the temporary file of every save. Choose another name.");
  file::refuse_temporary(system, kTemporaryFile, open.path);
  return file::copy_over(system, open.path, path, spared(open));
}

Rewrite::Rewrite(file::System& system, const Database& open, std::string_view model, double critical_f)
    : replacement_(system, kTemporaryFile, open.path, spared(open)),
      reader_(system, replacement_.path(), open.path),
      name_(file::named(open.path)) {
  if (open.misplaced) throw misplaced(open);
  constexpr std::size_t kGrowth = 4096;  // room for one more species
  out_.reserve(std::min(replacement_.old_size(), file::kLargestDatabase) + kGrowth);
  LeadingFields fields = reader_.read_leading(leading_of(open.kind));
  if (fields.begins_with_number) refuse_kind("a number stands in the place of the first text");
  no_model_ = fields.model_is_empty;
  if (!model.empty()) {
    fields.model = model;
    fields.model_is_empty = false;
  }
  fields.critical_f = critical_f;
  append_leading(out_, fields);
}

void Rewrite::refuse_kind(const std::string& sign) const {
  reader_.refuse(sign +
                 ", as where a database bears the name of another kind. Nothing was changed. Give it the name of its " +
                 "kind and open it again");
}

bool Rewrite::keep_until(std::optional<std::string_view> name) {
  while (const Record* record = reader_.next()) {
    if (++old_species_ == 1 && !record->head[kId].text.empty() && !record->head[kId].number()) {
      if (!no_model_) refuse_kind("a text stands in the place of the ID number");
      reader_.refuse(
          "an empty line or field stands in the place of the model, and a text in that of the ID number. Nothing was "
          "changed. Remove the empty line with a text editor");
    }
    if (name && record->name() == *name) return true;
    append_record(out_, *record);
    count();
  }
  return false;
}

void Rewrite::put(std::string_view record) {
  out_ += record;
  count();
}

void Rewrite::count() {
  ++species_;
  if (out_.size() > file::kLargestDatabase)
    throw file::Refusal(name_ + " is larger than 64 MiB. The editor leaves it as it is.");
}

const std::string& Rewrite::content() {
  const std::string limit = "a species database holds at most " + std::to_string(kMaxSpecies) + " species. ";
  if (reader_.end() == SpeciesReader::End::Limit)
    throw file::Refusal(name_ + " goes on after its first " + std::to_string(kMaxRecords) + " records; " + limit +
                        "Nothing was changed. Divide the database with a text editor.");
  if (species_ > kMaxSpecies && species_ > old_species_)
    throw file::Refusal(name_ + " is full: " + limit + "Delete one first, or add this one to another database.");
  if (reader_.end() == SpeciesReader::End::Empty && reader_.rest())
    reader_.refuse(
        "an empty line or field ends the list here, and what stands after it would be lost. Nothing was changed. Remove the "
        "empty line with a text editor");
  if (reader_.end() != SpeciesReader::End::File) out_ += kTrailer;
  return out_;
}

}  // namespace db
