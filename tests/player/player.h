// Plays what a person does in the window: here on the window without a toolkit, in derived classes in real widgets.
#pragma once

#include <string>

#include "app/frmMaindb.h"
#include "player/script.h"
#include "ui/memory/scripted_dialogs.h"

namespace player {

enum class Outcome { Done, Hidden, NoEntry };

class Player {
 public:
  explicit Player(file::System& system) : form(dialogs, system) {}
  virtual ~Player() = default;

  // What a person can do. On a hidden control, or with an index outside a list, nothing happens.
  Outcome play(const Event& event);
  Outcome select(int entry) { return play({.kind = Event::Kind::Select, .control = app::lstReactions, .entry = entry}); }
  Outcome pick(int combo, int entry) { return play({.kind = Event::Kind::Pick, .control = combo, .entry = entry}); }
  Outcome type(int box, std::string text) {
    return play({.kind = Event::Kind::Type, .control = box, .text = std::move(text)});
  }
  Outcome click(int button) { return play({.kind = Event::Kind::Click, .control = button}); }

  // The block "state" to "end": every control with what it shows, and every value of the window state.
  std::string state();

  ui::memory::ScriptedDialogs dialogs;
  app::frmMaindb form;

 protected:
  virtual void do_load() { form.load(); }
  virtual void do_select(const Event& event);
  virtual void do_pick(const Event& event);
  virtual void do_type(const Event& event);
  virtual void do_click(const Event& event);
  virtual void after() {}  // each of these
};

// Plays one event a line of standard input, in the current folder, and writes what the window shows and asks:
//
//   box [TITLE] ICON BUTTONS [PROMPT]   dialog FORM [FILTER]   hidden NAME   no entry I   state ... end   ended
//
// With `echo` first the state of the window as it is made, and each event before it is played, as "> EVENT". Gives the exit
// status: 0, also after `ended`; 1 when start-up failed; 2 for a line that it does not understand.
int play_script(Player& player, bool echo);

}  // namespace player
