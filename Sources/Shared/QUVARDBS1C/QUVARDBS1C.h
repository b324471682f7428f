/// @file
/// Declares the routines of QUVARDBS1C: text, report phrases, number patterns and scalar numerics.
///
/// There are three kinds of routine:
///
/// - **Wide routines** take and return `std::wstring` by value. They are for C++ programs that use the
///   same C++ standard library as this library. `QUVARDBS1C_NO_WIDE_ROUTINES`, defined before this
///   header is included, removes them; a program may then use any C++ standard library. If the caller
///   moves the first text in, it is not copied, except by SpStrSp(), PStrP(), StrConcat(), Replace()
///   and LocalAN().
/// - **Host routines** take and return host strings (`BSTR`) and scalars: `VB_...`, `ChrCount`,
///   `StrFromTo`, `StrBetween`, `StrFromChrToChr`, `StrBetweenChrAndChr` and `Cpp_DecimalFormat`. They
///   are for C and C++. A *host form* has the behaviour of the wide routine that its contract names.
/// - **Numeric routines** take and return doubles and 32-bit integers. They are for C and C++.
///
/// For every routine, unless its contract says otherwise:
///
/// - Lengths, counts and positions are in code units: of 32 bits in a `std::wstring`, of 16 bits in a
///   host string. Conversion from host strings does not combine surrogates, so positions agree.
/// - Arguments are not modified, stored or released. A null host string means the empty string.
/// - A returned host string is new. The caller owns it and releases it with releaseBSTR() of
///   QUVARDCR1C.h.
/// - Comparison is by code unit: case matters, the locale does not. A blank is U+0020 only.
/// - A text argument has at most 2,147,483,647 code units. A result may be longer:
///   `DecimalFormat(2147483647)` has 2,147,483,649.
/// - Routines that take or return text throw only `std::bad_alloc`, and then leak nothing. **Only a
///   C++ caller can catch it; in any other host it ends the process.** Numeric routines do not throw.
/// - No call depends on an earlier one. Any number may run at once, and none waits for another thread
///   except in the memory allocator. Each thread has one buffer, which CW162W32() in QUVARDCR1C.h
///   describes. Routines that take or return host strings are not async-signal-safe: they would
///   overwrite the buffer while the interrupted call reads it.
///
/// For numeric routines and number patterns:
///
/// - Results have the same bits with every compiler and processor, except the sign and the payload of a
///   NaN: arithmetic is in IEEE doubles, in the order that the contract states. Results of the
///   platform's `log`, `exp`, `pow`, `log10` and `atan` are as accurate as these functions.
/// - The floating-point environment must be the default: rounding to nearest, traps disabled, subnormals
///   not flushed to zero. A program or library linked with `-Ofast` or `-ffast-math` may set FTZ and
///   DAZ on x86, which flush them, for the whole process. With the trap for invalid operations enabled, a
///   NaN argument, also a quiet one, raises SIGFPE in most routines, because comparing it is an invalid
///   operation. Which routines trap depends on the compiler; Min(), IsLong(), Int05() and
///   VB_OptimalFormat() may.
/// - Status flags and `errno` are left as the operations and the platform's functions set them.
/// - The accuracy is determined *by search* or *over all* arguments. A search climbs from the worst of
///   many random arguments to larger errors until there is no gain; its result is rounded up. It used
///   the functions of glibc 2.36.
///
/// Each example is an expression that is true. In it, `B(u"...")` is a host string with that text, and a
/// returned host string is compared by its text, then released. `i` and `j` are `int32_t` variables; `x`,
/// `xSecond` and `y` are doubles.
#ifndef QUVARDBS1C_H
#define QUVARDBS1C_H

#include <stdint.h>

#include "QUVARDStandardLibrary.h"

/// The version of this header. Programs built with this header run with any later version of the
/// library.
#define QUVARDBS1C_VERSION "1.1.0"
#define QUVARDBS1C_VERSION_MAJOR 1  ///< The first number of the version.
#define QUVARDBS1C_VERSION_MINOR 1  ///< The second number of the version.
#define QUVARDBS1C_VERSION_PATCH 0  ///< The third number of the version.

/// Marks an exported routine.
#define QUVARDBS1C_API __attribute__((visibility("default")))

#ifdef __cplusplus
static_assert(sizeof(wchar_t) == 4, "QUVARDBS1C needs a wchar_t of 32 bits");
/// A host string: a pointer to null-terminated text of 16-bit code units, or null.
typedef char16_t* BSTR;
/// Marks a routine that does not throw, in C++.
#define QUVARDBS1C_NOEXCEPT noexcept
#else
typedef uint_least16_t* BSTR;
#define QUVARDBS1C_NOEXCEPT
#endif

/// A 16-bit Boolean of the host, passed in 32 bits: True is -1, False is 0.
///
/// A routine reads only the low 16 bits of an argument. Its contract says which test it applies:
///
/// - The argument *is set* if these bits are not all zero.
/// - The argument *is True* if these bits are all ones.
///
/// A result is -1 or 0 in all 32 bits.
///
/// Pass #QUVARDBS1C_TRUE or #QUVARDBS1C_FALSE. **The `true` of C and C++ is 1, which is set but not
/// True**: LinearInterpol() and QuadraticInterpol() then silently compute the inverse, and Int05LU()
/// rounds up.
typedef int32_t HostBool;

/// True of the host.
#define QUVARDBS1C_TRUE (-1)
/// False of the host.
#define QUVARDBS1C_FALSE 0

