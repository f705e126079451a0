#include "ui/qt/text.h"

#include "ui/code_page.h"

namespace ui::qt {

QString from_bytes(std::string_view bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char byte : bytes) text += QChar(to_unicode(byte));
  return text;
}

std::string to_bytes(const QString& text, int* lost) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar character : text) {
    const auto byte = from_unicode(character.unicode());
    if (byte && *byte != '\r' && *byte != '\n')
      bytes += *byte;
    else if (lost != nullptr && !character.isLowSurrogate())
      ++*lost;
  }
  return bytes;
}

QString from_path(std::string_view bytes) { return QString::fromStdU16String(path_to_unicode(bytes)); }

QString plain_tooltip(const QString& text) {
  return text.isEmpty() ? QString() : "<span>" + text.toHtmlEscaped() + "</span>";
}

}  // namespace ui::qt
