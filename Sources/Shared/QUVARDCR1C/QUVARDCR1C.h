/// @file
/// Declares the services that make, read and release host strings.
///
/// A host string (`BSTR`) is a pointer to null-terminated text of 16-bit code units, aligned to 2 bytes.
/// Nothing before the pointer is read, so any null-terminated array of 16-bit code units can be passed as
/// an argument.
///
/// On x86 processors the services read texts of more than 7 code units in aligned blocks of 16 bytes. A
/// block may contain up to 14 bytes after the null terminator. They are on the same page of memory, and
/// their values have no effect.
///
/// Conversion is by code unit:
///
/// | From                                       | To                                     |
/// |--------------------------------------------|----------------------------------------|
/// | 16-bit code unit, also a surrogate         | wide code unit of the same value       |
/// | wide code unit up to 0xFFFF, also a surrogate | 16-bit code unit of the same value  |
/// | wide code unit from 0x10000 to 0x10FFFF    | surrogate pair                         |
/// | any other wide code unit                   | U+FFFD                                 |
///
/// Surrogates are not combined into one wide code unit, so positions and lengths are the same on both
/// sides.
///
/// - Every service may be called on any number of threads at once.
/// - Services that allocate throw only `std::bad_alloc`, and then leak nothing.
/// - No service is async-signal-safe. A call from a signal handler may overwrite the buffer that the
///   interrupted call reads, or wait forever in the memory allocator.
#ifndef QUVARDCR1C_H
#define QUVARDCR1C_H

#include <stddef.h>

#include "QUVARDStandardLibrary.h"

/// Marks an exported service.
#define QUVARDCR1C_API __attribute__((visibility("default")))

#ifdef __cplusplus
/// A host string: a pointer to null-terminated text of 16-bit code units, or null.
typedef char16_t* BSTR;
/// A 16-bit code unit.
typedef char16_t QUVARDUnit16;
extern "C" {
#else
#include <stdint.h>
typedef uint_least16_t* BSTR;
typedef uint_least16_t QUVARDUnit16;
#endif

/// @defgroup host_strings Host strings, in the sibling library (QUVARDCR1C)
///
/// Services that make, read and release host strings.
///
/// Callers make host strings with SysAllocString16() and release them with releaseBSTR(). The routines of
/// QUVARDBS1C call the other services.
/// @{

/// Makes a host string from 16-bit code units.
///
/// @param units  null-terminated 16-bit code units, aligned to 2 bytes; null: the empty string
/// @return       new host string, which the caller releases with releaseBSTR()
/// @throws std::bad_alloc
QUVARDCR1C_API BSTR SysAllocString16(const QUVARDUnit16* units);

/// Returns the length of a host string. Does not throw.
///
/// @param units  null-terminated 16-bit code units, aligned to 2 bytes, not null
/// @return       number of code units before the null terminator
QUVARDCR1C_API size_t wcslen16(const QUVARDUnit16* units);

/// Releases a host string. Does not throw.
///
/// @param handle  host string that a service or a host routine returned, or null
QUVARDCR1C_API void releaseBSTR(BSTR handle);

/// Returns the text of @p handle as null-terminated wide code units, in the buffer of the thread.
///
/// The buffer has 1 KiB at first. For a longer text it has 4 bytes per code unit, rounded up to a power of
/// two. A thread keeps a buffer of at most 4 MiB; a larger one is released when the thread's next text fits
/// into 4 MiB. The buffer of a thread that has ended is released when another thread gets its first
/// buffer or a new one.
///
/// @param handle  host string, not null
/// @return        buffer of the calling thread, valid until the thread's next call of CW162W32(); not
///                released by the caller
/// @throws std::bad_alloc
QUVARDCR1C_API wchar_t* CW162W32(BSTR handle);

/// Makes a host string from wide code units.
///
/// @param units  null-terminated wide code units, not null
/// @return       new host string, which the caller releases with releaseBSTR()
/// @throws std::bad_alloc
QUVARDCR1C_API BSTR SysAllocString2(const wchar_t* units);

#ifdef QUVARDBS1C_WIDE_ROUTINES
#ifdef __clang__
#pragma clang diagnostic push
// C linkage fixes the symbol names. Only C++ callers that do not define QUVARDBS1C_NO_WIDE_ROUTINES see
// these two services.
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif

/// Returns the text of a host string.
///
/// @param handle  variable that holds a host string; null: the empty string
/// @return        code units as wide code units
/// @throws std::bad_alloc
QUVARDCR1C_API std::wstring convertBSTRtoWstring(BSTR& handle);

/// Makes a host string from a wide string.
///
/// @param text  wide string, read up to its first zero code unit
/// @return      new host string, which the caller releases with releaseBSTR()
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
