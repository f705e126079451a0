// The player on the real window: see play_script() and player/window_player.h.
#include <string_view>

#include "win32/win32_player.h"

int main(int argc, char** argv) {
  player::sit_down();
  player::Win32Player player(file::system());
  return player::play_script(player, argc > 1 && argv[1] == std::string_view("--echo"));
}
