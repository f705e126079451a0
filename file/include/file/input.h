// How a failure is told, and reading a file a block at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "file/system.h"

namespace file {

// The one kind of error of the program: an exception whose text is meant for the user and says what failed, where, why and
// what to do now. The end of a file is never an error.
class Error : public std::runtime_error {
 public:
  // `where`: how many characters at the beginning of the text tell file and record, for which a caller may have other words.
  explicit Error(const std::string& text, std::size_t where = 0) : runtime_error(text), where_(where) {}
  bool tells_where() const { return where_ > 0; }
  // What comes after that, without the point at its end.
  std::string_view reason() const {
    const std::string_view text = what();
    return text.substr(where_, text.size() - where_ - 1);
  }

 private:
  std::size_t where_;
};

// The program declines something that it could attempt, because data would be lost or become unreadable. It is shown also
// where failures of the file system are passed over in silence.
class Refusal : public Error {
  using Error::Error;
};

// A name, path or text for a message: one of more than 80 characters is shortened in the middle, and a line end or a zero
// byte is shown as a blank, so that no message grows beyond the screen, or ends before its end.
std::string named(std::string_view name);

// Why a call failed, in the program's own words: the same on every system.
std::string reason(std::error_code error);

// Throws Error when there is an error: "cannot read x.mdb: Input/output error."
void require(std::error_code error, std::string_view what, const std::string& path);
std::string failure(std::string_view what, const std::string& path, std::error_code error);

// An open file, closed with the object.
class Input {
 public:
  // Throws Error when `path` is not a plain file that can be opened; messages call it `name`.
  Input(System& system, const std::string& path, const std::string& name);

  // Reads at most `size` bytes from `offset` on, and none only at the end of the file. Throws Error; `what` says what was
  // tried.
  std::size_t read(std::uint64_t offset, char* bytes, std::size_t size, std::string_view what = "read") const;
  const std::string& name() const { return name_; }
  // Before the object's end, for a file that is to be replaced.
  void close() { file_.close(); }

 private:
  System& system_;
  std::string name_;
  OpenFile file_;
};

// The whole content of a file of at most `limit` bytes; a larger one is an Error.
std::string read_whole(System& system, const std::string& path, std::size_t limit);

}  // namespace file
