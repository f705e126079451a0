// Where the tabled places lie on the screen. As with dialog units, the two directions have a scale of their own, so that the
// captions are whole in the desktop's font, whose letters may be wider than those for which the table was made.
#pragma once

#include <QFont>
#include <QRect>
#include <QSize>
#include <vector>

#include "ui/window.h"

namespace ui::qt {

class Layout {
 public:
  // Measures the captions of `def` in `desktop_font`. The window starts no larger than `available`.
  Layout(const WindowDef& def, const QFont& desktop_font, const QSize& available);

  QSize start_size() const { return start_size_; }

  // For a client area of this size: a control's place and font.
  QRect place(int control, const QSize& size) const;
  QFont font(int control, const QSize& size) const;
  QFont menu_font(const QSize& size) const { return scaled_font({}, growth(size)); }

 private:
  QFont scaled_font(const Font& font, double factor) const;
  double growth(const QSize& size) const;  // of texts, since the start
  double width_needed(const ControlDef& control) const;

  const WindowDef& def_;
  QFont desktop_font_;
  double base_pixels_;  // of the regular font at the start
  QSize start_size_;
  std::vector<Place> places_;  // in twips; of boxes that overlap the next row, only what is seen
};

}  // namespace ui::qt
