' Lines that must not compile with Option Strict On, and the compiler's errors.
Option Strict On
Imports QUVARDBS1C.Routines
Imports System.Math

Module Traps
    Sub Main()
        Dim u, v As Double
        Dim flag As Object = True
        ' A number instead of a flag: the library does not take 1 for True.
        LinearInterpol(1, 3, 2, 6, u, v, 1)  ' BC30512
        QuadraticInterpol(1, 2, 4, 0, 0, 6, u, u, v, -1)  ' BC30512
        Int05LU(2.6, True, 1)  ' BC30512
        Int05LU(2.6, True, flag)  ' BC30512
        VB_LocalAN2("linear", "Model", "US", True, False, 1)  ' BC30512
        ' The forms of the library itself, which return handles.
        Dll.VB_StrLeft("a", 1)  ' BC30389 BC30390
        QUVARDBS1C.Dll_VB_Replace(IntPtr.Zero, "-", "+")  ' BC30390
        ' A text instead of a handle, and a handle instead of a text.
        SwapStr("a", "b")  ' BC30512
        TakeText(VB_StrLeft("a", 1))  ' BC30512
        VB_StrLeft(HostString("a"), 1)  ' BC30512
        ' Names of the language's library do not change their meaning silently.
        u = Max(1.0, 2.0)  ' BC30561
        u = Min(1.0, 2.0)  ' BC30561
        u = Asin(1.0)  ' BC30561
        u = Log10(1.0)  ' BC30561
        u = Pi  ' BC30561
    End Sub
End Module
