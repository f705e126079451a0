// The table of what must be reached: ratios of medians, of a benchmark against its baseline in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace bench {

struct Row {
  std::string what;
  std::string measured, baseline;  // names of benchmarks
  double must_be;                  // at most
};

// Notes the median of each benchmark while the usual report is printed.
class Medians : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override;
  void note(const std::string& name, double value) { medians_[name] = value; }
  // Prints the table; false when a row falls short.
  bool print(const std::vector<Row>& rows) const;

 private:
  std::map<std::string, double> medians_;
};

// Runs all benchmarks, interleaved and repeated, and gives their medians.
void run_benchmarks(Medians& medians, char* program);

}  // namespace bench
