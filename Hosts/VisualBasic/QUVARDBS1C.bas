Attribute VB_Name = "QUVARDBS1C"
Option Explicit

' The base library for Visual Basic for Applications of 64 bits on macOS: import this file into the
' project, and replace Lib "QUVARD by Lib "/the/folder/of/both/libraries/QUVARD everywhere in it.
'
' No such host has run this file. It is tested by a mechanical translation for the compiler of .NET:
' PtrSafe is dropped, LongPtr becomes IntPtr, Long becomes Integer, the two lines above become those
' of a module, and the library of memmove gets its name on the testing system. StrPtr is the test's.
'
' Texts are Strings on both sides. A result is a copy, and the host string that it came in is
' released at once: a caller has nothing to release. The null handle is vbNullString; as an argument
' it is the empty text unless a comment says otherwise. Texts end at their first ChrW(0). Lengths and
' positions count UTF-16 units, as Len and Mid do, and positions start at 1.
'
' Flags are Boolean. A number in their place turns into True or False first.
'
' Two names differ from the library's own: ModLng is Mod, an operator of the language, and SqrDbl is
' sqr, which would hide the language's function.

' What a call of VB_Replace gives.
Public Enum ReplaceResult
    NewString    ' a new host string; the text handed in is as it was
    TextChanged  ' a new host string; in the text handed in, units are replaced as well
    TextItself   ' no new host string but the text handed in: text or pattern is vbNullString
End Enum

' ---- Substrings, joins and trims ----

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

' ---- Removal ----

