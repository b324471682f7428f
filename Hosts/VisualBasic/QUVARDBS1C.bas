Attribute VB_Name = "QUVARDBS1C"
Option Explicit

' The base library for Visual Basic for Applications of 64 bits on macOS. Generated from QUVARDBS1C.h
' by generate.py: do not edit. Import this file into the project, and replace Lib "QUVARD by
' Lib "/the/folder/of/both/libraries/QUVARD everywhere in it. The page docs/from-a-macro.md explains
' how, and how this file is tested.
'
' Texts are Strings on both sides, and no caller releases anything. vbNullString is the null handle:
' as an argument it is the empty text unless a comment says otherwise. Texts end at their first
' ChrW(0). Lengths and positions count UTF-16 code units, as Len and Mid do, and positions start at 1.

' What a call of VB_Replace did to the text that the library was given.
Public Enum ReplaceResult
    NewString    ' a new text results, and the text given is unchanged
    TextChanged  ' a new text results, and the text given was changed as well
    TextItself   ' the text given results, because text or pattern is vbNullString
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
' The constant 3.14159265358979, which is 7 units in the last place below the double closest to pi.
Public Declare PtrSafe Function Pi Lib "QUVARDBS1C.dll" () As Double
' The square root (not the square) of x, correctly rounded.
Public Declare PtrSafe Function SqrDbl Lib "QUVARDBS1C.dll" Alias "sqr" ( _
    ByVal x As Double) As Double
' The decimal logarithm of x, as the platform's log10 gives it.
Public Declare PtrSafe Function Log10 Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' base to the power of exponent, as the platform's pow gives it.
Public Declare PtrSafe Function spow Lib "QUVARDBS1C.dll" (ByVal base As Double, _
    ByVal exponent As Double) As Double
' exp(x) - 1.
Public Declare PtrSafe Function expm1x Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' The arcsine of x in radians, as atan(x / SqrDbl((1 - x) * (x + 1))).
Public Declare PtrSafe Function ASin Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' a if it is below b, otherwise b: of equal arguments, or with a NaN, b.
Public Declare PtrSafe Function Min Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' a if it is above b, otherwise b: of equal arguments, or with a NaN, b.
Public Declare PtrSafe Function Max Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' The sign of x as a number: 1, -1, or 0.0 for both zeros.
Public Declare PtrSafe Function FSgn Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' The magnitude of a with the sign of b, where -0.0 and NaN count as not negative.
Public Declare PtrSafe Function FSign Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' ln(exp(a) + exp(b)), also where the exponentials leave the range of doubles.
Public Declare PtrSafe Function LogExpAPlusExpB Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' Exchanges two integers.
Public Declare PtrSafe Sub SwapLng Lib "QUVARDBS1C.dll" (ByRef a As Long, ByRef b As Long)
' Exchanges two doubles, bits as they are.
Public Declare PtrSafe Sub SwapDbl Lib "QUVARDBS1C.dll" (ByRef a As Double, ByRef b As Double)
' The natural logarithm of the gamma function.
Public Declare PtrSafe Function GammaLn Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' n factorial, in one table look-up.
Public Declare PtrSafe Function Fact Lib "QUVARDBS1C.dll" (ByVal n As Long) As Double
' The number of ways to choose k of n.
Public Declare PtrSafe Function Cnk Lib "QUVARDBS1C.dll" (ByVal n As Double, _
    ByVal k As Double) As Double
' The sum of Cnk(n, k) for the whole numbers k from from to to, added upward.
Public Declare PtrSafe Function SumCnk Lib "QUVARDBS1C.dll" (ByVal n As Double, _
    ByVal from As Double, ByVal to_ As Double) As Double
' The floored remainder of a by b, which has the sign of b.
Public Declare PtrSafe Function ModLng Lib "QUVARDBS1C.dll" Alias "Mod" (ByVal a As Long, _
    ByVal b As Long) As Long
' The floored remainder a - floor(a / b) * b, which the rounded quotient decides: it may miss the
' range from 0 to b by up to two units in the last place of a.
Public Declare PtrSafe Function ModDbl Lib "QUVARDBS1C.dll" (ByVal a As Double, _
    ByVal b As Double) As Double
' The largest common divisor.
Public Declare PtrSafe Function LCD Lib "QUVARDBS1C.dll" (ByVal a As Long, _
    ByVal b As Long) As Long
