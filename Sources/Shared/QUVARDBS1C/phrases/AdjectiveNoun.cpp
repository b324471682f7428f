#include <string_view>
#include <utility>

#include "host/Boundary.h"
#include "host/HostBool.h"
#include "phrases/FirstLetter.h"
#include "phrases/Languages.h"
#include "strings/WideForm.h"

using quvard::FirstMapped;
using quvard::isSet;
using quvard::LetterCase;
using quvard::viaBuffer;

namespace {

struct Phrase {
  FirstMapped first;
  std::wstring_view separator;
  FirstMapped second;
  bool isLowered;

  std::size_t room() const { return first.room() + separator.size() + second.room(); }

  wchar_t* write(wchar_t* out) const {
    wchar_t* end = quvard::copyUnits(separator, first.write(out));
    end = second.write(end);
    if (isLowered) mapFirst({out, end}, LetterCase::lower);
    return end;
  }
};

Phrase composePhrase(std::wstring_view adjective, std::wstring_view noun,
                     std::wstring_view language, HostBool upperAdjective, HostBool lowerResult,
                     HostBool noBlank) {
  const quvard::Language* const row = quvard::findLanguage(language);
  if (row == nullptr) return {};

  FirstMapped first{adjective, {}};
  FirstMapped second{noun, {}};
  if (row->heedsUpperAdjective && isSet(upperAdjective)) first.letterCase = LetterCase::upper;
  if (row->lowersNoun) second.letterCase = LetterCase::lower;
  if (row->nounFirst) std::swap(first, second);
  const bool isJoined = row->heedsNoBlank && isSet(noBlank);
  return {first, isJoined ? L"" : L" ", second, row->heedsLowerResult && isSet(lowerResult)};
}

}  // namespace

std::wstring LocalAN(std::wstring adjective, std::wstring noun, std::wstring language,
                     HostBool upperAdjective, HostBool lowerResult, HostBool noBlank) {
  return quvard::toWstring(
      composePhrase(adjective, noun, language, upperAdjective, lowerResult, noBlank));
}

BSTR VB_LocalAN(BSTR adjective, BSTR noun, BSTR language) {
  return viaBuffer(composePhrase, adjective, noun, language, QUVARDBS1C_TRUE, QUVARDBS1C_FALSE,
                   QUVARDBS1C_FALSE);
}

BSTR VB_LocalAN2(BSTR adjective, BSTR noun, BSTR language, HostBool upperAdjective,
                 HostBool lowerResult, HostBool noBlank) {
  return viaBuffer(composePhrase, adjective, noun, language, upperAdjective, lowerResult, noBlank);
}
