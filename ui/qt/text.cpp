#include "ui/qt/text.h"

#include "ui/code_page.h"

namespace ui::qt {

QString from_bytes(std::string_view bytes) { return QString::fromStdU16String(to_unicode(bytes)); }

std::string to_bytes(const QString& text) { return from_unicode(text.toStdU16String()); }

QString from_path(std::string_view bytes) { return QString::fromStdU16String(path_to_unicode(bytes)); }

QString plain_tooltip(const QString& text) {
  return text.isEmpty() ? QString() : "<span>" + text.toHtmlEscaped() + "</span>";
}

}  // namespace ui::qt
