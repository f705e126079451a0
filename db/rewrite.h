// Rewrites a whole species database: every record is read, kept, replaced or dropped, and the result takes the place of
// the file in one step (file/replacement.h).
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "db/writer.h"

namespace db {

inline constexpr const char* kTemporaryFile = "dbnamep.mdb";  // in the working folder, during a rewrite only

enum class Decision { Keep, Replace, Drop };

struct Rewrite {
  std::string database;
  // Leading fields: a model to write in place of the one read, an empty one to write the one read; or a critical f value
  // to write in place of the one read; or none.
  std::optional<std::string> model;
  std::optional<double> critical_f;
  // Writes a record ahead of all old ones, if set.
  std::function<void(std::string& out)> first;
  // Says what becomes of a record; for Replace it has written the new one to `out`.
  std::function<Decision(const Record& record, std::string& out)> decide;
};

// What the database becomes; nothing is written yet. Throws as rewrite() does.
std::string rewritten_content(file::System& system, const Rewrite& order);

// Throws file::Refusal when the database holds more than the editor can write back whole, and file::Error when it
// cannot be read or replaced. The file then is as it was. Returns what the user has to be told of a success, or nothing.
[[nodiscard]] std::string rewrite(file::System& system, const Rewrite& order);

}  // namespace db