#ifdef __cplusplus
#ifdef __clang__
#pragma clang diagnostic push
// C linkage fixes the symbol names of the wide routines. Only C++ callers see them.
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif
extern "C" {
#endif

/// @defgroup host The host boundary (host/Boundary)
///
/// Conversion of host strings to wide text. QUVARDCR1C.h declares how host strings are made and
/// released.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// Returns the text of a host string.
///
/// @param handle  host string; null: the empty string
/// @return        one wide code unit for each code unit before the null terminator
/// @throws std::bad_alloc
/// @b Example: `convToWstring(B(u"Hello")) == L"Hello"`
QUVARDBS1C_API std::wstring convToWstring(BSTR handle);
#endif

/// @}
/// @defgroup substrings Substrings, joins, trims, lower case (strings/Substrings, Joins, Trims, LowerCase)
///
/// Prefixes and suffixes, concatenation, removal of outer blanks, and conversion to lower case.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// Returns the first @p n code units of @p s.
///
/// @param s  text
/// @param n  number of code units; negative or above the length of @p s: all of @p s
/// @return   prefix of @p s
/// @throws std::bad_alloc
/// @b Example: `StrLeft(L"Hello", 2) == L"He"`
QUVARDBS1C_API std::wstring StrLeft(std::wstring s, int32_t n);

/// Returns the last @p n code units of @p s.
///
/// @param s  text
/// @param n  number of code units; negative or above the length of @p s: all of @p s
/// @return   suffix of @p s
/// @throws std::bad_alloc
/// @b Example: `StrRight(L"Hello", 2) == L"lo"`
QUVARDBS1C_API std::wstring StrRight(std::wstring s, int32_t n);

/// Concatenates six texts.
///
/// @param a,b,c,d,e,f  text; order of the result: @p a to @p f
/// @return             concatenation without separators
/// @throws std::bad_alloc
/// @b Example: `StrConcat(L"a", L"", L"b", L"", L"", L"c") == L"abc"`
QUVARDBS1C_API std::wstring StrConcat(std::wstring a, std::wstring b, std::wstring c,
                                      std::wstring d, std::wstring e, std::wstring f);

/// Removes leading blanks.
///
/// @param s  text
/// @return   suffix of @p s
/// @throws std::bad_alloc
/// @b Example: `StrLTrim(L"  a b  ") == L"a b  "`
QUVARDBS1C_API std::wstring StrLTrim(std::wstring s);

/// Removes trailing blanks.
///
/// @param s  text
/// @return   prefix of @p s
/// @throws std::bad_alloc
/// @b Example: `StrRTrim(L"  a b  ") == L"  a b"`
QUVARDBS1C_API std::wstring StrRTrim(std::wstring s);

/// Removes leading and trailing blanks.
///
/// @param s  text
/// @return   part of @p s
/// @throws std::bad_alloc
/// @b Example: `StrLRTrim(L"  a b  ") == L"a b"`
QUVARDBS1C_API std::wstring StrLRTrim(std::wstring s);

/// Converts a text to lower case under the locale of the process.
///
/// This library does not set the locale. In the default locale only A to Z change. A code unit without a
/// lower-case form stays.
///
/// @param s  text
/// @return   text of the same length
/// @throws std::bad_alloc
/// @b Example: `StrLCase(L"AbC-9") == L"abc-9"`
QUVARDBS1C_API std::wstring StrLCase(std::wstring s);
#endif

/// Returns the first @p n code units of @p s. Host form of StrLeft().
///
/// @param s  text
/// @param n  number of code units; negative or above the length of @p s: all of @p s
/// @return   new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrLeft(B(u"Hello"), 2) == B(u"He")`
QUVARDBS1C_API BSTR VB_StrLeft(BSTR s, int32_t n);

/// Returns the last @p n code units of @p s. Host form of StrRight().
///
/// @param s  text
/// @param n  number of code units; negative or above the length of @p s: all of @p s
/// @return   new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrRight(B(u"Hello"), 2) == B(u"lo")`
QUVARDBS1C_API BSTR VB_StrRight(BSTR s, int32_t n);

/// Concatenates six texts. Host form of StrConcat().
///
/// @param a,b,c,d,e,f  text; order of the result: @p a to @p f
/// @return             new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrConcat(B(u"a"), B(u"b"), nullptr, nullptr, nullptr, nullptr) == B(u"ab")`
QUVARDBS1C_API BSTR VB_StrConcat(BSTR a, BSTR b, BSTR c, BSTR d, BSTR e, BSTR f);

/// Removes leading blanks. Host form of StrLTrim().
///
/// @param s  text
/// @return   new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrLTrim(B(u"  a b  ")) == B(u"a b  ")`
QUVARDBS1C_API BSTR VB_StrLTrim(BSTR s);

/// Removes trailing blanks. Host form of StrRTrim().
///
/// @param s  text
/// @return   new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrRTrim(B(u"  a b  ")) == B(u"  a b")`
QUVARDBS1C_API BSTR VB_StrRTrim(BSTR s);

/// Removes leading and trailing blanks. Host form of StrLRTrim().
///
/// @param s  text
/// @return   new host string
/// @throws std::bad_alloc
/// @b Example: `VB_StrLRTrim(B(u"  a b  ")) == B(u"a b")`
QUVARDBS1C_API BSTR VB_StrLRTrim(BSTR s);

/// @}
/// @defgroup removal Removal (strings/Removal)
///
/// Removal of code units. The others keep their order.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// Removes the first code unit of the leftmost occurrence of @p chars until @p chars does not occur.
///
/// - If @p chars is one code unit, all its occurrences are removed.
/// - Occurrences that a removal forms count too: "aaab" without "aab" is "ab".
/// - The time is O(|s| + |chars|).
/// - If @p chars has more than 16 code units and is not longer than @p s, the call uses
///   4 * (|s| + 2 * |chars| + 3) bytes of working memory: up to 780 bytes on the stack, more on the heap.
///
/// @param s      text
/// @param chars  text to search for; empty: @p s is returned unchanged
/// @return       text in which @p chars does not occur, unless it is empty
/// @throws std::bad_alloc
/// @b Example: `RemoveChar(L"xaby", L"ab") == L"xby"`
QUVARDBS1C_API std::wstring RemoveChar(std::wstring s, std::wstring chars);

/// Removes every colon, then leading and trailing blanks.
///
/// @param s  text
/// @return   text without colons
/// @throws std::bad_alloc
/// @b Example: `RemoveColon(L" a: :b ") == L"a b"`
QUVARDBS1C_API std::wstring RemoveColon(std::wstring s);

/// Removes every semicolon, then leading and trailing blanks.
///
/// @param s  text
/// @return   text without semicolons
/// @throws std::bad_alloc
/// @b Example: `RemoveSemicolon(L" a;b; ") == L"ab"`
QUVARDBS1C_API std::wstring RemoveSemicolon(std::wstring s);

/// Removes every code unit except the digits 0 to 9.
///
/// @param s  text
/// @return   the digits of @p s
/// @throws std::bad_alloc
/// @b Example: `RemoveNonNumericChar(L"1,234.50") == L"123450"`
QUVARDBS1C_API std::wstring RemoveNonNumericChar(std::wstring s);
#endif

/// Removes the first code unit of the leftmost occurrence of @p chars until @p chars does not occur.
/// Host form of RemoveChar().
///
/// @param s      text
/// @param chars  text to search for; null or empty: nothing is removed
/// @return       new host string
/// @throws std::bad_alloc
/// @b Example: `VB_RemoveChar(B(u"a-b-c"), B(u"-")) == B(u"abc")`
QUVARDBS1C_API BSTR VB_RemoveChar(BSTR s, BSTR chars);

/// Removes every code unit except the digits 0 to 9. Host form of RemoveNonNumericChar().
///
/// @param s  text
/// @return   new host string
/// @throws std::bad_alloc
/// @b Example: `VB_RemoveNonNumericChar(B(u"-1.5")) == B(u"15")`
QUVARDBS1C_API BSTR VB_RemoveNonNumericChar(BSTR s);

/// Removes every colon. Blanks stay, unlike in RemoveColon().
///
/// @param s  text
/// @return   new host string; null if @p s is null
/// @throws std::bad_alloc
/// @b Example: `VB_RemoveColon(B(u" a:b ")) == B(u" ab ")`
QUVARDBS1C_API BSTR VB_RemoveColon(BSTR s);

/// @}
/// @defgroup search Search and counting (strings/Search)
///
/// Code units common to two texts, and the number of occurrences of a pattern.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
// C++ linkage: the symbol encodes the types of the arguments, as do those of Replace() and LCD2().
extern "C++" {
/// Tests whether two texts have a code unit in common.
///
/// The time is O(|text| + |chars|). Exception: if @p chars has more than 64 code units, n of them above
/// 0xFFFF, these are sorted in O(n log n), and each such code unit of @p text takes O(log n).
///
/// @param text,chars  text
/// @return            -1 if they have, otherwise 0
/// @throws std::bad_alloc
/// @b Example: `CommonChar(L"abc", L"xyzb") == -1`
QUVARDBS1C_API HostBool CommonChar(std::wstring text, std::wstring chars);
}

/// Counts the occurrences of @p pattern in @p text, from left to right and without overlap.
///
/// @param text     text, read up to its first zero code unit
/// @param pattern  text to search for, read up to its first zero code unit
/// @return         number of occurrences; 0 if an argument is empty
/// @throws std::bad_alloc
/// @b Example: `cChrCount(L"aaaaa", L"aa") == 2`
QUVARDBS1C_API int32_t cChrCount(std::wstring text, std::wstring pattern);
#endif

/// Tests whether two texts have a code unit in common. Host form of CommonChar().
///
/// @param text,chars  text
/// @return            -1 if they have, otherwise 0
/// @throws std::bad_alloc
/// @b Example: `VB_CommonChar(B(u"abc"), B(u"xyzb")) == -1`
QUVARDBS1C_API HostBool VB_CommonChar(BSTR text, BSTR chars);

/// Counts the occurrences of @p pattern in @p text, from left to right and without overlap. Host form of
/// cChrCount().
///
/// @param text     text
/// @param pattern  text to search for
/// @return         number of occurrences; 0 if an argument is empty
/// @throws std::bad_alloc
/// @b Example: `ChrCount(B(u"a,b,c"), B(u",")) == 2`
QUVARDBS1C_API int32_t ChrCount(BSTR text, BSTR pattern);

/// @}
/// @defgroup slices Slices by position and delimiter (strings/Slices)
///
/// The part of a text between two positions or two delimiters.
///
/// - Positions count from 1.
/// - Delimiters have one code unit each. If one is empty, the other may have any length; otherwise the
///   result is empty.
/// - An empty delimiter is found where its search starts.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// Returns the text between the first @p opening and the next @p closing, without the delimiters.
///
/// The result and the search for @p closing start one code unit after the start of @p opening, even if
/// @p opening is empty.
///
/// @param text     text
/// @param opening  delimiter of one code unit, or empty
/// @param closing  delimiter of one code unit, or of any length if @p opening is empty
/// @return         empty if a delimiter is not found or @p closing is empty
/// @throws std::bad_alloc
/// @b Example: `cStrBetweenChrAndChr(L"a(b)c", L"(", L")") == L"b"`
QUVARDBS1C_API std::wstring cStrBetweenChrAndChr(std::wstring text, std::wstring opening,
                                                 std::wstring closing);
#endif

/// Returns the code units at the positions @p from, ..., @p to.
///
/// @param text  text
/// @param from  first position, at least 1
/// @param to    last position, at most the length of @p text
/// @return      new host string; empty if a position is out of range or @p to < @p from
/// @throws std::bad_alloc
/// @b Example: `StrFromTo(B(u"abcdef"), 2, 5) == B(u"bcde")`
QUVARDBS1C_API BSTR StrFromTo(BSTR text, int32_t from, int32_t to);

/// Returns the code units strictly between the positions @p from and @p to.
///
/// @param text  text
/// @param from  position before the result, at least 1
/// @param to    position after the result, at most the length of @p text
/// @return      new host string; empty if a position is out of range or @p to <= @p from
/// @throws std::bad_alloc
/// @b Example: `StrBetween(B(u"abcdef"), 2, 5) == B(u"cd")`
QUVARDBS1C_API BSTR StrBetween(BSTR text, int32_t from, int32_t to);

/// Returns the text from the first @p opening to the first @p closing, with both delimiters.
///
/// - Both searches start at the beginning of @p text.
/// - Of a @p closing with several code units, only the first is included. It needs an empty @p opening.
/// - An empty @p closing is found at the first code unit of @p text, which it includes.
///
/// @param text     text
/// @param opening  delimiter of one code unit, or of any length if @p closing is empty, or empty
/// @param closing  delimiter of one code unit, or of any length if @p opening is empty, or empty
/// @return         new host string; empty if a delimiter is not found, or @p closing is before @p opening
/// @throws std::bad_alloc
/// @b Example: `StrFromChrToChr(B(u"a(b)c"), B(u"("), B(u")")) == B(u"(b)")`
QUVARDBS1C_API BSTR StrFromChrToChr(BSTR text, BSTR opening, BSTR closing);

/// Returns the text between the first @p opening and the next @p closing, without the delimiters. Host
/// form of cStrBetweenChrAndChr().
///
/// @param text     text
/// @param opening  delimiter of one code unit, or empty
/// @param closing  delimiter of one code unit, or of any length if @p opening is empty
/// @return         new host string; empty if a delimiter is not found or @p closing is empty
/// @throws std::bad_alloc
/// @b Example: `StrBetweenChrAndChr(B(u"a/b/c"), B(u"/"), B(u"/")) == B(u"b")`
QUVARDBS1C_API BSTR StrBetweenChrAndChr(BSTR text, BSTR opening, BSTR closing);

/// @}
/// @defgroup replacement Replacement (strings/Replacement)
///
/// Replacement of every occurrence of a pattern.
///
/// - Occurrences are replaced from left to right and do not overlap. A replacement is not searched.
/// - An empty pattern does not occur.
/// - The time is linear in the total length of the arguments and the result.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
extern "C++" {
/// Replaces every occurrence of @p pattern in @p text.
///
/// @param text         text
/// @param pattern      text to search for
/// @param replacement  text that replaces each occurrence
/// @return             text with the replacements
/// @throws std::bad_alloc
/// @b Example: `Replace(L"a,b,c", std::wstring(L","), std::wstring(L", ")) == L"a, b, c"`
QUVARDBS1C_API std::wstring Replace(std::wstring text, std::wstring pattern,
                                    std::wstring replacement);

/// Replaces every occurrence of a null-terminated pattern in @p text.
///
/// @param text         text
/// @param pattern      text to search for, null-terminated; not a null pointer
/// @param replacement  text that replaces each occurrence, null-terminated; not a null pointer
/// @return             text with the replacements
/// @throws std::bad_alloc
/// @b Example: `Replace(L"aab", L"ab", L"b") == L"ab"`
QUVARDBS1C_API std::wstring Replace(std::wstring text, const wchar_t* pattern,
                                    const wchar_t* replacement);
}
#endif

/// Replaces every occurrence of @p pattern in @p text.
///
/// - If @p pattern and @p replacement are one code unit each, **the code units of `text` itself are
///   replaced too**, even if the call then throws. @p text must not be in use on another thread. No other
///   routine modifies an argument.
/// - If @p text or @p pattern is null, **the result is `text` itself**, not a copy. Release it only once.
///
/// @param text         text
/// @param pattern      text to search for; empty: nothing is replaced
/// @param replacement  text that replaces each occurrence; null or empty: occurrences are removed
/// @return             new host string, or @p text itself
/// @throws std::bad_alloc
/// @b Example: `VB_Replace(B(u"a-b-c"), B(u"-"), B(u"--")) == B(u"a--b--c")`
QUVARDBS1C_API BSTR VB_Replace(BSTR text, BSTR pattern, BSTR replacement);

/// Replaces every occurrence of @p pattern1, then in that result every occurrence of @p pattern2.
///
/// The time is also linear in the length of the intermediate text, which can be |text| * |replacement1|
/// even if the result is short. It is not in memory as a whole.
///
/// @param text          text
/// @param pattern1      text to search for first; null or empty: nothing is replaced
/// @param replacement1  text that replaces each @p pattern1; null or empty: occurrences are removed
/// @param pattern2      text to search for next; null or empty: nothing is replaced
/// @param replacement2  text that replaces each @p pattern2; null or empty: occurrences are removed
/// @return              new host string; text with the replacements
/// @throws std::bad_alloc
/// @b Example: `VB_Replace2(B(u"ab"), B(u"a"), B(u"b"), B(u"b"), B(u"c")) == B(u"cc")`
QUVARDBS1C_API BSTR VB_Replace2(BSTR text, BSTR pattern1, BSTR replacement1, BSTR pattern2,
                                BSTR replacement2);

/// @}
/// @defgroup adjective_noun Phrases of an adjective and a noun (phrases/AdjectiveNoun, FirstLetter)
///
/// Word order, blanks and letter case by language.
///
/// | Code | Language | Code | Language |
/// |------|----------|------|----------|
/// | "ES" | Spanish  | "US" | English  |
/// | "FR" | French   | "DE" | German   |
/// | "IT" | Italian  | "JP" | Japanese |
/// | "PT" | Portuguese | "CS" | Czech  |
/// | "PL" | Polish   | "CN" | Chinese  |
///
/// A code is two capital letters. Any other code, "us" and "USA" included, is unknown: the phrase is then
/// empty, and LowerFirst() converts the letter.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// Composes an adjective and a noun in the word order of a language.
///
/// | Language code      | Phrase                                                     |
/// |--------------------|------------------------------------------------------------|
/// | ES, FR, IT, PT, PL | noun, separator, adjective                                 |
/// | US                 | adjective, blank, noun with its first letter in lower case |
/// | DE                 | adjective, blank, noun                                     |
/// | JP, CS, CN         | adjective, separator, noun                                 |
/// | any other code     | empty                                                      |
///
/// Letters are converted as by LowerFirst() and UpperFirst().
///
/// @param adjective       adjective
/// @param noun            noun
/// @param language        language code
/// @param upperAdjective  if set, converts the first letter of the adjective to upper case (US, DE)
/// @param lowerResult     if set, converts the first letter of the phrase to lower case (US, ES, FR, IT,
///                        PT, PL)
/// @param noBlank         if set, the separator is empty; otherwise it is one blank
/// @return                phrase; empty for an unknown language code
/// @throws std::bad_alloc
/// @b Example: `LocalAN(L"linear", L"Model", L"US", -1, 0, 0) == L"Linear model"`
QUVARDBS1C_API std::wstring LocalAN(std::wstring adjective, std::wstring noun,
                                    std::wstring language, HostBool upperAdjective,
                                    HostBool lowerResult, HostBool noBlank);

/// Converts the first letter of @p text to lower case, unless @p language is "JP" or "DE".
///
/// Every other code converts the letter, also an unknown or empty one. Only the first code unit can
/// change, as in StrLCase().
///
/// @param text      text
/// @param language  language code
/// @param forceDE   if set, "DE" converts the letter too
/// @return          text of the same length
/// @throws std::bad_alloc
/// @b Example: `LowerFirst(L"Model", L"FR", 0) == L"model"`
QUVARDBS1C_API std::wstring LowerFirst(std::wstring text, std::wstring language, HostBool forceDE);

/// Converts the first letter of @p text to upper case under the locale of the process.
///
/// @param text  text
/// @return      text of the same length
/// @throws std::bad_alloc
/// @b Example: `UpperFirst(L"linear") == L"Linear"`
QUVARDBS1C_API std::wstring UpperFirst(std::wstring text);
#endif

/// Composes an adjective and a noun in the word order of a language.
///
/// Same as VB_LocalAN2() with @p upperAdjective True and the other flags False.
///
/// @param adjective  adjective
/// @param noun       noun
/// @param language   language code
/// @return           new host string; empty for an unknown language code
/// @throws std::bad_alloc
/// @b Example: `VB_LocalAN(B(u"linear"), B(u"Model"), B(u"ES")) == B(u"Model linear")`
QUVARDBS1C_API BSTR VB_LocalAN(BSTR adjective, BSTR noun, BSTR language);

/// Composes an adjective and a noun in the word order of a language. Host form of LocalAN().
///
/// @param adjective       adjective
/// @param noun            noun
/// @param language        language code
/// @param upperAdjective  if set, converts the first letter of the adjective to upper case (US, DE)
/// @param lowerResult     if set, converts the first letter of the phrase to lower case (US, ES, FR, IT,
///                        PT, PL)
/// @param noBlank         if set, there is no blank between the words (except US, DE)
/// @return                new host string; empty for an unknown language code
/// @throws std::bad_alloc
/// @b Example: `VB_LocalAN2(B(u"linear"), B(u"Model"), B(u"JP"), 0, 0, -1) == B(u"linearModel")`
QUVARDBS1C_API BSTR VB_LocalAN2(BSTR adjective, BSTR noun, BSTR language, HostBool upperAdjective,
                                HostBool lowerResult, HostBool noBlank);

/// Converts the first letter of @p text to lower case, unless @p language is "JP" or "DE". Host form of
/// LowerFirst().
///
/// @param text      text
/// @param language  language code
/// @param forceDE   if set, "DE" converts the letter too
/// @return          new host string
/// @throws std::bad_alloc
/// @b Example: `VB_LowerFirst(B(u"Model"), B(u"DE"), 0) == B(u"Model")`
QUVARDBS1C_API BSTR VB_LowerFirst(BSTR text, BSTR language, HostBool forceDE);

/// Converts the first letter of @p text to upper case under the locale of the process. Host form of
/// UpperFirst().
///
/// @param text  text
/// @return      new host string
/// @throws std::bad_alloc
/// @b Example: `VB_UpperFirst(B(u"linear")) == B(u"Linear")`
QUVARDBS1C_API BSTR VB_UpperFirst(BSTR text);

/// @}
/// @defgroup wrapping Wrapping and inflection (phrases/Wrapping, Inflection)
///
/// Blanks or brackets around a text, and the singular or plural of a word.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// Puts a blank before and after a text.
///
/// @param text  text
/// @return      text with two more code units
/// @throws std::bad_alloc
/// @b Example: `SpStrSp(L"and") == L" and "`
QUVARDBS1C_API std::wstring SpStrSp(std::wstring text);

/// Puts a text in parentheses.
///
/// @param text  text
/// @return      text with two more code units
/// @throws std::bad_alloc
/// @b Example: `PStrP(L"units") == L"(units)"`
QUVARDBS1C_API std::wstring PStrP(std::wstring text);

/// Chooses the singular or plural of a word.
///
/// @param singular  text for a count below 2, also 0 and negative ones
/// @param plural    text for any other count
/// @param count     count
/// @return          one of the texts
/// @throws std::bad_alloc
/// @b Example: `SingPlural(L"case", L"cases", 2) == L"cases"`
QUVARDBS1C_API std::wstring SingPlural(std::wstring singular, std::wstring plural, int32_t count);
#endif

/// Puts a blank before and after a text. Host form of SpStrSp().
///
/// @param text  text
/// @return      new host string
/// @throws std::bad_alloc
/// @b Example: `VB_SpStrSp(B(u"and")) == B(u" and ")`
QUVARDBS1C_API BSTR VB_SpStrSp(BSTR text);

/// Puts a text in parentheses. Host form of PStrP().
///
/// @param text  text
/// @return      new host string
/// @throws std::bad_alloc
/// @b Example: `VB_PStrP(B(u"units")) == B(u"(units)")`
QUVARDBS1C_API BSTR VB_PStrP(BSTR text);

/// Puts a text in square brackets.
///
/// @param text  text
/// @return      new host string; text with two more code units
/// @throws std::bad_alloc
/// @b Example: `VB_BStrB(B(u"1")) == B(u"[1]")`
QUVARDBS1C_API BSTR VB_BStrB(BSTR text);

/// Chooses the singular or plural of a word. Host form of SingPlural().
///
/// The other text is not read.
///
/// @param singular  text for a count below 2, also 0 and negative ones
/// @param plural    text for any other count
/// @param count     count
/// @return          new host string
/// @throws std::bad_alloc
/// @b Example: `VB_SingPlural(B(u"case"), nullptr, 0) == B(u"case")`
QUVARDBS1C_API BSTR VB_SingPlural(BSTR singular, BSTR plural, int32_t count);

/// @}
/// @defgroup markup Markup tokens (phrases/MarkupTokens)
///
/// Tokens that stand for three characters.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// Replaces each `<BR>` by a line feed, `<QM>` by a double quotation mark and `<CM>` by a comma.
///
/// @param text  text; tokens are in upper case
/// @return      text with the replacements
/// @throws std::bad_alloc
/// @b Example: `QUVARDHTMLProcessor(L"a<CM> b<BR>") == L"a, b\n"`
QUVARDBS1C_API std::wstring QUVARDHTMLProcessor(std::wstring text);
#endif

/// Replaces each `<BR>` by a line feed, `<QM>` by a double quotation mark and `<CM>` by a comma. Host
/// form of QUVARDHTMLProcessor().
///
/// @param text  text; tokens are in upper case
/// @return      new host string
/// @throws std::bad_alloc
/// @b Example: `VB_QUVARDHTMLProcessor(B(u"<QM>a<QM>")) == B(u"\"a\"")`
QUVARDBS1C_API BSTR VB_QUVARDHTMLProcessor(BSTR text);

/// @}
/// @defgroup patterns Number patterns (formats/NumberPatterns)
///
/// Patterns by which the host prints a number, in its notation:
///
/// | Piece      | Meaning                                                 |
/// |------------|---------------------------------------------------------|
/// | "0"        | a digit that is always printed                          |
/// | "#"        | a digit that is printed only if it is significant       |
/// | "."        | decimal point                                           |
/// | "E-", "E+" | scientific notation; the digits of the exponent follow  |
///
/// "E-" prints the sign of the exponent only if it is negative, "E+" always.
/// @{

#ifdef QUVARDBS1C_WIDE_ROUTINES
/// Returns the pattern with the given number of decimals.
///
/// @param decimals  number of decimals, limited by memory only; 0 or negative: the pattern is "0"
/// @return          "0", or "0." followed by @p decimals times "0"
/// @throws std::bad_alloc
/// @b Example: `DecimalFormat(2) == L"0.00"`
QUVARDBS1C_API std::wstring DecimalFormat(int32_t decimals);

/// Assigns one decimal pattern to all elements of an array.
///
/// @param formats         array of at least @p count strings
/// @param count           number of elements; below 1: nothing is assigned
/// @param digits          number of digits in the pattern, including the one before the point
/// @param digitsOverride  replaces @p digits, unless it is exactly -1
/// @throws std::bad_alloc
/// @b Example: `[] { std::wstring f[2]; SetFormat(f, 2, 4, -1); return f[1]; }() == L"0.000"`
QUVARDBS1C_API void SetFormat(std::wstring* formats, int32_t count, int32_t digits,
                              int32_t digitsOverride);

/// Returns the pattern that shows the decimals of a value, up to 19.
///
/// - The pattern is "0" if the value is within 1e-12 of an integer, otherwise "0." and 19 times "#".
/// - "E-#" follows unless value * 1e19 is within 1e-12 of an integer.
/// - Infinities and NaN count as integers.
///
/// @param value  value to be printed
/// @return       pattern
/// @throws std::bad_alloc
/// @b Example: `OutputFormat(3.0) == L"0"`
QUVARDBS1C_API std::wstring OutputFormat(double value);

/// Returns the pattern with the given number of decimals, on request in scientific notation if the value
/// is large, or small for these decimals.
///
/// - The mantissa is "0" if the value is integral, otherwise that of DecimalFormat().
/// - x is integral here if x truncated toward zero fits 32 bits and differs from x by less than 1e-12.
///   Infinities and NaN are not integral.
/// - Let e = log10(abs(value)), truncated toward zero. If e < -decimals, the exponent part is "E-0", or
///   "E-00" if also e <= -10. Otherwise, if e >= 5, it is "E+0", or "E+00" if also e >= 10.
/// - There is no exponent part for an infinity, for NaN, or if abs(value) <= 1e-12.
///
/// @param value         value to be printed
/// @param decimals      number of decimals, and limit for small values
/// @param useExponent   if set, the pattern may have an exponent part
/// @param keepDecimals  if not set, the mantissa is "0" in a pattern with an exponent part if
///                      pow(10, -e) * value is integral
/// @return              mantissa and exponent part
/// @throws std::bad_alloc
/// @b Example: `OptimalFormat(123456.5, 2, -1, -1) == L"0.00E+0"`
QUVARDBS1C_API std::wstring OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                                          HostBool keepDecimals);
#endif

