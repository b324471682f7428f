// What the recording sibling library has seen.
#ifndef TESTS_RECORDING_RECORDING_H
#define TESTS_RECORDING_RECORDING_H

#include <set>
#include <string>
#include <vector>

#include "QUVARDCR1C.h"

struct Recording {
  std::vector<std::string> calls;  // "service(text)", in order; U+0080 and above as '?'
  std::set<BSTR> alive;            // host strings made and not released
};
extern QUVARDCR1C_API Recording recording;

#endif
