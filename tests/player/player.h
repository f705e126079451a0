// Plays what a person does in the window: here on the window without a toolkit, in derived classes in real widgets.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/frmMaindb.h"
#include "ui/memory/scripted_dialogs.h"

namespace player {

// What a person does in the window, one event a line:
//
//   load | state | close | cancel | answer Yes|No | choose PATH | select I | pick NAME I | type NAME TEXT | click NAME
//
// NAME is a control's, as in txtComp(3). I counts from 0.
struct Event {
  enum class Kind { Load, State, Close, Cancel, AnswerYes, AnswerNo, Choose, Select, Pick, Type, Click };
  Kind kind = Kind::Load;
  int control = -1;    // of Select, Pick, Type, Click
  int entry = 0;       // of Select, Pick
  std::string text{};  // of Choose, Type
};

// The control of this name; nothing when there is none.
std::optional<int> find_control(std::string_view name);

// Nothing for a line that is none of the above.
std::optional<Event> parse_event(const std::string& line);

enum class Outcome { Done, Hidden, NoEntry };

class Player {
 public:
  explicit Player(file::System& system) : form(dialogs, system) {
    dialogs.report = [this](const std::string& line) { told.push_back(line); };
  }
  virtual ~Player() = default;

  // On a hidden control, or with an index outside a list, nothing happens.
  Outcome play(const Event& event);
  // One that is written down, and must be possible.
  void play(const std::string& line);
  Outcome select(int entry) { return play({.kind = Event::Kind::Select, .control = app::lstReactions, .entry = entry}); }
  Outcome pick(int combo, int entry) { return play({.kind = Event::Kind::Pick, .control = combo, .entry = entry}); }
  Outcome type(int box, std::string text) {
    return play({.kind = Event::Kind::Type, .control = box, .text = std::move(text)});
  }
  Outcome click(int button) { return play({.kind = Event::Kind::Click, .control = button}); }
  // Of a line that is no such event; false when it is none of this player's own either.
  virtual bool play_other(const std::string&) { return false; }

  const std::string& text(int control) { return form.window()[control].text; }
  const ui::Control& reactions() { return form.window()[app::lstReactions]; }
  // The block "state" to "end": every control with what it shows, and every value of the window state.
  std::string state();

  std::vector<std::string> told;  // every box and dialog
  ui::memory::ScriptedDialogs dialogs;
  app::frmMaindb form;

 protected:
  virtual void do_load() { form.load(); }
  virtual void do_select(const Event& event);
  virtual void do_pick(const Event& event);
  virtual void do_type(const Event& event) { form.window()[event.control].text = event.text; }
  virtual void do_click(const Event& event) { form.click(event.control); }
  virtual void do_close() { form.window().ended = true; }
  virtual void after() {}  // each of these
};

// Plays one event a line of standard input, in the current folder, and writes what the window shows and asks:
//
//   box [TITLE] ICON BUTTONS [PROMPT]   dialog FORM [FILTER]   hidden NAME   no entry I   state ... end   ended
//
// A line that is empty or begins with # is skipped. With `echo` first the state of the window as it is made, and each event
// before it is played, as "> EVENT". Gives the exit status: 0, also after `ended`; 1 when start-up failed; 2 for a line that
// it does not understand.
int play_script(Player& player, bool echo);

}  // namespace player
