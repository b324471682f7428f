' The address of a String, as in Visual Basic for Applications. The 16 newest strings do not move.
Option Strict On
Imports System.Runtime.InteropServices

Namespace Global.QUVARDBS1C
    Friend Module StrPtrs
        Private ReadOnly Pins As New Queue(Of GCHandle)

        Function StrPtr(text As String) As Long
            If Pins.Count = 16 Then Pins.Dequeue().Free()
            Dim pin = GCHandle.Alloc(text, GCHandleType.Pinned)
            Pins.Enqueue(pin)
            Return pin.AddrOfPinnedObject().ToInt64()
        End Function
    End Module
End Namespace
