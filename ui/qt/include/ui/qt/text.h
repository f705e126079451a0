// The edge between the program's bytes and the toolkit's text.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "text/code_page.h"

namespace ui::qt {

inline QString from_bytes(std::string_view bytes) { return QString::fromStdU16String(text::to_unicode(bytes)); }
inline QString from_path(std::string_view bytes) { return QString::fromStdU16String(text::path_to_unicode(bytes)); }
inline std::string to_bytes(const QString& text) { return text::from_unicode(text.toStdU16String()); }

}  // namespace ui::qt
