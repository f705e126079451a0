#include "player/player.h"

#include <optional>
#include <utility>

#include "player/transcript.h"

namespace player {

using ui::memory::Outcome;

Player::Player(file::System& system, std::function<void(const std::string&)> say)
    : say_(std::move(say)),
      form_(dialogs_, system) {
  dialogs_.told = say_;
}

void Player::play(const Event& event) {
  switch (event.kind) {
    case Event::Kind::Load: return form_.load();
    case Event::Kind::State: return;
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

std::string Player::state() { return state_block(form_.window(), form_.state()); }

void Player::tell(const Event& event, Outcome outcome) {
  if (outcome == Outcome::Hidden) say_("hidden " + app::window_def().controls[static_cast<std::size_t>(event.control)].name);
  if (outcome == Outcome::NoEntry) say_("no entry " + std::to_string(event.entry));
}

}  // namespace player
