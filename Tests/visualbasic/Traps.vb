' What must not compile under strict types, with the compiler's error beside it.
Option Strict On
Imports QUVARDBS1C.Routines
Imports System.Math

Module Traps
    Sub Main()
        Dim u, v As Double
        Dim flag As Object = True
        ' A number in the place of a flag: 1 is not True to the library.
        LinearInterpol(1, 3, 2, 6, u, v, 1)  ' BC30512
        QuadraticInterpol(1, 2, 4, 0, 0, 6, u, u, v, -1)  ' BC30512
        Int05LU(2.6, True, 1)  ' BC30512
        Int05LU(2.6, True, flag)  ' BC30512
        VB_LocalAN2("linear", "Model", "US", True, False, 1)  ' BC30512
        ' The library's own forms, which return handles.
        Dll.VB_StrLeft("a", 1)  ' BC30389 BC30390
        QUVARDBS1C.Dll_VB_Replace(IntPtr.Zero, "-", "+")  ' BC30390
        ' A text in the place of a handle, and the other way round.
        SwapStr("a", "b")  ' BC30512
        TakeText(VB_StrLeft("a", 1))  ' BC30512
        VB_StrLeft(HostString("a"), 1)  ' BC30512
        ' A name of the language's own library: no silent change of its meaning.
        u = Max(1.0, 2.0)  ' BC30561
        u = Min(1.0, 2.0)  ' BC30561
        u = Asin(1.0)  ' BC30561
        u = Log10(1.0)  ' BC30561
        u = Pi  ' BC30561
    End Sub
End Module
