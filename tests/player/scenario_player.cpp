// Plays the events of standard input without a display.
#include <string_view>

#include "player/player.h"

// scenario_player [--echo] < script > transcript: see play_script().
int main(int argc, char** argv) {
  player::Player player(file::system());
  return player::play_script(player, argc > 1 && argv[1] == std::string_view("--echo"));
}
