// Files of Linux and its like.
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <thread>

#include "file/system.h"

namespace file {
namespace {

constexpr const char* kAccessList = "system.posix_acl_access";
constexpr std::size_t kLargestAttribute = 64 * 1024;  // bytes, and the names of all in one list

std::error_code last_error() { return {errno, std::generic_category()}; }
std::error_code checked(int result) { return result == 0 ? std::error_code() : last_error(); }
int descriptor(Handle handle) { return static_cast<int>(handle); }

std::string folder_of(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

Status from_stat(const struct stat& s) {
  Status status;
  status.type = S_ISREG(s.st_mode)   ? Type::Plain
                : S_ISDIR(s.st_mode) ? Type::Folder
                : S_ISLNK(s.st_mode) ? Type::Link
                                     : Type::Other;
  status.size = static_cast<std::uint64_t>(s.st_size);
  status.links = s.st_nlink;
  status.identity = {s.st_dev, s.st_ino};
  status.changed = std::chrono::seconds(s.st_ctim.tv_sec) + std::chrono::nanoseconds(s.st_ctim.tv_nsec);
  return status;
}

// O_NONBLOCK keeps a pipe under the name from holding the program up; on a plain file it means nothing.
std::error_code open_plain(const std::string& path, int flags, Handle& handle) {
  const int fd = ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (fd == -1) return last_error();
  struct stat s {};
  if (::fstat(fd, &s) == 0 && S_ISREG(s.st_mode)) {
    handle = fd;
    return {};
  }
  const std::error_code error =
      make_error_code(S_ISDIR(s.st_mode) ? std::errc::is_a_directory : std::errc::invalid_argument);
  ::close(fd);
  return error;
}

// Access list and user attributes. A new file may have got an access list from its folder: that goes if the old one has
// none.
std::error_code copy_attributes(int to, const std::string& from) {
  std::string names(kLargestAttribute, '\0'), value(kLargestAttribute, '\0');
  const ssize_t length = ::listxattr(from.c_str(), names.data(), names.size());
  if (length < 0) return errno == ENOTSUP ? std::error_code() : last_error();
  names.resize(static_cast<std::size_t>(length));
  if (::fremovexattr(to, kAccessList) != 0 && errno != ENODATA && errno != ENOTSUP) return last_error();
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const std::string name = names.c_str() + at;
    if (!name.starts_with("user.") && name != kAccessList) continue;
    const ssize_t size = ::getxattr(from.c_str(), name.c_str(), value.data(), value.size());
    if (size == -1 || ::fsetxattr(to, name.c_str(), value.data(), static_cast<std::size_t>(size), 0) != 0)
      return last_error();
  }
  return {};
}

bool may(const std::string& path, int mode) { return ::faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS) == 0; }

// In a sticky folder, as /tmp is, only its owner and the file's may replace a file.
bool sticks(const std::string& folder, const struct stat& file) {
  struct stat s {};
  const uid_t user = ::geteuid();
  return ::stat(folder.c_str(), &s) == 0 && (s.st_mode & S_ISVTX) != 0 && user != 0 && user != s.st_uid &&
         user != file.st_uid;
}

class PosixSystem final : public System {
 public:
  // A limit on the size of files is an error of the write, not the end of the program.
  PosixSystem() { ::signal(SIGXFSZ, SIG_IGN); }

  std::error_code open_read(const std::string& path, Handle& handle) override { return open_plain(path, O_RDONLY, handle); }

  std::error_code create_new(const std::string& path, Access access, Handle& handle) override {
    const mode_t mode = access == Access::Private ? 0600 : 0666;
    handle = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    return handle == -1 ? last_error() : std::error_code();
  }

  std::error_code exclude_others(const std::string& path, Handle& handle) override {
    Handle opened = -1;
    // Some file systems lock only what is open for writing, and some files may only be read.
    auto error = open_plain(path, O_RDWR | O_NOFOLLOW, opened);
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
      error = open_plain(path, O_RDONLY | O_NOFOLLOW, opened);
    if (error) return error;
    const int fd = descriptor(opened);
    error = checked(::flock(fd, LOCK_EX | LOCK_NB));
    if (error == std::errc::no_lock_available || error == std::errc::function_not_supported)
      error = make_error_code(std::errc::not_supported);
    // Whoever had it may just have put another file under the name: that one is not ours yet.
    Status locked, named;
    if (!error && (status(opened, locked) || status(path, Follow::Nothing, named) || !locked.same_file(named)))
      error = make_error_code(std::errc::operation_would_block);
    if (error)
      ::close(fd);
    else
      handle = opened;
    return error;
  }

  std::error_code read(Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) override {
    const ssize_t n = ::pread(descriptor(handle), bytes, size, static_cast<off_t>(offset));
    if (n < 0) return last_error();
    got = static_cast<std::size_t>(n);
    return {};
  }

