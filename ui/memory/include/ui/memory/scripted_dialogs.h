// The dialogs of a window without a toolkit: what the program asks is answered from queues.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "ui/dialogs.h"

namespace ui::memory {

// Answers questions and file dialogs from queues: an unexpected question is answered No, an unexpected file dialog
// cancelled. Tells of everything asked in one line each:
// "box [TITLE] ICON BUTTONS [PROMPT]", "dialog FORM [FILTER]".
class ScriptedDialogs final : public Dialogs {
 public:
  std::deque<Answer> answers;
  std::deque<std::optional<std::string>> choices;
  std::function<void(const std::string& line)> told;

  Answer message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) override;
  std::optional<std::string> choose_file(const FileRequest& request) override;
};

}  // namespace ui::memory
