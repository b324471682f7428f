#include "phrases/FirstLetter.h"

#include "host/Boundary.h"
#include "host/HostBool.h"
#include "phrases/Languages.h"
#include "strings/WideForm.h"

using quvard::FirstLetterRule;
using quvard::FirstMapped;
using quvard::LetterCase;
using quvard::overwrite;
using quvard::viaBuffer;

namespace {

FirstMapped lowerFirst(std::wstring_view text, std::wstring_view language, HostBool forceDE) {
  const quvard::Language* const row = quvard::findLanguage(language);
  const FirstLetterRule rule = row == nullptr ? FirstLetterRule::lowered : row->firstLetter;
  const bool stays = rule == FirstLetterRule::kept ||
                     (rule == FirstLetterRule::keptUnlessForced && !quvard::isSet(forceDE));
  if (stays) return {text, {}};
  return {text, LetterCase::lower};
}

FirstMapped upperFirst(std::wstring_view text) { return {text, LetterCase::upper}; }

}  // namespace

std::wstring LowerFirst(std::wstring text, std::wstring language, HostBool forceDE) {
  overwrite(text, lowerFirst(text, language, forceDE));
  return text;
}

std::wstring UpperFirst(std::wstring text) {
  overwrite(text, upperFirst(text));
  return text;
}

BSTR VB_LowerFirst(BSTR text, BSTR language, HostBool forceDE) {
  return viaBuffer(lowerFirst, text, language, forceDE);
}

BSTR VB_UpperFirst(BSTR text) { return viaBuffer(upperFirst, text); }
