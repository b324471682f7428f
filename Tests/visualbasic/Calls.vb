' Calls each routine through a declaration file, with arguments that tell their places apart.
Option Strict On
Imports System.Runtime.CompilerServices

Module Calls
    Private Failures As Integer

    Function Main() As Integer
        CallTexts()
        CallPhrases()
        CallPatterns()
        CallNumerics()
        CallVBReplace()
        PassUnusualTexts()
        PassFlagsLoosely()
        MakeManyResults()
        Return Math.Min(Failures, 1)
    End Function

    Sub Expect(Of T)(actual As T, expected As T,
                     <CallerArgumentExpression("actual")> Optional expression As String = "")
        If Equals(actual, expected) Then Return
        Failures += 1
        Console.WriteLine(expression & ": expected " & Shown(expected) & ", got " & Shown(actual))
    End Sub

    Private Function Shown(value As Object) As String
        If value Is Nothing Then Return "Nothing"
        If TypeOf value Is String Then Return """" & CStr(value) & """"
        Return value.ToString()
    End Function

    Private Sub CallTexts()
        Expect(VB_StrLeft("Hello", 2), "He")
        Expect(VB_StrRight("Hello", 2), "lo")
        Expect(VB_StrConcat("a", "b", "c", "d", "e", "f"), "abcdef")
        Expect(VB_StrLTrim("  a b  "), "a b  ")
        Expect(VB_StrRTrim("  a b  "), "  a b")
        Expect(VB_StrLRTrim("  a b  "), "a b")
        Expect(VB_RemoveChar("a-b-c", "-"), "abc")
        Expect(VB_RemoveNonNumericChar("1,234.50"), "123450")
        Expect(VB_RemoveColon(" a:b "), " ab ")
        Expect(VB_CommonChar("abc", "xyzb"), True)
        Expect(VB_CommonChar("abc", "xyz"), False)
        Expect(ChrCount("a,b,c", ","), 2)
        Expect(StrFromTo("abcdef", 2, 5), "bcde")
        Expect(StrBetween("abcdef", 2, 5), "cd")
        Expect(StrFromChrToChr("a(b)c", "(", ")"), "(b)")
        Expect(StrBetweenChrAndChr("a(b)c", "(", ")"), "b")
        Expect(VB_Replace2("x=1;y=2", "=", ": ", ";", ", "), "x: 1, y: 2")
        Expect(VB_SpStrSp("and"), " and ")
        Expect(VB_PStrP("units"), "(units)")
        Expect(VB_BStrB("1"), "[1]")
        Expect(VB_SingPlural("case", "cases", 1), "case")
        Expect(VB_SingPlural("case", "cases", 2), "cases")
        Expect(VB_QUVARDHTMLProcessor("<QM>a<CM> b<BR>"), """a, b" & ChrW(10))
    End Sub

    Private Sub CallPhrases()
        Expect(VB_LocalAN("linear", "Model", "ES"), "Model linear")
        Expect(VB_LocalAN2("linear", "Model", "US", True, False, False), "Linear model")
        Expect(VB_LocalAN2("linear", "Model", "ES", False, True, False), "model linear")
        Expect(VB_LocalAN2("linear", "Model", "JP", False, False, True), "linearModel")
        Expect(VB_LowerFirst("Model", "DE", False), "Model")
        Expect(VB_LowerFirst("Model", "DE", True), "model")
        Expect(VB_UpperFirst("linear"), "Linear")
    End Sub

    Private Sub CallPatterns()
        Expect(Cpp_DecimalFormat(2), "0.00")
        Expect(VB_OutputFormat(0.5), "0.###################")
        Expect(VB_OptimalFormat(123456.5, 2, True, True), "0.00E+0")
        Expect(VB_OptimalFormat(123456.5, 2, False, True), "0.00")
        Expect(VB_OptimalFormat(200000, 2, True, False), "0E+0")

        Dim formats() As String = {"a", "b", "c"}
        VB_SetFormat(formats, 2, 4, -1)
        Expect(String.Join(" ", formats), "0.000 0.000 c")
        VB_SetFormat(formats, 1, 4, 2)
        Expect(String.Join(" ", formats), "0.0 0.000 c")
        VB_SetFormat(formats, 0, 4, 2)
        Expect(String.Join(" ", formats), "0.0 0.000 c")
        Dim refused As Boolean
        Try
            VB_SetFormat(formats, 4, 2, -1)
        Catch
            refused = True
        End Try
        Expect(refused, True)
    End Sub

    Private Sub CallNumerics()
        Expect(Pi(), 3.14159265358979)
        Expect(SqrDbl(16), 4.0)
        Expect(Log10(1000), 3.0)
        Expect(spow(2, 10), 1024.0)
        Expect(expm1x(0.000001), 0.0000010000004999999999)
        Expect(ASin(1), 1.570796326794895)
        Expect(Min(2, 1), 1.0)
        Expect(Max(2, 1), 2.0)
        Expect(FSgn(-0.25), -1.0)
        Expect(FSign(3, -1), -3.0)
        Expect(LogExpAPlusExpB(1000, 1000), 1000.6931471805599)
        Expect(GammaLn(1), 0.0)
        Expect(Fact(5), 120.0)
        Expect(Cnk(49, 6), 13983816.0)
        Expect(SumCnk(5, 2, 3), 20.0)
        Expect(ModLng(-7, 3), 2)
        Expect(ModDbl(-7.5, 2), 0.5)
        Expect(LCD(-12, 18), 6)
        Expect(LCDDbl(0.5, 0.75), 0.25)
        Expect(IsLong(3.0000000000009), True)
        Expect(IsLong(3.1), False)
        Expect(IsLongP(2.75, 0.25), True)
        Expect(IsEven(3), False)
        Expect(IsEvenLng(4), True)
        Expect(Int05(2.1, True), 2.5)
        Expect(Int05(2.1, False), 3.0)
        Expect(Int05c(2.4, True), 2.5)
        Expect(Int05LU(2.6, True, True), 2.5)
        Expect(Int05LU(2.6, True, False), 3.0)
        Expect(Int05LU(2.6, False, True), 2.0)

        Expect(SwapLngOf(1, 2), "2 1")
        Expect(SwapDblOf(1.5, 2.5), "2.5 1.5")
        Expect(LinearInterpolOf(2, 0, True), "0: 2 4")
        Expect(LinearInterpolOf(0, 6, False), "0: 3 6")
        Expect(QuadraticInterpolOf(3, 0, 0, True), "0: 3 0 2")
        Expect(QuadraticInterpolOf(0, 0, 6, False), "0: -1 4 6")
    End Sub

    Private Function SwapLngOf(a As Integer, b As Integer) As String
        SwapLng(a, b)
        Return a & " " & b
    End Function

    Private Function SwapDblOf(a As Double, b As Double) As String
        SwapDbl(a, b)
        Return a & " " & b
    End Function

    Private Function LinearInterpolOf(x As Double, y As Double, forward As Boolean) As String
        Return LinearInterpol(1, 3, 2, 6, x, y, forward) & ": " & x & " " & y
    End Function

    Private Function QuadraticInterpolOf(x As Double, xSecond As Double, y As Double,
                                         forward As Boolean) As String
        Return QuadraticInterpol(1, 2, 4, 0, 0, 6, x, xSecond, y, forward) &
            ": " & x & " " & xSecond & " " & y
    End Function

    ' The caller's String stays as it was whatever the library does to the host string.
    Private Sub CallVBReplace()
        Dim text = "a-b-c"
        Dim result As ReplaceResult
        Expect(VB_Replace(text, "-", "--", result), "a--b--c")
        Expect(result, ReplaceResult.NewString)
        Expect(VB_Replace(text, "x", "y", result), "a-b-c")
        Expect(result, ReplaceResult.NewString)
        Expect(VB_Replace(text, "-", "+", result), "a+b+c")
        Expect(result, ReplaceResult.TextChanged)
        Expect(VB_Replace(text, Nothing, "+", result), "a-b-c")
        Expect(result, ReplaceResult.TextItself)
        Expect(VB_Replace(Nothing, "-", "+", result), Nothing)
        Expect(result, ReplaceResult.TextItself)
        Expect(VB_Replace(text, "-", Nothing), "abc")
        Expect(text, "a-b-c")
        Expect("a-b-c", String.Concat("a-", "b-c"))
    End Sub

    Private Sub PassUnusualTexts()
        Dim clef = Char.ConvertFromUtf32(&H1D11E)
        Expect(VB_StrLeft(clef & "x", 2), clef)
        Expect(VB_StrRight(clef, 1), clef.Substring(1))
        Expect(VB_Replace(clef & "x", "x", clef), clef & clef)
        Expect(VB_StrLeft("a" & ChrW(0) & "b", 3), "a")
        Expect(VB_StrConcat("", "", "", "", "", ""), "")
        Expect(VB_StrConcat(Nothing, "b", Nothing, "d", Nothing, Nothing), "bd")
        Expect(VB_SingPlural(Nothing, Nothing, 1), "")
        Expect(VB_RemoveColon(""), "")
        Expect(VB_RemoveColon(Nothing), Nothing)
        Expect(ChrCount(Nothing, "a"), 0)

        Dim first = HostString(clef), second = HostString("")
        SwapStr(first, second)
        Expect(TakeText(second), clef)
        Expect(TakeText(first), "")
        Expect(TakeText(HostString(Nothing)), Nothing)
    End Sub

    ' 800 MB of host strings, if none were released.
    Private Sub MakeManyResults()
        Const Decimals = 1000000
        Dim formats(0) As String
        Dim before = Environment.WorkingSet
        For i = 1 To 50
            VB_SetFormat(formats, 1, Decimals, -1)
            VB_Replace(formats(0), "0", "1")
            VB_Replace(formats(0), "00", "1")
            VB_Replace(Cpp_DecimalFormat(Decimals), Nothing, Nothing)
            TakeText(HostString(formats(0)))
        Next
        GC.Collect()
        Dim megabytesKept = (Environment.WorkingSet - before) \ 1000000
        If megabytesKept > 300 Then Expect(megabytesKept, 0L)
    End Sub
End Module
