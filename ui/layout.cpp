// From twips to pixels.
#include "ui/layout.h"

#include <cmath>
#include <utility>

namespace ui {
namespace {

constexpr double kTwipsPerPixel = 15;  // at 96 dots an inch
constexpr double kRowMargin = 6;       // pixels above and below the text of a row
constexpr double kButtonMargin = 18;   // pixels beside the text of a button
constexpr double kLabelMargin = 4;
constexpr int kTouching = 45;  // twips by which a box may overlap a label without covering it

bool covers(const Place& box, const Place& label) {
  return box.left < label.left + label.width && label.left < box.left + box.width &&
         box.top + kTouching < label.top + label.height && label.top + kTouching < box.top + box.height;
}

// Leaves of the lower place what does not lie beneath the upper one, as much as it can.
void cut(Place& lower, const Place& upper) {
  const int left = upper.left + upper.width - lower.left, right = lower.left + lower.width - upper.left;
  const int top = upper.top + upper.height - lower.top, bottom = lower.top + lower.height - upper.top;
  const int least = std::min({left, right, top, bottom});
  if (least <= 0) return;
  if (least == left || least == right) lower.width -= least;
  if (least == top || least == bottom) lower.height -= least;
  if (least == left) lower.left += least;
  if (least == top) lower.top += least;
}

int scaled(int twips, double factor) { return static_cast<int>(std::lround(twips * factor)); }

}  // namespace

Layout::Layout(const WindowDef& def, const TextWidth& text_width, double line_height, Size available) : def_(def) {
  double across = 1;
  for (const ControlDef& control : def.controls) {
    const bool button = control.kind == Kind::Button;
    if ((control.kind != Kind::Label && !button) || control.wraps || control.caption.empty()) continue;
    const double needed = text_width(control.font, control.caption) + (button ? kButtonMargin : kLabelMargin);
    across = std::max(across, needed / (std::min(control.place.width, def.width - control.place.left) / kTwipsPerPixel));
  }
  const double down = std::max(1., (line_height + kRowMargin) / (def.row / kTwipsPerPixel));
  const double width = def.width / kTwipsPerPixel * across, height = def.height / kTwipsPerPixel * down;
  fitting_ = std::min({1., available.width / width, available.height / height});
  start_ = {static_cast<int>(std::ceil(width * fitting_)), static_cast<int>(std::ceil(height * fitting_))};
}

Place Layout::place(int control, const Window& window, Size area) const {
  const ControlDef& def = def_.controls[static_cast<std::size_t>(control)];
  Place place = def.drawn.width > 0 ? def.drawn : def.place;
  for (std::size_t i = 0; i < def_.controls.size() && def.elsewhere.width > 0; ++i)
    if (def_.controls[i].kind == Kind::TextBox && window.controls[i].shown && covers(def_.controls[i].place, place))
      place = def.elsewhere;
  const double across = start_.width * growth(area) / def_.width, down = start_.height * growth(area) / def_.height;
  return {scaled(place.left, across), scaled(place.top, down), scaled(place.width, across),
          std::max(1, scaled(place.height, down))};
}

std::vector<Place> Layout::places(const Window& window, Size area) const {
  const int count = static_cast<int>(def_.controls.size());
  const auto is_seen = [&](int i) {
    return window[i].shown && def_.controls[static_cast<std::size_t>(i)].kind != Kind::MenuItem;
  };
  const auto height = [&](int i) {
    const Kind kind = def_.controls[static_cast<std::size_t>(i)].kind;
    return std::pair(kind != Kind::Label && kind != Kind::Line, i);
  };
  std::vector<Place> all;
  all.reserve(def_.controls.size());
  for (int i = 0; i < count; ++i) all.push_back(place(i, window, area));
  for (int upper = 0; upper < count; ++upper)
    for (int lower = 0; lower < count; ++lower)
      if (height(lower) < height(upper) && is_seen(lower) && is_seen(upper))
        cut(all[static_cast<std::size_t>(lower)], all[static_cast<std::size_t>(upper)]);
  return all;
}

}  // namespace ui
