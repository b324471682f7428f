/// @file
/// The base library of the product: text, report phrases, number patterns and scalar numerics.
///
/// Three kinds of routine are declared here, grouped by topic:
///
/// - **Wide routines** take and give `std::wstring` by value. A first text that the caller moves in
///   becomes the result without a copy, unless the result is longer than it (SpStrSp(), PStrP(),
///   StrConcat()) or comes from Replace() or LocalAN(). C++ only, with the C++ standard library that
///   this library was built with. A program that defines `QUVARDBS1C_NO_WIDE_ROUTINES` before it
///   includes this header is without them, and may use any C++ standard library.
/// - **Host routines** take and give host strings (`BSTR`) and scalars: those named `VB_...`, the
///   five `ChrCount`, `StrFromTo`, `StrBetween`, `StrFromChrToChr`, `StrBetweenChrAndChr`, and
///   `Cpp_DecimalFormat`. C and C++.
/// - **Numeric routines** deal in doubles and 32-bit integers. C and C++.
///
/// What holds for every routine, unless its own contract says otherwise:
///
/// - Lengths, counts and positions are in units: 32-bit units of a `std::wstring`, 16-bit units of
///   a host string. No surrogate pair is folded, so they mean the same on both sides.
/// - An argument is never changed, kept or released. A null host string reads as the empty string.
/// - A resulting host string is new on every call. The caller owns it and releases it with
///   `releaseBSTR` of `QUVARDCR1C`.
/// - No call depends on an earlier one or waits for another thread, except inside the memory
///   allocator, so any number may run at once. Only a buffer for each thread stays, as CW162W32() in
///   QUVARDCR1C.h describes. Routines that take or return host strings are not async-signal-safe:
///   they would overwrite that buffer while the interrupted call reads it.
/// - Routines that deal in strings may throw `std::bad_alloc` and nothing else, and leak nothing
///   when they do. **Only a C++ caller can catch it; in any other host it ends the process.** Numeric
///   routines do not throw.
/// - A text that is passed in has at most 2,147,483,647 code units. A result may be longer:
///   `DecimalFormat(2147483647)` has 2,147,483,649.
/// - Text compares unit by unit: case counts and no locale takes part. A blank is the one unit
///   U+0020.
///
/// The examples are expressions that hold. In them `B(u"...")` stands for a host string of that
/// text, and a host string that results is compared by its text (and released); `i` and `j` are
/// `int32_t` variables, `x`, `xSecond` and `y` doubles.
#ifndef QUVARDBS1C_H
#define QUVARDBS1C_H

#include <stdint.h>

#include "QUVARDStandardLibrary.h"

/// The version of this header. A later version of the library runs every program that was built with
/// an earlier header.
#define QUVARDBS1C_VERSION "1.1.0"
#define QUVARDBS1C_VERSION_MAJOR 1  ///< The first number of the version.
#define QUVARDBS1C_VERSION_MINOR 1  ///< The second.
#define QUVARDBS1C_VERSION_PATCH 0  ///< The third.

/// Marks an exported routine.
#define QUVARDBS1C_API __attribute__((visibility("default")))

#ifdef __cplusplus
static_assert(sizeof(wchar_t) == 4, "QUVARDBS1C takes wide units of 32 bits");
/// A host string: one pointer to the first 16-bit unit of a zero-terminated run. Null is legal.
typedef char16_t* BSTR;
/// Marks a routine that does not throw, to C++.
#define QUVARDBS1C_NOEXCEPT noexcept
#else
typedef uint_least16_t* BSTR;
#define QUVARDBS1C_NOEXCEPT
#endif

/// A 16-bit Boolean of the host in a 32-bit slot: True is -1, False is 0.
///
/// As an argument only its low 16 bits are read, in one of two ways that each contract names: it is
/// *set* if they are not all zero, and it *is True* if they are all ones. As a result it is -1 or 0
/// in all 32 bits.
///
/// Pass #QUVARDBS1C_TRUE or #QUVARDBS1C_FALSE. **The `true` of C and C++ is 1, which is set but is not
/// True**: given as `forward` of LinearInterpol() it silently runs the inverse, and given as `lower`
/// of Int05LU() it rounds up.
typedef int32_t HostBool;

/// True as the host has it.
#define QUVARDBS1C_TRUE (-1)
/// False as the host has it.
#define QUVARDBS1C_FALSE 0

