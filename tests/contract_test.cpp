// What the program relies on in a file system, on the real disk and on the files in memory on which all tests of faults
// rest: the same for both.
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "support/memory_system.h"

namespace {

std::vector<std::string> flushed;  // "file" or "folder", for each flush that reached the system

std::function<void()> before_lock;

}  // namespace

// In place of the C library's, which they call: whether a flush reaches the disk cannot be seen otherwise, and nothing else
// comes between opening a file and locking it.
extern "C" int flock(int fd, int operation) noexcept {
  if (before_lock) std::exchange(before_lock, nullptr)();
  return static_cast<int>(::syscall(SYS_flock, fd, operation));
}
extern "C" int fsync(int fd) {
  struct stat s {};
  ::fstat(fd, &s);
  flushed.emplace_back(S_ISDIR(s.st_mode) ? "folder" : "file");
  return static_cast<int>(::syscall(SYS_fsync, fd));
}

namespace {

using file::Follow;
using file::OpenFile;
using file::Status;
using file::Type;

// A folder of one of the two, and what the interface has no call for.
class World {
 public:
  virtual ~World() = default;
  virtual file::System& system() = 0;
  virtual std::string path(const std::string& name) const = 0;
  virtual void link(const std::string& name, const std::string& to) = 0;
  virtual void hard_link(const std::string& name, const std::string& existing) = 0;
  virtual void make(const std::string& name, Type type) = 0;
  virtual void set_mode(const std::string& name, std::uint32_t mode) = 0;
  virtual std::uint32_t mode(const std::string& name) const = 0;
  virtual void set_folder_writable(bool writable) = 0;
};

class MemoryWorld final : public World {
 public:
  file::System& system() override { return system_; }
  std::string path(const std::string& name) const override { return "/kelmar/" + name; }
  void link(const std::string& name, const std::string& to) override { system_.link(path(name), path(to)); }
  void hard_link(const std::string& name, const std::string& existing) override {
    system_.hard_link(path(name), path(existing));
  }
  void make(const std::string& name, Type type) override {
    system_.add(path(name), "");
    system_.at(path(name)).type = type;
  }
  void set_mode(const std::string& name, std::uint32_t mode) override {
    system_.at(path(name)).mode = mode;
    system_.at(path(name)).writable = (mode & 0200) != 0;
  }
  std::uint32_t mode(const std::string& name) const override {
    return const_cast<support::MemorySystem&>(system_).at(path(name)).mode;
  }
  void set_folder_writable(bool writable) override { system_.folder("/kelmar").writable = writable; }

 private:
  support::MemorySystem system_;
};

// As a user to whom permissions mean something.
class DiskWorld final : public World {
 public:
  DiskWorld() : user_(::geteuid()) {
    ::umask(022);
    std::string pattern = std::filesystem::temp_directory_path() / "kelmar-XXXXXX";
    folder_ = ::mkdtemp(pattern.data());
    if (user_ != 0) return;
    constexpr uid_t kNobody = 65534;
    EXPECT_EQ(::chown(folder_.c_str(), kNobody, static_cast<gid_t>(-1)), 0);
    EXPECT_EQ(::seteuid(kNobody), 0);
  }
  ~DiskWorld() override {
    EXPECT_EQ(::seteuid(user_), 0);
    std::filesystem::remove_all(folder_);
  }
  file::System& system() override { return file::system(); }
  std::string path(const std::string& name) const override { return folder_ + "/" + name; }
  void link(const std::string& name, const std::string& to) override {
    EXPECT_EQ(::symlink(to.c_str(), path(name).c_str()), 0);
  }
  void hard_link(const std::string& name, const std::string& existing) override {
    EXPECT_EQ(::link(path(existing).c_str(), path(name).c_str()), 0);
  }
  void make(const std::string& name, Type type) override {
    EXPECT_EQ(type == Type::Folder ? ::mkdir(path(name).c_str(), 0700) : ::mkfifo(path(name).c_str(), 0600), 0);
  }
  void set_mode(const std::string& name, std::uint32_t mode) override { EXPECT_EQ(::chmod(path(name).c_str(), mode), 0); }
  std::uint32_t mode(const std::string& name) const override {
    struct stat s {};
    EXPECT_EQ(::stat(path(name).c_str(), &s), 0);
    return s.st_mode & 07777;
  }
  void set_folder_writable(bool writable) override { EXPECT_EQ(::chmod(folder_.c_str(), writable ? 0700 : 0500), 0); }

