#pragma once

#include <string_view>

#include "db/rewrite.h"
#include "edit/display.h"

namespace edit {

// Sets the leading fields that a rewrite of the open database reads and writes: the model that the window holds where the
// window or the path says that there is one (none held: the one in the file stays), else the critical f value of a BLM
// parameter database from its box, without the comma rule.
void set_leading_fields(db::Rewrite& order, const Database& database, std::string_view held_model, std::string_view f50);

}  // namespace edit
