/// @file
/// Host strings: how they are made, read and released.
///
/// A host string (`BSTR`) is one pointer to the first unit of a run of 16-bit units that ends at
/// its first zero unit. The pointer is aligned to 2 bytes. Nothing before it is ever read, so any
/// zero-terminated run of 16-bit units may be given where a service takes a host string.
///
/// On x86 processors the services read texts of more than 7 units in blocks of 16 bytes, aligned to
/// 16 bytes. So up to 14 bytes after the terminating zero unit may be read. They are on the same page
/// of memory, and their values have no effect.
///
/// Units pass one for one. On the way in each 16-bit unit becomes one wide unit of the same value,
/// and no surrogate pair is folded, so positions and lengths mean the same on both sides. On the
/// way out a unit up to 0xFFFF, a surrogate included, goes out unchanged; a unit from 0x10000 to
/// 0x10FFFF becomes its surrogate pair; a unit above that (or negative) becomes U+FFFD.
///
/// Every service may be called on any number of threads at once. Those that allocate may throw
/// `std::bad_alloc` and nothing else; none of them leaks when it does. No service is
/// async-signal-safe: a call from a signal handler may overwrite the buffer that the interrupted
/// call is reading, or wait for ever inside the memory allocator.
#ifndef QUVARDCR1C_H
#define QUVARDCR1C_H

#include <stddef.h>

#include "QUVARDStandardLibrary.h"

/// Marks an exported service.
#define QUVARDCR1C_API __attribute__((visibility("default")))

#ifdef __cplusplus
/// A host string: one pointer to the first 16-bit unit of a zero-terminated run. Null is legal.
typedef char16_t* BSTR;
/// One unit of a host string.
typedef char16_t QUVARDUnit16;
extern "C" {
#else
#include <stdint.h>
typedef uint_least16_t* BSTR;
typedef uint_least16_t QUVARDUnit16;
#endif

/// @defgroup host_strings Host strings, in the sibling library (QUVARDCR1C)
///
/// How host strings are made, read and released.
///
/// Callers make them with SysAllocString16() and release them with releaseBSTR(). The other services
/// are what the routines of QUVARDBS1C call.
/// @{

/// A new host string with the units at @p units, which end at their first zero unit.
///
/// @param units  zero-terminated 16-bit units, aligned to 2 bytes; null gives a new empty string
/// @return       new host string, which the caller owns and gives to releaseBSTR()
/// @throws std::bad_alloc
QUVARDCR1C_API BSTR SysAllocString16(const QUVARDUnit16* units);

/// The number of units before the terminating zero unit. Does not throw.
///
/// @param units  zero-terminated 16-bit units, aligned to 2 bytes, not null
QUVARDCR1C_API size_t wcslen16(const QUVARDUnit16* units);

/// Releases a host string that a service or a host routine made; null is allowed. Does not throw.
QUVARDCR1C_API void releaseBSTR(BSTR handle);

/// Returns the code units of @p handle as wide code units, null-terminated.
///
/// A thread keeps its buffer: 1 KiB at first; for longer texts 4 bytes per code unit, rounded up to a
/// power of two; at most 4 MiB. A larger one is released when the thread's next text fits into 4 MiB. The
/// buffer of a thread that has ended is released when other threads get their first buffer or a new one.
///
/// @param handle  host string, not null
/// @return        buffer of the calling thread, valid until the thread's next call of CW162W32(); not
///                released by the caller
/// @throws std::bad_alloc
QUVARDCR1C_API wchar_t* CW162W32(BSTR handle);

/// A new host string with the wide units at @p units.
///
/// @param units  zero-terminated wide units, not null
/// @return       new host string, which the caller owns and gives to releaseBSTR()
/// @throws std::bad_alloc
QUVARDCR1C_API BSTR SysAllocString2(const wchar_t* units);

#ifdef QUVARDBS1C_WIDE_ROUTINES
#ifdef __clang__
#pragma clang diagnostic push
// C linkage fixes the symbol's name. Only C++ callers see these two, and those that define
// QUVARDBS1C_NO_WIDE_ROUTINES do not.
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif

/// The text of the host string that @p handle holds.
///
/// @param handle  variable that holds a host string; null gives the empty string
/// @throws std::bad_alloc
QUVARDCR1C_API std::wstring convertBSTRtoWstring(BSTR& handle);

/// A new host string with the units of @p text up to its first zero unit.
///
/// @return new host string, which the caller owns and gives to releaseBSTR()
/// @throws std::bad_alloc
QUVARDCR1C_API BSTR convertWstringToBSTR(std::wstring text);

#ifdef __clang__
#pragma clang diagnostic pop
#endif
#endif

#ifdef __cplusplus
}
#endif

/// @}

#endif
