// Plays one event a line of standard input (script.h), in the current folder, and writes what the window shows and asks:
//
//   box [TITLE] ICON BUTTONS [PROMPT]   dialog FORM [FILTER]   hidden NAME   no entry I   state ... end   ended
//
// Exit status 0, also after `ended`; 1 when start-up failed; 2 for a line that it does not understand.
#include <iostream>
#include <string>

#include "player/player.h"

int main() {
  player::Player player(file::system(), [](const std::string& line) { std::cout << line << '\n'; });
  for (std::string line; std::getline(std::cin, line);) {
    if (player::is_skipped(line)) continue;
    const auto event = player::parse_event(line);
    if (!event) {
      std::cout.flush();
      std::cerr << "not understood: " << line << '\n';
      return 2;
    }
    player.play(*event);
    if (event->kind == player::Event::Kind::State) std::cout << player.state();
    if (player.window().ended) {
      std::cout << "ended\n";
      return player.window().status;
    }
  }
  return 0;
}
