#include "table.h"

#include <cstdio>

namespace bench {

void Medians::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs)
    if (run.aggregate_name == "median") medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
  ConsoleReporter::ReportRuns(runs);
}

bool Medians::print(const std::vector<Row>& rows) const {
  bool all = true;
  std::printf("\n| operation | must be | measured | |\n|---|---|---|---|\n");
  for (const Row& row : rows) {
    const double ratio = medians_.at(row.measured) / medians_.at(row.baseline);
    all = all && ratio <= row.must_be;
    std::printf("| %s | %.2f | %.3f | %s |\n", row.what.c_str(), row.must_be, ratio,
                ratio <= row.must_be ? "met" : "FALLS SHORT");
  }
  return all;
}

void run_benchmarks(Medians& medians, char* program) {
  char repetitions[] = "--benchmark_repetitions=21", interleaved[] = "--benchmark_enable_random_interleaving=true",
       time[] = "--benchmark_min_time=0.02", aggregates[] = "--benchmark_report_aggregates_only=true",
       unit[] = "--benchmark_time_unit=us";
  char* argv[] = {program, repetitions, interleaved, time, aggregates, unit, nullptr};
  int argc = 6;
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks(&medians);
}

}  // namespace bench
