// Finds entries of a list by their first letters, by the time at which the letters were typed, not at which a slow program
// comes to them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

class TypeAhead {
 public:
  // The entry that a letter typed at this time (in milliseconds) leads to from the current one, -1 being none; -1 when no
  // entry begins so. Upper and lower case are the same; the same letter again leads to the next entry that begins with it.
  int find(const std::vector<std::string>& entries, int current, std::string_view letter, std::uint64_t time);

 private:
  std::string typed_;
  std::uint64_t last_ = 0;
};

}  // namespace ui
