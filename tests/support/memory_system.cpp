// Files in memory, which behave as tests/disk says of real ones.
#include "support/memory_system.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <system_error>
#include <utility>

namespace support {
namespace {

using file::Handle;
using file::Type;

std::error_code failed(std::errc error) { return make_error_code(error); }

}  // namespace

std::string MemorySystem::absolute(const std::string& path) const {
  std::string plain = path.starts_with("./") ? path.substr(2) : path;
  return plain.starts_with('/') ? plain : current_ + "/" + plain;
}

void MemorySystem::add(const std::string& path, std::string content) {
  auto file = std::make_shared<File>();
  file->content = std::move(content);
  file->inode = next_inode_++;
  touch(*file);
  files_[absolute(path)] = file;
  folders_.try_emplace(absolute(path).substr(0, absolute(path).rfind('/')));
}

std::string MemorySystem::content(const std::string& path) const {
  const auto file = find(followed(path));
  return file == nullptr ? "(missing)" : file->content;
}

std::map<std::string, std::string> MemorySystem::all() const {
  std::map<std::string, std::string> contents;
  for (const auto& [path, file] : files_) contents[path] = file->content;
  return contents;
}

std::shared_ptr<MemorySystem::File> MemorySystem::find(const std::string& path) const {
  const auto found = files_.find(path);
  return found == files_.end() ? nullptr : found->second;
}

std::string MemorySystem::followed(const std::string& path) const {
  std::string at = absolute(path);
  for (int i = 0; i < 8; ++i) {
    const auto file = find(at);
    if (file == nullptr || file->type != Type::Link) break;
    at = absolute(file->content);
  }
  return at;
}

const MemorySystem::Folder* MemorySystem::folder_of(const std::string& path) const {
  const auto found = folders_.find(path.substr(0, path.rfind('/')));
  return found == folders_.end() ? nullptr : &found->second;
}

file::Status MemorySystem::status_of(const std::string& path, const File& file) const {
  file::Status status;
  status.type = file.type;
  status.writable = (file.mode & 0200) != 0;
  status.replaceable = folder_of(path)->writable;
  status.size = file.content.size();
  status.identity = {folder_of(path)->device, file.inode};
  status.changed = file.changed;
  for (const auto& [name, other] : files_) status.links += other->inode == file.inode;
  return status;
}

std::error_code MemorySystem::open(const std::string& path, Handle& handle) {
  const auto file = find(path);
  if (file == nullptr) return failed(std::errc::no_such_file_or_directory);
  if (file->type == Type::Folder) return failed(std::errc::is_a_directory);
  if (file->type == Type::Link) return failed(std::errc::too_many_symbolic_link_levels);
  if (file->type != Type::Plain) return failed(std::errc::invalid_argument);
  handles_[handle = next_handle_++] = file;
  return {};
}

std::error_code MemorySystem::open_read(const std::string& path, Handle& handle) { return open(followed(path), handle); }

std::error_code MemorySystem::create_new(const std::string& path, file::Access access, Handle& handle) {
  const std::string at = absolute(path);
  const Folder* folder = folder_of(at);
  if (folder == nullptr) return failed(std::errc::no_such_file_or_directory);
  if (files_.count(at) > 0) return failed(std::errc::file_exists);
  if (!folder->writable) return failed(std::errc::permission_denied);
  add(at, "");
  files_[at]->mode = access == file::Access::Private ? 0600 : 0644;
  return open(at, handle);
}

std::error_code MemorySystem::exclude_others(const std::string& path, Handle& handle) {
  const std::string at = absolute(path);
  Handle opened = -1;
  if (const auto error = open(at, opened)) return error;
  const bool locks = folder_of(at)->locks;
  File& file = *handles_.at(opened);
  if (!locks || file.locked_by >= 0) {
    close(opened);
    return failed(locks ? std::errc::operation_would_block : std::errc::not_supported);
  }
  file.locked_by = handle = opened;
  return {};
}

std::error_code MemorySystem::read(Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) {
  const std::string& content = handles_.at(handle)->content;
  got = content.copy(bytes, size, std::min(static_cast<std::size_t>(offset), content.size()));
  return {};
}

std::error_code MemorySystem::write(Handle handle, std::string_view bytes, std::size_t& put) {
  File& file = *handles_.at(handle);
  file.content += bytes;
  touch(file);
  put = bytes.size();
  return {};
}

std::error_code MemorySystem::take_over(Handle handle, const std::string& path) {
  const auto like = find(followed(path));
  if (like == nullptr) return failed(std::errc::no_such_file_or_directory);
  handles_.at(handle)->mode = like->mode;
  touch(*handles_.at(handle));
  return {};
}

std::error_code MemorySystem::close(Handle handle) {
  if (File& file = *handles_.at(handle); file.locked_by == handle) file.locked_by = -1;
  handles_.erase(handle);
  return {};
}

std::error_code MemorySystem::status(const std::string& path, file::Follow follow, file::Status& status) {
  const std::string at = follow == file::Follow::Links ? followed(path) : absolute(path);
  const auto file = find(at);
  status = file == nullptr ? file::Status() : status_of(at, *file);
  const bool loops = follow == file::Follow::Links && status.type == Type::Link;
  return loops ? failed(std::errc::too_many_symbolic_link_levels) : std::error_code();
}

std::error_code MemorySystem::status(Handle handle, file::Status& status) {
  const auto& file = handles_.at(handle);
  status = {};
  for (const auto& [path, other] : files_)
    if (other == file) status = status_of(path, *file);
  return {};
}

std::error_code MemorySystem::without_links(const std::string& path, std::string& real) {
  real = followed(path);
  return files_.count(real) > 0 ? std::error_code() : failed(std::errc::no_such_file_or_directory);
}

std::error_code MemorySystem::place_of(const std::string& path, std::string& place) {
  place = absolute(path);
  return {};
}

std::error_code MemorySystem::rename(const std::string& from, const std::string& to) {
  const std::string source = absolute(from), target = absolute(to);
  const Folder *left = folder_of(source), *entered = folder_of(target);
  if (files_.count(source) == 0 || entered == nullptr) return failed(std::errc::no_such_file_or_directory);
  if (left->device != entered->device) return failed(std::errc::cross_device_link);
  if (!left->writable || !entered->writable) return failed(std::errc::permission_denied);
  if (files_.count(target) > 0 && files_[target] == files_[source]) return {};
  touch(*files_[source]);
  files_[target] = files_[source];
  files_.erase(source);
  return {};
}

std::error_code MemorySystem::remove(const std::string& path) {
  const std::string at = absolute(path);
  if (find(at) == nullptr) return failed(std::errc::no_such_file_or_directory);
  if (!folder_of(at)->writable) return failed(std::errc::permission_denied);
  touch(*find(at));
  files_.erase(at);
  return {};
}

std::error_code MemorySystem::change_folder(const std::string& folder) {
  if (folders_.count(folder) == 0) return failed(std::errc::no_such_file_or_directory);
  current_ = folder;
  return {};
}

}  // namespace support