/// Returns the pattern with the given number of decimals. Host form of DecimalFormat().
///
/// @param decimals  number of decimals, limited by memory only; 0 or negative: the pattern is "0"
/// @return          new host string
/// @throws std::bad_alloc
/// @b Example: `Cpp_DecimalFormat(2) == B(u"0.00")`
QUVARDBS1C_API BSTR Cpp_DecimalFormat(int32_t decimals);

/// Writes a new host string with one decimal pattern to each element of an array. Host form of
/// SetFormat().
///
/// - Previous handles in the array are neither read nor released.
/// - If the call throws, the elements before the failure have their new strings. Set all elements to
///   null before the call to be able to release these.
///
/// @param formats         array of at least @p count handles
/// @param count           number of elements; below 1: nothing is written
/// @param digits          number of digits in the pattern, including the one before the point
/// @param digitsOverride  replaces @p digits, unless it is exactly -1
/// @throws std::bad_alloc
/// @b Example: `[] { BSTR f[1]; VB_SetFormat(f, 1, 4, 2); return f[0]; }() == B(u"0.0")`
QUVARDBS1C_API void VB_SetFormat(BSTR* formats, int32_t count, int32_t digits,
                                 int32_t digitsOverride);

/// Returns the pattern that shows the decimals of a value, up to 19. Host form of OutputFormat().
///
/// @param value  value to be printed
/// @return       new host string
/// @throws std::bad_alloc
/// @b Example: `VB_OutputFormat(0.5) == B(u"0.###################")`
QUVARDBS1C_API BSTR VB_OutputFormat(double value);

