// Samples to try the editor on, which belong to the user: what is installed cannot be changed.
#pragma once

#include <string>

#include "file/system.h"

namespace launcher {

// The user's folder for the data of programs, from XDG_DATA_HOME and HOME (null: not set). Throws file::Error where neither
// tells.
std::string data_folder(const char* data_home, const char* home);

// The database to show, in the user's samples in that folder. Where there are none, the installed ones are copied there;
// what the user made of them stays as it is. Throws file::Error.
std::string sample(file::System& system, const std::string& installed, const std::string& data_folder);

}  // namespace launcher
