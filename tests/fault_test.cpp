// Every call that an operation makes to the file system fails at its Nth occurrence, for every N until none is left, once
// and for ever, with every error that the call can give. Then the database is the whole old or the whole new one, the user
// was told, nothing is left behind, and no file is open.
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "support/story.h"
#include "support/watched_system.h"

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

std::vector<Instead> failures_of(Call call) {
  const auto errors = [](std::initializer_list<std::errc> codes) {
    std::vector<Instead> all;
    for (const std::errc code : codes) all.push_back({make_error_code(code), false});
    return all;
  };
  using E = std::errc;
  // Quota has no name of its own among these; to the program it is one more failed write.
  switch (call) {
    case Call::Read: {
      auto all = errors({E::io_error, E::interrupted});
      all.push_back({{}, true});
      return all;
    }
    case Call::Write: {
      auto all = errors({E::no_space_on_device, E::io_error, E::file_too_large, E::interrupted});
      all.push_back({{}, true});
      return all;
    }
    case Call::Flush:
    case Call::Close: return errors({E::io_error, E::no_space_on_device});
    case Call::FlushFolder: return errors({E::io_error, E::permission_denied, E::interrupted});
    case Call::CreateNew:
      return errors({E::no_space_on_device, E::permission_denied, E::io_error, E::file_exists, E::interrupted});
    case Call::Rename:
      return errors({E::no_space_on_device, E::permission_denied, E::io_error, E::cross_device_link, E::interrupted});
    case Call::Lock: return errors({E::operation_would_block, E::no_lock_available, E::interrupted});
    case Call::Truncate: return errors({E::io_error, E::no_space_on_device, E::interrupted});
    default: return errors({E::permission_denied, E::io_error, E::interrupted});
  }
}

// What an operation is tried on and how; each try begins anew.
struct Operation {
  const char* name;
  std::function<void(MemorySystem&)> prepare;
  std::function<void(Program&)> before, run;
  bool changes = true;  // the database, so that a failure has to be told
  bool silent = false;  // a failure ends in silence
};

const std::string kDatabase =
    lines({"501,\"CuX\",0,1.5,0,0,2,0,0,0,0,1", "1,231", "502,\"FeX\",0,2.5,0,0,2,0,0,0,0,1", "1,330"}) + kTrailer;

void enter_new_species(Program& program) {
  program.Click(app::cmdAddnew);
  program.Type(app::cboComp, "Cu+2");
  program.Type(app::txtStoicn, "1");
  program.Type(app::txtSpname, "New");
  program.Click(app::cmdSuggest);
  program.Type(app::txtlogk, "1");
  program.Type(app::txtCharge, "1");
}

const Operation kOperations[] = {
    {"change", [](MemorySystem&) {},
     [](Program& p) {
       p.Select("FeX");
       p.Type(app::txtlogk, "7");
     },
     [](Program& p) { p.Save(); }},
    {"add", [](MemorySystem&) {}, enter_new_species, [](Program& p) { p.Save(); }},
    {"deletion", [](MemorySystem&) {}, [](Program& p) { p.Select("CuX"); },
     [](Program& p) {
       p.Answer(ui::Answer::Yes);
       p.Click(app::cmdDelete);
     }},
    {"change of a file with two names", [](MemorySystem& s) { s.hard_link("y.mdb", "x.mdb"); },
     [](Program& p) {
       p.Select("FeX");
       p.Type(app::txtlogk, "7");
     },
     [](Program& p) { p.Save(); }},
    {"deletion in a file with two names", [](MemorySystem& s) { s.hard_link("y.mdb", "x.mdb"); },
     [](Program& p) { p.Select("CuX"); },
     [](Program& p) {
       p.Answer(ui::Answer::Yes);
       p.Click(app::cmdDelete);
     }},
    {"to new", [](MemorySystem&) {},
     [](Program& p) {
       p.Select("FeX");
       p.Type(app::txtlogk, "7");
     },
     [](Program& p) {
       p.Choose("new.mdb");
       p.Click(app::cmdNewDb);
     },
     true, true},
    {"to new on another file system",
     [](MemorySystem& s) {
       s.add_folder("/far", {.device = 2, .writable = true});
       s.add("/far/new.mdb", "former");
     },
     [](Program& p) {
       p.Select("FeX");
       p.Type(app::txtlogk, "7");
     },
     [](Program& p) {
       p.Choose("/far/new.mdb");
       p.Click(app::cmdNewDb);
     },
     true, true},
    {"load", [](MemorySystem&) {}, [](Program&) {},
     [](Program& p) {
       p.Choose("x.mdb");
       p.Click(app::mnuFileOpen);
     },
     false, true},
    {"display", [](MemorySystem&) {}, [](Program&) {}, [](Program& p) { p.Select("FeX"); }, false, true},
    {"suggestion", [](MemorySystem&) {}, [](Program& p) { p.Click(app::cmdAddnew); },
     [](Program& p) { p.Click(app::cmdSuggest); }, false, true},
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
      return fault->instead;
    };
    operation_.run(program);
    watched.before = [](const CallInfo&) { return std::nullopt; };
    return reached;
  }

  const std::map<std::string, std::string>& before() const { return before_; }

  MemorySystem memory;
  WatchedSystem watched{memory};
  Program program{watched};

 private:
  const Operation& operation_;
  std::map<std::string, std::string> before_;
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
  const bool kept = after.count("/kelmar/dbnamep.mdb.keep") > 0;
  if (kept && fault.call == Call::Remove) {
    EXPECT_TRUE(told);
  } else if (kept) {
    // Overwriting and putting back failed both: what was written is whole under its other name, and the user knows it.
    EXPECT_EQ(after.at("/kelmar/dbnamep.mdb.keep"), whole.at("/kelmar/x.mdb"));
    EXPECT_NE(attempt.program.LastBox().find("its whole new content is in dbnamep.mdb.keep"), std::string::npos);
    EXPECT_TRUE(fault.for_ever);
    return;
  }
  for (const auto& [path, content] : after) {
    const bool old = attempt.before().count(path) > 0 && attempt.before().at(path) == content;
    const bool fresh = whole.count(path) > 0 && whole.at(path) == content;
    const bool copy = path.find("new.mdb") != std::string::npos && content == kDatabase;  // saving to new begins with one
    // A file that cannot be removed stays, and one that another editor has locked is that one's to remove.
    const bool leftover =
        path.find("dbnamep") != std::string::npos && (fault.call == Call::Remove || fault.call == Call::Lock);
    EXPECT_TRUE(old || fresh || copy || leftover) << path << " holds " << content;
  }
  EXPECT_EQ(after.count("/kelmar/x.mdb"), 1u);
  EXPECT_TRUE(operation.silent || told || after == whole) << "the user was not told";
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
  std::cout << faults << " faults injected\n";
  EXPECT_GT(faults, 1000);
}

}  // namespace
