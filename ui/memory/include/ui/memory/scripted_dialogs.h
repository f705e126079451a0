// The dialogs of a window without a toolkit: what the program asks is answered from queues.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "ui/backend.h"

namespace ui::memory {

// An unexpected question is answered No, an unexpected file dialog cancelled. Reports everything asked in one line each:
// "box [TITLE] ICON BUTTONS [PROMPT]", "dialog FORM [FILTER]".
class ScriptedDialogs final : public Dialogs {
 public:
  std::deque<Answer> answers;
  std::deque<std::optional<std::string>> choices;
  std::function<void(const std::string& line)> report;

  Answer message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) override {
    const bool question = buttons == Buttons::YesNo;
    report("box [" + std::string(title) + "] " + (icon == Icon::Critical ? "critical" : "question") +
           (question ? " YesNo [" : " OK [") + std::string(prompt) + "]");
    return question ? next(answers, Answer::No) : Answer::Ok;
  }
  std::optional<std::string> choose_file(const FileRequest& request) override {
    report((request.form == FileRequest::Form::Open ? "dialog open [" : "dialog save [") + std::string(request.filter) +
           "]");
    return next(choices, std::optional<std::string>());
  }

 private:
  template <typename Value>
  static Value next(std::deque<Value>& queue, Value otherwise) {
    if (queue.empty()) return otherwise;
    otherwise = std::move(queue.front());
    queue.pop_front();
    return otherwise;
  }
};

}  // namespace ui::memory
