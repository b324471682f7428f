# Turns declarations for Visual Basic for Applications on macOS into a module for the .NET compiler,
# as strict as that language: LongPtr has 64 bits and Long 32, and nothing narrows by itself.
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
