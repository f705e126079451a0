// What the tables of tests/disk do to a disk of Linux.
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <iterator>
#include <map>

#include "disk/world.h"

namespace {

std::map<std::string, int> refused;  // the error that a function gives

template <typename... Arguments>
int call(const char* name, long number, Arguments... arguments) {
  const auto refusal = refused.find(name);
  if (refusal == refused.end()) return static_cast<int>(::syscall(number, arguments...));
  errno = refusal->second;
  return -1;
}

}  // namespace

// In place of the C library's: whether a flush reaches the disk cannot be seen otherwise, nothing else comes between opening
// a file and locking it, and few disks fail as these do.
extern "C" int flock(int fd, int operation) noexcept {
  if (disk::before_lock) std::exchange(disk::before_lock, nullptr)();
  return call("flock", SYS_flock, fd, operation);
}
extern "C" int fchmod(int fd, mode_t mode) noexcept { return call("fchmod", SYS_fchmod, fd, mode); }
extern "C" int fremovexattr(int fd, const char* name) noexcept { return call("fremovexattr", SYS_fremovexattr, fd, name); }
extern "C" ssize_t listxattr(const char* path, char* names, std::size_t size) noexcept {
  return call("listxattr", SYS_listxattr, path, names, size);
}
extern "C" int fsync(int fd) {
  struct stat s {};
  ::fstat(fd, &s);
  disk::flushed += S_ISDIR(s.st_mode) ? "folder" : "file";
  return call("fsync", SYS_fsync, fd);
}

namespace disk {
namespace {

const uid_t kUser = ::geteuid();

void become(uid_t user) { EXPECT_TRUE(::geteuid() == user || ::seteuid(0) + ::seteuid(user) == 0) << user; }
unsigned number(const std::string& text, int base = 10) { return static_cast<unsigned>(std::stoul(text, nullptr, base)); }
std::string made(int result) { return result == 0 ? "" : "cannot be made"; }

std::string attributes(const std::string& path) {
  std::string all;
  for (const std::string name : {"system.posix_acl_access", "user.empty", "user.note"}) {
    char value[100];
    const ssize_t size = ::getxattr(path.c_str(), name.c_str(), value, sizeof value);
    if (size >= 0) all += "[" + name + "=" + std::string(value, static_cast<std::size_t>(size)) + "]";
  }
  return all;
}

}  // namespace

Folder::Folder() {
  constexpr uid_t kNobody = 65534;
  constexpr gid_t kGroup = 12346;  // his only group is his own
  ::umask(022);
  std::string pattern = std::filesystem::temp_directory_path() / "kelmar-XXXXXX";
  path = ::mkdtemp(pattern.data());
  std::filesystem::current_path(path);
  if (kUser != 0) return;
  EXPECT_EQ(::chown(path.c_str(), kNobody, static_cast<gid_t>(-1)) + ::setgroups(1, &kGroup), 0);
  become(kNobody);
}

Folder::~Folder() {
  EXPECT_EQ(::signal(SIGXFSZ, SIG_IGN), SIG_IGN) << "a limit on the size of files would end the program";
  become(kUser);
  std::filesystem::current_path(before_);
  std::filesystem::remove_all(path);
}

std::string worlds() { return kUser == 0 ? "dr" : "d"; }
std::filesystem::path native(const std::string& path) { return path; }
std::ptrdiff_t open_files() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
}

std::optional<std::string> operate(const std::string& verb, const std::string& a, const std::string& b, file::Handle&) {
  const auto [first, rest] = split(b);
  if (verb == "pipe") return made(::mkfifo(a.c_str(), 0600));
  if (verb == "as") return become(number(a)), "";
  if (verb == "own") {  // USER GROUP MODE
    const uid_t user = ::geteuid();
    const auto [group, mode] = split(rest);
    become(0);
    const std::string done = made(::chown(a.c_str(), number(first), number(group)) + ::chmod(a.c_str(), number(mode, 8)));
    return become(user), done;
  }
  if (verb == "ids") {
    struct stat s {};
    ::stat(a.c_str(), &s);
    return std::to_string(s.st_uid) + " " + (s.st_gid == ::getegid() ? "own" : std::to_string(s.st_gid));
  }
  if (verb == "needs-attributes") return ::setxattr(".", "user.empty", "", 0, 0) == 0 ? "" : "skipped";
  if (verb == "note") return made(::setxattr(a.c_str(), first.c_str(), rest.data(), rest.size(), 0));
  if (verb == "attributes") return attributes(a);
  return std::nullopt;
}

void refuse(const std::string& function, const std::string& error) { refused[function] = error_of(error); }
void refuse_nothing() { refused.clear(); }

}  // namespace disk
