// What the program asks of the operating system's files: one method a call, so that a test can make each one fail.
// Paths are bytes as the system takes them, on Windows UTF-8. Every method reports its failure as an error code and throws
// nothing; what a failure means is the caller's business (see input.h for reading and replacement.h for replacing a file).
// Rejected: std::filesystem and streams for all of it. They cannot flush to the disk, create a file exclusively, lock it, or
// say that a write came back short.
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace file {

using Handle = std::intptr_t;

// Ends the name of the empty file by which others are kept from one, on a system that locks so.
inline constexpr const char* kLock = ".kelmar-lock";

enum class Type { Missing, Plain, Folder, Link, Other };

// What is known of a file; for a missing one only `type` counts.
struct Status {
  Type type = Type::Missing;
  bool writable = false;     // the system lets this user write it; told by its name only, as is:
  bool replaceable = false;  // its folder lets this user put another file in its place
  std::uint64_t size = 0;
  std::uint64_t links = 0;                  // number of names (hard links)
  std::array<std::uint64_t, 2> identity{};  // file system and number in it: the same means the same file
  std::chrono::nanoseconds changed{};       // when; any change of the file changes it

  bool same_file(const Status& other) const {
    return type != Type::Missing && other.type != Type::Missing && identity == other.identity;
  }
  bool same_device(const Status& other) const { return identity[0] == other.identity[0]; }
  // The same file with the same content, or no file both times.
  bool same_content(const Status& other) const {
    return type == other.type &&
           (type == Type::Missing || (identity == other.identity && size == other.size && changed == other.changed));
  }
};

enum class Follow { Links, Nothing };
enum class Access { Private, Shared };  // of a file created: its owner alone, or as the user's settings give it

class System {
 public:
  virtual ~System() = default;

  // Opens a plain file for reading. A folder, pipe or device is an error; nothing blocks.
  virtual std::error_code open_read(const std::string& path, Handle& handle) = 0;
  // Creates a file that must not exist under this name, not even as a dangling link, and opens it for writing.
  virtual std::error_code create_new(const std::string& path, Access access, Handle& handle) = 0;
  // Keeps every other editor, in whatever folder, from the existing plain file of this name (a link is an error) until the
  // handle is closed. errc::operation_would_block while another has it; errc::not_supported where the file system knows no
  // way; errc::file_exists when somebody's own file has the name of the lock. It does not keep this process from reading,
  // renaming or removing it.
  virtual std::error_code exclude_others(const std::string& path, Handle& handle) = 0;

  // Reads at most `size` bytes from `offset` on; `got` is 0 only at the end of the file.
  virtual std::error_code read(Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) = 0;
  // Writes `bytes` after what was written before, perhaps only the first `put` of them.
  virtual std::error_code write(Handle handle, std::string_view bytes, std::size_t& put) = 0;
  // Gives a file created what the file at `path` is for others: permissions, and its owner where the system allows. An
  // error when somebody could read or write the one who could not the other, but for its owner.
  virtual std::error_code take_over(Handle handle, const std::string& path) = 0;
  // Returns when the content is on the disk.
  virtual std::error_code flush(Handle handle) = 0;
  virtual std::error_code close(Handle handle) = 0;

  virtual std::error_code status(const std::string& path, Follow follow, Status& status) = 0;
  virtual std::error_code status(Handle handle, Status& status) = 0;
  // The name of the user whose file it is; nothing for a file of this user, and where the system does not tell.
  virtual std::string owner_of(const std::string& path) = 0;
  // The path of an existing file without links.
  virtual std::error_code without_links(const std::string& path, std::string& real) = 0;
  // Where a file of this name lies or would lie: the same for every name of that place, as far as names tell.
  virtual std::error_code place_of(const std::string& path, std::string& place) = 0;

  // In one step: before it `to` names the old file, if any, after it the new one. errc::operation_would_block while another
  // program has one of the two open, on a system where that matters.
  virtual std::error_code rename(const std::string& from, const std::string& to) = 0;
  virtual std::error_code remove(const std::string& path) = 0;
  // Returns when the names in the folder of `path` are on the disk.
  virtual std::error_code flush_folder_of(const std::string& path) = 0;

  virtual std::error_code current_folder(std::string& folder) = 0;
  virtual std::error_code change_folder(const std::string& folder) = 0;
  // Makes a drive the current one; does nothing on a system without drives.
  virtual std::error_code change_drive(char letter) = 0;
  // A path as another program wrote it into a text file.
  virtual std::string path_in_file(const std::string& bytes) = 0;
  virtual void pause(std::chrono::milliseconds time) = 0;
};

// Repeats a call while a signal interrupts it; not for ever, lest a broken file system hang the program.
template <typename Call>
std::error_code uninterrupted(Call call) {
  constexpr int kAttempts = 100;
  std::error_code error;
  for (int i = 0; i < kAttempts; ++i)
    if (error = call(); error != std::errc::interrupted) break;
  return error;
}

// Writes all of it, however little a single write takes. errc::no_space_on_device where one takes nothing.
inline std::error_code write_all(System& system, Handle handle, std::string_view bytes) {
  for (std::size_t put = 0; !bytes.empty(); bytes.remove_prefix(put)) {
    const auto error = uninterrupted([&] { return system.write(handle, bytes, put = 0); });
    if (error) return error;
    if (put == 0) return make_error_code(std::errc::no_space_on_device);
  }
  return {};
}

// Tries for about a second, until an attempt is true.
template <typename Attempt>
bool patiently(System& system, Attempt attempt) {
  constexpr int kAttempts = 20;
  constexpr std::chrono::milliseconds kPause{50};
  for (int i = 0; i < kAttempts; ++i) {
    if (attempt()) return true;
    system.pause(kPause);
  }
  return false;
}

// A handle that is closed with the object, if it was not before.
class OpenFile {
 public:
  explicit OpenFile(System& system) : system_(system) {}
  ~OpenFile() { close(); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  // For a call that opens.
  Handle& handle() { return handle_; }
  Handle get() const { return handle_; }
  std::error_code close() {
    const Handle handle = handle_;
    handle_ = kNone;
    return handle == kNone ? std::error_code() : system_.close(handle);
  }

 private:
  static constexpr Handle kNone = -1;
  System& system_;
  Handle handle_ = kNone;
};

// The operating system itself.
System& system();

// The arguments of a program without a window, its name left out, as paths of the system, patterns expanded where the
// command line does not do that. From then on what it prints is taken as UTF-8, where a terminal knows other code pages.
std::vector<std::string> arguments(int argc, char** argv);

// The path of another file in the folder of `path`.
std::string beside(const std::string& path, std::string_view name);

}  // namespace file
