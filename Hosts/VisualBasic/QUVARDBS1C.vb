' Declares the library QUVARDBS1C for Visual Basic on .NET. Generated from QUVARDBS1C.h by generate.py;
' do not edit. Add this file to the project, and put QUVARDBS1C.dll and QUVARDCR1C.dll into the folder
' of the program. The page docs/from-a-macro.md explains how.
'
' - Arguments and results are Strings; the caller releases nothing.
' - Nothing is the null handle. As an argument it means the empty text, unless a comment says otherwise.
' - A text ends at its first ChrW(0).
' - Lengths and positions are in UTF-16 code units, as for Len and Mid. Positions start at 1.
Option Strict On
Option Explicit On
Option Infer On
Option Compare Binary
Imports System
Imports System.Globalization
Imports System.Runtime.InteropServices

Namespace Global.QUVARDBS1C

    ''' <summary>The routines of the library.</summary>
    Public Module Routines
        Private Const Library As String = "QUVARDBS1C.dll"

        ''' <summary>What VB_Replace did with the copy of text that it passed to the library.</summary>
        Public Enum ReplaceResult
            ''' <summary>The result is a new text; the copy is unchanged.</summary>
            NewString
            ''' <summary>The result is a new text; the copy was modified too.</summary>
            TextChanged
            ''' <summary>The result is the copy itself, because text or pattern is Nothing.</summary>
            TextItself
        End Enum

        ''' <summary>Returns the first n code units of s.</summary>
        ''' <param name="s">text</param>
        ''' <param name="n">number of code units; negative or above the length of s: all of
        ''' s</param>
        ''' <returns>prefix of s</returns>
        ''' <example><code>VB_StrLeft("Hello", 2)  ' "He"</code></example>
        Public Function VB_StrLeft(s As String, n As Integer) As String
            Return TakeText(Dll.VB_StrLeft(s, n))
        End Function

        ''' <summary>Returns the last n code units of s.</summary>
        ''' <param name="s">text</param>
        ''' <param name="n">number of code units; negative or above the length of s: all of
        ''' s</param>
        ''' <returns>suffix of s</returns>
        ''' <example><code>VB_StrRight("Hello", 2)  ' "lo"</code></example>
        Public Function VB_StrRight(s As String, n As Integer) As String
            Return TakeText(Dll.VB_StrRight(s, n))
        End Function

        ''' <summary>Concatenates six texts.</summary>
        ''' <param name="a">text; order of the result: a to f</param>
        ''' <param name="b">text; order of the result: a to f</param>
        ''' <param name="c">text; order of the result: a to f</param>
        ''' <param name="d">text; order of the result: a to f</param>
        ''' <param name="e">text; order of the result: a to f</param>
        ''' <param name="f">text; order of the result: a to f</param>
        ''' <returns>concatenation without separators</returns>
        ''' <example><code>VB_StrConcat("a", "b", Nothing, Nothing, Nothing, Nothing)  ' "ab"</code></example>
        Public Function VB_StrConcat(a As String, b As String, c As String, d As String,
            e As String, f As String) As String
            Return TakeText(Dll.VB_StrConcat(a, b, c, d, e, f))
        End Function

        ''' <summary>Removes leading blanks.</summary>
        ''' <param name="s">text</param>
        ''' <returns>suffix of s</returns>
        ''' <example><code>VB_StrLTrim("  a b  ")  ' "a b  "</code></example>
        Public Function VB_StrLTrim(s As String) As String
            Return TakeText(Dll.VB_StrLTrim(s))
        End Function

        ''' <summary>Removes trailing blanks.</summary>
        ''' <param name="s">text</param>
        ''' <returns>prefix of s</returns>
        ''' <example><code>VB_StrRTrim("  a b  ")  ' "  a b"</code></example>
        Public Function VB_StrRTrim(s As String) As String
            Return TakeText(Dll.VB_StrRTrim(s))
        End Function

        ''' <summary>Removes leading and trailing blanks.</summary>
        ''' <param name="s">text</param>
        ''' <returns>part of s</returns>
        ''' <example><code>VB_StrLRTrim("  a b  ")  ' "a b"</code></example>
        Public Function VB_StrLRTrim(s As String) As String
            Return TakeText(Dll.VB_StrLRTrim(s))
        End Function

        ''' <summary>Removes the first code unit of the leftmost occurrence of chars until chars
        ''' does not occur.</summary>
        ''' <param name="s">text</param>
        ''' <param name="chars">text to search for; Nothing or empty: nothing is removed</param>
        ''' <returns>text in which chars does not occur, unless it is empty</returns>
        ''' <remarks>If chars is one code unit, all its occurrences are removed. Occurrences that a
        ''' removal forms count too: "aaab" without "aab" is "ab". The time is O(|s| + |chars|). If
        ''' chars has more than 16 code units and is not longer than s, the call uses 4 * (|s| + 2 *
        ''' |chars| + 3) bytes of working memory: up to 780 bytes on the stack, more on the
        ''' heap.</remarks>
        ''' <example><code>VB_RemoveChar("a-b-c", "-")  ' "abc"</code></example>
        Public Function VB_RemoveChar(s As String, chars As String) As String
            Return TakeText(Dll.VB_RemoveChar(s, chars))
        End Function

        ''' <summary>Removes every code unit except the digits 0 to 9.</summary>
        ''' <param name="s">text</param>
        ''' <returns>the digits of s</returns>
        ''' <example><code>VB_RemoveNonNumericChar("-1.5")  ' "15"</code></example>
        Public Function VB_RemoveNonNumericChar(s As String) As String
            Return TakeText(Dll.VB_RemoveNonNumericChar(s))
        End Function

        ''' <summary>Removes every colon.</summary>
        ''' <param name="s">text</param>
        ''' <returns>Nothing if s is Nothing</returns>
        ''' <example><code>VB_RemoveColon(" a:b ")  ' " ab "</code></example>
        Public Function VB_RemoveColon(s As String) As String
            Return TakeText(Dll.VB_RemoveColon(s))
        End Function

        ''' <summary>Tests whether two texts have a code unit in common.</summary>
        ''' <param name="text">text</param>
        ''' <param name="chars">text</param>
        ''' <returns>True if they have, otherwise False</returns>
        ''' <remarks>The time is O(|text| + |chars|). Exception: if chars has more than 64 code
        ''' units, n of them above 0xFFFF, these are sorted in O(n log n), and each such code unit
        ''' of text takes O(log n).</remarks>
        ''' <example><code>VB_CommonChar("abc", "xyzb")  ' True</code></example>
        Public Function VB_CommonChar(text As String, chars As String) As Boolean
            Return Dll.VB_CommonChar(text, chars) <> 0
        End Function

        ''' <summary>Counts the occurrences of pattern in text, from left to right and without
        ''' overlap.</summary>
        ''' <param name="text">text</param>
        ''' <param name="pattern">text to search for</param>
        ''' <returns>number of occurrences; 0 if an argument is empty</returns>
        ''' <example><code>ChrCount("a,b,c", ",")  ' 2</code></example>
        <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
        Public Function ChrCount(text As String, pattern As String) As Integer
        End Function

        ''' <summary>Returns the code units at the positions from, ..., to.</summary>
        ''' <param name="text">text</param>
        ''' <param name="from">first position, at least 1</param>
        ''' <param name="to_">last position, at most the length of text</param>
        ''' <returns>empty if a position is out of range or to &lt; from</returns>
        ''' <example><code>StrFromTo("abcdef", 2, 5)  ' "bcde"</code></example>
        Public Function StrFromTo(text As String, from As Integer, to_ As Integer) As String
            Return TakeText(Dll.StrFromTo(text, from, to_))
        End Function

        ''' <summary>Returns the code units strictly between the positions from and to.</summary>
        ''' <param name="text">text</param>
        ''' <param name="from">position before the result, at least 1</param>
        ''' <param name="to_">position after the result, at most the length of text</param>
        ''' <returns>empty if a position is out of range or to &lt;= from</returns>
        ''' <example><code>StrBetween("abcdef", 2, 5)  ' "cd"</code></example>
        Public Function StrBetween(text As String, from As Integer, to_ As Integer) As String
            Return TakeText(Dll.StrBetween(text, from, to_))
        End Function

        ''' <summary>Returns the text from the first opening to the first closing, with both
        ''' delimiters.</summary>
        ''' <param name="text">text</param>
        ''' <param name="opening">delimiter of one code unit, or of any length if closing is empty,
        ''' or empty</param>
        ''' <param name="closing">delimiter of one code unit, or of any length if opening is empty,
        ''' or empty</param>
        ''' <returns>empty if a delimiter is not found, or closing is before opening</returns>
        ''' <remarks>Both searches start at the beginning of text. Of a closing with several code
        ''' units, only the first is included. It needs an empty opening. An empty closing is found
        ''' at the first code unit of text, which it includes.</remarks>
        ''' <example><code>StrFromChrToChr("a(b)c", "(", ")")  ' "(b)"</code></example>
        Public Function StrFromChrToChr(text As String, opening As String,
            closing As String) As String
            Return TakeText(Dll.StrFromChrToChr(text, opening, closing))
        End Function

        ''' <summary>Returns the text between the first opening and the next closing, without the
        ''' delimiters.</summary>
        ''' <param name="text">text</param>
        ''' <param name="opening">delimiter of one code unit, or empty</param>
        ''' <param name="closing">delimiter of one code unit, or of any length if opening is
        ''' empty</param>
        ''' <returns>empty if a delimiter is not found or closing is empty</returns>
        ''' <remarks>The result and the search for closing start one code unit after the start of
        ''' opening, even if opening is empty.</remarks>
        ''' <example><code>StrBetweenChrAndChr("a/b/c", "/", "/")  ' "b"</code></example>
        Public Function StrBetweenChrAndChr(text As String, opening As String,
            closing As String) As String
            Return TakeText(Dll.StrBetweenChrAndChr(text, opening, closing))
        End Function

        ''' <summary>Replaces every occurrence of pattern1, then in that result every occurrence of
        ''' pattern2.</summary>
        ''' <param name="text">text</param>
        ''' <param name="pattern1">text to search for first; Nothing or empty: nothing is
        ''' replaced</param>
        ''' <param name="replacement1">text that replaces each pattern1; Nothing or empty:
        ''' occurrences are removed</param>
        ''' <param name="pattern2">text to search for next; Nothing or empty: nothing is
        ''' replaced</param>
        ''' <param name="replacement2">text that replaces each pattern2; Nothing or empty:
        ''' occurrences are removed</param>
        ''' <returns>text with the replacements</returns>
        ''' <remarks>The time is also linear in the length of the intermediate text, which can be
        ''' |text| * |replacement1| even if the result is short. It is not in memory as a
        ''' whole.</remarks>
        ''' <example><code>VB_Replace2("ab", "a", "b", "b", "c")  ' "cc"</code></example>
        Public Function VB_Replace2(text As String, pattern1 As String, replacement1 As String,
            pattern2 As String, replacement2 As String) As String
            Return TakeText(Dll.VB_Replace2(text, pattern1, replacement1, pattern2, replacement2))
        End Function

        ''' <summary>Composes an adjective and a noun in the word order of a language.</summary>
        ''' <param name="adjective">adjective</param>
        ''' <param name="noun">noun</param>
        ''' <param name="language">language code</param>
        ''' <returns>empty for an unknown language code</returns>
        ''' <remarks>Same as VB_LocalAN2() with upperAdjective True and the other flags
        ''' False.</remarks>
        ''' <example><code>VB_LocalAN("linear", "Model", "ES")  ' "Model linear"</code></example>
        Public Function VB_LocalAN(adjective As String, noun As String,
            language As String) As String
            Return TakeText(Dll.VB_LocalAN(adjective, noun, language))
        End Function

        ''' <summary>Composes an adjective and a noun in the word order of a language.</summary>
        ''' <param name="adjective">adjective</param>
        ''' <param name="noun">noun</param>
        ''' <param name="language">language code</param>
        ''' <param name="upperAdjective">if True, converts the first letter of the adjective to
        ''' upper case (US, DE)</param>
        ''' <param name="lowerResult">if True, converts the first letter of the phrase to lower case
        ''' (US, ES, FR, IT, PT, PL)</param>
        ''' <param name="noBlank">if True, there is no blank between the words (except US,
        ''' DE)</param>
        ''' <returns>empty for an unknown language code</returns>
        ''' <example><code>VB_LocalAN2("linear", "Model", "JP", False, False, True)  ' "linearModel"</code></example>
        Public Function VB_LocalAN2(adjective As String, noun As String, language As String,
            Optional upperAdjective As Boolean = True, Optional lowerResult As Boolean = False,
            Optional noBlank As Boolean = False) As String
            Return TakeText(Dll.VB_LocalAN2(adjective, noun, language, CInt(upperAdjective),
                CInt(lowerResult), CInt(noBlank)))
        End Function

        ''' <summary>Converts the first letter of text to lower case, unless language is "JP" or
        ''' "DE".</summary>
        ''' <param name="text">text</param>
        ''' <param name="language">language code</param>
        ''' <param name="forceDE">if True, "DE" converts the letter too</param>
        ''' <returns>text of the same length</returns>
        ''' <remarks>Every other code converts the letter, also an unknown or empty one.</remarks>
        ''' <example><code>VB_LowerFirst("Model", "DE", False)  ' "Model"</code></example>
        Public Function VB_LowerFirst(text As String, language As String,
            Optional forceDE As Boolean = False) As String
            Return TakeText(Dll.VB_LowerFirst(text, language, CInt(forceDE)))
        End Function

        ''' <summary>Converts the first letter of text to upper case under the locale of the
        ''' process.</summary>
        ''' <param name="text">text</param>
        ''' <returns>text of the same length</returns>
        ''' <example><code>VB_UpperFirst("linear")  ' "Linear"</code></example>
        Public Function VB_UpperFirst(text As String) As String
            Return TakeText(Dll.VB_UpperFirst(text))
        End Function

        ''' <summary>Puts a blank before and after a text.</summary>
        ''' <param name="text">text</param>
        ''' <returns>text with two more code units</returns>
        ''' <example><code>VB_SpStrSp("and")  ' " and "</code></example>
        Public Function VB_SpStrSp(text As String) As String
            Return TakeText(Dll.VB_SpStrSp(text))
        End Function

        ''' <summary>Puts a text in parentheses.</summary>
        ''' <param name="text">text</param>
        ''' <returns>text with two more code units</returns>
        ''' <example><code>VB_PStrP("units")  ' "(units)"</code></example>
        Public Function VB_PStrP(text As String) As String
            Return TakeText(Dll.VB_PStrP(text))
        End Function

        ''' <summary>Puts a text in square brackets.</summary>
        ''' <param name="text">text</param>
        ''' <returns>text with two more code units</returns>
        ''' <example><code>VB_BStrB("1")  ' "[1]"</code></example>
        Public Function VB_BStrB(text As String) As String
            Return TakeText(Dll.VB_BStrB(text))
        End Function

        ''' <summary>Chooses the singular or plural of a word.</summary>
        ''' <param name="singular">text for a count below 2, also 0 and negative ones</param>
        ''' <param name="plural">text for any other count</param>
        ''' <param name="count">count</param>
        ''' <returns>one of the texts</returns>
        ''' <remarks>The other text is not read.</remarks>
        ''' <example><code>VB_SingPlural("case", Nothing, 0)  ' "case"</code></example>
        Public Function VB_SingPlural(singular As String, plural As String,
            count As Integer) As String
            Return TakeText(Dll.VB_SingPlural(singular, plural, count))
        End Function

        ''' <summary>Replaces each &lt;BR&gt; by a line feed, &lt;QM&gt; by a double quotation mark
        ''' and &lt;CM&gt; by a comma.</summary>
        ''' <param name="text">text; tokens are in upper case</param>
        ''' <returns>text with the replacements</returns>
        ''' <example><code>VB_QUVARDHTMLProcessor("&lt;QM&gt;a&lt;QM&gt;")  ' """a"""</code></example>
        Public Function VB_QUVARDHTMLProcessor(text As String) As String
            Return TakeText(Dll.VB_QUVARDHTMLProcessor(text))
        End Function

        ''' <summary>Returns the pattern with the given number of decimals.</summary>
        ''' <param name="decimals">number of decimals, limited by memory only; 0 or negative: the
        ''' pattern is "0"</param>
        ''' <returns>"0", or "0." followed by decimals times "0"</returns>
        ''' <example><code>Cpp_DecimalFormat(2)  ' "0.00"</code></example>
        Public Function Cpp_DecimalFormat(decimals As Integer) As String
            Return TakeText(Dll.Cpp_DecimalFormat(decimals))
        End Function

        ''' <summary>Returns the pattern that shows the decimals of a value, up to 19.</summary>
        ''' <param name="value">value to be printed</param>
        ''' <returns>pattern</returns>
        ''' <remarks>The pattern is "0" if the value is within 1e-12 of an integer, otherwise "0."
        ''' and 19 times "#". "E-#" follows unless value * 1e19 is within 1e-12 of an integer.
        ''' Infinities and NaN count as integers.</remarks>
        ''' <example><code>VB_OutputFormat(0.5)  ' "0.###################"</code></example>
        Public Function VB_OutputFormat(value As Double) As String
            Return TakeText(Dll.VB_OutputFormat(value))
        End Function

        ''' <summary>Returns the pattern with the given number of decimals, on request in scientific
        ''' notation if the value is large, or small for these decimals.</summary>
        ''' <param name="value">value to be printed</param>
        ''' <param name="decimals">number of decimals, and limit for small values</param>
        ''' <param name="useExponent">if True, the pattern may have an exponent part</param>
        ''' <param name="keepDecimals">if not True, the mantissa is "0" in a pattern with an
        ''' exponent part if pow(10, -e) * value is integral</param>
        ''' <returns>mantissa and exponent part</returns>
        ''' <remarks>The mantissa is "0" if the value is integral, otherwise that of
        ''' Cpp_DecimalFormat(). x is integral here if x truncated toward zero fits 32 bits and
        ''' differs from x by less than 1e-12. Infinities and NaN are not integral. Let e =
        ''' log10(abs(value)), truncated toward zero. If e &lt; -decimals, the exponent part is
        ''' "E-0", or "E-00" if also e &lt;= -10. Otherwise, if e &gt;= 5, it is "E+0", or "E+00" if
        ''' also e &gt;= 10. There is no exponent part for an infinity, for NaN, or if abs(value)
        ''' &lt;= 1e-12.</remarks>
        ''' <example><code>VB_OptimalFormat(2.5, 3, False, False)  ' "0.000"</code></example>
        Public Function VB_OptimalFormat(value As Double, decimals As Integer,
            useExponent As Boolean, keepDecimals As Boolean) As String
            Return TakeText(Dll.VB_OptimalFormat(value, decimals, CInt(useExponent),
                CInt(keepDecimals)))
        End Function

        ''' <summary>Returns 3.14159265358979, which approximates pi.</summary>
        ''' <returns>3.14159265358979, equal to 2 * ASin(1); 7 units in the last place below the
        ''' double closest to pi</returns>
        ''' <example><code>Pi()  ' 3.14159265358979</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Pi() As Double
        End Function

        ''' <summary>Returns the square root (not the square) of x, correctly rounded.</summary>
        ''' <param name="x">number</param>
        ''' <returns>-1.79769313486231e+308 if x &lt; 0; -0.0 for -0.0</returns>
        ''' <example><code>SqrDbl(4)  ' 2</code></example>
        <DllImport(Library, EntryPoint:="sqr", ExactSpelling:=True)>
        Public Function SqrDbl(x As Double) As Double
        End Function

        ''' <summary>Returns the decimal logarithm of x, computed by the platform's log10.</summary>
        ''' <param name="x">number</param>
        ''' <returns>-infinity for 0; NaN if x &lt; 0</returns>
        ''' <example><code>Log10(1000)  ' 3</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Log10(x As Double) As Double
        End Function

        ''' <summary>Returns base to the power of exponent, computed by the platform's
        ''' pow.</summary>
        ''' <param name="base">number</param>
        ''' <param name="exponent">number</param>
        ''' <returns>NaN if base &lt; 0 and exponent is finite and not integral</returns>
        ''' <example><code>spow(2, 10)  ' 1024</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function spow(base As Double, exponent As Double) As Double
        End Function

        ''' <summary>Returns exp(x) - 1.</summary>
        ''' <param name="x">number</param>
        ''' <returns>1.79769313486231e+308 if x &gt; 709</returns>
        ''' <remarks>Method: 0.5 * x * x + x if abs(x) &lt;= 1e-6. Otherwise exp(x) - 1.0, which
        ''' loses digits to cancellation near 0. Accuracy: by search, relative error at most 1.3e-16
        ''' for abs(x) up to 1e-8, growing to 1.7e-13 at 1e-6; then 1.7e-16 / abs(x) up to 1; 1.1
        ''' units in the last place for abs(x) from 1 to 709.</remarks>
        ''' <example><code>expm1x(1e-6)  ' 1.0000004999999999e-06</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function expm1x(x As Double) As Double
        End Function

        ''' <summary>Returns the arcsine of x in radians.</summary>
        ''' <param name="x">number from -1 to 1</param>
        ''' <returns>1.570796326794895 at 1 and -1.570796326794895 at -1; 0.0 for both
        ''' zeros</returns>
        ''' <remarks>Method: atan(x / SqrDbl((1 - x) * (x + 1))). Outside -1 to 1 no error is
        ''' reported: SqrDbl() rejects its argument, and the result is atan(x /
        ''' -1.79769313486231e+308). Its sign is opposite to that of x. Its magnitude is at most
        ''' 0.006 for abs(x) up to 1e306, and pi / 2 for infinities.</remarks>
        ''' <example><code>ASin(1)  ' 1.570796326794895</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function ASin(x As Double) As Double
        End Function

        ''' <summary>Returns a if a &lt; b, otherwise b.</summary>
        ''' <param name="a">number</param>
        ''' <param name="b">number</param>
        ''' <returns>b if the arguments are equal or one is NaN</returns>
        ''' <example><code>Min(2, 1)  ' 1</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Min(a As Double, b As Double) As Double
        End Function

        ''' <summary>Returns a if a &gt; b, otherwise b.</summary>
        ''' <param name="a">number</param>
        ''' <param name="b">number</param>
        ''' <returns>b if the arguments are equal or one is NaN</returns>
        ''' <example><code>Max(2, 1)  ' 2</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Max(a As Double, b As Double) As Double
        End Function

        ''' <summary>Returns the sign of x as a number.</summary>
        ''' <param name="x">number</param>
        ''' <returns>1, -1, or 0.0 for both zeros; NaN for an infinity or NaN</returns>
        ''' <example><code>FSgn(-0.25)  ' -1</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function FSgn(x As Double) As Double
        End Function

        ''' <summary>Returns the magnitude of a with the sign of b.</summary>
        ''' <param name="a">number</param>
        ''' <param name="b">number; -0.0 and NaN count as positive</param>
        ''' <returns>-abs(a) if b &lt; 0, otherwise abs(a)</returns>
        ''' <example><code>FSign(3, -1)  ' -3</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function FSign(a As Double, b As Double) As Double
        End Function

        ''' <summary>Returns ln(exp(a) + exp(b)), also if the exponentials overflow or
        ''' underflow.</summary>
        ''' <param name="a">number</param>
        ''' <param name="b">number</param>
        ''' <returns>NaN for two infinities of the same sign</returns>
        ''' <remarks>Method: log(exp(-abs(a - b)) + 1.0) + max(a, b). Accuracy: by search, absolute
        ''' error at most 3e-16 times the larger of 1 and abs(max(a, b)), for arguments from -1e6 to
        ''' 1e6. The relative error is unbounded where the result is close to 0.</remarks>
        ''' <example><code>LogExpAPlusExpB(1000, 1000)  ' 1000.6931471805599</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function LogExpAPlusExpB(a As Double, b As Double) As Double
        End Function

        ''' <summary>Swaps two integers.</summary>
        ''' <param name="a">integer to swap; may be the same variable</param>
        ''' <param name="b">integer to swap; may be the same variable</param>
        ''' <example><code>i = 1 : j = 2 : SwapLng(i, j)  ' i = 2</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Sub SwapLng(ByRef a As Integer, ByRef b As Integer)
        End Sub

        ''' <summary>Swaps two doubles without changing their bits.</summary>
        ''' <param name="a">double to swap; may be the same variable</param>
        ''' <param name="b">double to swap; may be the same variable</param>
        ''' <example><code>x = 1 : y = 2 : SwapDbl(x, y)  ' x = 2</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Sub SwapDbl(ByRef a As Double, ByRef b As Double)
        End Sub

        ''' <summary>Returns the natural logarithm of the gamma function.</summary>
        ''' <param name="x">positive number</param>
        ''' <returns>-1.79769313486231e+308 if x &lt; -6.5; +infinity from about 2.56e305; NaN for
        ''' +infinity</returns>
        ''' <example><code>GammaLn(0.5) &gt; 0.57236494292 AndAlso GammaLn(0.5) &lt; 0.57236494293  ' True</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function GammaLn(x As Double) As Double
        End Function

        ''' <summary>Returns the factorial of n.</summary>
        ''' <param name="n">integer</param>
        ''' <returns>1 if n &lt; 2; +infinity if n &gt; 170</returns>
        ''' <remarks>Method: product of 2, 3, ..., n in this order, read from a table. Accuracy:
        ''' over all, exact up to 22; within 6 units in the last place up to 170.</remarks>
        ''' <example><code>Fact(5)  ' 120</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Fact(n As Integer) As Double
        End Function

        ''' <summary>Returns the binomial coefficient: the number of ways to choose k of
        ''' n.</summary>
        ''' <param name="n">number of elements to choose from</param>
        ''' <param name="k">number of elements to choose</param>
        ''' <returns>binomial coefficient; 0 if k &gt; n; +infinity on overflow</returns>
        ''' <example><code>Cnk(49, 6)  ' 13983816</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Cnk(n As Double, k As Double) As Double
        End Function

        ''' <summary>Returns the sum of Cnk(n, k) for all integers k with from &lt;= k &lt;=
        ''' to.</summary>
        ''' <param name="n">first argument of Cnk()</param>
        ''' <param name="from">first k, truncated toward zero; NaN or outside the 32-bit range:
        ''' -2147483648</param>
        ''' <param name="to_">upper limit of k; above 2147483647: 2147483647</param>
        ''' <returns>0 if there is no such k or to is NaN</returns>
        ''' <remarks>The result has the same bits as if each term were added in the order of rising
        ''' k. Terms that grow or fall by 1 from k to k + 1 are added in closed form, so that
        ''' billions of them take little time. A call takes longest for a fractional n near 1020:
        ''' about a millisecond. Terms with k &gt; n are 0.</remarks>
        ''' <example><code>SumCnk(5, 2, 3)  ' 20</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function SumCnk(n As Double, from As Double, to_ As Double) As Double
        End Function

        ''' <summary>Returns the floored remainder of a by b, which has the sign of b.</summary>
        ''' <param name="a">dividend</param>
        ''' <param name="b">divisor</param>
        ''' <returns>a - floor(a / b) * b; a if b is 0</returns>
        ''' <example><code>ModLng(-7, 3)  ' 2</code></example>
        <DllImport(Library, EntryPoint:="Mod", ExactSpelling:=True)>
        Public Function ModLng(a As Integer, b As Integer) As Integer
        End Function

        ''' <summary>Returns the floored remainder a - floor(a / b) * b of doubles.</summary>
        ''' <param name="a">dividend</param>
        ''' <param name="b">divisor</param>
        ''' <returns>NaN if b is 0 or an argument is infinite; an infinity with the sign opposite to
        ''' a if a / b or floor(a / b) * b overflows; a if a / b underflows to 0</returns>
        ''' <remarks>The quotient is rounded. The result may therefore miss the range from 0 to b,
        ''' by at most two units in the last place of a.</remarks>
        ''' <example><code>ModDbl(-7.5, 2)  ' 0.5</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function ModDbl(a As Double, b As Double) As Double
        End Function

        ''' <summary>Returns the greatest common divisor (GCD) of two integers.</summary>
        ''' <param name="a">integer; the GCD of an integer and 0 is the magnitude of the
        ''' integer</param>
        ''' <param name="b">integer; the GCD of an integer and 0 is the magnitude of the
        ''' integer</param>
        ''' <returns>GCD, not negative; but -2147483648 for 2147483648, which does not fit 32
        ''' bits</returns>
        ''' <example><code>LCD(-12, 18)  ' 6</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function LCD(a As Integer, b As Integer) As Integer
        End Function

        ''' <summary>Returns the greatest common divisor (GCD) of two integers held in
        ''' doubles.</summary>
        ''' <param name="a">integer below 2147483648 in magnitude</param>
        ''' <param name="b">integer below 2147483648 in magnitude</param>
        ''' <returns>GCD</returns>
        ''' <remarks>The arguments are converted to 32-bit integers A and B. But the result is
        ''' abs(a) if b is 0, and abs(b) if A is a multiple of B: LCD2(6, 2.5) is 2.5, LCD2(7, 2.5)
        ''' is 1.</remarks>
        ''' <example><code>LCD2(12, 18)  ' 6</code></example>
        <DllImport(Library, EntryPoint:="_Z4LCD2dd", ExactSpelling:=True)>
        Public Function LCD2(a As Double, b As Double) As Double
        End Function

        ''' <summary>Returns the greatest common divisor (GCD) of two decimal numbers, such as 0.25
        ''' for 0.5 and 0.75.</summary>
        ''' <param name="a">decimal number; if A or B reaches 2147483648 in magnitude, the result is
        ''' wrong</param>
        ''' <param name="b">decimal number; if A or B reaches 2147483648 in magnitude, the result is
        ''' wrong</param>
        ''' <returns>GCD</returns>
        ''' <remarks>Method: p is the smallest number of decimal places with which a * 10^p and b *
        ''' 10^p count as integers. The result is pow(10, -p) * LCD2(A, B), where A and B are these
        ''' integers. To find p, a number is multiplied by 10 repeatedly. It counts as an integer if
        ''' its fraction is at most 1e-12, or if it differs from the nearest integer by at most
        ''' 2^-48 of itself, which is the error of decimals and their products. A is a * pow(10, p),
        ''' rounded to nearest if it is that close to an integer, otherwise truncated. B likewise.
        ''' The result is rounded: LCDDbl(1.2, 0.3) is 0.30000000000000004.</remarks>
        ''' <example><code>LCDDbl(0.29, 0.29)  ' 0.29</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function LCDDbl(a As Double, b As Double) As Double
        End Function

        ''' <summary>Tests whether x is within 1e-12 of an integer of any size.</summary>
        ''' <param name="x">number</param>
        ''' <returns>True if it is, also for infinities and NaN; otherwise False</returns>
        ''' <example><code>IsLong(3.0000000000009)  ' True</code></example>
        Public Function IsLong(x As Double) As Boolean
            Return Dll.IsLong(x) <> 0
        End Function

        ''' <summary>Tests whether x is within tol of an integer of any size.</summary>
        ''' <param name="x">number</param>
        ''' <param name="tol">largest distance from the nearest integer</param>
        ''' <returns>True if it is, also if an argument is NaN; otherwise False</returns>
        ''' <example><code>IsLongP(2.75, 0.25)  ' True</code></example>
        Public Function IsLongP(x As Double, tol As Double) As Boolean
            Return Dll.IsLongP(x, tol) <> 0
        End Function

        ''' <summary>Tests whether x is even.</summary>
        ''' <param name="x">number</param>
        ''' <returns>True if it is; otherwise, and for infinities and NaN, False</returns>
        ''' <remarks>Method: h - floor(h) &lt; 2^-52 with h = x * 0.5. A number just below an even
        ''' one is therefore not even, except the negative double closest to 0, whose h is rounded
        ''' to 0.</remarks>
        ''' <example><code>IsEven(-2.0)  ' True</code></example>
        Public Function IsEven(x As Double) As Boolean
            Return Dll.IsEven(x) <> 0
        End Function

        ''' <summary>Tests whether n is even.</summary>
        ''' <param name="n">integer</param>
        ''' <returns>True if it is, otherwise False</returns>
        ''' <example><code>IsEvenLng(3)  ' False</code></example>
        Public Function IsEvenLng(n As Integer) As Boolean
            Return Dll.IsEvenLng(n) <> 0
        End Function

        ''' <summary>Rounds away from zero to an integer or a multiple of 1/2.</summary>
        ''' <param name="v">number</param>
        ''' <param name="half">if True, rounds to multiples of 1/2; otherwise to integers</param>
        ''' <returns>+0.0 for both zeros; NaN for an infinity or NaN</returns>
        ''' <example><code>Int05(2.1, True)  ' 2.5</code></example>
        Public Function Int05(v As Double, half As Boolean) As Double
            Return Dll.Int05(v, CInt(half))
        End Function

        ''' <summary>Rounds to the nearest integer or multiple of 1/2.</summary>
        ''' <param name="v">number</param>
        ''' <param name="half">if True, rounds to multiples of 1/2; otherwise to integers</param>
        ''' <returns>+0.0 for both zeros; -0.0 for a negative value rounded to 0; NaN for an
        ''' infinity or NaN</returns>
        ''' <example><code>Int05c(2.4, True)  ' 2.5</code></example>
        Public Function Int05c(v As Double, half As Boolean) As Double
            Return Dll.Int05c(v, CInt(half))
        End Function

        ''' <summary>Rounds down or up to an integer or a multiple of 1/2.</summary>
        ''' <param name="v">number</param>
        ''' <param name="half">if True, rounds to multiples of 1/2; otherwise to integers</param>
        ''' <param name="lower">if True, rounds down; otherwise up</param>
        ''' <returns>infinities for themselves; NaN for NaN</returns>
        ''' <example><code>Int05LU(-2.1, True, True)  ' -2.5</code></example>
        Public Function Int05LU(v As Double, half As Boolean, lower As Boolean) As Double
            Return Dll.Int05LU(v, CInt(half), CInt(lower))
        End Function

        ''' <summary>Computes a point of the straight line y = a * x + b through (x1, y1) and (x2,
        ''' y2).</summary>
        ''' <param name="x1">abscissa of a given point</param>
        ''' <param name="x2">abscissa of a given point</param>
        ''' <param name="y1">ordinate of a given point</param>
        ''' <param name="y2">ordinate of a given point</param>
        ''' <param name="x">abscissa of the computed point: read if forward, otherwise
        ''' written</param>
        ''' <param name="y">ordinate of the computed point: written if forward, otherwise
        ''' read</param>
        ''' <param name="forward">if True, computes y from x; otherwise x from y</param>
        ''' <returns>status: 0 if a point was computed; -1 if x1 = x2, or in the inverse if a =
        ''' 0</returns>
        ''' <example><code>x = 2 : LinearInterpol(1, 3, 2, 6, x, y, True)  ' y = 4</code></example>
        Public Function LinearInterpol(x1 As Double, x2 As Double, y1 As Double, y2 As Double,
            ByRef x As Double, ByRef y As Double, forward As Boolean) As Integer
            Return Dll.LinearInterpol(x1, x2, y1, y2, x, y, CInt(forward))
        End Function

        ''' <summary>Computes a point of the parabola y = a * x^2 + b * x + c through (x1, y1), (x2,
        ''' y2) and (x3, y3).</summary>
        ''' <param name="x1">abscissa of a given point</param>
        ''' <param name="x2">abscissa of a given point</param>
        ''' <param name="x3">abscissa of a given point</param>
        ''' <param name="y1">ordinate of a given point</param>
        ''' <param name="y2">ordinate of a given point</param>
        ''' <param name="y3">ordinate of a given point</param>
        ''' <param name="x">abscissa of the computed point: read if forward, otherwise
        ''' written</param>
        ''' <param name="xSecond">second abscissa with ordinate y, written if not forward and a is
        ''' not 0</param>
        ''' <param name="y">ordinate of the computed point: written if forward, otherwise
        ''' read</param>
        ''' <param name="forward">if True, computes y from x; otherwise x and xSecond from y</param>
        ''' <returns>status: 0 if computed; -1 if two abscissas are equal, or in the inverse if a =
        ''' b = 0</returns>
        ''' <example><code>x = 5 : QuadraticInterpol(1, 2, 4, 0, 0, 6, x, xSecond, y, True)  ' y = 12</code></example>
        Public Function QuadraticInterpol(x1 As Double, x2 As Double, x3 As Double, y1 As Double,
            y2 As Double, y3 As Double, ByRef x As Double, ByRef xSecond As Double,
            ByRef y As Double, forward As Boolean) As Integer
            Return Dll.QuadraticInterpol(x1, x2, x3, y1, y2, y3, x, xSecond, y, CInt(forward))
        End Function

        ''' <summary>Replaces every occurrence of pattern in text.</summary>
        ''' <param name="text">text, which is not modified</param>
        ''' <param name="pattern">text to search for; Nothing: nothing is replaced</param>
        ''' <param name="replacement">text that replaces each occurrence; Nothing or empty:
        ''' occurrences are removed</param>
        ''' <returns>text with the replacements; Nothing if text is Nothing</returns>
        ''' <example><code>VB_Replace("a-b-c", "-", "--")  ' "a--b--c"</code></example>
        Public Function VB_Replace(text As String, pattern As String,
            replacement As String) As String
            Dim copy = HostString(text)
            Dim handle = Dll_VB_Replace(copy, pattern, replacement)
            If handle <> copy Then releaseBSTR(copy)
            Return TakeText(handle)
        End Function

        ''' <summary>Replaces every occurrence of pattern in text, and returns what the library did.</summary>
        ''' <param name="text">text, which is not modified</param>
        ''' <param name="pattern">text to search for; Nothing: nothing is replaced</param>
        ''' <param name="replacement">text that replaces each occurrence; Nothing or empty:
        ''' occurrences are removed</param>
        ''' <param name="result">receives what the library did with its copy of text</param>
        ''' <returns>text with the replacements; Nothing if text is Nothing</returns>
        ''' <example><code>Dim r As ReplaceResult : VB_Replace("a-b-c", "-", "+", r)  ' r = ReplaceResult.TextChanged</code></example>
        Public Function VB_Replace(text As String, pattern As String, replacement As String,
            ByRef result As ReplaceResult) As String
            Dim replaced = VB_Replace(text, pattern, replacement)
            If text Is Nothing OrElse pattern Is Nothing Then
                result = ReplaceResult.TextItself
            ElseIf IsOneUnit(pattern) AndAlso IsOneUnit(replacement) AndAlso
                Not text.StartsWith(replaced, StringComparison.Ordinal) Then
                result = ReplaceResult.TextChanged
            Else
                result = ReplaceResult.NewString
            End If
            Return replaced
        End Function

        Private Function IsOneUnit(text As String) As Boolean
            Return text IsNot Nothing AndAlso text.Length > 0 AndAlso AscW(text(0)) <> 0 AndAlso
                (text.Length = 1 OrElse AscW(text(1)) = 0)
        End Function

        <DllImport(Library, EntryPoint:="VB_Replace", CharSet:=CharSet.Unicode, ExactSpelling:=True)>
        Private Function Dll_VB_Replace(
            text As IntPtr, pattern As String, replacement As String) As IntPtr
        End Function

        ''' <summary>Assigns one decimal pattern to the first elements of an array.</summary>
        ''' <param name="formats">array of at least count elements</param>
        ''' <param name="count">number of elements; below 1: nothing is assigned</param>
        ''' <param name="digits">number of digits in the pattern, including the one before the
        ''' point</param>
        ''' <param name="digitsOverride">replaces digits, unless it is -1</param>
        ''' <exception cref="ArgumentNullException">formats is Nothing</exception>
        ''' <exception cref="ArgumentOutOfRangeException">formats has fewer than count
        ''' elements</exception>
        ''' <example><code>Dim f(0) As String : VB_SetFormat(f, 1, 4)  ' f(0) = "0.000"</code></example>
        Public Sub VB_SetFormat(formats As String(), count As Integer, digits As Integer,
            Optional digitsOverride As Integer = -1)
            If formats Is Nothing Then Throw New ArgumentNullException(NameOf(formats))
            If count > formats.Length Then Throw New ArgumentOutOfRangeException(NameOf(count))
            If count < 1 Then Return
            Dim elements(count - 1) As IntPtr
            Dll_VB_SetFormat(elements(0), count, digits, digitsOverride)
            For i = 0 To count - 1
                formats(i) = TakeText(elements(i))
            Next
        End Sub

        <DllImport(Library, EntryPoint:="VB_SetFormat", ExactSpelling:=True)>
        Private Sub Dll_VB_SetFormat(ByRef formats As IntPtr, count As Integer, digits As Integer,
            digitsOverride As Integer)
        End Sub

        ''' <summary>Prints a value by a pattern that the library returned.</summary>
        ''' <param name="value">value to print</param>
        ''' <param name="pattern">pattern from VB_OutputFormat, VB_OptimalFormat, Cpp_DecimalFormat or
        ''' VB_SetFormat</param>
        ''' <param name="provider">supplies decimal separator and signs; Nothing: "." and "-"</param>
        ''' <returns>printed value</returns>
        ''' <exception cref="ArgumentNullException">pattern is Nothing</exception>
        ''' <remarks>Format of .NET does not support E-# and prints the letters.</remarks>
        ''' <example><code>FormatByPattern(0.00001, "0.###E-#")  ' "1E-5"</code></example>
        Public Function FormatByPattern(value As Double, pattern As String,
            Optional provider As IFormatProvider = Nothing) As String
            If pattern Is Nothing Then Throw New ArgumentNullException(NameOf(pattern))
            If provider Is Nothing Then provider = CultureInfo.InvariantCulture
            ' Custom formats of .NET round to 15 digits first, "F" does not.
            If pattern.Contains("#"c) OrElse pattern.Contains("E"c) Then
                Return value.ToString(pattern.Replace("E-#", "E-0"), provider)
            End If
            Return value.ToString("F" & Math.Max(pattern.Length - 2, 0), provider)
        End Function

        ''' <summary>Swaps two handles that HostString returned.</summary>
        ''' <param name="a">handle, or IntPtr.Zero</param>
        ''' <param name="b">handle, or IntPtr.Zero</param>
        ''' <example><code>Dim a = HostString("a"), b = HostString("b") : SwapStr(a, b)  ' TakeText(a) &amp; TakeText(b) = "ba"</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Sub SwapStr(ByRef a As IntPtr, ByRef b As IntPtr)
        End Sub

        ''' <summary>Returns a new host string. Pass it to TakeText once.</summary>
        ''' <param name="text">text; Nothing: the null handle</param>
        ''' <returns>handle, which the caller owns</returns>
        ''' <example><code>TakeText(HostString("text"))  ' "text"</code></example>
        Public Function HostString(text As String) As IntPtr
            Return If(text Is Nothing, IntPtr.Zero, SysAllocString16(text))
        End Function

        ''' <summary>Releases a host string and returns its text.</summary>
        ''' <param name="handle">host string, or IntPtr.Zero</param>
        ''' <returns>text; Nothing for IntPtr.Zero</returns>
        ''' <example><code>TakeText(HostString(Nothing)) Is Nothing  ' True</code></example>
        Public Function TakeText(handle As IntPtr) As String
            Try
                Return Marshal.PtrToStringUni(handle)
            Finally
                releaseBSTR(handle)
            End Try
        End Function

        <DllImport("QUVARDCR1C.dll", CharSet:=CharSet.Unicode, ExactSpelling:=True)>
        Private Function SysAllocString16(units As String) As IntPtr
        End Function
        <DllImport("QUVARDCR1C.dll", ExactSpelling:=True)>
        Private Sub releaseBSTR(handle As IntPtr)
        End Sub

        ' The exported routines. They return handles, and take True as -1.
        Private NotInheritable Class Dll
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_StrLeft(s As String, n As Integer) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_StrRight(s As String, n As Integer) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_StrConcat(a As String, b As String, c As String, d As String,
                e As String, f As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_StrLTrim(s As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_StrRTrim(s As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_StrLRTrim(s As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_RemoveChar(s As String, chars As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_RemoveNonNumericChar(s As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_RemoveColon(s As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_CommonChar(text As String, chars As String) As Integer
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function StrFromTo(text As String, from As Integer,
                to_ As Integer) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function StrBetween(text As String, from As Integer,
                to_ As Integer) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function StrFromChrToChr(text As String, opening As String,
                closing As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function StrBetweenChrAndChr(text As String, opening As String,
                closing As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_Replace2(text As String, pattern1 As String,
                replacement1 As String, pattern2 As String, replacement2 As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_LocalAN(adjective As String, noun As String,
                language As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_LocalAN2(adjective As String, noun As String,
                language As String, upperAdjective As Integer, lowerResult As Integer,
                noBlank As Integer) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_LowerFirst(text As String, language As String,
                forceDE As Integer) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_UpperFirst(text As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_SpStrSp(text As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_PStrP(text As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_BStrB(text As String) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_SingPlural(singular As String, plural As String,
                count As Integer) As IntPtr
            End Function
            <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
            Friend Shared Function VB_QUVARDHTMLProcessor(text As String) As IntPtr
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function Cpp_DecimalFormat(decimals As Integer) As IntPtr
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function VB_OutputFormat(value As Double) As IntPtr
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function VB_OptimalFormat(value As Double, decimals As Integer,
                useExponent As Integer, keepDecimals As Integer) As IntPtr
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function IsLong(x As Double) As Integer
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function IsLongP(x As Double, tol As Double) As Integer
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function IsEven(x As Double) As Integer
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function IsEvenLng(n As Integer) As Integer
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function Int05(v As Double, half As Integer) As Double
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function Int05c(v As Double, half As Integer) As Double
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function Int05LU(v As Double, half As Integer, lower As Integer) As Double
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function LinearInterpol(x1 As Double, x2 As Double, y1 As Double,
                y2 As Double, ByRef x As Double, ByRef y As Double, forward As Integer) As Integer
            End Function
            <DllImport(Library, ExactSpelling:=True)>
            Friend Shared Function QuadraticInterpol(x1 As Double, x2 As Double, x3 As Double,
                y1 As Double, y2 As Double, y3 As Double, ByRef x As Double,
                ByRef xSecond As Double, ByRef y As Double, forward As Integer) As Integer
            End Function
        End Class
    End Module
End Namespace