/// Returns the pattern with the given number of decimals, on request in scientific notation if the value
/// is large, or small for these decimals. Host form of OptimalFormat().
///
/// @param value         value to be printed
/// @param decimals      number of decimals, and limit for small values
/// @param useExponent   if set, the pattern may have an exponent part
/// @param keepDecimals  if not set, the mantissa is "0" in a pattern with an exponent part if
///                      pow(10, -e) * value is integral
/// @return              new host string
/// @throws std::bad_alloc
/// @b Example: `VB_OptimalFormat(2.5, 3, 0, 0) == B(u"0.000")`
QUVARDBS1C_API BSTR VB_OptimalFormat(double value, int32_t decimals, HostBool useExponent,
                                     HostBool keepDecimals);

/// @}
/// @defgroup elementary Elementary functions with guards (numerics/Elementary)
///
/// A constant, and functions of one or two doubles. sqr() and expm1x() return a fixed value for an argument
/// that they reject.
/// @{

/// Returns 3.14159265358979, which approximates pi.
///
/// @return 3.14159265358979, equal to 2 * `ASin(1)`; 7 units in the last place below the double closest
///         to pi
/// @b Example: `Pi() == 3.14159265358979`
QUVARDBS1C_API double Pi(void) QUVARDBS1C_NOEXCEPT;

