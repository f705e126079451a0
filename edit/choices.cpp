#include "edit/choices.h"

#include "db/components.h"
#include "db/format.h"
#include "edit/marks.h"
#include "edit/models.h"

namespace edit {
namespace {

bool between(double n, double low, double high) { return n > low && n < high; }

}  // namespace

bool is_offered(double n, std::string_view isomodel, bool cdbfile) {
  // Surface sites and their potentials belong to complexation, the isotherm sites from 1300 on to their model.
  if (isomodel.empty() ? between(n, 1300, 1360) : between(n, 810, 860) || between(n, 1101, 1111)) return false;
  const Model& its = model(isomodel);
  if (n > its.last_offered || between(n, 1300, its.first_offered)) return false;

  if (n < 3 || between(n, 816, 859) || between(n, 1330, 1339) || (n >= 144 && n <= 149) || between(n, 916, 921) || n == 1104)
    return false;
  return cdbfile || !(n > 951 && n <= 1101);  // exchangers
}

Choices component_choices(file::System& system, const std::string& compdb, std::string_view isomodel, bool cdbfile) {
  Choices choices;
  try {
    db::ComponentReader reader(system, compdb, db::kListingRecords);
    for (db::Component component; reader.next(component);) {
      const auto number = component.number.number();
      if (number && is_offered(*number, isomodel, cdbfile))
        choices.names.push_back(shown_name(db::site_name(*number).value_or(component.name.text), *number));
    }
  } catch (const file::Error& error) {
    choices.names.clear();
    choices.failure = std::string("The components cannot be listed: ") + error.what() +
                      " Choose another component database, or mend this one.";
  }
  choices.names.emplace_back("H2O");
  return choices;
}

}  // namespace edit
