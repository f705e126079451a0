// Plays what a person does in the window, on the window without a toolkit.
#pragma once

#include <functional>
#include <string>

#include "app/frmMaindb.h"
#include "player/script.h"
#include "ui/memory/memory_window.h"

namespace player {

class Player {
 public:
  // `say` gets each line of the transcript but those of the state: box, dialog, hidden, no entry.
  Player(file::System& system, std::function<void(const std::string& line)> say);
  void play(const Event& event);
  // The block "state" to "end".
  std::string state();
  const ui::Window& window() { return form_.window(); }

 private:
  void tell(const Event& event, ui::memory::Outcome outcome);

  std::function<void(const std::string&)> say_;
  ui::memory::ScriptedDialogs dialogs_;
  app::frmMaindb form_;
  ui::memory::Person person_{form_};
};

}  // namespace player
