// Replaces the content of a database file, whole or not at all. doc/durability.md states the promise, every state that a
// crash may leave, and what becomes of it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

#include "file/error.h"
#include "file/system.h"

namespace file {

// A file that is never written, replaced or removed, under whatever name or link; `what` it is to the user.
struct Spared {
  std::string path, what;
};
// Throws Refusal when `target` is that file.
void refuse_spared(System& system, const std::string& target, const Spared& spared);

inline constexpr std::size_t kLargestDatabase = 64 * 1024 * 1024;  // bytes; a larger one is never rewritten

// One replacement, from claiming the temporary file to its end. While it lives, no other process can begin one with the
// same temporary file.
class Replacement {
 public:
  // Claims `temporary` for the new content of `target`, which may be a link or not exist yet. Throws Refusal when that
  // would endanger something (a read-only target, a temporary name that is in use or no plain file, the file to be spared),
  // and Error when the system does not let it.
  Replacement(System& system, std::string temporary, const std::string& target, Spared spared);
  // Leaves no temporary file behind.
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  // The size of the target before the replacement, in bytes.
  std::size_t old_size() const { return static_cast<std::size_t>(target_status_.size); }

  // Makes `content` the whole content of the target. Throws Error when it could not; the target then holds its old
  // content. Returns nothing, or what the user has to be told: that the target holds the new content, but a power cut
  // may still bring the old one back.
  [[nodiscard]] std::string commit(std::string_view content);

 private:
  friend std::string copy_over(System& system, const std::string& from, const std::string& to, const Spared& spared);

  // A file that this process created, holds alone and removes unless it was renamed away.
  struct Claim {
    std::string path;
    Handle writer = -1, holder = -1;
    Status file;  // which file it is, whatever comes to lie under its name
  };

  void claim(Claim& claim, std::string path);
  void write_claimed(Claim& claim, std::string_view content);
  void write_all(Handle handle, std::uint64_t offset, std::string_view bytes, const std::string& path);
  void verify(Handle handle, std::string_view content, const std::string& path);
  void release(Claim& claim);
  bool is_taken(const Claim& claim);
  std::error_code rename(Claim& claim, const std::string& to);
  std::string renamed(Claim& claim);
  std::string copy_beside(std::string_view content);
  std::string overwrite(std::string_view content);
  void restore(Handle handle, std::string_view old);
  void require(std::error_code error, std::string_view what, const std::string& path);

  static constexpr const char* kBeside = ".dbnamep";  // behind the target's name

  System& system_;
  Spared spared_;
  Claim temporary_;
  Claim beside_;          // a second temporary file in the target's own folder, when that is on another file system
  std::string kept_;      // where an overwriting keeps the new content in the meantime
  std::string target_;    // without links
  Status target_status_;  // before the replacement
};

// Copies the whole of a file over another by a Replacement, with its result, through a temporary file beside the other;
// onto itself it does nothing.
[[nodiscard]] std::string copy_over(System& system, const std::string& from, const std::string& to, const Spared& spared);

}  // namespace file
