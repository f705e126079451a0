// How the cost of loading and saving grows with the number of species: one row a measurement, as CSV.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "data.h"
#include "db/rewrite.h"

namespace {

void prepare(const benchmark::State& state) {
  std::ofstream("bench.mdb", std::ios::binary) << bench::make_database(static_cast<int>(state.range(0)));
}

void loading(benchmark::State& state) {
  prepare(state);
  std::vector<std::string> names;
  for (auto _ : state) {
    names.clear();
    db::SpeciesReader reader(file::system(), "bench.mdb");
    while (const db::Record* record = reader.next()) names.emplace_back(record->head[db::kName].text);
    benchmark::DoNotOptimize(&names);
  }
}

void saving(benchmark::State& state) {
  prepare(state);
  for (auto _ : state) {
    db::Rewrite rewrite(file::system(), {.path = "bench.mdb", .compdb = "comp.mdb"}, {});
    rewrite.keep_until(std::nullopt);
    benchmark::DoNotOptimize(rewrite.commit());
  }
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  for (const int species : {10, 20, 50, 100, 200, 500, 1000, 2000, 3000, 3999}) benchmark->Arg(species);
}

BENCHMARK(loading)->Apply(sizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(saving)->Apply(sizes)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int, char** argv) {
  const auto folder = std::filesystem::current_path() / "bench-files";
  std::filesystem::create_directory(folder);
  std::filesystem::current_path(folder);
  char csv[] = "--benchmark_format=csv", repetitions[] = "--benchmark_repetitions=9",
       interleaved[] = "--benchmark_enable_random_interleaving=true",
       aggregates[] = "--benchmark_report_aggregates_only=true", time[] = "--benchmark_min_time=0.02";
  char* arguments[] = {argv[0], csv, repetitions, interleaved, aggregates, time, nullptr};
  int count = 6;
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
  std::filesystem::current_path(folder.parent_path());
  std::filesystem::remove_all(folder);
}
