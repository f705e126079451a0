// The new content of a database on its way: a file that this process created, holds alone, and removes unless it was renamed
// away.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <system_error>

#include "file/input.h"

namespace file {

// A file that is never written, replaced or removed, under whatever name or link; `what` it is to the user.
struct Spared {
  std::string path, what;
};
// Throws Refusal when `target` is that file.
void refuse_spared(System& system, const std::string& target, const Spared& spared);

// Whether two paths lead to one file, or would: both are free and lie at the same place. Throws Error.
bool same_place(System& system, const std::string& one, const std::string& other);

bool is_denied(std::error_code error);

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

}  // namespace file
