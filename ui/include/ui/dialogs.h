// The program's only calls outward while a handler runs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

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

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Closing a question by other means than its buttons answers it No.
  virtual Answer message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) = 0;
  // The full path that was chosen, or nothing when the dialog was cancelled.
  virtual std::optional<std::string> choose_file(const FileRequest& request) = 0;
};

}  // namespace ui
