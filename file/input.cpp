#include "file/input.h"

#include <utility>

namespace file {

std::string named(std::string_view name) {
  constexpr std::size_t kLongest = 80, kHalf = kLongest / 2 - 2;
  if (name.size() <= kLongest) return std::string(name);
  return std::string(name.substr(0, kHalf)).append("...").append(name.substr(name.size() - kHalf));
}

std::string failure(std::string_view what, const std::string& path, std::error_code error) {
  return "cannot " + std::string(what) + " " + (path.empty() ? "a file without a name" : named(path)) + ": " +
         error.message() + ".";
}

void require(std::error_code error, std::string_view what, const std::string& path) {
  if (error) throw Error(failure(what, path, error));
}

Input::Input(System& system, std::string path) : system_(system), path_(std::move(path)), file_(system) {
  require(uninterrupted([&] { return system_.open_read(path_, file_.handle()); }), "open", path_);
}

std::size_t Input::read(std::uint64_t offset, char* bytes, std::size_t size, std::string_view what) const {
  std::size_t got = 0;
  require(uninterrupted([&] { return system_.read(file_.get(), offset, bytes, size, got); }), what, path_);
  return got;
}

std::string read_whole(System& system, const std::string& path, std::size_t limit) {
  constexpr std::size_t kBlock = 64 * 1024;
  const Input input(system, path);
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