#ifdef __cplusplus
#ifdef __clang__
#pragma clang diagnostic push
// C linkage fixes the names of the wide routines; only C++ callers see them.
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif
extern "C" {
#endif

/// @defgroup host The host boundary (host/Boundary)
///
/// The way from a host string to wide text. How host strings are made and released is in
/// QUVARDCR1C.h.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// The text of a host string, up to its first zero unit.
///
/// @param handle  host string; null gives the empty string
/// @throws std::bad_alloc
/// @b Example: `convToWstring(B(u"Hello")) == L"Hello"`
QUVARDBS1C_API std::wstring convToWstring(BSTR handle);
#endif

/// @}
/// @defgroup substrings Substrings, joins, trims, lower case (strings/Substrings, Joins, Trims, LowerCase)
///
/// The ends of a text: taken, joined to others, freed of blanks; and all of it in lower case.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// The first @p n units of @p s.
///
/// @param n  number of units; above the length of @p s, or negative: all of @p s
/// @return   empty if @p n is 0 or @p s is empty
/// @throws std::bad_alloc
/// @b Example: `StrLeft(L"Hello", 2) == L"He"`
QUVARDBS1C_API std::wstring StrLeft(std::wstring s, int32_t n);

/// The last @p n units of @p s.
///
/// @param n  number of units; above the length of @p s, or negative: all of @p s
/// @return   empty if @p n is 0 or @p s is empty
/// @throws std::bad_alloc
/// @b Example: `StrRight(L"Hello", 2) == L"lo"`
QUVARDBS1C_API std::wstring StrRight(std::wstring s, int32_t n);

/// The six strings joined in argument order, with nothing between them.
///
/// @throws std::bad_alloc
/// @b Example: `StrConcat(L"a", L"", L"b", L"", L"", L"c") == L"abc"`
QUVARDBS1C_API std::wstring StrConcat(std::wstring a, std::wstring b, std::wstring c,
                                      std::wstring d, std::wstring e, std::wstring f);

/// @p s without its leading blanks.
///
/// @throws std::bad_alloc
/// @b Example: `StrLTrim(L"  a b  ") == L"a b  "`
QUVARDBS1C_API std::wstring StrLTrim(std::wstring s);

/// @p s without its trailing blanks.
///
/// @throws std::bad_alloc
/// @b Example: `StrRTrim(L"  a b  ") == L"  a b"`
QUVARDBS1C_API std::wstring StrRTrim(std::wstring s);

/// @p s without blanks at either end.
///
/// @throws std::bad_alloc
/// @b Example: `StrLRTrim(L"  a b  ") == L"a b"`
QUVARDBS1C_API std::wstring StrLRTrim(std::wstring s);

/// @p s with every unit lower-cased under the locale of the process, which this library never sets:
/// in the default locale A to Z change. A unit without a mapping stays, and so does the length.
///
/// @throws std::bad_alloc
/// @b Example: `StrLCase(L"AbC-9") == L"abc-9"`
QUVARDBS1C_API std::wstring StrLCase(std::wstring s);
#endif

/// Host form of StrLeft().
///
/// @param n  number of units; above the length of @p s, or negative: all of @p s
/// @return   new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrLeft(B(u"Hello"), 2) == B(u"He")`
QUVARDBS1C_API BSTR VB_StrLeft(BSTR s, int32_t n);

/// Host form of StrRight().
///
/// @param n  number of units; above the length of @p s, or negative: all of @p s
/// @return   new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrRight(B(u"Hello"), 2) == B(u"lo")`
QUVARDBS1C_API BSTR VB_StrRight(BSTR s, int32_t n);

/// Host form of StrConcat().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrConcat(B(u"a"), B(u"b"), nullptr, nullptr, nullptr, nullptr) == B(u"ab")`
QUVARDBS1C_API BSTR VB_StrConcat(BSTR a, BSTR b, BSTR c, BSTR d, BSTR e, BSTR f);

/// Host form of StrLTrim().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrLTrim(B(u"  a b  ")) == B(u"a b  ")`
QUVARDBS1C_API BSTR VB_StrLTrim(BSTR s);

/// Host form of StrRTrim().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrRTrim(B(u"  a b  ")) == B(u"  a b")`
QUVARDBS1C_API BSTR VB_StrRTrim(BSTR s);

/// Host form of StrLRTrim().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrLRTrim(B(u"  a b  ")) == B(u"a b")`
QUVARDBS1C_API BSTR VB_StrLRTrim(BSTR s);

/// @}
/// @defgroup removal Removal (strings/Removal)
///
/// What is removed leaves no gap, and what stays keeps its order.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// @p s after a removal that goes on until the whole of @p chars occurs nowhere: each step takes
/// the first unit out of the leftmost occurrence. With a @p chars of one unit, every such unit
/// goes.
///
/// The time is linear in @p s and @p chars, whatever they hold. If @p chars has more than 16 code
/// units and is not longer than @p s, the call needs 4 * (|s| + 2 * |chars| + 3) bytes of memory for
/// itself: up to 780 bytes (texts of up to 64 code units need no more) on the stack, above on the heap.
///
/// @param chars  what to look for; empty: @p s comes back unchanged
/// @throws std::bad_alloc
/// @b Example: `RemoveChar(L"xaby", L"ab") == L"xby"`
QUVARDBS1C_API std::wstring RemoveChar(std::wstring s, std::wstring chars);

/// @p s without any colon, and then without blanks at either end.
///
/// @throws std::bad_alloc
/// @b Example: `RemoveColon(L" a: :b ") == L"a b"`
QUVARDBS1C_API std::wstring RemoveColon(std::wstring s);

/// @p s without any semicolon, and then without blanks at either end.
///
/// @throws std::bad_alloc
/// @b Example: `RemoveSemicolon(L" a;b; ") == L"ab"`
QUVARDBS1C_API std::wstring RemoveSemicolon(std::wstring s);

/// The digits 0 to 9 of @p s, in their order.
///
/// @throws std::bad_alloc
/// @b Example: `RemoveNonNumericChar(L"1,234.50") == L"123450"`
QUVARDBS1C_API std::wstring RemoveNonNumericChar(std::wstring s);
#endif

/// Host form of RemoveChar().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_RemoveChar(B(u"a-b-c"), B(u"-")) == B(u"abc")`
QUVARDBS1C_API BSTR VB_RemoveChar(BSTR s, BSTR chars);

/// Host form of RemoveNonNumericChar().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_RemoveNonNumericChar(B(u"-1.5")) == B(u"15")`
QUVARDBS1C_API BSTR VB_RemoveNonNumericChar(BSTR s);

/// @p s without any colon. Unlike RemoveColon() it leaves blanks at the ends in place.
///
/// @return new host string; the null handle for the null handle
/// @throws std::bad_alloc
/// @b Example: `VB_RemoveColon(B(u" a:b ")) == B(u" ab ")`
QUVARDBS1C_API BSTR VB_RemoveColon(BSTR s);

/// @}
/// @defgroup search Search and counting (strings/Search)
///
/// Whether units of a text occur in another, and how often a pattern does.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
// C++ linkage: the symbol encodes the types of the arguments, as do those of Replace() and LCD2().
extern "C++" {
/// Whether @p text and @p chars have a unit in common.
///
/// The time is linear in @p text and @p chars, but for units above 0xFFFF in a @p chars above 64 units:
/// if there are n of these, they are sorted in n log n steps, and each such unit of @p text takes log n.
///
/// @return -1 or 0
/// @throws std::bad_alloc
/// @b Example: `CommonChar(L"abc", L"xyzb") == -1`
QUVARDBS1C_API HostBool CommonChar(std::wstring text, std::wstring chars);
}

/// The number of occurrences of @p pattern in @p text, from left to right and without overlap. Both
/// end at their first zero unit.
///
/// @return 0 if either is empty
/// @throws std::bad_alloc
/// @b Example: `cChrCount(L"aaaaa", L"aa") == 2`
QUVARDBS1C_API int32_t cChrCount(std::wstring text, std::wstring pattern);
#endif

/// Whether @p text and @p chars have a unit in common; host form of CommonChar().
///
/// @return -1 or 0
/// @throws std::bad_alloc
/// @b Example: `VB_CommonChar(B(u"abc"), B(u"xyzb")) == -1`
QUVARDBS1C_API HostBool VB_CommonChar(BSTR text, BSTR chars);

/// Host form of cChrCount().
///
/// @return 0 if either is empty or null
/// @throws std::bad_alloc
/// @b Example: `ChrCount(B(u"a,b,c"), B(u",")) == 2`
QUVARDBS1C_API int32_t ChrCount(BSTR text, BSTR pattern);

/// @}
/// @defgroup slices Slices by position and delimiter (strings/Slices)
///
/// The part of a text between two positions or two delimiters.
///
/// Positions count from 1. Delimiters are of one unit each: of two that are both not empty, one of
/// two units or more gives the empty string. An empty delimiter is found where its search begins.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// What is between the first @p opening and the first @p closing after it, both left out. The slice
/// starts one unit after the start of @p opening, also if that is empty, and @p closing is searched
/// from there.
///
/// @return empty if either is not found, or @p closing is empty
/// @throws std::bad_alloc
/// @b Example: `cStrBetweenChrAndChr(L"a(b)c", L"(", L")") == L"b"`
QUVARDBS1C_API std::wstring cStrBetweenChrAndChr(std::wstring text, std::wstring opening,
                                                 std::wstring closing);
#endif

/// The units at positions @p from to @p to, both included.
///
/// @param from  1 or more
/// @param to    not beyond the end of @p text
/// @return      new host string; empty for any other positions, and if @p to is before @p from
/// @throws std::bad_alloc
/// @b Example: `StrFromTo(B(u"abcdef"), 2, 5) == B(u"bcde")`
QUVARDBS1C_API BSTR StrFromTo(BSTR text, int32_t from, int32_t to);

/// The units strictly between positions @p from and @p to.
///
/// @param from  1 or more
/// @param to    not beyond the end of @p text
/// @return      new host string; empty for any other positions, and if @p to is not after @p from
/// @throws std::bad_alloc
/// @b Example: `StrBetween(B(u"abcdef"), 2, 5) == B(u"cd")`
QUVARDBS1C_API BSTR StrBetween(BSTR text, int32_t from, int32_t to);

/// The text from the first @p opening to the first @p closing, both included. Both are searched
/// from the start of the text. Of a @p closing of several units, which needs an empty @p opening,
/// the first unit is included; an empty one counts as the first unit of the text.
///
/// @return new host string; empty if either is not found or @p closing comes first
/// @throws std::bad_alloc
/// @b Example: `StrFromChrToChr(B(u"a(b)c"), B(u"("), B(u")")) == B(u"(b)")`
QUVARDBS1C_API BSTR StrFromChrToChr(BSTR text, BSTR opening, BSTR closing);

/// Host form of cStrBetweenChrAndChr().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `StrBetweenChrAndChr(B(u"a/b/c"), B(u"/"), B(u"/")) == B(u"b")`
QUVARDBS1C_API BSTR StrBetweenChrAndChr(BSTR text, BSTR opening, BSTR closing);

/// @}
/// @defgroup replacement Replacement (strings/Replacement)
///
/// Patterns and what takes their place, everywhere in a text.
///
/// Occurrences are handled from left to right and do not overlap. What a replacement puts in is not
/// searched again. An empty pattern has no occurrences. The time is linear in the total length of
/// the arguments and the result; for VB_Replace2(), also of its intermediate text.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
extern "C++" {
/// @p text with every occurrence of @p pattern replaced by @p replacement.
///
/// @throws std::bad_alloc
/// @b Example: `Replace(L"a,b,c", std::wstring(L","), std::wstring(L", ")) == L"a, b, c"`
QUVARDBS1C_API std::wstring Replace(std::wstring text, std::wstring pattern,
                                    std::wstring replacement);

/// The same with a pattern and a replacement that end at their first zero unit; neither may be
/// null.
///
/// @throws std::bad_alloc
/// @b Example: `Replace(L"aab", L"ab", L"b") == L"ab"`
QUVARDBS1C_API std::wstring Replace(std::wstring text, const wchar_t* pattern,
                                    const wchar_t* replacement);
}
#endif

/// @p text with every occurrence of @p pattern replaced.
///
/// With a pattern and a replacement of exactly one unit each, **the units of `text` itself are
/// changed** too, also if there is no memory for the result, and must not be in use on another thread;
/// this is the one routine that writes to an argument.
///
/// @param text         host string
/// @param pattern      what to look for; null: nothing is done, and @p text itself is the result
/// @param replacement  what to put in its place; null and empty: nothing
/// @return             new host string; but **the handle `text` itself**, not a copy, if @p text
///                     or @p pattern is null
/// @throws std::bad_alloc
/// @b Example: `VB_Replace(B(u"a-b-c"), B(u"-"), B(u"--")) == B(u"a--b--c")`
QUVARDBS1C_API BSTR VB_Replace(BSTR text, BSTR pattern, BSTR replacement);

/// @p text with every occurrence of @p pattern1 replaced, and then, in that result, every
/// occurrence of @p pattern2. Null handles are empty strings. No argument changes.
///
/// The text after the first replacement takes time too, but no memory as a whole. It can have |text| *
/// |replacement1| code units, also where the result is short.
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_Replace2(B(u"ab"), B(u"a"), B(u"b"), B(u"b"), B(u"c")) == B(u"cc")`
QUVARDBS1C_API BSTR VB_Replace2(BSTR text, BSTR pattern1, BSTR replacement1, BSTR pattern2,
                                BSTR replacement2);

/// @}
/// @defgroup adjective_noun Phrases of an adjective and a noun (phrases/AdjectiveNoun, FirstLetter)
///
/// Word order, blanks and letter case as a language has them.
///
/// A language code is one of "ES", "FR", "IT", "PT", "PL", "US", "DE", "JP", "CS", "CN", compared
/// whole and with case.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// The phrase of an adjective and a noun in the word order of a language.
///
/// | Language           | Phrase                                             |
/// |--------------------|----------------------------------------------------|
/// | ES, FR, IT, PT, PL | noun, separator, adjective                         |
/// | US                 | adjective, blank, noun with its first unit lowered |
/// | DE                 | adjective, blank, noun                             |
/// | JP, CS, CN         | adjective, separator, noun                         |
/// | any other code     | empty                                              |
///
/// Each flag counts if it is set.
///
/// @param upperAdjective  raises the adjective's first unit, in US and DE only
/// @param lowerResult     lowers the first unit of the finished phrase, in US and the noun-first
///                        languages only
/// @param noBlank         makes the separator empty; otherwise it is one blank
/// @throws std::bad_alloc
/// @b Example: `LocalAN(L"linear", L"Model", L"US", -1, 0, 0) == L"Linear model"`
QUVARDBS1C_API std::wstring LocalAN(std::wstring adjective, std::wstring noun,
                                    std::wstring language, HostBool upperAdjective,
                                    HostBool lowerResult, HostBool noBlank);

/// @p text with its first unit lower-cased, as StrLCase() does it. "JP" leaves the text as it is,
/// and so does "DE" unless @p forceDE is set. Every other code lowers, an unknown or empty one too.
///
/// @throws std::bad_alloc
/// @b Example: `LowerFirst(L"Model", L"FR", 0) == L"model"`
QUVARDBS1C_API std::wstring LowerFirst(std::wstring text, std::wstring language, HostBool forceDE);

/// @p text with its first unit upper-cased under the locale of the process.
///
/// @throws std::bad_alloc
/// @b Example: `UpperFirst(L"linear") == L"Linear"`
QUVARDBS1C_API std::wstring UpperFirst(std::wstring text);
#endif

/// Host form of LocalAN() with upperAdjective True, lowerResult False, noBlank False.
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_LocalAN(B(u"linear"), B(u"Model"), B(u"ES")) == B(u"Model linear")`
QUVARDBS1C_API BSTR VB_LocalAN(BSTR adjective, BSTR noun, BSTR language);

/// Host form of LocalAN().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_LocalAN2(B(u"linear"), B(u"Model"), B(u"JP"), 0, 0, -1) == B(u"linearModel")`
QUVARDBS1C_API BSTR VB_LocalAN2(BSTR adjective, BSTR noun, BSTR language, HostBool upperAdjective,
                                HostBool lowerResult, HostBool noBlank);

/// Host form of LowerFirst().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_LowerFirst(B(u"Model"), B(u"DE"), 0) == B(u"Model")`
QUVARDBS1C_API BSTR VB_LowerFirst(BSTR text, BSTR language, HostBool forceDE);

/// Host form of UpperFirst().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_UpperFirst(B(u"linear")) == B(u"Linear")`
QUVARDBS1C_API BSTR VB_UpperFirst(BSTR text);

/// @}
/// @defgroup wrapping Wrapping and inflection (phrases/Wrapping, Inflection)
///
/// A text between two characters, and the form of a word that goes with a count.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// A blank, @p text, a blank.
///
/// @throws std::bad_alloc
/// @b Example: `SpStrSp(L"and") == L" and "`
QUVARDBS1C_API std::wstring SpStrSp(std::wstring text);

/// @p text in parentheses.
///
/// @throws std::bad_alloc
/// @b Example: `PStrP(L"units") == L"(units)"`
QUVARDBS1C_API std::wstring PStrP(std::wstring text);

/// @p singular if @p count is less than 2, else @p plural.
///
/// @throws std::bad_alloc
/// @b Example: `SingPlural(L"case", L"cases", 2) == L"cases"`
QUVARDBS1C_API std::wstring SingPlural(std::wstring singular, std::wstring plural, int32_t count);
#endif

/// Host form of SpStrSp().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_SpStrSp(B(u"and")) == B(u" and ")`
QUVARDBS1C_API BSTR VB_SpStrSp(BSTR text);

/// Host form of PStrP().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_PStrP(B(u"units")) == B(u"(units)")`
QUVARDBS1C_API BSTR VB_PStrP(BSTR text);

/// @p text in square brackets.
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_BStrB(B(u"1")) == B(u"[1]")`
QUVARDBS1C_API BSTR VB_BStrB(BSTR text);

/// A copy of @p singular if @p count is less than 2, else of @p plural. The other one is not read.
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_SingPlural(B(u"case"), nullptr, 0) == B(u"case")`
QUVARDBS1C_API BSTR VB_SingPlural(BSTR singular, BSTR plural, int32_t count);

/// @}
/// @defgroup markup Markup tokens (phrases/MarkupTokens)
///
/// Three characters that a text may carry as tokens.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// @p text with its markup tokens turned into the characters that they mean: `<BR>` into a
/// line feed, `<QM>` into a double quotation mark, `<CM>` into a comma. Case counts.
///
/// @throws std::bad_alloc
/// @b Example: `QUVARDHTMLProcessor(L"a<CM> b<BR>") == L"a, b\n"`
QUVARDBS1C_API std::wstring QUVARDHTMLProcessor(std::wstring text);
#endif

/// Host form of QUVARDHTMLProcessor().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_QUVARDHTMLProcessor(B(u"<QM>a<QM>")) == B(u"\"a\"")`
QUVARDBS1C_API BSTR VB_QUVARDHTMLProcessor(BSTR text);

/// @}
/// @defgroup patterns Number patterns (formats/NumberPatterns)
///
/// The patterns by which the host prints a number.
///
/// A pattern is in the host's notation: "0" a digit that is always printed, "#" a digit that is
/// printed only when significant, "." the decimal point, "E-" and "E+" scientific notation (with
/// the exponent's sign only when it is negative, and always), followed by the exponent's digits.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// The pattern with a number of decimals.
///
/// @param decimals  0 or below: the pattern "0"; there is no upper limit but memory
/// @throws std::bad_alloc
/// @b Example: `DecimalFormat(2) == L"0.00"`
QUVARDBS1C_API std::wstring DecimalFormat(int32_t decimals);

/// Assigns one and the same decimal pattern to the elements of an array.
///
/// @param formats         the first of at least @p count strings
/// @param count           number of elements; below 1 nothing happens
/// @param digits          digits of the pattern, the one before the point included
/// @param digitsOverride  if it is not exactly -1, it counts in the place of @p digits
/// @throws std::bad_alloc
/// @b Example: `[] { std::wstring f[2]; SetFormat(f, 2, 4, -1); return f[1]; }() == L"0.000"`
QUVARDBS1C_API void SetFormat(std::wstring* formats, int32_t count, int32_t digits,
                              int32_t digitsOverride);

/// The pattern that shows the decimals a value has, up to 19: "0" for a value within 1e-12 of a
/// whole number (infinities and NaN count as whole), otherwise "0." and 19 times "#". If the value
/// times 1e19 is not whole by the same test, "E-#" follows.
///
/// @throws std::bad_alloc
/// @b Example: `OutputFormat(3.0) == L"0"`
QUVARDBS1C_API std::wstring OutputFormat(double value);

/// The pattern with a chosen number of decimals, in scientific notation where that is asked for and
/// the value is small for these decimals, or large.
///
/// A number x is whole here if it is less than 1e-12 away from x truncated toward zero, and that
/// fits 32 bits; an infinity and NaN are not. The mantissa is "0" for a whole value, otherwise
/// DecimalFormat(decimals). With e the decimal logarithm of the magnitude, truncated toward zero,
/// the exponent part is "E-0" if e is below -decimals ("E-00" from -10 down), "E+0" if e is 5 or
/// more ("E+00" from 10 up), and empty in between. There is none for a magnitude of 1e-12 or less,
/// for an infinity or for NaN.
///
/// @param value         the value that is to be printed
/// @param decimals      decimals of the pattern; also the limit for small values
/// @param useExponent   set: there may be an exponent part
/// @param keepDecimals  matters only with an exponent part. Set: the mantissa stays as told. Not
///                      set: it becomes "0" if pow(10, -e) times the value is whole
/// @throws std::bad_alloc
/// @b Example: `OptimalFormat(123456.5, 2, -1, -1) == L"0.00E+0"`
QUVARDBS1C_API std::wstring OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                                          HostBool keepDecimals);
#endif

