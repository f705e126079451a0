#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "edit/choices.h"
#include "edit/species_record.h"
#include "edit/suggestion.h"
#include "support/story.h"

namespace {

using support::MemorySystem;

TEST(Display, TellsIdRangesWithStrictBounds) {
  using edit::IdRange;
  const struct {
    double id;
    IdRange range;
  } rows[] = {{11000000, IdRange::None}, {11000000.5, IdRange::Lk2}, {12999998, IdRange::Lk2},  {12999999, IdRange::None},
              {13110000, IdRange::None}, {13110001, IdRange::Nica},  {13599998, IdRange::Nica}, {13599999, IdRange::None}};
  for (const auto& [id, range] : rows) EXPECT_EQ(edit::range_of(id), range) << id;
}

edit::Shown shown(const std::string& record, db::Database open) {
  MemorySystem system;
  system.add("comp.mdb", support::kComponents);
  open.path = "x.mdb";
  system.add(open.path, record);
  return edit::show_species(system, open, "comp.mdb", "S").value();
}

TEST(Display, ShowsValuesByKindAndIdNumber) {
  const auto with_id = [](const std::string& id) { return id + ",S,-0.25,2,1.5,-.5,0,0,0,0,0,0\n"; };
  const struct {
    const char* id;
    db::Database open;
    const char *caption, *lk2, *ksel;
    bool m_ref;
  } rows[] = {
      {"5", {}, "", "-", "-", false},
      {"5", {"", db::Kind::Counterion, ""}, "", "-", "  1.5", false},
      {"5", {"", db::Kind::Blm, ""}, "", "-", " Yes", false},
      {"11000001", {"", db::Kind::Blm, ""}, "Lk2", " -.5", "-", false},
      {"13299998", {"", {}, "NICA"}, "m", " -.5", "  1.5", true},
      {"13299999", {"", {}, "NICA-Donnan"}, "b", " -.5", "-", false},
      {"13399999", {"", {}, "Langmuir"}, "n", " -.5", "-", false},
  };
  for (const auto& row : rows) {
    const auto result = shown((row.open.blifile() ? "text,label,1\n" : "") + with_id(row.id), row.open);
    EXPECT_EQ(result.lk2_caption, row.caption) << row.id;
    EXPECT_EQ(result.lk2.value_or("-"), row.lk2) << row.id;
    EXPECT_EQ(result.ksel.value_or("-"), row.ksel) << row.id;
    EXPECT_EQ(result.m_ref, row.m_ref) << row.id;
    EXPECT_EQ(result.logk, "  2");
    EXPECT_EQ(result.dhr, " -.25");
    EXPECT_EQ(result.charge, " 0");
  }
}

TEST(Display, SaysWhichValueIsNoNumber) {
  const db::Database counter{"", db::Kind::Counterion, ""}, blm{"", db::Kind::Blm, ""}, mb{"", {}, "", true};
  const struct {
    const char* record;
    db::Database open;
    const char* what;
  } rows[] = {{"x,S,0,0,0,0,0,0,0,0,0,0\n", {}, "ID number"},
              {"1,S,x,0,0,0,0,0,0,0,0,0\n", {}, "dHr"},
              {"1,S,0,x,0,0,0,0,0,0,0,0\n", {}, "log K"},
              {"1,S,0,0,x,0,0,0,0,0,0,0\n", counter, "K-sel"},
              {"1,S,0,0,0,x,0,0,0,0,0,0\n", blm, "toxicity flag"},
              {"11000001,S,0,0,0,x,0,0,0,0,0,0\n", {}, "second constant"},
              {"1,S,0,0,0,0,x,0,0,0,0,0\n", {}, "charge"},
              {"1,S,0,0,0,0,0,0,0,0,0,1\nx,812\n", {}, "stoichiometry"},
              {"1,S,0,0,0,0,0,0,0,0,0,1\n1,x\n", {}, "component number"},
              {"1,S,0,0,0,0,0,0,0,0,0,101\n1,812\n1\nx,812\n", mb, "M.B. stoichiometry"}};
  for (const auto& [record, open, what] : rows) {
    try {
      shown((open.blifile() ? "text,label,1\n" : "") + std::string(record), open);
      ADD_FAILURE() << what;
    } catch (const file::Error& error) {
      EXPECT_EQ(error.what(), "x.mdb, record 1 (S): the " + std::string(what) + " is \"x\", not a number.");
    }
  }
  EXPECT_EQ(shown("1,S,0,0,x,x,0,x,x,x,x,101\n1,812\n1\nx,812\n", {}).id, " 1") << "what is not shown may be text";
}

TEST(Display, GivesEachComponentItsOwnRow) {
  const std::string record = "1,S,0,0,0,0,0,0,0,0,0,105\n1,812,,9999,2,150,1,150,3,\n3\n.5,150,7,4444,9,812\n";
  const auto result = shown(record, {.mbfields = true});
  ASSERT_EQ(result.rows.size(), 5u);
  EXPECT_EQ(result.nocomp, " 5");
  const edit::Row expected[] = {
      {" 1", "=SOH", " 9"}, {" 0", "#9999", ""}, {" 2", "Ca+2", " .5"}, {" 1", "Ca+2", " .5"}, {" 3", "#", ""}};
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(result.rows[i].stoich, expected[i].stoich);
    EXPECT_EQ(result.rows[i].comp, expected[i].comp);
    EXPECT_EQ(result.rows[i].mbstoich, expected[i].mbstoich);
  }
}

