// The tables in tests/disk: what the program relies on in a file system, and what a replacement makes of it, on the real
// disk and on the files in memory on which all tests of faults rest. "= TITLE" begins in an empty folder, "=m" one that
// needs what only the files in memory have; below it stand operations, with "=> RESULT" where they have one ("FOLDER" is the
// folder's path). "fail CALL N ERROR" makes the Nth such call of what follows fail; "after CALL LINE" and "at CALL N LINE"
// do something after each such call, or after the Nth; "waiting N LINE" while the program waits for the Nth time; in these
// LINEs "==" stands for "=>".
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "file/replacement.h"
#include "support/memory_system.h"
#include "support/watched_system.h"

namespace {

std::vector<std::string> flushed;  // "file" or "folder", for each flush that reached the system
std::function<void()> before_lock;
std::map<std::string, int> failing;  // the error that a call gives

template <typename... Arguments>
int call(const char* name, long number, Arguments... arguments) {
  const auto failure = failing.find(name);
  if (failure == failing.end()) return static_cast<int>(::syscall(number, arguments...));
  errno = failure->second;
  return -1;
}

}  // namespace

// In place of the C library's: whether a flush reaches the disk cannot be seen otherwise, nothing else comes between opening
// a file and locking it, and few disks fail as these do.
extern "C" int flock(int fd, int operation) noexcept {
  if (before_lock) std::exchange(before_lock, nullptr)();
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
  flushed.emplace_back(S_ISDIR(s.st_mode) ? "folder" : "file");
  return call("fsync", SYS_fsync, fd);
}

namespace {

using file::Follow;
using file::OpenFile;
using file::Status;
using file::Type;
using support::Call;
using support::CallInfo;

const file::Spared kSpared{"comp.mdb", "the component database"};

// An empty folder of the disk, entered as a user to whom permissions mean something.
class Folder {
 public:
  Folder() : user_(::geteuid()) {
    ::umask(022);
    std::string pattern = std::filesystem::temp_directory_path() / "kelmar-XXXXXX";
    path = ::mkdtemp(pattern.data());
    constexpr uid_t kNobody = 65534;
    if (user_ == 0 && (::chown(path.c_str(), kNobody, static_cast<gid_t>(-1)) != 0 || ::seteuid(kNobody) != 0))
      ADD_FAILURE() << "cannot become another user";
    std::filesystem::current_path(path);
  }
  ~Folder() {
    EXPECT_EQ(::seteuid(user_), 0);
    std::filesystem::current_path("/");
    std::filesystem::remove_all(path);
  }
  std::string path;

 private:
  uid_t user_;
};

constexpr const char* kAccessList = "system.posix_acl_access";
// Owner rw, user 1 r, group none, mask r, others none: the system's own form of an access list.
constexpr std::uint16_t kList[] = {2, 0,      1,      6,  0xFFFF, 0xFFFF, 2,      4,  1, 0,      4,
                                   0, 0xFFFF, 0xFFFF, 16, 4,      0xFFFF, 0xFFFF, 32, 0, 0xFFFF, 0xFFFF};

// A text that ends at the first blank, and what follows that.
std::pair<std::string, std::string> split(const std::string& text) {
  const std::size_t blank = std::min(text.find(' '), text.size());
  return {text.substr(0, blank), text.substr(std::min(blank + 1, text.size()))};
}

// Carries out operations in a folder of the disk, or in memory.
class Script {
 public:
  Script(file::System& system, std::string folder, support::MemorySystem* memory)
      : system_(system),
        watched_(system),
        folder_(std::move(folder)),
        memory_(memory) {}

  void play(const std::string& line) {
    const std::size_t arrow = line.find(" =>");
    const auto [verb, rest] = split(line.substr(0, arrow));
    const auto [first, second] = split(rest);
    std::string result = perform(verb, first, second);
    for (std::size_t at; (at = result.find(folder_)) != result.npos;) result.replace(at, folder_.size(), "FOLDER");
    EXPECT_EQ(result, arrow == line.npos ? "" : line.substr(std::min(arrow + 4, line.size())));
  }

 private:
  using Text = const std::string&;

