#include "ui/memory/scripted_dialogs.h"

#include <string_view>
#include <utility>

namespace ui::memory {
namespace {

template <typename Queue>
std::optional<typename Queue::value_type> take(Queue& queue) {
  if (queue.empty()) return std::nullopt;
  auto value = std::move(queue.front());
  queue.pop_front();
  return value;
}

}  // namespace

Answer ScriptedDialogs::message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) {
  const bool question = buttons == Buttons::YesNo;
  told("box [" + std::string(title) + "] " + (icon == Icon::Critical ? "critical" : "question") + " " +
       (question ? "YesNo" : "OK") + " [" + std::string(prompt) + "]");
  return question ? take(answers).value_or(Answer::No) : Answer::Ok;
}

std::optional<std::string> ScriptedDialogs::choose_file(const FileRequest& request) {
  told(std::string("dialog ") + (request.form == FileRequest::Form::Open ? "open" : "save") + " [" +
       std::string(request.filter) + "]");
  return take(choices).value_or(std::nullopt);
}

}  // namespace ui::memory
