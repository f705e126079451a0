// Which components the editor would find, by number and by name.
#include <cmath>
#include <limits>

#include "check/check.h"

namespace check {

Components::Components(file::System& system, std::string from) : path(std::move(from)) {
  std::unordered_map<std::string, std::optional<double>> numbers;  // by name
  db::ComponentReader reader(system, path, std::numeric_limits<int>::max());
  try {
    for (db::Component read; reader.next(read);) {
      const auto number = read.number.is_empty() ? std::nullopt : read.number.number();
      const auto charge = read.charge.is_empty() ? std::nullopt : read.charge.number();
      if (reader.record() <= db::kLookupRecords) numbers[std::string(db::trimmed(read.name.text))] = number;
      if (!number) continue;
      const auto [at, is_new] = components_.try_emplace(*number);
      if (is_new)
        at->second = {std::string(db::site_name(*number).value_or(read.name.text)), reader.record(), charge, {}};
      else if (at->second.charge != charge)
        at->second.charge.reset();
    }
    if (reader.cut_short()) reader.fail("the file ends inside the record");
  } catch (const file::Error& error) {
    if (!error.tells_where()) throw;
    finding = {reader.offset(), reader.record() <= db::kLookupRecords ? Severity::Error : Severity::Warning,
               "unreadable-record", std::string(error.reason()), reader.record()};
  }
  for (auto& [number, component] : components_) {
    const std::string name(db::trimmed(component.name));
    component.saved = db::site_number(name) ? db::site_number(name) : numbers[name];
    if (component.record <= db::kLookupRecords && component.saved == number && number >= 0 && number < kUsual)
      plain_[static_cast<std::size_t>(number)] |= std::floor(number) == number;
  }
}

const Components::Component* Components::find(double number) const {
  const auto found = components_.find(number);
  return found == components_.end() ? nullptr : &found->second;
}

}  // namespace check
