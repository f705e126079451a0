// The code page of all texts, Windows-1252, against Unicode. Only where texts leave the program they are converted.
#pragma once

#include <string>
#include <string_view>

namespace text {

std::u16string to_unicode(std::string_view bytes);

// Characters that the code page lacks, and line ends, are left out.
std::string from_unicode(std::u16string_view text);

// A path, or a message that names one: UTF-8, as the system's file names are, and every byte that is none by the code page.
std::u16string path_to_unicode(std::string_view bytes);
// The same as UTF-8 for a terminal, which obeys no control character in it: each is shown as a question mark.
std::string to_utf8(std::string_view bytes);

}  // namespace text