/// Returns the square root (not the square) of @p x, correctly rounded.
///
/// @param x  number
/// @return   -1.79769313486231e+308 if @p x < 0; -0.0 for -0.0
/// @b Example: `sqr(4) == 2`
QUVARDBS1C_API double sqr(double x) QUVARDBS1C_NOEXCEPT;

/// Returns the decimal logarithm of @p x, computed by the platform's `log10`.
///
/// @param x  number
/// @return   -infinity for 0; NaN if @p x < 0
/// @b Example: `Log10(1000) == 3`
QUVARDBS1C_API double Log10(double x) QUVARDBS1C_NOEXCEPT;

/// Returns @p base to the power of @p exponent, computed by the platform's `pow`.
///
/// @param base      number
/// @param exponent  number
/// @return          NaN if @p base < 0 and @p exponent is finite and not integral
/// @b Example: `spow(2, 10) == 1024`
QUVARDBS1C_API double spow(double base, double exponent) QUVARDBS1C_NOEXCEPT;

/// Returns exp(x) - 1.
///
/// Method: 0.5 * x * x + x if abs(x) <= 1e-6. Otherwise exp(x) - 1.0, which loses digits to cancellation
/// near 0.
///
/// Accuracy: by search, relative error at most 1.3e-16 for abs(x) up to 1e-8, growing to 1.7e-13 at
/// 1e-6; then 1.7e-16 / abs(x) up to 1; 1.1 units in the last place for abs(x) from 1 to 709.
///
/// @param x  number
/// @return   1.79769313486231e+308 if @p x > 709
/// @b Example: `expm1x(1e-6) == 1.0000004999999999e-06`
QUVARDBS1C_API double expm1x(double x) QUVARDBS1C_NOEXCEPT;

/// Returns the arcsine of @p x in radians.
///
/// Method: atan(x / sqr((1 - x) * (x + 1))).
///
/// Outside -1 to 1 no error is reported: sqr() rejects its argument, and the result is
/// atan(x / -1.79769313486231e+308). Its sign is opposite to that of @p x. Its magnitude is at most 0.006
/// for abs(x) up to 1e306, and pi / 2 for infinities.
///
/// @param x  number from -1 to 1
/// @return   1.570796326794895 at 1 and -1.570796326794895 at -1; 0.0 for both zeros
/// @b Example: `ASin(1) == 1.570796326794895`
QUVARDBS1C_API double ASin(double x) QUVARDBS1C_NOEXCEPT;

