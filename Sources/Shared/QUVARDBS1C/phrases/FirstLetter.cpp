#include "host/HostBool.h"
#include "host/HostFrame.h"
#include "phrases/Languages.h"
#include "strings/PlatformCase.h"

using quvard::callWide;
using quvard::FirstLetter;
using quvard::givenOut;
using quvard::LetterCase;
using quvard::mapFirst;

std::wstring LowerFirst(std::wstring text, std::wstring language, HostBool forceDE) {
  const quvard::Language* const row = quvard::findLanguage(language);
  const FirstLetter rule = row == nullptr ? FirstLetter::lowered : row->firstLetter;
  const bool kept = rule == FirstLetter::kept ||
                    (rule == FirstLetter::keptUnlessForced && !quvard::isSet(forceDE));
  if (!kept) mapFirst(text, LetterCase::lower);
  return text;
}

std::wstring UpperFirst(std::wstring text) {
  mapFirst(text, LetterCase::upper);
  return text;
}

BSTR VB_LowerFirst(BSTR text, BSTR language, HostBool forceDE) {
  return givenOut(callWide(LowerFirst, text, language, forceDE));
}

BSTR VB_UpperFirst(BSTR text) { return givenOut(callWide(UpperFirst, text)); }
