// Time for a unit of text, which is to stay the same from a thousand units to a million, on the
// worst text of each routine. Host routines run from host string to new host string.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

namespace {

using Owned = std::unique_ptr<char16_t, void (*)(BSTR)>;

Owned host(const std::u16string& text) { return {SysAllocString16(text.c_str()), releaseBSTR}; }

// `unit` repeated to at least `length` units, and then `end`.
std::u16string repeated(const std::u16string& unit, std::size_t length,
                        const std::u16string& end = u"") {
  std::u16string text;
  while (text.size() < length) text += unit;
  return text + end;
}

void released(BSTR result) { releaseBSTR(result); }

template <typename Call>
void measure(benchmark::State& state, const std::u16string& unit, const std::u16string& end,
             Call call) {
  const Owned text = host(repeated(unit, static_cast<std::size_t>(state.range(0)), end));
  for (auto _ : state) call(text.get());
  state.counters["ns_per_unit"] = benchmark::Counter(
      static_cast<double>(state.range(0)) * 1e-9,
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

const Owned kEmpty = host(u""), kComma = host(u","), kTwo = host(u"ab"), kA = host(u"a"),
            kB = host(u"b"), kLonger = host(u"; "), kLong = host(repeated(u"a", 99, u"b")),
            kBlank = host(u" ");

// Name, repeated text, its end, and the call on the host string `s`.
#define BENCHMARK_TEXT(name, unit, end, call)                                  \
  void name(benchmark::State& state) {                                         \
    measure(state, unit, end, [](BSTR s) { benchmark::DoNotOptimize(call); }); \
  }                                                                            \
  BENCHMARK(name)->RangeMultiplier(10)->Range(1000, 1000000)

#define GIVEN(call) (released(call), 0)

BENCHMARK_TEXT(TrimBlanks, u" ", u"", GIVEN(VB_StrLRTrim(s)));
BENCHMARK_TEXT(TrimNothing, u"a", u"", GIVEN(VB_StrLRTrim(s)));
BENCHMARK_TEXT(RemoveColons, u":", u"", GIVEN(VB_RemoveColon(s)));
BENCHMARK_TEXT(RemoveSomeColons, u"a:bcdefg", u"", GIVEN(VB_RemoveColon(s)));
BENCHMARK_TEXT(RemoveNoDigits, u"x", u"", GIVEN(VB_RemoveNonNumericChar(s)));
BENCHMARK_TEXT(RemoveSomeDigits, u"1,234.50 ", u"", GIVEN(VB_RemoveNonNumericChar(s)));
BENCHMARK_TEXT(RemoveUnit, u"a", u"", GIVEN(VB_RemoveChar(s, kA.get())));
BENCHMARK_TEXT(RemovePairs, u"ab", u"", GIVEN(VB_RemoveChar(s, kTwo.get())));
BENCHMARK_TEXT(RemovePairsToTheLeft, u"a", u"b", GIVEN(VB_RemoveChar(s, kTwo.get())));
BENCHMARK_TEXT(CountUnit, u",", u"", ChrCount(s, kComma.get()));
BENCHMARK_TEXT(CountPairs, u"ab", u"", ChrCount(s, kTwo.get()));
BENCHMARK_TEXT(CountLongInVain, u"a", u"", ChrCount(s, kLong.get()));
BENCHMARK_TEXT(CommonUnits, u"a", u"", VB_CommonChar(s, kB.get()));
BENCHMARK_TEXT(CommonAmongMany, u"a", u"", VB_CommonChar(s, kLong.get()));
BENCHMARK_TEXT(ReplaceOneForOne, u"a", u"", GIVEN(VB_Replace(s, kA.get(), kB.get())));
BENCHMARK_TEXT(ReplaceSomeOneForOne, u"a,bcdefg", u"",
               GIVEN(VB_Replace(s, kComma.get(), kComma.get())));
BENCHMARK_TEXT(ReplaceGrowing, u",", u"", GIVEN(VB_Replace(s, kComma.get(), kLonger.get())));
BENCHMARK_TEXT(ReplaceSomeGrowing, u"a,bcdefg", u"",
               GIVEN(VB_Replace(s, kComma.get(), kLonger.get())));
BENCHMARK_TEXT(ReplaceShrinking, u"ab", u"", GIVEN(VB_Replace(s, kTwo.get(), kComma.get())));
BENCHMARK_TEXT(ReplaceRemoving, u",", u"", GIVEN(VB_Replace(s, kComma.get(), kEmpty.get())));
BENCHMARK_TEXT(ReplaceLongInVain, u"a", u"", GIVEN(VB_Replace(s, kLong.get(), kA.get())));
BENCHMARK_TEXT(ReplaceTwoPairs, u"ab", u"",
               GIVEN(VB_Replace2(s, kA.get(), kLonger.get(), kB.get(), kEmpty.get())));
BENCHMARK_TEXT(MarkupTokens, u"<BR><QM><CM>", u"", GIVEN(VB_QUVARDHTMLProcessor(s)));

}  // namespace
