#include "ui/code_page.h"

namespace ui {
namespace {

// How many bytes make the UTF-8 character at the beginning, and which one it is; nothing for what is none.
struct Character {
  std::size_t size;
  char32_t code;
};
std::optional<Character> first_character(std::string_view bytes) {
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};  // by size: a longer form of a character is none
  const auto lead = static_cast<unsigned char>(bytes.front());
  const std::size_t size = lead < 0x80 ? 1 : lead < 0xC0 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF8 ? 4 : 0;
  if (size < 2 || bytes.size() < size) return std::nullopt;
  char32_t code = lead & (0x7Fu >> size);
  for (const char c : bytes.substr(1, size - 1)) {
    if ((c & 0xC0) != 0x80) return std::nullopt;
    code = code << 6 | (static_cast<unsigned char>(c) & 0x3Fu);
  }
  if (code < kLeast[size] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) return std::nullopt;
  return Character{size, code};
}

}  // namespace

std::u16string path_to_unicode(std::string_view bytes) {
  std::u16string text;
  while (!bytes.empty()) {
    const auto character = first_character(bytes).value_or(Character{1, to_unicode(bytes.front())});
    if (character.code < 0x10000) {
      text += static_cast<char16_t>(character.code);
    } else {
      text += static_cast<char16_t>(0xD7C0 + (character.code >> 10));
      text += static_cast<char16_t>(0xDC00 + (character.code & 0x3FF));
    }
    bytes.remove_prefix(character.size);
  }
  return text;
}

}  // namespace ui
