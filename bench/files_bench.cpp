// Reading, searching and writing the database that make_files has put into the current folder.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "check/check.h"
#include "data.h"
#include "db/rewrite.h"
#include "edit/saving.h"
#include "edit/suggestion.h"

namespace {

using bench::kDatabase;
using bench::kSpecies;

const db::Database kOpen{.path = kDatabase, .compdb = bench::kComponentDatabase};
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

// The component database is read once, whatever number of databases the checker is given.
void check_all(benchmark::State& state) {
  const check::Components components(file::system(), bench::kComponentDatabase);
  for (auto _ : state) benchmark::DoNotOptimize(check::check_database(file::system(), kDatabase, &components, false).size());
}
BENCHMARK(check_all);

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

const std::string kChanged = bench::species_name(kSpecies / 2);

edit::Entry change() {
  return {.id = db::numtext(bench::species_id(kSpecies / 2)),
          .name = kChanged,
          .logk = " 2.5",
          .dhr = "0",
          .charge = "1",
          .nocomp = "2",
          .ksel = "",
          .lk2 = std::nullopt,
          .rows = {{"1", "Comp150+2", ""}, {"-1", "Comp330+2", ""}}};
}

// All that a save does before it writes.
void new_content(benchmark::State& state) {
  for (auto _ : state) {
    db::Rewrite rewrite(file::system(), kOpen, "", 0);
    while (rewrite.keep_until(kChanged)) rewrite.put(edit::species_record(file::system(), kOpen, change()));
    benchmark::DoNotOptimize(rewrite.content().data());
  }
}
BENCHMARK(new_content);

// How often this process gave the processor up to wait for something.
double waits() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_nvcsw);
}

void save(benchmark::State& state) {
  const double before = waits();
  for (auto _ : state) benchmark::DoNotOptimize(edit::change_species(file::system(), kOpen, kChanged, change(), ""));
  state.counters["waits"] = (waits() - before) / static_cast<double>(state.iterations());
}
BENCHMARK(save);

// What a save asks of the file system once the new content is there, and nothing else.
void file_operations(benchmark::State& state) {
  std::array<char, 64 * 1024> block;
  for (auto _ : state) {
    const int old = open(kDatabase, O_RDWR), writer = open("other.tmp", O_WRONLY | O_CREAT | O_EXCL, 0600),
              held = open("other.tmp", O_RDWR);
    bool done = flock(old, LOCK_EX | LOCK_NB) == 0 && flock(held, LOCK_EX | LOCK_NB) == 0;
    done = done && write(writer, content.data(), content.size()) == std::ssize(content);
    done = done && fchown(writer, geteuid(), getegid()) == 0 && fchmod(writer, 0644) == 0 && fsync(writer) == 0;
    close(writer);
    const int reader = open("other.tmp", O_RDONLY);
    while (read(reader, block.data(), block.size()) > 0) benchmark::ClobberMemory();
    close(reader);
    done = done && rename("other.tmp", "other.mdb") == 0;
    const int folder = open(".", O_RDONLY | O_DIRECTORY);
    done = done && fsync(folder) == 0;
    for (const int opened : {folder, held, old}) close(opened);
    if (!done) state.SkipWithError("a file operation failed");
  }
}
BENCHMARK(file_operations);

void load_million(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(&load_names(bench::kMillion));
}
BENCHMARK(load_million);

void load_4000(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(&load_names(bench::kFirst4000));
}
BENCHMARK(load_4000);

// Loads a database, and prints the most resident memory that this process had, in KiB.
int print_memory(const char* path) {
  if (load_names(path).empty()) return 1;
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;)
    if (word == "VmHWM:" && status >> word) std::cout << word;
  return 0;
}

}  // namespace

// With the path of a database it loads that alone.
int main(int argc, char** argv) {
  if (argc == 2 && argv[1][0] != '-') return print_memory(argv[1]);
  std::ifstream file(kDatabase, std::ios::binary);
  content.assign(std::istreambuf_iterator<char>(file), {});
  if (content.empty()) return 1;
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