/// Host form of DecimalFormat().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `Cpp_DecimalFormat(2) == B(u"0.00")`
QUVARDBS1C_API BSTR Cpp_DecimalFormat(int32_t decimals);

/// Host form of SetFormat(): writes a new host string to each of @p count elements. What an element
/// held is neither read nor released. If it throws, the elements before it hold their new strings,
/// so a caller that set all of them to null beforehand can release them.
///
/// @param formats         the first of at least @p count handles
/// @param count           number of elements; below 1 nothing happens
/// @param digits          digits of the pattern, the one before the point included
/// @param digitsOverride  if it is not exactly -1, it counts in the place of @p digits
/// @throws std::bad_alloc
/// @b Example: `[] { BSTR f[1]; VB_SetFormat(f, 1, 4, 2); return f[0]; }() == B(u"0.0")`
QUVARDBS1C_API void VB_SetFormat(BSTR* formats, int32_t count, int32_t digits,
                                 int32_t digitsOverride);

/// Host form of OutputFormat().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_OutputFormat(0.5) == B(u"0.###################")`
QUVARDBS1C_API BSTR VB_OutputFormat(double value);

/// Host form of OptimalFormat().
///
/// @return new host string
/// @throws std::bad_alloc
/// @b Example: `VB_OptimalFormat(2.5, 3, 0, 0) == B(u"0.000")`
QUVARDBS1C_API BSTR VB_OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                                     HostBool keepDecimals);

