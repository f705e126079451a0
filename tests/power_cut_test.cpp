// The power fails after every call of a save, and the disk keeps of what was not flushed whatever it likes: every subset,
// each write also torn in the middle. In every state that this leaves, the path holds a whole database, and after a success
// the new one.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "file/replacement.h"
#include "support/memory_system.h"
#include "support/watched_system.h"

namespace support {
namespace {

// The names and contents of a disk, the files by their number.
struct Disk {
  std::map<std::string, std::uint64_t> names;
  std::map<std::uint64_t, std::string> files;

  std::string content(const std::string& path) const {
    const auto name = names.find(path);
    if (name == names.end()) return "(missing)";
    const auto file = files.find(name->second);
    return file == files.end() ? "" : file->second;
  }
};

// Something that was asked of the disk and is not on it for certain until a flush.
struct Change {
  Call call;
  std::uint64_t file;
  std::string from, to, bytes;

  void apply(Disk& disk, bool torn) const {
    if (call == Call::Write) disk.files[file] += torn ? bytes.substr(0, bytes.size() / 2) : bytes;
    if (call == Call::Rename || call == Call::Remove) disk.names.erase(from);
    if (call == Call::Rename || call == Call::CreateNew) disk.names[to] = file;
  }
};

// Notes what a program asks of a disk, and gives every state that a power cut may leave.
class Recorder {
 public:
  explicit Recorder(MemorySystem& memory) : memory_(memory), watched(memory) {
    for (const auto& [path, content] : memory.all()) {
      safe_.names[path] = memory.at(path).inode;
      safe_.files[memory.at(path).inode] = content;
    }
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
        if (rest % 3 != 0) change.apply(disk, rest % 3 == 1);
        rest /= 3;
      }
      look(disk);
    }
    examined += static_cast<int>(states);
  }
  int examined = 0;

 private:
  // False for a call that asks nothing of the disk.
  bool note(const CallInfo& info) {
    const std::string from = memory_.absolute(info.path), to = memory_.absolute(info.to);
    const auto folder = [](const std::string& path) { return path.substr(0, path.rfind('/')); };
    const auto file_of = [&] {
      file::Status status;
      EXPECT_EQ(memory_.status(info.handle, status), std::error_code());
      return status.identity[1];
    };
    switch (info.call) {
      case Call::Flush: settle([&](const Change& c) { return c.call == Call::Write && c.file == file_of(); }); break;
      case Call::FlushFolder:
        settle([&](const Change& c) {
          return c.call != Call::Write && (folder(c.from) == folder(from) || folder(c.to) == folder(from));
        });
        break;
      case Call::CreateNew: pending_.push_back({info.call, file_of(), "", from, ""}); break;
      case Call::Write: pending_.push_back({info.call, file_of(), "", "", std::string(info.bytes)}); break;
      case Call::Rename: pending_.push_back({info.call, memory_.at(to).inode, from, to, ""}); break;
      case Call::Remove: pending_.push_back({info.call, 0, from, "", ""}); break;
      default: return false;
    }
    return true;
  }

  void settle(const std::function<bool(const Change&)>& flushed) {
    for (const Change& change : pending_)
      if (flushed(change)) change.apply(safe_, false);
    std::erase_if(pending_, flushed);
  }

  MemorySystem& memory_;
  Disk safe_;                    // what is on the disk for certain
  std::vector<Change> pending_;  // what may be

 public:
  WatchedSystem watched;
};

const std::string kOld = "the old content of the database, in several records", kNew = "the new content, shorter",
                  kLonger = "the new content of the database, which is quite a bit longer than the old one";

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
    return info.call == ignored ? std::optional(Instead{}) : std::nullopt;
  };
  Found found;
  recorder.during = [&](const Disk& disk) { found.mixed += disk.content(target) != kOld && disk.content(target) != fresh; };
  file::Replacement replacement(recorder.watched, "dbnamep.mdb", "/far/link.mdb", {"comp.mdb", ""});
  EXPECT_EQ(replacement.commit(fresh), std::nullopt);
  recorder.examine([&](const Disk& disk) { found.old_after_success += disk.content(target) != fresh; });
  found.states = recorder.examined;
  return found;
}

TEST(PowerCut, LeavesAWholeDatabaseAndAfterASuccessTheNewOne) {
  int states = 0;
  for (const char* target : {"/kelmar/x.mdb", "/other/x.mdb", "/far/x.mdb"}) {
    for (const std::string& fresh : {kNew, kLonger}) {
      const Found found = replace(target, fresh, std::nullopt);
      EXPECT_EQ(found.mixed, 0) << target;
      EXPECT_EQ(found.old_after_success, 0) << target;
      states += found.states;
    }
    // The test itself finds what a replacement without its flushes would lose.
    EXPECT_GT(replace(target, kNew, Call::Flush).mixed, 0) << target;
    EXPECT_GT(replace(target, kNew, Call::FlushFolder).old_after_success, 0) << target;
  }
  EXPECT_GT(states, 1000);
}

}  // namespace
}  // namespace support
