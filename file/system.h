// What the program asks of the operating system's files: one method a call, so that a test can make each one fail.
// Paths are bytes as the system takes them. Every method reports its failure as an error code and throws nothing; what a
// failure means is the caller's business (see input.h for reading and replacement.h for replacing one).
// Rejected: std::filesystem and streams. They cannot flush to the disk, create a file exclusively, lock it, or say that
// a write came back short.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace file {

using Handle = std::intptr_t;

enum class Type { Missing, Plain, Folder, Link, Other };

// What is known of a file; for a missing one only `type` counts.
struct Status {
  Type type = Type::Missing;
  bool writable = false;     // the system lets this user write it; told by its name only
  bool access_list = false;  // it has permissions beyond `mode`, which a new file would not get; told by its name only
  std::uint64_t size = 0;
  std::uint64_t links = 0;              // number of names (hard links)
  std::uint64_t device = 0, inode = 0;  // the same pair means the same file
  std::uint32_t mode = 0, user = 0, group = 0;

  bool same_file(const Status& other) const {
    return type != Type::Missing && other.type != Type::Missing && device == other.device && inode == other.inode;
  }
};

enum class Follow { Links, Nothing };
enum class Access { Private, Shared };  // of a file created: its owner alone, or as the user's settings give it

class System {
 public:
  virtual ~System() = default;

  // Opens a plain file for reading, from its beginning. A folder, pipe or device is an error; nothing blocks.
  virtual std::error_code open_read(const std::string& path, Handle& handle) = 0;
  // Creates a file that must not exist under this name, not even as a dangling link, and opens it for writing.
  virtual std::error_code create_new(const std::string& path, Access access, Handle& handle) = 0;
  // Opens an existing plain file for reading and writing; a link is an error. The content stays.
  virtual std::error_code open_existing(const std::string& path, Handle& handle) = 0;
  // Takes the file for this process alone until its handle is closed; errc::operation_would_block when another has it.
  virtual std::error_code lock(Handle handle) = 0;

  // Reads at most `size` bytes from `offset` on; `got` is 0 only at the end of the file.
  virtual std::error_code read(Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) = 0;
  // Writes `bytes` at `offset`, perhaps only the first `put` of them.
  virtual std::error_code write(Handle handle, std::uint64_t offset, std::string_view bytes, std::size_t& put) = 0;
  virtual std::error_code truncate(Handle handle, std::uint64_t size) = 0;
  // Returns when the content is on the disk.
  virtual std::error_code flush(Handle handle) = 0;
  virtual std::error_code close(Handle handle) = 0;

  virtual std::error_code status(const std::string& path, Follow follow, Status& status) = 0;
  virtual std::error_code status(Handle handle, Status& status) = 0;
  // Gives an open file the permissions of `like`, and its owner and group where the system allows.
  virtual std::error_code set_ownership(Handle handle, const Status& like) = 0;
  // The path without links.
  virtual std::error_code real_path(const std::string& path, std::string& real) = 0;

  virtual std::error_code rename(const std::string& from, const std::string& to) = 0;
  virtual std::error_code remove(const std::string& path) = 0;
  // Returns when the names in the folder of `path` are on the disk.
  virtual std::error_code flush_folder_of(const std::string& path) = 0;

  virtual std::error_code current_folder(std::string& folder) = 0;
  virtual std::error_code change_folder(const std::string& folder) = 0;
  // Makes a drive the current one; does nothing on a system without drives.
  virtual std::error_code change_drive(char letter) = 0;
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

// The operating system itself.
System& system();

}  // namespace file