  static std::string said(std::error_code error) { return error ? error.message() : ""; }
  template <typename Action>
  static std::string told(Action action) {
    try {
      return action().value_or("");
    } catch (const file::Error& error) {
      return error.what();
    }
  }
  std::string create(Text name, Text content, file::Access access) {
    OpenFile file(system_);
    if (const auto error = system_.create_new(name, access, file.handle())) return said(error);
    std::size_t put = 0;
    EXPECT_EQ(system_.write(file.get(), content, put), std::error_code());
    EXPECT_EQ(put, content.size());
    Status held;
    EXPECT_EQ(system_.status(file.get(), held), std::error_code());
    EXPECT_TRUE(held.same_file(look(name, Follow::Nothing)));
    const auto error = system_.flush(file.get());
    return said(error ? error : file.close());
  }
  Status look(Text name, Follow follow) {
    Status status;
    EXPECT_EQ(system_.status(name, follow, status), std::error_code()) << name;
    return status;
  }
  std::string shown(Text name, Follow follow) {
    constexpr const char* kTypes[] = {"missing", "plain", "folder", "link", "other"};
    Status status;
    if (const auto error = system_.status(name, follow, status)) return said(error);
    if (status.type != Type::Plain) return kTypes[static_cast<int>(status.type)];
    return "plain, " + std::to_string(status.size) + " bytes, " + std::to_string(status.links) + " names" +
           (status.writable ? "" : ", read-only") + (status.replaceable ? "" : ", fixed");
  }
  std::string read(Text name, std::uint64_t offset, std::size_t size) {
    OpenFile file(system_);
    if (const auto error = system_.open_read(name, file.handle())) return said(error);
    std::string bytes(size, '\0');
    std::size_t got = 0;
    EXPECT_EQ(system_.read(file.get(), offset, bytes.data(), size, got), std::error_code());
    return bytes.substr(0, got);
  }
  std::string grow(Text name, Text content) {
    if (memory_ != nullptr) return memory_->grow(name, content), "";
    ::usleep(20000);  // longer than a tick of the file system's clock
    std::ofstream(name, std::ios::app) << content;
    return "";
  }
  std::string files() {
    std::string all;
    for (const auto& [path, content] : memory_->all()) all += path.substr(folder_.size() + 1) + " [" + content + "] ";
    return all + std::to_string(memory_->open_handles()) + " open";
  }
  static Call call_of(Text name) {
    constexpr std::string_view kCalls[] = {"open_read", "create_new",      "exclude_others",
                                           "read",      "write",           "flush",
                                           "close",     "status",          "status_of_handle",
                                           "take_over", "without_links",   "rename",
                                           "remove",    "flush_folder_of", "current_folder"};  // in the order of Call
    return static_cast<Call>(std::ranges::find(kCalls, name) - kCalls);
  }
  static std::error_code error_of(Text name) {
    const std::map<std::string, int> errors{{"EIO", EIO},     {"EACCES", EACCES}, {"EPERM", EPERM}, {"EINTR", EINTR},
                                            {"EBUSY", EBUSY}, {"ENOENT", ENOENT}, {"nothing", 0}};
    return {errors.at(name), std::generic_category()};
  }
  std::string made(int result) {
    EXPECT_EQ(result, 0);
    return "";
  }
  void set_mode(Text name, mode_t mode) {
    const bool writable = (mode & 0200) != 0;
    if (memory_ == nullptr)
      made(::chmod(name.c_str(), mode));
    else if (name == ".")
      memory_->folder(folder_).writable = writable;
    else
      memory_->at(name).mode = mode, memory_->at(name).writable = writable, memory_->grow(name, "");
  }

  // Files made without the program.
  std::string prepare(Text verb, Text a, Text b) {
    support::MemorySystem* const m = memory_;
    if (verb == "put") return create(a, b, file::Access::Private);
    if (verb == "share") return create(a, b, file::Access::Shared);
    if (verb == "grow") return grow(a, b);
    if (verb == "link") return m != nullptr ? (m->link(a, b), "") : made(::symlink(b.c_str(), a.c_str()));
    if (verb == "hardlink") return m != nullptr ? (m->hard_link(a, b), "") : made(::link(b.c_str(), a.c_str()));
    if (verb == "chmod") return set_mode(a, static_cast<mode_t>(std::stoi(b, nullptr, 8))), "";
    if (verb == "far") return m->add_folder(a, {.device = 2, .writable = b != "closed"}), "";
    if (verb == "own") return m->at(a).owner = b, "";
    if (verb == "without-locks") return m->folder(folder_).locks = false, "";
    if (verb == "files") return files();
    if (verb == "mode") {
      std::ostringstream octal;
      octal << std::oct << (m != nullptr ? m->at(a).mode : static_cast<unsigned>(std::filesystem::status(a).permissions()));
      return octal.str();
    }
    const bool folder = verb == "folder";
    if (!folder && verb != "pipe") return "no such operation";
    if (m == nullptr) return made(folder ? ::mkdir(a.c_str(), 0700) : ::mkfifo(a.c_str(), 0600));
    m->add(a, "");
    m->at(a).type = folder ? Type::Folder : Type::Other;
    if (folder) m->add_folder(folder_ + "/" + a);
    return "";
  }

