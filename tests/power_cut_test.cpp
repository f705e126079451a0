// The power fails after every call of a save, and the disk keeps of what was not flushed whatever it likes: every subset,
// each write also torn in the middle. In every state that this leaves, a whole database can be found.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "file/replacement.h"
#include "support/memory_system.h"
#include "support/watched_system.h"

namespace {

using support::Call;
using support::CallInfo;
using support::MemorySystem;
using support::WatchedSystem;

// The names and contents of a disk. Files are told apart by their number, as one may have several names.
struct Disk {
  std::map<std::string, int> names;
  std::map<int, std::string> files;
};

// Something that was asked of the disk and is not on it for certain until a flush.
struct Change {
  Call call;
  int file;
  std::string from, to;
  std::uint64_t offset = 0;
  std::string bytes{};
};

void apply(const Change& change, bool torn, Disk& disk) {
  std::string& content = disk.files[change.file];
  const std::string bytes = torn ? change.bytes.substr(0, change.bytes.size() / 2) : change.bytes;
  switch (change.call) {
    case Call::CreateNew: disk.names[change.from] = change.file; break;
    case Call::Write:
      content.resize(std::max(content.size(), static_cast<std::size_t>(change.offset) + bytes.size()));
      content.replace(static_cast<std::size_t>(change.offset), bytes.size(), bytes);
      break;
    case Call::Truncate: content.resize(static_cast<std::size_t>(change.offset)); break;
    case Call::Rename:
      disk.names.erase(change.from);
      disk.names[change.to] = change.file;
      break;
    case Call::Remove: disk.names.erase(change.from); break;
    default: break;
  }
}

// Notes what a program asks of a disk, and gives every state that a power cut may leave.
class Recorder {
 public:
  explicit Recorder(MemorySystem& memory) : memory_(memory), watched(memory) {
    std::map<std::uint64_t, int> numbers;
    for (const auto& [path, content] : memory.all()) {
      const int file = numbers.try_emplace(memory.at(path).inode, next_file_).first->second;
      next_file_ += file == next_file_;
      safe_.names[path] = file;
      safe_.files[file] = content;
    }
    now_ = safe_.names;
    watched.after = [this](const CallInfo& info) { note(info); };
  }

  // Calls `examine` with every state that a power cut after any call may have left.
  void examine_with(std::function<void(const Disk&)> examine) { examine_ = std::move(examine); }
  int states() const { return static_cast<int>(seen_.size()); }

 private:
  static std::string folder(const std::string& path) { return path.substr(0, path.rfind('/')); }

  void note(const CallInfo& info) {
    const std::string from = info.path.empty() ? "" : memory_.absolute(info.path),
                      to = info.to.empty() ? "" : memory_.absolute(info.to);
    switch (info.call) {
      case Call::CreateNew: now_[from] = next_file_++; [[fallthrough]];
      case Call::OpenExisting: open_[info.handle] = now_.at(from); break;
      default: break;
    }
    const int file = info.handle >= 0 && open_.count(info.handle) > 0 ? open_.at(info.handle)
                     : now_.count(from) > 0                           ? now_.at(from)
                                                                      : -1;
    switch (info.call) {
      case Call::CreateNew:
      case Call::Write:
      case Call::Truncate: pending_.push_back({info.call, file, from, to, info.offset, std::string(info.bytes)}); break;
      case Call::Rename:
        now_.erase(from);
        now_[to] = file;
        pending_.push_back({info.call, file, from, to});
        break;
      case Call::Remove:
        now_.erase(from);
        pending_.push_back({info.call, file, from, to});
        break;
      case Call::Flush:
        settle([&](const Change& c) { return c.file == file && (c.call == Call::Write || c.call == Call::Truncate); });
        break;
      case Call::FlushFolder:
        settle([&](const Change& c) {
          return !c.from.empty() && (folder(c.from) == folder(from) || folder(c.to) == folder(from));
        });
        break;
      default: return;
    }
    cut();
  }

