// The power fails after every call of a save, and the disk keeps of what was not flushed whatever it likes: every subset,
// each write also torn in the middle. In every state that this leaves, the path holds a whole database, and after a success
// the new one.
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "file/replacement.h"
#include "support/memory_system.h"
#include "support/watched_system.h"

namespace {

using support::Call;
using support::CallInfo;
using support::MemorySystem;
using support::WatchedSystem;

// The names and contents of a disk. Files are told apart by their number.
struct Disk {
  std::map<std::string, int> names;
  std::map<int, std::string> files;
};

// Something that was asked of the disk and is not on it for certain until a flush.
struct Change {
  Call call;
  int file;
  std::string from, to, bytes;
};

void apply(const Change& change, bool torn, Disk& disk) {
  switch (change.call) {
    case Call::CreateNew: disk.names[change.from] = change.file; break;
    case Call::Write:
      disk.files[change.file] += torn ? change.bytes.substr(0, change.bytes.size() / 2) : change.bytes;
      break;
    case Call::Rename: disk.names[change.to] = change.file; [[fallthrough]];
    default: disk.names.erase(change.from);
  }
}

// Notes what a program asks of a disk, and gives every state that a power cut may leave.
class Recorder {
 public:
  explicit Recorder(MemorySystem& memory) : memory_(memory), watched(memory) {
    for (const auto& [path, content] : memory.all()) {
      safe_.names[path] = ++last_file_;
      safe_.files[last_file_] = content;
    }
    now_ = safe_.names;
    watched.after = [this](const CallInfo& info) {
      if (note(info)) examine(during);
    };
  }

  std::function<void(const Disk&)> during = [](const Disk&) {};
  // Every state that a power cut may leave now.
  void examine(const std::function<void(const Disk&)>& look) {
    ASSERT_LE(pending_.size(), 12u);
    std::size_t states = 1;
    for (std::size_t i = 0; i < pending_.size(); ++i) states *= 3;  // lost, torn, or whole
    for (std::size_t state = 0; state < states; ++state) {
      Disk disk = safe_;
      std::size_t rest = state;
      for (const Change& change : pending_) {
        if (rest % 3 != 0) apply(change, rest % 3 == 1, disk);
        rest /= 3;
      }
      look(disk);
      ++examined_;
    }
  }
  int examined() const { return examined_; }

 private:
  static std::string folder(const std::string& path) { return path.substr(0, path.rfind('/')); }

  // False for a call that asks nothing of the disk.
  bool note(const CallInfo& info) {
    const std::string from = memory_.absolute(info.path), to = memory_.absolute(info.to);
    if (info.call == Call::CreateNew) open_[info.handle] = now_[from] = ++last_file_;
    const int file = open_.count(info.handle) > 0 ? open_.at(info.handle) : now_.count(from) > 0 ? now_.at(from) : 0;
    switch (info.call) {
      case Call::Close: open_.erase(info.handle); return false;
      case Call::Flush: return settle([&](const Change& c) { return c.file == file && c.call == Call::Write; });
      case Call::FlushFolder:
        return settle([&](const Change& c) {
          return c.call != Call::Write && (folder(c.from) == folder(from) || folder(c.to) == folder(from));
        });
      case Call::Rename: now_[to] = file; break;
      case Call::CreateNew:
      case Call::Write:
      case Call::Remove: break;
      default: return false;
    }
    if (info.call == Call::Rename || info.call == Call::Remove) now_.erase(from);
    pending_.push_back({info.call, file, from, to, std::string(info.bytes)});
    return true;
  }

  bool settle(const std::function<bool(const Change&)>& flushed) {
    std::vector<Change> left;
    for (const Change& change : pending_) {
      if (flushed(change))
        apply(change, false, safe_);
      else
        left.push_back(change);
    }
    pending_ = left;
    return true;
  }

  MemorySystem& memory_;
  Disk safe_;                       // what is on the disk for certain
  std::vector<Change> pending_;     // what may be
  std::map<std::string, int> now_;  // names as the program sees them
  std::map<file::Handle, int> open_;
  int last_file_ = 0, examined_ = 0;

 public:
  WatchedSystem watched;
};

const std::string kOld = "the old content of the database, in several records", kNew = "the new content, shorter",
                  kLonger = "the new content of the database, which is quite a bit longer than the old one";

std::string content(const Disk& disk, const std::string& path) {
  const auto name = disk.names.find(path);
  if (name == disk.names.end()) return "(missing)";
  const auto file = disk.files.find(name->second);
  return file == disk.files.end() ? "" : file->second;
}

struct Found {
  int mixed = 0, old_after_success = 0, states = 0;
};

// A replacement on a disk that makes nothing of one kind of call.
Found replace(const std::string& target, const std::string& fresh, std::optional<Call> ignored) {
  MemorySystem memory;
  memory.add_folder("/other");
  memory.add_folder("/far", {.device = 2});
  memory.add(target, kOld);
  memory.link("/far/link.mdb", target);
  memory.add("dbnamep.mdb", "a leftover");
  Recorder recorder(memory);
  recorder.watched.before = [&](const CallInfo& info) {
    return info.call == ignored ? std::optional(support::Instead{}) : std::nullopt;
  };
  Found found;
  recorder.during = [&](const Disk& disk) {
    const std::string now = content(disk, target);
    found.mixed += now != kOld && now != fresh;
  };
  file::Replacement replacement(recorder.watched, "dbnamep.mdb", "/far/link.mdb", {"comp.mdb", ""});
  EXPECT_EQ(replacement.commit(fresh), std::nullopt);
  recorder.examine([&](const Disk& disk) { found.old_after_success += content(disk, target) != fresh; });
  found.states = recorder.examined();
  return found;
}

TEST(PowerCut, LeavesAWholeDatabaseAndAfterASuccessTheNewOne) {
  int states = 0;
  for (const std::string& fresh : {kNew, kLonger}) {
    for (const char* target : {"/kelmar/x.mdb", "/other/x.mdb", "/far/x.mdb"}) {
      const Found found = replace(target, fresh, std::nullopt);
      EXPECT_EQ(found.mixed, 0) << target;
      EXPECT_EQ(found.old_after_success, 0) << target;
      states += found.states;
    }
  }
  std::cout << states << " states examined\n";
  EXPECT_GT(states, 300);
}

// The test itself finds what a replacement without its flushes would lose.
TEST(PowerCut, IsFeltWithoutEitherFlush) {
  for (const char* target : {"/kelmar/x.mdb", "/other/x.mdb", "/far/x.mdb"}) {
    EXPECT_GT(replace(target, kNew, Call::Flush).mixed, 0) << target;
    EXPECT_GT(replace(target, kNew, Call::FlushFolder).old_after_success, 0) << target;
  }
}

}  // namespace
