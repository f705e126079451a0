#include "file/input.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace file {

std::string failure(std::string_view what, const std::string& path, std::error_code error) {
  return std::string("cannot ")
      .append(what)
      .append(" ")
      .append(path.empty() ? "a file without a name" : path)
      .append(": ")
      .append(error.message())
      .append(".");
}

Input::Input(System& system, std::string path) : system_(system), path_(std::move(path)) {
  if (const auto error = uninterrupted([&] { return system_.open_read(path_, handle_); }))
    throw Error(failure("open", path_, error));
}

// Nothing was written: a failure to close loses nothing.
Input::~Input() { system_.close(handle_); }

std::size_t Input::read(std::uint64_t offset, char* bytes, std::size_t size) const {
  std::size_t got = 0;
  if (const auto error = uninterrupted([&] { return system_.read(handle_, offset, bytes, size, got); }))
    throw Error(failure("read", path_, error));
  return got;
}

std::string read_whole(System& system, const std::string& path, std::size_t limit) {
  constexpr std::size_t kBlock = 64 * 1024;
  Input input(system, path);
  std::string content;
  for (std::size_t size = 0;;) {
    content.resize(size + kBlock);
    const std::size_t got = input.read(size, content.data() + size, kBlock);
    size += got;
    content.resize(size);
    if (got == 0) return content;
    if (size > limit) throw Error("cannot read " + path + " as a whole: it is larger than any database.");
  }
}

}  // namespace file
