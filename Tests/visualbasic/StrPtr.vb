' The address of a String, as Visual Basic for Applications has it. The newest 16 stay where they are.
Imports System.Runtime.InteropServices

Module StrPtrs
    Private ReadOnly Pins As New Queue(Of GCHandle)

    Function StrPtr(text As String) As IntPtr
        If Pins.Count = 16 Then Pins.Dequeue().Free()
        Dim pin = GCHandle.Alloc(text, GCHandleType.Pinned)
        Pins.Enqueue(pin)
        Return pin.AddrOfPinnedObject()
    End Function
End Module