/// @}
/// @defgroup elementary Elementary functions with guards (numerics/Elementary)
///
/// A constant, and functions of one or two doubles. sqr() and expm1x() give a fixed value for an
/// argument that they refuse.
///
/// What these and the other numerics compute themselves has the same bits on every compiler and
/// processor: IEEE doubles in a fixed order of evaluation. (The sign and the payload of a NaN do
/// not count.) What passes through `log`, `exp`, `pow`, `log10` or `atan` is as good as the
/// platform's function of that name. Floating-point status flags, and `errno` where the platform's
/// functions use it, are left as the operations set them.
///
/// All of it holds in the default floating-point environment, for number patterns too:
///
/// - Rounding is to nearest.
/// - Subnormals are not flushed to zero (on x86, FTZ and DAZ are off). A program or library that is
///   linked with -Ofast or -ffast-math may turn flushing on for the whole process.
/// - Traps are disabled. Where a host enables the trap of invalid operations, NaN as an argument
///   raises SIGFPE in most routines, a quiet NaN too: comparing it is an invalid operation. Which
///   routines trap depends on the compiler; Min(), IsLong(), Int05() and VB_OptimalFormat() may.
///
/// Each contract of the numerics says how its figures of accuracy were found. *By search*: the
/// worst error found by climbing from the worst of many random arguments, again and again until
/// nothing is gained, rounded up with some room; with the functions of glibc 2.36. *Over all*:
/// every argument in the range was tried.
/// @{

