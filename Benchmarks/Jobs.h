// A job is a task and its contestants. The first is `ours`, the library's routine; the others are compared
// with it.
#ifndef BENCHMARKS_JOBS_H
#define BENCHMARKS_JOBS_H

#include <benchmark/benchmark.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

namespace benchmarks {

// The code units of a text, or numbers.
using Result = std::vector<double>;

struct Release {
  void operator()(BSTR handle) const { releaseBSTR(handle); }
};
using Owned = std::unique_ptr<char16_t, Release>;

inline Result resultOf(std::u16string_view text) { return {text.begin(), text.end()}; }
inline Result resultOf(const Owned& text) { return resultOf(text.get()); }
inline Result resultOf(double number) { return {number}; }
inline Result resultOf(std::span<const double> numbers) { return {numbers.begin(), numbers.end()}; }

struct Contestant {
  std::string name;
  double calls;  // or code units, in one run; times are divided by it
  std::function<void(benchmark::State&)> measure;
  std::function<Result()> run;
};

struct Job {
  std::string name;
  double tolerance = 0;  // relative
  std::deque<Contestant> contestants = {};

  // `work` runs the task once and returns its result.
  template <typename Work>
  Job& add(std::string contestant, Work work, double calls = 1) {
    const auto shared = std::make_shared<Work>(std::move(work));
    contestants.push_back({std::move(contestant), calls,
                           [shared](benchmark::State& state) {
                             for (auto _ : state) benchmark::DoNotOptimize((*shared)());
                           },
                           [shared] { return resultOf((*shared)()); }});
    return *this;
  }
};

// The jobs of the selected groups.
inline std::deque<Job> jobs;

inline Job& addJob(const std::string& group, const std::string& name) {
  return jobs.emplace_back(Job{group + "/" + name});
}

void addShortJobs();
void addLongJobs();
void addNumericJobs();
void addGrowthJobs();

// Returns a host string that is never released.
inline BSTR keep(const std::u16string& text) {
  static std::deque<Owned> all;
  return all.emplace_back(SysAllocString16(text.c_str())).get();
}

// Repeats `unit` to at least `length` code units and appends `end`.
inline std::u16string repeat(std::u16string_view unit, std::size_t length,
                             std::u16string_view end = u"") {
  std::u16string text;
  while (text.size() < length) text += unit;
  return text += end;
}

// Random letters and blanks, with a token about every ten code units, so that branches are not predictable.
// The text is the same in every call.
inline std::u16string mixText(std::size_t length, const std::vector<std::u16string_view>& tokens) {
  constexpr std::u16string_view kLetters = u"eeeeettttaaaooiinnsshhrrdlucmfwypvbgkEATN          ";
  std::mt19937 random(1);
  const auto below = [&random](std::size_t end) { return random() % end; };
  std::u16string text;
  while (text.size() < length) {
    for (std::size_t gap = 1 + below(17); gap > 0; --gap) text += kLetters[below(kLetters.size())];
    text += tokens[below(tokens.size())];
  }
  return text;
}

}  // namespace benchmarks

#endif
