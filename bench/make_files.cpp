// Makes the files that the benchmarks work on, in the current folder.
#include <fstream>
#include <string>

#include "data.h"
#include "db/format.h"
#include "db/number.h"

namespace {

void write_file(const char* path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

// The last species has eight components, from all over the component database.
std::string with_last_species(std::string database) {
  const std::string last = db::format_number(bench::species_id(bench::kSpecies - 1)) +
                           ",\"last\",0,1,0,0,0,0,0,0,0,8\r\n1,401,1,350,1,300,1,250,1,200,1,150,1,100,1,50\r\n";
  return database.insert(database.size() - db::kTrailer.size(), last);
}

}  // namespace

int main() {
  write_file(bench::kDatabase, with_last_species(bench::make_database(bench::kSpecies - 1)));
  write_file(bench::kComponentDatabase, bench::make_components());
  write_file("dabase.txt", "C");
  std::string records = bench::make_database(4000);
  records.resize(records.size() - db::kTrailer.size());
  write_file(bench::kFirst4000, records);
  std::ofstream million(bench::kMillion, std::ios::binary);
  for (int i = 0; i < 250; ++i) million << records;
}
