// Says what is wrong with a species database, by rules that doc/guide.md tells to users. An error is what the editor cannot
// read, list or save whole; a warning what it shows or saves otherwise than a reader of the file expects.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "db/components.h"

namespace check {

enum class Severity { Note, Warning, Error };

struct Finding {
  std::uint64_t offset = 0;  // of what it is about, in bytes from the beginning of the file
  Severity severity = Severity::Note;
  std::string_view rule{};
  std::string reason{};
  int record = 0;  // from 1 on; 0: it is about the file
  std::string name{};
};

// One line a finding, in the order of the file: `file:line: error: record N "name": reason [rule]`, as compilers write them,
// so that editors jump to the place. The path stays as it is, all else is UTF-8. The file is read again for the numbers of
// its lines. Throws file::Error.
std::string lines_of(file::System& system, const std::string& path, std::vector<Finding> findings);

// The component database as the editor looks into it.
class Components {
 public:
  struct Component {
    std::string name;              // as the window shows it
    int record = 0;                // the first that bears the number, which counts
    std::optional<double> charge;  // the third field; none where that is no number, or differs between records
    std::optional<double> saved;   // the number that a change saves: that of the last record with the name
  };

  // Throws file::Error when the system does not let it be read. What is wrong in it is a finding; what stands before it
  // counts.
  Components(file::System& system, std::string from);

  const Component* find(double number) const;
  // Whether a component that it finds shows its name and is saved as it is; false for some unusual numbers. Quick.
  bool is_plain(double number) const {
    if (!(number >= 0 && number < kUsual)) return false;
    const auto whole = static_cast<std::size_t>(number);
    return plain_[whole] && static_cast<double>(whole) == number;
  }

  const std::string path;
  std::optional<Finding> finding{};

 private:
  static constexpr int kUsual = 2000;  // most numbers are whole and smaller
  std::unordered_map<double, Component> components_;
  std::array<bool, kUsual> plain_{};  // by number
};

// Without `components` the rules about these are left out; with `charges` the charge of each species is compared with that
// of its components. Behind what keeps the editor from reading on nothing is checked. Throws file::Error when the system
// does not let the file be read.
std::vector<Finding> check_database(file::System& system, const std::string& path, const Components* components,
                                    bool charges);

}  // namespace check