  // One call of the system.
  std::string call(Text verb, Text a, Text b) {
    std::string text;
    if (verb == "content") return read(a, 0, 1000);
    if (verb == "read") return read(a, std::stoull(b), 4);
    if (verb == "status") return shown(a, Follow::Nothing);
    if (verb == "status-followed") return shown(a, Follow::Links);
    if (verb == "exclude") return said(system_.exclude_others(b, held_.try_emplace(a, system_).first->second.handle()));
    if (verb == "release") return held_.erase(a), "";
    if (verb == "rename") return said(system_.rename(a, b));
    if (verb == "remove") return said(system_.remove(a));
    if (verb == "real") return system_.without_links(a, text) ? said(system_.without_links(a, text)) : text;
    if (verb == "owned") return "by " + (system_.owner_of(a).empty() ? "this user" : system_.owner_of(a));
    if (verb == "enter") return said(system_.change_folder(a == "FOLDER" ? folder_ : folder_ + "/" + a));
    if (verb == "where") return said(system_.current_folder(text)) + said(system_.change_drive('C')) + text;
    if (verb == "remember") return remembered_ = look(a, Follow::Nothing), "";
    if (verb == "changed") return remembered_.same_content(look(a, Follow::Nothing)) ? "no" : "yes";
    if (verb == "compare") {
      const Status x = look(a, Follow::Nothing), y = look(b, Follow::Links);
      return std::string(x.same_file(y) ? "same file" : "two files") + (x.same_content(y) ? ", same content" : "");
    }
    if (verb != "take-over") return prepare(verb, a, b);
    OpenFile file(system_);
    EXPECT_EQ(system_.create_new(a, file::Access::Private, file.handle()), std::error_code());
    return said(system_.take_over(file.get(), b));
  }

  // What the program does, and what happens beside it.
  std::string perform(Text verb, Text a, Text b) {
    const auto [first, rest] = split(b);
    const auto replace = [&](Text temporary, Text target, Text content) {
      return told([&] { return file::Replacement(watched_, temporary, target, kSpared).commit(content); });
    };
    if (verb == "replace") return replace("dbnamep.mdb", a, b);
    if (verb == "replace-by") return replace(a, first, rest);
    if (verb == "begin") return begun_.emplace(system_, "dbnamep.mdb", a, kSpared), "";
    if (verb == "copy") return told([&] { return file::copy_over(watched_, a, b, kSpared); });
    if (verb == "read-whole") return told([&] { return std::optional(file::read_whole(watched_, b, std::stoul(a))); });
    if (verb == "finish") {
      const std::string result = told([&] { return begun_->commit(a); });
      return begun_.reset(), result;
    }
    if (verb == "fail") return watched_.fail(call_of(a), std::stoi(first), error_of(rest)), "";
    if (verb == "undisturbed") {
      watched_.before = [](const CallInfo&) { return std::nullopt; };
      watched_.after = [](const CallInfo&) {};
      return "";
    }
    if (verb == "after" || verb == "at") {
      std::string line = verb == "at" ? rest : b;
      if (const auto at = line.find("=="); at != line.npos) line.replace(at, 2, "=>");
      watched_.after = [this, call = call_of(a), line, each = verb == "after",
                        n = std::atoi(first.c_str())](auto& info) mutable {
        if (info.call == call && (--n == 0 || each)) play(line);
      };
      return "";
    }
    if (verb != "waiting") return call(verb, a, b);
    memory_->meanwhile = [this, left = std::stoi(a), b = b]() mutable {
      if (--left == 0) play(b);
    };
    return "";
  }

