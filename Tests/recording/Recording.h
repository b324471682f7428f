// What the recording QUVARDCR1C has recorded.
#ifndef TESTS_RECORDING_RECORDING_H
#define TESTS_RECORDING_RECORDING_H

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "QUVARDCR1C.h"

// Each service and its text, in order.
using ServiceCalls = std::vector<std::pair<std::string, std::wstring>>;

struct Recording {
  ServiceCalls calls;
  std::set<BSTR> alive;  // host strings made and not released
};
extern QUVARDCR1C_API Recording recording;

#endif