  std::error_code write(Handle handle, std::string_view bytes, std::size_t& put) override {
    const ssize_t n = ::write(descriptor(handle), bytes.data(), bytes.size());
    if (n < 0) return last_error();
    put = static_cast<std::size_t>(n);
    return {};
  }

  // Many a file system holds no permissions, and only a privileged user may give a file away: so it is the result that
  // counts. Who may only execute the file does not, and whose it is neither, as long as group and permissions are the same.
  std::error_code take_over(Handle handle, const std::string& path) override {
    const int fd = descriptor(handle);
    struct stat like {};
    struct stat now {};
    if (::stat(path.c_str(), &like) != 0) return last_error();
    std::error_code error = make_error_code(std::errc::operation_not_permitted);
    if (::fchown(fd, like.st_uid, like.st_gid) != 0 && ::fchown(fd, static_cast<uid_t>(-1), like.st_gid) != 0)
      error = last_error();
    if (::fstat(fd, &now) != 0) return last_error();
    constexpr mode_t kReadAndWrite = S_IROTH | S_IWOTH;
    const bool has_list = ::getxattr(path.c_str(), kAccessList, nullptr, 0) > 0;  // for which the mode shows only its mask
    const bool group_matters = has_list || ((like.st_mode >> 3) & kReadAndWrite) != (like.st_mode & kReadAndWrite);
    if (now.st_gid != like.st_gid && group_matters) return error;
    // Before the mode, which would lend what a list withholds; the mode after the owner, whose change clears some bits.
    if (const auto failed = copy_attributes(fd, path)) return failed;
    if (::fchmod(fd, like.st_mode & 07777) != 0) error = last_error();
    if (::fstat(fd, &now) != 0) return last_error();
    const bool same_mode = ((now.st_mode ^ like.st_mode) & (S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | kReadAndWrite)) == 0;
    return same_mode ? std::error_code() : error;
  }

  std::error_code flush(Handle handle) override { return checked(::fsync(descriptor(handle))); }

  // An interrupted close has closed the descriptor here, and its content was flushed before: not an error.
  std::error_code close(Handle handle) override {
    return ::close(descriptor(handle)) == 0 || errno == EINTR ? std::error_code() : last_error();
  }

  std::error_code status(const std::string& path, Follow follow, Status& status) override {
    struct stat s {};
    status = {};
    if ((follow == Follow::Links ? ::stat(path.c_str(), &s) : ::lstat(path.c_str(), &s)) != 0)
      return errno == ENOENT || errno == ENOTDIR ? std::error_code() : last_error();
    status = from_stat(s);
    status.writable = may(path, W_OK);
    status.replaceable = may(folder_of(path), W_OK | X_OK) && !sticks(folder_of(path), s);
    return {};
  }

  std::error_code status(Handle handle, Status& status) override {
    struct stat s {};
    if (::fstat(descriptor(handle), &s) != 0) return last_error();
    status = from_stat(s);
    return {};
  }

  std::string owner_of(const std::string& path) override {
    struct stat s {};
    if (::lstat(path.c_str(), &s) != 0) return "somebody";
    if (s.st_uid == ::geteuid()) return "";
    const passwd* const user = ::getpwuid(s.st_uid);
    return user != nullptr ? user->pw_name : "user " + std::to_string(s.st_uid);
  }

  std::error_code without_links(const std::string& path, std::string& real) override {
    std::error_code error;
    real = std::filesystem::canonical(path, error).string();
    return error;
  }

  std::error_code place_of(const std::string& path, std::string& place) override {
    std::error_code error;
    place = (std::filesystem::current_path(error) / path).lexically_normal().string();
    return error;
  }

  std::error_code rename(const std::string& from, const std::string& to) override {
    return checked(::rename(from.c_str(), to.c_str()));
  }

  std::error_code remove(const std::string& path) override { return checked(::unlink(path.c_str())); }

  std::error_code flush_folder_of(const std::string& path) override {
    const int fd = ::open(folder_of(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd == -1) return last_error();
    // Some file systems have nothing to flush for a folder and say so with EINVAL.
    const std::error_code error = ::fsync(fd) == 0 || errno == EINVAL ? std::error_code() : last_error();
    ::close(fd);
    return error;
  }

  std::error_code current_folder(std::string& folder) override {
    std::error_code error;
    folder = std::filesystem::current_path(error).string();
    return error;
  }

  std::error_code change_folder(const std::string& folder) override { return checked(::chdir(folder.c_str())); }

  std::error_code change_drive(char) override { return {}; }

  std::string path_in_file(const std::string& bytes) override { return bytes; }

  void pause(std::chrono::milliseconds time) override { std::this_thread::sleep_for(time); }
};

}  // namespace

System& system() {
  static PosixSystem posix;
  return posix;
}

std::vector<std::string> arguments(int argc, char** argv) { return {argv + std::min(argc, 1), argv + argc}; }

std::string beside(const std::string& path, std::string_view name) {
  return path.substr(0, path.rfind('/') + 1).append(name);
}

}  // namespace file
