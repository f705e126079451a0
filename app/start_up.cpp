#include "app/start_up.h"

#include "db/field_reader.h"

namespace app {

std::string working_folder(std::string_view current_folder) {
  if (current_folder == R"(C:\Program\Microsoft Visual Studio\VB98)" ||
      current_folder == R"(C:\Program Files\Microsoft Visual Studio\VB98)")
    return R"(c:\Program Files\kelmar)";
  return std::string(current_folder);
}

std::string first_field(file::System& system, const std::string& path) {
  db::FieldReader reader(system, path);
  db::Field field;
  try {
    if (reader.next(field)) return std::string(field.text);
  } catch (const db::FieldError& error) {
    throw file::Error(file::named(path) + ": " + error.what() + ".");
  }
  throw file::Error(file::named(path) + " is empty.");
}

}  // namespace app