/// The constant 3.14159265358979, which is 7 units in the last place below the double closest to
/// pi. Twice `ASin(1)` equals it.
///
/// @b Example: `Pi() == 3.14159265358979`
QUVARDBS1C_API double Pi(void) QUVARDBS1C_NOEXCEPT;

/// The square root (not the square) of @p x, correctly rounded.
///
/// @return -1.79769313486231e+308 if @p x is below 0; -0.0 for -0.0
/// @b Example: `sqr(4) == 2`
QUVARDBS1C_API double sqr(double x) QUVARDBS1C_NOEXCEPT;

/// The decimal logarithm of @p x, as the platform's `log10` gives it.
///
/// @b Example: `Log10(1000) == 3`
QUVARDBS1C_API double Log10(double x) QUVARDBS1C_NOEXCEPT;

/// @p base to the power of @p exponent, as the platform's `pow` gives it.
///
/// @b Example: `spow(2, 10) == 1024`
QUVARDBS1C_API double spow(double base, double exponent) QUVARDBS1C_NOEXCEPT;

/// exp(x) - 1.
///
/// Method: x + 0.5 * x * x for abs(x) up to 1e-6, else exp(x) - 1.0, which cancels near 0.
///
/// Accuracy: by search, relative error at most 1.3e-16 for abs(x) up to 1e-8, growing to 1.7e-13 at
/// 1e-6; then 1.7e-16 / abs(x) up to 1; 1.1 units in the last place for abs(x) from 1 to 709.
///
/// @return 1.79769313486231e+308 for @p x above 709
/// @b Example: `expm1x(1e-6) == 1.0000004999999999e-06`
QUVARDBS1C_API double expm1x(double x) QUVARDBS1C_NOEXCEPT;

/// The arcsine of @p x in radians, as atan(x / sqr((1 - x) * (x + 1))).
///
/// @param x  from -1 to 1; beyond, sqr() refuses its argument, and the result is that of atan(x /
///           -1.79769313486231e+308): its sign is opposite to that of @p x, it is at most 0.006 in
///           magnitude up to 1e306 and half of pi at infinity, and nothing tells it from an arcsine
/// @return   at 1 and -1 the constants 1.570796326794895 and -1.570796326794895; 0.0 for both zeros
/// @b Example: `ASin(1) == 1.570796326794895`
QUVARDBS1C_API double ASin(double x) QUVARDBS1C_NOEXCEPT;

/// @p a if it is below @p b, otherwise @p b: of equal arguments, or with a NaN, @p b.
///
/// @b Example: `Min(2, 1) == 1`
QUVARDBS1C_API double Min(double a, double b) QUVARDBS1C_NOEXCEPT;

