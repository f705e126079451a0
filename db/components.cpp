// Lookups in the component database.
#include "db/components.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "db/field_reader.h"

namespace db {
namespace {

using Site = std::pair<double, std::string_view>;
constexpr Site kSites[] = {{812, "=SOH"}, {816, "=S3O"}, {811, "=SOHh"}};

}  // namespace

std::optional<std::string_view> site_name(double number) {
  const auto* const site = std::ranges::find(kSites, number, &Site::first);
  return site == std::end(kSites) ? std::nullopt : std::optional(site->second);
}

std::optional<double> site_number(std::string_view name) {
  const auto* const site = std::ranges::find(kSites, name, &Site::second);
  return site == std::end(kSites) ? std::nullopt : std::optional(site->first);
}

bool ComponentReader::next(Component& component) {
  if (records_ == limit_ || !fields_.begin_record()) return false;
  ++records_;
  begin_ = fields_.offset();
  try {
    std::array<Field, 6> fields;
    cut_short_ = !fields_.next(fields);
    component = {fields[0], fields[1], fields[2]};
  } catch (const FieldError& error) {
    fail(error.what());
  }
  return !cut_short_;
}

void ComponentReader::fail(const std::string& reason) const {
  const std::string where = file::named(fields_.name()) + ", record " + std::to_string(records_) + ": ";
  throw file::Error(where + reason + ".", where.size());
}

ComponentNames component_names(file::System& system, const std::string& path, std::span<const double> numbers) {
  ComponentNames result{std::vector<std::optional<std::string>>(numbers.size()), std::nullopt};
  std::size_t missing = numbers.size();
  try {
    ComponentReader reader(system, path, kLookupRecords);
    for (Component component; missing > 0 && reader.next(component);) {
      const auto number = component.number.number();
      for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (result.names[i] || number != numbers[i]) continue;
        result.names[i] = std::string(site_name(numbers[i]).value_or(component.name.text));
        --missing;
      }
    }
    if (missing > 0 && reader.cut_short()) reader.fail("the file ends inside the record");
  } catch (const file::Error& error) {
    result.failure = error.what();
  }
  return result;
}

FoundNumbers component_numbers(file::System& system, const std::string& path, std::span<const std::string> names,
                               NameMatch match) {
  FoundNumbers found;
  ComponentReader reader(system, path, kLookupRecords);
  for (Component component; reader.next(component);) {
    const auto name = match == NameMatch::Trimmed ? trimmed(component.name.text) : component.name.text;
    if (std::find(names.begin(), names.end(), name) == names.end()) continue;
    const auto number = component.number.number();
    if (!number) reader.fail("the number of " + file::named(name) + " is text");
    found[std::string(name)] = component.number.text.empty() ? std::nullopt : number;
  }
  if (reader.cut_short()) reader.fail("the file ends inside the record");
  return found;
}

}  // namespace db