/// Returns @p a if a < b, otherwise @p b.
///
/// @param a,b  number
/// @return     @p b if the arguments are equal or one is NaN
/// @b Example: `Min(2, 1) == 1`
QUVARDBS1C_API double Min(double a, double b) QUVARDBS1C_NOEXCEPT;

/// Returns @p a if a > b, otherwise @p b.
///
/// @param a,b  number
/// @return     @p b if the arguments are equal or one is NaN
/// @b Example: `Max(2, 1) == 2`
QUVARDBS1C_API double Max(double a, double b) QUVARDBS1C_NOEXCEPT;

/// Returns the sign of @p x as a number.
///
/// @param x  number
/// @return   1, -1, or 0.0 for both zeros; NaN for an infinity or NaN
/// @b Example: `FSgn(-0.25) == -1`
QUVARDBS1C_API double FSgn(double x) QUVARDBS1C_NOEXCEPT;

/// Returns the magnitude of @p a with the sign of @p b.
///
/// @param a  number
/// @param b  number; -0.0 and NaN count as positive
/// @return   -abs(a) if b < 0, otherwise abs(a)
/// @b Example: `FSign(3, -1) == -3`
QUVARDBS1C_API double FSign(double a, double b) QUVARDBS1C_NOEXCEPT;

/// Returns ln(exp(a) + exp(b)), also if the exponentials overflow or underflow.
///
/// Method: log(exp(-abs(a - b)) + 1.0) + max(a, b).
///
/// Accuracy: by search, absolute error at most 3e-16 times the larger of 1 and abs(max(a, b)), for
/// arguments from -1e6 to 1e6. The relative error is unbounded where the result is close to 0.
///
/// @param a,b  number
/// @return     NaN for two infinities of the same sign
/// @b Example: `LogExpAPlusExpB(1000, 1000) == 1000.6931471805599`
QUVARDBS1C_API double LogExpAPlusExpB(double a, double b) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup swaps Swaps (numerics/Swaps)
///
/// Swaps of the values of two variables. No pointer may be null.
/// @{

/// Swaps two integers.
///
/// @param a,b  integer to swap; may be the same variable
/// @b Example: `(i = 1, j = 2, SwapLng(&i, &j), i) == 2`
QUVARDBS1C_API void SwapLng(int32_t* a, int32_t* b) QUVARDBS1C_NOEXCEPT;

/// Swaps two doubles without changing their bits.
///
/// @param a,b  double to swap; may be the same variable
/// @b Example: `(x = 1, y = 2, SwapDbl(&x, &y), x) == 2`
QUVARDBS1C_API void SwapDbl(double* a, double* b) QUVARDBS1C_NOEXCEPT;

/// Swaps two handles of host strings. The texts are neither read nor copied.
///
/// @param a,b  handle to swap; may be the same variable
/// @b Example: `[] { B t(u"t"); BSTR a = t; BSTR b = nullptr; SwapStr(&a, &b); return !a && b; }()`
QUVARDBS1C_API void SwapStr(BSTR* a, BSTR* b) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup gamma Gamma function (numerics/Gamma)
///
/// The logarithm of the gamma function, which itself overflows above 171.6.
/// @{

/// Returns the natural logarithm of the gamma function.
///
/// Method: Lanczos approximation with g = 7 and nine coefficients a[0] to a[8] (C. Lanczos, 1964), where
/// log is the natural logarithm. 0.0 if x = 1; otherwise, in this order of evaluation:
///
/// | Step           | Formula                                         |
/// |----------------|-------------------------------------------------|
/// | start          | d = 7 + x, s = 0                                |
/// | for k = 8 to 1 | s = s + a[k] / d, then d = d - 1                |
/// | a[0]           | s = s + a[0]                                    |
/// | u              | u = (log(s) + 0.9189385332046727) - (6.5 + x)   |
/// | result         | log(6.5 + x) * (x - 0.5) + u                    |
///
/// | k | a[k]               | k | a[k]                | k | a[k]                  |
/// |---|--------------------|---|---------------------|---|-----------------------|
/// | 0 | 0.9999999999995183 | 3 | 771.3234287757674   | 6 | -0.1385710331296526   |
/// | 1 | 676.5203681218835  | 4 | -176.6150291498386  | 7 | 9.934937113930748e-06 |
/// | 2 | -1259.139216722289 | 5 | 12.50734324009056   | 8 | 1.659470187408462e-07 |
///
/// Accuracy: by search, relative error at most 1.2e-14 for x from 0.01 to 0.5, 8e-15 from 3 to 100
/// and 1e-15 from 100 to 2.5e305. Absolute error at most 5.5e-15 from 0.5 to 3, where the zeros at 1 and 2
/// are. Below 0.01 the rounding of 7 + x dominates: absolute error at most 5.5e-16 / x from 1e-12
/// to 0.01, and 0.7 from 4.5e-16 to 1e-12.
///
/// The first row that applies:
///
/// | x                                                  | Result                              |
/// |----------------------------------------------------|-------------------------------------|
/// | below -6.5                                         | -1.79769313486231e+308              |
/// | -6.5, -6, -4; within 4.4e-16 of -2 and of 0        | +infinity                           |
/// | from -6.5 to about -6.19                           | finite but meaningless              |
/// | from there to -6, from -5 to -4, from -3 to -2     | NaN                                 |
/// | from -1 (and the two doubles before it) to 0       | NaN                                 |
/// | others from -6 to -1                               | ln(abs(gamma(x))) to some digits    |
/// | from about 2.56e305                                | +infinity                           |
/// | +infinity                                          | NaN                                 |
///
/// @param x  positive number
/// @return   -1.79769313486231e+308 if @p x < -6.5; +infinity from about 2.56e305; NaN for +infinity
/// @b Example: `GammaLn(0.5) > 0.57236494292 && GammaLn(0.5) < 0.57236494293`
QUVARDBS1C_API double GammaLn(double x) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup combinatorics Combinatorics (numerics/Factorials, BinomialCoefficients, BinomialSums)
///
/// Factorials, binomial coefficients and their sums.
/// @{

/// Returns the factorial of @p n.
///
/// Method: product of 2, 3, ..., n in this order, read from a table.
///
/// Accuracy: over all, exact up to 22; within 6 units in the last place up to 170.
///
/// @param n  integer
/// @return   1 if @p n < 2; +infinity if @p n > 170
/// @b Example: `Fact(5) == 120`
QUVARDBS1C_API double Fact(int32_t n) QUVARDBS1C_NOEXCEPT;

/// Returns the binomial coefficient: the number of ways to choose @p k of @p n.
///
/// Method: the first row that applies. trunc(v) is v truncated toward zero to a 32-bit integer, or
/// -2147483648 if it does not fit or v is NaN.
///
/// | Condition        | Result                                              |
/// |------------------|-----------------------------------------------------|
/// | k > n            | 0                                                   |
/// | k = n or k = 0   | 1                                                   |
/// | trunc(n - k) > k | product with m = trunc(k), q = n - m                |
/// | otherwise        | product with m = trunc(n - k), q = k                |
///
/// The product starts with r = 1 + q. For i = 2, 3, ..., m, r becomes ((q + i) * r) / i, evaluated as
/// written. The result is the last r. If n and k are integers, m is the smaller of k and n - k, and each r is
/// itself a binomial coefficient.
///
/// - Negative and fractional arguments are not rejected; the rules apply as they are.
/// - If a product (q + i) * r overflows, the result is +infinity, even if the coefficient is finite.
/// - If n - k >= 2147483648 and k is neither 0 nor below -2147483648, the result is 1 + k.
/// - At most 515 values of i are computed: as q >= m, each doubles r at least, except for rounding, until it
///   is infinite.
///
/// Accuracy: over all integers n up to 1020 and k from 0 to n, exact as long as all products are at
/// most 2^53, otherwise within 38 units in the last place.
///
/// @param n  number of elements to choose from
/// @param k  number of elements to choose
/// @return   binomial coefficient; 0 if @p k > @p n; +infinity on overflow
/// @b Example: `Cnk(49, 6) == 13983816`
QUVARDBS1C_API double Cnk(double n, double k) QUVARDBS1C_NOEXCEPT;