/// @p a if it is above @p b, otherwise @p b: of equal arguments, or with a NaN, @p b.
///
/// @b Example: `Max(2, 1) == 2`
QUVARDBS1C_API double Max(double a, double b) QUVARDBS1C_NOEXCEPT;

/// The sign of @p x as a number: 1, -1, or 0.0 for both zeros.
///
/// @return NaN for an infinity or NaN
/// @b Example: `FSgn(-0.25) == -1`
QUVARDBS1C_API double FSgn(double x) QUVARDBS1C_NOEXCEPT;

/// The magnitude of @p a with the sign of @p b, where -0.0 and NaN count as not negative.
///
/// @b Example: `FSign(3, -1) == -3`
QUVARDBS1C_API double FSign(double a, double b) QUVARDBS1C_NOEXCEPT;

/// ln(exp(a) + exp(b)), also where the exponentials leave the range of doubles.
///
/// Method: log(exp(-abs(a - b)) + 1.0) + the larger one.
///
/// Accuracy: by search, absolute error at most 3e-16 times the larger of 1 and abs(max(a, b)), for
/// arguments from -1e6 to 1e6. Where the result is close to 0, the relative error has no bound.
///
/// @return NaN for two infinities of the same sign
/// @b Example: `LogExpAPlusExpB(1000, 1000) == 1000.6931471805599`
QUVARDBS1C_API double LogExpAPlusExpB(double a, double b) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup exchanges Exchanges (numerics/Swaps)
///
/// Two variables exchange what they hold.
///
/// Both pointers must be valid. Given the same pointer twice, the value stays.
/// @{

/// Exchanges two integers.
///
/// @b Example: `(i = 1, j = 2, SwapLng(&i, &j), i) == 2`
QUVARDBS1C_API void SwapLng(int32_t* a, int32_t* b) QUVARDBS1C_NOEXCEPT;

/// Exchanges two doubles, bits as they are.
///
/// @b Example: `(x = 1, y = 2, SwapDbl(&x, &y), x) == 2`
QUVARDBS1C_API void SwapDbl(double* a, double* b) QUVARDBS1C_NOEXCEPT;

/// Exchanges the host strings that two variables hold. No text is touched, nothing is allocated or
/// released.
///
/// @b Example: `[] { B t(u"t"); BSTR a = t; BSTR b = nullptr; SwapStr(&a, &b); return !a && b; }()`
QUVARDBS1C_API void SwapStr(BSTR* a, BSTR* b) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup gamma Gamma function (numerics/Gamma)
///
/// Its logarithm: the function itself leaves the range of doubles beyond 171.
/// @{

/// The natural logarithm of the gamma function.
///
/// Method: Lanczos approximation with g = 7 and nine coefficients (C. Lanczos, 1964). 0.0 exactly at
/// 1. Otherwise, in this order of evaluation:
///
/// | Step             | Value                                                          |
/// |------------------|----------------------------------------------------------------|
/// | start            | d = 7 + x, s = 0                                               |
/// | for k = 8 to 1   | s = s + a[k] / d, then d = d - 1                               |
/// | constant term    | s = s + a[0]                                                   |
/// | u                | (log(s) + 0.9189385332046727) - (6.5 + x)                      |
/// | ln gamma(x)      | log(6.5 + x) * (x - 0.5) + u                                   |
///
/// a[0] to a[8] are 0.9999999999995183, 676.5203681218835, -1259.139216722289, 771.3234287757674,
/// -176.6150291498386, 12.50734324009056, -0.1385710331296526, 9.934937113930748e-06 and
/// 1.659470187408462e-07.
///
/// Accuracy: by search, relative error at most 1.2e-14 for x from 0.01 to 0.5, 8e-15 from 3 to 100
/// and 1e-15 from 100 to 2.5e305. From 0.5 to 3, with zeros at 1 and 2, absolute error at most
/// 5.5e-15. Below 0.01 the rounding of 7 + x counts: absolute error at most 5.5e-16 / x from 1e-12
/// on, and 0.7 from 4.5e-16 to 1e-12.
///
/// @param x  positive. From -6.5 up to 0 the formula runs as it is: +infinity at -6.5, -6 and -4
///           and within 4.4e-16 of -2 and 0; else NaN from -1 (and the two doubles before it) up to 0,
///           from -3 up to -2, from -5 up to -4 and from about -6.19 up to -6; far off from -6.5 to
///           -6.19
/// @return   -1.79769313486231e+308 for @p x below -6.5; +infinity from about 2.56e305; NaN for
///           +infinity
/// @b Example: `GammaLn(0.5) > 0.57236494292 && GammaLn(0.5) < 0.57236494293`
QUVARDBS1C_API double GammaLn(double x) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup combinatorics Combinatorics (numerics/Factorials, BinomialCoefficients, BinomialSums)
///
/// Factorials, binomial coefficients and their sums.
/// @{

/// n factorial, in one table look-up.
///
/// Accuracy: over all, exact up to 22; within 6 units in the last place up to 170.
///
/// @return 1 for @p n below 2; +infinity above 170
/// @b Example: `Fact(5) == 120`
QUVARDBS1C_API double Fact(int32_t n) QUVARDBS1C_NOEXCEPT;

/// The number of ways to choose @p k of @p n.
///
/// | Arguments                | Result                                                        |
/// |--------------------------|---------------------------------------------------------------|
/// | k above n                | 0                                                             |
/// | k equal to n or to 0     | 1                                                             |
/// | n - k truncated, above k | m = k truncated, q = n - m                                    |
/// | otherwise                | m = n - k truncated, q = k                                    |
/// | m below 2                | 1 + q                                                         |
/// | m from 2                 | r = 1 + q, then for i = 2 to m: r = ((q + i) * r) / i         |
///
/// Truncation is toward zero, to a 32-bit integer; what does not fit, and NaN, gives -2147483648.
/// Fractions and negative numbers are not refused: the table holds for them as it is. Where
/// there are passes at all, q is finite and at least m. Each then multiplies r by 2 or more, but
/// for rounding, so that r is infinite after at most 515 of them, whatever the arguments. No later
/// pass changes that.
///
/// Accuracy: over all whole n up to 1020 and k from 0 to n, exact as long as all products are at
/// most 2^53, otherwise within 38 units in the last place.
///
/// @return +infinity if the coefficient, or a product on the way to it, is out of range; 1 + k if n
///         - k is 2147483648 or more and k is neither 0 nor below -2147483648
/// @b Example: `Cnk(49, 6) == 13983816`
QUVARDBS1C_API double Cnk(double n, double k) QUVARDBS1C_NOEXCEPT;

