// The edge between the program's bytes and the toolkit's text.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace ui::qt {

QString from_bytes(std::string_view bytes);

// Characters that the code page lacks, and line ends, are left out.
std::string to_bytes(const QString& text);

// A path, or a message that names one.
QString from_path(std::string_view bytes);

// So that no markup in a file is taken for formatting.
QString plain_tooltip(const QString& text);

}  // namespace ui::qt
