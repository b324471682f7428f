// Jobs of host routines. Each is compared with its floor: the service calls that hostRoutines() lists for
// the routine, in the same order, with the result precomputed.
#ifndef BENCHMARKS_HOSTJOBS_H
#define BENCHMARKS_HOSTJOBS_H

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <tuple>

#include "Jobs.h"
#include "support/HostRoutines.h"

namespace benchmarks {

inline Owned own(BSTR result) { return Owned(result); }
inline int32_t own(int32_t result) { return result; }

// The first word of a job's name is the name of the routine.
inline const Path& pathOf(const std::string& job) {
  static const std::vector<HostRoutine> all = hostRoutines();
  const std::string name = job.substr(0, job.find(' '));
  const auto isNamed = [&name](const HostRoutine& routine) { return routine.name == name; };
  const auto found = std::find_if(all.begin(), all.end(), isNamed);
  if (found == all.end()) throw std::logic_error("no host routine " + name);
  return *found->path;
}

// Adds the floor. Each service is a type of its own, so that the floor does not select it at run time.
template <std::size_t n>
Job& addFloor(Job& job, const Path& path, const std::string& resultService, const auto& result,
              std::array<BSTR, n> texts) {
  const auto ascending = texts;
  std::transform(path.order.begin(), path.order.end(), texts.begin(),
                 [&](std::size_t i) { return ascending[i]; });
  const auto addWith = [&](auto first, auto others, auto make) {
    job.add("floor", [=] {
      if constexpr (n > 0) {
        first(texts[0]);
        for (std::size_t i = 1; i < n; ++i) others(texts[i]);
      }
      return make();
    });
  };
  const auto addTaking = [&](auto first, auto others) {
    if constexpr (std::is_same_v<decltype(result), const int32_t&>) {
      addWith(first, others, [result] { return result; });
    } else {
      const std::u16string text = result.get();
      const std::wstring wide(text.begin(), text.end());
      if (resultService == "SysAllocString16") {
        addWith(first, others, [text] { return Owned(SysAllocString16(text.c_str())); });
      } else if (resultService == "convertWstringToBSTR") {
        addWith(first, others, [wide] { return Owned(convertWstringToBSTR(wide)); });
      } else {
        addWith(first, others, [wide] { return Owned(SysAllocString2(wide.c_str())); });
      }
    }
  };
  const auto nothing = [](BSTR) {};
  const auto wide = [](BSTR text) { benchmark::DoNotOptimize(CW162W32(text)); };
  const auto units = [](BSTR text) { benchmark::DoNotOptimize(wcslen16(text)); };
  const auto object = [](BSTR text) { benchmark::DoNotOptimize(convertBSTRtoWstring(text)); };
  const std::string services = path.first + " " + path.others;
  if (services == " ") addTaking(nothing, nothing);
  if (services == "CW162W32 CW162W32") addTaking(wide, wide);
  if (services == "CW162W32 wcslen16") addTaking(wide, units);
  if (services == "wcslen16 wcslen16") addTaking(units, units);
  if (services == "convertBSTRtoWstring convertBSTRtoWstring") addTaking(object, object);
  if (job.contestants.size() != 2) throw std::logic_error("no floor with the services " + services);
  return job;
}

inline BSTR argument(const std::u16string& text) { return keep(text); }
inline BSTR argument(const char16_t* text) { return keep(text); }
inline BSTR argument(BSTR text) { return text; }
inline int32_t argument(int32_t number) { return number; }
inline double argument(double number) { return number; }

// A job of a host routine and its floor. Texts precede numbers.
template <typename Routine, typename... Arguments>
Job& addHostJob(const std::string& group, const std::string& name, Routine routine,
                Arguments... arguments) {
  const std::tuple converted{argument(arguments)...};
  const auto call = [=] { return own(std::apply(routine, converted)); };
  constexpr auto n = (std::size_t{std::is_same_v<decltype(argument(arguments)), BSTR>} + ... + 0);
  const auto texts = [&]<std::size_t... i>(std::index_sequence<i...>) {
    return std::array<BSTR, n>{std::get<i>(converted)...};
  }
  (std::make_index_sequence<n>());
  const Path& path = pathOf(name);
  return addFloor(addJob(group, name).add("ours", call), path, path.result, call(), texts);
}

// VB_Replace of one code unit by one changes its text. Every second call changes it back.
inline auto replaceAlternately(BSTR text, BSTR pattern, BSTR replacement) {
  return [=]() mutable {
    Owned result(VB_Replace(text, pattern, replacement));
    std::swap(pattern, replacement);
    return result;
  };
}

inline Job& addReplaceJob(const std::string& group, const std::u16string& text) {
  const BSTR comma = keep(u","), semicolon = keep(u";"), unchanged = keep(text);
  auto call = replaceAlternately(keep(text), comma, semicolon);
  const Path& path = pathOf("VB_Replace");
  const Owned result = call();
  call();
  return addFloor(addJob(group, "VB_Replace one for one").add("ours", call), path,
                  path.resultInPlace, result, std::array{unchanged, comma, semicolon});
}

}  // namespace benchmarks

#endif
