// The two tests of a HostBool, which read its low 16 bits alone: compilers differ on who extends a
// 16-bit argument.
#ifndef QUVARDBS1C_HOST_HOSTBOOL_H
#define QUVARDBS1C_HOST_HOSTBOOL_H

#include "QUVARDBS1C.h"

namespace quvard {

inline HostBool hostBool(bool value) { return value ? QUVARDBS1C_TRUE : QUVARDBS1C_FALSE; }

inline bool isSet(HostBool flag) { return (flag & 0xFFFF) != 0; }
inline bool isTrue(HostBool flag) { return (flag & 0xFFFF) == 0xFFFF; }

}  // namespace quvard

#endif
