// Checks that all contestants of a job agree, and then measures them.
//
//   QUVARDBenchmarks [--once | --brief] [--benchmark_...]... [GROUP]...
//
// --once runs each contestant once more and measures nothing. --brief measures each once, for a few
// milliseconds, and compares no results.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <map>
#include <set>

#include "Contestants.h"

namespace benchmarks {
namespace {

constexpr int kRepetitions = 7;
constexpr double kSecondsOfOne = 0.05;
constexpr double kSecondsOfBrief = 0.005;

enum class Mode { kFull, kOnce, kBrief };

std::string show(std::u16string_view text, std::size_t at) {
  constexpr std::size_t kBefore = 10, kUnits = 40;
  std::string line;
  for (const char16_t unit : text.substr(at < kBefore ? 0 : at - kBefore, kUnits)) {
    line += unit >= 0x20 && unit < 0x7F ? static_cast<char>(unit) : '?';
  }
  return '"' + line + "\" of " + std::to_string(text.size()) + " units";
}

std::string show(double number) {
  char digits[40];
  std::snprintf(digits, sizeof digits, "%.17g (%a)", number, number);
  return digits;
}

// Equal numbers agree, and so do two that are not numbers.
bool agree(double a, double b, double tolerance) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
  return a == b || std::fabs(a - b) <= tolerance * std::max(std::fabs(a), std::fabs(b));
}

// Where two results differ, and what is there in each; empty if they agree.
std::vector<std::string> compare(const Result& a, const Result& b, double tolerance) {
  const auto unit = std::mismatch(a.text.begin(), a.text.end(), b.text.begin(), b.text.end()).first;
  if (a.text != b.text) {
    const auto at = static_cast<std::size_t>(unit - a.text.begin());
    return {"unit " + std::to_string(at), show(a.text, at), show(b.text, at)};
  }
  for (std::size_t i = 0; i < std::max(a.numbers.size(), b.numbers.size()); ++i) {
    if (!agree(a.numbers.at(i), b.numbers.at(i), tolerance)) {
      return {"number " + std::to_string(i), show(a.numbers[i]), show(b.numbers[i])};
    }
  }
  return {};
}

// Whether the contestants of a job agree, and none of them has changed a text for the others or for
// its own next run. Each runs twice, for one that changes its text puts it back the second time.
bool isFair(const Job& job) {
  const auto complain = [&job](const std::string& line) {
    std::cerr << job.group << ", " << job.name << ": " << line << '\n';
    return false;
  };
  const auto bits = [](const Contestant& one) {
    return one.name == "floor" || one.name == "transcription";
  };
  const Result ours = job.contestants.front().run();
  job.contestants.front().run();
  for (const Contestant& other : job.contestants) {
    const Result result = other.run();
    other.run();
    const auto difference = compare(ours, result, bits(other) ? 0 : job.tolerance);
    if (difference.empty()) continue;
    return complain(job.contestants.front().name + " and " + other.name + " differ at " +
                    difference[0] + ":\n  " + difference[1] + "\n  " + difference[2]);
  }
  for (const auto& [text, handle] : keptTexts()) {
    if (std::memcmp(text.c_str(), handle.get(), (text.size() + 1) * sizeof(char16_t)) != 0) {
      return complain("a run changes its text:\n  " + show(text, 0) + "\n  " +
                      show(handle.get(), 0));
    }
  }
  return true;
}

// Tells on the standard error how far the measurement is. An equal number of iterations a second time
// tells that a contestant has found out how many it needs.
class Progress {
 public:
  void tell(const std::string& name, benchmark::IterationCount iterations) {
    if (std::exchange(lastIterations_[name], iterations) == iterations) ++done_;
    const auto now = std::chrono::steady_clock::now();
    if (now - told_ < std::chrono::seconds(2)) return;
    told_ = now;
    std::fprintf(stderr, "%3zu %%  %s\n", 100 * done_ / std::max<std::size_t>(expected_, 1),
                 name.c_str());
  }

  void expect(std::size_t contestants) { expected_ += contestants * (kRepetitions - 1); }

 private:
  std::map<std::string, benchmark::IterationCount> lastIterations_;
  std::size_t done_ = 0, expected_ = 0;
  std::chrono::steady_clock::time_point told_ = std::chrono::steady_clock::now();
};

void registerJob(const Job& job, Progress& progress, Mode mode) {
  for (const Contestant& contestant : job.contestants) {
    const std::string name = job.group + "/" + job.name + "/" + contestant.name;
    const auto measure = [&job, &contestant, &progress, name](benchmark::State& state) {
      progress.tell(name, state.max_iterations);
      contestant.measure(state);
      state.counters["calls"] = job.calls;
    };
    auto* const registered = benchmark::RegisterBenchmark(name.c_str(), measure);
    if (mode == Mode::kOnce) {
      registered->Iterations(1);
    } else if (mode == Mode::kBrief) {
      registered->MinTime(kSecondsOfBrief);
    } else {
      registered->MinTime(kSecondsOfOne)->Repetitions(kRepetitions)->ReportAggregatesOnly();
    }
  }
  progress.expect(job.contestants.size());
}

const std::pair<std::string, void (*)()> kGroups[] = {{"short", addShortJobs},
                                                      {"long", addLongJobs},
                                                      {"wide", addWideJobs},
                                                      {"numerics", addNumericJobs},
                                                      {"growth", addGrowthJobs}};

int run(std::vector<std::string> arguments) {
  const Mode mode = std::erase(arguments, "--once") > 0    ? Mode::kOnce
                    : std::erase(arguments, "--brief") > 0 ? Mode::kBrief
                                                           : Mode::kFull;
  std::set<std::string> wanted(arguments.begin(), arguments.end());
  for (const auto& [name, addJobs] : kGroups) {
    if (arguments.empty() || wanted.erase(name) > 0) addJobs();
  }
  if (!wanted.empty()) {
    std::cerr << "No group of benchmarks: " << *wanted.begin() << ". There are:";
    for (const auto& [name, addJobs] : kGroups) std::cerr << ' ' << name;
    std::cerr << '\n';
    return 2;
  }

  Progress progress;
  for (const Job& job : jobs()) {
    if (mode != Mode::kBrief && !isFair(job)) return 1;
    registerJob(job, progress, mode);
  }
#ifdef __clang__
  benchmark::AddCustomContext("compiler", __VERSION__);
#else
  benchmark::AddCustomContext("compiler", "g++ " __VERSION__);
#endif
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace
}  // namespace benchmarks

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  return benchmarks::run({argv + 1, argv + argc});
}
