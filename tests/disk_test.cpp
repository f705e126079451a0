// The tables in tests/disk: what the program relies on in a file system, what a replacement makes of it, and what the window
// and the launcher make of its failures, on the real disk and on the files in memory on which all tests of faults rest. "=
// TITLE" begins in an empty folder; letters after the "=" name the worlds that alone play a case: m the files in memory, d a
// disk of POSIX, r such a disk by root, w a disk of Windows. Below it stand operations, with "=> RESULT" where they have one
// ("FOLDER" is the folder's path, other characters as in support::plain()). "fail CALL N ERROR" makes the Nth such call of
// what follows fail, or with * each, "refuse FUNCTION ERROR" that function of the system's own library (on Windows with an
// error's number); "after CALL LINE" and "at CALL N LINE" do something after each such call, or after the Nth; "waiting N
// LINE" while the program waits for the Nth time, "asked LINE" while the next box stands, "before-lock LINE" before a file
// that was opened is locked; in these LINEs "==" stands for "=>". A line of a story (player/player.h) is played in a window,
// and gives its message boxes but for questions.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "disk/world.h"
#include "file/replacement.h"
#include "launcher/hand_over.h"
#include "player/player.h"
#include "support/memory_system.h"
#include "support/text.h"
#include "support/watched_system.h"

int disk::error_of(const std::string& name) {
  static const std::map<std::string, int> kErrors = {{"EACCES", EACCES}, {"EBUSY", EBUSY},   {"EINTR", EINTR},
                                                     {"EINVAL", EINVAL}, {"EIO", EIO},       {"ENOENT", ENOENT},
                                                     {"ENOLCK", ENOLCK}, {"ENOSYS", ENOSYS}, {"ENOTSUP", ENOTSUP},
                                                     {"EPERM", EPERM},   {"EROFS", EROFS},   {"EWOULDBLOCK", EWOULDBLOCK},
                                                     {"nothing", 0}};
  return kErrors.at(name);
}

std::pair<std::string, std::string> disk::split(const std::string& text) {
  const std::size_t blank = std::min(text.find(' '), text.size());
  return {text.substr(0, blank), text.substr(std::min(blank + 1, text.size()))};
}

namespace {

using disk::split;
using file::Follow;
using file::OpenFile;
using file::Status;
using file::Type;
using support::Call;
using support::CallInfo;
using support::plain;

const file::Spared kSpared{"comp.mdb", "the component database"};

// Carries out operations in a folder of the disk, or in memory.
class Script {
 public:
  Script(file::System& system, std::string folder, support::MemorySystem* memory)
      : system_(system),
        watched_(system),
        folder_(std::move(folder)),
        memory_(memory) {}
  ~Script() { disk::refuse_nothing(); }

  void play(const std::string& line) {
    if (skips_) return;
    const std::size_t arrow = line.find(" =>");
    std::string asked = line.substr(0, arrow);
    const std::string folder = std::filesystem::path(folder_).generic_string();
    exchange(asked, "FOLDER", folder);
    const auto event = player::parse_event(asked);
    const auto [verb, rest] = split(asked);
    const auto [first, second] = split(rest);
    std::string result = event ? shown_of(*event) : arrange(verb, first, second);
    exchange(result, folder_, "FOLDER");
    exchange(result, folder, "FOLDER");
    exchange(result, "FOLDER\\", "FOLDER/");
    if (result == "skipped")
      skips_ = true;
    else
      EXPECT_EQ(result, arrow == line.npos ? "" : plain(line.substr(std::min(arrow + 4, line.size()))));
  }

 private:
  using Text = const std::string&;

