// A window without a toolkit: what a person does to it comes as calls, and what the program asks is answered from queues.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "ui/dialogs.h"
#include "ui/window.h"

namespace ui::memory {

// Answers questions and file dialogs from queues: an unexpected question is answered No, an unexpected file dialog
// cancelled. Tells of everything asked in one line each:
// "box [TITLE] ICON BUTTONS [PROMPT]", "dialog FORM [FILTER]".
class ScriptedDialogs final : public Dialogs {
 public:
  std::deque<Answer> answers;
  std::deque<std::optional<std::string>> choices;
  std::function<void(const std::string& line)> told = [](const std::string&) {};

  Answer message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) override;
  std::optional<std::string> choose_file(const FileRequest& request) override;
};

enum class Outcome { Done, Hidden, NoEntry };

// What a person can do to a form. On a hidden control, or with an index outside a list, nothing happens.
class Person {
 public:
  explicit Person(Form& form) : form_(form) {}
  Outcome select(int list, int entry);
  Outcome pick(int combo, int entry);
  Outcome type(int box, std::string text);  // in place of the whole text
  Outcome click(int button);

 private:
  bool hidden(int control) const { return !form_.window()[control].shown; }
  bool has_entry(int control, int entry) const;

  Form& form_;
};

}  // namespace ui::memory
