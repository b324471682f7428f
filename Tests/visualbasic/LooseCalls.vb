' Flags are True or False without Option Strict, too.
Option Strict Off
Option Explicit Off
Option Infer Off
Imports QUVARDBS1C
Imports System.Math

Module LooseCalls
    Sub PassFlagsLoosely()
        Dim yes As Boolean = True
        Dim x As Double = 2
        Dim flag As Object = True
        Dim text As Object = "linear"
        Expect(Int05LU(2.6, True, yes), 2.5)
        Expect(Int05LU(2.6, True, x = 2), 2.5)
        Expect(Int05LU(2.6, True, 1), 2.5)
        Expect(Int05LU(2.6, True, x), 2.5)
        Expect(Int05LU("2.6", True, Not yes), 3.0)
        Expect(Int05LU(2.6, flag, Not flag), 3.0)
        Expect(VB_LocalAN2(text, "Model", "US", flag), "Linear model")
        Expect(VB_LocalAN2(text, "Model", "US"), "Linear model")
        Expect(VB_LocalAN2(text, "Model", "US", upperAdjective:=False), "linear model")
        Expect(VB_LowerFirst("Model", "DE"), "Model")
        Expect(VB_StrLeft(12345, 2.2), "12")
        ' Imports System.Math has a routine of the same name.
        Expect(Max(Double.NaN, 1), Double.NaN)
    End Sub
End Module
