// Jobs of host routines. Each is compared with its floor: the service calls that hostRoutines() lists for
// the routine, in the same order, with the result precomputed.
#ifndef BENCHMARKS_HOSTJOBS_H
#define BENCHMARKS_HOSTJOBS_H

#include <algorithm>
#include <array>
#include <map>
#include <stdexcept>
#include <tuple>
#include <variant>

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

// The services are types, so that a floor does not select them at run time.
struct TakeNothing {
  void operator()(BSTR) const {}
};
struct TakeWide {
  void operator()(BSTR text) const { benchmark::DoNotOptimize(CW162W32(text)); }
};
struct TakeUnits {
  void operator()(BSTR text) const { benchmark::DoNotOptimize(wcslen16(text)); }
};
struct TakeObject {
  void operator()(BSTR text) const { benchmark::DoNotOptimize(convertBSTRtoWstring(text)); }
};
struct MakeNumber {
  int32_t number;
  int32_t operator()() const { return number; }
};
struct MakeFromWide {
  std::wstring text;
  Owned operator()() const { return Owned(SysAllocString2(text.c_str())); }
};
struct MakeFromUnits {
  std::u16string text;
  Owned operator()() const { return Owned(SysAllocString16(text.c_str())); }
};
struct MakeFromObject {
  std::wstring text;
  Owned operator()() const { return Owned(convertWstringToBSTR(text)); }
};
using Take = std::variant<TakeNothing, TakeWide, TakeUnits, TakeObject>;
using Make = std::variant<MakeFromWide, MakeFromUnits, MakeFromObject>;

inline Take takeBy(const std::string& service) {
  static const std::map<std::string, Take> services{{"", TakeNothing()},
                                                    {"CW162W32", TakeWide()},
                                                    {"wcslen16", TakeUnits()},
                                                    {"convertBSTRtoWstring", TakeObject()}};
  return services.at(service);
}

inline std::variant<MakeNumber> makeBy(const std::string&, int32_t number) {
  return MakeNumber{number};
}
inline Make makeBy(const std::string& service, const Owned& result) {
  const std::u16string text = result.get();
  const std::wstring wide(text.begin(), text.end());
  const std::map<std::string, Make> services{{"SysAllocString2", MakeFromWide{wide}},
                                             {"SysAllocString16", MakeFromUnits{text}},
                                             {"convertWstringToBSTR", MakeFromObject{wide}}};
  return services.at(service);
}

template <std::size_t n>
Job& addFloor(Job& job, const Path& path, const auto& make, std::array<BSTR, n> texts) {
  if (!path.order.empty()) {
    const auto ascending = texts;
    for (std::size_t i = 0; i < n; ++i) texts[i] = ascending[path.order[i]];
  }
  const auto add = [&]<typename First, typename Others>(First takeFirst, Others takeOther,
                                                        const auto& makeResult) {
    if constexpr (std::is_same_v<First, Others> || std::is_same_v<Others, TakeUnits>) {
      job.add("floor", [=] {
        if constexpr (n > 0) takeFirst(texts[0]);
        for (std::size_t i = 1; i < n; ++i) takeOther(texts[i]);
        return makeResult();
      });
    } else {
      throw std::logic_error("no floor takes texts by " + path.first + " and " + path.others);
    }
  };
  std::visit(add, takeBy(path.first), takeBy(path.others), make);
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
  return addFloor(addJob(group, name).add("ours", call), path, makeBy(path.result, call()), texts);
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
  const Make make = makeBy(path.resultInPlace, call());
  call();
  return addFloor(addJob(group, "VB_Replace one for one").add("ours", call), path, make,
                  std::array{unchanged, comma, semicolon});
}

}  // namespace benchmarks

#endif
