#include "db/rewrite.h"

#include <algorithm>

#include "db/writer.h"

namespace db {
namespace {

file::Refusal misplaced(const Database& database) {
  return file::Refusal(file::named(database.path) +
                       " is another database than the one that was open, which could not be copied there. Open the one or " +
                       "the other with the File menu.");
}

}  // namespace

std::optional<std::string> copy_to(file::System& system, const Database& database, const std::string& path,
                                   const std::string& compdb) {
  file::Status present;
  const bool there = !system.status(database.path, file::Follow::Links, present) && present.type != file::Type::Missing;
  if (database.misplaced && there) throw misplaced(database);
  if (file::same_place(system, path, kTemporaryFile))
    throw file::Refusal(file::named(path) + " is the temporary file of every save. Choose another name.");
  file::refuse_temporary(system, kTemporaryFile, database.path);
  return file::copy_over(system, database.path, path, spare_components(compdb));
}

Rewrite::Rewrite(file::System& system, const Database& database, const std::string& compdb, const NewLeading& leading)
    : replacement_(system, kTemporaryFile, database.path, spare_components(compdb)),
      reader_(system, replacement_.path(), database.path),
      name_(file::named(database.path)) {
  if (database.misplaced) throw misplaced(database);
  constexpr std::size_t kGrowth = 4096;  // room for one more species
  out_.reserve(std::min(replacement_.old_size(), file::kLargestDatabase) + kGrowth);
  LeadingFields fields = reader_.read_leading(leading_of(database.kind));
  if (fields.begins_with_number) refuse_kind("a number stands in the place of the first text");
  no_model_ = fields.model_is_empty;
  if (fields.model && !leading.model.empty()) {
    fields.model = leading.model;
    fields.model_is_empty = false;
  }
  if (fields.blm) fields.blm->critical_f = leading.critical_f;
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
  if (reader_.hides_more())
    reader_.refuse(
        "an empty line or field ends the list here, and what stands after it would be lost. Nothing was changed. Remove the "
        "empty line with a text editor");
  if (reader_.end() != SpeciesReader::End::File) out_ += kTrailer;
  return out_;
}

}  // namespace db
