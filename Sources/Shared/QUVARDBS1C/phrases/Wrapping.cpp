#include <string_view>

#include "host/Boundary.h"
#include "strings/WideForm.h"

using quvard::toWstring;
using quvard::viaBuffer;

namespace {

struct Wrapped {
  wchar_t opening;
  std::wstring_view text;
  wchar_t closing;

  std::size_t room() const { return text.size() + 2; }

  wchar_t* write(wchar_t* out) const {
    *out++ = opening;
    out = quvard::copyUnits(text, out);
    *out++ = closing;
    return out;
  }
};

Wrapped inBlanks(std::wstring_view text) { return {L' ', text, L' '}; }

Wrapped inParentheses(std::wstring_view text) { return {L'(', text, L')'}; }

Wrapped inBrackets(std::wstring_view text) { return {L'[', text, L']'}; }

}  // namespace

std::wstring SpStrSp(std::wstring text) { return toWstring(inBlanks(text)); }

std::wstring PStrP(std::wstring text) { return toWstring(inParentheses(text)); }

BSTR VB_SpStrSp(BSTR text) { return quvard::viaObject(SpStrSp, text); }

BSTR VB_PStrP(BSTR text) { return viaBuffer(inParentheses, text); }

BSTR VB_BStrB(BSTR text) { return viaBuffer(inBrackets, text); }
