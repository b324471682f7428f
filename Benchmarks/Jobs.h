// A job is one piece of work and its contestants: first `ours`, the library's routine, then what it is
// compared with.
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

// A result as it is compared: the code units of a text, or numbers.
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
  double calls;  // in one run, or code units of text: times are per call
  std::function<void(benchmark::State&)> measure;
  std::function<Result()> run;
};

struct Job {
  std::string name;
  double tolerance = 0;  // relative
  std::deque<Contestant> contestants = {};

  // `work` does the job once and returns its result.
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

// The jobs of the groups that are measured.
inline std::deque<Job> jobs;

inline Job& addJob(const std::string& group, const std::string& name) {
  return jobs.emplace_back(Job{group + "/" + name});
}

void addShortJobs();
void addLongJobs();
void addNumericJobs();
void addGrowthJobs();

// A host string that lives as long as the program.
inline BSTR keep(const std::u16string& text) {
  static std::deque<Owned> all;
  return all.emplace_back(SysAllocString16(text.c_str())).get();
}

// `unit` repeated to at least `length` code units, and then `end`.
inline std::u16string repeat(std::u16string_view unit, std::size_t length,
                             std::u16string_view end = u"") {
  std::u16string text;
  while (text.size() < length) text += unit;
  return text += end;
}

// Random letters and blanks with one of the tokens about every ten code units, so that no branch is
// predictable. The same text at every call.
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
