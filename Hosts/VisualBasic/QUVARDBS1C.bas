Attribute VB_Name = "QUVARDBS1C"
Option Explicit

' Declares the library QUVARDBS1C for 64-bit Visual Basic for Applications on macOS. Generated from
' QUVARDBS1C.h by generate.py; do not edit. Import this file into the project, and replace Lib "QUVARD
' by Lib "/the/folder/of/both/libraries/QUVARD everywhere in it. The page docs/from-a-macro.md explains
' how, and how this file is tested.
'
' - Arguments and results are Strings; the caller releases nothing.
' - vbNullString is the null handle. As an argument it means the empty text, unless a comment says
'   otherwise.
' - A text ends at its first ChrW(0).
' - Lengths and positions are in UTF-16 code units, as for Len and Mid. Positions start at 1.

' What VB_Replace did with the copy of text that it passed to the library.
Public Enum ReplaceResult
    NewString    ' The result is a new text; the copy is unchanged.
    TextChanged  ' The result is a new text; the copy was modified too.
    TextItself   ' The result is the copy itself, because text or pattern is vbNullString.
End Enum

Private Declare PtrSafe Function Dll_VB_StrLeft Lib "QUVARDBS1C.dll" Alias "VB_StrLeft" ( _
    ByVal s As LongPtr, ByVal n As Long) As LongPtr
Private Declare PtrSafe Function Dll_VB_StrRight Lib "QUVARDBS1C.dll" Alias "VB_StrRight" ( _
    ByVal s As LongPtr, ByVal n As Long) As LongPtr