' The largest common divisor of two whole numbers held in doubles.
Public Declare PtrSafe Function LCD2 Lib "QUVARDBS1C.dll" Alias "_Z4LCD2dd" (ByVal a As Double, _
    ByVal b As Double) As Double
' The largest common divisor of two decimal numbers, for instance 0.25 of 0.5 and 0.75.
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
' Swaps two host strings, which HostString returned.
Public Declare PtrSafe Sub SwapStr Lib "QUVARDBS1C.dll" (ByRef a As LongPtr, ByRef b As LongPtr)

Private Declare PtrSafe Function SysAllocString16 Lib "QUVARDCR1C.dll" ( _
    ByVal units As LongPtr) As LongPtr
Private Declare PtrSafe Function wcslen16 Lib "QUVARDCR1C.dll" (ByVal units As LongPtr) As LongPtr
Private Declare PtrSafe Sub releaseBSTR Lib "QUVARDCR1C.dll" (ByVal handle As LongPtr)

' Copies bytes.
Private Declare PtrSafe Sub memmove Lib "/usr/lib/libSystem.B.dylib" ( _
    ByVal target As LongPtr, ByVal source As LongPtr, ByVal size As LongPtr)

' The first n units of s.
Public Function VB_StrLeft(ByVal s As String, ByVal n As Long) As String
    VB_StrLeft = TakeText(Dll_VB_StrLeft(StrPtr(s), n))
End Function

' The last n units of s.
Public Function VB_StrRight(ByVal s As String, ByVal n As Long) As String
    VB_StrRight = TakeText(Dll_VB_StrRight(StrPtr(s), n))
End Function

' The six strings joined in argument order, with nothing between them.
Public Function VB_StrConcat(ByVal a As String, ByVal b As String, ByVal c As String, _
    ByVal d As String, ByVal e As String, ByVal f As String) As String
    VB_StrConcat = TakeText(Dll_VB_StrConcat(StrPtr(a), StrPtr(b), StrPtr(c), StrPtr(d), _
        StrPtr(e), StrPtr(f)))
End Function

' s without its leading blanks.
Public Function VB_StrLTrim(ByVal s As String) As String
    VB_StrLTrim = TakeText(Dll_VB_StrLTrim(StrPtr(s)))
End Function

' s without its trailing blanks.
Public Function VB_StrRTrim(ByVal s As String) As String
    VB_StrRTrim = TakeText(Dll_VB_StrRTrim(StrPtr(s)))
End Function

' s without blanks at either end.
Public Function VB_StrLRTrim(ByVal s As String) As String
    VB_StrLRTrim = TakeText(Dll_VB_StrLRTrim(StrPtr(s)))
End Function

' s after a removal that goes on until the whole of chars occurs nowhere: each step takes the first
' unit out of the leftmost occurrence.
Public Function VB_RemoveChar(ByVal s As String, ByVal chars As String) As String
    VB_RemoveChar = TakeText(Dll_VB_RemoveChar(StrPtr(s), StrPtr(chars)))
End Function

' The digits 0 to 9 of s, in their order.
Public Function VB_RemoveNonNumericChar(ByVal s As String) As String
    VB_RemoveNonNumericChar = TakeText(Dll_VB_RemoveNonNumericChar(StrPtr(s)))
End Function

' s without any colon.
Public Function VB_RemoveColon(ByVal s As String) As String
    VB_RemoveColon = TakeText(Dll_VB_RemoveColon(StrPtr(s)))
End Function

' Whether text and chars have a unit in common.
Public Function VB_CommonChar(ByVal text As String, ByVal chars As String) As Boolean
    VB_CommonChar = CBool(Dll_VB_CommonChar(StrPtr(text), StrPtr(chars)))
End Function

' The number of occurrences of pattern in text, from left to right and without overlap.
Public Function ChrCount(ByVal text As String, ByVal pattern As String) As Long
    ChrCount = Dll_ChrCount(StrPtr(text), StrPtr(pattern))
End Function

' The units at positions from to to, both included.
Public Function StrFromTo(ByVal text As String, ByVal from As Long, ByVal to_ As Long) As String
    StrFromTo = TakeText(Dll_StrFromTo(StrPtr(text), from, to_))
End Function

' The units strictly between positions from and to.
Public Function StrBetween(ByVal text As String, ByVal from As Long, ByVal to_ As Long) As String
    StrBetween = TakeText(Dll_StrBetween(StrPtr(text), from, to_))
