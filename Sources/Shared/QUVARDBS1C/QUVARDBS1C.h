/// @file
/// The base library of the product: text, report phrases, number patterns and scalar numerics.
///
/// Three kinds of routine are declared here, grouped by topic:
///
/// - **Wide routines** take and give `std::wstring` by value. Each works on its own copy; an
/// argument
///   that the caller moves in is not copied. C++ only.
/// - **Host routines** take and give host strings (`BSTR`) and scalars: those named `VB_...`, the
/// five
///   `ChrCount`, `StrFromTo`, `StrBetween`, `StrFromChrToChr`, `StrBetweenChrAndChr`, and
///   `Cpp_DecimalFormat`. C and C++.
/// - **Numeric routines** deal in doubles and 32-bit integers. C and C++.
///
/// What holds for every routine, unless its own contract says otherwise:
///
/// - Lengths, counts and positions are in units: 32-bit units of a `std::wstring`, 16-bit units of
/// a
///   host string. No surrogate pair is folded, so they mean the same on both sides.
/// - An argument is never changed, kept or released. A null host string reads as the empty string.
/// - A resulting host string is new on every call. The caller owns it and releases it with
///   `releaseBSTR` of `QUVARDCR1C`.
/// - No routine keeps anything between calls or waits for another thread, so any number may run at
/// once.
/// - Routines that deal in strings may throw `std::bad_alloc` and nothing else, and leak nothing
/// when
///   they do. Numeric routines do not throw.
/// - Text compares unit by unit: case counts and no locale takes part. A blank is the one unit
/// U+0020.
///
/// The examples are expressions that hold. In them `B(u"...")` stands for a host string of that
/// text, and a host string that results is compared by its text (and released).
#ifndef QUVARDBS1C_H
#define QUVARDBS1C_H

#include <stdint.h>

#define QUVARDBS1C_API __attribute__((visibility("default")))

#ifdef __cplusplus
#include <string>
/// A host string: one pointer to the first 16-bit unit of a zero-terminated run. Null is legal.
typedef char16_t* BSTR;
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
typedef int32_t HostBool;

