// Every call that an operation makes to the file system fails at its Nth occurrence, for every N until none is left, once
// and for ever, with every error that the call can give. Then the database is the whole old or the whole new one, the user
// was told, nothing is left behind, and no file is open.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <map>
#include <new>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "support/story.h"
#include "support/watched_system.h"

namespace {

int allocations_left = -1;  // until one fails; -1: none does

}  // namespace

[[gnu::noinline]] void* operator new(std::size_t size) {
  if (allocations_left >= 0 && support::calls_in_progress == 0 && allocations_left-- == 0) throw std::bad_alloc();
  if (void* const memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using support::Call;
using support::CallInfo;
using support::Instead;
using support::kTrailer;
using support::lines;
using support::MemorySystem;
using support::Program;
using support::WatchedSystem;

struct Fault {
  Call call;
  int nth;
  Instead instead;
  bool for_ever;
};

// Quota has no name of its own among these; to the program it is one more failed write.
std::vector<Instead> failures_of(Call call) {
  using E = std::errc;
  static const std::map<Call, std::vector<E>> kOwn{
      {Call::Read, {E::io_error, E::interrupted}},
      {Call::Write, {E::no_space_on_device, E::io_error, E::file_too_large, E::interrupted}},
      {Call::Flush, {E::io_error, E::no_space_on_device}},
      {Call::Close, {E::io_error, E::no_space_on_device}},
      {Call::CreateNew, {E::no_space_on_device, E::permission_denied, E::io_error, E::file_exists, E::interrupted}},
      {Call::Rename, {E::no_space_on_device, E::permission_denied, E::io_error, E::cross_device_link, E::interrupted}},
      {Call::ExcludeOthers, {E::operation_would_block, E::not_supported, E::io_error, E::interrupted}}};
  const auto own = kOwn.find(call);
  std::vector<Instead> all;
  for (const E code : own != kOwn.end() ? own->second : std::vector{E::permission_denied, E::io_error, E::interrupted})
    all.push_back({make_error_code(code), false});
  if (call == Call::Read || call == Call::Write) all.push_back({{}, true});
  return all;
}

// What an operation is tried on and how; each try begins anew.
struct Operation {
  const char* name;
  std::function<void(MemorySystem&)> prepare;
  std::function<void(Program&)> before;
  int click;            // what begins it
  bool changes = true;  // the database
  bool silent = false;  // a failure ends in silence
};

const std::string kDatabase =
    lines({"501,\"CuX\",0,1.5,0,0,2,0,0,0,0,1", "1,231", "502,\"FeX\",0,2.5,0,0,2,0,0,0,0,1", "1,330"}) + kTrailer;

void enter_new_species(Program& program) {
  program.click(app::cmdAddnew);
  program.type(app::cboComp, "Cu+2");
  program.type(app::txtStoicn, "1");
  program.type(app::txtSpname, "New");
  program.click(app::cmdSuggest);
  program.type(app::txtlogk, "1");
  program.type(app::txtCharge, "1");
  program.Answer(ui::Answer::Yes);
}
void change(Program& program) {
  program.Select("FeX");
  program.type(app::txtlogk, "7");
  program.Answer(ui::Answer::Yes);
}
void make_longer(Program& program) {
  program.Select("FeX");
  program.type(app::txtName, std::string(3000, 'n'));
  program.Answer(ui::Answer::Yes);
}
void select_first(Program& program) {
  program.Select("CuX");
  program.Answer(ui::Answer::Yes);
}
void nothing(MemorySystem&) {}

const Operation kOperations[] = {
    {"change", nothing, change, app::cmdSavedb},
    {"change that makes the file longer", nothing, make_longer, app::cmdSavedb},
    {"change beside a leftover", [](MemorySystem& s) { s.add("dbnamep.mdb", "half"); }, change, app::cmdSavedb},
    {"change on another file system",
     [](MemorySystem& s) {
       s.add_folder("/far", {.device = 2});
       s.add("/far/x.mdb", kDatabase);
       s.add("sorptemp.dat", "/far/x.mdb");
     },
     change, app::cmdSavedb},
    {"add", nothing, enter_new_species, app::cmdSavedb},
    {"deletion", nothing, select_first, app::cmdDelete},
    {"to new", nothing,
     [](Program& p) {
       change(p);
       p.Choose("new.mdb");
     },
     app::cmdNewDb, true, true},
    {"to new on another file system",
     [](MemorySystem& s) {
       s.add_folder("/far", {.device = 2});
       s.add("/far/new.mdb", "former");
     },
     [](Program& p) {
       change(p);
       p.Choose("/far/new.mdb");
     },
     app::cmdNewDb, true, true},
    {"load", nothing, [](Program& p) { p.Choose("x.mdb"); }, app::mnuFileOpen, false, true},
    {"display", nothing, [](Program& p) { p.Select("FeX"); }, app::lstReactions, false, true},
    {"suggestion", nothing, [](Program& p) { p.click(app::cmdAddnew); }, app::cmdSuggest, false, true},
};

class Attempt {
 public:
  explicit Attempt(const Operation& operation) : operation_(operation) {
    memory.add("dabase.txt", "C");
    memory.add("sorptemp.dat", "x.mdb");
    memory.add("comp.mdb", support::kComponents);
    memory.add("x.mdb", kDatabase);
    operation.prepare(memory);
    program.form.load();
    operation.before(program);
    before_ = memory.all();
    program.told.clear();
  }

  // True when the fault was reached.
  bool run(const Fault* fault) {
    std::map<Call, int> made;
    bool reached = false;
    watched.before = [&](const CallInfo& info) -> std::optional<Instead> {
      const int count = ++made[info.call];
      if (fault == nullptr || info.call != fault->call || (fault->for_ever ? count < fault->nth : count != fault->nth))
        return std::nullopt;
      reached = true;
      spoils_ |= spoils(info, *fault);
      return fault->instead;
    };
    watched.after = [this](const CallInfo& info) {
      if (info.call == Call::Write) writers_.insert(info.handle);
      renamed_ |= info.call == Call::Rename;
    };
    program.form.click(operation_.click);
    watched.before = [](const CallInfo&) { return std::nullopt; };
    return reached;
  }

  const std::map<std::string, std::string>& before() const { return before_; }
  // Whether the fault was one that no saving can get over.
  bool spoiled() const { return spoils_; }

  MemorySystem memory;
  WatchedSystem watched{memory};
  Program program{watched};

 private:
  // What is tried again or waited for does not, nor what is done only to clean up or to list the species again, nor the
  // closing of a file that was read.
  bool spoils(const CallInfo& info, const Fault& fault) const {
    const auto& error = fault.instead.error;
    const bool waited_for = error == std::errc::operation_would_block || error == std::errc::file_exists;
    if (!fault.for_ever && (error == std::errc::interrupted || waited_for)) return false;
    if (fault.instead.half || error == std::errc::not_supported || error == std::errc::cross_device_link) return false;
    if (renamed_) return info.call == Call::FlushFolder;
    return info.call == Call::Close ? writers_.count(info.handle) > 0
                                    : info.call != Call::StatusOfPath && info.call != Call::Remove;
  }

  const Operation& operation_;
  std::map<std::string, std::string> before_;
  std::set<file::Handle> writers_;
  bool renamed_ = false, spoils_ = false;
};

void check(const Operation& operation, const Fault& fault, const std::map<std::string, std::string>& whole,
           std::size_t usual_boxes) {
  Attempt attempt(operation);
  if (!attempt.run(&fault)) return;
  const auto after = attempt.memory.all();
  EXPECT_EQ(attempt.memory.open_handles(), 0);
  EXPECT_FALSE(attempt.program.form.state().suggestrun);
  EXPECT_NE(attempt.program.form.state().changedone, "Y");

  const bool told = attempt.program.told.size() > usual_boxes;
  for (const auto& [path, content] : after) {
    const bool old = attempt.before().count(path) > 0 && attempt.before().at(path) == content;
    const bool fresh = whole.count(path) > 0 && whole.at(path) == content;
    const bool copy = path.find("new.mdb") != std::string::npos && content == kDatabase;  // saving to new begins with one
    // A file that cannot be removed stays, and one that another editor has taken is that one's to remove.
    const bool leftover =
        path.find("dbnamep") != std::string::npos && (fault.call == Call::Remove || fault.call == Call::ExcludeOthers);
    EXPECT_TRUE(old || fresh || copy || leftover) << path << " holds " << content;
  }
  EXPECT_EQ(after.count("/kelmar/x.mdb"), 1u);
  if (operation.silent || !operation.changes) return;
  const bool saved = std::all_of(whole.begin(), whole.end(), [&](const auto& file) {
    return after.count(file.first) > 0 && after.at(file.first) == file.second;
  });
  // What was read or written in two parts is put together.
  EXPECT_TRUE(saved || (told && (fault.for_ever || !fault.instead.half))) << "nothing was saved, or nobody was told";
  EXPECT_TRUE(told || !attempt.spoiled()) << "the user was not told of a failure that may cost the new content";
}

TEST(Fault, OfMemoryLeavesAWholeDatabaseAndIsTold) {
  for (const Operation& operation : kOperations) {
    Attempt usual(operation);
    usual.run(nullptr);
    const auto whole = usual.memory.all();
    bool reached = true;
    // An allocation of the program, once; or, from some look at a path on, for ever.
    for (int nth = 0, own = 1; reached || own == 1; ++nth) {
      if (!reached) nth = own = 0;
      SCOPED_TRACE(std::string(operation.name) + (own ? ", allocation " : ", look ") + std::to_string(nth));
      Attempt attempt(operation);
      attempt.program.told.reserve(10);
      reached = false;
      if (own) {
        allocations_left = nth;
      } else {
        attempt.watched.before = [&, looks = 0](const CallInfo& info) mutable -> std::optional<Instead> {
          if (info.call != Call::StatusOfPath || looks++ < nth) return std::nullopt;
          reached = true;
          throw std::bad_alloc();
        };
      }
      attempt.program.form.click(operation.click);
      reached |= own && allocations_left < 0;
      allocations_left = -1;
      if (!reached) continue;
      const auto after = attempt.memory.all();
      for (const auto& [path, content] : after) {
        const bool old = attempt.before().count(path) > 0 && attempt.before().at(path) == content;
        const bool fresh = whole.count(path) > 0 && whole.at(path) == content;
        const bool leftover = !own && path.find("dbnamep") != std::string::npos;
        EXPECT_TRUE(old || fresh || content == kDatabase || leftover) << path << " holds " << content;
      }
      EXPECT_EQ(attempt.memory.open_handles(), 0);
      EXPECT_FALSE(attempt.program.form.state().suggestrun);
      EXPECT_EQ(
          attempt.program.LastBox(),
          "[There is not enough memory to go on. The database holds the whole change or nothing of it: open it again and "
          "look.]");
    }
  }
}

TEST(Fault, CostsNoRecord) {
  int faults = 0;
  for (const Operation& operation : kOperations) {
    Attempt usual(operation);
    usual.run(nullptr);
    const auto whole = usual.memory.all();
    EXPECT_EQ(whole != usual.before(), operation.changes) << operation.name;
    for (int call = 0; call < static_cast<int>(Call::kCount); ++call) {
      for (const Instead& instead : failures_of(static_cast<Call>(call))) {
        for (const bool for_ever : {false, true}) {
          for (int nth = 1;; ++nth) {
            const Fault fault{static_cast<Call>(call), nth, instead, for_ever};
            SCOPED_TRACE(std::string(operation.name) + ", call " + std::to_string(call) + ", no. " + std::to_string(nth) +
                         ": " + (instead.half ? "half" : instead.error.message()) + (for_ever ? " for ever" : ""));
            Attempt probe(operation);
            if (!probe.run(&fault)) break;
            ++faults;
            check(operation, fault, whole, usual.program.told.size());
          }
        }
      }
    }
  }
  EXPECT_GT(faults, 1000);
}

}  // namespace
