' The cost of the declarations, compared with the minimum of a call from .NET: DllImport, PtrToStringUni and
' the release. Measures both alternately, prints the medians, and fails above the limits.
Option Strict On
Imports QUVARDBS1C.Routines
Imports System.Runtime.InteropServices

Module Speed
    Private Const Rounds = 201, Calls = 2000
    Private Failed As Boolean

    Private Class Plain
        <DllImport("QUVARDBS1C.dll", CharSet:=CharSet.Unicode)>
        Shared Function VB_StrLeft(s As String, n As Integer) As IntPtr
        End Function
        <DllImport("QUVARDBS1C.dll", CharSet:=CharSet.Unicode)>
        Shared Function VB_LocalAN2(adjective As String, noun As String, language As String,
                                    upper As Integer, lower As Integer, noBlank As Integer) As IntPtr
        End Function
        <DllImport("QUVARDBS1C.dll", CharSet:=CharSet.Unicode)>
        Shared Function VB_Replace(text As IntPtr, pattern As String, replacement As String) As IntPtr
        End Function
        <DllImport("QUVARDBS1C.dll")>
        Shared Function Min(a As Double, b As Double) As Double
        End Function
        <DllImport("QUVARDBS1C.dll")>
        Shared Function Int05(v As Double, half As Integer) As Double
        End Function
        <DllImport("QUVARDBS1C.dll")>
        Shared Function LinearInterpol(x1 As Double, x2 As Double, y1 As Double, y2 As Double,
                                       ByRef x As Double, ByRef y As Double, forward As Integer) As Integer
        End Function
        <DllImport("QUVARDCR1C.dll", CharSet:=CharSet.Unicode)>
        Shared Function SysAllocString16(text As String) As IntPtr
        End Function
        <DllImport("QUVARDCR1C.dll")>
        Shared Sub releaseBSTR(handle As IntPtr)
        End Sub
        Shared Function Taken(handle As IntPtr) As String
            Taken = Marshal.PtrToStringUni(handle)
            releaseBSTR(handle)
        End Function
    End Class

    Function Main() As Integer
        Dim x = 2.0, y = 0.0
        Compare("VB_StrLeft", 1.3, Function() VB_StrLeft("Residuals", 3),
                Function() Plain.Taken(Plain.VB_StrLeft("Residuals", 3)))
        Compare("VB_LocalAN2", 1.3, Function() VB_LocalAN2("linear", "Model", "ES"),
                Function() Plain.Taken(Plain.VB_LocalAN2("linear", "Model", "ES", -1, 0, 0)))
        Compare("VB_Replace", 1.3, Function() VB_Replace("a,b,c", ",", "; "),
                Function()
                    Dim text = Plain.SysAllocString16("a,b,c")
                    Dim result = Plain.Taken(Plain.VB_Replace(text, ",", "; "))
                    Plain.releaseBSTR(text)
                    Return result
                End Function)
        Compare("VB_Replace 1-1", 1.3, Function() VB_Replace("a,b,c", ",", ";"),
                Function()
                    Dim text = Plain.SysAllocString16("a,b,c")
                    Dim result = Plain.Taken(Plain.VB_Replace(text, ",", ";"))
                    Plain.releaseBSTR(text)
                    Return result
                End Function)
        Compare("Min", 1.5, Function() Min(x, 1), Function() Plain.Min(x, 1))
        Compare("Int05", 1.5, Function() Int05(x, True), Function() Plain.Int05(x, -1))
        Compare("LinearInterpol", 1.5, Function() LinearInterpol(1, 3, 2, 6, x, y, True),
                Function() Plain.LinearInterpol(1, 3, 2, 6, x, y, -1))
        Return If(Failed, 1, 0)
    End Function

    Private Sub Compare(Of T)(name As String, limit As Double, declared As Func(Of T), plain As Func(Of T))
        Dim ratio As Double
        ' Again, in case other processes ran at the same time.
        For attempt = 1 To 3
            Dim declaredTimes As New List(Of Double), plainTimes As New List(Of Double)
            For round = 1 To Rounds
                declaredTimes.Add(Nanoseconds(declared))
                plainTimes.Add(Nanoseconds(plain))
            Next
            Dim times = {Median(declaredTimes), Median(plainTimes)}
            ratio = times(0) / times(1)
            Console.WriteLine($"{name,-16}{times(0),8:0.0} ns{times(1),8:0.0} ns{ratio,8:0.00}, limit {limit}")
            If ratio <= limit Then Return
        Next
        Failed = True
    End Sub

    Private Function Nanoseconds(Of T)(action As Func(Of T)) As Double
        Dim start = Stopwatch.GetTimestamp()
        For i = 1 To Calls
            action()
        Next
        Return Stopwatch.GetElapsedTime(start).TotalNanoseconds / Calls
    End Function

    ' Of the second half, since the first rounds run before the compiler optimises.
    Private Function Median(times As List(Of Double)) As Double
        Return times.Skip(Rounds \ 2).OrderBy(Function(time) time).ElementAt(Rounds \ 4)
    End Function
End Module
