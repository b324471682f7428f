// What is measured. A job is one piece of work, done by several contestants: `ours`, the library's
// routine; `floor`, the service calls that the routine cannot do without; `transcription`, the steps
// of its contract written down plainly; and what other libraries have for the same work.
#ifndef BENCHMARKS_CONTESTANTS_H
#define BENCHMARKS_CONTESTANTS_H

#include <benchmark/benchmark.h>
#include <unicode/unistr.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Text.h"

namespace benchmarks {

// What a contestant gives, in a form that compares: a text, or numbers.
struct Result {
  std::u16string text;
  std::vector<double> numbers;
};

inline Result resultOf(std::u16string_view text) { return {std::u16string(text), {}}; }
inline Result resultOf(const Owned& text) { return resultOf(std::u16string_view(text.get())); }
inline Result resultOf(const std::wstring& text) { return {{text.begin(), text.end()}, {}}; }
inline Result resultOf(const icu::UnicodeString& text) {
  return resultOf(std::u16string_view(text.getBuffer(), static_cast<std::size_t>(text.length())));
}
inline Result resultOf(double number) { return {{}, {number}}; }

struct Contestant {
  std::string name;
  std::function<void(benchmark::State&)> measure;
  std::function<Result()> run;
};

struct Job {
  std::string group, name;
  double calls = 1;      // or units of text, in one run: the time is told for each of them
  double tolerance = 0;  // relative; a transcription and the floor agree in every bit
  std::deque<Contestant> contestants = {};

  // A contestant that does the job in one call.
  template <typename Call>
  Job& add(std::string contestant, Call work) {
    const auto call = std::make_shared<Call>(std::move(work));
    contestants.push_back({std::move(contestant),
                           [call](benchmark::State& state) {
                             for (auto _ : state) benchmark::DoNotOptimize((*call)());
                           },
                           [call] { return resultOf((*call)()); }});
    return *this;
  }
};

inline std::deque<Job>& jobs() {
  static std::deque<Job> all;
  return all;
}

inline Job& addJob(std::string group, std::string name) {
  return jobs().emplace_back(Job{std::move(group), std::move(name)});
}

// The jobs of each file.
void addShortJobs();
void addLongJobs();
void addWideJobs();
void addNumericJobs();
void addGrowthJobs();

}  // namespace benchmarks

#endif
