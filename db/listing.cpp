#include "db/listing.h"

namespace db {

Listing list_species(file::System& system, const Database& open) {
  Listing listing;
  try {
    SpeciesReader reader(system, open.path);
    listing.opened = true;
    listing.leading = reader.read_leading(leading_by_name(open));
    listing.led = true;
    listing.names.reserve(kMaxRecords);
    while (const Record* record = reader.next()) listing.names.emplace_back(record->name());
  } catch (const file::Error&) {
  }
  return listing;
}

}  // namespace db
