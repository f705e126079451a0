// kelmar-dbcheck: says what is wrong with species databases, also what the editor passes over in silence.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "check/check.h"
#include "file/replacement.h"

namespace {

constexpr const char* kUsage =
    "Usage: kelmar-dbcheck [-c COMPONENTS] [--charge] FILE...\n"
    "  -c COMPONENTS  the component database, without which it is comp.mdb in the folder of each FILE\n"
    "  --charge       compares charges of species with those of components, the third field there\n"
    "Status: 0 nothing or notes only, 1 warnings, 2 errors, 3 something cannot be read.\n";
constexpr int kUnreadable = 3;

struct Run {
  file::System& system = file::system();
  std::optional<std::string> components{};
  bool charges = false;
  std::map<std::string, std::unique_ptr<check::Components>> known{};  // component databases by path, null where none is read
  int status = 0;

  void guarded(const std::function<void()>& step) {
    try {
      step();
    } catch (const std::exception& error) {
      std::fprintf(stderr, "kelmar-dbcheck: %s\n", error.what());
      status = kUnreadable;
    }
  }

  void show(const std::string& path, std::vector<check::Finding> findings) {
    for (const check::Finding& finding : findings) status = std::max(status, static_cast<int>(finding.severity));
    if (std::fputs(check::lines_of(system, path, std::move(findings)).c_str(), stdout) < 0 || std::fflush(stdout) != 0)
      throw file::Error("the findings cannot be written.");
  }

  void check(const std::string& path) {
    const std::string compdb = components.value_or(file::beside(path, db::kComponentFile));
    auto& its = known[compdb];
    file::Status found;
    if (!its && (components || system.status(compdb, file::Follow::Links, found) || found.type != file::Type::Missing))
      guarded([&] {
        its = std::make_unique<check::Components>(system, compdb);
        if (its->finding) show(compdb, {*its->finding});
      });
    if (file::same_place(system, path, compdb)) return;  // it is no species database, and has been looked through
    std::vector<check::Finding> findings = check::check_database(system, path, its.get(), charges);
    if (!its)
      findings.push_back({.rule = "no-components", .reason = "its components are not checked, for want of " + compdb});
    show(path, std::move(findings));
  }
};

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> arguments = file::arguments(argc, argv), files;
  Run run;
  bool options = true;
  std::FILE* usage = nullptr;
  for (auto at = arguments.begin(); at != arguments.end(); ++at) {
    if (!options || !at->starts_with('-'))
      files.push_back(*at);
    else if (*at == "--")
      options = false;
    else if (*at == "--charge")
      run.charges = true;
    else if (*at == "-c" && at + 1 != arguments.end())
      run.components = *++at;
    else
      usage = *at == "--help" ? stdout : stderr;
  }
  if (usage || files.empty()) {
    std::fputs(kUsage, usage ? usage : stderr);
    return usage == stdout ? 0 : kUnreadable;
  }
  for (const std::string& path : files) run.guarded([&] { run.check(path); });
  return run.status;
}
