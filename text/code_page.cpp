// The code page as a table, and UTF-8 by hand, as the standard library has neither.
#include "text/code_page.h"

#include <algorithm>
#include <bit>

namespace text {
namespace {

// The characters of the bytes 80 to 9F hexadecimal; all other bytes are their own code points. The five bytes that the
// code page leaves undefined (81, 8D, 8F, 90, 9D) become the control characters of that number, so that they survive.
constexpr char16_t kCodePage[] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                  0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                  0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t to_unicode(unsigned char byte) { return byte >= 0x80 && byte <= 0x9F ? kCodePage[byte - 0x80] : byte; }

struct Character {
  char32_t code;
  std::size_t size;  // in bytes
};

// The first character of UTF-8, and where there is none that of the first byte.
Character first_of(std::string_view bytes) {
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};  // by size: a longer form of a character is none
  const auto lead = static_cast<unsigned char>(bytes.front());
  const auto size = static_cast<std::size_t>(std::countl_one(lead));
  char32_t code = lead & (0x7Fu >> size);
  std::size_t read = 1;
  for (; read < std::min(size, bytes.size()) && (bytes[read] & 0xC0) == 0x80; ++read)
    code = code << 6 | (bytes[read] & 0x3F);
  if (size < 2 || size > 4 || read < size || code < kLeast[size] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
    return {to_unicode(lead), 1};
  return {code, size};
}

}  // namespace

std::u16string to_unicode(std::string_view bytes) {
  std::u16string text;
  for (const char byte : bytes) text += to_unicode(static_cast<unsigned char>(byte));
  return text;
}

std::string from_unicode(std::u16string_view text) {
  std::string bytes;
  for (const char16_t character : text)
    for (int byte = 0; byte <= 0xFF; ++byte)
      if (to_unicode(static_cast<unsigned char>(byte)) == character && byte != '\r' && byte != '\n')
        bytes += static_cast<char>(byte);
  return bytes;
}

std::u16string path_to_unicode(std::string_view bytes) {
  std::u16string text;
  while (!bytes.empty()) {
    const auto [code, size] = first_of(bytes);
    if (code < 0x10000)
      text += static_cast<char16_t>(code);
    else
      text += {static_cast<char16_t>(0xD7C0 + (code >> 10)), static_cast<char16_t>(0xDC00 + (code & 0x3FF))};
    bytes.remove_prefix(size);
  }
  return text;
}

std::string to_utf8(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const auto [code, size] = first_of(bytes);
    if (code < ' ' || (code >= 0x7F && code < 0xA0)) {
      text += '?';
    } else if (size > 1 || code < 0x80) {
      text += bytes.substr(0, size);
    } else {  // of the code page, none of whose characters takes more than three bytes
      if (code >= 0x800) text += static_cast<char>(0xE0 | code >> 12);
      text += static_cast<char>(code >= 0x800 ? 0x80 | (code >> 6 & 0x3F) : 0xC0 | code >> 6);
      text += static_cast<char>(0x80 | (code & 0x3F));
    }
    bytes.remove_prefix(size);
  }
  return text;
}

}  // namespace text
