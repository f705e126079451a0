// The isotherm models, and by them the components that are offered.
#include "edit/models.h"

#include <algorithm>

#include "db/components.h"
#include "db/format.h"
#include "edit/display.h"

namespace edit {

const std::vector<Model>& models() {
  static const auto& [linear_kd, freundlich, extended_freundlich, langmuir, temkin, langmuir_freundlich, nica] =
      db::kIsothermModels;
  static const std::vector<Model> kModels{
      {.name = linear_kd, .logk_caption = "log Kd", .sites_alike = true},
      {.name = freundlich, .logk_caption = "log KF", .mb = true, .sites_alike = true},
      {.name = extended_freundlich, .logk_caption = "log KF", .mb = true, .sites_alike = true},
      {.name = langmuir, .logk_caption = "log KL", .sites = {{"Lsite2", 1302}}, .last_offered = 1310},
      {.name = temkin, .logk_caption = "log KT", .site = 1331, .sites_alike = true},
      {.name = langmuir_freundlich,
       .logk_caption = "log KLF",
       .sites = {{"LFsite1", 1311}, {"LFsite2", 1312}},
       .first_offered = 1310,
       .last_offered = 1320},
      {.name = nica, .sites = {{"NICAsite1", 1321}, {"NICAsite2", 1322}}, .first_offered = 1320, .last_offered = 1340},
      {.name = db::kNicaDonnan,
       .sites = {{"FA1-", 1341}, {"FA2-", 1342}, {"HA1-", 1351}, {"HA2-", 1352}},
       .first_offered = 1340},
  };
  return kModels;
}

const Model& model(std::string_view name) {
  static const Model kOther{};
  const auto found = std::ranges::find(models(), name, &Model::name);
  return found == models().end() ? kOther : *found;
}

void put_in_force(db::Database& open, const std::string& model_in_file) {
  if (open.isoselect.empty()) open.isoselect = model_in_file;
  open.isomodel = open.isoselect;
  open.mbfields = model(open.isomodel).mb;
}

bool is_offered(double n, std::string_view isomodel, bool cdbfile) {
  const auto between = [n](double low, double high) { return n > low && n < high; };
  // Surface sites and their potentials belong to complexation, the isotherm sites from 1300 on to their model.
  if (isomodel.empty() ? between(1300, 1360) : between(810, 860) || between(1101, 1111)) return false;
  const Model& its = model(isomodel);
  if (n > its.last_offered || between(1300, its.first_offered)) return false;

  if (n < 3 || between(816, 859) || between(1330, 1339) || (n >= 144 && n <= 149) || between(916, 921) || n == 1104)
    return false;
  return cdbfile || !(n > 951 && n <= 1101);  // exchangers
}

Choices component_choices(file::System& system, const db::Database& open) {
  Choices choices;
  try {
    db::ComponentReader reader(system, open.compdb, db::kListingRecords);
    for (db::Component component; reader.next(component);)
      if (const auto number = component.number.number(); number && is_offered(*number, open.isomodel, open.cdbfile()))
        choices.names.push_back(shown_name(db::site_name(*number).value_or(component.name.text), *number));
  } catch (const file::Error& error) {
    choices.names.clear();
    choices.failure = std::string("The components cannot be listed: ") + error.what() +
                      " Choose another component database, or mend this one.";
  }
  choices.names.emplace_back("H2O");
  return choices;
}

}  // namespace edit
