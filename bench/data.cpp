// Makes the databases that are measured, and reads them by ways to compare with.
#include "data.h"

#include <fstream>
#include <random>
#include <sstream>

#include "db/rewrite.h"

namespace bench {
namespace {

constexpr int kFirstComponent = 150, kSecondComponent = 2;

int component_number(std::mt19937& random) { return 3 + static_cast<int>(random() % (kComponents - 1)); }

}  // namespace

// In the order of the candidates for the two components: two blocks of ten, then every number after a gap of one.
double species_id(int i) {
  constexpr int kBase = kFirstComponent * 10000 + kSecondComponent * 10,
                kExchanged = kSecondComponent * 10000 + kFirstComponent * 10;
  if (i < 10) return kBase + i;
  return i < 20 ? kExchanged + i - 10 : kExchanged + i - 9;
}

std::string species_name(int i) { return "Cu(OH)" + std::to_string(i) + "-2"; }

std::string make_database(int species) {
  std::mt19937 random(20261122);
  const auto constant = [&random] {
    double scale = 100;
    for (auto decimals = random() % 3; decimals > 0; --decimals) scale *= 10;
    return (static_cast<double>(random() % 400001) - 200000) / scale / 10;
  };
  std::string out;
  for (int i = 0; i < species; ++i) {
    const int n = 2 + static_cast<int>(random() % 5);
    db::LineWriter head(out);
    head.number(species_id(i)).text(species_name(i)).number(constant()).number(constant()).number(0).number(0);
    head.number(static_cast<int>(random() % 5) - 2).number(0).number(0).number(0).number(0).number(n).end();
    db::LineWriter pairs(out);
    for (int j = 0; j < n; ++j)
      pairs.number(random() % 4 == 0 ? -1 : static_cast<double>(1 + random() % 3)).number(component_number(random));
    pairs.end();
  }
  return out + std::string(db::kTrailer);
}

std::string make_components() {
  std::string out;
  for (int i = 0; i < kComponents; ++i)
    db::LineWriter(out)
        .number(i + 2)
        .text("Comp" + std::to_string(i + 2) + "+2")
        .number(2)
        .number(63.546)
        .number(6)
        .text("")
        .end();
  return out;
}

std::size_t scan_fields(std::string_view bytes) {
  const char* at = bytes.data();
  const char* const end = at + bytes.size();
  std::size_t in_fields = 0;
  while (at != end) {
    const char* const begin = at;
    if (*at == '"') {
      ++at;
      while (at != end && *at != '"') ++at;
    }
    while (at != end && *at != ',' && *at != '\r' && *at != '\n') ++at;
    in_fields += static_cast<std::size_t>(at - begin);
    if (at == end) break;
    if (*at++ == '\r' && at != end && *at == '\n') ++at;
  }
  return in_fields;
}

std::vector<std::string> read_names_naively(const std::string& path) {
  std::ifstream file(path);
  std::istringstream line;
  const auto next_field = [&](std::string& field) {
    while (!std::getline(line, field, ',')) {
      std::string text;
      if (!std::getline(file, text)) return false;
      line = std::istringstream(text);
    }
    return true;
  };
  const auto to_number = [](const std::string& field) {
    double number = 0;
    std::istringstream(field) >> number;
    return number;
  };
  std::vector<std::string> names;
  for (std::string head[12], unused;;) {
    for (std::string& field : head)
      if (!next_field(field)) return names;
    if (to_number(head[0]) == 0) return names;
    for (int i = 2 * static_cast<int>(to_number(head[11])); i > 0; --i)
      if (!next_field(unused)) return names;
    names.push_back(head[1].substr(1, head[1].size() - 2));
  }
}

}  // namespace bench
