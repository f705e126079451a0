#include "file/input.h"

namespace file {

std::string named(std::string_view name) {
  constexpr std::size_t kLongest = 80, kHalf = kLongest / 2 - 2;
  std::string shown(name);
  if (name.size() > kLongest) shown.replace(kHalf, name.size() - 2 * kHalf, "...");
  for (char& c : shown)
    if (c == '\r' || c == '\n') c = ' ';
  return shown;
}

std::string failure(std::string_view what, const std::string& path, std::error_code error) {
  return "cannot " + std::string(what) + " " + (path.empty() ? "a file without a name" : named(path)) + ": " +
         error.message() + ".";
}

void require(std::error_code error, std::string_view what, const std::string& path) {
  if (error) throw Error(failure(what, path, error));
}

Input::Input(System& system, const std::string& path, const std::string& name)
    : system_(system),
      name_(name),
      file_(system) {
  require(uninterrupted([&] { return system_.open_read(path, file_.handle()); }), "open", name_);
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
