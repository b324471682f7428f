' Calls through a declaration file: the examples in docs/visual-basic-routines.md and further cases.
Option Strict On
Imports QUVARDBS1C.Routines

Partial Module Calls
    Private Failures As Integer

    Function Main() As Integer
        RunExamples()
        CallPatterns()
        CallNumerics()
        CallVBReplace()
        PassUnusualTexts()
        PassFlagsLoosely()
        CallNet()
        MakeManyResults()
        Return Math.Min(Failures, 1)
    End Function

    ' What only .NET has.
    Partial Private Sub CallNet()
    End Sub

    Sub Expect(Of T)(actual As T, expected As T,
                     <System.Runtime.CompilerServices.CallerArgumentExpression("actual")>
                     Optional expression As String = "")
        If Equals(actual, expected) Then Return
        Failures += 1
        Console.WriteLine(expression & ": expected " & Shown(expected) & ", got " & Shown(actual))
    End Sub

    ' The type of the exception that an action throws and, for a wrong argument, the parameter.
    Function Thrown(action As Action) As String
        Try
            action()
            Return "nothing"
        Catch problem As Exception
            Return problem.GetType().Name & " " & TryCast(problem, ArgumentException)?.ParamName
        End Try
    End Function

    Private Function Shown(value As Object) As String
        If value Is Nothing Then Return "Nothing"
        If TypeOf value Is String Then Return """" & CStr(value) & """"
        Return value.ToString()
    End Function

    Private Sub CallPatterns()
        Expect(VB_OptimalFormat(123456.5, 2, True, True), "0.00E+0")
        Expect(VB_OptimalFormat(200000, 2, True, False), "0E+0")

        Dim formats() As String = {"a", "b", "c"}
        VB_SetFormat(formats, 2, 4)
        Expect(String.Join(" ", formats), "0.000 0.000 c")
        VB_SetFormat(formats, 1, 4, 2)
        Expect(String.Join(" ", formats), "0.0 0.000 c")
        VB_SetFormat(formats, 0, 4, 2)
        Expect(String.Join(" ", formats), "0.0 0.000 c")
        Expect(Thrown(Sub() VB_SetFormat(formats, 4, 2)) = "nothing", False)
    End Sub

    Private Sub CallNumerics()
        Dim x, xSecond, y As Double
        y = 6
        Expect(LinearInterpol(1, 3, 2, 6, x, y, False), 0)
        Expect(x, 3.0)
        Expect(LinearInterpol(1, 1, 2, 6, x, y, False), -1)
        y = 6
        Expect(QuadraticInterpol(1, 2, 4, 0, 0, 6, x, xSecond, y, False), 0)
        Expect(x, -1.0)
        Expect(xSecond, 4.0)
        Expect(Int05(2.1, False), 3.0)
        Expect(Int05LU(2.6, True, False), 3.0)
        Expect(IsLongP(2.75, 0.2), False)
    End Sub

    ' The caller's String does not change, even if the library changes the host string.
    Private Sub CallVBReplace()
        Dim text = "a-b-c"
        Dim result As ReplaceResult
        Expect(VB_Replace(text, "-", "--", result), "a--b--c")
        Expect(result, ReplaceResult.NewString)
        Expect(VB_Replace(text, "x", "y", result), "a-b-c")
        Expect(result, ReplaceResult.NewString)
        Expect(VB_Replace(text, "-", "+", result), "a+b+c")
        Expect(result, ReplaceResult.TextChanged)
        Expect(VB_Replace(text & ChrW(0) & "-", "x", "y", result), "a-b-c")
        Expect(result, ReplaceResult.NewString)
        Expect(VB_Replace(text & ChrW(0) & "x", "-", ChrW(&HFFFF), result).Length, 5)
        Expect(result, ReplaceResult.TextChanged)
        Expect(VB_Replace(text, "", "+", result), "a-b-c")
        Expect(result, ReplaceResult.NewString)
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
    End Sub

    ' 800 MB of host strings if none is released.
    Private Sub MakeManyResults()
        Const Decimals = 1000000
        Dim formats(0) As String
        Dim before = Environment.WorkingSet
        For i = 1 To 50
            VB_SetFormat(formats, 1, Decimals)
            VB_Replace(formats(0), "0", "1")
            VB_Replace(formats(0), "00", "1")
            VB_Replace(Cpp_DecimalFormat(Decimals), Nothing, Nothing)
            TakeText(HostString(formats(0)))
        Next
        GC.Collect()
        Dim megabytes = (Environment.WorkingSet - before) \ 1000000
        If megabytes > 300 Then Expect(megabytes, 0L)
    End Sub
End Module
