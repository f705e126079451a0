// What the tables ask of one operating system beside the file layer itself.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "file/system.h"

namespace disk {

// An empty folder, entered by a user to whom permissions mean something. At its end no file in it is open.
class Folder {
 public:
  Folder();
  ~Folder();
  std::string path;

 private:
  const std::filesystem::path before_ = std::filesystem::current_path();
};

std::string worlds();                              // the letters of the cases that this system and user play
std::filesystem::path native(const std::string&);  // a path of the tables for the library
std::ptrdiff_t open_files();                       // of this process, where the system tells

// Carries out an operation that only this system has: its result, or nothing when there is no such operation. `held` is the
// open file called `a`, if there is one. What this disk cannot do is "skipped".
std::optional<std::string> operate(const std::string& verb, const std::string& a, const std::string& b, file::Handle& held);

// How functions of the system fail, what reached the disk, and what happens before a file is locked: see the tables.
void refuse(const std::string& function, const std::string& error);
void refuse_nothing();
inline std::string flushed;
inline std::function<void()> before_lock;

int error_of(const std::string& name);

// A text that ends at the first blank, and what follows that.
std::pair<std::string, std::string> split(const std::string& text);

}  // namespace disk
