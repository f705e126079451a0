// Plays what a person does in the window, one event a line of standard input (script.h), on the window without a toolkit,
// in the current folder, and writes what the window shows and asks:
//
//   box [TITLE] ICON BUTTONS [PROMPT]   dialog FORM [FILTER]   hidden NAME   no entry I   state ... end   ended
//
// Exit status 0, also after `ended`; 1 when start-up failed; 2 for a line that it does not understand.
#include <iostream>

#include "player/script.h"
#include "player/transcript.h"
#include "ui/memory/memory_window.h"

namespace {

using player::Event;
using ui::memory::Outcome;

class Player {
 public:
  Player() {
    dialogs_.told = [](const std::string& line) { std::cout << line << '\n'; };
  }

  void play(const Event& event) {
    switch (event.kind) {
      case Event::Kind::Load: return form_.load();
      case Event::Kind::State: std::cout << player::state_block(form_.window(), form_.state()); return;
      case Event::Kind::Close: form_.window().ended = true; return;
      case Event::Kind::Cancel: dialogs_.choices.push_back(std::nullopt); return;
      case Event::Kind::AnswerYes: dialogs_.answers.push_back(ui::Answer::Yes); return;
      case Event::Kind::AnswerNo: dialogs_.answers.push_back(ui::Answer::No); return;
      case Event::Kind::Choose: dialogs_.choices.push_back(event.text); return;
      case Event::Kind::Select: return tell(event, person_.select(event.control, event.entry));
      case Event::Kind::Pick: return tell(event, person_.pick(event.control, event.entry));
      case Event::Kind::Type: return tell(event, person_.type(event.control, event.text));
      case Event::Kind::Click: return tell(event, person_.click(event.control));
    }
  }

  const ui::Window& window() { return form_.window(); }

 private:
  static void tell(const Event& event, Outcome outcome) {
    if (outcome == Outcome::Hidden)
      std::cout << "hidden " << app::window_def().controls[static_cast<std::size_t>(event.control)].name << '\n';
    if (outcome == Outcome::NoEntry) std::cout << "no entry " << event.entry << '\n';
  }

  ui::memory::ScriptedDialogs dialogs_;
  app::frmMaindb form_{dialogs_, file::system()};
  ui::memory::Person person_{form_};
};

}  // namespace

int main() {
  Player player;
  for (std::string line; std::getline(std::cin, line);) {
    if (player::is_skipped(line)) continue;
    const auto event = player::parse_event(line);
    if (!event) {
      std::cout.flush();
      std::cerr << "not understood: " << line << '\n';
      return 2;
    }
    player.play(*event);
    if (player.window().ended) {
      std::cout << "ended\n";
      return player.window().status;
    }
  }
  return 0;
}