Private Declare PtrSafe Function Dll_VB_StrConcat Lib "QUVARDBS1C.dll" Alias "VB_StrConcat" ( _
    ByVal a As LongPtr, ByVal b As LongPtr, ByVal c As LongPtr, ByVal d As LongPtr, _
    ByVal e As LongPtr, ByVal f As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_StrLTrim Lib "QUVARDBS1C.dll" Alias "VB_StrLTrim" ( _
    ByVal s As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_StrRTrim Lib "QUVARDBS1C.dll" Alias "VB_StrRTrim" ( _
    ByVal s As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_StrLRTrim Lib "QUVARDBS1C.dll" Alias "VB_StrLRTrim" ( _
    ByVal s As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_RemoveChar Lib "QUVARDBS1C.dll" Alias "VB_RemoveChar" ( _
    ByVal s As LongPtr, ByVal chars As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_RemoveNonNumericChar Lib "QUVARDBS1C.dll" _
    Alias "VB_RemoveNonNumericChar" (ByVal s As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_RemoveColon Lib "QUVARDBS1C.dll" Alias "VB_RemoveColon" ( _
    ByVal s As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_CommonChar Lib "QUVARDBS1C.dll" Alias "VB_CommonChar" ( _
    ByVal text As LongPtr, ByVal chars As LongPtr) As Long
Private Declare PtrSafe Function Dll_ChrCount Lib "QUVARDBS1C.dll" Alias "ChrCount" ( _
    ByVal text As LongPtr, ByVal pattern As LongPtr) As Long
Private Declare PtrSafe Function Dll_StrFromTo Lib "QUVARDBS1C.dll" Alias "StrFromTo" ( _
    ByVal text As LongPtr, ByVal from As Long, ByVal to_ As Long) As LongPtr
Private Declare PtrSafe Function Dll_StrBetween Lib "QUVARDBS1C.dll" Alias "StrBetween" ( _
    ByVal text As LongPtr, ByVal from As Long, ByVal to_ As Long) As LongPtr
Private Declare PtrSafe Function Dll_StrFromChrToChr Lib "QUVARDBS1C.dll" _
    Alias "StrFromChrToChr" (ByVal text As LongPtr, ByVal opening As LongPtr, _
    ByVal closing As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_StrBetweenChrAndChr Lib "QUVARDBS1C.dll" _
    Alias "StrBetweenChrAndChr" (ByVal text As LongPtr, ByVal opening As LongPtr, _
    ByVal closing As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_Replace2 Lib "QUVARDBS1C.dll" Alias "VB_Replace2" ( _
    ByVal text As LongPtr, ByVal pattern1 As LongPtr, ByVal replacement1 As LongPtr, _
    ByVal pattern2 As LongPtr, ByVal replacement2 As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_LocalAN Lib "QUVARDBS1C.dll" Alias "VB_LocalAN" ( _
    ByVal adjective As LongPtr, ByVal noun As LongPtr, ByVal language As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_LocalAN2 Lib "QUVARDBS1C.dll" Alias "VB_LocalAN2" ( _
    ByVal adjective As LongPtr, ByVal noun As LongPtr, ByVal language As LongPtr, _
    ByVal upperAdjective As Long, ByVal lowerResult As Long, ByVal noBlank As Long) As LongPtr
Private Declare PtrSafe Function Dll_VB_LowerFirst Lib "QUVARDBS1C.dll" Alias "VB_LowerFirst" ( _
    ByVal text As LongPtr, ByVal language As LongPtr, ByVal forceDE As Long) As LongPtr
Private Declare PtrSafe Function Dll_VB_UpperFirst Lib "QUVARDBS1C.dll" Alias "VB_UpperFirst" ( _
    ByVal text As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_SpStrSp Lib "QUVARDBS1C.dll" Alias "VB_SpStrSp" ( _
    ByVal text As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_PStrP Lib "QUVARDBS1C.dll" Alias "VB_PStrP" ( _
    ByVal text As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_BStrB Lib "QUVARDBS1C.dll" Alias "VB_BStrB" ( _
    ByVal text As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_SingPlural Lib "QUVARDBS1C.dll" Alias "VB_SingPlural" ( _
    ByVal singular As LongPtr, ByVal plural As LongPtr, ByVal count As Long) As LongPtr
Private Declare PtrSafe Function Dll_VB_QUVARDHTMLProcessor Lib "QUVARDBS1C.dll" _
    Alias "VB_QUVARDHTMLProcessor" (ByVal text As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_Cpp_DecimalFormat Lib "QUVARDBS1C.dll" _
    Alias "Cpp_DecimalFormat" (ByVal decimals As Long) As LongPtr
Private Declare PtrSafe Function Dll_VB_OutputFormat Lib "QUVARDBS1C.dll" _
    Alias "VB_OutputFormat" (ByVal value As Double) As LongPtr
Private Declare PtrSafe Function Dll_VB_OptimalFormat Lib "QUVARDBS1C.dll" _
    Alias "VB_OptimalFormat" (ByVal value As Double, ByVal decimals As Long, _
    ByVal useExponent As Long, ByVal keepDecimals As Long) As LongPtr
' Returns 3.14159265358979, which approximates pi.
Public Declare PtrSafe Function Pi Lib "QUVARDBS1C.dll" () As Double
' Returns the square root (not the square) of x, correctly rounded.
Public Declare PtrSafe Function SqrDbl Lib "QUVARDBS1C.dll" Alias "sqr" ( _
    ByVal x As Double) As Double
' Returns the decimal logarithm of x, computed by the platform's log10.
Public Declare PtrSafe Function Log10 Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' Returns base to the power of exponent, computed by the platform's pow.
Public Declare PtrSafe Function spow Lib "QUVARDBS1C.dll" (ByVal base As Double, _
    ByVal exponent As Double) As Double
' Returns exp(x) - 1.
Public Declare PtrSafe Function expm1x Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' Returns the arcsine of x in radians.
Public Declare PtrSafe Function ASin Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' Returns a if a < b, otherwise b.
Public Declare PtrSafe Function Min Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' Returns a if a > b, otherwise b.
Public Declare PtrSafe Function Max Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' Returns the sign of x as a number.
Public Declare PtrSafe Function FSgn Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' Returns the magnitude of a with the sign of b.
Public Declare PtrSafe Function FSign Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' Returns ln(exp(a) + exp(b)), also if the exponentials overflow or underflow.
Public Declare PtrSafe Function LogExpAPlusExpB Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' Swaps two integers.
Public Declare PtrSafe Sub SwapLng Lib "QUVARDBS1C.dll" (ByRef a As Long, ByRef b As Long)
' Swaps two doubles without changing their bits.
Public Declare PtrSafe Sub SwapDbl Lib "QUVARDBS1C.dll" (ByRef a As Double, ByRef b As Double)
' Returns the natural logarithm of the gamma function.
Public Declare PtrSafe Function GammaLn Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' Returns the factorial of n.
Public Declare PtrSafe Function Fact Lib "QUVARDBS1C.dll" (ByVal n As Long) As Double
' Returns the binomial coefficient: the number of ways to choose k of n.
Public Declare PtrSafe Function Cnk Lib "QUVARDBS1C.dll" (ByVal n As Double, _
    ByVal k As Double) As Double
' Returns the sum of Cnk(n, k) for all integers k with from <= k <= to.
Public Declare PtrSafe Function SumCnk Lib "QUVARDBS1C.dll" (ByVal n As Double, _
    ByVal from As Double, ByVal to_ As Double) As Double
' Returns the floored remainder of a by b, which has the sign of b.
Public Declare PtrSafe Function ModLng Lib "QUVARDBS1C.dll" Alias "Mod" (ByVal a As Long, _
    ByVal b As Long) As Long
' Returns the floored remainder a - floor(a / b) * b of doubles.
Public Declare PtrSafe Function ModDbl Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' Returns the greatest common divisor (GCD) of two integers.
Public Declare PtrSafe Function LCD Lib "QUVARDBS1C.dll" (ByVal a As Long, _
    ByVal b As Long) As Long
' Returns the greatest common divisor (GCD) of two integers held in doubles.
Public Declare PtrSafe Function LCD2 Lib "QUVARDBS1C.dll" Alias "_Z4LCD2dd" (ByVal a As Double, _
    ByVal b As Double) As Double
' Returns the greatest common divisor (GCD) of two decimal numbers, such as 0.25 for 0.5 and 0.75.
Public Declare PtrSafe Function LCDDbl Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
Private Declare PtrSafe Function Dll_IsLong Lib "QUVARDBS1C.dll" Alias "IsLong" ( _
    ByVal x As Double) As Long
Private Declare PtrSafe Function Dll_IsLongP Lib "QUVARDBS1C.dll" Alias "IsLongP" ( _
    ByVal x As Double, ByVal tol As Double) As Long
Private Declare PtrSafe Function Dll_IsEven Lib "QUVARDBS1C.dll" Alias "IsEven" ( _
    ByVal x As Double) As Long
Private Declare PtrSafe Function Dll_IsEvenLng Lib "QUVARDBS1C.dll" Alias "IsEvenLng" ( _
    ByVal n As Long) As Long
Private Declare PtrSafe Function Dll_Int05 Lib "QUVARDBS1C.dll" Alias "Int05" (ByVal v As Double, _
    ByVal half As Long) As Double
Private Declare PtrSafe Function Dll_Int05c Lib "QUVARDBS1C.dll" Alias "Int05c" ( _
    ByVal v As Double, ByVal half As Long) As Double
Private Declare PtrSafe Function Dll_Int05LU Lib "QUVARDBS1C.dll" Alias "Int05LU" ( _
    ByVal v As Double, ByVal half As Long, ByVal lower As Long) As Double
Private Declare PtrSafe Function Dll_LinearInterpol Lib "QUVARDBS1C.dll" Alias "LinearInterpol" ( _
    ByVal x1 As Double, ByVal x2 As Double, ByVal y1 As Double, ByVal y2 As Double, _
    ByRef x As Double, ByRef y As Double, ByVal forward As Long) As Long
Private Declare PtrSafe Function Dll_QuadraticInterpol Lib "QUVARDBS1C.dll" _
    Alias "QuadraticInterpol" (ByVal x1 As Double, ByVal x2 As Double, ByVal x3 As Double, _
    ByVal y1 As Double, ByVal y2 As Double, ByVal y3 As Double, ByRef x As Double, _
    ByRef xSecond As Double, ByRef y As Double, ByVal forward As Long) As Long
Private Declare PtrSafe Function Dll_VB_Replace Lib "QUVARDBS1C.dll" Alias "VB_Replace" ( _
    ByVal text As LongPtr, ByVal pattern As LongPtr, ByVal replacement As LongPtr) As LongPtr
Private Declare PtrSafe Sub Dll_VB_SetFormat Lib "QUVARDBS1C.dll" Alias "VB_SetFormat" ( _
    ByRef formats As LongPtr, ByVal count As Long, ByVal digits As Long, _
    ByVal digitsOverride As Long)
' Swaps two handles that HostString returned.
Public Declare PtrSafe Sub SwapStr Lib "QUVARDBS1C.dll" (ByRef a As LongPtr, ByRef b As LongPtr)

Private Declare PtrSafe Function SysAllocString16 Lib "QUVARDCR1C.dll" ( _
    ByVal units As LongPtr) As LongPtr
Private Declare PtrSafe Function wcslen16 Lib "QUVARDCR1C.dll" (ByVal units As LongPtr) As LongPtr
Private Declare PtrSafe Sub releaseBSTR Lib "QUVARDCR1C.dll" (ByVal handle As LongPtr)

' Copies bytes.
Private Declare PtrSafe Sub memmove Lib "/usr/lib/libSystem.B.dylib" ( _
    ByVal target As LongPtr, ByVal source As LongPtr, ByVal size As LongPtr)

' Returns the first n code units of s.
Public Function VB_StrLeft(ByVal s As String, ByVal n As Long) As String
    VB_StrLeft = TakeText(Dll_VB_StrLeft(StrPtr(s), n))
End Function

' Returns the last n code units of s.
Public Function VB_StrRight(ByVal s As String, ByVal n As Long) As String
    VB_StrRight = TakeText(Dll_VB_StrRight(StrPtr(s), n))
End Function

' Concatenates six texts.
Public Function VB_StrConcat(ByVal a As String, ByVal b As String, ByVal c As String, _
    ByVal d As String, ByVal e As String, ByVal f As String) As String
    VB_StrConcat = TakeText(Dll_VB_StrConcat(StrPtr(a), StrPtr(b), StrPtr(c), StrPtr(d), _
        StrPtr(e), StrPtr(f)))
End Function

' Removes leading blanks.
Public Function VB_StrLTrim(ByVal s As String) As String
    VB_StrLTrim = TakeText(Dll_VB_StrLTrim(StrPtr(s)))
End Function

' Removes trailing blanks.
Public Function VB_StrRTrim(ByVal s As String) As String
    VB_StrRTrim = TakeText(Dll_VB_StrRTrim(StrPtr(s)))
End Function

' Removes leading and trailing blanks.
Public Function VB_StrLRTrim(ByVal s As String) As String
    VB_StrLRTrim = TakeText(Dll_VB_StrLRTrim(StrPtr(s)))
End Function

' Removes the first code unit of the leftmost occurrence of chars until chars does not occur.
Public Function VB_RemoveChar(ByVal s As String, ByVal chars As String) As String
    VB_RemoveChar = TakeText(Dll_VB_RemoveChar(StrPtr(s), StrPtr(chars)))
End Function

' Removes every code unit except the digits 0 to 9.
Public Function VB_RemoveNonNumericChar(ByVal s As String) As String
    VB_RemoveNonNumericChar = TakeText(Dll_VB_RemoveNonNumericChar(StrPtr(s)))
End Function

' Removes every colon.
Public Function VB_RemoveColon(ByVal s As String) As String
    VB_RemoveColon = TakeText(Dll_VB_RemoveColon(StrPtr(s)))
End Function

' Tests whether two texts have a code unit in common.
Public Function VB_CommonChar(ByVal text As String, ByVal chars As String) As Boolean
    VB_CommonChar = CBool(Dll_VB_CommonChar(StrPtr(text), StrPtr(chars)))
End Function

' Counts the occurrences of pattern in text, from left to right and without overlap.
Public Function ChrCount(ByVal text As String, ByVal pattern As String) As Long
    ChrCount = Dll_ChrCount(StrPtr(text), StrPtr(pattern))
End Function

' Returns the code units at the positions from, ..., to.
Public Function StrFromTo(ByVal text As String, ByVal from As Long, ByVal to_ As Long) As String
    StrFromTo = TakeText(Dll_StrFromTo(StrPtr(text), from, to_))
End Function

' Returns the code units strictly between the positions from and to.
Public Function StrBetween(ByVal text As String, ByVal from As Long, ByVal to_ As Long) As String
    StrBetween = TakeText(Dll_StrBetween(StrPtr(text), from, to_))
End Function

' Returns the text from the first opening to the first closing, with both delimiters.
Public Function StrFromChrToChr(ByVal text As String, ByVal opening As String, _
    ByVal closing As String) As String
    StrFromChrToChr = TakeText(Dll_StrFromChrToChr(StrPtr(text), StrPtr(opening), _
        StrPtr(closing)))
End Function

' Returns the text between the first opening and the next closing, without the delimiters.
Public Function StrBetweenChrAndChr(ByVal text As String, ByVal opening As String, _
    ByVal closing As String) As String
    StrBetweenChrAndChr = TakeText(Dll_StrBetweenChrAndChr(StrPtr(text), StrPtr(opening), _
        StrPtr(closing)))
End Function

' Replaces every occurrence of pattern1, then in that result every occurrence of pattern2.
Public Function VB_Replace2(ByVal text As String, ByVal pattern1 As String, _
    ByVal replacement1 As String, ByVal pattern2 As String, _
    ByVal replacement2 As String) As String
    VB_Replace2 = TakeText(Dll_VB_Replace2(StrPtr(text), StrPtr(pattern1), StrPtr(replacement1), _
        StrPtr(pattern2), StrPtr(replacement2)))
End Function

' Composes an adjective and a noun in the word order of a language.
Public Function VB_LocalAN(ByVal adjective As String, ByVal noun As String, _
    ByVal language As String) As String
    VB_LocalAN = TakeText(Dll_VB_LocalAN(StrPtr(adjective), StrPtr(noun), StrPtr(language)))
End Function

' Composes an adjective and a noun in the word order of a language.
Public Function VB_LocalAN2(ByVal adjective As String, ByVal noun As String, _
    ByVal language As String, Optional ByVal upperAdjective As Boolean = True, _
    Optional ByVal lowerResult As Boolean = False, _
    Optional ByVal noBlank As Boolean = False) As String
    VB_LocalAN2 = TakeText(Dll_VB_LocalAN2(StrPtr(adjective), StrPtr(noun), StrPtr(language), _
        CLng(upperAdjective), CLng(lowerResult), CLng(noBlank)))
End Function

' Converts the first letter of text to lower case, unless language is "JP" or "DE".
Public Function VB_LowerFirst(ByVal text As String, ByVal language As String, _
    Optional ByVal forceDE As Boolean = False) As String
    VB_LowerFirst = TakeText(Dll_VB_LowerFirst(StrPtr(text), StrPtr(language), CLng(forceDE)))
End Function

' Converts the first letter of text to upper case under the locale of the process.
Public Function VB_UpperFirst(ByVal text As String) As String
    VB_UpperFirst = TakeText(Dll_VB_UpperFirst(StrPtr(text)))
End Function

' Puts a blank before and after a text.
Public Function VB_SpStrSp(ByVal text As String) As String
    VB_SpStrSp = TakeText(Dll_VB_SpStrSp(StrPtr(text)))
End Function

' Puts a text in parentheses.
Public Function VB_PStrP(ByVal text As String) As String
    VB_PStrP = TakeText(Dll_VB_PStrP(StrPtr(text)))
End Function

' Puts a text in square brackets.
Public Function VB_BStrB(ByVal text As String) As String
    VB_BStrB = TakeText(Dll_VB_BStrB(StrPtr(text)))
End Function

' Chooses the singular or plural of a word.
Public Function VB_SingPlural(ByVal singular As String, ByVal plural As String, _
    ByVal count As Long) As String
    VB_SingPlural = TakeText(Dll_VB_SingPlural(StrPtr(singular), StrPtr(plural), count))
End Function

' Replaces each <BR> by a line feed, <QM> by a double quotation mark and <CM> by a comma.
Public Function VB_QUVARDHTMLProcessor(ByVal text As String) As String
    VB_QUVARDHTMLProcessor = TakeText(Dll_VB_QUVARDHTMLProcessor(StrPtr(text)))
End Function

' Returns the pattern with the given number of decimals.
Public Function Cpp_DecimalFormat(ByVal decimals As Long) As String
    Cpp_DecimalFormat = TakeText(Dll_Cpp_DecimalFormat(decimals))
End Function

' Returns the pattern that shows the decimals of a value, up to 19.
Public Function VB_OutputFormat(ByVal value As Double) As String
    VB_OutputFormat = TakeText(Dll_VB_OutputFormat(value))
End Function

' Returns the pattern with the given number of decimals, on request in scientific notation if the
' value is large, or small for these decimals.
Public Function VB_OptimalFormat(ByVal value As Double, ByVal decimals As Long, _
    ByVal useExponent As Boolean, ByVal keepDecimals As Boolean) As String
    VB_OptimalFormat = TakeText(Dll_VB_OptimalFormat(value, decimals, CLng(useExponent), _
        CLng(keepDecimals)))
End Function

' Tests whether x is within 1e-12 of an integer of any size.
Public Function IsLong(ByVal x As Double) As Boolean
    IsLong = CBool(Dll_IsLong(x))
End Function

' Tests whether x is within tol of an integer of any size.
Public Function IsLongP(ByVal x As Double, ByVal tol As Double) As Boolean
    IsLongP = CBool(Dll_IsLongP(x, tol))
End Function

' Tests whether x is even.
Public Function IsEven(ByVal x As Double) As Boolean
    IsEven = CBool(Dll_IsEven(x))
End Function

' Tests whether n is even.
Public Function IsEvenLng(ByVal n As Long) As Boolean
    IsEvenLng = CBool(Dll_IsEvenLng(n))
End Function

' Rounds away from zero to an integer or a multiple of 1/2.
Public Function Int05(ByVal v As Double, ByVal half As Boolean) As Double
    Int05 = Dll_Int05(v, CLng(half))
End Function

' Rounds to the nearest integer or multiple of 1/2.
Public Function Int05c(ByVal v As Double, ByVal half As Boolean) As Double
    Int05c = Dll_Int05c(v, CLng(half))
End Function

' Rounds down or up to an integer or a multiple of 1/2.
Public Function Int05LU(ByVal v As Double, ByVal half As Boolean, _
    ByVal lower As Boolean) As Double
    Int05LU = Dll_Int05LU(v, CLng(half), CLng(lower))
End Function

' Computes a point of the straight line y = a * x + b through (x1, y1) and (x2, y2).
Public Function LinearInterpol(ByVal x1 As Double, ByVal x2 As Double, ByVal y1 As Double, _
    ByVal y2 As Double, ByRef x As Double, ByRef y As Double, ByVal forward As Boolean) As Long
    LinearInterpol = Dll_LinearInterpol(x1, x2, y1, y2, x, y, CLng(forward))
End Function

' Computes a point of the parabola y = a * x^2 + b * x + c through (x1, y1), (x2, y2) and (x3, y3).
Public Function QuadraticInterpol(ByVal x1 As Double, ByVal x2 As Double, ByVal x3 As Double, _
    ByVal y1 As Double, ByVal y2 As Double, ByVal y3 As Double, ByRef x As Double, _
    ByRef xSecond As Double, ByRef y As Double, ByVal forward As Boolean) As Long
    QuadraticInterpol = Dll_QuadraticInterpol(x1, x2, x3, y1, y2, y3, x, xSecond, y, _
        CLng(forward))
End Function

' Replaces every occurrence of pattern in a copy of text; vbNullString if text is vbNullString.
' result receives what the library did with the copy.
Public Function VB_Replace( _
    ByVal text As String, ByVal pattern As String, ByVal replacement As String, _
    Optional ByRef result As ReplaceResult = ReplaceResult.NewString) As String
    Dim handle As LongPtr
    Dim replaced As LongPtr
    Dim before As String
    handle = HostString(text)
    before = TextOf(handle)
    replaced = Dll_VB_Replace(handle, StrPtr(pattern), StrPtr(replacement))
    If replaced = handle Then
        result = ReplaceResult.TextItself
    ElseIf TextOf(handle) = before Then
        result = ReplaceResult.NewString
    Else
        result = ReplaceResult.TextChanged
    End If
    VB_Replace = TakeText(replaced)
    If replaced <> handle Then Call releaseBSTR(handle)
End Function

' Assigns one decimal pattern to the first count elements of an array. digits is the number of digits
' in the pattern, including the one before the point; digitsOverride replaces it, unless it is -1.
Public Sub VB_SetFormat( _
    ByRef formats() As String, ByVal count As Long, ByVal digits As Long, _
    Optional ByVal digitsOverride As Long = -1)
    Dim elements() As LongPtr
    Dim i As Long
    If count < 1 Then Exit Sub
    If count > UBound(formats) - LBound(formats) + 1 Then Call Err.Raise(9)
    ReDim elements(0 To count - 1)
    Call Dll_VB_SetFormat(elements(0), count, digits, digitsOverride)
    For i = 0 To count - 1
        formats(LBound(formats) + i) = TakeText(elements(i))
    Next i
End Sub

' Returns a new host string, or 0 for vbNullString. Pass it to TakeText once.
Public Function HostString(ByVal text As String) As LongPtr
    HostString = 0
    If StrPtr(text) <> 0 Then HostString = SysAllocString16(StrPtr(text))
End Function

' Releases a host string and returns its text, or vbNullString for 0.
Public Function TakeText(ByVal handle As LongPtr) As String
    TakeText = TextOf(handle)
    Call releaseBSTR(handle)
End Function

' Returns the text of a host string, or vbNullString for 0.
Private Function TextOf(ByVal handle As LongPtr) As String
    Dim text As String
    TextOf = vbNullString
    If handle = 0 Then Exit Function
    text = Space(CLng(wcslen16(handle)))
    If Len(text) > 0 Then Call memmove(StrPtr(text), handle, 2 * Len(text))
    TextOf = text
End Function
