// Every call that an operation makes to the file system fails at its Nth occurrence, for every N until none is left, once
// and for ever, with every error that the call can give; and so does every allocation of memory. Then the database is the
// whole old or the whole new one, the user was told, nothing is left behind, and no file is open.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <new>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

#include "player/player.h"
#include "support/memory_system.h"
#include "support/text.h"
#include "support/watched_system.h"

namespace {

int allocations_left = -1;  // until one fails; -1: none does

}  // namespace

[[gnu::noinline]] void* operator new(std::size_t size) {
  if (allocations_left >= 0 && support::calls_in_progress == 0 && allocations_left-- == 0) throw std::bad_alloc();
  if (void* const memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept try {
  return operator new(size);
} catch (const std::bad_alloc&) {
  return nullptr;
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace support {
namespace {

struct Fault {
  Call call;
  int nth;
  Instead instead;
  bool for_ever;
  bool of_memory = false;  // once at an allocation, or for ever from a call on
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

const std::string kDatabase =
    plain("501,\"CuX\",0,1.5,0,0,2,0,0,0,0,1\\r\\n1,231\\r\\n502,\"FeX\",0,2.5,0,0,2,0,0,0,0,1\\r\\n1,330\\r\\n{trailer}");

enum class End { Saved, SavedSilently, Shown };  // silent: a failure is not told

// What is tried: the events before and the one that counts. Each try begins anew.
struct Operation {
  const char* name;
  End end;
  std::string before;
  int click;
  bool leftover = false;  // of a save before
};

const Operation kOperations[] = {
    {"change", End::Saved, "select 1\ntype txtlogk 7\nanswer Yes", app::cmdSavedb},
    {"change that makes the file longer", End::Saved, "select 1\ntype txtName " + std::string(3000, 'n') + "\nanswer Yes",
     app::cmdSavedb},
    {"change beside a leftover", End::Saved, "select 1\ntype txtlogk 7\nanswer Yes", app::cmdSavedb, true},
    {"change on another file system", End::Saved,
     "choose /far/x.mdb\nclick mnuFileOpen\nselect 1\ntype txtlogk 7\nanswer Yes", app::cmdSavedb},
    {"add", End::Saved,
     "click cmdAddnew\ntype cboComp Cu+2\ntype txtStoicn 1\ntype txtSpname New\nclick cmdSuggest\ntype txtlogk 1\n"
     "type txtCharge 1\nanswer Yes",
     app::cmdSavedb},
    {"deletion", End::Saved, "select 0\nanswer Yes", app::cmdDelete},
    {"to new", End::SavedSilently, "select 1\ntype txtlogk 7\nchoose new.mdb", app::cmdNewDb},
    {"to new on another file system", End::SavedSilently, "select 1\ntype txtlogk 7\nchoose /far/new.mdb", app::cmdNewDb},
    {"load", End::Shown, "choose x.mdb", app::mnuFileOpen},
    {"display", End::Shown, "select 1", app::lstReactions},
    {"suggestion", End::Shown, "click cmdAddnew", app::cmdSuggest},
};

using Files = std::map<std::string, std::string>;

class Attempt {
 public:
  explicit Attempt(const Operation& operation) : operation_(operation) {
    memory.folder("/far").device = 2;
    if (operation.leftover) memory.add("dbnamep.mdb", "half");
    program.form.load();
    std::istringstream events(operation.before);
    for (std::string event; std::getline(events, event);) program.play(event);
    before = memory.all();
    program.told.clear();
    program.told.reserve(10);
  }

  void run() { program.form.click(operation_.click); }

  // True when the fault was reached.
  bool run(const Fault& fault) {
    bool reached = false;
    const bool allocation = fault.of_memory && !fault.for_ever;
    watched.before = [&, made = 0](const CallInfo& info) mutable -> std::optional<Instead> {
      if (allocation || info.call != fault.call || ++made < fault.nth || (!fault.for_ever && made > fault.nth))
        return std::nullopt;
      reached = true;
      if (fault.of_memory) throw std::bad_alloc();
      spoiled |= spoils(info, fault);
      return fault.instead;
    };
    watched.after = [this](const CallInfo& info) {
      if (info.call == Call::Write) writers_.insert(info.handle);
      renamed_ |= info.call == Call::Rename;
    };
    if (allocation) allocations_left = fault.nth - 1;
    run();
    reached |= allocation && allocations_left < 0;
    allocations_left = -1;
    return reached;
  }

  // Every file is what it was, or what it is after a success. A temporary file stays only where it could not be removed.
  void check(const Files& whole, bool may_leave_temporary) const {
    EXPECT_EQ(memory.open_handles(), 0);
    EXPECT_FALSE(program.form.state().suggestrun);
    EXPECT_NE(program.form.state().changedone, "Y");
    for (const auto& file : memory.all()) {
      // Saving to new begins with a copy.
      const bool copy = file.first.find("new.mdb") != std::string::npos && file.second == kDatabase;
      const bool leftover = may_leave_temporary && file.first.find("dbnamep") != std::string::npos;
      const bool known = std::ranges::count(before, file) + std::ranges::count(whole, file) > 0;
      EXPECT_TRUE(known || copy || leftover) << file.first << " holds " << file.second;
    }
    EXPECT_NE(memory.content("x.mdb"), "(missing)");
  }

  MemorySystem memory{{"dabase.txt", "C"},  {"sorptemp.dat", "x.mdb"}, {"comp.mdb", kComponents},
                      {"x.mdb", kDatabase}, {"/far/x.mdb", kDatabase}, {"/far/new.mdb", "former"}};
  WatchedSystem watched{memory};
  player::Player program{watched};
  Files before;
  bool spoiled = false;  // the fault was one that no saving can get over

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
  std::set<file::Handle> writers_;
  bool renamed_ = false;
};

TEST(Fault, CostsNoRecord) {
  int faults = 0;
  for (const Operation& operation : kOperations) {
    Attempt usual(operation);
    usual.run();
    const Files whole = usual.memory.all();
    EXPECT_EQ(whole != usual.before, operation.end != End::Shown) << operation.name;
    const auto fails_with = [&](const Fault& fault) {
      SCOPED_TRACE(std::string(operation.name) + ", " + std::string(kCallNames[static_cast<int>(fault.call)]) + " no. " +
                   std::to_string(fault.nth) + ": " +
                   (fault.of_memory      ? "memory"
                    : fault.instead.half ? "half"
                                         : file::reason(fault.instead.error)) +
                   (fault.for_ever ? " for ever" : ""));
      Attempt attempt(operation);
      if (!attempt.run(fault)) return false;
      // One that another editor has taken is that one's to remove.
      attempt.check(whole,
                    fault.call == Call::Remove || fault.call == Call::ExcludeOthers || (fault.of_memory && fault.for_ever));
      if (fault.of_memory) {
        const bool done_without = attempt.program.told == usual.program.told;  // as a sort can be
        EXPECT_TRUE(done_without ? attempt.memory.all() == whole && attempt.program.state() == usual.program.state()
                                 : attempt.program.told.back() ==
                                       "box [Kelmar error] critical OK [There is not enough memory to go on. The database "
                                       "holds the whole change or nothing of it: open it again and look.]");
        return true;
      }
      if (operation.end != End::Saved) return true;
      const Files after = attempt.memory.all();
      const bool saved = std::ranges::includes(after, whole);
      const bool told = attempt.program.told.size() > usual.program.told.size();
      // What was read or written in two parts is put together.
      EXPECT_TRUE(saved || (told && (fault.for_ever || !fault.instead.half))) << "nothing was saved, or nobody was told";
      EXPECT_TRUE(told || !attempt.spoiled) << "the user was not told of a failure that may cost the new content";
      return true;
    };
    const auto fails_at_each = [&](Fault fault) {
      for (fault.nth = 1; fails_with(fault); ++fault.nth) ++faults;
    };
    for (const bool for_ever : {false, true}) {
      for (int call = 0; call < static_cast<int>(Call::kCount); ++call)
        for (const Instead& instead : failures_of(static_cast<Call>(call)))
          fails_at_each({static_cast<Call>(call), 1, instead, for_ever});
      fails_at_each({Call::StatusOfPath, 1, {}, for_ever, true});
    }
  }
  EXPECT_GT(faults, 1000);
}

}  // namespace
}  // namespace support
