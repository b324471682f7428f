#include <utility>

#include "host/HostBool.h"
#include "host/HostFrame.h"
#include "phrases/Languages.h"
#include "strings/PlatformCase.h"

using quvard::callWide;
using quvard::givenOut;
using quvard::isSet;
using quvard::kHostFalse;
using quvard::kHostTrue;
using quvard::LetterCase;
using quvard::mapFirst;

std::wstring LocalAN(std::wstring adjective, std::wstring noun, std::wstring language,
                     HostBool upperAdjective, HostBool lowerResult, HostBool noBlank) {
  const quvard::Language* const row = quvard::findLanguage(language);
  if (row == nullptr) return {};

  if (row->heedsUpperAdjective && isSet(upperAdjective)) mapFirst(adjective, LetterCase::upper);
  if (row->lowersNoun) mapFirst(noun, LetterCase::lower);
  if (row->nounFirst) adjective.swap(noun);

  std::wstring& phrase = adjective;
  phrase.reserve(adjective.size() + 1 + noun.size());
  if (!(row->freeSeparator && isSet(noBlank))) phrase.push_back(L' ');
  phrase.append(noun);
  if (row->heedsLowerResult && isSet(lowerResult)) mapFirst(phrase, LetterCase::lower);
  return std::move(phrase);
}

BSTR VB_LocalAN(BSTR adjective, BSTR noun, BSTR language) {
  return givenOut(callWide(LocalAN, adjective, noun, language, kHostTrue, kHostFalse, kHostFalse));
}

BSTR VB_LocalAN2(BSTR adjective, BSTR noun, BSTR language, HostBool upperAdjective,
                 HostBool lowerResult, HostBool noBlank) {
  return givenOut(
      callWide(LocalAN, adjective, noun, language, upperAdjective, lowerResult, noBlank));
}
