// Events and states as lines, on a form without a window.
#include "player/player.h"

#include <algorithm>
#include <charconv>
#include <iostream>
#include <stdexcept>
#include <system_error>

#include "app/controls.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#endif

namespace player {
namespace {

enum class Rest { Nothing, Entry, Text, SomeText };

// What a line begins with, the kinds of control whose name follows, and what follows that.
const struct {
  std::string begin;
  Event::Kind kind;
  Rest rest = Rest::Nothing;
  std::vector<ui::Kind> controls{};
} kForms[] = {{"load", Event::Kind::Load},
              {"state", Event::Kind::State},
              {"close", Event::Kind::Close},
              {"cancel", Event::Kind::Cancel},
              {"answer Yes", Event::Kind::AnswerYes},
              {"answer No", Event::Kind::AnswerNo},
              {"choose ", Event::Kind::Choose, Rest::SomeText},
              {"select ", Event::Kind::Select, Rest::Entry},
              {"pick ", Event::Kind::Pick, Rest::Entry, {ui::Kind::ComboBox}},
              {"type ", Event::Kind::Type, Rest::Text, {ui::Kind::TextBox, ui::Kind::ComboBox}},
              {"click ", Event::Kind::Click, Rest::Nothing, {ui::Kind::Button, ui::Kind::MenuItem}}};

const ui::ControlDef& definition(int control) { return app::window_def().controls[static_cast<std::size_t>(control)]; }

bool parse_rest(Rest form, const std::string& text, Event& event) {
  if (form == Rest::Nothing) return text.empty();
  if (form != Rest::Entry) {
    event.text = text;
    return form == Rest::Text || !text.empty();
  }
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, event.entry);
  return error == std::errc() && stop == end;
}

}  // namespace

std::optional<int> find_control(std::string_view name) {
  const auto controls = app::window_def().controls;
  const auto found = std::ranges::find(controls, name, &ui::ControlDef::name);
  return found == controls.end() ? std::nullopt : std::optional(static_cast<int>(found - controls.begin()));
}

std::optional<Event> parse_event(const std::string& line) {
  const auto form = std::ranges::find_if(kForms, [&](const auto& f) { return line.starts_with(f.begin); });
  if (form == std::end(kForms)) return std::nullopt;
  Event event{.kind = form->kind};
  std::string rest = line.substr(form->begin.size());
  if (event.kind == Event::Kind::Select) event.control = app::lstReactions;
  if (!form->controls.empty()) {
    const std::size_t blank = std::min(rest.find(' '), rest.size());
    const auto control = find_control(rest.substr(0, blank));
    if (!control || std::ranges::count(form->controls, definition(*control).kind) == 0) return std::nullopt;
    event.control = *control;
    rest.erase(0, blank + 1);
  }
  return parse_rest(form->rest, rest, event) ? std::optional(event) : std::nullopt;
}

void Player::play(const std::string& line) {
  const auto event = parse_event(line);
  if (!event || play(*event) != Outcome::Done) throw std::logic_error("nobody can do this here: " + line);
}

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
    case Kind::Close: do_close(); break;
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

std::string Player::state() {
  std::string block = "state\n";
  const auto text = [](std::string_view value) { return " [" + std::string(value) + "]"; };
  const auto flag = [](bool value) { return value ? " true" : " false"; };
  for (int i = 0; i < app::kControls; ++i) {
    const ui::ControlDef& def = definition(i);
    const ui::Control& control = form.window()[i];
    if (def.kind == ui::Kind::Line || def.kind == ui::Kind::MenuItem) continue;
    const bool list = def.kind == ui::Kind::ListBox;
    block += def.name + (control.shown ? " shown" : " hidden") + text(list ? control.selected_text() : control.text);
    if (list || def.kind == ui::Kind::ComboBox) block += " " + std::to_string(control.entries.size());
    block += "\n";
    for (const std::string& entry : control.entries) block += " " + text(entry) + "\n";
  }
  const app::frmMaindb::State& state = form.state();
  const db::Database& open = state.open;
  return block + "compdb" + text(open.compdb) + "\ndbname" + text(open.path) + "\nblifile" + flag(open.blifile()) +
         "\ncdbfile" + flag(open.cdbfile()) + "\nisomodel" + text(open.isomodel) + "\nisoselect" + text(open.isoselect) +
         "\nmbfields" + flag(open.mbfields) + "\nchangedone" + text(state.changedone) + "\nsuggestrun" +
         flag(state.suggestrun) + "\ncompslot " + std::to_string(state.compslot) + "\nend\n";
}

int play_script(Player& player, bool echo) {
#ifdef _WIN32  // a line end is what is written, and 0x1a no end of the script
  ::_setmode(::_fileno(stdin), _O_BINARY);
  ::_setmode(::_fileno(stdout), _O_BINARY);
#endif
  player.dialogs.report = [told = player.dialogs.report](const std::string& line) {
    std::cout << line << '\n';
    told(line);
  };
  if (echo) std::cout << player.state();
  for (std::string line; std::getline(std::cin, line);) {
    if (line.empty() || line.front() == '#') continue;
    if (echo) std::cout << "> " << line << '\n';
    const auto event = parse_event(line);
    if (!event && player.play_other(line)) continue;
    if (!event) {
      std::cout.flush();
      std::cerr << "not understood: " << line << '\n';
      return 2;
    }
    const Outcome outcome = player.play(*event);
    if (outcome == Outcome::Hidden) std::cout << "hidden " << definition(event->control).name << '\n';
    if (outcome == Outcome::NoEntry) std::cout << "no entry " << event->entry << '\n';
    if (event->kind == Event::Kind::State) std::cout << player.state();
    if (!player.form.window().ended) continue;
    std::cout << "ended\n";
    return player.form.window().status;
  }
  return 0;
}

}  // namespace player
