// The main program of every benchmark: Google Benchmark measures, and the report is the table of ratios that the house
// quotes. A benchmark named "<subject>/zarvikrt" is ours; every other "<subject>/<peer>" is set against it. Single
// figures come with `--benchmark_out=FILE`.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "support/Subject.h"

namespace {

double medianOf(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

class RatioReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration && !run.error_occurred) note(run);
    }
  }

  void printRatios() {
    for (const std::string& subject : subjectsInOrder()) {
      const auto& measured = times[subject];
      const auto ours = measured.find("zarvikrt");
      if (ours == measured.end() || measured.size() < 2) continue;
      const double median = medianOf(ours->second);
      std::printf("%-44s %12.2f ns", subject.c_str(), median);
      for (const auto& [peer, peerTimes] : measured) {
        if (peer != "zarvikrt") std::printf("   %.2f x %s", median / medianOf(peerTimes), peer.c_str());
      }
      std::printf("\n");
    }
  }

 private:
  void note(const Run& run) {
    const std::string name = run.run_name.function_name + run.run_name.args;
    const std::size_t slash = name.rfind('/');
    if (slash == std::string::npos) return;
    const std::string subject = name.substr(0, slash);
    times[subject][name.substr(slash + 1)].push_back(1e9 * run.cpu_accumulated_time /
                                                     static_cast<double>(run.iterations));
  }

  std::map<std::string, std::map<std::string, std::vector<double>>> times;
};
}  // namespace

int main(int argc, char** argv) {
  // Subjects and peers in turn, several times over: a drift of the machine's speed meets both alike.
  std::vector<char*> arguments(argv, argv + argc);
  char interleaving[] = "--benchmark_enable_random_interleaving=true";
  char repetitions[] = "--benchmark_repetitions=9";
  char minTime[] = "--benchmark_min_time=0.02";
  arguments.insert(arguments.begin() + 1, {interleaving, repetitions, minTime});
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.printRatios();
}
