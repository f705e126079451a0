// The one kind of error of the program: an exception whose text is meant for the user and says what failed, where, why
// and what to do now. The end of a file is never an error.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace file {

class Error : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The program declines something that it could attempt, because data would be lost or become unreadable. It is shown also
// where failures of the file system are passed over in silence.
class Refusal : public Error {
  using Error::Error;
};

// A name, path or text for a message: one of more than 80 characters is shortened in the middle, and a line end is shown as
// a blank, so that no message grows beyond the screen.
std::string named(std::string_view name);

}  // namespace file
