#include "ui/memory/memory_window.h"

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

bool Person::has_entry(int control, int entry) const {
  return entry >= 0 && static_cast<std::size_t>(entry) < form_.window()[control].entries.size();
}

Outcome Person::select(int list, int entry) {
  if (hidden(list)) return Outcome::Hidden;
  if (!has_entry(list, entry)) return Outcome::NoEntry;
  form_.window()[list].selected = entry;
  form_.click(list);
  return Outcome::Done;
}

Outcome Person::pick(int combo, int entry) {
  if (hidden(combo)) return Outcome::Hidden;
  if (!has_entry(combo, entry)) return Outcome::NoEntry;
  Control& control = form_.window()[combo];
  control.text = control.entries[static_cast<std::size_t>(entry)];
  form_.click(combo);
  return Outcome::Done;
}

Outcome Person::type(int box, std::string text) {
  if (hidden(box)) return Outcome::Hidden;
  form_.window()[box].text = std::move(text);
  return Outcome::Done;
}

Outcome Person::click(int button) {
  if (hidden(button)) return Outcome::Hidden;
  form_.click(button);
  return Outcome::Done;
}

}  // namespace ui::memory