/// Returns the sum of Cnk(n, k) for all integers k with @p from <= k <= @p to.
///
/// - The result has the same bits as if each term were added in the order of rising k.
/// - Terms that grow or fall by 1 from k to k + 1 are added in closed form, so that billions of them take
///   little time. A call takes longest for a fractional @p n near 1020: about a millisecond.
/// - Terms with k > @p n are 0.
///
/// @param n     first argument of Cnk()
/// @param from  first k, truncated toward zero; NaN or outside the 32-bit range: -2147483648
/// @param to    upper limit of k; above 2147483647: 2147483647
/// @return      0 if there is no such k or @p to is NaN
/// @b Example: `SumCnk(5, 2, 3) == 20`
QUVARDBS1C_API double SumCnk(double n, double from, double to) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup divisors Integers and divisors (numerics/Integers, Remainders, Divisors)
///
/// Remainders, greatest common divisors (GCD), and tests whether a number is integral or even.
///
/// A double that is converted to a 32-bit integer is truncated toward zero. NaN, and a value that does
/// not fit, become -2147483648.
/// @{

/// Returns the floored remainder of @p a by @p b, which has the sign of @p b.
///
/// @param a  dividend
/// @param b  divisor
/// @return   a - floor(a / b) * b; @p a if @p b is 0
/// @b Example: `Mod(-7, 3) == 2`
QUVARDBS1C_API int32_t Mod(int32_t a, int32_t b) QUVARDBS1C_NOEXCEPT;

/// Returns the floored remainder a - floor(a / b) * b of doubles.
///
/// The quotient is rounded. The result may therefore miss the range from 0 to @p b, by at most two units in
/// the last place of @p a.
///
/// @param a  dividend
/// @param b  divisor
/// @return   NaN if @p b is 0 or an argument is infinite; an infinity with the sign opposite to @p a if
///           a / b or floor(a / b) * b overflows; @p a if a / b underflows to 0
/// @b Example: `ModDbl(-7.5, 2) == 0.5`
QUVARDBS1C_API double ModDbl(double a, double b) QUVARDBS1C_NOEXCEPT;

/// Returns the greatest common divisor (GCD) of two integers.
///
/// @param a,b  integer; the GCD of an integer and 0 is the magnitude of the integer
/// @return     GCD, not negative; but -2147483648 for 2147483648, which does not fit 32 bits
/// @b Example: `LCD(-12, 18) == 6`
QUVARDBS1C_API int32_t LCD(int32_t a, int32_t b) QUVARDBS1C_NOEXCEPT;

#ifdef __cplusplus
extern "C++" {
/// Returns the greatest common divisor (GCD) of two integers held in doubles.
///
/// The arguments are converted to 32-bit integers A and B. But the result is abs(a) if @p b is 0, and
/// abs(b) if A is a multiple of B: `LCD2(6, 2.5)` is 2.5, `LCD2(7, 2.5)` is 1.
///
/// @param a,b  integer below 2147483648 in magnitude
/// @return     GCD
/// @b Example: `LCD2(12, 18) == 6`
QUVARDBS1C_API double LCD2(double a, double b) QUVARDBS1C_NOEXCEPT;
}
#endif

/// Returns the greatest common divisor (GCD) of two decimal numbers, such as 0.25 for 0.5 and 0.75.
///
/// Method: p is the smallest number of decimal places with which a * 10^p and b * 10^p count as integers.
/// The result is pow(10, -p) * LCD2(A, B), where A and B are these integers.
///
/// - To find p, a number is multiplied by 10 repeatedly. It counts as an integer if its fraction is at
///   most 1e-12, or if it differs from the nearest integer by at most 2^-48 of itself, which is the error
///   of decimals and their products.
/// - A is a * pow(10, p), rounded to nearest if it is that close to an integer, otherwise truncated. B
///   likewise.
/// - The result is rounded: `LCDDbl(1.2, 0.3)` is 0.30000000000000004.
///
/// @param a,b  decimal number; if A or B reaches 2147483648 in magnitude, the result is wrong
/// @return     GCD
/// @b Example: `LCDDbl(0.29, 0.29) == 0.29`
QUVARDBS1C_API double LCDDbl(double a, double b) QUVARDBS1C_NOEXCEPT;

/// Tests whether @p x is within 1e-12 of an integer of any size.
///
/// @param x  number
/// @return   -1 if it is, also for infinities and NaN; otherwise 0
/// @b Example: `IsLong(3.0000000000009) == -1`
QUVARDBS1C_API HostBool IsLong(double x) QUVARDBS1C_NOEXCEPT;

/// Tests whether @p x is within @p tol of an integer of any size.
///
/// @param x    number
/// @param tol  largest distance from the nearest integer
/// @return     -1 if it is, also if an argument is NaN; otherwise 0
/// @b Example: `IsLongP(2.75, 0.25) == -1`
QUVARDBS1C_API HostBool IsLongP(double x, double tol) QUVARDBS1C_NOEXCEPT;

/// Tests whether @p x is even.
///
/// Method: h - floor(h) < 2^-52 with h = x * 0.5. A number just below an even one is therefore not even,
/// except the negative double closest to 0, whose h is rounded to 0.
///
/// @param x  number
/// @return   -1 if it is; otherwise, and for infinities and NaN, 0
/// @b Example: `IsEven(-2.0) == -1`
QUVARDBS1C_API HostBool IsEven(double x) QUVARDBS1C_NOEXCEPT;

/// Tests whether @p n is even.
///
/// @param n  integer
/// @return   -1 if it is, otherwise 0
/// @b Example: `IsEvenLng(3) == 0`
QUVARDBS1C_API HostBool IsEvenLng(int32_t n) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup rounding Rounding to integers and halves (numerics/Rounding)
///
/// Rounding to multiples of 1/2 if `half` is set, otherwise to integers.
///
/// | v, half set | Int05 | Int05c | Int05LU, lower True | Int05LU, lower not True |
/// |-------------|-------|--------|---------------------|-------------------------|
/// | 2.1         | 2.5   | 2.0    | 2.0                 | 2.5                     |
/// | 2.5         | 3.0   | 2.5    | 2.5                 | 2.5                     |
/// | 2.6         | 3.0   | 2.5    | 2.5                 | 3.0                     |
/// | -2.1        | -2.5  | -2.0   | -2.5                | -2.0                    |
///
/// In the methods, m = abs(v). A result for m has the sign of v.
/// @{

/// Rounds away from zero to an integer or a multiple of 1/2.
///
/// Method: n = floor(m + 1) and d = (trunc(m + 1) - m) - 0.5, where trunc converts to a 32-bit integer as in
/// Cnk(). The first row that applies:
///
/// | Condition    | Result for m |
/// |--------------|--------------|
/// | m integral   | m            |
/// | half not set | n            |
/// | d < 1e-12    | n            |
/// | otherwise    | n - 0.5      |
///
/// - With @p half, x.5 itself goes to the next integer, and so does a value less than 1e-12 below it.
/// - m + 1 is rounded. The last double below a power of two from 1 to 2^51 therefore goes one step too far.
/// - @p half has no effect from m = 2147483647 on, where trunc(m + 1) does not fit.
///
/// @param v     number
/// @param half  if set, rounds to multiples of 1/2; otherwise to integers
/// @return      +0.0 for both zeros; NaN for an infinity or NaN
/// @b Example: `Int05(2.1, -1) == 2.5`
QUVARDBS1C_API double Int05(double v, HostBool half) QUVARDBS1C_NOEXCEPT;

