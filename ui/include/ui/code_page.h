// The code page of all texts, Windows-1252, against Unicode. Only a toolkit's edge converts.
#pragma once

#include <string>
#include <string_view>

namespace ui {

std::u16string to_unicode(std::string_view bytes);

// Characters that the code page lacks, and line ends, are left out.
std::string from_unicode(std::u16string_view text);

// A path, or a message that names one: UTF-8, as the system's file names are, and every byte that is none by the code page.
std::u16string path_to_unicode(std::string_view bytes);

}  // namespace ui
