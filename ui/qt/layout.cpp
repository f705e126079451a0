#include "ui/qt/layout.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "ui/qt/widgets.h"

namespace ui::qt {
namespace {

constexpr double kRegularPoints = 8.25;
constexpr double kTwipsPerPixel = 15;                // at 96 dots an inch
constexpr double kRowPixels = 240 / kTwipsPerPixel;  // from one component row to the next
constexpr double kRowMargin = 6;                     // pixels above and below the text of a row
constexpr double kButtonMargin = 18;                 // pixels beside the text of a button

bool is_box(const ControlDef& control) {
  return control.kind == Kind::TextBox || control.kind == Kind::ComboBox || control.kind == Kind::ListBox;
}

// The boxes of neighbouring rows overlap by a few twips: each ends where the next one begins.
Place seen_place(const ControlDef& control, std::span<const ControlDef> controls) {
  Place place = control.place;
  if (control.kind != Kind::TextBox) return place;
  for (const ControlDef& other : controls) {
    const bool beside = other.place.left >= place.left + place.width || other.place.left + other.place.width <= place.left;
    if (!is_box(other) || beside || other.place.top <= place.top) continue;
    place.height = std::min(place.height, other.place.top - place.top + static_cast<int>(kTwipsPerPixel));
  }
  return place;
}

}  // namespace

Layout::Layout(const WindowDef& def, const QFont& desktop_font, const QSize& available)
    : def_(def),
      desktop_font_(desktop_font),
      base_pixels_(QFontInfo(desktop_font).pixelSize()) {
  double across = 1;
  for (const ControlDef& control : def.controls) {
    places_.push_back(seen_place(control, def.controls));
    const int width = std::min(control.place.width, def.width - control.place.left);
    if (width > 0) across = std::max(across, width_needed(control) / (width / kTwipsPerPixel));
  }
  const double down = std::max(1., (QFontMetricsF(scaled_font({}, 1)).height() + kRowMargin) / kRowPixels);
  const double width = def.width / kTwipsPerPixel * across, height = def.height / kTwipsPerPixel * down;
  const double fitting = std::min({1., available.width() / width, available.height() / height});
  base_pixels_ *= fitting;
  start_size_ = QSize(static_cast<int>(std::ceil(width * fitting)), static_cast<int>(std::ceil(height * fitting)));
}

double Layout::width_needed(const ControlDef& control) const {
  const bool wraps = control.place.height > 400;  // more than one line
  if ((control.kind != Kind::Label && control.kind != Kind::Button) || wraps) return 0;
  const QString caption = QString::fromLatin1(control.caption.data(), static_cast<qsizetype>(control.caption.size()));
  const double text = QFontMetricsF(scaled_font(control.font, 1)).horizontalAdvance(caption);
  return text == 0 ? 0 : text + (control.kind == Kind::Button ? kButtonMargin : kLabelIndent + 1);
}

QFont Layout::scaled_font(const Font& font, double factor) const {
  QFont scaled = desktop_font_;
  scaled.setPixelSize(std::max(1, static_cast<int>(base_pixels_ * font.points / kRegularPoints * factor)));
  scaled.setBold(font.bold);
  scaled.setItalic(font.italic);
  return scaled;
}

QRect Layout::place(int control, const QSize& size) const {
  const Place& place = places_[static_cast<std::size_t>(control)];
  const double across = static_cast<double>(size.width()) / def_.width,
               down = static_cast<double>(size.height()) / def_.height;
  const QPoint corner(qRound(place.left * across), qRound(place.top * down));
  const QPoint opposite(qRound((place.left + place.width) * across), qRound((place.top + place.height) * down));
  return {corner, QSize(opposite.x() - corner.x(), std::max(1, opposite.y() - corner.y()))};
}

QFont Layout::font(int control, const QSize& size) const {
  return scaled_font(def_.controls[static_cast<std::size_t>(control)].font, growth(size));
}

double Layout::growth(const QSize& size) const {
  return std::min(static_cast<double>(size.width()) / start_size_.width(),
                  static_cast<double>(size.height()) / start_size_.height());
}

}  // namespace ui::qt
