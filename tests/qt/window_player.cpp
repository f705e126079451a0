// The player on real widgets, without a display: see play_script() and player/window_player.h.
#include <string_view>

#include "qt/qt_player.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  player::QtPlayer player(file::system());
  return player::play_script(player, argc > 1 && argv[1] == std::string_view("--echo"));
}
