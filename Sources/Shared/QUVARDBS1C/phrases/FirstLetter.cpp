#include "host/Boundary.h"
#include "host/HostBool.h"
#include "phrases/Languages.h"
#include "strings/PlatformCase.h"

using quvard::FirstLetterRule;
using quvard::LetterCase;
using quvard::TextBuffer;
using quvard::wideText;

namespace {

bool isLowered(std::wstring_view language, HostBool forceDE) {
  const quvard::Language* const row = quvard::findLanguage(language);
  if (row == nullptr || row->firstLetter == FirstLetterRule::lowered) return true;
  return row->firstLetter == FirstLetterRule::keptUnlessForced && quvard::isSet(forceDE);
}

}  // namespace

std::wstring LowerFirst(std::wstring text, std::wstring language, HostBool forceDE) {
  if (isLowered(language, forceDE)) mapFirst(text, LetterCase::lower);
  return text;
}

std::wstring UpperFirst(std::wstring text) {
  mapFirst(text, LetterCase::upper);
  return text;
}

BSTR VB_LowerFirst(BSTR text, BSTR language, HostBool forceDE) {
  TextBuffer wide(wideText(text));
  if (isLowered(wideText(language), forceDE)) mapFirst(wide, LetterCase::lower);
  return newHostString(wide);
}

BSTR VB_UpperFirst(BSTR text) {
  TextBuffer wide(wideText(text));
  mapFirst(wide, LetterCase::upper);
  return newHostString(wide);
}