End Function

' The text from the first opening to the first closing, both included.
Public Function StrFromChrToChr(ByVal text As String, ByVal opening As String, _
    ByVal closing As String) As String
    StrFromChrToChr = TakeText(Dll_StrFromChrToChr(StrPtr(text), StrPtr(opening), _
        StrPtr(closing)))
End Function

' What is between the first opening and the first closing after it, both left out.
Public Function StrBetweenChrAndChr(ByVal text As String, ByVal opening As String, _
    ByVal closing As String) As String
    StrBetweenChrAndChr = TakeText(Dll_StrBetweenChrAndChr(StrPtr(text), StrPtr(opening), _
        StrPtr(closing)))
End Function

' text with every occurrence of pattern1 replaced, and then, in that result, every occurrence of
' pattern2.
Public Function VB_Replace2(ByVal text As String, ByVal pattern1 As String, _
    ByVal replacement1 As String, ByVal pattern2 As String, _
    ByVal replacement2 As String) As String
    VB_Replace2 = TakeText(Dll_VB_Replace2(StrPtr(text), StrPtr(pattern1), StrPtr(replacement1), _
        StrPtr(pattern2), StrPtr(replacement2)))
End Function

' Host form of VB_LocalAN2() with upperAdjective True, lowerResult False, noBlank False.
Public Function VB_LocalAN(ByVal adjective As String, ByVal noun As String, _
    ByVal language As String) As String
    VB_LocalAN = TakeText(Dll_VB_LocalAN(StrPtr(adjective), StrPtr(noun), StrPtr(language)))
End Function

' The phrase of an adjective and a noun in the word order of a language.
Public Function VB_LocalAN2(ByVal adjective As String, ByVal noun As String, _
    ByVal language As String, Optional ByVal upperAdjective As Boolean = True, _
    Optional ByVal lowerResult As Boolean = False, _
    Optional ByVal noBlank As Boolean = False) As String
    VB_LocalAN2 = TakeText(Dll_VB_LocalAN2(StrPtr(adjective), StrPtr(noun), StrPtr(language), _
        CLng(upperAdjective), CLng(lowerResult), CLng(noBlank)))
End Function

' text with its first unit lower-cased, as StrLCase() does it.
Public Function VB_LowerFirst(ByVal text As String, ByVal language As String, _
    Optional ByVal forceDE As Boolean = False) As String
    VB_LowerFirst = TakeText(Dll_VB_LowerFirst(StrPtr(text), StrPtr(language), CLng(forceDE)))
End Function

' text with its first unit upper-cased under the locale of the process.
Public Function VB_UpperFirst(ByVal text As String) As String
    VB_UpperFirst = TakeText(Dll_VB_UpperFirst(StrPtr(text)))
End Function

' A blank, text, a blank.
Public Function VB_SpStrSp(ByVal text As String) As String
    VB_SpStrSp = TakeText(Dll_VB_SpStrSp(StrPtr(text)))
End Function

' text in parentheses.
Public Function VB_PStrP(ByVal text As String) As String
    VB_PStrP = TakeText(Dll_VB_PStrP(StrPtr(text)))
End Function

' text in square brackets.
Public Function VB_BStrB(ByVal text As String) As String
    VB_BStrB = TakeText(Dll_VB_BStrB(StrPtr(text)))
End Function

' A copy of singular if count is less than 2, else of plural.
Public Function VB_SingPlural(ByVal singular As String, ByVal plural As String, _
    ByVal count As Long) As String
    VB_SingPlural = TakeText(Dll_VB_SingPlural(StrPtr(singular), StrPtr(plural), count))
End Function

' text with its markup tokens turned into the characters that they mean: <BR> into a line feed, <QM>
' into a double quotation mark, <CM> into a comma.
Public Function VB_QUVARDHTMLProcessor(ByVal text As String) As String
    VB_QUVARDHTMLProcessor = TakeText(Dll_VB_QUVARDHTMLProcessor(StrPtr(text)))
End Function

' The pattern with a number of decimals.
Public Function Cpp_DecimalFormat(ByVal decimals As Long) As String
    Cpp_DecimalFormat = TakeText(Dll_Cpp_DecimalFormat(decimals))
End Function

