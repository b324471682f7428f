# Turns declarations for Visual Basic for Applications on macOS into a module for the .NET compiler,
# as strict as that language: LongPtr has 64 bits and Long 32, and nothing narrows by itself.
s/^Attribute VB_Name = .*/Option Strict On\nNamespace Global.QUVARDBS1C\nPublic Module Routines/
s/^Option Explicit$//
s/Declare PtrSafe/Declare/
s/\bAs Long\b/As Integer/g
s/\bCLng(/CInt(/g
s/\bAs LongPtr\b/As Long/g
$a\
End Module\
End Namespace
