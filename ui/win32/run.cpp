// Windows' part of a program's start.
#include <objbase.h>

#include "ui/backend.h"
#include "ui/win32/dialogs.h"
#include "ui/win32/main_window.h"

namespace ui {

int run(char*, const std::function<std::unique_ptr<Form>(Dialogs&)>& make_form) {
  ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);  // until the end of the process
  win32::Win32Dialogs dialogs;
  const auto form = make_form(dialogs);
  win32::MainWindow window(*form);
  form->load();
  if (form->window().ended) return form->window().status;
  dialogs.parent = window.handle();
  dialogs.push = [&window] { window.push(); };
  window.show();
  while (window.take_message()) continue;
  return form->window().status;
}

}  // namespace ui
