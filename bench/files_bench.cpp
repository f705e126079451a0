// Reading, searching and writing a database of 3999 species.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "data.h"
#include "db/rewrite.h"
#include "edit/saving.h"
#include "edit/suggestion.h"
#include "support/memory_system.h"
#include "table.h"

namespace {

using bench::kSpecies;

const char* const kDatabase = "bench.mdb";
const char* const kComponents = "comp.mdb";
const char* const kMillion = "million.mdb";
const char* const kFirst4000 = "first4000.mdb";

const db::Database kOpen{.path = kDatabase, .compdb = kComponents};
std::string content;  // of kDatabase

// Into a list that is filled again and again, as that of the window.
const std::vector<std::string>& load_names(const char* path) {
  static std::vector<std::string> names;
  names.clear();
  db::SpeciesReader reader(file::system(), path);
  while (const db::Record* record = reader.next()) names.emplace_back(record->head[db::kName].text);
  return names;
}

void floor_scan(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(bench::scan_fields(content));
}
BENCHMARK(floor_scan);

void naive_names(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(bench::read_names_naively(kDatabase));
}
BENCHMARK(naive_names);

void load(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(&load_names(kDatabase));
}
BENCHMARK(load);

// A quoted field is text, an empty one empty, one that converts a number, and any other text.
double converted(const db::Field& field) {
  const double size = static_cast<double>(field.text.size());
  return field.quoted || field.text.empty() ? size : db::parse_number(field.text).value_or(size);
}

void convert_all(benchmark::State& state) {
  for (auto _ : state) {
    double sum = 0;
    db::SpeciesReader reader(file::system(), kDatabase);
    while (const db::Record* record = reader.next()) {
      for (const db::Field& field : record->head) sum += converted(field);
      for (const db::Field& field : record->pairs) sum += converted(field);
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(convert_all);

void click_last(benchmark::State& state) {
  db::Database open = kOpen;
  for (auto _ : state) benchmark::DoNotOptimize(edit::show_species(file::system(), open, "last").value());
}
BENCHMARK(click_last);

void suggest_id(benchmark::State& state) {
  for (auto _ : state) {
    const double id = edit::free_id(file::system(), kOpen, {150, 2});
    benchmark::DoNotOptimize(id);
    if (id != 21500 + kSpecies - 9) state.SkipWithError("not all candidates were in use");
  }
}
BENCHMARK(suggest_id);

// A change of the species in the middle: the new content.
void change(db::Rewrite& rewrite) {
  const std::string name = bench::species_name(kSpecies / 2);
  edit::Entry entry{.id = db::numtext(bench::species_id(kSpecies / 2)),
                    .name = name,
                    .logk = " 2.5",
                    .dhr = "0",
                    .charge = "1",
                    .nocomp = "2",
                    .ksel = "",
                    .lk2 = std::nullopt,
                    .rows = {{"1", "Comp150+2", ""}, {"-1", "Comp330+2", ""}}};
  while (rewrite.keep_until(name)) rewrite.put(edit::species_record(file::system(), kOpen, entry));
}

// Without the calls of the system that a save needs for its safety.
void save_in_memory(benchmark::State& state) {
  support::MemorySystem memory;
  memory.add(kDatabase, content);
  for (auto _ : state) {
    db::Rewrite rewrite(memory, kOpen, "", 0);
    change(rewrite);
    benchmark::DoNotOptimize(rewrite.content().data());
  }
}
BENCHMARK(save_in_memory);

void save(benchmark::State& state) {
  for (auto _ : state) {
    db::Rewrite rewrite(file::system(), kOpen, "", 0);
    change(rewrite);
    benchmark::DoNotOptimize(rewrite.commit());
  }
}
BENCHMARK(save);

// What a save asks of the file system, and nothing else.
void file_operations(benchmark::State& state) {
  for (auto _ : state) {
    const int fd = open("other.tmp", O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (write(fd, content.data(), content.size()) < 0 || fsync(fd) != 0) state.SkipWithError("cannot write");
    close(fd);
    if (rename("other.tmp", "other.mdb") != 0) state.SkipWithError("cannot rename");
    const int folder = open(".", O_RDONLY | O_DIRECTORY);
    fsync(folder);
    close(folder);
  }
}
BENCHMARK(file_operations);

void load_million(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(&load_names(kMillion));
}
BENCHMARK(load_million);

void load_4000(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(&load_names(kFirst4000));
}
BENCHMARK(load_4000);

// Peak memory in KiB of a process of its own that loads the file.
double peak_memory(const char* path) {
  const pid_t child = fork();
  if (child == 0) {
    execl("/proc/self/exe", "files_bench", path, nullptr);
    _exit(1);
  }
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  return status == 0 ? static_cast<double>(usage.ru_maxrss) : std::numeric_limits<double>::quiet_NaN();
}

void write_file(const char* path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

// The last species has eight components, from all over the component database.
std::string with_last_species(std::string database) {
  const std::string last = db::format_number(bench::species_id(kSpecies - 1)) +
                           ",\"last\",0,1,0,0,0,0,0,0,0,8\r\n1,401,1,350,1,300,1,250,1,200,1,150,1,100,1,50\r\n";
  return database.insert(database.size() - db::kTrailer.size(), last);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2) return load_names(argv[1]).empty() ? 1 : 0;

  const auto folder = std::filesystem::current_path() / "bench-files";
  std::filesystem::create_directory(folder);
  std::filesystem::current_path(folder);
  content = with_last_species(bench::make_database(kSpecies - 1));
  write_file(kDatabase, content);
  write_file(kComponents, bench::make_components());
  {
    std::string records = bench::make_database(4000);
    records.resize(records.size() - db::kTrailer.size());
    write_file(kFirst4000, records);
    std::ofstream million(kMillion, std::ios::binary);
    for (int i = 0; i < 250; ++i) million << records;
  }

  bench::Medians medians;
  bench::run_benchmarks(medians, argv[0]);
  medians.note("memory_million", peak_memory(kMillion));
  medians.note("memory_4000", peak_memory(kFirst4000));
  const bool met = medians.print({
      {"loading: all names out of the file, against the floor", "load", "floor_scan", 1.5},
      {"loading, against the naive reader", "load", "naive_names", .1},
      {"every field typed and converted, against the floor", "convert_all", "floor_scan", 3.5},
      {"a click on the last species, 8 lookups in 400 components, against loading", "click_last", "load", 1.5},
      {"ID suggestion with 3999 candidates in use, against loading", "suggest_id", "load", 1.5},
      {"save: read, replace one record, format all, against the floor", "save_in_memory", "floor_scan", 5},
      {"save as a whole, against its file operations alone", "save", "file_operations", 3},
      {"loading the first 4000 of 1,000,000 records, against a file of these: time", "load_million", "load_4000", 1.3},
      {"the same: memory", "memory_million", "memory_4000", 1.1},
  });
  std::filesystem::current_path(folder.parent_path());
  std::filesystem::remove_all(folder);
  return met ? 0 : 1;
}
