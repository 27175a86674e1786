#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

constexpr const char* ours = "zarvikrt";

/// All subjects, in the order of their registration.
inline std::vector<std::string>& subjectsInOrder() {
  static std::vector<std::string> subjects;
  return subjects;
}

/// Registers `action` as the work of `who` on `subject`; what it returns is kept from the optimiser.
/// The side named "zarvikrt" is ours, and the report sets it against all others.
template <class Action>
void measure(const std::string& subject, const char* who, Action action) {
  std::vector<std::string>& known = subjectsInOrder();
  if (std::find(known.begin(), known.end(), subject) == known.end()) known.push_back(subject);
  benchmark::RegisterBenchmark((subject + "/" + who).c_str(),
                               [action = std::move(action)](benchmark::State& state) mutable {
                                 for (auto _ : state) benchmark::DoNotOptimize(action());
                               });
}
