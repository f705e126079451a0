// The code page of all texts, Windows-1252, against Unicode. Only a toolkit's edge converts.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace ui {

// The characters of the bytes 80 to 9F hexadecimal; all other bytes are their own code points. The five bytes that the
// code page leaves undefined (81, 8D, 8F, 90, 9D) become the control characters of that number, so that they survive.
inline constexpr std::array<char16_t, 32> kCodePage = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                       0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t to_unicode(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= 0x80 && code <= 0x9F ? kCodePage[code - 0x80u] : char16_t{code};
}

// Nothing for a character that the code page lacks.
constexpr std::optional<char> from_unicode(char16_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  for (std::size_t i = 0; i < kCodePage.size(); ++i)
    if (kCodePage[i] == character) return static_cast<char>(0x80 + i);
  return std::nullopt;
}

// A path, or a message that names one: UTF-8, as the system's file names are, and every byte that is none by the code page.
std::u16string path_to_unicode(std::string_view bytes);

}  // namespace ui
