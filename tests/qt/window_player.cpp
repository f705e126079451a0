// The player on real widgets, without a display: see play_script().
#include <iostream>
#include <string_view>

#include "qt/qt_player.h"

namespace {

class CheckedPlayer final : public player::QtPlayer {
 public:
  using QtPlayer::QtPlayer;

 private:
  void after() override {
    if (const std::string differing = window.isVisible() ? differences() : ""; !differing.empty())
      std::cout << "the widgets show something else:" << differing << '\n';
  }
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  CheckedPlayer player(file::system());
  return player::play_script(player, argc > 1 && argv[1] == std::string_view("--echo"));
}