 private:
  uid_t user_;
  std::string folder_;
};

template <typename Kind>
class Contract : public testing::Test {
 protected:
  file::System& system() { return world.system(); }
  std::string path(const std::string& name) { return world.path(name); }
  // Creates a file; true when the system let it.
  bool create(const std::string& name, const std::string& content = "", file::Access access = file::Access::Private) {
    OpenFile file(system());
    if (system().create_new(path(name), access, file.handle())) return false;
    std::size_t put = 0;
    EXPECT_EQ(system().write(file.get(), content, put), std::error_code());
    EXPECT_EQ(put, content.size());
    return !system().flush(file.get()) && !file.close();
  }
  std::string content(const std::string& name) {
    OpenFile file(system());
    if (const auto error = system().open_read(path(name), file.handle())) return error.message();
    char bytes[100];
    std::size_t got = 0;
    EXPECT_EQ(system().read(file.get(), 0, bytes, sizeof bytes, got), std::error_code());
    return {bytes, got};
  }
  Status status(const std::string& name, Follow follow = Follow::Nothing) {
    Status status;
    EXPECT_EQ(system().status(path(name), follow, status), std::error_code());
    return status;
  }
  std::error_code exclude(const std::string& name, OpenFile& file) {
    return system().exclude_others(path(name), file.handle());
  }

