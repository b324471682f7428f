' What must not compile under strict types, with the compiler's error beside it.
Option Strict On

Module Traps
    Sub Main()
        Dim x, y As Double
        Dim flag As Object = True
        ' A number in the place of a flag: 1 is not True to the library.
        LinearInterpol(1, 3, 2, 6, x, y, 1)  ' BC30512
        QuadraticInterpol(1, 2, 4, 0, 0, 6, x, x, y, -1)  ' BC30512
        Int05LU(2.6, True, 1)  ' BC30512
        Int05LU(2.6, True, flag)  ' BC30512
        VB_LocalAN2("linear", "Model", "US", True, False, 1)  ' BC30512
        ' A String in the place of a host string, whose units the library changes.
        Dll_VB_Replace("a-b-c", "-", "+")  ' BC30390 BC30512
        QUVARDBS1C.Dll_VB_Replace("a-b-c", "-", "+")  ' BC30390 BC30512
        ' A text in the place of a handle, and the other way round.
        SwapStr("a", "b")  ' BC30512
        TakeText(VB_StrLeft("a", 1))  ' BC30512
        VB_StrLeft(HostString("a"), 1)  ' BC30512
    End Sub
End Module
