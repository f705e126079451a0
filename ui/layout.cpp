#include "ui/layout.h"

#include <cmath>

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

}  // namespace ui
