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

#ifdef __cplusplus
}
#ifdef __clang__
#pragma clang diagnostic pop
#endif
#endif

#endif