#ifdef __cplusplus
#ifdef __clang__
#pragma clang diagnostic push
// C linkage fixes the names of the wide routines; only C++ callers see them.
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif
extern "C" {
#endif

/// @name The host boundary (host/)
/// @{

#ifdef __cplusplus
/// The text of a host string, up to its first zero unit.
///
/// @param handle  host string; null gives the empty string
/// @b Example: `convToWstring(B(u"Hello")) == L"Hello"`
QUVARDBS1C_API std::wstring convToWstring(BSTR handle);
#endif

/// @}
/// @name Substrings, joins, trims and lower-casing (strings/)
/// @{

#ifdef __cplusplus
/// The first @p n units of @p s.
///
/// @param n  number of units; above the length of @p s, or negative: all of @p s
/// @return   empty if @p n is 0 or @p s is empty
/// @b Example: `StrLeft(L"Hello", 2) == L"He"`
QUVARDBS1C_API std::wstring StrLeft(std::wstring s, int32_t n);

/// The last @p n units of @p s.
///
/// @param n  number of units; above the length of @p s, or negative: all of @p s
/// @return   empty if @p n is 0 or @p s is empty
/// @b Example: `StrRight(L"Hello", 2) == L"lo"`
QUVARDBS1C_API std::wstring StrRight(std::wstring s, int32_t n);

/// The six strings joined in argument order, with nothing between them.
///
/// @b Example: `StrConcat(L"a", L"", L"b", L"", L"", L"c") == L"abc"`
QUVARDBS1C_API std::wstring StrConcat(std::wstring a, std::wstring b, std::wstring c,
                                      std::wstring d, std::wstring e, std::wstring f);

/// @p s without its leading blanks.
///
/// @b Example: `StrLTrim(L"  a b  ") == L"a b  "`
QUVARDBS1C_API std::wstring StrLTrim(std::wstring s);

/// @p s without its trailing blanks.
///
/// @b Example: `StrRTrim(L"  a b  ") == L"  a b"`
QUVARDBS1C_API std::wstring StrRTrim(std::wstring s);

/// @p s without blanks at either end.
///
/// @b Example: `StrLRTrim(L"  a b  ") == L"a b"`
QUVARDBS1C_API std::wstring StrLRTrim(std::wstring s);

/// @p s with every unit lower-cased under the locale of the process, which this library never sets:
/// in the default locale A to Z change. A unit without a mapping stays, and so does the length.
///
/// @b Example: `StrLCase(L"AbC-9") == L"abc-9"`
QUVARDBS1C_API std::wstring StrLCase(std::wstring s);
#endif

/// Host form of StrLeft().
///
/// @param n  number of units; above the length of @p s, or negative: all of @p s
/// @return   new host string
/// @b Example: `VB_StrLeft(B(u"Hello"), 2) == B(u"He")`
QUVARDBS1C_API BSTR VB_StrLeft(BSTR s, int32_t n);

/// Host form of StrRight().
///
/// @param n  number of units; above the length of @p s, or negative: all of @p s
/// @return   new host string
/// @b Example: `VB_StrRight(B(u"Hello"), 2) == B(u"lo")`
QUVARDBS1C_API BSTR VB_StrRight(BSTR s, int32_t n);

/// Host form of StrConcat().
///
/// @return new host string
/// @b Example: `VB_StrConcat(B(u"a"), B(u"b"), nullptr, nullptr, nullptr, nullptr) == B(u"ab")`
QUVARDBS1C_API BSTR VB_StrConcat(BSTR a, BSTR b, BSTR c, BSTR d, BSTR e, BSTR f);

/// Host form of StrLTrim().
///
/// @return new host string
/// @b Example: `VB_StrLTrim(B(u"  a b  ")) == B(u"a b  ")`
QUVARDBS1C_API BSTR VB_StrLTrim(BSTR s);

/// Host form of StrRTrim().
///
/// @return new host string
/// @b Example: `VB_StrRTrim(B(u"  a b  ")) == B(u"  a b")`
QUVARDBS1C_API BSTR VB_StrRTrim(BSTR s);

/// Host form of StrLRTrim().
///
/// @return new host string
/// @b Example: `VB_StrLRTrim(B(u"  a b  ")) == B(u"a b")`
QUVARDBS1C_API BSTR VB_StrLRTrim(BSTR s);

/// @}
/// @name Removal (strings/)
/// @{

#ifdef __cplusplus
/// @p s after a removal that goes on until the whole of @p chars occurs nowhere: each step takes
/// the first unit out of the leftmost occurrence. With a @p chars of one unit, every such unit
/// goes. Linear in @p s.
///
/// @param chars  what to look for; empty: @p s comes back unchanged
/// @b Example: `RemoveChar(L"xaby", L"ab") == L"xby"`
QUVARDBS1C_API std::wstring RemoveChar(std::wstring s, std::wstring chars);

/// @p s without any colon, and then without blanks at either end.
///
/// @b Example: `RemoveColon(L" a: :b ") == L"a b"`
QUVARDBS1C_API std::wstring RemoveColon(std::wstring s);

/// @p s without any semicolon, and then without blanks at either end.
///
/// @b Example: `RemoveSemicolon(L" a;b; ") == L"ab"`
QUVARDBS1C_API std::wstring RemoveSemicolon(std::wstring s);

/// The digits 0 to 9 of @p s, in their order.
///
/// @b Example: `RemoveNonNumericChar(L"1,234.50") == L"123450"`
QUVARDBS1C_API std::wstring RemoveNonNumericChar(std::wstring s);
#endif

/// Host form of RemoveChar().
///
/// @return new host string
/// @b Example: `VB_RemoveChar(B(u"a-b-c"), B(u"-")) == B(u"abc")`
QUVARDBS1C_API BSTR VB_RemoveChar(BSTR s, BSTR chars);

/// Host form of RemoveNonNumericChar().
///
/// @return new host string
/// @b Example: `VB_RemoveNonNumericChar(B(u"-1.5")) == B(u"15")`
QUVARDBS1C_API BSTR VB_RemoveNonNumericChar(BSTR s);

/// @p s without any colon. Unlike RemoveColon() it leaves blanks at the ends in place.
///
/// @return new host string; the null handle for the null handle
/// @b Example: `VB_RemoveColon(B(u" a:b ")) == B(u" ab ")`
QUVARDBS1C_API BSTR VB_RemoveColon(BSTR s);

/// @}
/// @name Search and counting (strings/)
/// @{

#ifdef __cplusplus
/// The number of occurrences of @p pattern in @p text, from left to right and without overlap. Both
/// end at their first zero unit.
///
/// @return 0 if either is empty
/// @b Example: `cChrCount(L"aaaaa", L"aa") == 2`
QUVARDBS1C_API int32_t cChrCount(std::wstring text, std::wstring pattern);
#endif

/// Whether @p text and @p chars have a unit in common; host form of CommonChar().
///
/// @return -1 or 0
/// @b Example: `VB_CommonChar(B(u"abc"), B(u"xyzb")) == -1`
QUVARDBS1C_API HostBool VB_CommonChar(BSTR text, BSTR chars);

/// Host form of cChrCount().
///
/// @return 0 if either is empty or null
/// @b Example: `ChrCount(B(u"a,b,c"), B(u",")) == 2`
QUVARDBS1C_API int32_t ChrCount(BSTR text, BSTR pattern);

/// @}
/// @name Slices by position and delimiter (strings/)
///
/// Positions count from 1. Delimiters are of one unit each: of two that are both not empty, one of
/// two units or more gives the empty string. An empty delimiter is found at the start of the text.
/// @{

#ifdef __cplusplus
/// What lies between the first @p opening and the first @p closing behind it, both left out.
///
/// @return empty if either is not found; with an empty @p opening, the slice starts at the second
/// unit
/// @b Example: `cStrBetweenChrAndChr(L"a(b)c", L"(", L")") == L"b"`
QUVARDBS1C_API std::wstring cStrBetweenChrAndChr(std::wstring text, std::wstring opening,
                                                 std::wstring closing);
#endif

/// The units at positions @p from to @p to, both included.
///
/// @param from  1 or more
/// @param to    not beyond the end of @p text
/// @return      new host string; empty for any other positions, and if @p to lies before @p from
/// @b Example: `StrFromTo(B(u"abcdef"), 2, 5) == B(u"bcde")`
QUVARDBS1C_API BSTR StrFromTo(BSTR text, int32_t from, int32_t to);

/// The units strictly between positions @p from and @p to.
///
/// @param from  1 or more
/// @param to    not beyond the end of @p text
/// @return      new host string; empty for any other positions, and if @p to is not behind @p from
/// @b Example: `StrBetween(B(u"abcdef"), 2, 5) == B(u"cd")`
QUVARDBS1C_API BSTR StrBetween(BSTR text, int32_t from, int32_t to);

/// The text from the first @p opening to the first @p closing, both included. @p closing is
/// searched from the start of the text.
///
/// @return new host string; empty if either is not found or @p closing comes first
/// @b Example: `StrFromChrToChr(B(u"a(b)c"), B(u"("), B(u")")) == B(u"(b)")`
QUVARDBS1C_API BSTR StrFromChrToChr(BSTR text, BSTR opening, BSTR closing);

/// Host form of cStrBetweenChrAndChr().
///
/// @return new host string
/// @b Example: `StrBetweenChrAndChr(B(u"a/b/c"), B(u"/"), B(u"/")) == B(u"b")`
QUVARDBS1C_API BSTR StrBetweenChrAndChr(BSTR text, BSTR opening, BSTR closing);

/// @}
/// @name Replacement (strings/)
///
/// Occurrences are handled from left to right and do not overlap. What a replacement puts in is not
/// searched again. An empty pattern has no occurrences. Linear in text plus result.
/// @{

/// @p text with every occurrence of @p pattern replaced.
///
/// With a pattern and a replacement of exactly one unit each, **the units of @p text itself are
/// changed** too, and must not be in use on another thread; this is the one routine that writes to
/// an argument.
///
/// @param text         host string
/// @param pattern      what to look for; null: nothing is done, and @p text itself is the result
/// @param replacement  what to put in its place; null and empty: nothing
/// @return             new host string; but **the handle @p text itself**, not a copy, if @p text
/// or
///                     @p pattern is null
/// @b Example: `VB_Replace(B(u"a-b-c"), B(u"-"), B(u"--")) == B(u"a--b--c")`
QUVARDBS1C_API BSTR VB_Replace(BSTR text, BSTR pattern, BSTR replacement);

/// @p text with every occurrence of @p pattern1 replaced, and then, in that result, every
/// occurrence of
/// @p pattern2. Null handles are empty strings. No argument changes.
///
/// @return new host string
/// @b Example: `VB_Replace2(B(u"ab"), B(u"a"), B(u"b"), B(u"b"), B(u"c")) == B(u"cc")`
QUVARDBS1C_API BSTR VB_Replace2(BSTR text, BSTR pattern1, BSTR replacement1, BSTR pattern2,
                                BSTR replacement2);

/// @}
/// @name Phrases of an adjective and a noun (phrases/)
///
/// A language code is one of "ES", "FR", "IT", "PT", "PL", "US", "DE", "JP", "CS", "CN", compared
/// whole and with case.
/// @{

#ifdef __cplusplus
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
/// @b Example: `LocalAN(L"linear", L"Model", L"US", -1, 0, 0) == L"Linear model"`
QUVARDBS1C_API std::wstring LocalAN(std::wstring adjective, std::wstring noun,
                                    std::wstring language, HostBool upperAdjective,
                                    HostBool lowerResult, HostBool noBlank);

/// @p text with its first unit lower-cased, as StrLCase() does it. "JP" leaves the text as it is,
/// and so does "DE" unless @p forceDE is set. Every other code lowers, an unknown or empty one too.
///
/// @b Example: `LowerFirst(L"Model", L"FR", 0) == L"model"`
QUVARDBS1C_API std::wstring LowerFirst(std::wstring text, std::wstring language, HostBool forceDE);

/// @p text with its first unit upper-cased under the locale of the process.
///
/// @b Example: `UpperFirst(L"linear") == L"Linear"`
QUVARDBS1C_API std::wstring UpperFirst(std::wstring text);
#endif

/// Host form of LocalAN() with upperAdjective True, lowerResult False, noBlank False.
///
/// @return new host string
/// @b Example: `VB_LocalAN(B(u"linear"), B(u"Model"), B(u"ES")) == B(u"Model linear")`
QUVARDBS1C_API BSTR VB_LocalAN(BSTR adjective, BSTR noun, BSTR language);

/// Host form of LocalAN().
///
/// @return new host string
/// @b Example: `VB_LocalAN2(B(u"linear"), B(u"Model"), B(u"JP"), 0, 0, -1) == B(u"linearModel")`
QUVARDBS1C_API BSTR VB_LocalAN2(BSTR adjective, BSTR noun, BSTR language, HostBool upperAdjective,
                                HostBool lowerResult, HostBool noBlank);

/// Host form of LowerFirst().
///
/// @return new host string
/// @b Example: `VB_LowerFirst(B(u"Model"), B(u"DE"), 0) == B(u"Model")`
QUVARDBS1C_API BSTR VB_LowerFirst(BSTR text, BSTR language, HostBool forceDE);

/// Host form of UpperFirst().
///
/// @return new host string
/// @b Example: `VB_UpperFirst(B(u"linear")) == B(u"Linear")`
QUVARDBS1C_API BSTR VB_UpperFirst(BSTR text);

/// @}
/// @name Wrapping and inflection (phrases/)
/// @{

#ifdef __cplusplus
/// A blank, @p text, a blank.
///
/// @b Example: `SpStrSp(L"and") == L" and "`
QUVARDBS1C_API std::wstring SpStrSp(std::wstring text);

/// @p text in parentheses.
///
/// @b Example: `PStrP(L"units") == L"(units)"`
QUVARDBS1C_API std::wstring PStrP(std::wstring text);

/// @p singular if @p count is less than 2, else @p plural.
///
/// @b Example: `SingPlural(L"case", L"cases", 2) == L"cases"`
QUVARDBS1C_API std::wstring SingPlural(std::wstring singular, std::wstring plural, int32_t count);
#endif

/// Host form of SpStrSp().
///
/// @return new host string
/// @b Example: `VB_SpStrSp(B(u"and")) == B(u" and ")`
QUVARDBS1C_API BSTR VB_SpStrSp(BSTR text);

/// Host form of PStrP().
///
/// @return new host string
/// @b Example: `VB_PStrP(B(u"units")) == B(u"(units)")`
QUVARDBS1C_API BSTR VB_PStrP(BSTR text);

/// @p text in square brackets.
///
/// @return new host string
/// @b Example: `VB_BStrB(B(u"1")) == B(u"[1]")`
QUVARDBS1C_API BSTR VB_BStrB(BSTR text);

/// A copy of @p singular if @p count is less than 2, else of @p plural. The other one is not read.
///
/// @return new host string
/// @b Example: `VB_SingPlural(B(u"case"), nullptr, 0) == B(u"case")`
QUVARDBS1C_API BSTR VB_SingPlural(BSTR singular, BSTR plural, int32_t count);

/// @}
/// @name Markup tokens (phrases/)
/// @{

#ifdef __cplusplus
/// @p text with its markup tokens turned into the characters that they stand for: `<BR>` into a
/// line feed, `<QM>` into a double quotation mark, `<CM>` into a comma. Case counts.
///
/// @b Example: `QUVARDHTMLProcessor(L"a<CM> b<BR>") == L"a, b\n"`
QUVARDBS1C_API std::wstring QUVARDHTMLProcessor(std::wstring text);
#endif

/// Host form of QUVARDHTMLProcessor().
///
/// @return new host string
/// @b Example: `VB_QUVARDHTMLProcessor(B(u"<QM>a<QM>")) == B(u"\"a\"")`
QUVARDBS1C_API BSTR VB_QUVARDHTMLProcessor(BSTR text);

/// @}
/// @name Number patterns (formats/)
///
/// A pattern is in the host's notation: "0" a digit that is always printed, "#" a digit that is
/// printed only when significant, "." the decimal point, "E-" and "E+" scientific notation (with
/// the exponent's sign only when it is negative, and always), followed by the exponent's digits.
/// @{

#ifdef __cplusplus
/// The pattern with a number of decimals.
///
/// @param decimals  0 or below: the pattern "0"; there is no upper limit but memory
/// @b Example: `DecimalFormat(2) == L"0.00"`
QUVARDBS1C_API std::wstring DecimalFormat(int32_t decimals);

/// Assigns one and the same decimal pattern to the elements of an array.
///
/// @param formats         the first of at least @p count strings
/// @param count           number of elements; below 1 nothing happens
/// @param digits          digits of the pattern, the one before the point included
/// @param digitsOverride  if it is not exactly -1, stands in the place of @p digits
/// @b Example: `[] { std::wstring f[2]; SetFormat(f, 2, 4, -1); return f[1]; }() == L"0.000"`
QUVARDBS1C_API void SetFormat(std::wstring* formats, int32_t count, int32_t digits,
                              int32_t digitsOverride);

/// The pattern that shows the decimals a value has, up to 19: "0" for a value within 1e-12 of a
/// whole number (infinities and NaN count as whole), otherwise "0." and 19 times "#". If the value
/// times 1e19 is not whole by the same test, "E-#" follows.
///
/// @b Example: `OutputFormat(3.0) == L"0"`
QUVARDBS1C_API std::wstring OutputFormat(double value);

/// The pattern with a chosen number of decimals, in scientific notation where that is asked for and
/// the value is small for these decimals, or large.
///
/// A number x is whole here if it is less than 1e-12 away from x truncated to a 32-bit integer. The
/// mantissa is "0" for a whole value, otherwise DecimalFormat(decimals). With e the decimal
/// logarithm of the magnitude, truncated toward zero, the exponent part is "E-0" if e is below
/// -decimals ("E-00" from -10 down), "E+0" if e is 5 or more ("E+00" from 10 up), and empty in
/// between. There is none for a magnitude of 1e-12 or less, for an infinity or for NaN.
///
/// @param value         the value that is to be printed
/// @param decimals      decimals of the pattern; also the limit for small values
/// @param useExponent   set: there may be an exponent part
/// @param keepDecimals  matters only with an exponent part. Set: the mantissa stays as told. Not
/// set: it
///                      becomes "0" if pow(10, -e) times the value is whole
/// @b Example: `OptimalFormat(123456.5, 2, -1, -1) == L"0.00E+0"`
QUVARDBS1C_API std::wstring OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                                          HostBool keepDecimals);
#endif

