// A file replaced in all the circumstances that a disk may hold ready.
#include "file/replacement.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <system_error>

#include "support/memory_system.h"
#include "support/watched_system.h"

namespace {

using file::Type;
using support::MemorySystem;

const file::Spared kSpared{"comp.mdb", "the component database"};

class Replace : public testing::Test {
 protected:
  Replace() { system.add("x.mdb", "old content"); }

  // The message of a failed replacement, or "".
  std::string replace(const std::string& target, const std::string& content = "new") {
    try {
      return file::Replacement(system, "dbnamep.mdb", target, kSpared).commit(content);
    } catch (const file::Error& error) {
      return error.what();
    }
  }
  // The files of the working folder beside x.mdb and its links.
  void expect_nothing_left(std::size_t files) {
    EXPECT_EQ(system.all().size(), files);
    EXPECT_EQ(system.open_handles(), 0);
  }

  MemorySystem system;
};

TEST_F(Replace, KeepsWhatTheFileIsForOthers) {
  system.at("x.mdb").mode = 0664;
  system.link("link.mdb", "other.mdb");
  system.link("other.mdb", "/kelmar/x.mdb");
  EXPECT_EQ(replace("link.mdb"), "");
  EXPECT_EQ(system.at("link.mdb").type, Type::Link);
  EXPECT_EQ(system.content("x.mdb"), "new");
  EXPECT_EQ(system.at("x.mdb").mode, 0664u);
  expect_nothing_left(3);
}

TEST_F(Replace, OverwritesWhereTheFileItselfMustStay) {
  for (const char* content : {"new", "a content that is longer than the old one", ""}) {
    MemorySystem::File* const same = &system.at("x.mdb");
    system.hard_link("y.mdb", "x.mdb");
    EXPECT_EQ(replace("x.mdb", content), "");
    EXPECT_EQ(system.content("y.mdb"), content);
    EXPECT_EQ(&system.at("x.mdb"), same);
    expect_nothing_left(2);
  }
  system.remove("y.mdb");
  system.at("x.mdb").access_list = true;
  EXPECT_EQ(replace("x.mdb"), "");
  EXPECT_TRUE(system.at("x.mdb").access_list);
  expect_nothing_left(1);

  system.add_folder("/closed", {.device = 1, .writable = false});
  system.add("/closed/x.mdb", "old");
  EXPECT_EQ(replace("/closed/x.mdb"), "");
  EXPECT_EQ(system.content("/closed/x.mdb"), "new");
  expect_nothing_left(2);
}

TEST_F(Replace, ReachesAnotherFileSystem) {
  system.add_folder("/far", {.device = 2, .writable = true});
  system.add("/far/x.mdb", "old");
  EXPECT_EQ(replace("/far/x.mdb"), "");
  EXPECT_EQ(replace("/far/new.mdb"), "");
  EXPECT_EQ(system.content("/far/x.mdb") + system.content("/far/new.mdb"), "newnew");
  system.add_folder("/far-closed", {.device = 3, .writable = false});
  system.add("/far-closed/x.mdb", "old");
  EXPECT_EQ(replace("/far-closed/x.mdb"), "");
  EXPECT_EQ(system.content("/far-closed/x.mdb"), "new");
  EXPECT_EQ(replace("/far-closed/new.mdb"), "cannot create /far-closed/new.mdb.dbnamep: Permission denied.");
  expect_nothing_left(4);
}

TEST_F(Replace, RefusesWhatWouldEndangerSomething) {
  system.at("x.mdb").writable = false;
  EXPECT_EQ(replace("x.mdb"), "x.mdb is read-only. Make it writable or save to a new database.");
  system.at("x.mdb").writable = true;
  system.add("pipe.mdb", "");
  system.at("pipe.mdb").type = Type::Other;
  EXPECT_EQ(replace("pipe.mdb"), "pipe.mdb is not a plain file. Choose another name.");

  const std::string in_the_way = "dbnamep.mdb is in the way: it is not a plain file. Remove it and try again.";
  for (const Type type : {Type::Link, Type::Folder, Type::Other}) {
    system.add("dbnamep.mdb", "/kelmar/x.mdb");
    system.at("dbnamep.mdb").type = type;
    EXPECT_EQ(replace("x.mdb"), in_the_way);
    EXPECT_TRUE(system.has("dbnamep.mdb"));
    EXPECT_EQ(system.content("x.mdb"), "old content");
  }
  system.remove("dbnamep.mdb");
  system.link("dbnamep.mdb", "nowhere");
  EXPECT_EQ(replace("x.mdb"), in_the_way);
  system.remove("dbnamep.mdb");

  // The open database under the temporary name, by whatever path: another name of it must not be removed as a leftover.
  const std::string itself =
      "the open database is the temporary file dbnamep.mdb itself. Copy it to another name and open that.";
  system.hard_link("dbnamep.mdb", "x.mdb");
  EXPECT_EQ(replace("x.mdb"), itself);
  EXPECT_EQ(replace("/kelmar/dbnamep.mdb"), itself);
  EXPECT_EQ(system.content("dbnamep.mdb"), "old content");
}

TEST_F(Replace, RemovesAPlainLeftoverButNoneInUse) {
  system.add("dbnamep.mdb", "a leftover");
  system.add("precious", "somebody's only copy");
  system.remove("dbnamep.mdb");
  system.hard_link("dbnamep.mdb", "precious");
  EXPECT_EQ(replace("x.mdb"), "");
  EXPECT_EQ(system.content("precious"), "somebody's only copy");

  const std::string in_use =
      "dbnamep.mdb is in use: another editor is saving in this folder. Wait until it is done and try again.";
  {
    file::Replacement first(system, "dbnamep.mdb", "x.mdb", kSpared);
    EXPECT_EQ(replace("x.mdb"), in_use);
    EXPECT_EQ(first.commit("first"), "");
  }
  EXPECT_EQ(system.content("x.mdb"), "first");
  EXPECT_EQ(replace("x.mdb"), "");

  // A file that has come under the name meanwhile is another editor's: it takes nobody's place and is not removed.
  {
    file::Replacement first(system, "dbnamep.mdb", "x.mdb", kSpared);
    system.add("dbnamep.mdb", "half a database");
    EXPECT_THROW((void)first.commit("second"), file::Refusal);
  }
  EXPECT_EQ(system.content("x.mdb") + ", " + system.content("dbnamep.mdb"), "new, half a database");
  system.remove("dbnamep.mdb");

  system.add("dbnamep.mdb.keep", "whole");
  EXPECT_TRUE(replace("x.mdb").starts_with("dbnamep.mdb.keep holds the whole content"));
  EXPECT_EQ(system.content("dbnamep.mdb.keep"), "whole");
}

// Each call that fails is told with what it was for, the file, and the system's reason.
TEST_F(Replace, SaysWhatFailedAndWhere) {
  using support::Call;
  const struct {
    Call call;
    int nth;
    const char* message;
  } rows[] = {
      {Call::StatusOfPath, 1, "cannot look at x.mdb"},
      {Call::StatusOfPath, 2, "cannot look at comp.mdb"},
      {Call::RealPath, 1, "cannot find x.mdb"},
      {Call::OpenExisting, 1, "cannot open dbnamep.mdb"},
      {Call::Lock, 1, "cannot lock dbnamep.mdb"},
      {Call::Remove, 1, "cannot remove dbnamep.mdb"},
      {Call::CreateNew, 1, "cannot create dbnamep.mdb"},
      {Call::Write, 1, "cannot write dbnamep.mdb"},
      {Call::SetOwnership, 1, "cannot set the permissions of dbnamep.mdb"},
      {Call::Flush, 1, "cannot write to the disk dbnamep.mdb"},
      {Call::Close, 2, "cannot close dbnamep.mdb"},
      {Call::Read, 1, "cannot read back dbnamep.mdb"},
      {Call::Rename, 1, "cannot replace /kelmar/x.mdb"},
  };
  for (const auto& row : rows) {
    system.add("dbnamep.mdb", "a leftover");
    support::WatchedSystem watched(system);
    watched.before = [&, made = 0](const support::CallInfo& info) mutable -> std::optional<support::Instead> {
      if (info.call != row.call || ++made != row.nth) return std::nullopt;
      return support::Instead{make_error_code(std::errc::io_error)};
    };
    try {
      (void)file::Replacement(watched, "dbnamep.mdb", "x.mdb", kSpared).commit("new");
      ADD_FAILURE() << row.message;
    } catch (const file::Error& error) {
      EXPECT_EQ(error.what(), std::string(row.message) + ": Input/output error.");
    }
    EXPECT_EQ(system.content("x.mdb"), "old content");
    if (system.has("dbnamep.mdb")) system.remove("dbnamep.mdb");
  }
  support::WatchedSystem watched(system);
  watched.before = [](const support::CallInfo& info) -> std::optional<support::Instead> {
    if (info.call != support::Call::FlushFolder) return std::nullopt;
    return support::Instead{make_error_code(std::errc::io_error)};
  };
  EXPECT_EQ(file::Replacement(watched, "dbnamep.mdb", "x.mdb", kSpared).commit("new"),
            "cannot write to the disk the folder of /kelmar/x.mdb: Input/output error. The database holds the new content, "
            "but a power cut may bring the old one back: save it again.");
}

TEST_F(Replace, TellsOfADiskThatDoesNotHoldWhatWasWritten) {
  support::WatchedSystem watched(system);
  watched.after = [this](const support::CallInfo& info) {
    if (info.call == support::Call::Flush) system.at("dbnamep.mdb").content += '!';
  };
  try {
    (void)file::Replacement(watched, "dbnamep.mdb", "x.mdb", kSpared).commit("new");
    ADD_FAILURE();
  } catch (const file::Error& error) {
    EXPECT_STREQ(error.what(), "dbnamep.mdb does not hold what was written to it. The disk may be failing.");
  }
  EXPECT_EQ(system.content("x.mdb"), "old content");
  expect_nothing_left(1);
}

TEST_F(Replace, CopiesOverButNotOntoItself) {
  EXPECT_EQ(file::copy_over(system, "x.mdb", "y.mdb", kSpared), "");
  EXPECT_EQ(system.content("y.mdb"), "old content");
  system.link("z.mdb", "/kelmar/x.mdb");
  EXPECT_EQ(file::copy_over(system, "x.mdb", "z.mdb", kSpared), "");
  EXPECT_EQ(system.at("z.mdb").type, Type::Link);
  expect_nothing_left(3);
}

}  // namespace
