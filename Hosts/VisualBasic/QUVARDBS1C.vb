' The base library for Visual Basic programs: add this file to the project, and keep QUVARDBS1C.dll
' and QUVARDCR1C.dll in the folder of the program.
'
' Texts are Strings on both sides. A result is a copy, and the host string that it came in is
' released at once: a caller has nothing to release. The null handle is the value Nothing; as an
' argument it is the empty text unless a comment says otherwise. Texts end at their first ChrW(0).
' Lengths and positions count UTF-16 units, as Len and Mid do, and positions start at 1.
'
' Flags are Boolean. A number in their place does not compile under Option Strict On; otherwise it
' turns into True or False first.
'
' Two names differ from the library's own: ModLng is Mod, an operator of the language, and SqrDbl is
' sqr, which hides a function of older Visual Basic.
Option Strict On
Option Explicit On
Option Compare Binary
Imports System.Runtime.InteropServices
Imports System.Runtime.InteropServices.UnmanagedType

Public Module QUVARDBS1C

    ' ---- Substrings, joins and trims ----

    ' The first n units of s; all of s if n is negative or above its length.
    Public Declare Function VB_StrLeft Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal s As String, ByVal n As Integer
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' The last n units of s; all of s if n is negative or above its length.
    Public Declare Function VB_StrRight Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal s As String, ByVal n As Integer
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' The six texts joined, with nothing between them.
    Public Declare Function VB_StrConcat Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal a As String, <MarshalAs(LPWStr)> ByVal b As String,
        <MarshalAs(LPWStr)> ByVal c As String, <MarshalAs(LPWStr)> ByVal d As String,
        <MarshalAs(LPWStr)> ByVal e As String, <MarshalAs(LPWStr)> ByVal f As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' s without its leading blanks.
    Public Declare Function VB_StrLTrim Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal s As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' s without its trailing blanks.
    Public Declare Function VB_StrRTrim Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal s As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' s without blanks at either end.
    Public Declare Function VB_StrLRTrim Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal s As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' ---- Removal ----

    ' s after a removal that goes on until chars occurs nowhere: each step takes the first unit out
    ' of the leftmost occurrence. With chars of one unit, every such unit goes.
    Public Declare Function VB_RemoveChar Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal s As String, <MarshalAs(LPWStr)> ByVal chars As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' The digits 0 to 9 of s, in their order.
    Public Declare Function VB_RemoveNonNumericChar Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal s As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' s without any colon; Nothing for Nothing.
    Public Declare Function VB_RemoveColon Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal s As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' ---- Search and counting ----

    ' Whether text and chars have a unit in common.
    Public Declare Function VB_CommonChar Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String, <MarshalAs(LPWStr)> ByVal chars As String
        ) As Boolean

    ' The number of occurrences of pattern in text, which do not overlap; 0 if either is empty.
    Public Declare Function ChrCount Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String, <MarshalAs(LPWStr)> ByVal pattern As String
        ) As Integer

    ' ---- Slices by position and delimiter ----

    ' The units at positions from to to_, both included; empty unless 1 <= from <= to_ <= length.
    Public Declare Function StrFromTo Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String, ByVal from As Integer, ByVal to_ As Integer
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' The units strictly between the positions from and to_; empty unless 1 <= from < to_ <= length.
    Public Declare Function StrBetween Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String, ByVal from As Integer, ByVal to_ As Integer
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' The text from the first opening to the first closing, both included; empty if either is not
    ' found or closing comes first. Delimiters are of one unit each.
    Public Declare Function StrFromChrToChr Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String, <MarshalAs(LPWStr)> ByVal opening As String,
        <MarshalAs(LPWStr)> ByVal closing As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' What is between the first opening and the first closing after it; empty if either is not
    ' found. Delimiters are of one unit each.
    Public Declare Function StrBetweenChrAndChr Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String, <MarshalAs(LPWStr)> ByVal opening As String,
        <MarshalAs(LPWStr)> ByVal closing As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' ---- Replacement ----

    ' It can write to its text, and a String never changes: so the texts are host strings here.
    Private Declare Function Dll_VB_Replace Lib "QUVARDBS1C.dll" Alias "VB_Replace" (
        ByVal text As IntPtr, ByVal pattern As IntPtr, ByVal replacement As IntPtr) As IntPtr

    ' What a call of VB_Replace gives.
    Public Enum ReplaceResult
        NewString    ' a new host string; the text handed in is as it was
        TextChanged  ' a new host string; in the text handed in, units are replaced as well
        TextItself   ' no new host string but the text handed in: text or pattern is Nothing
    End Enum

    ' text with every occurrence of pattern replaced; Nothing for Nothing. The caller's String is as
    ' it was in every case; result tells what the library did to the copy that it was given.
    Public Function VB_Replace(ByVal text As String, ByVal pattern As String,
                               ByVal replacement As String,
                               Optional ByRef result As ReplaceResult = ReplaceResult.NewString
                               ) As String
        Dim textHandle = HostString(text)
        Dim patternHandle = HostString(pattern)
        Dim replacementHandle = HostString(replacement)
        Dim before = Marshal.PtrToStringUni(textHandle)
        Dim handle = Dll_VB_Replace(textHandle, patternHandle, replacementHandle)
        VB_Replace = Marshal.PtrToStringUni(handle)
        If handle = textHandle Then
            result = ReplaceResult.TextItself
        Else
            releaseBSTR(handle)
            Dim isSame = Marshal.PtrToStringUni(textHandle) = before
            result = If(isSame, ReplaceResult.NewString, ReplaceResult.TextChanged)
        End If
        releaseBSTR(textHandle)
        releaseBSTR(patternHandle)
        releaseBSTR(replacementHandle)
    End Function

    ' text with every occurrence of pattern1 replaced, and then, in that result, of pattern2.
    Public Declare Function VB_Replace2 Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String, <MarshalAs(LPWStr)> ByVal pattern1 As String,
        <MarshalAs(LPWStr)> ByVal replacement1 As String,
        <MarshalAs(LPWStr)> ByVal pattern2 As String,
        <MarshalAs(LPWStr)> ByVal replacement2 As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' ---- Phrases of an adjective and a noun ----
    '
    ' A language is "ES", "FR", "IT", "PT", "PL", "US", "DE", "JP", "CS" or "CN".

    ' VB_LocalAN2 with upperAdjective alone True.
    Public Declare Function VB_LocalAN Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal adjective As String, <MarshalAs(LPWStr)> ByVal noun As String,
        <MarshalAs(LPWStr)> ByVal language As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' The phrase in the word order of the language; empty for any other language. upperAdjective
    ' raises the adjective's first unit (US, DE), lowerResult lowers the phrase's first unit (US and
    ' ES to PL), noBlank leaves the blank between the words out (not in US, DE).
    Public Declare Function VB_LocalAN2 Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal adjective As String, <MarshalAs(LPWStr)> ByVal noun As String,
        <MarshalAs(LPWStr)> ByVal language As String, ByVal upperAdjective As HostBool,
        ByVal lowerResult As HostBool, ByVal noBlank As HostBool
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' text with its first unit lower-cased; as it is in JP, and in DE unless forceDE is True.
    Public Declare Function VB_LowerFirst Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String, <MarshalAs(LPWStr)> ByVal language As String,
        ByVal forceDE As HostBool
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' text with its first unit upper-cased.
    Public Declare Function VB_UpperFirst Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' ---- Wrapping, inflection and markup tokens ----

    ' A blank, text, a blank.
    Public Declare Function VB_SpStrSp Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' text in parentheses.
    Public Declare Function VB_PStrP Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' text in square brackets.
    Public Declare Function VB_BStrB Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' singular if count is less than 2, else plural.
    Public Declare Function VB_SingPlural Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal singular As String, <MarshalAs(LPWStr)> ByVal plural As String,
        ByVal count As Integer
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' text with <BR> turned into a line feed, <QM> into a double quotation mark, <CM> into a comma.
    Public Declare Function VB_QUVARDHTMLProcessor Lib "QUVARDBS1C.dll" (
        <MarshalAs(LPWStr)> ByVal text As String
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' ---- Number patterns ----

    ' The pattern with a number of decimals.
    Public Declare Function Cpp_DecimalFormat Lib "QUVARDBS1C.dll" (
        ByVal decimals As Integer
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    Private Declare Sub Dll_VB_SetFormat Lib "QUVARDBS1C.dll" Alias "VB_SetFormat" (
        ByRef formats As IntPtr, ByVal count As Integer, ByVal digits As Integer,
        ByVal digitsOverride As Integer)

    ' Sets the first count elements to the pattern of digits digits, the one before the point
    ' included. A digitsOverride other than -1 counts in the place of digits.
    Public Sub VB_SetFormat(ByVal formats As String(), ByVal count As Integer,
                            ByVal digits As Integer, ByVal digitsOverride As Integer)
        If count < 1 Then Return
        If count > formats.Length Then Throw New ArgumentOutOfRangeException(NameOf(count))
        Dim elements(count - 1) As IntPtr
        Dll_VB_SetFormat(elements(0), count, digits, digitsOverride)
        For i = 0 To count - 1
            formats(i) = TakeText(elements(i))
        Next
    End Sub

    ' The pattern that shows the decimals a value has, up to 19.
    Public Declare Function VB_OutputFormat Lib "QUVARDBS1C.dll" (
        ByVal value As Double
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' The pattern with a number of decimals; if useExponent is True, in scientific notation where
    ' the value is small for these decimals, or from 100000. keepDecimals keeps the decimals there.
    Public Declare Function VB_OptimalFormat Lib "QUVARDBS1C.dll" (
        ByVal value As Double, ByVal decimals As Integer, ByVal useExponent As HostBool,
        ByVal keepDecimals As HostBool
        ) As <MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String

    ' ---- Elementary functions ----

    ' 3.14159265358979.
    Public Declare Function Pi Lib "QUVARDBS1C.dll" () As Double
    ' The square root; -1.79769313486231E+308 below 0.
    Public Declare Function SqrDbl Lib "QUVARDBS1C.dll" Alias "sqr" (ByVal x As Double) As Double
    ' The decimal logarithm.
    Public Declare Function Log10 Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
    ' base to the power of exponent.
    Public Declare Function spow Lib "QUVARDBS1C.dll" (
        ByVal base As Double, ByVal exponent As Double) As Double
    ' exp(x) - 1; 1.79769313486231E+308 above 709.
    Public Declare Function expm1x Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
    ' The arcsine in radians of x from -1 to 1; beyond, a number close to 0.
    Public Declare Function ASin Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
    ' The lower one of two numbers; b if one is NaN.
    Public Declare Function Min Lib "QUVARDBS1C.dll" (
        ByVal a As Double, ByVal b As Double) As Double
    ' The higher one of two numbers; b if one is NaN.
    Public Declare Function Max Lib "QUVARDBS1C.dll" (
        ByVal a As Double, ByVal b As Double) As Double
    ' The sign of x as a number: 1, -1 or 0; NaN for an infinity.
    Public Declare Function FSgn Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
    ' The magnitude of a with the sign of b.
    Public Declare Function FSign Lib "QUVARDBS1C.dll" (
        ByVal a As Double, ByVal b As Double) As Double
    ' ln(exp(a) + exp(b)), also where the exponentials leave the range of doubles.
    Public Declare Function LogExpAPlusExpB Lib "QUVARDBS1C.dll" (
        ByVal a As Double, ByVal b As Double) As Double

    ' ---- Exchanges ----

    ' Exchanges two integers.
    Public Declare Sub SwapLng Lib "QUVARDBS1C.dll" (ByRef a As Integer, ByRef b As Integer)
    ' Exchanges two doubles.
    Public Declare Sub SwapDbl Lib "QUVARDBS1C.dll" (ByRef a As Double, ByRef b As Double)
    ' Exchanges two handles, which HostString makes.
    Public Declare Sub SwapStr Lib "QUVARDBS1C.dll" (ByRef a As IntPtr, ByRef b As IntPtr)

    ' ---- Gamma function and combinatorics ----

    ' The natural logarithm of the gamma function, for x above 0.
    Public Declare Function GammaLn Lib "QUVARDBS1C.dll" (ByVal x As Double) As Double
    ' n factorial; 1 below 2, infinity above 170.
    Public Declare Function Fact Lib "QUVARDBS1C.dll" (ByVal n As Integer) As Double
    ' The number of ways to choose k of n; 0 for k above n.
    Public Declare Function Cnk Lib "QUVARDBS1C.dll" (
        ByVal n As Double, ByVal k As Double) As Double
    ' The sum of Cnk(n, k) for the whole k from from to to_.
    Public Declare Function SumCnk Lib "QUVARDBS1C.dll" (
        ByVal n As Double, ByVal from As Double, ByVal to_ As Double) As Double

    ' ---- Whole numbers, remainders and divisors ----

    ' The floored remainder of a by b, which has the sign of b; a if b is 0.
    Public Declare Function ModLng Lib "QUVARDBS1C.dll" Alias "Mod" (
        ByVal a As Integer, ByVal b As Integer) As Integer
    ' The floored remainder of a by b; NaN if b is 0.
    Public Declare Function ModDbl Lib "QUVARDBS1C.dll" (
        ByVal a As Double, ByVal b As Double) As Double
    ' The largest common divisor.
    Public Declare Function LCD Lib "QUVARDBS1C.dll" (
        ByVal a As Integer, ByVal b As Integer) As Integer
    ' The largest common divisor of two decimal numbers, for instance 0.25 of 0.5 and 0.75.
    Public Declare Function LCDDbl Lib "QUVARDBS1C.dll" (
        ByVal a As Double, ByVal b As Double) As Double
    ' Whether x is a whole number within 1E-12.
    Public Declare Function IsLong Lib "QUVARDBS1C.dll" (ByVal x As Double) As Boolean
    ' Whether x is a whole number within tol.
    Public Declare Function IsLongP Lib "QUVARDBS1C.dll" (
        ByVal x As Double, ByVal tol As Double) As Boolean
    ' Whether x is an even number.
    Public Declare Function IsEven Lib "QUVARDBS1C.dll" (ByVal x As Double) As Boolean
    ' Whether n is even.
    Public Declare Function IsEvenLng Lib "QUVARDBS1C.dll" (ByVal n As Integer) As Boolean

    ' ---- Rounding to whole numbers and halves (half True) ----

    ' v moved away from zero.
    Public Declare Function Int05 Lib "QUVARDBS1C.dll" (
        ByVal v As Double, ByVal half As HostBool) As Double
    ' v moved to the closest one.
    Public Declare Function Int05c Lib "QUVARDBS1C.dll" (
        ByVal v As Double, ByVal half As HostBool) As Double
    ' v moved down if lower is True, otherwise up.
    Public Declare Function Int05LU Lib "QUVARDBS1C.dll" (
        ByVal v As Double, ByVal half As HostBool, ByVal lower As HostBool) As Double

    ' ---- Interpolation ----
    '
    ' With forward True, y is set to the value at x; otherwise x to where the value is y. The result
    ' is 0, or -1 where the points do not allow it.

    ' The straight line through (x1, y1) and (x2, y2). With x1 equal to x2 it gives -1, x1 as x and
    ' the mean of y1 and y2 as y.
    Public Declare Function LinearInterpol Lib "QUVARDBS1C.dll" (
        ByVal x1 As Double, ByVal x2 As Double, ByVal y1 As Double, ByVal y2 As Double,
        ByRef x As Double, ByRef y As Double, ByVal forward As HostBool) As Integer

    ' The parabola through three points. Backward, x is the lower root and xSecond the upper one; x
    ' is above xSecond exactly if the parabola does not reach y.
    Public Declare Function QuadraticInterpol Lib "QUVARDBS1C.dll" (
        ByVal x1 As Double, ByVal x2 As Double, ByVal x3 As Double,
        ByVal y1 As Double, ByVal y2 As Double, ByVal y3 As Double,
        ByRef x As Double, ByRef xSecond As Double, ByRef y As Double,
        ByVal forward As HostBool) As Integer

    ' ---- Host strings ----

    Private Declare Function SysAllocString16 Lib "QUVARDCR1C.dll" (
        <MarshalAs(LPWStr)> ByVal units As String) As IntPtr

    Private Declare Sub releaseBSTR Lib "QUVARDCR1C.dll" (ByVal handle As IntPtr)

    ' A new host string with the text, which the caller owns; the null handle for Nothing.
    Public Function HostString(ByVal text As String) As IntPtr
        Return If(text Is Nothing, IntPtr.Zero, SysAllocString16(text))
    End Function

    ' The text of a host string, which is released; Nothing for the null handle.
    Public Function TakeText(ByVal handle As IntPtr) As String
        Try
            Return Marshal.PtrToStringUni(handle)
        Finally
            releaseBSTR(handle)
        End Try
    End Function

    ' A flag as the library takes it: True is -1. A Boolean by itself would arrive as 1.
    Public Structure HostBool
        Private ReadOnly bits As Integer
        Private Sub New(ByVal bits As Integer)
            Me.bits = bits
        End Sub
        Public Shared Widening Operator CType(ByVal flag As Boolean) As HostBool
            Return New HostBool(If(flag, -1, 0))
        End Operator
    End Structure

    ' Turns the host string that results into a String, and releases it.
    Public NotInheritable Class HostText
        Implements ICustomMarshaler
        Private Shared ReadOnly Instance As New HostText

        Public Shared Function GetInstance(ByVal cookie As String) As ICustomMarshaler
            Return Instance
        End Function
        Public Function MarshalNativeToManaged(ByVal handle As IntPtr) As Object _
            Implements ICustomMarshaler.MarshalNativeToManaged
            Return Marshal.PtrToStringUni(handle)
        End Function
        Public Sub CleanUpNativeData(ByVal handle As IntPtr) _
            Implements ICustomMarshaler.CleanUpNativeData
            releaseBSTR(handle)
        End Sub
        Public Function GetNativeDataSize() As Integer Implements ICustomMarshaler.GetNativeDataSize
            Return -1
        End Function

        ' Never called: arguments do not pass through here.
        Public Function MarshalManagedToNative(ByVal text As Object) As IntPtr _
            Implements ICustomMarshaler.MarshalManagedToNative
            Throw New NotSupportedException
        End Function
        Public Sub CleanUpManagedData(ByVal text As Object) _
            Implements ICustomMarshaler.CleanUpManagedData
        End Sub
    End Class

End Module