/// The sum of Cnk(n, k) for the whole numbers k from @p from to @p to, added upward.
///
/// The result has the bits of the addition term by term, also over billions of terms; long ranges
/// of terms that grow by steps of 1 are added in closed form. A call takes longest for a fractional
/// @p n near 1020: about a millisecond.
///
/// @param from  truncated toward zero; outside the 32-bit range, or NaN, it counts as -2147483648
/// @param to    the sum ends at the last whole number not above it, and at 2147483647 in any case
/// @return      0 for an empty range or a NaN @p to; terms with k above @p n add nothing
/// @b Example: `SumCnk(5, 2, 3) == 20`
QUVARDBS1C_API double SumCnk(double n, double from, double to) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup divisors Whole numbers and divisors (numerics/WholeNumbers, Remainders, Divisors)
///
/// Whether a number is whole or even, remainders, and largest common divisors.
///
/// Where a double is taken as a 32-bit integer, it is truncated toward zero. One that does not fit
/// then, and NaN, count as -2147483648.
/// @{

/// The floored remainder of @p a by @p b, which has the sign of @p b.
///
/// @return @p a if @p b is 0
/// @b Example: `Mod(-7, 3) == 2`
QUVARDBS1C_API int32_t Mod(int32_t a, int32_t b) QUVARDBS1C_NOEXCEPT;

/// The floored remainder a - floor(a / b) * b, which the rounded quotient decides: it may miss the
/// range from 0 to @p b by up to two units in the last place of @p a.
///
/// @return NaN if @p b is 0 or an argument is infinite; an infinity of the sign opposite to @p a if
///         the quotient, or its floor times @p b, is out of range; @p a if the quotient is so small
///         that it is rounded to 0
/// @b Example: `ModDbl(-7.5, 2) == 0.5`
QUVARDBS1C_API double ModDbl(double a, double b) QUVARDBS1C_NOEXCEPT;

/// The largest common divisor. Zero is neutral and signs do not count.
///
/// @return not negative, but for -2147483648, whose magnitude has no place in 32 bits
/// @b Example: `LCD(-12, 18) == 6`
QUVARDBS1C_API int32_t LCD(int32_t a, int32_t b) QUVARDBS1C_NOEXCEPT;

#ifdef __cplusplus
extern "C++" {
/// The largest common divisor of two whole numbers held in doubles.
///
/// Only the truncated values take part; but if that of @p a is a multiple of that of @p b, the
/// result is the magnitude of @p b as it was: `LCD2(6, 2.5)` is 2.5, `LCD2(7, 2.5)` is 1.
///
/// @return the magnitude of @p a if @p b is 0
/// @b Example: `LCD2(12, 18) == 6`
QUVARDBS1C_API double LCD2(double a, double b) QUVARDBS1C_NOEXCEPT;
}
#endif

/// The largest common divisor of two decimal numbers, for instance 0.25 of 0.5 and 0.75.
///
/// Method: both are multiplied by the power of ten that makes them whole, and LCD2() of those is
/// multiplied by pow(10, -places), which is rounded: `LCDDbl(1.2, 0.3)` is 0.30000000000000004. A
/// number counts as whole if its fraction is not above 1e-12, or if it is off the nearest whole
/// number (of two, the even one) by at most 2^-48 of itself (the rounding of decimals and of their
/// products). A multiplied number that is off by no more than these 2^-48 becomes that whole number,
/// any other is truncated.
///
/// @param a  times the power of ten, below 2147483648 in magnitude; beyond, the result is a divisor
///           of other numbers
/// @param b  likewise
/// @b Example: `LCDDbl(0.29, 0.29) == 0.29`
QUVARDBS1C_API double LCDDbl(double a, double b) QUVARDBS1C_NOEXCEPT;

/// Whether @p x is a whole number within 1e-12, of any size. True for infinities and NaN.
///
/// @b Example: `IsLong(3.0000000000009) == -1`
QUVARDBS1C_API HostBool IsLong(double x) QUVARDBS1C_NOEXCEPT;

/// Whether @p x is a whole number within @p tol, inclusive. True if either is NaN.
///
/// @b Example: `IsLongP(2.75, 0.25) == -1`
QUVARDBS1C_API HostBool IsLongP(double x, double tol) QUVARDBS1C_NOEXCEPT;

/// Whether half of @p x, as rounded, is whole or less than 2^-52 above a whole number. One just
/// below does not count, but for the negative double closest to 0, whose half is rounded to 0.
/// False for infinities and NaN.
///
/// @b Example: `IsEven(-2.0) == -1`
QUVARDBS1C_API HostBool IsEven(double x) QUVARDBS1C_NOEXCEPT;

/// Whether @p n is even.
///
/// @b Example: `IsEvenLng(3) == 0`
QUVARDBS1C_API HostBool IsEvenLng(int32_t n) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup rounding Rounding to whole numbers and halves (numerics/Rounding)
///
/// A number moved to a grid of whole numbers or of halves.
///
/// @p half counts if it is set; it makes the grid one of halves.
///
/// | v, half set | Int05 | Int05c | Int05LU, lower True | Int05LU, lower not True |
/// |-------------|-------|--------|---------------------|-------------------------|
/// | 2.1         | 2.5   | 2.0    | 2.0                 | 2.5                     |
/// | 2.5         | 3.0   | 2.5    | 2.5                 | 2.5                     |
/// | 2.6         | 3.0   | 2.5    | 2.5                 | 3.0                     |
/// | -2.1        | -2.5  | -2.0   | -2.5                | -2.0                    |
/// @{

/// @p v moved away from zero: a value that is not whole goes to the next whole number or, with @p
/// half, to the next multiple of a half. The half point itself goes on to the whole number, and so
/// does a fraction less than 1e-12 below it. The step is taken from abs(v) + 1 as rounded, so the
/// last double below a power of two from 1 to 2^51 goes on to the grid point after that. From
/// 2147483647 in magnitude, @p half has no effect.
///
/// @return +0.0 for both zeros; NaN for an infinity or NaN
/// @b Example: `Int05(2.1, -1) == 2.5`
QUVARDBS1C_API double Int05(double v, HostBool half) QUVARDBS1C_NOEXCEPT;

