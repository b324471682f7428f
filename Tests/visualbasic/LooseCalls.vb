' A flag is True or False without strict types too.
Option Strict Off
Option Explicit Off
Option Infer Off

Module LooseCalls
    Sub PassFlagsLoosely()
        Dim yes As Boolean = True
        Dim x As Double = 2
        Expect(Int05LU(2.6, True, yes), 2.5)
        Expect(Int05LU(2.6, True, x = 2), 2.5)
        Expect(Int05LU(2.6, True, 1), 2.5)
        Expect(Int05LU(2.6, True, x), 2.5)
        Expect(Int05LU("2.6", True, Not yes), 3.0)
        Expect(VB_StrLeft(12345, 2.2), "12")
    End Sub
End Module
