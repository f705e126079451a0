// The hand-over from Kelmar: where the editor works and on which database.
#pragma once

#include <string>
#include <string_view>

#include "file/system.h"

namespace app {

// Started in one of the two folders of the development environment the editor works in Kelmar's installation folder
// instead; everywhere else in the folder it was started in.
std::string working_folder(std::string_view current_folder);

// The first field of a hand-over file, as text. Throws file::Error, also when there is none.
std::string first_field(file::System& system, const std::string& path);

}  // namespace app
