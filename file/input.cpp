// Reading, and the words for what fails.
#include "file/input.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace file {

std::string reason(std::error_code error) {
  static const std::pair<std::errc, const char*> kReasons[] = {
      {std::errc::no_such_file_or_directory, "No such file or directory"},
      {std::errc::not_a_directory, "Not a directory"},
      {std::errc::is_a_directory, "Is a directory"},
      {std::errc::file_exists, "File exists"},
      {std::errc::permission_denied, "Permission denied"},
      {std::errc::operation_not_permitted, "Operation not permitted"},
      {std::errc::read_only_file_system, "Read-only file system"},
      {std::errc::operation_would_block, "Another program has it open"},
      {std::errc::device_or_resource_busy, "Device or resource busy"},
      {std::errc::io_error, "Input/output error"},
      {std::errc::no_space_on_device, "No space left on device"},
      {std::errc::file_too_large, "File too large"},
      {std::errc::not_enough_memory, "Cannot allocate memory"},
      {std::errc::filename_too_long, "File name too long"},
      {std::errc::invalid_argument, "Invalid argument"},
      {std::errc::too_many_symbolic_link_levels, "Too many levels of symbolic links"},
      {std::errc::cross_device_link, "Invalid cross-device link"},
      {std::errc::too_many_files_open, "Too many open files"},
      {std::errc::too_many_files_open_in_system, "Too many open files in system"},
      {std::errc::bad_file_descriptor, "Bad file descriptor"},
      {std::errc::no_such_device, "No such device"},
      {std::errc::interrupted, "Interrupted system call"},
      {std::errc::no_lock_available, "No locks available"},
      {std::errc::not_supported, "Operation not supported"},
      {std::errc::timed_out, "Connection timed out"}};
  const auto known = std::ranges::find(kReasons, error, [](const auto& entry) { return make_error_code(entry.first); });
  return known != std::end(kReasons) ? known->second : "error " + std::to_string(error.value()) + " of the system";
}

std::string named(std::string_view name) {
  constexpr std::size_t kLongest = 80, kHalf = kLongest / 2 - 2;
  std::string shown(name);
  if (name.size() > kLongest) {  // not inside a character of UTF-8
    const auto is_inside = [&](std::size_t at) { return (static_cast<unsigned char>(name[at]) & 0xC0) == 0x80; };
    std::size_t head = kHalf, tail = name.size() - kHalf;
    while (head > 0 && is_inside(head)) --head;
    while (tail < name.size() && is_inside(tail)) ++tail;
    shown.replace(head, tail - head, "...");
  }
  for (char& c : shown)
    if (c == '\r' || c == '\n' || c == '\0') c = ' ';
  return shown;
}

std::string failure(std::string_view what, const std::string& path, std::error_code error) {
  return "cannot " + std::string(what) + " " + (path.empty() ? "a file without a name" : named(path)) + ": " +
         reason(error) + ".";
}

void require(std::error_code error, std::string_view what, const std::string& path) {
  if (error) throw Error(failure(what, path, error));
}

Input::Input(System& system, const std::string& path, const std::string& name)
    : system_(system),
      name_(name),
      file_(system) {
  std::error_code error;
  patiently(system_, [&] {
    error = uninterrupted([&] { return system_.open_read(path, file_.handle()); });
    return error != std::errc::operation_would_block;
  });
  require(error, "open", name_);
}

std::size_t Input::read(std::uint64_t offset, char* bytes, std::size_t size, std::string_view what) const {
  std::size_t got = 0;
  require(uninterrupted([&] { return system_.read(file_.get(), offset, bytes, size, got); }), what, name_);
  return got;
}

std::string read_whole(System& system, const std::string& path, std::size_t limit) {
  constexpr std::size_t kBlock = 64 * 1024;
  const Input input(system, path, path);
  std::string content;
  for (std::size_t size = 0;;) {
    content.resize(size + kBlock);
    const std::size_t got = input.read(size, content.data() + size, kBlock);
    size += got;
    content.resize(size);
    if (got == 0) return content;
    if (size > limit) throw Error("cannot read " + named(path) + " as a whole: it is larger than any database.");
  }
}

}  // namespace file
