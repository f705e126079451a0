// Finds entries of a list by their first letters, by the time at which the letters were typed, not at which a slow program
// comes to them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

class TypeAhead {
 public:
  // The entry that a letter typed at this time (in milliseconds) leads to from the current one, -1 being none; -1 when no
  // entry begins so. Upper and lower case are the same; the same letter again leads to the next entry that begins with it.
  int find(const std::vector<std::string>& entries, int current, std::string_view letter, std::uint64_t time) {
    if (letter.empty()) return -1;  // the code page lacks it
    if (time - last_ > kPause) typed_.clear();
    last_ = time;
    typed_ += letter;
    const bool one = typed_.find_first_not_of(typed_.front()) == std::string::npos;
    const std::string_view wanted = one ? std::string_view(typed_).substr(0, 1) : typed_;
    const std::size_t count = entries.size(), first = static_cast<std::size_t>(one ? current + 1 : std::max(current, 0));
    for (std::size_t i = 0; i < count; ++i)
      if (std::ranges::equal(entries[(first + i) % count].substr(0, wanted.size()), wanted, {}, lower, lower))
        return static_cast<int>((first + i) % count);
    return -1;
  }

 private:
  static constexpr std::uint64_t kPause = 1000;  // milliseconds, after which a letter begins anew
  static char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

  std::string typed_;
  std::uint64_t last_ = 0;
};

}  // namespace ui
