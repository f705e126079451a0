#include "edit/suggestion.h"

#include <cmath>

#include "db/text.h"

namespace edit {
namespace {

struct SiteNumber {
  std::string_view isomodel, component;
  double number;
};
constexpr SiteNumber kSiteNumbers[] = {
    {"Langmuir", "Lsite2", 1302},
    {"Langmuir-Freundlich", "LFsite1", 1311},
    {"Langmuir-Freundlich", "LFsite2", 1312},
    {"NICA", "NICAsite1", 1321},
    {"NICA", "NICAsite2", 1322},
    {db::kNicaDonnan, "FA1-", 1341},
    {db::kNicaDonnan, "FA2-", 1342},
    {db::kNicaDonnan, "HA1-", 1351},
    {db::kNicaDonnan, "HA2-", 1352},
};
constexpr double kAnySite = 1301, kTemkinSite = 1331;

template <std::size_t N>
void mark(std::bitset<N>& used, double start, double id) {
  const double offset = std::nearbyint(id) - std::nearbyint(start);
  if (offset >= 0 && offset < static_cast<double>(N)) used.set(static_cast<std::size_t>(offset));
}

template <std::size_t N>
int first_unused(const std::bitset<N>& used) {
  std::size_t i = 0;
  while (i < N && used.test(i)) ++i;
  return static_cast<int>(i);
}

}  // namespace

void numgenerator2(file::System& system, const std::string& compdb, const std::string& comp1, const std::string& comp2,
                   IdBase& idcompno) {
  const std::array names{std::string(db::trimmed(comp1)), std::string(db::trimmed(comp2))};
  const auto found = db::component_numbers(system, compdb, names, db::NameMatch::AsRead);
  if (const auto at = found.find(names[0]); at != found.end()) idcompno.first = at->second.value.value_or(0);
  if (const auto at = found.find(names[1]); at != found.end()) idcompno.second = at->second.value.value_or(0);
}

IdBase with_site(IdBase idcompno, std::string_view isomodel, std::string_view first_component) {
  if (isomodel.empty()) return idcompno;
  const bool sites_alike =
      isomodel == "Freundlich" || isomodel == "Temkin" || isomodel == "Extended Freundlich" || isomodel == "Linear Kd";
  if (sites_alike) idcompno.second = idcompno.first;
  idcompno.first = isomodel == "Temkin" ? kTemkinSite : kAnySite;
  for (const SiteNumber& site : kSiteNumbers)
    if (site.isomodel == isomodel && site.component == first_component) idcompno.first = site.number;
  return idcompno;
}

FreeId::FreeId(IdBase base)
    : base_(base.first * 10000 + base.second * 10),
      exchanged_(base.second * 10000 + base.first * 10),
      rest_(exchanged_ + kBlock + 1) {
  constexpr double kExact = 1e15;  // from here on not all digits of a number are written
  if (!(std::abs(base_) < kExact && std::abs(exchanged_) < kExact))
    throw file::Refusal("The component numbers are too large to build an ID number of. Type one.");
}

void FreeId::use(double id) {
  mark(base_used_, base_, id);
  mark(exchanged_used_, exchanged_, id);
  mark(rest_used_, rest_, id);
}

double FreeId::result() const {
  if (const int i = first_unused(base_used_); i < kBlock) return base_ + i;
  if (const int i = first_unused(exchanged_used_); i < kBlock) return exchanged_ + i;
  return rest_ + first_unused(rest_used_);
}

double first_free_id(file::System& system, const db::Database& open, FreeId candidates) {
  db::SpeciesReader reader(system, open.path);
  reader.read_leading(db::leading_by_name(open));
  while (const db::Record* record = reader.next())
    if (const auto id = record->head[db::kId].number()) candidates.use(*id);
  return candidates.result();
}

}  // namespace edit
