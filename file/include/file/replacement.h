// Replaces the content of a database file, whole or not at all. doc/durability.md states the promise, every state that a
// crash may leave, and what becomes of it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "file/temporary_file.h"

namespace file {

inline constexpr std::size_t kLargestDatabase = 64 * 1024 * 1024;  // bytes; a larger one is never rewritten

// One replacement, from shutting out others to its end. While it lives, no other editor can begin one of the same file, in
// whatever folder it works, nor one with the same temporary file.
class Replacement {
 public:
  // Prepares for a new content of `target`, which may be a link or not exist yet, by way of `temporary`. Throws Refusal when
  // that would endanger something (a target that is read-only, in use, has several names or is to be spared; a temporary
  // name that is in use or no plain file), and Error when the system does not let it.
  Replacement(System& system, const std::string& temporary, const std::string& target, const Spared& spared);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  // The target without links: what is read for the new content must be read here, wherever a link leads meanwhile.
  const std::string& path() const { return target_; }
  // The size of the target before the replacement, in bytes.
  std::size_t old_size() const { return static_cast<std::size_t>(before_.size); }

  // Makes `content` the whole content of the target. Throws Refusal when another program changed the target meanwhile or its
  // folder does not let a file be replaced, and Error when the system fails; the target then holds its old content. Returns
  // what the user has to be told of a success: that a power cut may still bring the old content back.
  [[nodiscard]] std::optional<std::string> commit(std::string_view content);

 private:
  void look_at_target();
  void exclude_others();
  Access access() const;
  bool is_far() const;
  std::error_code try_rename(std::string_view content);

  System& system_;
  Spared spared_;
  std::string name_;    // of the target, as given
  std::string target_;  // without links
  OpenFile exclusion_;
  Status before_;  // of the target, before it is read
  std::optional<TemporaryFile> temporary_;
};

// Throws Refusal when the open database is this temporary file, which a save would remove.
void refuse_temporary(System& system, const std::string& temporary, const std::string& database);

// Copies the whole of a file over another by a Replacement, with its result, through a temporary file beside the other;
// onto itself it does nothing.
[[nodiscard]] std::optional<std::string> copy_over(System& system, const std::string& from, const std::string& to,
                                                   const Spared& spared);

}  // namespace file
