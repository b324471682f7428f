' Prints the report of the C++ example: calls the library through QUVARDBS1C.vb, and prints numbers by the
' patterns that it returns.
Option Strict On
Imports QUVARDBS1C.Routines
Imports System.Globalization
Imports System.Text

Module Report
    Private ReadOnly Output As New StringBuilder
    Private Adjective As String = "linear"
    Private Noun As String = "Model"

    Function Main(arguments As String()) As Integer
        If arguments.Length <> 0 AndAlso arguments.Length <> 2 Then
            Console.Error.WriteLine("usage: VisualBasicReport [ADJECTIVE NOUN]")
            Return 2
        End If
        If arguments.Length = 2 Then
            Adjective = arguments(0)
            Noun = arguments(1)
        End If
        Try
            AddHeading("Report phrases")
            AddPhrases()
            AddHeading("Cleaned texts")
            AddTexts()
            AddHeading("Numbers and the patterns chosen for them")
            AddNumbers()
            AddHeading("Statistics")
            AddStatistics()
            ' UTF-8, independent of the terminal's encoding.
            Using terminal = Console.OpenStandardOutput()
                terminal.Write(Encoding.UTF8.GetBytes(Output.ToString()))
            End Using
            Return 0
        Catch problem As Exception
            Console.Error.WriteLine("report: " & problem.Message)
            Return 1
        End Try
    End Function

    Private Sub AddLine(Optional line As String = "")
        Output.Append(line).Append(ChrW(10))
    End Sub

    Private Sub AddHeading(title As String)
        AddLine()
        AddLine(title)
        AddLine(New String("="c, title.Length))
        AddLine()
    End Sub

    ' Pads a text with blanks to a width in code points.
    Private Function Padded(text As String, width As Integer) As String
        Return text.PadRight(width + text.Count(Function(unit) Char.IsLowSurrogate(unit)))
    End Function

    Private Sub AddRow(cells As IEnumerable(Of String), first As Integer, width As Integer)
        Dim line = "  " & Padded(cells(0), first)
        For Each cell In cells.Skip(1)
            line &= Padded(cell, width)
        Next
        AddLine(line.TrimEnd(" "c))
    End Sub

    Private Sub AddPhrases()
        Dim width = Math.Max(17, Encoding.UTF8.GetByteCount(Adjective & Noun) + 3)
        AddRow({"", "upper adjective", "no flag", "lower result", "no blank"}, 5, width)
        For Each language In {"ES", "FR", "IT", "PT", "PL", "US", "DE", "JP", "CS", "CN"}
            AddRow({language,
                    VB_LocalAN2(Adjective, Noun, language, True, False, False),
                    VB_LocalAN2(Adjective, Noun, language, False, False, False),
                    VB_LocalAN2(Adjective, Noun, language, False, True, False),
                    VB_LocalAN2(Adjective, Noun, language, False, False, True)}, 5, width)
        Next
    End Sub

    Private Sub AddText(what As String, before As String, after As String)
        AddLine("  " & Padded(what, 28) & Padded("«" & before & "»", 32) & "«" & after & "»")
    End Sub

    Private Sub AddTexts()
        Dim title = "  residuals : model A  "
        AddText("trimmed", title, VB_StrLRTrim(title))
        AddText("without colons", title, VB_RemoveColon(title))
        AddText("digits alone", "n = 1,234 cases", VB_RemoveNonNumericChar("n = 1,234 cases"))
        AddText("without dashes", "2026-11-22", VB_RemoveChar("2026-11-22", "-"))
        AddText("between parentheses", "mean (in mm)", StrBetweenChrAndChr("mean (in mm)", "(", ")"))
        AddText("with their parentheses", "mean (in mm)", StrFromChrToChr("mean (in mm)", "(", ")"))
        AddText("units 6 to 10", "Model summary", StrFromTo("Model summary", 6, 10))
        AddText("one replacement", "a,b,c", VB_Replace("a,b,c", ",", ", "))
        AddText("two replacements", "x=1;y=2", VB_Replace2("x=1;y=2", "=", ": ", ";", ", "))
        AddText("markup tokens", "<QM>a<CM> b<QM>", VB_QUVARDHTMLProcessor("<QM>a<CM> b<QM>"))
        For Each count In {1, 2}
            Dim word = VB_SpStrSp(VB_SingPlural(Noun, Noun & "s", count))
            AddText("singular and plural", CStr(count), CStr(count) & word & VB_PStrP("fitted"))
        Next
        AddText("commas counted", "a, b, c", CStr(ChrCount("a, b, c", ",")))
    End Sub

    ' Prints a number with all its decimals.
    Private Function Number(value As Double) As String
        Return FormatByPattern(value, VB_OutputFormat(value))
    End Function

    Private Sub AddNumbers()
        AddRow({"value", "pattern at 3 decimals", "printed", "pattern of all decimals", "printed"},
               18, 25)
        For Each value In {0, 42, 2.5, -1 / 3, 0.00012, 1.5E-11, 123456, 98765.4321, 12345678901.5}
            Dim given = value.ToString("g15", CultureInfo.InvariantCulture)
            Dim optimal = VB_OptimalFormat(value, 3, True, True)
            Dim all = VB_OutputFormat(value)
            AddRow({given, optimal, FormatByPattern(value, optimal),
                    all, FormatByPattern(value, all)}, 20, 25)
        Next
        Dim formats(0) As String
        VB_SetFormat(formats, 1, 5, -1)
        AddLine()
        AddLine("  Pi with the pattern of five digits, " & formats(0) & ": " &
                FormatByPattern(3.14159265358979, formats(0)))
    End Sub

    Private Sub AddStatistics()
        Dim x = 5.0, upper = 0.0, y = 0.0
        QuadraticInterpol(1, 2, 4, 0, 0, 6, x, upper, y, True)
        Dim value = Number(y)
        y = 6
        QuadraticInterpol(1, 2, 4, 0, 0, 6, x, upper, y, False)
        AddLine("  The parabola through (1, 0), (2, 0), (4, 6) has " & value & " at 5 and takes 6 at " &
                Number(x) & " and " & Number(upper) & ".")
        x = 2
        LinearInterpol(1, 3, 2, 6, x, y, True)
        AddLine("  The line through (1, 2), (3, 6) has " & Number(y) & " at 2.")
        AddLine()

        Dim coefficients = From k In Enumerable.Range(0, 11) Select Number(Cnk(10, k))
        AddLine("  Choosing k of 10: " & String.Join(" ", coefficients) & ", " &
                Number(SumCnk(10, 0, 10)) & " in all.")
        AddLine("  Choosing 5 of 52: " & Number(Cnk(52, 5)) & ". ln gamma(100): " &
                Number(GammaLn(100)) & ".")
        AddLine()

        AddRow({"rounded to halves", "away from 0", "closest", "down", "up"}, 20, 14)
        For Each rounded In {2.1, 2.25, 2.4, 2.5, 2.6, -2.1, -2.6}
            AddRow({Number(rounded), Number(Int05(rounded, True)), Number(Int05c(rounded, True)),
                    Number(Int05LU(rounded, True, True)), Number(Int05LU(rounded, True, False))},
                   20, 14)
        Next
    End Sub
End Module
