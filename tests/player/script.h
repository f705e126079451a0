// The events of a recorded story: what a person does in the window, one event a line.
//
//   load | state | close | cancel | answer Yes|No | choose PATH | select I | pick NAME I | type NAME TEXT | click NAME
//
// A line that is empty or begins with # is skipped. NAME is a control's, as in txtComp(3). I counts from 0.
#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace player {

struct Event {
  enum class Kind { Load, State, Close, Cancel, AnswerYes, AnswerNo, Choose, Select, Pick, Type, Click };
  Kind kind = Kind::Load;
  int control = -1;    // of Select, Pick, Type, Click
  int entry = 0;       // of Select, Pick
  std::string text{};  // of Choose, Type
};

// The control of this name; nothing when there is none.
std::optional<int> find_control(std::string_view name);

// One line; nothing for a line that is none of the above.
std::optional<Event> parse_event(const std::string& line);

}  // namespace player
