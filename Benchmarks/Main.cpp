// Measures groups of jobs. With --once, runs each contestant once and compares the results.
//
//   QUVARDBenchmarks [--once] [--benchmark_...]... [GROUP]...
#ifdef __linux__
#include <malloc.h>
#endif

#include <cmath>
#include <cstdio>
#include <iostream>
#include <map>

#include "Jobs.h"

namespace benchmarks {
namespace {

// Per contestant. scripts/bench takes the least time of many runs.
constexpr double kSeconds = 0.005;

bool agree(double a, double b, double tolerance) {
  return a == b || std::fabs(a - b) <= tolerance * std::fabs(a);
}

// Whether all contestants return our result. Ours runs twice, since VB_Replace changes its text.
bool allAgree(const Job& job) {
  const Contestant& ours = job.contestants.front();
  const Result expected = ours.run();
  ours.run();
  for (const Contestant& other : job.contestants) {
    const Result result = other.run();
    std::size_t at = 0;
    while (at < std::min(expected.size(), result.size()) &&
           agree(expected[at], result[at], job.tolerance)) {
      ++at;
    }
    if (at == expected.size() && at == result.size()) continue;
    const auto show = [at](const Contestant& one, const Result& values) {
      std::fprintf(stderr, "  %-9s %.17g, of %zu\n", one.name.c_str(),
                   at < values.size() ? values[at] : NAN, values.size());
    };
    std::fprintf(stderr, "%s: results differ at element %zu\n", job.name.c_str(), at);
    show(ours, expected);
    show(other, result);
    return false;
  }
  return true;
}

void registerJob(const Job& job) {
  for (const Contestant& contestant : job.contestants) {
    const auto measure = [&contestant](benchmark::State& state) {
      contestant.measure(state);
      state.counters["calls"] = contestant.calls;
    };
    benchmark::RegisterBenchmark((job.name + "/" + contestant.name).c_str(), measure)
        ->MinTime(kSeconds);
  }
}

int run(std::vector<std::string> arguments) {
  const std::map<std::string, void (*)()> groups{{"short", addShortJobs},
                                                 {"long", addLongJobs},
                                                 {"numerics", addNumericJobs},
                                                 {"growth", addGrowthJobs}};
  const bool once = std::erase(arguments, "--once") > 0;
  if (arguments.empty()) arguments = {"short", "long", "numerics", "growth"};
  for (const std::string& group : arguments) {
    if (!groups.contains(group)) {
      std::cerr << "unknown group of benchmarks \"" << group << "\"\n";
      return 2;
    }
    groups.at(group)();
  }
  for (const Job& job : jobs) {
    if (once && !allAgree(job)) return 1;
    if (!once) registerJob(job);
  }
#ifdef __clang__
  benchmark::AddCustomContext("compiler", __VERSION__);
#else
  benchmark::AddCustomContext("compiler", "g++ " __VERSION__);
#endif
  if (!once) benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace
}  // namespace benchmarks

int main(int argc, char** argv) {
#ifdef __linux__
  // Otherwise malloc sometimes returns the memory of large texts to the system. The page faults that
  // follow take longer than the work.
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, 1 << 30);
#endif
  benchmark::Initialize(&argc, argv);
  return benchmarks::run({argv + 1, argv + argc});
}
