// Kelmar's part when the editor starts: the files that it would find in its folder. This is for a user who has databases but
// no Kelmar at hand.
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "file/system.h"

namespace launcher {

// What a user's own file is to the editor.
struct Database {
  std::string path, folder;
  std::string notice;  // what the user has to know before it opens; empty: nothing
};

// Goes to the folder of the file, as the user named it: a link is not resolved, because its name tells the kind. Throws
// file::Error when there is no such file.
Database enter(file::System& system, const std::string& file);

// The files of the current folder by which the editor is told what to open. They are there from write() on; the end removes
// what was made, and nothing else.
class HandOver {
 public:
  explicit HandOver(file::System& system) : system_(system), path_file_(system) {}
  ~HandOver();
  HandOver(const HandOver&) = delete;
  HandOver& operator=(const HandOver&) = delete;

  // Throws file::Error where another hand-over waits, and where the folder or the path does not let it.
  void write(const Database& database);

 private:
  bool is_taken() const;
  bool drive_is_ours() const;

  file::System& system_;
  file::OpenFile path_file_;  // open as long as this lives, so that no other file can be mistaken for it
};

// Creates a file that must not exist, and writes it to the disk; removes it when that fails.
std::error_code create(file::System& system, const std::string& path, std::string_view content, file::OpenFile& file);

}  // namespace launcher