Private Declare PtrSafe Function Dll_VB_RemoveChar Lib "QUVARDBS1C.dll" Alias "VB_RemoveChar" ( _
    ByVal s As LongPtr, ByVal chars As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_RemoveNonNumericChar Lib "QUVARDBS1C.dll" _
    Alias "VB_RemoveNonNumericChar" ( _
    ByVal s As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_RemoveColon Lib "QUVARDBS1C.dll" Alias "VB_RemoveColon" ( _
    ByVal s As LongPtr) As LongPtr

' ---- Search and counting ----

Private Declare PtrSafe Function Dll_VB_CommonChar Lib "QUVARDBS1C.dll" Alias "VB_CommonChar" ( _
    ByVal text As LongPtr, ByVal chars As LongPtr) As Long
Private Declare PtrSafe Function Dll_ChrCount Lib "QUVARDBS1C.dll" Alias "ChrCount" ( _
    ByVal text As LongPtr, ByVal pattern As LongPtr) As Long

' ---- Slices by position and delimiter ----

Private Declare PtrSafe Function Dll_StrFromTo Lib "QUVARDBS1C.dll" Alias "StrFromTo" ( _
    ByVal text As LongPtr, ByVal from As Long, ByVal to_ As Long) As LongPtr
Private Declare PtrSafe Function Dll_StrBetween Lib "QUVARDBS1C.dll" Alias "StrBetween" ( _
    ByVal text As LongPtr, ByVal from As Long, ByVal to_ As Long) As LongPtr
Private Declare PtrSafe Function Dll_StrFromChrToChr Lib "QUVARDBS1C.dll" _
    Alias "StrFromChrToChr" ( _
    ByVal text As LongPtr, ByVal opening As LongPtr, ByVal closing As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_StrBetweenChrAndChr Lib "QUVARDBS1C.dll" _
    Alias "StrBetweenChrAndChr" ( _
    ByVal text As LongPtr, ByVal opening As LongPtr, ByVal closing As LongPtr) As LongPtr

' ---- Replacement ----

Private Declare PtrSafe Function Dll_VB_Replace Lib "QUVARDBS1C.dll" Alias "VB_Replace" ( _
    ByVal text As LongPtr, ByVal pattern As LongPtr, ByVal replacement As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_Replace2 Lib "QUVARDBS1C.dll" Alias "VB_Replace2" ( _
    ByVal text As LongPtr, ByVal pattern1 As LongPtr, ByVal replacement1 As LongPtr, _
    ByVal pattern2 As LongPtr, ByVal replacement2 As LongPtr) As LongPtr

' ---- Phrases of an adjective and a noun ----

Private Declare PtrSafe Function Dll_VB_LocalAN Lib "QUVARDBS1C.dll" Alias "VB_LocalAN" ( _
    ByVal adjective As LongPtr, ByVal noun As LongPtr, ByVal language As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_LocalAN2 Lib "QUVARDBS1C.dll" Alias "VB_LocalAN2" ( _
    ByVal adjective As LongPtr, ByVal noun As LongPtr, ByVal language As LongPtr, _
    ByVal upperAdjective As Long, ByVal lowerResult As Long, ByVal noBlank As Long) As LongPtr
Private Declare PtrSafe Function Dll_VB_LowerFirst Lib "QUVARDBS1C.dll" Alias "VB_LowerFirst" ( _
    ByVal text As LongPtr, ByVal language As LongPtr, ByVal forceDE As Long) As LongPtr
Private Declare PtrSafe Function Dll_VB_UpperFirst Lib "QUVARDBS1C.dll" Alias "VB_UpperFirst" ( _
    ByVal text As LongPtr) As LongPtr

' ---- Wrapping, inflection and markup tokens ----

Private Declare PtrSafe Function Dll_VB_SpStrSp Lib "QUVARDBS1C.dll" Alias "VB_SpStrSp" ( _
    ByVal text As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_PStrP Lib "QUVARDBS1C.dll" Alias "VB_PStrP" ( _
    ByVal text As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_BStrB Lib "QUVARDBS1C.dll" Alias "VB_BStrB" ( _
    ByVal text As LongPtr) As LongPtr
Private Declare PtrSafe Function Dll_VB_SingPlural Lib "QUVARDBS1C.dll" Alias "VB_SingPlural" ( _
    ByVal singular As LongPtr, ByVal plural As LongPtr, ByVal count As Long) As LongPtr
Private Declare PtrSafe Function Dll_VB_QUVARDHTMLProcessor Lib "QUVARDBS1C.dll" _
    Alias "VB_QUVARDHTMLProcessor" ( _
    ByVal text As LongPtr) As LongPtr

' ---- Number patterns ----

Private Declare PtrSafe Function Dll_Cpp_DecimalFormat Lib "QUVARDBS1C.dll" _
    Alias "Cpp_DecimalFormat" ( _
    ByVal decimals As Long) As LongPtr
Private Declare PtrSafe Sub Dll_VB_SetFormat Lib "QUVARDBS1C.dll" Alias "VB_SetFormat" ( _
    ByRef formats As LongPtr, ByVal count As Long, ByVal digits As Long, _
    ByVal digitsOverride As Long)
Private Declare PtrSafe Function Dll_VB_OutputFormat Lib "QUVARDBS1C.dll" _
    Alias "VB_OutputFormat" ( _
    ByVal value As Double) As LongPtr
Private Declare PtrSafe Function Dll_VB_OptimalFormat Lib "QUVARDBS1C.dll" _
    Alias "VB_OptimalFormat" ( _
    ByVal value As Double, ByVal decimals As Long, ByVal useExponent As Long, _
    ByVal keepDecimals As Long) As LongPtr

' ---- Elementary functions ----

' 3.14159265358979.
Public Declare PtrSafe Function Pi Lib "QUVARDBS1C.dll" () As Double
' The square root; -1.79769313486231E+308 below 0.
Public Declare PtrSafe Function SqrDbl Lib "QUVARDBS1C.dll" Alias "sqr" ( _
    ByVal x As Double) As Double
' The decimal logarithm.
Public Declare PtrSafe Function Log10 Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' base to the power of exponent.
Public Declare PtrSafe Function spow Lib "QUVARDBS1C.dll" ( _
    ByVal base As Double, ByVal exponent As Double) As Double
' exp(x) - 1; 1.79769313486231E+308 above 709.
Public Declare PtrSafe Function expm1x Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' The arcsine in radians of x from -1 to 1; beyond, a number close to 0.
Public Declare PtrSafe Function ASin Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' The lower one of two numbers; b if one is NaN.
Public Declare PtrSafe Function Min Lib "QUVARDBS1C.dll" ( _
    ByVal a As Double, ByVal b As Double) As Double
' The higher one of two numbers; b if one is NaN.
Public Declare PtrSafe Function Max Lib "QUVARDBS1C.dll" ( _
    ByVal a As Double, ByVal b As Double) As Double
' The sign of x as a number: 1, -1 or 0; NaN for an infinity.
Public Declare PtrSafe Function FSgn Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' The magnitude of a with the sign of b.
Public Declare PtrSafe Function FSign Lib "QUVARDBS1C.dll" ( _
    ByVal a As Double, ByVal b As Double) As Double
' ln(exp(a) + exp(b)), also where the exponentials leave the range of doubles.
Public Declare PtrSafe Function LogExpAPlusExpB Lib "QUVARDBS1C.dll" ( _
    ByVal a As Double, ByVal b As Double) As Double

' ---- Exchanges ----

' Exchanges two integers.
Public Declare PtrSafe Sub SwapLng Lib "QUVARDBS1C.dll" (ByRef a As Long, ByRef b As Long)
' Exchanges two doubles.
Public Declare PtrSafe Sub SwapDbl Lib "QUVARDBS1C.dll" (ByRef a As Double, ByRef b As Double)
' Exchanges two handles, which HostString makes.
Public Declare PtrSafe Sub SwapStr Lib "QUVARDBS1C.dll" (ByRef a As LongPtr, ByRef b As LongPtr)

' ---- Gamma function and combinatorics ----

' The natural logarithm of the gamma function, for x above 0.
Public Declare PtrSafe Function GammaLn Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
' n factorial; 1 below 2, infinity above 170.
Public Declare PtrSafe Function Fact Lib "QUVARDBS1C.dll" (ByVal n As Long) As Double
' The number of ways to choose k of n; 0 for k above n.
Public Declare PtrSafe Function Cnk Lib "QUVARDBS1C.dll" ( _
    ByVal n As Double, ByVal k As Double) As Double
' The sum of Cnk(n, k) for the whole k from from to to_.
Public Declare PtrSafe Function SumCnk Lib "QUVARDBS1C.dll" ( _
    ByVal n As Double, ByVal from As Double, ByVal to_ As Double) As Double

' ---- Whole numbers, remainders and divisors ----

' The floored remainder of a by b, which has the sign of b; a if b is 0.
Public Declare PtrSafe Function ModLng Lib "QUVARDBS1C.dll" Alias "Mod" ( _
    ByVal a As Long, ByVal b As Long) As Long
' The floored remainder of a by b; NaN if b is 0.
Public Declare PtrSafe Function ModDbl Lib "QUVARDBS1C.dll" ( _
    ByVal a As Double, ByVal b As Double) As Double
' The largest common divisor.
Public Declare PtrSafe Function LCD Lib "QUVARDBS1C.dll" (ByVal a As Long, ByVal b As Long) As Long
' The largest common divisor of two decimal numbers, for instance 0.25 of 0.5 and 0.75.
Public Declare PtrSafe Function LCDDbl Lib "QUVARDBS1C.dll" ( _
    ByVal a As Double, ByVal b As Double) As Double
Private Declare PtrSafe Function Dll_IsLong Lib "QUVARDBS1C.dll" Alias "IsLong" ( _
    ByVal x As Double) As Long
Private Declare PtrSafe Function Dll_IsLongP Lib "QUVARDBS1C.dll" Alias "IsLongP" ( _
    ByVal x As Double, ByVal tol As Double) As Long
Private Declare PtrSafe Function Dll_IsEven Lib "QUVARDBS1C.dll" Alias "IsEven" ( _
    ByVal x As Double) As Long
Private Declare PtrSafe Function Dll_IsEvenLng Lib "QUVARDBS1C.dll" Alias "IsEvenLng" ( _
    ByVal n As Long) As Long

' ---- Rounding to whole numbers and halves (half True) ----

Private Declare PtrSafe Function Dll_Int05 Lib "QUVARDBS1C.dll" Alias "Int05" ( _
    ByVal v As Double, ByVal half As Long) As Double
Private Declare PtrSafe Function Dll_Int05c Lib "QUVARDBS1C.dll" Alias "Int05c" ( _
    ByVal v As Double, ByVal half As Long) As Double
Private Declare PtrSafe Function Dll_Int05LU Lib "QUVARDBS1C.dll" Alias "Int05LU" ( _
    ByVal v As Double, ByVal half As Long, ByVal lower As Long) As Double

' ---- Interpolation ----

Private Declare PtrSafe Function Dll_LinearInterpol Lib "QUVARDBS1C.dll" Alias "LinearInterpol" ( _
    ByVal x1 As Double, ByVal x2 As Double, ByVal y1 As Double, ByVal y2 As Double, _
    ByRef x As Double, ByRef y As Double, ByVal forward As Long) As Long
Private Declare PtrSafe Function Dll_QuadraticInterpol Lib "QUVARDBS1C.dll" _
    Alias "QuadraticInterpol" ( _
    ByVal x1 As Double, ByVal x2 As Double, ByVal x3 As Double, ByVal y1 As Double, _
    ByVal y2 As Double, ByVal y3 As Double, ByRef x As Double, ByRef xSecond As Double, _
    ByRef y As Double, ByVal forward As Long) As Long

' ---- Host strings ----

Private Declare PtrSafe Function SysAllocString16 Lib "QUVARDCR1C.dll" ( _
    ByVal units As LongPtr) As LongPtr
Private Declare PtrSafe Function wcslen16 Lib "QUVARDCR1C.dll" (ByVal units As LongPtr) As LongPtr
Private Declare PtrSafe Sub releaseBSTR Lib "QUVARDCR1C.dll" (ByVal handle As LongPtr)

' Copies bytes.
Private Declare PtrSafe Sub memmove Lib "/usr/lib/libSystem.B.dylib" ( _
    ByVal target As LongPtr, ByVal source As LongPtr, ByVal size As LongPtr)

' ---- Substrings, joins and trims ----

' The first n units of s; all of s if n is negative or above its length.
Public Function VB_StrLeft(ByVal s As String, ByVal n As Long) As String
    VB_StrLeft = TakeText(Dll_VB_StrLeft(StrPtr(s), n))
End Function

' The last n units of s; all of s if n is negative or above its length.
Public Function VB_StrRight(ByVal s As String, ByVal n As Long) As String
    VB_StrRight = TakeText(Dll_VB_StrRight(StrPtr(s), n))
End Function

' The six texts joined, with nothing between them.
Public Function VB_StrConcat( _
    ByVal a As String, ByVal b As String, ByVal c As String, ByVal d As String, _
    ByVal e As String, ByVal f As String) As String
    VB_StrConcat = TakeText(Dll_VB_StrConcat( _
        StrPtr(a), StrPtr(b), StrPtr(c), StrPtr(d), StrPtr(e), StrPtr(f)))
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

' ---- Removal ----

' s after a removal that goes on until chars occurs nowhere: each step takes the first unit out of
' the leftmost occurrence. With chars of one unit, every such unit goes.
Public Function VB_RemoveChar(ByVal s As String, ByVal chars As String) As String
    VB_RemoveChar = TakeText(Dll_VB_RemoveChar(StrPtr(s), StrPtr(chars)))
End Function

' The digits 0 to 9 of s, in their order.
Public Function VB_RemoveNonNumericChar(ByVal s As String) As String
    VB_RemoveNonNumericChar = TakeText(Dll_VB_RemoveNonNumericChar(StrPtr(s)))
End Function

' s without any colon; vbNullString for vbNullString.
Public Function VB_RemoveColon(ByVal s As String) As String
    VB_RemoveColon = TakeText(Dll_VB_RemoveColon(StrPtr(s)))
End Function

' ---- Search and counting ----

' Whether text and chars have a unit in common.
Public Function VB_CommonChar(ByVal text As String, ByVal chars As String) As Boolean
    VB_CommonChar = Dll_VB_CommonChar(StrPtr(text), StrPtr(chars))
End Function

' The number of occurrences of pattern in text, which do not overlap; 0 if either is empty.
Public Function ChrCount(ByVal text As String, ByVal pattern As String) As Long
    ChrCount = Dll_ChrCount(StrPtr(text), StrPtr(pattern))
End Function

' ---- Slices by position and delimiter ----

' The units at positions from to to_, both included; empty unless 1 <= from <= to_ <= length.
Public Function StrFromTo(ByVal text As String, ByVal from As Long, ByVal to_ As Long) As String
    StrFromTo = TakeText(Dll_StrFromTo(StrPtr(text), from, to_))
End Function

' The units strictly between the positions from and to_; empty unless 1 <= from < to_ <= length.
Public Function StrBetween(ByVal text As String, ByVal from As Long, ByVal to_ As Long) As String
    StrBetween = TakeText(Dll_StrBetween(StrPtr(text), from, to_))
End Function

' The text from the first opening to the first closing, both included; empty if either is not
' found or closing comes first. Delimiters are of one unit each.
Public Function StrFromChrToChr( _
    ByVal text As String, ByVal opening As String, ByVal closing As String) As String
    StrFromChrToChr = TakeText(Dll_StrFromChrToChr(StrPtr(text), StrPtr(opening), StrPtr(closing)))
End Function

' What is between the first opening and the first closing after it; empty if either is not
' found. Delimiters are of one unit each.
Public Function StrBetweenChrAndChr( _
    ByVal text As String, ByVal opening As String, ByVal closing As String) As String
    StrBetweenChrAndChr = TakeText(Dll_StrBetweenChrAndChr( _
        StrPtr(text), StrPtr(opening), StrPtr(closing)))
End Function

' ---- Replacement ----

' text with every occurrence of pattern replaced; vbNullString for vbNullString. The caller's String
' is as it was in every case; result tells what the library did to the copy that it was given.
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

' text with every occurrence of pattern1 replaced, and then, in that result, of pattern2.
Public Function VB_Replace2( _
    ByVal text As String, ByVal pattern1 As String, ByVal replacement1 As String, _
    ByVal pattern2 As String, ByVal replacement2 As String) As String
    VB_Replace2 = TakeText(Dll_VB_Replace2( _
        StrPtr(text), StrPtr(pattern1), StrPtr(replacement1), StrPtr(pattern2), _
        StrPtr(replacement2)))
End Function

' ---- Phrases of an adjective and a noun ----
'
' A language is "ES", "FR", "IT", "PT", "PL", "US", "DE", "JP", "CS" or "CN".

' VB_LocalAN2 with upperAdjective alone True.
Public Function VB_LocalAN( _
    ByVal adjective As String, ByVal noun As String, ByVal language As String) As String
    VB_LocalAN = TakeText(Dll_VB_LocalAN(StrPtr(adjective), StrPtr(noun), StrPtr(language)))
End Function

' The phrase in the word order of the language; empty for any other language. upperAdjective
' raises the adjective's first unit (US, DE), lowerResult lowers the phrase's first unit (US and
' ES to PL), noBlank leaves the blank between the words out (not in US, DE).
Public Function VB_LocalAN2( _
    ByVal adjective As String, ByVal noun As String, ByVal language As String, _
    ByVal upperAdjective As Boolean, ByVal lowerResult As Boolean, _
    ByVal noBlank As Boolean) As String
    VB_LocalAN2 = TakeText(Dll_VB_LocalAN2( _
        StrPtr(adjective), StrPtr(noun), StrPtr(language), upperAdjective, lowerResult, noBlank))
End Function

' text with its first unit lower-cased; as it is in JP, and in DE unless forceDE is True.
Public Function VB_LowerFirst( _
    ByVal text As String, ByVal language As String, ByVal forceDE As Boolean) As String
    VB_LowerFirst = TakeText(Dll_VB_LowerFirst(StrPtr(text), StrPtr(language), forceDE))
End Function

' text with its first unit upper-cased.
Public Function VB_UpperFirst(ByVal text As String) As String
    VB_UpperFirst = TakeText(Dll_VB_UpperFirst(StrPtr(text)))
End Function

' ---- Wrapping, inflection and markup tokens ----

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

' singular if count is less than 2, else plural.
Public Function VB_SingPlural( _
    ByVal singular As String, ByVal plural As String, ByVal count As Long) As String
    VB_SingPlural = TakeText(Dll_VB_SingPlural(StrPtr(singular), StrPtr(plural), count))
End Function

' text with <BR> turned into a line feed, <QM> into a double quotation mark, <CM> into a comma.
Public Function VB_QUVARDHTMLProcessor(ByVal text As String) As String
    VB_QUVARDHTMLProcessor = TakeText(Dll_VB_QUVARDHTMLProcessor(StrPtr(text)))
End Function

' ---- Number patterns ----

' The pattern with a number of decimals.
Public Function Cpp_DecimalFormat(ByVal decimals As Long) As String
    Cpp_DecimalFormat = TakeText(Dll_Cpp_DecimalFormat(decimals))
End Function

' Sets the first count elements to the pattern of digits digits, the one before the point included.
' A digitsOverride other than -1 counts in the place of digits.
Public Sub VB_SetFormat( _
    ByRef formats() As String, ByVal count As Long, ByVal digits As Long, _
    ByVal digitsOverride As Long)
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

' The pattern that shows the decimals a value has, up to 19.
Public Function VB_OutputFormat(ByVal value As Double) As String
    VB_OutputFormat = TakeText(Dll_VB_OutputFormat(value))
End Function

' The pattern with a number of decimals; if useExponent is True, in scientific notation where the
' value is small for these decimals, or from 100000. keepDecimals keeps the decimals there.
Public Function VB_OptimalFormat( _
    ByVal value As Double, ByVal decimals As Long, ByVal useExponent As Boolean, _
    ByVal keepDecimals As Boolean) As String
    VB_OptimalFormat = TakeText(Dll_VB_OptimalFormat(value, decimals, useExponent, keepDecimals))
End Function

' ---- Whole numbers, remainders and divisors ----

' Whether x is a whole number within 1E-12.
Public Function IsLong(ByVal x As Double) As Boolean
    IsLong = Dll_IsLong(x)
End Function

' Whether x is a whole number within tol.
Public Function IsLongP(ByVal x As Double, ByVal tol As Double) As Boolean
    IsLongP = Dll_IsLongP(x, tol)
End Function

' Whether x is an even number.
Public Function IsEven(ByVal x As Double) As Boolean
    IsEven = Dll_IsEven(x)
End Function

' Whether n is even.
Public Function IsEvenLng(ByVal n As Long) As Boolean
    IsEvenLng = Dll_IsEvenLng(n)
End Function

' ---- Rounding to whole numbers and halves (half True) ----

' v moved away from zero.
Public Function Int05(ByVal v As Double, ByVal half As Boolean) As Double
    Int05 = Dll_Int05(v, half)
End Function

' v moved to the closest one.
Public Function Int05c(ByVal v As Double, ByVal half As Boolean) As Double
    Int05c = Dll_Int05c(v, half)
End Function

' v moved down if lower is True, otherwise up.
Public Function Int05LU(ByVal v As Double, ByVal half As Boolean, ByVal lower As Boolean) As Double
    Int05LU = Dll_Int05LU(v, half, lower)
End Function

' ---- Interpolation ----
'
' With forward True, y is set to the value at x; otherwise x to where the value is y. The result is
' 0, or -1 where the points do not allow it.

' The straight line through (x1, y1) and (x2, y2). With x1 equal to x2 it gives -1, x1 as x and
' the mean of y1 and y2 as y.
Public Function LinearInterpol( _
    ByVal x1 As Double, ByVal x2 As Double, ByVal y1 As Double, ByVal y2 As Double, _
    ByRef x As Double, ByRef y As Double, ByVal forward As Boolean) As Long
    LinearInterpol = Dll_LinearInterpol(x1, x2, y1, y2, x, y, forward)
End Function

' The parabola through three points. Backward, x is the lower root and xSecond the upper one; x
' is above xSecond exactly if the parabola does not reach y.
Public Function QuadraticInterpol( _
    ByVal x1 As Double, ByVal x2 As Double, ByVal x3 As Double, ByVal y1 As Double, _
    ByVal y2 As Double, ByVal y3 As Double, ByRef x As Double, ByRef xSecond As Double, _
    ByRef y As Double, ByVal forward As Boolean) As Long
    QuadraticInterpol = Dll_QuadraticInterpol(x1, x2, x3, y1, y2, y3, x, xSecond, y, forward)
End Function

' ---- Host strings ----

' A new host string with the text, which the caller owns; the null handle for vbNullString.
Public Function HostString(ByVal text As String) As LongPtr
    If StrPtr(text) <> 0 Then HostString = SysAllocString16(StrPtr(text))
End Function

' The text of a host string, which is released; vbNullString for the null handle.
Public Function TakeText(ByVal handle As LongPtr) As String
    TakeText = TextOf(handle)
    Call releaseBSTR(handle)
End Function

' The text of a host string, which stays as it is; vbNullString for the null handle.
Private Function TextOf(ByVal handle As LongPtr) As String
    Dim text As String
    TextOf = vbNullString
    If handle = 0 Then Exit Function
    text = Space(wcslen16(handle))
    If Len(text) > 0 Then Call memmove(StrPtr(text), handle, 2 * Len(text))
    TextOf = text
End Function
