' What only the declarations for .NET have. This file does not import QUVARDBS1C.Routines.
Option Strict On
Imports System.Globalization
Imports System.IO
Imports System.Math
Imports System.Reflection

Partial Module Calls
    Private Sub CallNet()
        Expect(QUVARDBS1C.VB_StrLeft("Hello", 2), "He")
        Expect(QUVARDBS1C.Max(Double.NaN, 1), 1.0)
        Expect(Max(Double.NaN, 1), Double.NaN)
        Expect(Thrown(Sub() QUVARDBS1C.VB_SetFormat(Nothing, 1, 2)), "ArgumentNullException formats")
        Expect(Thrown(Sub() QUVARDBS1C.VB_SetFormat({}, 1, 2)), "ArgumentOutOfRangeException count")
        Expect(Thrown(Sub() QUVARDBS1C.FormatByPattern(1, Nothing)), "ArgumentNullException pattern")
        Expect(QUVARDBS1C.FormatByPattern(Double.NaN, "0.00"), "NaN")
        Dim german = New NumberFormatInfo With {.NumberDecimalSeparator = ","}
        Expect(QUVARDBS1C.FormatByPattern(0.5, "0.0", german), "0,5")
        Dim culture = CultureInfo.CurrentCulture
        CultureInfo.CurrentCulture = New CultureInfo("") With {.NumberFormat = german}
        PrintByPatterns()
        CultureInfo.CurrentCulture = culture
        FindDocumentation()
    End Sub

    ' Formats each value by each pattern of the library and parses the result.
    Private Sub PrintByPatterns()
        Dim formats(0) As String
        For exponent = -12 To 12
            For Each mantissa In {1, 1.5, 10 / 3, -1, -2.5, -6.02214076, 9.99999999999999}
                Dim value = mantissa * Pow(10, exponent)
                ParseBack(value, QUVARDBS1C.VB_OutputFormat(value))
                For decimals = 0 To 17
                    ParseBack(value, QUVARDBS1C.Cpp_DecimalFormat(decimals))
                    QUVARDBS1C.VB_SetFormat(formats, 1, decimals)
                    ParseBack(value, formats(0))
                    For flags = 0 To 3
                        Dim pattern = QUVARDBS1C.VB_OptimalFormat(
                            value, decimals, (flags And 1) <> 0, (flags And 2) <> 0)
                        ParseBack(value, pattern)
                    Next
                Next
            Next
        Next
        ParseBack(0, QUVARDBS1C.VB_OutputFormat(0))
    End Sub

    ' The error is at most half a unit of the pattern's last decimal or of the 15th digit.
    Private Sub ParseBack(value As Double, pattern As String)
        Dim printed = QUVARDBS1C.FormatByPattern(value, pattern)
        Dim parts = pattern.Split("E"c)
        Dim digits = Max(parts(0).Length - 2, 0)
        If parts.Length = 2 Then digits -= CInt(Floor(Log10(Abs(value)) + 0.000000000000001))
        Dim shown = Max(0.5000001 * Pow(10, -digits), 5.1E-15 * Abs(value))
        If Not pattern.Contains("#"c) AndAlso parts.Length = 1 Then
            shown = 0.5000001 * Pow(10, -digits) + BitIncrement(Abs(value)) - Abs(value)
        End If
        Dim parsed As Double
        Dim isNumber = Double.TryParse(printed, NumberStyles.Float, CultureInfo.InvariantCulture, parsed)
        If isNumber AndAlso Abs(parsed - value) <= shown Then Return
        Expect(printed, value.ToString("R", CultureInfo.InvariantCulture), "FormatByPattern of " & pattern)
    End Sub

    ' Each public member has an XML comment for editors.
    Private Sub FindDocumentation()
        Dim file = Path.ChangeExtension(Assembly.GetExecutingAssembly().Location, ".xml")
        Dim comments = XDocument.Load(file)...<member>.Select(Function(member) member.@name).ToList()
        Dim routines = GetType(QUVARDBS1C.Routines).GetMethods(BindingFlags.Public Or BindingFlags.Static)
        Expect(routines.Length > 60, True)
        For Each routine In routines
            Expect(comments.Any(Function(comment) comment = "M:QUVARDBS1C.Routines." & routine.Name OrElse
                comment.StartsWith("M:QUVARDBS1C.Routines." & routine.Name & "(")), True, routine.Name)
        Next
        Dim names = From type In Assembly.GetExecutingAssembly().GetExportedTypes()
                    Where type.Namespace = "QUVARDBS1C" Order By type.Name Select type.Name
        Expect(String.Join(" ", names), "ReplaceResult Routines")
    End Sub
End Module