  static void exchange(std::string& text, Text old, Text fresh) {
    for (std::size_t at = 0; (at = text.find(old, at)) != text.npos; at += fresh.size()) text.replace(at, old.size(), fresh);
  }
  static std::string said(std::error_code error) { return error ? file::reason(error) : ""; }
  template <typename Action>
  static std::string told(Action action) {
    try {
      return action().value_or("");
    } catch (const file::Error& error) {
      return error.what();
    }
  }
  std::string create(Text name, Text content) {
    OpenFile file(system_);
    if (const auto error = system_.create_new(name, file::Access::Private, file.handle())) return said(error);
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
    system_.pause(std::chrono::milliseconds(20));  // longer than a tick of the file system's clock
    std::ofstream(disk::native(name), std::ios::app | std::ios::binary) << content;
    return "";
  }
  std::string files() {
    std::map<std::string, std::string> all;
    if (memory_ != nullptr) {
      for (const auto& [path, content] : memory_->all()) all[path.substr(folder_.size() + 1)] = content;
    } else {
      for (const auto& entry : std::filesystem::directory_iterator(".")) {
        const std::u8string name = entry.path().filename().u8string();
        all[{name.begin(), name.end()}] = read({name.begin(), name.end()}, 0, 200'000);
      }
    }
    std::string told;
    for (const auto& [name, content] : all) told += name + " [" + content + "] ";
    return told + std::to_string(memory_ != nullptr ? memory_->open_handles() : disk::open_files() - usual_) + " open";
  }
  // An open file, made if there was none.
  file::Handle held(Text name) {
    OpenFile& file = held_.try_emplace(name, system_).first->second;
    EXPECT_FALSE(file.get() < 0 && system_.create_new(name, file::Access::Private, file.handle()));
    return file.get();
  }
  static Call call_of(Text name) {
    return static_cast<Call>(std::ranges::find(support::kCallNames, name) - support::kCallNames);
  }
  std::string set_mode(Text name, unsigned mode) {
    if (memory_ == nullptr)
      return made([&](auto& error) { permissions(disk::native(name), std::filesystem::perms(mode), error); });
    if (name == ".") return memory_->folder(folder_).writable = (mode & 0200) != 0, "";
    return memory_->at(name).mode = mode, grow(name, "");
  }
  template <typename Make>
  static std::string made(Make make) {
    std::error_code error;
    return make(error), error ? "cannot be made" : "";
  }

  // Files made without the program, and whose they are.
  std::string prepare(Text verb, Text a, Text b) {
    support::MemorySystem* const m = memory_;
    if (verb == "put") return create(a, b);
    if (verb == "grow") return grow(a, b);
    if (verb == "chmod") return set_mode(a, static_cast<unsigned>(std::stoul(b, nullptr, 8)));
    if (verb == "files") return files();
    if (verb == "mode") {
      const unsigned mode = m != nullptr ? m->at(a).mode : static_cast<unsigned>(std::filesystem::status(a).permissions());
      return std::to_string(mode / 64) + std::to_string(mode / 8 % 8) + std::to_string(mode % 8);
    }
    if (m == nullptr) {
      using namespace std::filesystem;
      if (verb == "link") return made([&](auto& error) { create_symlink(b, a, error); });
      if (verb == "hardlink") return made([&](auto& error) { create_hard_link(disk::native(b), disk::native(a), error); });
      if (verb == "folder") return made([&](auto& error) { create_directories(disk::native(a), error); });
      return disk::operate(verb, a, b, held_.try_emplace(a, system_).first->second.handle()).value_or("no such operation");
    }
    if (verb == "link") return m->link(a, b), "";
    if (verb == "hardlink") return m->hard_link(a, b), "";
    if (verb == "far") return m->add_folder(a, {.device = 2, .writable = b != "closed"}), "";
    if (verb == "without-locks") return m->folder(folder_).locks = false, "";
    if (verb == "own") return m->at(a).owner = b, "";
    const bool folder = verb == "folder";
    if (!folder && verb != "pipe") return "no such operation";
    m->add(a, "");
    m->at(a).type = folder ? Type::Folder : Type::Other;
    if (folder) m->add_folder(folder_ + "/" + a);
    return "";
  }

  // One call of the system.
  std::string call(Text verb, Text a, Text b) {
    std::string text;
    if (verb == "content") return read(a, 0, 200'000);
    if (verb == "read") return read(a, std::stoull(b), 4);
    if (verb == "status") return shown(a, Follow::Nothing);
    if (verb == "status-followed") return shown(a, Follow::Links);
    if (verb == "exclude") return said(system_.exclude_others(b, held_.try_emplace(a, system_).first->second.handle()));
    if (verb == "release") return held_.erase(a), "";
    if (verb == "rename") return said(system_.rename(a, b));
    if (verb == "remove") return said(system_.remove(a));
    if (verb == "real") return system_.without_links(a, text) ? said(system_.without_links(a, text)) : text;
    if (verb == "owned") return "by " + (system_.owner_of(a).empty() ? "this user" : system_.owner_of(a));
    if (verb == "enter") return said(system_.change_folder(a));
    if (verb == "drive") return said(system_.change_drive(a.front()));
    if (verb == "in-file") return system_.path_in_file(a);
    if (verb == "pause") {
      const std::chrono::milliseconds time(std::stoi(a));
      const auto begin = std::chrono::steady_clock::now();
      system_.pause(time);
      return std::chrono::steady_clock::now() - begin > time / 2 ? "" : "too short";
    }
    if (verb == "where") return said(system_.current_folder(text)) + text;
    if (verb == "compare") {
      const Status x = look(a, Follow::Nothing), y = look(b, Follow::Links);
      return std::string(x.same_file(y) ? "same file" : "two files") + (x.same_content(y) ? ", same content" : "");
    }
    if (verb == "compare-places") return file::same_place(system_, a, b) ? "same place" : "two places";
    if (verb == "take-over") return said(system_.take_over(held(a), b));
    if (verb == "close-handle") return said(system_.close(std::stoi(a)));
    if (verb != "flush" && verb != "flush-folder") return prepare(verb, a, b);
    const file::Handle file = verb == "flush" ? held(a) : -1;
    disk::flushed.clear();
    const auto error = verb == "flush" ? system_.flush(file) : system_.flush_folder_of(a);
    return disk::flushed + (disk::flushed.empty() || !error ? "" : ", ") + said(error);
  }

  // What a launcher says that hands over the database at `path`; its end is "end NAME".
  std::string hand_over(Text name, Text path) {
    return told([&]() -> std::optional<std::string> {
      const launcher::Database database = launcher::enter(watched_, path);
      launched_.try_emplace(name, watched_).first->second.write(database);
      return database.notice;
    });
  }

  // What the program does.
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
    if (verb == "hand-over") return hand_over(a, b);
    if (verb == "end") return launched_.erase(a), "";
    if (verb == "open") return program_->form.state().open.path;
    if (verb == "dialogs-begin-in") return program_->form.state().dialog_folder;
    if (verb != "finish") return call(verb, a, b);
    const std::string result = told([&] { return begun_->commit(a); });
    return begun_.reset(), result;
  }

  // Plays the line when it is called for the nth time.
  std::function<void()> at_nth(Text n, Text line) {
    return [this, left = std::stoi(n), line]() mutable {
      if (--left == 0) play(line);
    };
  }

  // What happens beside it.
  std::string arrange(Text verb, Text a, Text b) {
    const auto [first, rest] = split(b);
    std::string line = verb == "asked" || verb == "before-lock" ? a + " " + b : verb == "at" ? rest : b;
    exchange(line, "==", "=>");
    if (verb == "fail") {
      watched_.before = [call = call_of(a), n = std::atoi(first.c_str()), each = first == "*",
                         error = disk::error_of(rest)](const CallInfo& info) mutable {
        return info.call == call && (each || --n == 0)
                   ? std::optional(support::Instead{std::error_code(error, std::generic_category())})
                   : std::nullopt;
      };
    } else if (verb == "undisturbed") {
      watched_.before = [](const CallInfo&) { return std::nullopt; };
      watched_.after = [](const CallInfo&) {};
      watched_.waiting = [] {};
      disk::refuse_nothing();
    } else if (verb == "refuse") {
      disk::refuse(a, b);
    } else if (verb == "after") {
      watched_.after = [this, call = call_of(a), line](const CallInfo& info) {
        if (info.call == call) play(line);
      };
    } else if (verb == "at") {
      watched_.after = [others = watched_.after, call = call_of(a), nth = at_nth(first, line)](auto& info) mutable {
        others(info);
        if (info.call == call) nth();
      };
    } else if (verb == "waiting") {
      watched_.waiting = at_nth(a, line);
    } else if (verb == "asked") {
      asked_ = line;
    } else if (verb == "before-lock") {
      disk::before_lock = [this, line] { play(line); };
    } else {
      return perform(verb, plain(a), plain(b));
    }
    return "";
  }

  // What an event of a story shows.
  std::string shown_of(player::Event event) {
    if (event.kind == player::Event::Kind::Load) {
      program_.emplace(watched_);
      program_->dialogs.report = [this](const std::string& line) {
        program_->told.push_back(line);
        if (!asked_.empty()) play(std::exchange(asked_, ""));
      };
    }
    event.text = plain(event.text);
    const std::size_t before = program_->told.size();
    EXPECT_EQ(program_->play(event), player::Outcome::Done);
    std::string all;
    static const std::string kRefusal = "box [Kelmar error] critical OK ";
    for (std::size_t i = before; i < program_->told.size(); ++i)
      if (program_->told[i].starts_with(kRefusal)) all += program_->told[i].substr(kRefusal.size());
    return all + (program_->form.window().ended ? " ended with " + std::to_string(program_->form.window().status) : "");
  }

  file::System& system_;
  support::WatchedSystem watched_;
  const std::string folder_;
  support::MemorySystem* const memory_;
  std::map<std::string, OpenFile> held_;
  std::optional<file::Replacement> begun_;
  std::map<std::string, launcher::HandOver> launched_;
  std::optional<player::Player> program_;
  std::string asked_;
  const std::ptrdiff_t usual_ = disk::open_files();
  bool skips_ = false;  // what this disk or this user cannot do
};

class Disk : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(Worlds, Disk, testing::Bool(),
                         [](const auto& world) { return world.param ? "InMemory" : "OnDisk"; });

TEST_P(Disk, DoesAsTabled) {
  const bool in_memory = GetParam();
  const std::string worlds = in_memory ? "m" : disk::worlds();
  int cases = 0;
  for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::absolute(DISK_CASES))) {
    if (entry.path().extension() != ".files") continue;
    std::ifstream file(entry.path());
    std::optional<disk::Folder> folder;
    std::optional<support::MemorySystem> memory;
    std::optional<Script> script;
    const auto usual = disk::open_files();
    for (std::string line, title; std::getline(file, line);) {
      if (line.empty() || line.front() == '#') continue;
      SCOPED_TRACE(entry.path().filename().string() + ": " + title + ": " + line);
      if (line.front() == '=') {
        title = line;
        script.reset();
        folder.reset();
        EXPECT_EQ(disk::open_files(), usual);
        const std::string these = split(line.substr(1)).first;
        if (!these.empty() && these.find_first_of(worlds) == these.npos) continue;
        if (in_memory) {
          memory.emplace();
          script.emplace(*memory, "/kelmar", &*memory);
        } else {
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

}  // namespace
