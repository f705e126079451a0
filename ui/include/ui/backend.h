// What each toolkit's folder defines: the dialogs, and the program's run. The program links exactly one of them.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ui/window.h"

namespace ui {

enum class Icon { Critical, Question };
enum class Buttons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

struct FileRequest {
  enum class Form { Open, Save };
  Form form = Form::Open;
  // Descriptions and patterns in turn, with bars between: "BLM parameter files (*.BLI)|*.BLI". Patterns match upper and
  // lower case.
  std::string_view filter{};
  std::string folder{};  // where the dialog begins
  // Of a file that will be written: a name that the user types without an extension gets this one, and an existing file is
  // replaced only when the user says so. Empty: nothing will be written, and any name will do.
  std::string_view extension{};
};

// The program's only calls outward while a handler runs.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Closing a question by other means than its buttons answers it No.
  virtual Answer message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) = 0;
  // The full path that was chosen, or nothing when the dialog was cancelled.
  virtual std::optional<std::string> choose_file(const FileRequest& request) = 0;
};

// Shows the form in a real window until it ends; gives the program's exit status. Where there is no display: a line on
// standard error and status 1. `program` is the name that it was started by.
int run(char* program, const std::function<std::unique_ptr<Form>(Dialogs&)>& make_form);

// Says something in a window of its own, before or without run(), and on standard error in any case; only in ui/qt. Where
// there is no display, the program ends with status 1.
void tell(char* program, std::string_view text, std::string_view title);

}  // namespace ui
