// Message boxes and file dialogs: the system's own.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "ui/backend.h"

namespace ui::win32 {

class Win32Dialogs final : public Dialogs {
 public:
  Answer message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) override;
  std::optional<std::string> choose_file(const FileRequest& request) override;

  HWND parent = nullptr;               // the window over which they open
  std::function<void()> push = [] {};  // brings it up to date first
};

}  // namespace ui::win32
