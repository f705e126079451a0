// Files in memory, behaving as those of the operating system do as far as the program can tell: folders, links, several
// names of one file, permissions, locks, file systems of their own.
#pragma once

#include <chrono>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "file/system.h"

namespace support {

class MemorySystem : public file::System {
 public:
  struct File {
    file::Type type = file::Type::Plain;
    std::string content;  // of a link: where it points
    std::uint32_t mode = 0644;
    std::string owner;  // another user
    file::Handle locked_by = -1;
    std::uint64_t inode = 0;
    std::chrono::nanoseconds changed{};
  };
  struct Folder {
    std::uint64_t device = 1;
    bool writable = true;
    bool locks = true;
  };

  MemorySystem(std::initializer_list<std::pair<std::string, std::string>> files = {}) {
    add_folder("/kelmar");
    for (const auto& [path, content] : files) add(path, content);
  }

  // Set-up and inspection; paths as the program gives them, relative ones from /kelmar.
  void add_folder(const std::string& path, const Folder& folder = {1, true, true}) { folders_[path] = folder; }
  void add(const std::string& path, std::string content);
  void link(const std::string& path, const std::string& to) { add(path, to), at(path).type = file::Type::Link; }
  // Another name of the same file.
  void hard_link(const std::string& path, const std::string& existing) {
    files_[absolute(path)] = files_.at(absolute(existing));
  }
  File& at(const std::string& path) { return *files_.at(absolute(path)); }
  Folder& folder(const std::string& path) { return folders_.at(path); }
  void grow(const std::string& path, std::string_view content) { at(path).content += content, touch(at(path)); }
  std::string content(const std::string& path) const;
  // Every name with its content.
  std::map<std::string, std::string> all() const;
  int open_handles() const { return static_cast<int>(handles_.size()); }
  std::string absolute(const std::string& path) const;

  std::error_code open_read(const std::string& path, file::Handle& handle) override;
  std::error_code create_new(const std::string& path, file::Access access, file::Handle& handle) override;
  std::error_code exclude_others(const std::string& path, file::Handle& handle) override;
  std::error_code read(file::Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) override;
  std::error_code write(file::Handle handle, std::string_view bytes, std::size_t& put) override;
  std::error_code take_over(file::Handle handle, const std::string& path) override;
  std::error_code flush(file::Handle) override { return {}; }
  std::error_code close(file::Handle handle) override;
  std::error_code status(const std::string& path, file::Follow follow, file::Status& status) override;
  std::error_code status(file::Handle handle, file::Status& status) override;
  std::string owner_of(const std::string& path) override { return at(path).owner; }
  std::error_code without_links(const std::string& path, std::string& real) override;
  std::error_code place_of(const std::string& path, std::string& place) override;
  std::error_code rename(const std::string& from, const std::string& to) override;
  std::error_code remove(const std::string& path) override;
  std::error_code flush_folder_of(const std::string&) override { return {}; }
  std::error_code current_folder(std::string& folder) override { return folder = current_, std::error_code(); }
  std::error_code change_folder(const std::string& folder) override;
  std::error_code change_drive(char) override { return {}; }
  std::string path_in_file(const std::string& bytes) override { return bytes; }
  void pause(std::chrono::milliseconds) override {}

 private:
  std::shared_ptr<File> find(const std::string& absolute_path) const;  // null: there is none
  std::string followed(const std::string& path) const;                 // absolute, without links
  const Folder* folder_of(const std::string& absolute_path) const;
  file::Status status_of(const std::string& absolute_path, const File& file) const;
  std::error_code open(const std::string& absolute_path, file::Handle& handle);
  void touch(File& file) { file.changed = ++now_; }

  std::map<std::string, std::shared_ptr<File>> files_;
  std::map<std::string, Folder> folders_;
  std::map<file::Handle, std::shared_ptr<File>> handles_;
  std::string current_ = "/kelmar";
  file::Handle next_handle_ = 3;
  std::uint64_t next_inode_ = 1;
  std::chrono::nanoseconds now_{};
};

}  // namespace support
