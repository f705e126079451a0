// Message boxes and file dialogs: the desktop's own.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "ui/backend.h"

class QWidget;

namespace ui::qt {

class QtDialogs final : public Dialogs {
 public:
  // The window over which dialogs open, and a call that brings it up to date first.
  void attach_to(QWidget* parent, std::function<void()> push);

  Answer message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) override;
  std::optional<std::string> choose_file(const FileRequest& request) override;

 private:
  QWidget* parent_ = nullptr;
  std::function<void()> push_ = [] {};
};

}  // namespace ui::qt
