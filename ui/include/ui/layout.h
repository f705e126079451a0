// Where the tabled places lie on a screen, whatever toolkit draws them. As with dialog units, the two directions have a
// scale of their own, so that every caption is whole in the desktop's font, whose letters may be wider than those for which
// the table was made. A larger window shows all of it larger, in the same proportions.
#pragma once

#include <algorithm>
#include <functional>
#include <string_view>
#include <vector>

#include "ui/window.h"

namespace ui {

struct Size {
  int width = 0, height = 0;  // in pixels
};

class Layout {
 public:
  // How the desktop's font comes out, in pixels, where a font of WindowDef::points has the desktop's usual size.
  using TextWidth = std::function<double(const Font&, std::string_view)>;
  // The window starts no larger than `available`.
  Layout(const WindowDef& def, const TextWidth& text_width, double line_height, Size available);

  Size start() const { return start_; }
  // For a client area of this size: how much larger or smaller fonts are than the desktop's.
  double font_factor(Size area) const { return fitting_ * growth(area); }
  // The same for a control's place, in pixels; `window` tells which boxes are shown.
  Place place(int control, const Window& window, Size area) const;
  // The same for all controls, for a toolkit whose widgets must not overlap: where a place lies over another, the lower one
  // is cut. Labels and lines lie below the rest, later controls above earlier ones.
  std::vector<Place> places(const Window& window, Size area) const;

 private:
  // Since the start.
  double growth(Size area) const { return std::min(1. * area.width / start_.width, 1. * area.height / start_.height); }

  const WindowDef& def_;
  double fitting_;
  Size start_;
};

}  // namespace ui
