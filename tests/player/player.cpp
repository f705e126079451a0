#include "player/player.h"

#include <iostream>

namespace player {

Outcome Player::play(const Event& event) {
  using Kind = Event::Kind;
  const auto& controls = form.window().controls;
  if (event.control >= 0 && !controls[static_cast<std::size_t>(event.control)].shown) return Outcome::Hidden;
  if (event.kind == Kind::Select || event.kind == Kind::Pick) {
    const auto& entries = controls[static_cast<std::size_t>(event.control)].entries;
    if (event.entry < 0 || static_cast<std::size_t>(event.entry) >= entries.size()) return Outcome::NoEntry;
  }
  switch (event.kind) {
    case Kind::Load: do_load(); break;
    case Kind::State: break;
    case Kind::Close: form.window().ended = true; break;
    case Kind::Cancel: dialogs.choices.push_back(std::nullopt); break;
    case Kind::AnswerYes: dialogs.answers.push_back(ui::Answer::Yes); break;
    case Kind::AnswerNo: dialogs.answers.push_back(ui::Answer::No); break;
    case Kind::Choose: dialogs.choices.push_back(event.text); break;
    case Kind::Select: do_select(event); break;
    case Kind::Pick: do_pick(event); break;
    case Kind::Type: do_type(event); break;
    case Kind::Click: do_click(event); break;
  }
  after();
  return Outcome::Done;
}

void Player::do_select(const Event& event) {
  form.window()[event.control].selected = event.entry;
  form.click(event.control);
}

void Player::do_pick(const Event& event) {
  ui::Control& combo = form.window()[event.control];
  combo.text = combo.entries[static_cast<std::size_t>(event.entry)];
  form.click(event.control);
}

void Player::do_type(const Event& event) { form.window()[event.control].text = event.text; }
void Player::do_click(const Event& event) { form.click(event.control); }

std::string Player::state() {
  std::string block = "state\n";
  const auto text = [&block](const std::string& name, std::string_view value) {
    block.append(name).append(" [").append(value).append("]");
  };
  const auto flag = [&block](const char* name, bool value) { block.append(name).append(value ? " true\n" : " false\n"); };
  const auto controls = app::window_def().controls;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const ui::ControlDef& def = controls[i];
    const ui::Control& control = form.window()[static_cast<int>(i)];
    if (def.kind == ui::Kind::Line || def.kind == ui::Kind::MenuItem) continue;
    const bool list = def.kind == ui::Kind::ListBox;
    text(def.name + (control.shown ? " shown" : " hidden"), list ? control.selected_text() : std::string_view(control.text));
    if (list || def.kind == ui::Kind::ComboBox) block += " " + std::to_string(control.entries.size());
    block += "\n";
    for (const std::string& entry : control.entries) block += "  [" + entry + "]\n";
  }
  const app::frmMaindb::State& state = form.state();
  text("compdb", state.open.compdb);
  text("\ndbname", state.open.path);
  flag("\nblifile", state.open.blifile());
  flag("cdbfile", state.open.cdbfile());
  text("isomodel", state.open.isomodel);
  text("\nisoselect", state.open.isoselect);
  flag("\nmbfields", state.open.mbfields);
  text("changedone", state.changedone);
  flag("\nsuggestrun", state.suggestrun);
  return block + "compslot " + std::to_string(state.compslot) + "\nend\n";
}

int play_script(Player& player, bool echo) {
  player.dialogs.told = [](const std::string& line) { std::cout << line << '\n'; };
  if (echo) std::cout << player.state();
  for (std::string line; std::getline(std::cin, line);) {
    if (line.empty() || line.front() == '#') continue;
    const auto event = parse_event(line);
    if (!event) {
      std::cout.flush();
      std::cerr << "not understood: " << line << '\n';
      return 2;
    }
    if (echo) std::cout << "> " << line << '\n';
    const Outcome outcome = player.play(*event);
    if (outcome == Outcome::Hidden)
      std::cout << "hidden " << app::window_def().controls[static_cast<std::size_t>(event->control)].name << '\n';
    if (outcome == Outcome::NoEntry) std::cout << "no entry " << event->entry << '\n';
    if (event->kind == Event::Kind::State) std::cout << player.state();
    if (!player.form.window().ended) continue;
    std::cout << "ended\n";
    return player.form.window().status;
  }
  return 0;
}

}  // namespace player
