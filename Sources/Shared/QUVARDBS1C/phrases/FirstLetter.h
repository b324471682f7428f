#ifndef QUVARDBS1C_PHRASES_FIRSTLETTER_H
#define QUVARDBS1C_PHRASES_FIRSTLETTER_H

#include <optional>
#include <string_view>

#include "host/Draft.h"
#include "strings/PlatformCase.h"

namespace quvard {

// A text whose first letter is in the given case, or as it was.
struct FirstMapped {
  std::wstring_view text;
  std::optional<LetterCase> letterCase;

  std::size_t room() const { return text.size(); }

  wchar_t* write(wchar_t* out) const {
    wchar_t* const end = copyUnits(text, out);
    if (letterCase) mapFirst({out, end}, *letterCase);
    return end;
  }
};

}  // namespace quvard

#endif