std::string record_of(const edit::Entry& entry, const db::Database& open) {
  MemorySystem system;
  system.add("comp.mdb", support::kComponents + ",\"none\",0,0,0,\"\"\r\n0,\"zero\",0,0,0,\"\"\r\n");
  try {
    return edit::species_record(entry, open, edit::numbers_of(entry.components(), system, "comp.mdb"));
  } catch (const file::Refusal& refusal) {
    return refusal.what();
  }
}

edit::Entry entry() {
  return {.id = " 12,5",
          .name = " Cu X ",
          .logk = "-12,78",
          .dhr = "",
          .ksel = " Yes",
          .charge = "1",
          .nocomp = "0",
          .lk2 = std::nullopt,
          .rows = {}};
}

TEST(SpeciesRecord, TakesEachFieldFromItsBox) {
  const db::Database kBlm{"", db::Kind::Blm, ""};
  EXPECT_EQ(record_of(entry(), {}), "12,\"Cu X\",0,-12.78,0,0,1,0,0,0,0,0\r\n");
  EXPECT_EQ(record_of(entry(), kBlm), "12,\"Cu X\",0,-12.78,0,1,1,0,0,0,0,0\r\n");
  edit::Entry with_lk2 = entry();
  with_lk2.lk2 = " 0,5";
  with_lk2.ksel = "1,5";
  EXPECT_EQ(record_of(with_lk2, kBlm), "12,\"Cu X\",0,-12.78,0,.5,1,0,0,0,0,0\r\n");
  EXPECT_EQ(record_of(with_lk2, {"", {}, "NICA"}), "12,\"Cu X\",0,-12.78,1.5,.5,1,0,0,0,0,0\r\n");
  EXPECT_EQ(record_of(with_lk2, {"", {}, "NICA-Donnan"}), "12,\"Cu X\",0,-12.78,0,.5,1,0,0,0,0,0\r\n");
}

TEST(SpeciesRecord, WritesPairsAndBlock) {
  edit::Entry e = entry();
  e.nocomp = "3.9";
  e.rows[0] = {" 1", " Cu+2 ", ""};
  e.rows[1] = {"-,5", "=SOHh", "0,5"};
  e.rows[2] = {"x", "cu+2", " 99"};
  const std::string pairs = "1,231,-.5,811,0,\r\n";
  EXPECT_EQ(record_of(e, {}), "12,\"Cu X\",0,-12.78,0,0,1,0,0,0,0,3\r\n" + pairs);
  const db::Database with_mb{"", db::Kind::Isotherm, "Freundlich", true};
  EXPECT_EQ(record_of(e, with_mb), "12,\"Cu X\",0,-12.78,0,0,1,0,0,0,0,103\r\n" + pairs + "1\r\n.5,811\r\n");
  e.rows[1].mbstoich = "100";
  EXPECT_EQ(record_of(e, with_mb), "12,\"Cu X\",0,-12.78,0,0,1,0,0,0,0,3\r\n" + pairs);
  // A number shown in place of a name that was not found goes back as that number.
  e.rows[2].comp = "#9999";
  EXPECT_NE(record_of(e, {}).find(",0,9999\r\n"), std::string::npos);
  for (const char* none : {"#x", "#", "none", ""}) {
    e.rows[2].comp = none;
    EXPECT_NE(record_of(e, {}).find(",0,\r\n"), std::string::npos) << none;
  }
  e.nocomp = "-1";
  EXPECT_EQ(record_of(e, with_mb), "12,\"Cu X\",0,-12.78,0,0,1,0,0,0,0,-1\r\n");
}

TEST(SpeciesRecord, RefusesWhatCouldNotBeReadBack) {
  edit::Entry nine = entry(), quote = entry(), zero = entry();
  nine.nocomp = " 9";
  quote.name = "a\"b";
  zero.id = "x";
  EXPECT_EQ(record_of(nine, {}),
            "A species has at most eight components, and the number of components is 9. Correct it before saving.");
  EXPECT_EQ(record_of(quote, {}), "A species name cannot hold a double quote or a line end. Correct it before saving.");
  EXPECT_EQ(record_of(zero, {}), "The ID number is 0, which would end the list of species. Give another one.");
}

// The numbers of 1 to 1400 that are offered, as ranges.
std::string offered(const char* isomodel, bool cdbfile) {
  std::string ranges;
  for (int n = -1, from = 0; n <= 1400; ++n) {
    const bool now = edit::is_offered(n, isomodel, cdbfile), next = n < 1400 && edit::is_offered(n + 1, isomodel, cdbfile);
    if (now && from == 0) from = n;
    if (!now || next) continue;
    ranges += (ranges.empty() ? "" : " ") + std::to_string(from) + (from == n ? "" : "-" + std::to_string(n));
    from = 0;
  }
  return ranges;
}

