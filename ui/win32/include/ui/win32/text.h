// The edge between the program's bytes and the system's wide characters.
#pragma once

#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "text/code_page.h"

namespace ui::win32 {

// A zero byte, which would end a text here, is shown as the sign for it and comes back as a byte.
inline constexpr wchar_t kZero = 0x2400;

inline std::wstring from_unicode_text(std::u16string_view text) {
  std::wstring wide(text.begin(), text.end());
  std::ranges::replace(wide, L'\0', kZero);
  return wide;
}
inline std::wstring from_bytes(std::string_view bytes) { return from_unicode_text(text::to_unicode(bytes)); }
inline std::wstring from_path(std::string_view bytes) { return from_unicode_text(text::path_to_unicode(bytes)); }

inline std::string to_bytes(std::wstring_view text) {
  std::u16string plain(text.begin(), text.end());
  std::ranges::replace(plain, static_cast<char16_t>(kZero), u'\0');
  return text::from_unicode(plain);
}

// The text of a window: a label, box or button.
inline std::wstring text_of(HWND window) {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

}  // namespace ui::win32
