#include "edit/models.h"

#include <algorithm>

#include "db/format.h"

namespace edit {

const std::vector<Model>& models() {
  static const std::vector<Model> kModels{
      {.name = "Linear Kd", .logk_caption = "log Kd", .sites_alike = true},
      {.name = "Freundlich", .logk_caption = "log KF", .mb = true, .sites_alike = true},
      {.name = "Extended Freundlich", .logk_caption = "log KF", .mb = true, .sites_alike = true},
      {.name = "Langmuir", .logk_caption = "log KL", .sites = {{"Lsite2", 1302}}, .last_offered = 1310},
      {.name = "Temkin", .logk_caption = "log KT", .site = 1331, .sites_alike = true},
      {.name = "Langmuir-Freundlich",
       .logk_caption = "log KLF",
       .sites = {{"LFsite1", 1311}, {"LFsite2", 1312}},
       .first_offered = 1310,
       .last_offered = 1320},
      {.name = "NICA", .sites = {{"NICAsite1", 1321}, {"NICAsite2", 1322}}, .first_offered = 1320, .last_offered = 1340},
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

}  // namespace edit
