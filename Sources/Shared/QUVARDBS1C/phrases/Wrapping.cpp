#include <string_view>

#include "host/Boundary.h"
#include "strings/WideForm.h"

using quvard::Joined;
using quvard::viaBuffer;

namespace {

Joined<3> inBlanks(std::wstring_view text) { return {L" ", text, L" "}; }

Joined<3> inParentheses(std::wstring_view text) { return {L"(", text, L")"}; }

Joined<3> inBrackets(std::wstring_view text) { return {L"[", text, L"]"}; }

}  // namespace

std::wstring SpStrSp(std::wstring text) { return quvard::toWstring(inBlanks(text)); }

std::wstring PStrP(std::wstring text) { return quvard::toWstring(inParentheses(text)); }

BSTR VB_SpStrSp(BSTR text) { return quvard::viaObject(SpStrSp, text); }

BSTR VB_PStrP(BSTR text) { return viaBuffer(inParentheses, text); }

BSTR VB_BStrB(BSTR text) { return viaBuffer(inBrackets, text); }
