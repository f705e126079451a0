#include "player/script.h"

#include <charconv>
#include <string_view>
#include <system_error>

#include "app/controls.h"

namespace player {
namespace {

// Cuts the text before the first blank off `rest`.
std::string cut_word(std::string& rest) {
  const auto blank = rest.find(' ');
  std::string word = rest.substr(0, blank);
  rest = blank == std::string::npos ? "" : rest.substr(blank + 1);
  return word;
}

bool parse_entry(const std::string& text, int& entry) {
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), entry);
  return error == std::errc() && stop == text.data() + text.size();
}

bool has_kind(int control, std::initializer_list<ui::Kind> kinds) {
  for (const ui::Kind kind : kinds)
    if (app::window_def().controls[static_cast<std::size_t>(control)].kind == kind) return true;
  return false;
}

std::optional<Event> parse_control_event(Event::Kind kind, std::string rest, std::initializer_list<ui::Kind> kinds) {
  const auto control = find_control(cut_word(rest));
  if (!control || !has_kind(*control, kinds)) return std::nullopt;
  Event event{.kind = kind, .control = *control, .text = rest};
  if (kind == Event::Kind::Pick && !parse_entry(rest, event.entry)) return std::nullopt;
  if (kind == Event::Kind::Click && !rest.empty()) return std::nullopt;
  return event;
}

}  // namespace

std::optional<int> find_control(std::string_view name) {
  const auto controls = app::window_def().controls;
  for (std::size_t i = 0; i < controls.size(); ++i)
    if (controls[i].name == name) return static_cast<int>(i);
  return std::nullopt;
}

std::optional<Event> parse_event(const std::string& line) {
  using Kind = Event::Kind;
  if (line == "load") return Event{.kind = Kind::Load};
  if (line == "state") return Event{.kind = Kind::State};
  if (line == "close") return Event{.kind = Kind::Close};
  if (line == "cancel") return Event{.kind = Kind::Cancel};
  if (line == "answer Yes") return Event{.kind = Kind::AnswerYes};
  if (line == "answer No") return Event{.kind = Kind::AnswerNo};
  std::string rest = line;
  const std::string word = cut_word(rest);
  if (word == "choose" && !rest.empty()) return Event{.kind = Kind::Choose, .text = rest};
  if (word == "select") {
    Event event{.kind = Kind::Select, .control = app::lstReactions};
    return parse_entry(rest, event.entry) ? std::optional(event) : std::nullopt;
  }
  if (word == "pick") return parse_control_event(Kind::Pick, rest, {ui::Kind::ComboBox});
  if (word == "type") return parse_control_event(Kind::Type, rest, {ui::Kind::TextBox, ui::Kind::ComboBox});
  if (word == "click") return parse_control_event(Kind::Click, rest, {ui::Kind::Button, ui::Kind::MenuItem});
  return std::nullopt;
}

}  // namespace player
