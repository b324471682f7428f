# Converts declarations for Visual Basic for Applications on macOS to a module for the .NET compiler. Types
# are as strict: LongPtr has 64 bits, Long has 32, and there is no implicit narrowing.
/^Attribute VB_Name = /c\
Option Strict On\
Namespace Global.QUVARDBS1C\
Public Module Routines
/^Option Explicit$/d
s/Declare PtrSafe/Declare/
s/As Long\([^A-Za-z]\)/As Integer\1/g
s/As Long$/As Integer/
s/CLng(/CInt(/g
s/As LongPtr/As Long/g
$a\
End Module\
End Namespace
