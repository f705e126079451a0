// Plays events of keys and mouse, whatever the toolkit.
#include "player/window_player.h"

#include <chrono>
#include <iostream>
#include <sstream>
#include <thread>
#include <utility>

namespace player {
namespace {

const ui::ControlDef& definition(int control) { return app::window_def().controls[static_cast<std::size_t>(control)]; }

}  // namespace

WindowPlayer::WindowPlayer(file::System& system) : Disk{support::WatchedSystem(system)}, Player(disk) {
  dialogs.report = [this](const std::string& line) {
    told.push_back(line);
    for (const std::string& event : std::exchange(asked_, {}))
      if (!play_other(event)) play(event);
  };
}

bool WindowPlayer::play_other(const std::string& line) {
  Deed deed;
  std::istringstream words(line);
  words >> deed.verb >> deed.what >> deed.how;
  std::getline(words >> std::ws, deed.text);
  deed.control = find_control(deed.what).value_or(app::lstReactions);
  const int focus = focused();
  if (deed.verb == "asked") {
    asked_.push_back(line.substr(6));
  } else if (deed.verb == "haste") {
    disk.before = [](const support::CallInfo& info) {
      if (info.call == support::Call::OpenRead) std::this_thread::sleep_for(std::chrono::milliseconds(2));
      return std::nullopt;
    };
    hasty_ = true;
  } else if (deed.verb == "settle") {
    hasty_ = false;
  } else if (!do_other(deed)) {
    return false;
  }
  after();
  if (const int now = focused(); now != focus && deed.verb != "settle" && deed.verb != "press")
    std::cout << "focus " << (now < 0 ? "nowhere" : definition(now).name) << '\n';
  return true;
}

void WindowPlayer::after() {
  if (hasty_) return;
  settle();
  if (!is_open()) return;
  if (const std::string differing = differences(); !differing.empty())
    std::cout << "the window shows something else:" << differing << '\n';
  if (form.window().ended) std::cout << "the window stays open\n";
  for (int i = 0; i < app::kControls; ++i)
    if (is_cut(i)) std::cout << definition(i).name << " is cut\n";
}

void describe_box(std::string_view title, std::string_view text, std::string_view icon, bool asks) {
  std::cout << "[" << title << "] [" << text << "] " << icon << (asks ? " YesNo\n" : " OK\n");
}

void describe_answer(ui::Answer answer) {
  std::cout << "answer " << (answer == ui::Answer::Yes ? "Yes" : answer == ui::Answer::No ? "No" : "OK") << '\n';
}

}  // namespace player