  Kind world;
};

using Worlds = testing::Types<MemoryWorld, DiskWorld>;
TYPED_TEST_SUITE(Contract, Worlds, );

TYPED_TEST(Contract, AFileIsCreatedOnlyWhereThereIsNothing) {
  EXPECT_TRUE(this->create("a", "content"));
  EXPECT_EQ(this->content("a"), "content");
  EXPECT_EQ(this->world.mode("a"), 0600u);
  EXPECT_TRUE(this->create("shared", "", file::Access::Shared));
  EXPECT_EQ(this->world.mode("shared"), 0644u);
  this->world.link("dangling", "nowhere");
  this->world.make("folder", Type::Folder);
  OpenFile file(this->system());
  for (const char* name : {"a", "dangling", "folder"})
    EXPECT_EQ(this->system().create_new(this->path(name), file::Access::Private, file.handle()), std::errc::file_exists);
  EXPECT_EQ(this->content("a"), "content");
  EXPECT_EQ(this->status("nowhere").type, Type::Missing);
  this->world.set_folder_writable(false);
  EXPECT_EQ(this->system().create_new(this->path("b"), file::Access::Private, file.handle()), std::errc::permission_denied);
  this->world.set_folder_writable(true);
}

TYPED_TEST(Contract, OnlyPlainFilesAreOpened) {
  EXPECT_TRUE(this->create("a", "0123456789"));
  this->world.link("link", "a");
  this->world.make("folder", Type::Folder);
  this->world.make("pipe", Type::Other);
  OpenFile file(this->system());
  EXPECT_EQ(this->system().open_read(this->path("missing"), file.handle()), std::errc::no_such_file_or_directory);
  EXPECT_EQ(this->system().open_read(this->path("folder"), file.handle()), std::errc::is_a_directory);
  EXPECT_EQ(this->system().open_read(this->path("pipe"), file.handle()), std::errc::invalid_argument);
  ASSERT_EQ(this->system().open_read(this->path("link"), file.handle()), std::error_code());
  char bytes[4];
  std::size_t got = 0;
  const struct {
    std::uint64_t offset;
    std::string bytes;
  } rows[] = {{0, "0123"}, {8, "89"}, {10, ""}, {3, "3456"}, {99, ""}};
  for (const auto& row : rows) {
    EXPECT_EQ(this->system().read(file.get(), row.offset, bytes, sizeof bytes, got), std::error_code());
    EXPECT_EQ(std::string(bytes, got), row.bytes);
  }
}

TYPED_TEST(Contract, AStatusTellsFilesApart) {
  EXPECT_TRUE(this->create("a", "0123456789"));
  EXPECT_TRUE(this->create("b", "0123456789"));
  this->world.hard_link("a2", "a");
  this->world.link("link", "a");
  this->world.link("dangling", "nowhere");
  const Status a = this->status("a");
  EXPECT_EQ(a.type, Type::Plain);
  EXPECT_EQ(a.size, 10u);
  EXPECT_EQ(a.links, 2u);
  EXPECT_TRUE(a.writable && a.replaceable);
  EXPECT_TRUE(a.same_file(this->status("a2")) && a.same_content(this->status("a2")));
  EXPECT_TRUE(a.same_file(this->status("link", Follow::Links)));
  EXPECT_FALSE(a.same_file(this->status("link")) || a.same_file(this->status("b")) || a.same_content(this->status("b")));
  EXPECT_EQ(this->status("link").type, Type::Link);
  EXPECT_EQ(this->status("dangling").type, Type::Link);
  EXPECT_EQ(this->status("dangling", Follow::Links).type, Type::Missing);
  EXPECT_EQ(this->status("missing").type, Type::Missing);
  EXPECT_FALSE(this->status("missing").same_file(this->status("missing")));
  EXPECT_TRUE(this->status("missing").same_content(this->status("missing")));
  EXPECT_EQ(this->status("a/x").type, Type::Missing);
  this->world.link("round", "round");
  Status none;
  EXPECT_EQ(this->system().status(this->path("round"), Follow::Links, none), std::errc::too_many_symbolic_link_levels);
  // By its handle it is the same file, and a change shows.
  OpenFile file(this->system());
  ASSERT_EQ(this->system().create_new(this->path("c"), file::Access::Private, file.handle()), std::error_code());
  Status held;
  EXPECT_EQ(this->system().status(file.get(), held), std::error_code());
  EXPECT_TRUE(held.same_file(this->status("c")));
  const Status before = this->status("c");
  ::usleep(20000);  // longer than a tick of the file system's clock
  std::size_t put = 0;
  EXPECT_EQ(this->system().write(file.get(), "x", put), std::error_code());
  EXPECT_FALSE(before.same_content(this->status("c")));
  EXPECT_NE(before.changed, this->status("c").changed);
  this->world.set_mode("a", 0400);
  EXPECT_FALSE(this->status("a").writable);
  this->world.set_folder_writable(false);
  EXPECT_FALSE(this->status("b").replaceable);
  this->world.set_folder_writable(true);
}

TYPED_TEST(Contract, OthersAreExcluded) {
  EXPECT_TRUE(this->create("a", "content"));
  EXPECT_TRUE(this->create("b", "another"));
  this->world.link("link", "a");
  OpenFile first(this->system()), second(this->system()), third(this->system());
  ASSERT_EQ(this->exclude("a", first), std::error_code());
  EXPECT_EQ(this->exclude("a", second), std::errc::operation_would_block);
  EXPECT_EQ(this->exclude("b", second), std::error_code());
  EXPECT_EQ(this->content("a"), "content");
  EXPECT_EQ(this->exclude("link", third), std::errc::too_many_symbolic_link_levels);
  EXPECT_EQ(this->exclude("missing", third), std::errc::no_such_file_or_directory);
  // Another file under the name is not the one that is held.
  EXPECT_EQ(this->system().rename(this->path("b"), this->path("a")), std::error_code());
  EXPECT_EQ(this->exclude("a", third), std::errc::operation_would_block) << "it is the one held as b";
  second.close();
  EXPECT_EQ(this->exclude("a", third), std::error_code());
  first.close();
  third.close();
  this->world.set_mode("a", 0400);
  EXPECT_EQ(this->exclude("a", first), std::error_code()) << "a file that may only be read";
}

TYPED_TEST(Contract, NamesChangeInOneStep) {
  EXPECT_TRUE(this->create("a", "new"));
  EXPECT_TRUE(this->create("b", "old"));
  EXPECT_EQ(this->system().rename(this->path("a"), this->path("b")), std::error_code());
  EXPECT_EQ(this->content("b"), "new");
  EXPECT_EQ(this->status("a").type, Type::Missing);
  EXPECT_EQ(this->system().rename(this->path("a"), this->path("b")), std::errc::no_such_file_or_directory);
  this->world.set_folder_writable(false);
  EXPECT_EQ(this->system().rename(this->path("b"), this->path("c")), std::errc::permission_denied);
  EXPECT_EQ(this->system().remove(this->path("b")), std::errc::permission_denied);
  this->world.set_folder_writable(true);
  EXPECT_EQ(this->system().remove(this->path("b")), std::error_code());
  EXPECT_EQ(this->system().remove(this->path("b")), std::errc::no_such_file_or_directory);
  EXPECT_TRUE(this->create("c"));
  this->world.link("one", "two");
  this->world.link("two", "c");
  std::string real;
  EXPECT_EQ(this->system().without_links(this->path("one"), real), std::error_code());
  EXPECT_EQ(real, this->path("c"));
  this->world.link("nowhere", "missing");
  EXPECT_EQ(this->system().without_links(this->path("nowhere"), real), std::errc::no_such_file_or_directory);
}

TYPED_TEST(Contract, PermissionsAreTakenOver) {
  EXPECT_TRUE(this->create("a"));
  this->world.set_mode("a", 0640);
  OpenFile file(this->system());
  ASSERT_EQ(this->system().create_new(this->path("b"), file::Access::Private, file.handle()), std::error_code());
  EXPECT_EQ(this->system().take_over(file.get(), this->path("a")), std::error_code());
  EXPECT_EQ(this->world.mode("b"), 0640u);
  EXPECT_EQ(this->system().take_over(file.get(), this->path("missing")), std::errc::no_such_file_or_directory);
  EXPECT_NE(this->system().owner_of(this->path("a")), "");
}

TYPED_TEST(Contract, FoldersAreEnteredByTheirPath) {
  std::string before, now;
  ASSERT_EQ(this->system().current_folder(before), std::error_code());
  const std::string folder = this->path("").substr(0, this->path("").size() - 1);
  EXPECT_EQ(this->system().change_folder(folder), std::error_code());
  EXPECT_EQ(this->system().current_folder(now), std::error_code());
  EXPECT_EQ(now, std::filesystem::path(folder));
  EXPECT_EQ(this->system().change_folder(this->path("missing")), std::errc::no_such_file_or_directory);
  EXPECT_EQ(this->system().change_drive('C'), std::error_code());
  EXPECT_EQ(this->system().change_folder(before), std::error_code());
}

// What only a disk has.
TEST(Disk, FlushesReachTheSystem) {
  DiskWorld world;
  OpenFile file(world.system());
  ASSERT_EQ(world.system().create_new(world.path("a"), file::Access::Private, file.handle()), std::error_code());
  flushed.clear();
  EXPECT_EQ(world.system().flush(file.get()), std::error_code());
  EXPECT_EQ(world.system().flush_folder_of(world.path("a")), std::error_code());
  EXPECT_EQ(flushed, (std::vector<std::string>{"file", "folder"}));
  EXPECT_EQ(world.system().flush_folder_of(world.path("missing/a")), std::errc::no_such_file_or_directory);
  for (const char* path : {"a", "/a"}) EXPECT_EQ(world.system().flush_folder_of(path), std::error_code());
}

TEST(Disk, AccessListAndUserAttributesAreTakenOver) {
  DiskWorld world;
  const auto create = [&](const char* name, OpenFile& file) {
    ASSERT_EQ(world.system().create_new(world.path(name), file::Access::Private, file.handle()), std::error_code());
  };
  OpenFile a(world.system()), b(world.system()), c(world.system());
  create("a", a);
  create("b", b);
  create("c", c);
  // Owner rw, user 1 r, group none, mask r, others none: the system's own form of an access list.
  const std::uint16_t list[] = {2, 0,      1,      6,  0xFFFF, 0xFFFF, 2,      4,  1, 0,      4,
                                0, 0xFFFF, 0xFFFF, 16, 4,      0xFFFF, 0xFFFF, 32, 0, 0xFFFF, 0xFFFF};
  const char* const kList = "system.posix_acl_access";
  if (::setxattr(world.path("a").c_str(), kList, list, sizeof list, 0) != 0 ||
      ::setxattr(world.path("a").c_str(), "user.note", "mine", 4, 0) != 0)
    GTEST_SKIP() << "this file system has no attributes";
  EXPECT_EQ(world.system().take_over(b.get(), world.path("a")), std::error_code());
  char value[100];
  EXPECT_EQ(::getxattr(world.path("b").c_str(), kList, value, sizeof value), static_cast<ssize_t>(sizeof list));
  EXPECT_EQ(::getxattr(world.path("b").c_str(), "user.note", value, sizeof value), 4);
  EXPECT_EQ(world.mode("b"), 0640u);
  // A list that a new file got from its folder goes.
  EXPECT_EQ(world.system().take_over(b.get(), world.path("c")), std::error_code());
  EXPECT_EQ(::getxattr(world.path("b").c_str(), kList, value, sizeof value), -1);
  EXPECT_EQ(world.mode("b"), 0600u);
}

TEST(Disk, AFileThatWasReplacedWhileItWasOpenedIsNotHeld) {
  DiskWorld world;
  OpenFile a(world.system()), b(world.system()), lock(world.system());
  ASSERT_EQ(world.system().create_new(world.path("a"), file::Access::Private, a.handle()), std::error_code());
  ASSERT_EQ(world.system().create_new(world.path("b"), file::Access::Private, b.handle()), std::error_code());
  before_lock = [&] { world.system().rename(world.path("b"), world.path("a")); };
  EXPECT_EQ(world.system().exclude_others(world.path("a"), lock.handle()), std::errc::operation_would_block);
  EXPECT_EQ(world.system().exclude_others(world.path("a"), lock.handle()), std::error_code());
}

TEST(Disk, ACloseThatFailsIsAnError) { EXPECT_EQ(file::system().close(999), std::errc::bad_file_descriptor); }

TEST(Disk, ALimitOnTheSizeOfFilesIsAnError) {
  DiskWorld world;
  OpenFile file(world.system());
  ASSERT_EQ(world.system().create_new(world.path("a"), file::Access::Private, file.handle()), std::error_code());
  ASSERT_EQ(::signal(SIGXFSZ, SIG_DFL), SIG_IGN) << "the program would end";
  ::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace
