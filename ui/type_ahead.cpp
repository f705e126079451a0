#include "ui/type_ahead.h"

#include <algorithm>

namespace ui {
namespace {

constexpr std::uint64_t kPause = 1000;  // milliseconds, after which a letter begins anew

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

int TypeAhead::find(const std::vector<std::string>& entries, int current, std::string_view letter, std::uint64_t time) {
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

}  // namespace ui
