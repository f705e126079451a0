#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>

#include "file/system.h"

namespace file {
namespace {

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
  status.device = s.st_dev;
  status.inode = s.st_ino;
  status.mode = s.st_mode & 07777;
  status.user = s.st_uid;
  status.group = s.st_gid;
  return status;
}

class PosixSystem final : public System {
 public:
  std::error_code open_read(const std::string& path, Handle& handle) override { return open_plain(path, O_RDONLY, handle); }

  std::error_code open_existing(const std::string& path, Handle& handle) override {
    return open_plain(path, O_RDWR | O_NOFOLLOW, handle);
  }

  std::error_code create_new(const std::string& path, Access access, Handle& handle) override {
    const mode_t mode = access == Access::Private ? 0600 : 0666;
    handle = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
    return handle < 0 ? last_error() : std::error_code();
  }

  std::error_code lock(Handle handle) override { return checked(::flock(descriptor(handle), LOCK_EX | LOCK_NB)); }

  std::error_code read(Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) override {
    const ssize_t n = ::pread(descriptor(handle), bytes, size, static_cast<off_t>(offset));
    if (n < 0) return last_error();
    got = static_cast<std::size_t>(n);
    return {};
  }

  std::error_code write(Handle handle, std::uint64_t offset, std::string_view bytes, std::size_t& put) override {
    const ssize_t n = ::pwrite(descriptor(handle), bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (n < 0) return last_error();
    put = static_cast<std::size_t>(n);
    return {};
  }

  std::error_code truncate(Handle handle, std::uint64_t size) override {
    return checked(::ftruncate(descriptor(handle), static_cast<off_t>(size)));
  }

  std::error_code flush(Handle handle) override { return checked(::fsync(descriptor(handle))); }

  // An interrupted close has closed the descriptor here, and its content was flushed before: not an error.
  std::error_code close(Handle handle) override {
    return ::close(descriptor(handle)) == 0 || errno == EINTR ? std::error_code() : last_error();
  }

  std::error_code status(const std::string& path, Follow follow, Status& status) override {
    struct stat s {};
    const int result = follow == Follow::Links ? ::stat(path.c_str(), &s) : ::lstat(path.c_str(), &s);
    if (result != 0) {
      status = {};
      return errno == ENOENT || errno == ENOTDIR ? std::error_code() : last_error();
    }
    status = from_stat(s);
    status.writable = ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
    status.access_list = ::getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) > 0;
    return {};
  }

  std::error_code status(Handle handle, Status& status) override {
    struct stat s {};
    if (::fstat(descriptor(handle), &s) != 0) return last_error();
    status = from_stat(s);
    return {};
  }

  std::error_code set_ownership(Handle handle, const Status& like) override {
    const int fd = descriptor(handle);
    // Only a privileged user may give a file away; the group alone is allowed to its members. What the system declines
    // stays the saving user's. Before the permissions, because a change of owner clears some of them.
    if (::fchown(fd, like.user, like.group) != 0 && ::fchown(fd, static_cast<uid_t>(-1), like.group) != 0 && errno != EPERM)
      return last_error();
    return checked(::fchmod(fd, like.mode));
  }

  std::error_code real_path(const std::string& path, std::string& real) override {
    char* resolved = ::realpath(path.c_str(), nullptr);
    if (resolved == nullptr) return last_error();
    real = resolved;
    std::free(resolved);  // NOLINT(cppcoreguidelines-no-malloc): realpath gives it so
    return {};
  }

  std::error_code rename(const std::string& from, const std::string& to) override {
    return checked(::rename(from.c_str(), to.c_str()));
  }

  std::error_code remove(const std::string& path) override { return checked(::unlink(path.c_str())); }

  std::error_code flush_folder_of(const std::string& path) override {
    const int fd = ::open(folder_of(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return last_error();
    // Some file systems have nothing to flush for a folder and say so with EINVAL.
    const std::error_code error = ::fsync(fd) == 0 || errno == EINVAL ? std::error_code() : last_error();
    ::close(fd);
    return error;
  }

  std::error_code current_folder(std::string& folder) override {
    char path[PATH_MAX];
    if (::getcwd(path, sizeof path) == nullptr) return last_error();
    folder = path;
    return {};
  }

  std::error_code change_folder(const std::string& folder) override { return checked(::chdir(folder.c_str())); }

  std::error_code change_drive(char) override { return {}; }

 private:
  // O_NONBLOCK keeps a pipe under the name from holding the program up; on a plain file it means nothing.
  std::error_code open_plain(const std::string& path, int flags, Handle& handle) {
    const int fd = ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (fd < 0) return last_error();
    struct stat s {};
    if (::fstat(fd, &s) == 0 && S_ISREG(s.st_mode)) {
      handle = fd;
      return {};
    }
    const std::error_code error =
        S_ISDIR(s.st_mode) ? make_error_code(std::errc::is_a_directory) : std::error_code(EINVAL, std::generic_category());
    ::close(fd);
    return error;
  }
};

}  // namespace

System& system() {
  static PosixSystem posix;
  return posix;
}

}  // namespace file
