#include "db/rewrite.h"

#include "file/replacement.h"

namespace db {

std::string rewritten_content(file::System& system, const Rewrite& order) {
  std::string out;
  file::Status status;
  constexpr std::size_t kGrowth = 4096;  // room for one more species
  if (!system.status(order.database, file::Follow::Links, status) && status.size < file::kLargestDatabase)
    out.reserve(static_cast<std::size_t>(status.size) + kGrowth);
  SpeciesReader reader(system, order.database);
  if (order.model) {
    const std::string read = reader.read_model();
    append_text_line(out, order.model->empty() ? read : *order.model);
  } else if (order.critical_f) {
    BlmFields fields = reader.read_blm();
    fields.critical_f = *order.critical_f;
    append_blm(out, fields);
  }

  if (order.first) order.first(out);
  int species = order.first ? 1 : 0;
  while (const Record* record = reader.next()) {
    const Decision decision = order.decide(*record, out);
    if (decision == Decision::Keep) append_record(out, *record);
    if (decision != Decision::Drop) ++species;
    if (out.size() > file::kLargestDatabase)
      throw file::Refusal(order.database + " is larger than 64 MiB. The editor leaves it as it is.");
  }
  const std::string limit = "a species database holds at most " + std::to_string(kMaxSpecies) + " species. ";
  if (reader.end() == SpeciesReader::End::Limit)
    throw file::Refusal(order.database + " goes on after its first " + std::to_string(kMaxRecords) + " records; " + limit +
                        "Nothing was changed. Divide the database with a text editor.");
  if (species > kMaxSpecies && order.first)
    throw file::Refusal(order.database + " is full: " + limit + "Delete one first, or add this one to another database.");
  if (reader.end() == SpeciesReader::End::Marker) out += kTrailer;
  return out;
}

std::string rewrite(file::System& system, const Rewrite& order) {
  file::Replacement replacement(system, kTemporaryFile, order.database);
  return replacement.commit(rewritten_content(system, order));
}

}  // namespace db
