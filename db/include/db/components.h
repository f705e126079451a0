// The component database: which number has which component. Only ever read, and read anew for each operation.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "db/field_reader.h"
#include "db/format.h"

namespace db {

// The surface sites, which bear these names in the window whatever the component database calls them.
std::optional<std::string_view> site_name(double number);
std::optional<double> site_number(std::string_view name);

struct Component {
  Field number, name;
  Field charge;  // by custom; nothing of the editor depends on it
};

// Reads the records of a component database one by one, at most `limit` of them. Throws file::Error.
class ComponentReader {
 public:
  ComponentReader(file::System& system, const std::string& path, int limit) : fields_(system, path, path), limit_(limit) {}

  // False at the end. The views hold until the next call.
  bool next(Component& component);
  // Whether the end was inside a record, which then does not count.
  bool cut_short() const { return cut_short_; }
  // The number of the record that was read last, from 1 on, and where in the file, in bytes, it begins.
  int record() const { return records_; }
  std::uint64_t offset() const { return begin_; }
  // Throws file::Error about the record that was read last.
  [[noreturn]] void fail(const std::string& reason) const;

 private:
  FieldReader fields_;
  int limit_;
  int records_ = 0;
  std::uint64_t begin_ = 0;
  bool cut_short_ = false;
};

// Names of components, and what kept some of them from being found (nothing when the file was read as it should be).
struct ComponentNames {
  std::vector<std::optional<std::string>> names;  // in the order asked for
  std::optional<std::string> failure;
};

// The names of the components with these numbers: of each the first record that bears it, among the first
// kLookupRecords. A number that is in none of them has no name, that of a surface site neither.
ComponentNames component_names(file::System& system, const std::string& path, std::span<const double> numbers);

// By name; nothing where the record of that name has an empty number field.
using FoundNumbers = std::map<std::string, std::optional<double>, std::less<>>;

enum class NameMatch { Trimmed, AsRead };  // what of the record's name is compared

// The numbers of the components with these names (given without blanks at their ends), in one pass over the first
// kLookupRecords; of several records with a name the last counts. A name that is in none of them is not in the result.
// Throws file::Error when the file cannot be read to that point, or a name's number field holds text.
FoundNumbers component_numbers(file::System& system, const std::string& path, std::span<const std::string> names,
                               NameMatch match);

}  // namespace db