/// Host form of DecimalFormat().
///
/// @return new host string
/// @b Example: `Cpp_DecimalFormat(2) == B(u"0.00")`
QUVARDBS1C_API BSTR Cpp_DecimalFormat(int32_t decimals);

/// Host form of SetFormat(): writes a new host string to each of @p count elements. What an element
/// held is neither read nor released. If memory runs out, the elements in front hold their new
/// strings.
///
/// @param formats         the first of at least @p count handles
/// @param count           number of elements; below 1 nothing happens
/// @param digits          digits of the pattern, the one before the point included
/// @param digitsOverride  if it is not exactly -1, stands in the place of @p digits
/// @b Example: `[] { BSTR f[1]; VB_SetFormat(f, 1, 4, 2); return f[0]; }() == B(u"0.0")`
QUVARDBS1C_API void VB_SetFormat(BSTR* formats, int32_t count, int32_t digits,
                                 int32_t digitsOverride);

/// Host form of OutputFormat().
///
/// @return new host string
/// @b Example: `VB_OutputFormat(0.5) == B(u"0.###################")`
QUVARDBS1C_API BSTR VB_OutputFormat(double value);

/// Host form of OptimalFormat().
///
/// @return new host string
/// @b Example: `VB_OptimalFormat(2.5, 3, 0, 0) == B(u"0.000")`
QUVARDBS1C_API BSTR VB_OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                                     HostBool keepDecimals);

/// @}

#ifdef __cplusplus
}
#ifdef __clang__
#pragma clang diagnostic pop
#endif
#endif

/// @name Routines of C++ linkage, whose symbols encode their argument types (strings/)
/// @{

#ifdef __cplusplus
/// Whether @p text and @p chars have a unit in common.
///
/// @return -1 or 0
/// @b Example: `CommonChar(L"abc", L"xyzb") == -1`
QUVARDBS1C_API HostBool CommonChar(std::wstring text, std::wstring chars);

/// @p text with every occurrence of @p pattern replaced by @p replacement.
///
/// @b Example: `Replace(L"a,b,c", std::wstring(L","), std::wstring(L", ")) == L"a, b, c"`
QUVARDBS1C_API std::wstring Replace(std::wstring text, std::wstring pattern,
                                    std::wstring replacement);

/// The same with a pattern and a replacement that end at their first zero unit; neither may be
/// null.
///
/// @b Example: `Replace(L"aab", L"ab", L"b") == L"ab"`
QUVARDBS1C_API std::wstring Replace(std::wstring text, const wchar_t* pattern,
                                    const wchar_t* replacement);
#endif

/// @}

#endif
