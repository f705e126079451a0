// Replaces the content of a database file, whole or not at all. doc/durability.md states the promise, every state that a
// crash may leave, and what becomes of it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "file/input.h"

namespace file {

inline constexpr std::size_t kLargestDatabase = 64 * 1024 * 1024;  // bytes; a larger one is never rewritten

// A file that is never written, replaced or removed, under whatever name or link; `what` it is to the user.
struct Spared {
  std::string path, what;
};
// Throws Refusal when `target` is that file.
void refuse_spared(System& system, const std::string& target, const Spared& spared);

// Whether two paths lead to one file, or would: both are free and lie at the same place. Throws Error.
bool same_place(System& system, const std::string& one, const std::string& other);

// The new content of a database on its way: a file that this process created, holds alone, and removes unless it was renamed
// away.
class TemporaryFile {
 public:
  // Creates the file anew; a plain leftover of that name is removed first, one that another editor writes is waited for.
  // Throws Refusal when the name stays in use, or is that of something else than a plain file, of another user's leftover or
  // of the file to be spared, and Error when the system does not let it.
  TemporaryFile(System& system, std::string path, Access access, const Spared& spared);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const Status& created() const { return created_; }

  // Writes the whole content to the disk and reads it back; the file at `like`, if any, is the one whose permissions it
  // gets. Once only. Throws Error.
  void write(std::string_view content, const std::string* like);
  // Gives it another name, under which it stays. Throws Refusal when another editor has put its own file in its place.
  std::error_code rename(const std::string& to);

 private:
  TemporaryFile(System& system, std::string path);
  bool claim(Access access);
  bool remove_leftover();
  void verify(std::string_view content) const;
  bool is_taken() const;

  System& system_;
  std::string path_;
  OpenFile writer_, exclusion_;
  bool ours_ = false;  // to remove
  Status created_;     // which file it is, whatever comes to lie under its name
};

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
  // A new database gets the permissions that the user's new files get, an existing one keeps its own; until it has them
  // nobody else can read what is written.
  Access access() const { return before_.type == Type::Missing ? Access::Shared : Access::Private; }
  // What the target has (permissions, an access list) the file system of the temporary file may not even know.
  bool is_far() const { return before_.type == Type::Plain && !temporary_->created().same_device(before_); }
  std::error_code try_rename(std::string_view content);
  std::error_code rename();

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
