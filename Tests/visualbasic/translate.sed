# Turns declarations for Visual Basic for Applications on macOS into a module for the .NET compiler.
s/^Attribute VB_Name = "\(.*\)"/Module \1/
s/^Option Explicit$//
s/Declare PtrSafe/Declare/
s/As LongPtr/As IntPtr/g
s/As Long\([^A-Za-z]\)/As Integer\1/g
s/As Long$/As Integer/
$a\
End Module
