// Jobs of host routines, with the floor: the same services of the sibling library in the same order,
// and a result that is ready.
#ifndef BENCHMARKS_HOSTJOB_H
#define BENCHMARKS_HOSTJOB_H

#include <concepts>
#include <string>
#include <tuple>
#include <utility>

#include "Contestants.h"

namespace benchmarks {

struct Ready {
  Ready(const std::convertible_to<std::u16string_view> auto& result)
      : text(result), wide(widen(text)) {}
  Ready(int32_t result) : number(result) {}

  std::u16string text;
  std::wstring wide;
  int32_t number = 0;
};

inline void asWideUnits(BSTR text) { benchmark::DoNotOptimize(CW162W32(text)); }
inline void asUnits(BSTR text) { benchmark::DoNotOptimize(wcslen16(text)); }
inline void asObject(BSTR text) { benchmark::DoNotOptimize(convertBSTRtoWstring(text)); }
inline void asItIs(BSTR) {}

inline BSTR fromWideUnits(const Ready& result) { return SysAllocString2(result.wide.c_str()); }
inline BSTR fromUnits(const Ready& result) { return SysAllocString16(result.text.c_str()); }
inline BSTR fromObject(const Ready& result) { return convertWstringToBSTR(result.wide); }
inline int32_t fromNumber(const Ready& result) { return result.number; }

// The services for the first text of a call, for each other one, and for the result.
template <auto takeFirst, auto takeOther, auto giveOut>
struct Route {
  template <typename... Others>
  static auto run(const Ready& result, BSTR first, Others... others) {
    takeFirst(first);
    (take(others), ...);
    return giveOut(result);
  }
  static auto run(const Ready& result) { return giveOut(result); }
  template <typename... Numbers>
  static auto run(const Ready& result, Numbers...) {
    return giveOut(result);
  }

 private:
  static void take(BSTR text) { takeOther(text); }
  static void take(int32_t) {}
};

using ViaBuffer = Route<asWideUnits, asWideUnits, fromWideUnits>;
using ViaBufferToNumber = Route<asWideUnits, asWideUnits, fromNumber>;
using ViaUnits = Route<asUnits, asUnits, fromWideUnits>;
using ViaUnitsToCopy = Route<asUnits, asUnits, fromUnits>;
using ViaBufferAndUnits = Route<asWideUnits, asUnits, fromWideUnits>;
using ViaObject = Route<asObject, asObject, fromObject>;
using ViaCopy = Route<asItIs, asItIs, fromUnits>;

inline BSTR argument(const char16_t* text) { return keep(text); }
inline BSTR argument(BSTR text) { return text; }
inline int32_t argument(int32_t number) { return number; }
inline double argument(double number) { return number; }

inline Owned own(BSTR result) { return Owned(result); }
inline int32_t own(int32_t result) { return result; }

template <typename ItsRoute, typename... Arguments>
Job& addFloor(Job& job, ItsRoute, const Ready& ready, Arguments... arguments) {
  return job.add("floor", [=] { return own(ItsRoute::run(ready, arguments...)); });
}

// A job of a host routine, on texts that are there as long as the program.
template <typename ItsRoute, typename Routine, typename... Arguments>
Job& addHostJob(std::string group, std::string name, ItsRoute route, const Ready& ready,
                Routine routine, Arguments... arguments) {
  const auto add = [&](auto... kept) -> Job& {
    Job& job = addJob(std::move(group), std::move(name));
    job.add("ours", [=] { return own(routine(kept...)); });
    return addFloor(job, route, ready, kept...);
  };
  return std::apply(add, std::tuple{argument(arguments)...});
}

// VB_Replace of one unit by one, which changes its text: so every second call puts back what the one
// before has replaced.
class ReplaceToAndFro {
 public:
  ReplaceToAndFro(std::u16string_view text, BSTR one, BSTR other)
      : text_(keep(text)), sought_(one), inserted_(other) {}

  Owned operator()() {
    Owned result(VB_Replace(text_, sought_, inserted_));
    std::swap(sought_, inserted_);
    return result;
  }

 private:
  BSTR text_, sought_, inserted_;
};

inline Job& addReplaceToAndFro(std::string group, std::u16string_view text, const Ready& ready) {
  const BSTR comma = keep(u","), semicolon = keep(u";");
  Job& job = addJob(std::move(group), "VB_Replace one for one");
  job.add("ours", ReplaceToAndFro(text, comma, semicolon));
  return addFloor(job, ViaUnitsToCopy(), ready, keep(text), comma, semicolon);
}

}  // namespace benchmarks

#endif