/// @p v moved to the closest whole number or, with @p half, to the closest multiple of a half.
///
/// Of two equally close whole numbers the one nearer to zero is taken, up to 15.5 (from 16.5 the
/// one further away). So it is for the first doubles beyond the tie: eight at 0.5, three at 1.5,
/// one each at 2.5 and 3.5. With @p half, a quarter point, and a value less than 1e-12 beyond it,
/// goes to the whole number.
///
/// @return +0.0 for both zeros, -0.0 for a negative value that comes to nothing; NaN for an
///         infinity or NaN
/// @b Example: `Int05c(2.4, -1) == 2.5`
QUVARDBS1C_API double Int05c(double v, HostBool half) QUVARDBS1C_NOEXCEPT;

/// @p v moved down or up the number line to a whole number or, with @p half, to a multiple of a
/// half. A value on the grid stays. No tolerance. Upward, the step to a whole number is taken from
/// 1 + v as rounded: from -2^-54 to the last double below 0 the result is 1, and the last double
/// below a power of two from 1 to 2^51 goes on to the whole number after that.
///
/// @param lower  down if it is True, otherwise up
/// @return       an infinity for itself; NaN for NaN
/// @b Example: `Int05LU(-2.1, -1, -1) == -2.5`
QUVARDBS1C_API double Int05LU(double v, HostBool half, HostBool lower) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup interpolation Interpolation (numerics/Interpolation)
///
/// The line through two points and the parabola through three, in both directions.
///
/// @p forward counts if it is True: the value at an abscissa is worked out; otherwise the abscissa,
/// or abscissae, of a value. Points may come in any order. Every pointer must be valid, also one
/// that a direction leaves untouched.
/// @{

/// The straight line through (x1, y1) and (x2, y2), used in either direction.
///
/// | Case                     | Result | x               | y                           |
/// |--------------------------|--------|-----------------|-----------------------------|
/// | x1 equal to x2           | -1     | written: x1     | written: (y1 + y2) * 0.5    |
/// | forward                  | 0      | read            | written                     |
/// | inverse, a 0             | -1     | untouched       | untouched                   |
/// | inverse, a not 0         | 0      | written         | read                        |
///
/// Method: a = (y2 - y1) / (x2 - x1), b = (x2 * y1 - x1 * y2) / (x2 - x1), then b + a * x or (y -
/// b) / a. NaN is equal to nothing here, and is computed with.
///
/// Accuracy: by search, with abscissae, values and the asked one from -1 to 1, x1 and x2 at least
/// 0.1 apart, absolute error at most 1.6e-14 forward; with y1 and y2 at least 0.1 apart too,
/// 1.6e-14 inverse. Both scale with the data. Data far from the origin against their distances lose
/// more.
///
/// @b Example: `(x = 2, LinearInterpol(1, 3, 2, 6, &x, &y, -1), y) == 4`
QUVARDBS1C_API int32_t LinearInterpol(double x1, double x2, double y1, double y2, double* x,
                                      double* y, HostBool forward) QUVARDBS1C_NOEXCEPT;

/// The parabola a * x^2 + b * x + c through three points, used in either direction.
///
/// | Case                    | Result | x             | xSecond       | y         |
/// |-------------------------|--------|---------------|---------------|-----------|
/// | two abscissae equal     | -1     | untouched     | untouched     | untouched |
/// | forward                 | 0      | read          | untouched     | written   |
/// | inverse, a and b 0      | -1     | untouched     | untouched     | untouched |
/// | inverse, a 0, b not     | 0      | written       | untouched     | read      |
/// | inverse, a not 0        | 0      | lower root    | upper root    | read      |
/// | inverse, y not reached  | 0      | extreme       | its negative  | read      |
///
/// The extreme is 8.98846567431155e+307 / abs(a), which may be +infinity. A value is taken as not
/// reached if the discriminant b * b - 4 * a * (c - y) comes out below 0, which rounding decides
/// for a value close to that of the vertex. Only then is @p x above @p xSecond.
///
/// Method, in this order of evaluation. Points i, j, k stand for (xi, yi), (xj, yj), (xk, yk); a
/// value is usable if it is neither 0 nor NaN, so that points at 0, or so close to it that a product
/// underflows, are passed over where other points will do.
///
/// | Value      | Formula                                                                  |
/// |------------|--------------------------------------------------------------------------|
/// | D(i, j, k) | (xi + xj) * xk - (xi + xk) * xj                                          |
/// | P(i, j, k) | (xj * xj * yi - xi * xi * yj) * ((xk - xi) * xk)                         |
/// | Q(i, j, k) | (xi * xi * yk - xk * xk * yi) * ((xj - xi) * xj)                         |
/// | C(i, j, k) | (Q + P) * ((1 / D) / ((xj - xi) * (xk - xi)))                            |
/// | B(i, j)    | ((xj * xj * yi + (xi * xi - xj * xj) * c) - xi * xi * yj) / ((xi * xj) * (xj - xi)) |
/// | c          | C(1, 2, 3) if D(1, 2, 3) is usable, else C(2, 3, 1) if D(2, 3, 1) is, else C(3, 1, 2) |
/// | b          | B(1, 2) if x1 * x2 is usable, else B(2, 3) if x2 * x3 is, else B(3, 1)   |
/// | a          | ((y1 - x1 * b) - c) / (x1 * x1), or with point 2 if x1 * x1 is 0         |
/// | forward    | c + (b + a * x) * x                                                      |
/// | a is 0     | (y - c) / b                                                              |
/// | r          | sqr((c - y) * (-4 * a) + b * b)                                          |
/// | roots      | (-b - r) * 0.5 / a and (r - b) * 0.5 / a, in this order if a is above 0  |
///
/// NaN compares unequal and propagates.
///
/// Accuracy: by search, with abscissae, values and the asked one from -1 to 1, abscissae at least
/// 0.1 apart and 0.01 from 0, absolute error at most 2e-10 forward; with abs(a) at least 0.1 and a
/// discriminant of at least 0.01, 3e-8 inverse. Abscissae closer together or to 0 lose more.
///
/// @b Example: `(x = 5, QuadraticInterpol(1, 2, 4, 0, 0, 6, &x, &xSecond, &y, -1), y) == 12`
QUVARDBS1C_API int32_t QuadraticInterpol(double x1, double x2, double x3, double y1, double y2,
                                         double y3, double* x, double* xSecond, double* y,
                                         HostBool forward) QUVARDBS1C_NOEXCEPT;

/// @}

#ifdef __cplusplus
}
#ifdef __clang__
#pragma clang diagnostic pop
#endif
#endif

#endif