/// Rounds to the nearest integer or multiple of 1/2.
///
/// Method: n = floor(0.499999999999999 + m) and t = m - n. The first row that applies:
///
/// | Condition             | Result for m                       |
/// |-----------------------|------------------------------------|
/// | m integral            | m                                  |
/// | half not set          | n                                  |
/// | abs(t) - 0.25 < 1e-12 | n                                  |
/// | otherwise             | n + 0.5 if t > 0, n - 0.5 if t < 0 |
///
/// - Ties between integers go toward zero up to 15.5, and away from zero from 16.5 on. The first doubles
///   above a tie go toward zero too: eight at 0.5, three at 1.5, one each at 2.5 and 3.5.
/// - Ties of @p half (x.25, x.75) go to the integer, and so do values less than 1e-12 beyond them.
///
/// @param v     number
/// @param half  if set, rounds to multiples of 1/2; otherwise to integers
/// @return      +0.0 for both zeros; -0.0 for a negative value rounded to 0; NaN for an infinity or NaN
/// @b Example: `Int05c(2.4, -1) == 2.5`
QUVARDBS1C_API double Int05c(double v, HostBool half) QUVARDBS1C_NOEXCEPT;

/// Rounds down or up to an integer or a multiple of 1/2.
///
/// Method: f = floor(v) and g = 0.5 + f. The first row that applies:
///
/// | Condition                    | Result       |
/// |------------------------------|--------------|
/// | v = f                        | v            |
/// | half set, lower True, g <= v | g            |
/// | lower True                   | f            |
/// | half set, g >= v             | g            |
/// | otherwise                    | floor(1 + v) |
///
/// - Multiples stay; there is no tolerance.
/// - 1 + v is rounded. The result is 1 from -2^-54 to the last double below 0, and the last double below a
///   power of two from 1 to 2^51 goes one integer too far.
///
/// @param v      number
/// @param half   if set, rounds to multiples of 1/2; otherwise to integers
/// @param lower  if True, rounds down; otherwise up
/// @return       infinities for themselves; NaN for NaN
/// @warning The `true` of C and C++ is 1, which is not True: as @p lower it rounds up. Pass
///          #QUVARDBS1C_TRUE.
/// @b Example: `Int05LU(-2.1, -1, -1) == -2.5`
QUVARDBS1C_API double Int05LU(double v, HostBool half, HostBool lower) QUVARDBS1C_NOEXCEPT;

/// @}
/// @defgroup interpolation Interpolation (numerics/Interpolation)
///
/// The straight line through two points and the parabola through three.
///
/// - If `forward` is True, y is computed from x; otherwise x from y (the inverse).
/// - Points may be in any order.
/// - No pointer may be null, even if it is not used.
/// - NaN compares unequal and propagates.
/// @{

/// Computes a point of the straight line y = a * x + b through (x1, y1) and (x2, y2).
///
/// Method: a = (y2 - y1) / (x2 - x1) and b = (x2 * y1 - x1 * y2) / (x2 - x1). The first row that applies:
///
/// | Case    | Status | x                   | y                       |
/// |---------|--------|---------------------|-------------------------|
/// | x1 = x2 | -1     | becomes x1          | becomes (y1 + y2) * 0.5 |
/// | forward | 0      | read                | becomes b + a * x       |
/// | a = 0   | -1     | unchanged           | unchanged               |
/// | inverse | 0      | becomes (y - b) / a | read                    |
///
/// Accuracy: by search, with x1, x2, y1, y2 and the given x or y from -1 to 1, and x1 and x2 at least
/// 0.1 apart, absolute error at most 1.6e-14 forward; with y1 and y2 at least 0.1 apart too,
/// 1.6e-14 inverse. The errors scale with the data. They are larger if the distances are small against the
/// distance from the origin.
///
/// @param x1,x2    abscissa of a given point
/// @param y1,y2    ordinate of a given point
/// @param x        abscissa of the computed point: read if forward, otherwise written
/// @param y        ordinate of the computed point: written if forward, otherwise read
/// @param forward  if True, computes @p y from @p x; otherwise @p x from @p y
/// @return         status: 0 if a point was computed; -1 if x1 = x2, or in the inverse if a = 0
/// @warning The `true` of C and C++ is 1, which is not True: as @p forward it computes the inverse. Pass
///          #QUVARDBS1C_TRUE.
/// @b Example: `(x = 2, LinearInterpol(1, 3, 2, 6, &x, &y, -1), y) == 4`
QUVARDBS1C_API int32_t LinearInterpol(double x1, double x2, double y1, double y2, double* x,
                                      double* y, HostBool forward) QUVARDBS1C_NOEXCEPT;

/// Computes a point of the parabola y = a * x^2 + b * x + c through (x1, y1), (x2, y2) and (x3, y3).
///
/// Method: the coefficients c, b, a are computed in this order, each as written. i, j, k stand for the
/// numbers of points. A value is usable if it is neither 0 nor NaN. Points at 0, or so close to 0 that a
/// product underflows, are therefore avoided if other points can be used.
///
/// | Symbol     | Formula                                                                  |
/// |------------|--------------------------------------------------------------------------|
/// | D(i, j, k) | (xi + xj) * xk - (xi + xk) * xj                                          |
/// | P(i, j, k) | (xj * xj * yi - xi * xi * yj) * ((xk - xi) * xk)                         |
/// | Q(i, j, k) | (xi * xi * yk - xk * xk * yi) * ((xj - xi) * xj)                         |
/// | C(i, j, k) | (Q + P) * ((1 / D) / ((xj - xi) * (xk - xi)))                            |
/// | c          | C(1, 2, 3) if D(1, 2, 3) is usable, else C(2, 3, 1) if D(2, 3, 1) is, else C(3, 1, 2) |
/// | B(i, j)    | ((xj * xj * yi + (xi * xi - xj * xj) * c) - xi * xi * yj) / ((xi * xj) * (xj - xi)) |
/// | b          | B(1, 2) if x1 * x2 is usable, else B(2, 3) if x2 * x3 is, else B(3, 1)   |
/// | a          | ((y1 - x1 * b) - c) / (x1 * x1), or with point 2 if x1 * x1 is 0         |
/// | r          | sqr((c - y) * (-4 * a) + b * b)                                          |
/// | lower root | ((-b - r) * 0.5) / a if a > 0, otherwise ((r - b) * 0.5) / a             |
/// | upper root | ((r - b) * 0.5) / a if a > 0, otherwise ((-b - r) * 0.5) / a             |
///
/// The first row that applies:
///
/// | Case                | Status | x           | xSecond     | y         |
/// |---------------------|--------|-------------|-------------|-----------|
/// | two abscissas equal | -1     | unchanged   | unchanged   | unchanged |
/// | forward             | 0      | read        | unchanged   | becomes c + (b + a * x) * x |
/// | a = 0 and b = 0     | -1     | unchanged   | unchanged   | unchanged |
/// | a = 0               | 0      | becomes (y - c) / b | unchanged | read |
/// | inverse             | 0      | becomes the lower root | becomes the upper root | read |
///
/// If the parabola does not reach y, sqr() rejects its negative argument. x then becomes
/// 8.98846567431155e+307 / abs(a), possibly +infinity, and xSecond its negative. Only in this case
/// x > xSecond. If y is close to the ordinate of the vertex, rounding decides.
///
/// Accuracy: by search, with x1 to y3 and the given x or y from -1 to 1, abscissas at least 0.1 apart and
/// 0.01 from 0, absolute error at most 2e-10 forward; with abs(a) at least 0.1 and a discriminant
/// b * b - 4 * a * (c - y) of at least 0.01, 3e-8 inverse. Abscissas closer together or to 0 increase it.
///
/// @param x1,x2,x3  abscissa of a given point
/// @param y1,y2,y3  ordinate of a given point
/// @param x         abscissa of the computed point: read if forward, otherwise written
/// @param xSecond   second abscissa with ordinate @p y, written if not forward and a is not 0
/// @param y         ordinate of the computed point: written if forward, otherwise read
/// @param forward   if True, computes @p y from @p x; otherwise @p x and @p xSecond from @p y
/// @return          status: 0 if computed; -1 if two abscissas are equal, or in the inverse if a = b = 0
/// @warning The `true` of C and C++ is 1, which is not True: as @p forward it computes the inverse. Pass
///          #QUVARDBS1C_TRUE.
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
