// A file replaced in all the circumstances that a disk may hold ready.
#include "file/replacement.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <system_error>

#include "support/memory_system.h"
#include "support/watched_system.h"

namespace {

using file::Type;
using support::Call;
using support::CallInfo;
using support::MemorySystem;
using support::WatchedSystem;

const file::Spared kSpared{"comp.mdb", "the component database"};

class Replace : public testing::Test {
 protected:
  Replace() { system.add("x.mdb", "old content"); }

  // What the user is told.
  std::string replace(const std::string& target, const std::string& content = "new") {
    try {
      return file::Replacement(watched, "dbnamep.mdb", target, kSpared).commit(content).value_or("");
    } catch (const file::Error& error) {
      return error.what();
    }
  }
  // The call fails at its nth occurrence, and is not made.
  void fail(Call call, int nth, std::error_code error = make_error_code(std::errc::io_error)) {
    watched.before = [=, made = 0](const CallInfo& info) mutable -> std::optional<support::Instead> {
      if (info.call != call || ++made != nth) return std::nullopt;
      return support::Instead{error};
    };
  }
  // The files of the working folder beside x.mdb and its links.
  void expect_nothing_left(std::size_t files) {
    EXPECT_EQ(system.all().size(), files);
    EXPECT_EQ(system.open_handles(), 0);
  }