' The pattern that shows the decimals a value has, up to 19: "0" for a value within 1e-12 of a whole
' number (infinities and NaN count as whole), otherwise "0." and 19 times "#".
Public Function VB_OutputFormat(ByVal value As Double) As String
    VB_OutputFormat = TakeText(Dll_VB_OutputFormat(value))
End Function

' The pattern with a chosen number of decimals, in scientific notation where that is asked for and
' the value is small for these decimals, or large.
Public Function VB_OptimalFormat(ByVal value As Double, ByVal decimals As Long, _
    ByVal useExponent As Boolean, ByVal keepDecimals As Boolean) As String
    VB_OptimalFormat = TakeText(Dll_VB_OptimalFormat(value, decimals, CLng(useExponent), _
        CLng(keepDecimals)))
End Function

' Whether x is a whole number within 1e-12, of any size.
Public Function IsLong(ByVal x As Double) As Boolean
    IsLong = CBool(Dll_IsLong(x))
End Function

' Whether x is a whole number within tol, inclusive.
Public Function IsLongP(ByVal x As Double, ByVal tol As Double) As Boolean
    IsLongP = CBool(Dll_IsLongP(x, tol))
End Function

' Whether half of x, as rounded, is whole or less than 2^-52 above a whole number.
Public Function IsEven(ByVal x As Double) As Boolean
    IsEven = CBool(Dll_IsEven(x))
End Function

' Whether n is even.
Public Function IsEvenLng(ByVal n As Long) As Boolean
    IsEvenLng = CBool(Dll_IsEvenLng(n))
End Function

' v moved away from zero: a value that is not whole goes to the next whole number or, with half, to
' the next multiple of a half.
Public Function Int05(ByVal v As Double, ByVal half As Boolean) As Double
    Int05 = Dll_Int05(v, CLng(half))
End Function

' v moved to the closest whole number or, with half, to the closest multiple of a half.
Public Function Int05c(ByVal v As Double, ByVal half As Boolean) As Double
    Int05c = Dll_Int05c(v, CLng(half))
End Function

' v moved down or up the number line to a whole number or, with half, to a multiple of a half.
Public Function Int05LU(ByVal v As Double, ByVal half As Boolean, _
    ByVal lower As Boolean) As Double
    Int05LU = Dll_Int05LU(v, CLng(half), CLng(lower))
End Function

' The straight line through (x1, y1) and (x2, y2), used in either direction.
Public Function LinearInterpol(ByVal x1 As Double, ByVal x2 As Double, ByVal y1 As Double, _
    ByVal y2 As Double, ByRef x As Double, ByRef y As Double, ByVal forward As Boolean) As Long
    LinearInterpol = Dll_LinearInterpol(x1, x2, y1, y2, x, y, CLng(forward))
End Function

' The parabola a * x^2 + b * x + c through three points, used in either direction.
Public Function QuadraticInterpol(ByVal x1 As Double, ByVal x2 As Double, ByVal x3 As Double, _
    ByVal y1 As Double, ByVal y2 As Double, ByVal y3 As Double, ByRef x As Double, _
    ByRef xSecond As Double, ByRef y As Double, ByVal forward As Boolean) As Long
    QuadraticInterpol = Dll_QuadraticInterpol(x1, x2, x3, y1, y2, y3, x, xSecond, y, _
        CLng(forward))
End Function

' Replaces every occurrence of pattern in text, which stays as it is; vbNullString for vbNullString.
' result tells what the library did to its copy of text.
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

' Sets the first count elements of an array to one decimal pattern of digits digits, the one before
' the point included. If digitsOverride is not -1, it counts in the place of digits.
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

' Returns a new host string, which the caller passes to TakeText once; 0 for vbNullString.
Public Function HostString(ByVal text As String) As LongPtr
    HostString = 0
    If StrPtr(text) <> 0 Then HostString = SysAllocString16(StrPtr(text))
End Function

' Releases a host string and returns its text; vbNullString for 0.
Public Function TakeText(ByVal handle As LongPtr) As String
    TakeText = TextOf(handle)
    Call releaseBSTR(handle)
End Function

' The text of a host string; vbNullString for 0.
Private Function TextOf(ByVal handle As LongPtr) As String
    Dim text As String
    TextOf = vbNullString
    If handle = 0 Then Exit Function
    text = Space(CLng(wcslen16(handle)))
    If Len(text) > 0 Then Call memmove(StrPtr(text), handle, 2 * Len(text))
    TextOf = text
End Function