  void settle(const std::function<bool(const Change&)>& flushed) {
    std::vector<Change> left;
    for (const Change& change : pending_) {
      if (flushed(change))
        apply(change, false, safe_);
      else
        left.push_back(change);
    }
    pending_ = left;
  }

  void cut() {
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
      std::string key;
      for (const auto& [name, file] : disk.names) key += name + "=" + disk.files[file] + ";";
      if (seen_.insert(key).second) examine_(disk);
    }
  }

  MemorySystem& memory_;
  Disk safe_;                       // what is on the disk for certain
  std::vector<Change> pending_;     // what may be
  std::map<std::string, int> now_;  // names as the program sees them
  std::map<file::Handle, int> open_;
  int next_file_ = 1;
  std::set<std::string> seen_;
  std::function<void(const Disk&)> examine_ = [](const Disk&) {};

 public:
  WatchedSystem watched;
};

const std::string kOld = "the old content of the database, in several records", kNew = "the new content, shorter";
const std::string kLonger = "the new content of the database, which is quite a bit longer than the old one";

std::string content(const Disk& disk, const std::string& path) {
  const auto name = disk.names.find(path);
  if (name == disk.names.end()) return "(missing)";
  const auto file = disk.files.find(name->second);
  return file == disk.files.end() ? "" : file->second;
}

struct Case {
  const char* name;
  std::string target;
  bool overwrites;
};

TEST(PowerCut, LeavesAWholeDatabase) {
  int states = 0;
  for (const std::string& fresh : {kNew, kLonger}) {
    for (const Case& c : {Case{"renamed", "/kelmar/x.mdb", false}, Case{"other folder", "/other/x.mdb", false},
                          Case{"other file system", "/far/x.mdb", false}, Case{"two names", "/kelmar/two.mdb", true},
                          Case{"closed folder", "/closed/x.mdb", true}}) {
      SCOPED_TRACE(c.name);
      MemorySystem memory;
      memory.add_folder("/other");
      memory.add_folder("/far", {.device = 2, .writable = true});
      memory.add_folder("/closed", {.device = 1, .writable = false});
      memory.add(c.target, kOld);
      memory.add("dbnamep.mdb", "a leftover");
      if (c.target == "/kelmar/two.mdb") memory.hard_link("/kelmar/also.mdb", c.target);
      Recorder recorder(memory);
      recorder.examine_with([&](const Disk& disk) {
        const std::string found = content(disk, c.target);
        const bool whole = found == kOld || found == fresh;
        const bool kept = c.overwrites && content(disk, "/kelmar/dbnamep.mdb.keep") == fresh;
        EXPECT_TRUE(whole || kept) << "found: " << found;
      });
      {
        file::Replacement replacement(recorder.watched, "dbnamep.mdb", c.target, {"comp.mdb", ""});
        EXPECT_EQ(replacement.commit(fresh), "");
        // What the user was not told about as failed is on the disk.
        recorder.examine_with([&](const Disk& disk) { EXPECT_EQ(content(disk, c.target), fresh); });
      }
      states += recorder.states();
    }
  }
  std::cout << states << " states examined\n";
  EXPECT_GT(states, 100);
}

// The test itself finds what a replacement without its flushes would lose.
TEST(PowerCut, WouldLoseADatabaseThatIsNotFlushed) {
  MemorySystem memory;
  memory.add("x.mdb", kOld);
  Recorder recorder(memory);
  int lost = 0;
  recorder.examine_with(
      [&](const Disk& disk) { lost += content(disk, "/kelmar/x.mdb") != kOld && content(disk, "/kelmar/x.mdb") != kNew; });
  file::Handle handle = -1;
  std::size_t put = 0;
  recorder.watched.create_new("t", file::Access::Private, handle);
  recorder.watched.write(handle, 0, kNew, put);
  recorder.watched.close(handle);
  recorder.watched.rename("t", "x.mdb");
  EXPECT_GT(lost, 0);
}

}  // namespace
