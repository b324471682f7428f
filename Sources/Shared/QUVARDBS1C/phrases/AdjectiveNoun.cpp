#include <string_view>

#include "host/Boundary.h"
#include "host/HostBool.h"
#include "phrases/Languages.h"
#include "strings/PlatformCase.h"

using quvard::isSet;
using quvard::LetterCase;
using quvard::TextBuffer;
using quvard::wideText;

namespace {

struct PhraseFlags {
  HostBool upperAdjective, lowerResult, noBlank;
};

// Appends the phrase to `output`, which is empty.
void composePhrase(auto& output, std::wstring_view adjective, std::wstring_view noun,
                   std::wstring_view language, const PhraseFlags& flags) {
  const quvard::Language* const row = quvard::findLanguage(language);
  if (row == nullptr) return;

  output.reserve(adjective.size() + noun.size() + 1);
  const auto mapFirstFrom = [&output](std::size_t start, LetterCase letterCase) {
    quvard::mapFirst({output.data() + start, output.size() - start}, letterCase);
  };
  const auto appendAdjective = [&] {
    const std::size_t start = output.size();
    output.append(adjective);
    if (row->heedsUpperAdjective && isSet(flags.upperAdjective)) {
      mapFirstFrom(start, LetterCase::upper);
    }
  };
  const auto appendNoun = [&] {
    const std::size_t start = output.size();
    output.append(noun);
    if (row->lowersNoun) mapFirstFrom(start, LetterCase::lower);
  };
  const auto appendSeparator = [&] {
    if (!(row->heedsNoBlank && isSet(flags.noBlank))) output.push_back(L' ');
  };

  if (row->nounFirst) {
    appendNoun();
    appendSeparator();
    appendAdjective();
  } else {
    appendAdjective();
    appendSeparator();
    appendNoun();
  }
  if (row->heedsLowerResult && isSet(flags.lowerResult)) mapFirstFrom(0, LetterCase::lower);
}

BSTR composeHostPhrase(BSTR adjective, BSTR noun, BSTR language, const PhraseFlags& flags) {
  const TextBuffer wideAdjective(wideText(adjective));
  const TextBuffer wideNoun(wideText(noun));
  TextBuffer phrase;
  composePhrase(phrase, wideAdjective, wideNoun, wideText(language), flags);
  return newHostString(phrase);
}

}  // namespace

std::wstring LocalAN(std::wstring adjective, std::wstring noun, std::wstring language,
                     HostBool upperAdjective, HostBool lowerResult, HostBool noBlank) {
  std::wstring phrase;
  composePhrase(phrase, adjective, noun, language, {upperAdjective, lowerResult, noBlank});
  return phrase;
}

BSTR VB_LocalAN(BSTR adjective, BSTR noun, BSTR language) {
  return composeHostPhrase(adjective, noun, language,
                           {.upperAdjective = QUVARDBS1C_TRUE,
                            .lowerResult = QUVARDBS1C_FALSE,
                            .noBlank = QUVARDBS1C_FALSE});
}

BSTR VB_LocalAN2(BSTR adjective, BSTR noun, BSTR language, HostBool upperAdjective,
                 HostBool lowerResult, HostBool noBlank) {
  return composeHostPhrase(adjective, noun, language, {upperAdjective, lowerResult, noBlank});
}