  MemorySystem system;
  WatchedSystem watched{system};
};

TEST_F(Replace, KeepsWhatTheFileIsForOthers) {
  system.at("x.mdb").mode = 0664;
  system.at("x.mdb").attributes = "an access list";
  system.link("link.mdb", "other.mdb");
  system.link("other.mdb", "/kelmar/x.mdb");
  std::uint32_t mode_at_first = 0;
  watched.after = [&](const CallInfo& info) {
    if (info.call == Call::CreateNew) mode_at_first = system.at(info.path).mode;
  };
  EXPECT_EQ(replace("link.mdb"), "");
  EXPECT_EQ(mode_at_first, 0600u) << "others could read the new content before it has the permissions of the old";
  EXPECT_EQ(system.at("link.mdb").type, Type::Link);
  EXPECT_EQ(system.content("x.mdb"), "new");
  EXPECT_EQ(system.at("x.mdb").mode, 0664u);
  EXPECT_EQ(system.at("x.mdb").attributes, "an access list");
  expect_nothing_left(3);
  EXPECT_EQ(replace("fresh.mdb"), "");
  EXPECT_EQ(system.at("fresh.mdb").mode, 0644u);
}

TEST_F(Replace, ReachesAnotherFileSystem) {
  system.add_folder("/far", {.device = 2});
  system.add("/far/x.mdb", "old");
  EXPECT_EQ(replace("/far/x.mdb"), "");
  EXPECT_EQ(replace("/far/new.mdb"), "");
  EXPECT_EQ(system.content("/far/x.mdb") + system.content("/far/new.mdb"), "newnew");
  expect_nothing_left(3);
}

TEST_F(Replace, RefusesWhatWouldEndangerSomething) {
  const std::string elsewhere = " Use \"Save changes to new database\" with another place.",
                    in_the_way = "dbnamep.mdb is in the way: it is not a plain file. Remove it and try again.",
                    itself =
                        "the open database is the temporary file dbnamep.mdb itself. Copy it to another name and open that.",
                    spared = " is the component database, which is never changed. Choose another file for one of the two.";
  const struct {
    std::function<void(MemorySystem&)> prepare;
    const char* target;
    std::string message;
  } rows[] = {
      {[](MemorySystem& s) { s.at("x.mdb").writable = false; }, "x.mdb",
       "x.mdb is read-only. Make it writable or save to a new database."},
      {[](MemorySystem& s) { s.at("x.mdb").type = Type::Other; }, "x.mdb",
       "x.mdb is not a plain file. Choose another name."},
      {[](MemorySystem& s) { s.hard_link("y.mdb", "x.mdb"); }, "x.mdb",
       "x.mdb has several names (hard links), from which replacing it would part it." + elsewhere},
      {[](MemorySystem& s) {
         s.add_folder("/closed", {.writable = false});
         s.add("/closed/x.mdb", "old content");
       },
       "/closed/x.mdb", "the folder of /closed/x.mdb does not let a file be replaced." + elsewhere},
      {[](MemorySystem& s) { s.add_folder("/closed", {.device = 2, .writable = false}); }, "/closed/x.mdb",
       "cannot create /closed/x.mdb.dbnamep: Permission denied."},
      {[](MemorySystem& s) { s.link("dbnamep.mdb", "x.mdb"); }, "x.mdb", in_the_way},
      {[](MemorySystem& s) { s.link("dbnamep.mdb", "nowhere"); }, "x.mdb", in_the_way},
      {[](MemorySystem& s) {
         s.add("dbnamep.mdb", "");
         s.at("dbnamep.mdb").type = Type::Folder;
       },
       "x.mdb", in_the_way},
      {[](MemorySystem& s) { s.add("dbnamep.mdb", "old content"); }, "dbnamep.mdb", itself},
      {[](MemorySystem& s) { s.add("dbnamep.mdb", "old content"); }, "/kelmar/dbnamep.mdb", itself},
      {[](MemorySystem& s) { s.link("y.mdb", "dbnamep.mdb"), s.add("dbnamep.mdb", "old content"); }, "y.mdb", itself},
      {[](MemorySystem&) {}, "dbnamep.mdb", itself},
      {[](MemorySystem& s) { s.hard_link("comp.mdb", "x.mdb"); }, "x.mdb", "x.mdb" + spared},
      {[](MemorySystem& s) { s.add("comp.mdb", ""), s.hard_link("dbnamep.mdb", "comp.mdb"); }, "x.mdb",
       "dbnamep.mdb" + spared},
  };
  for (const auto& row : rows) {
    system = MemorySystem();
    system.add("x.mdb", "old content");
    row.prepare(system);
    const auto before = system.all();
    EXPECT_EQ(replace(row.target), row.message);
    EXPECT_EQ(system.all(), before) << row.message;
    EXPECT_EQ(system.open_handles(), 0) << row.message;
  }
}

TEST_F(Replace, RemovesAPlainLeftoverAndNothingElse) {
  system.add("precious", "somebody's only copy");
  system.hard_link("dbnamep.mdb", "precious");
  EXPECT_EQ(replace("x.mdb"), "");
  EXPECT_EQ(system.content("precious"), "somebody's only copy");
  // One that is another user's is told as that.
  for (const auto& [call, reason] : {std::pair(Call::ExcludeOthers, std::errc::permission_denied),
                                     std::pair(Call::Remove, std::errc::operation_not_permitted)}) {
    system.add("dbnamep.mdb", "another's");
    fail(call, call == Call::Remove ? 1 : 2, make_error_code(reason));
    EXPECT_EQ(
        replace("x.mdb"),
        "dbnamep.mdb belongs to ada, whose saving in this folder is not done or was interrupted. Try again in a while; if "
        "the file stays, have ada remove it.");
    EXPECT_EQ(system.content("dbnamep.mdb"), "another's");
  }
  // A file that has come under the name meanwhile is another editor's: it takes nobody's place and is not removed.
  system.remove("dbnamep.mdb");
  watched.before = [](const CallInfo&) { return std::nullopt; };
  watched.after = [this](const CallInfo& info) {
    if (info.call == Call::Flush) system.add("dbnamep.mdb", "half a database");
  };
  EXPECT_NE(replace("x.mdb", "second"), "");
  EXPECT_EQ(system.content("x.mdb") + ", " + system.content("dbnamep.mdb"), "new, half a database");
}

// Two savings of one database, or in one folder: the second takes its turn, or is told.
TEST_F(Replace, TakesItsTurn) {
  const struct {
    const char *temporary, *target, *told;
  } rows[] = {{"dbnamep.mdb", "x.mdb", "x.mdb is in use: another editor is saving it. Wait until it is done and try again."},
              {"/other/dbnamep.mdb", "link.mdb",
               "link.mdb is in use: another editor is saving it. Wait until it is done and try again."},
              {"dbnamep.mdb", "y.mdb",
               "dbnamep.mdb is in use: another editor is saving in this folder. Wait until it is done and try again."}};
  system.add_folder("/other");
  system.link("link.mdb", "x.mdb");
  system.add("y.mdb", "old content");
  for (const auto& [temporary, target, told] : rows) {
    std::optional<file::Replacement> first(std::in_place, system, "dbnamep.mdb", "x.mdb", kSpared);
    const auto second = [&, temporary = temporary, target = target]() -> std::string {
      try {
        return file::Replacement(system, temporary, target, kSpared).commit("second").value_or("");
      } catch (const file::Error& error) {
        return error.what();
      }
    };
    EXPECT_EQ(second(), told);
    int waited = 0;
    system.meanwhile = [&] {
      if (++waited != 5) return;
      EXPECT_EQ(first->commit("first"), std::nullopt);
      first.reset();
    };
    EXPECT_EQ(second(), "");
    EXPECT_EQ(waited, 5);
    EXPECT_EQ(system.content(target), "second");
    system.meanwhile = [] {};
  }
  // Where the file system knows no locks, the names alone keep them apart.
  system.folder("/kelmar").locks = false;
  file::Replacement first(system, "dbnamep.mdb", "x.mdb", kSpared);
  EXPECT_EQ(replace("y.mdb", "third"), "");
  EXPECT_THROW((void)first.commit("fourth"), file::Error);
  EXPECT_EQ(system.content("x.mdb"), "first");
}

TEST_F(Replace, LeavesAloneWhatAnotherProgramChangedMeanwhile) {
  const std::function<void()> changes[] = {[&] { system.add("x.mdb", "other"); },  // another file under the name
                                           [&] { system.at("x.mdb").content = "longer than it was"; },
                                           [&] { ++system.at("x.mdb").changed; }, [&] { system.remove("x.mdb"); }};
  for (const auto& change : changes) {
    system.add("x.mdb", "old content");
    watched.after = [&](const CallInfo& info) {
      if (info.call == Call::Flush) change();
    };
    EXPECT_EQ(replace("x.mdb"),
              "x.mdb was changed by another program while it was being saved, and is left as that made it. Show the species "
              "again and repeat the change.");
    EXPECT_NE(system.content("x.mdb"), "new");
    if (system.has("x.mdb")) expect_nothing_left(1);
  }
  watched.after = [&](const CallInfo& info) {
    if (info.call == Call::Flush) system.add("fresh.mdb", "another's");
  };
  EXPECT_NE(replace("fresh.mdb"), "");
  EXPECT_EQ(system.content("fresh.mdb"), "another's");
}

// Each call that fails is told with what it was for, the file, and the system's reason.
TEST_F(Replace, SaysWhatFailedAndWhere) {
  const struct {
    Call call;
    int nth;
    const char* message;
  } rows[] = {
      {Call::StatusOfPath, 1, "cannot look at x.mdb"},
      {Call::StatusOfPath, 2, "cannot look at comp.mdb"},
      {Call::WithoutLinks, 1, "cannot find x.mdb"},
      {Call::ExcludeOthers, 1, "cannot lock x.mdb"},
      {Call::ExcludeOthers, 2, "cannot remove dbnamep.mdb"},
      {Call::ExcludeOthers, 3, "cannot lock dbnamep.mdb"},
      {Call::Remove, 1, "cannot remove dbnamep.mdb"},
      {Call::CreateNew, 1, "cannot create dbnamep.mdb"},
      {Call::StatusOfHandle, 1, "cannot look at dbnamep.mdb"},
      {Call::Write, 1, "cannot write dbnamep.mdb"},
      {Call::TakeOver, 1, "cannot set the permissions of dbnamep.mdb"},
      {Call::Flush, 1, "cannot write to the disk dbnamep.mdb"},
      {Call::OpenRead, 1, "cannot open dbnamep.mdb"},
      {Call::Read, 1, "cannot read back dbnamep.mdb"},
      {Call::Rename, 1, "cannot replace /kelmar/x.mdb"},
  };
  for (const auto& [call, nth, message] : rows) {
    system.add("dbnamep.mdb", "a leftover");
    fail(call, nth);
    EXPECT_EQ(replace("x.mdb"), std::string(message) + ": Input/output error.");
    EXPECT_EQ(system.content("x.mdb"), "old content");
    if (system.has("dbnamep.mdb")) system.remove("dbnamep.mdb");
    expect_nothing_left(1);
  }
  fail(Call::FlushFolder, 1);
  EXPECT_EQ(
      replace("x.mdb"),
      "cannot write to the disk the folder of /kelmar/x.mdb: Input/output error. The database holds the new content, but "
      "a power cut may bring the old one back: save it again.");
  EXPECT_EQ(system.content("x.mdb"), "new");
  fail(Call::Rename, 1, make_error_code(std::errc::permission_denied));
  EXPECT_EQ(replace("x.mdb", "newer"),
            "the folder of x.mdb does not let a file be replaced. Use \"Save changes to new database\" with another place.");
  // A close that fails; a write that puts nothing; a disk that does not hold what was written.
  file::Handle writer = -1;
  watched.after = [&](const CallInfo& info) {
    if (info.call == Call::CreateNew) writer = info.handle;
  };
  watched.before = [&](const CallInfo& info) -> std::optional<support::Instead> {
    if (info.call != Call::Close || info.handle != writer) return std::nullopt;
    return support::Instead{make_error_code(std::errc::io_error)};
  };
  EXPECT_EQ(replace("x.mdb", "newer"), "cannot close dbnamep.mdb: Input/output error.");
  fail(Call::Write, 1, {});
  EXPECT_EQ(replace("x.mdb", "newer"), "cannot write dbnamep.mdb: No space left on device.");
  watched.before = [](const CallInfo&) { return std::nullopt; };
  watched.after = [this](const CallInfo& info) {
    if (info.call == Call::Flush) system.at("dbnamep.mdb").content += '!';
  };
  EXPECT_EQ(replace("x.mdb", "newer"), "dbnamep.mdb does not hold what was written to it. The disk may be failing.");
  EXPECT_EQ(system.content("x.mdb"), "new");
  expect_nothing_left(1);
}

TEST_F(Replace, TriesAFailedFlushOnlyOnce) {
  int flushes = 0;
  watched.before = [&](const CallInfo& info) -> std::optional<support::Instead> {
    if (info.call != Call::Flush) return std::nullopt;
    return ++flushes == 1 ? std::optional(support::Instead{make_error_code(std::errc::interrupted)}) : std::nullopt;
  };
  EXPECT_NE(replace("x.mdb"), "");
  EXPECT_EQ(flushes, 1);
}

TEST_F(Replace, CopiesOverButNotOntoItself) {
  EXPECT_EQ(file::copy_over(watched, "x.mdb", "y.mdb", kSpared), std::nullopt);
  EXPECT_EQ(system.content("y.mdb"), "old content");
  system.link("z.mdb", "/kelmar/x.mdb");
  watched.after = [](const CallInfo& info) { EXPECT_NE(info.call, Call::CreateNew); };
  for (const char* same : {"x.mdb", "z.mdb"}) EXPECT_EQ(file::copy_over(watched, "x.mdb", same, kSpared), std::nullopt);
  expect_nothing_left(3);
  // In many blocks.
  std::string large;
  while (large.size() < 200'000) large += std::to_string(large.size()) + ",";
  system.add("large.mdb", large);
  EXPECT_EQ(file::copy_over(system, "large.mdb", "y.mdb", kSpared), std::nullopt);
  EXPECT_EQ(system.content("y.mdb"), large);
}

TEST_F(Replace, ReadsAsAWholeWhatIsNotTooLarge) {
  EXPECT_EQ(file::read_whole(system, "x.mdb", 11), "old content");
  const auto message = [](const auto& read) -> std::string {
    try {
      return read();
    } catch (const file::Error& error) {
      return error.what();
    }
  };
  EXPECT_EQ(message([&] { return file::read_whole(system, "x.mdb", 10); }),
            "cannot read x.mdb as a whole: it is larger than any database.");
  EXPECT_EQ(message([&] { return file::read_whole(system, "", 10); }),
            "cannot open a file without a name: No such file or directory.");
  fail(Call::Read, 1);
  EXPECT_EQ(message([&] { return file::read_whole(watched, "x.mdb", 11); }), "cannot read x.mdb: Input/output error.");
}

}  // namespace
