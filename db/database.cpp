#include "db/database.h"

#include "file/error.h"

namespace db {

std::optional<std::string> misnamed(const Database& open) {
  const Kind by_name = kind_of(open.path);
  if (by_name == open.kind) return std::nullopt;
  return file::named(open.path) + " holds " + std::string(name_of(open.kind).name) + ", but its name is that of " +
         std::string(name_of(by_name).name) +
         ". The list and the boxes may therefore be wrong: give it a name that ends in ." +
         std::string(name_of(open.kind).extension) + " and open it again.";
}

}  // namespace db