  file::System& system_;
  support::WatchedSystem watched_;
  const std::string folder_;
  support::MemorySystem* const memory_;
  std::map<std::string, OpenFile> held_;
  std::optional<file::Replacement> begun_;
  Status remembered_;
};

class Disk : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(Worlds, Disk, testing::Bool(),
                         [](const auto& world) { return world.param ? "InMemory" : "OnDisk"; });

TEST_P(Disk, DoesAsTabled) {
  const bool in_memory = GetParam();
  int cases = 0;
  const auto open_files = [] {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
  };
  const auto usual = open_files();
  for (const auto& entry : std::filesystem::directory_iterator(DISK_CASES)) {
    std::ifstream file(entry.path());
    std::optional<Folder> folder;
    std::optional<support::MemorySystem> memory;
    std::optional<Script> script;
    for (std::string line, title; std::getline(file, line);) {
      if (line.empty() || line.front() == '#') continue;
      SCOPED_TRACE(entry.path().filename().string() + ": " + title + ": " + line);
      if (line.front() == '=') {
        title = line;
        script.reset();
        EXPECT_EQ(open_files(), usual + 2) << "and those of the tables";
        if (in_memory) {
          memory.emplace();
          script.emplace(*memory, "/kelmar", &*memory);
        } else if (folder.reset(); line.starts_with("= ")) {
          script.emplace(file::system(), folder.emplace().path, nullptr);
        }
      } else if (script) {
        script->play(line);
        ++cases;
      }
    }
  }
  EXPECT_GT(cases, 100);
}

// What only a disk has.
TEST(RealDisk, FlushesReachTheSystem) {
  const Folder folder;
  OpenFile file(file::system());
  ASSERT_EQ(file::system().create_new("a", file::Access::Private, file.handle()), std::error_code());
  flushed.clear();
  EXPECT_EQ(file::system().flush(file.get()), std::error_code());
  EXPECT_EQ(file::system().flush_folder_of(folder.path + "/a"), std::error_code());
  EXPECT_EQ(flushed, (std::vector<std::string>{"file", "folder"}));
  EXPECT_EQ(file::system().flush_folder_of("missing/a"), std::errc::no_such_file_or_directory);
  for (const char* path : {"a", "/a"}) EXPECT_EQ(file::system().flush_folder_of(path), std::error_code());
  failing["fsync"] = EINVAL;  // as some file systems say that there is nothing to flush for a folder
  EXPECT_EQ(file::system().flush_folder_of("a"), std::error_code());
  failing["fsync"] = EIO;
  EXPECT_EQ(file::system().flush_folder_of("a"), std::errc::io_error);
  failing.clear();
  EXPECT_EQ(file::system().close(999), std::errc::bad_file_descriptor);
  const std::string large = std::string(100'000, 'x') + std::string(100'000, 'y');
  std::ofstream("large") << large;
  EXPECT_EQ(file::read_whole(file::system(), "large", large.size()), large);
  EXPECT_EQ(::signal(SIGXFSZ, SIG_IGN), SIG_IGN) << "a limit on the size of files would end the program";
}

TEST(RealDisk, AccessListAndUserAttributesAreTakenOver) {
  const Folder folder;
  OpenFile a(file::system()), b(file::system()), c(file::system());
  for (const auto& [name, file] : {std::pair("a", &a), {"b", &b}, {"c", &c}})
    ASSERT_EQ(file::system().create_new(name, file::Access::Private, file->handle()), std::error_code());
  if (::setxattr("a", kAccessList, kList, sizeof kList, 0) != 0 || ::setxattr("a", "user.note", "mine", 4, 0) != 0 ||
      ::setxattr("a", "user.empty", "", 0, 0) != 0)
    GTEST_SKIP() << "this file system has no attributes";
  const auto mode = [] { return static_cast<unsigned>(std::filesystem::status("b").permissions()); };
  char value[100];
  for (int i = 0; i < 2; ++i) EXPECT_EQ(file::system().take_over(b.get(), "a"), std::error_code());
  EXPECT_EQ(::getxattr("b", "user.empty", value, sizeof value), 0);
  EXPECT_EQ(::getxattr("b", kAccessList, value, sizeof value), static_cast<ssize_t>(sizeof kList));
  EXPECT_EQ(::getxattr("b", "user.note", value, sizeof value), 4);
  EXPECT_EQ(mode(), 0640u);
  // A list that a new file got from its folder goes.
  EXPECT_EQ(file::system().take_over(b.get(), "c"), std::error_code());
  EXPECT_EQ(::getxattr("b", kAccessList, value, sizeof value), -1);
  EXPECT_EQ(mode(), 0600u);
}

TEST(RealDisk, AFileThatWasReplacedWhileItWasOpenedIsNotHeld) {
  const Folder folder;
  std::ofstream("a") << "a";
  std::ofstream("b") << "b";
  OpenFile lock(file::system());
  const std::function<void()> changes[] = {[] { std::filesystem::rename("b", "a"); }, [] { std::filesystem::remove("a"); }};
  for (const auto& change : changes) {
    before_lock = change;
    EXPECT_EQ(file::system().exclude_others("a", lock.handle()), std::errc::operation_would_block);
    EXPECT_EQ(!file::system().exclude_others("a", lock.handle()), std::filesystem::exists("a"));
    lock.close();
  }
  std::ofstream("a") << "a";
  for (const auto& [error, told] :
       {std::pair(ENOLCK, std::errc::not_supported), {ENOSYS, std::errc::not_supported}, {EIO, std::errc::io_error}}) {
    failing["flock"] = error;
    EXPECT_EQ(file::system().exclude_others("a", lock.handle()), told);
  }
  failing.clear();
}

// A group that a user cannot give, a folder in which files may be removed by their owners alone: as others meet them.
TEST(RealDisk, WhatMattersOfOwnerGroupAndModeIsKept) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make files of others";
  constexpr uid_t kNobody = 65534;
  constexpr gid_t kOurs = 12346, kTheirs = 12345;
  const Folder folder;
  const auto as = [](uid_t user) { EXPECT_EQ(::seteuid(user), 0); };
  as(0);
  std::vector<gid_t> before(static_cast<std::size_t>(::getgroups(0, nullptr)));
  EXPECT_EQ(::getgroups(static_cast<int>(before.size()), before.data()) + ::setgroups(1, &kOurs), std::ssize(before));
  const auto take_over = [&](uid_t user) {
    as(user);
    std::filesystem::remove("new");
    OpenFile file(file::system());
    EXPECT_EQ(file::system().create_new("new", file::Access::Private, file.handle()), std::error_code());
    const auto error = file::system().take_over(file.get(), "like");
    as(0);
    failing.clear();
    return error;
  };
  const struct {
    uid_t user;
    gid_t group;
    mode_t mode;
    bool taken;
  } rows[] = {{kNobody, kOurs, 0640, true},    {kNobody, kTheirs, 0640, false}, {kNobody, kTheirs, 0604, false},
              {kNobody, kTheirs, 0644, true},  {kNobody, kTheirs, 0600, true},  {kNobody, kTheirs, 0666, true},
              {kNobody, kTheirs, 0646, false}, {0, kTheirs, 0640, true}};
  struct stat s {};
  for (const auto& row : rows) {
    std::ofstream("like") << "x";
    EXPECT_EQ(::chown("like", 4711, row.group) + ::chmod("like", row.mode), 0);
    EXPECT_EQ(!take_over(row.user), row.taken) << std::oct << row.mode;
    EXPECT_EQ(::stat("new", &s), 0);
    EXPECT_EQ(s.st_uid, row.user == 0 ? 4711 : kNobody);
    EXPECT_EQ(s.st_gid == row.group, row.group == kOurs || row.user == 0);
  }
  // A list of access makes the group matter; a mode that cannot be set matters where it differs.
  const bool listed = ::setxattr("like", kAccessList, kList, sizeof kList, 0) == 0;
  EXPECT_EQ(!take_over(kNobody), !listed);
  std::filesystem::remove("like");
  std::ofstream("like") << "x";
  for (const auto& [mode, error] : {std::pair(mode_t{0600}, 0), {mode_t{0644}, EROFS}}) {
    EXPECT_EQ(::chmod("like", mode), 0);
    failing["fchmod"] = EROFS;
    EXPECT_EQ(take_over(0).value(), error);
  }
  for (const char* name : {"fremovexattr", "listxattr"})
    for (const auto& [failure, error] : {std::pair(ENOTSUP, 0), {EIO, EIO}}) {
      failing[name] = failure;
      EXPECT_EQ(take_over(0).value(), error);
    }
  // Whose files may be replaced in a folder that sticks.
  const struct {
    uid_t user, owner, folder_owner;
    mode_t folder_mode;
    bool replaceable;
  } folders[] = {{kNobody, 4711, 0, 01777, false}, {kNobody, kNobody, 0, 01777, true}, {kNobody, 4711, kNobody, 01777, true},
                 {kNobody, 4711, 0, 0777, true},   {0, 4711, 4711, 01777, true},       {1, 4711, 0, 01777, false}};
  for (const auto& row : folders) {
    EXPECT_EQ(::chown("like", row.owner, 0) + ::chown(".", row.folder_owner, 0) + ::chmod(".", row.folder_mode), 0);
    as(row.user);
    Status status;
    EXPECT_EQ(file::system().status("like", Follow::Nothing, status), std::error_code());
    as(0);
    EXPECT_EQ(status.replaceable, row.replaceable) << &row - folders;
  }
  EXPECT_EQ(file::system().owner_of("like"), "user 4711");
  EXPECT_EQ(::chown("like", kNobody, 0), 0);
  EXPECT_EQ(file::system().owner_of("like"), "nobody");
  EXPECT_EQ(file::system().owner_of("missing"), "somebody");
  EXPECT_EQ(::setgroups(before.size(), before.data()), 0);
}

}  // namespace