TEST(Choices, FitTheOpenDatabase) {
  EXPECT_EQ(offered("", false), "3-143 150-816 859-916 921-951 1102-1103 1105-1300 1360-1400");
  EXPECT_EQ(offered("", true), "3-143 150-816 859-916 921-1103 1105-1300 1360-1400");
  for (const char* model : {"Linear Kd", "Freundlich", "Extended Freundlich", "Temkin"})
    EXPECT_EQ(offered(model, false), "3-143 150-810 860-916 921-951 1111-1330 1339-1400") << model;
  EXPECT_EQ(offered("Langmuir", false), "3-143 150-810 860-916 921-951 1111-1310");
  EXPECT_EQ(offered("Langmuir-Freundlich", false), "3-143 150-810 860-916 921-951 1111-1300 1310-1320");
  EXPECT_EQ(offered("NICA", false), "3-143 150-810 860-916 921-951 1111-1300 1320-1330 1339-1340");
  EXPECT_EQ(offered("NICA-Donnan", false), "3-143 150-810 860-916 921-951 1111-1300 1340-1400");
}

TEST(Choices, PassOverWhatIsNoNumberAndEndAtACut) {
  MemorySystem system;
  system.add("c", "x,text,0,0,0,0\n812,SOH,0,0,0,0\n,empty,0,0,0,0\n150,Ca+2,0,0,0,0\n231,Cu+2,0");
  EXPECT_EQ(edit::component_choices(system, "c", "", false).names, (std::vector<std::string>{"=SOH", "Ca+2", "H2O"}));
  const auto missing = edit::component_choices(system, "nowhere", "", false);
  EXPECT_EQ(missing.names, std::vector<std::string>{"H2O"});
  EXPECT_EQ(missing.failure,
            "The components cannot be listed: cannot open nowhere: No such file or directory. Choose another component "
            "database, or mend this one.");
}

TEST(Suggestion, PutsSitesInTheFirstPlace) {
  const struct {
    const char *model, *component;
    double first, second;
  } rows[] = {{"", "Lsite2", 7, 8},
              {"Freundlich", "x", 1301, 7},
              {"Linear Kd", "x", 1301, 7},
              {"Extended Freundlich", "x", 1301, 7},
              {"Temkin", "x", 1331, 7},
              {"Langmuir", "Lsite2", 1302, 8},
              {"Langmuir", " Lsite2", 1301, 8},
              {"Langmuir-Freundlich", "LFsite1", 1311, 8},
              {"Langmuir-Freundlich", "LFsite2", 1312, 8},
              {"NICA", "NICAsite1", 1321, 8},
              {"NICA", "NICAsite2", 1322, 8},
              {"NICA", "Lsite2", 1301, 8},
              {"NICA-Donnan", "FA1-", 1341, 8},
              {"NICA-Donnan", "FA2-", 1342, 8},
              {"NICA-Donnan", "HA1-", 1351, 8},
              {"NICA-Donnan", "HA2-", 1352, 8},
              {"other", "x", 1301, 8}};
  for (const auto& row : rows) {
    const edit::IdBase base = edit::with_site({7, 8}, row.model, row.component);
    EXPECT_EQ(base.first, row.first) << row.model << " " << row.component;
    EXPECT_EQ(base.second, row.second) << row.model << " " << row.component;
  }
}

// The candidate order walked one by one, as it is told, against the one pass.
double walked(edit::IdBase base, const std::vector<double>& used) {
  const auto in_use = [&](double candidate) {
    for (const double id : used)
      if (std::nearbyint(id) == std::nearbyint(candidate)) return true;
    return false;
  };
  double start = base.first * 10000 + base.second * 10, candidate = start;
  for (int blocks = 0; in_use(candidate);) {
    if (++candidate != start + 10 || blocks == 2) continue;
    if (++blocks == 1)
      candidate = start = base.second * 10000 + base.first * 10;
    else
      candidate = start + 11;
  }
  return candidate;
}

TEST(Suggestion, IsTheFirstCandidateNotInUse) {
  const auto block = [](double from, int count) {
    std::vector<double> ids;
    ids.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) ids.push_back(from + i);
    return ids;
  };
  const auto join = [](std::vector<double> a, const std::vector<double>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
  };
  const struct {
    edit::IdBase base;
    std::vector<double> used;
    double result;
  } rows[] = {{{150, 2}, {}, 1500020},
              {{150, 2}, block(1500020, 10), 21500},
              {{150, 2}, join(block(1500020, 10), block(21500, 10)), 21511},
              {{150, 2}, join(block(1500020, 10), block(21500, 3990)), 25490},
              {{150, 2}, {1500020.4}, 1500021},
              {{3, 3}, block(30030, 10), 30041},
              {{0, 0}, {}, 0}};
  for (const auto& [base, used, result] : rows) {
    edit::FreeId candidates(base);
    for (const double id : used) candidates.use(id);
    EXPECT_EQ(candidates.result(), result);
    EXPECT_EQ(walked(base, used), result);
  }
  EXPECT_THROW(edit::FreeId({1e12, 0}), file::Refusal);
}

}  // namespace
