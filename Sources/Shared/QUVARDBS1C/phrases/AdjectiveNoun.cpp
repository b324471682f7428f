#include <utility>

#include "host/HostBool.h"
#include "host/HostFrame.h"
#include "phrases/Languages.h"

using quvard::callWide;
using quvard::givenOut;
using quvard::isSet;
using quvard::kHostFalse;
using quvard::kHostTrue;

std::wstring LocalAN(std::wstring adjective, std::wstring noun, std::wstring language,
                     HostBool upperAdjective, HostBool lowerResult, HostBool noBlank) {
  const quvard::Language* const row = quvard::findLanguage(language);
  if (row == nullptr) return {};

  if (row->heedsUpperAdjective && isSet(upperAdjective))
    adjective = UpperFirst(std::move(adjective));
  if (row->lowersNoun) noun = LowerFirst(std::move(noun), language, kHostFalse);
  if (row->nounFirst) adjective.swap(noun);

  const wchar_t* const separator = row->freeSeparator && isSet(noBlank) ? L"" : L" ";
  std::wstring phrase = StrConcat(std::move(adjective), separator, std::move(noun), {}, {}, {});
  if (row->heedsLowerResult && isSet(lowerResult)) {
    phrase = LowerFirst(std::move(phrase), std::move(language), kHostFalse);
  }
  return phrase;
}

BSTR VB_LocalAN(BSTR adjective, BSTR noun, BSTR language) {
  return givenOut(callWide(LocalAN, adjective, noun, language, kHostTrue, kHostFalse, kHostFalse));
}

BSTR VB_LocalAN2(BSTR adjective, BSTR noun, BSTR language, HostBool upperAdjective,
                 HostBool lowerResult, HostBool noBlank) {
  return givenOut(
      callWide(LocalAN, adjective, noun, language, upperAdjective, lowerResult, noBlank));
}
