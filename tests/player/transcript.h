// What a played story writes.
#pragma once

#include <string>

#include "app/frmMaindb.h"

namespace player {

// The block "state" to "end": every control with what it shows, and every value of the window state.
std::string state_block(const ui::Window& window, const app::frmMaindb::State& state);

}  // namespace player
