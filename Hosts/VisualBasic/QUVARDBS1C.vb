' The base library for Visual Basic programs on .NET. Generated from QUVARDBS1C.h by generate.py: do
' not edit. Add this file to the project, and keep QUVARDBS1C.dll and QUVARDCR1C.dll in the folder of
' the program. The page docs/from-a-macro.md explains how.
'
' Texts are Strings on both sides, and no caller releases anything. Nothing is the null handle: as an
' argument it is the empty text unless a comment says otherwise. Texts end at their first ChrW(0).
' Lengths and positions count UTF-16 code units, as Len and Mid do, and positions start at 1.
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

        ''' <summary>What a call of VB_Replace did to the copy that the library was given.</summary>
        Public Enum ReplaceResult
            ''' <summary>The result is a new text, and the copy is unchanged.</summary>
            NewString
            ''' <summary>The result is a new text, and the copy was changed as well.</summary>
            TextChanged
            ''' <summary>The result is the copy itself, because text or pattern is Nothing.</summary>
            TextItself
        End Enum

        ''' <summary>The first n units of s.</summary>
        ''' <param name="n">number of units; above the length of s, or negative: all of s</param>
        ''' <returns>empty if n is 0 or s is empty</returns>
        ''' <example><code>VB_StrLeft("Hello", 2)  ' "He"</code></example>
        Public Function VB_StrLeft(s As String, n As Integer) As String
            Return TakeText(Dll.VB_StrLeft(s, n))
        End Function

        ''' <summary>The last n units of s.</summary>
        ''' <param name="n">number of units; above the length of s, or negative: all of s</param>
        ''' <returns>empty if n is 0 or s is empty</returns>
        ''' <example><code>VB_StrRight("Hello", 2)  ' "lo"</code></example>
        Public Function VB_StrRight(s As String, n As Integer) As String
            Return TakeText(Dll.VB_StrRight(s, n))
        End Function

        ''' <summary>The six strings joined in argument order, with nothing between them.</summary>
        ''' <example><code>VB_StrConcat("a", "b", Nothing, Nothing, Nothing, Nothing)  ' "ab"</code></example>
        Public Function VB_StrConcat(a As String, b As String, c As String, d As String,
            e As String, f As String) As String
            Return TakeText(Dll.VB_StrConcat(a, b, c, d, e, f))
        End Function

        ''' <summary>s without its leading blanks.</summary>
        ''' <example><code>VB_StrLTrim("  a b  ")  ' "a b  "</code></example>
        Public Function VB_StrLTrim(s As String) As String
            Return TakeText(Dll.VB_StrLTrim(s))
        End Function

        ''' <summary>s without its trailing blanks.</summary>
        ''' <example><code>VB_StrRTrim("  a b  ")  ' "  a b"</code></example>
        Public Function VB_StrRTrim(s As String) As String
            Return TakeText(Dll.VB_StrRTrim(s))
        End Function

        ''' <summary>s without blanks at either end.</summary>
        ''' <example><code>VB_StrLRTrim("  a b  ")  ' "a b"</code></example>
        Public Function VB_StrLRTrim(s As String) As String
            Return TakeText(Dll.VB_StrLRTrim(s))
        End Function

        ''' <summary>s after a removal that goes on until the whole of chars occurs nowhere: each
        ''' step takes the first unit out of the leftmost occurrence.</summary>
        ''' <param name="chars">what to look for; empty: s comes back unchanged</param>
        ''' <remarks>With a chars of one unit, every such unit goes. The time is linear in s and
        ''' chars, whatever they hold. If chars has more than 16 code units and is not longer than
        ''' s, the call needs 4 * (|s| + 2 * |chars| + 3) bytes of memory for itself: up to 780
        ''' bytes (texts of up to 64 code units need no more) on the stack, above on the
        ''' heap.</remarks>
        ''' <example><code>VB_RemoveChar("a-b-c", "-")  ' "abc"</code></example>
        Public Function VB_RemoveChar(s As String, chars As String) As String
            Return TakeText(Dll.VB_RemoveChar(s, chars))
        End Function

        ''' <summary>The digits 0 to 9 of s, in their order.</summary>
        ''' <example><code>VB_RemoveNonNumericChar("-1.5")  ' "15"</code></example>
        Public Function VB_RemoveNonNumericChar(s As String) As String
            Return TakeText(Dll.VB_RemoveNonNumericChar(s))
        End Function

        ''' <summary>s without any colon.</summary>
        ''' <returns>Nothing for Nothing</returns>
        ''' <example><code>VB_RemoveColon(" a:b ")  ' " ab "</code></example>
        Public Function VB_RemoveColon(s As String) As String
            Return TakeText(Dll.VB_RemoveColon(s))
        End Function

        ''' <summary>Whether text and chars have a unit in common.</summary>
        ''' <returns>True or False</returns>
        ''' <remarks>The time is linear in text and chars, but for units above 0xFFFF in a chars
        ''' above 64 units: if there are n of these, they are sorted in n log n steps, and each such
        ''' unit of text takes log n.</remarks>
        ''' <example><code>VB_CommonChar("abc", "xyzb")  ' True</code></example>
        Public Function VB_CommonChar(text As String, chars As String) As Boolean
            Return Dll.VB_CommonChar(text, chars) <> 0
        End Function

        ''' <summary>The number of occurrences of pattern in text, from left to right and without
        ''' overlap.</summary>
        ''' <returns>0 if either is empty or Nothing</returns>
        ''' <remarks>Both end at their first zero unit.</remarks>
        ''' <example><code>ChrCount("a,b,c", ",")  ' 2</code></example>
        <DllImport(Library, CharSet:=CharSet.Unicode, ExactSpelling:=True)>
        Public Function ChrCount(text As String, pattern As String) As Integer
        End Function

        ''' <summary>The units at positions from to to, both included.</summary>
        ''' <param name="from">1 or more</param>
        ''' <param name="to_">not beyond the end of text</param>
        ''' <returns>empty for any other positions, and if to is before from</returns>
        ''' <example><code>StrFromTo("abcdef", 2, 5)  ' "bcde"</code></example>
        Public Function StrFromTo(text As String, from As Integer, to_ As Integer) As String
            Return TakeText(Dll.StrFromTo(text, from, to_))
        End Function

        ''' <summary>The units strictly between positions from and to.</summary>
        ''' <param name="from">1 or more</param>
        ''' <param name="to_">not beyond the end of text</param>
        ''' <returns>empty for any other positions, and if to is not after from</returns>
        ''' <example><code>StrBetween("abcdef", 2, 5)  ' "cd"</code></example>
        Public Function StrBetween(text As String, from As Integer, to_ As Integer) As String
            Return TakeText(Dll.StrBetween(text, from, to_))
        End Function

        ''' <summary>The text from the first opening to the first closing, both included.</summary>
        ''' <returns>empty if either is not found or closing comes first</returns>
        ''' <remarks>Both are searched from the start of the text. Of a closing of several units,
        ''' which needs an empty opening, the first unit is included; an empty one counts as the
        ''' first unit of the text.</remarks>
        ''' <example><code>StrFromChrToChr("a(b)c", "(", ")")  ' "(b)"</code></example>
        Public Function StrFromChrToChr(text As String, opening As String,
            closing As String) As String
            Return TakeText(Dll.StrFromChrToChr(text, opening, closing))
        End Function

        ''' <summary>What is between the first opening and the first closing after it, both left
        ''' out.</summary>
        ''' <returns>empty if either is not found, or closing is empty</returns>
        ''' <remarks>The slice starts one unit after the start of opening, also if that is empty,
        ''' and closing is searched from there.</remarks>
        ''' <example><code>StrBetweenChrAndChr("a/b/c", "/", "/")  ' "b"</code></example>
        Public Function StrBetweenChrAndChr(text As String, opening As String,
            closing As String) As String
            Return TakeText(Dll.StrBetweenChrAndChr(text, opening, closing))
        End Function

        ''' <summary>text with every occurrence of pattern1 replaced, and then, in that result,
        ''' every occurrence of pattern2.</summary>
        ''' <remarks>Null handles are empty strings. No argument changes. The text after the first
        ''' replacement takes time too, but no memory as a whole. It can have |text| *
        ''' |replacement1| code units, also where the result is short.</remarks>
        ''' <example><code>VB_Replace2("ab", "a", "b", "b", "c")  ' "cc"</code></example>
        Public Function VB_Replace2(text As String, pattern1 As String, replacement1 As String,
            pattern2 As String, replacement2 As String) As String
            Return TakeText(Dll.VB_Replace2(text, pattern1, replacement1, pattern2, replacement2))
        End Function

        ''' <summary>Host form of VB_LocalAN2() with upperAdjective True, lowerResult False, noBlank
        ''' False.</summary>
        ''' <example><code>VB_LocalAN("linear", "Model", "ES")  ' "Model linear"</code></example>
        Public Function VB_LocalAN(adjective As String, noun As String,
            language As String) As String
            Return TakeText(Dll.VB_LocalAN(adjective, noun, language))
        End Function

        ''' <summary>The phrase of an adjective and a noun in the word order of a
        ''' language.</summary>
        ''' <param name="upperAdjective">raises the adjective's first unit, in US and DE
        ''' only</param>
        ''' <param name="lowerResult">lowers the first unit of the finished phrase, in US and the
        ''' noun-first languages only</param>
        ''' <param name="noBlank">makes the separator empty; otherwise it is one blank</param>
        ''' <example><code>VB_LocalAN2("linear", "Model", "JP", False, False, True)  ' "linearModel"</code></example>
        Public Function VB_LocalAN2(adjective As String, noun As String, language As String,
            Optional upperAdjective As Boolean = True, Optional lowerResult As Boolean = False,
            Optional noBlank As Boolean = False) As String
            Return TakeText(Dll.VB_LocalAN2(adjective, noun, language, CInt(upperAdjective),
                CInt(lowerResult), CInt(noBlank)))
        End Function

        ''' <summary>text with its first unit lower-cased, as StrLCase() does it.</summary>
        ''' <remarks>"JP" leaves the text as it is, and so does "DE" unless forceDE is True. Every
        ''' other code lowers, an unknown or empty one too.</remarks>
        ''' <example><code>VB_LowerFirst("Model", "DE", False)  ' "Model"</code></example>
        Public Function VB_LowerFirst(text As String, language As String,
            Optional forceDE As Boolean = False) As String
            Return TakeText(Dll.VB_LowerFirst(text, language, CInt(forceDE)))
        End Function

        ''' <summary>text with its first unit upper-cased under the locale of the process.</summary>
        ''' <example><code>VB_UpperFirst("linear")  ' "Linear"</code></example>
        Public Function VB_UpperFirst(text As String) As String
            Return TakeText(Dll.VB_UpperFirst(text))
        End Function

        ''' <summary>A blank, text, a blank.</summary>
        ''' <example><code>VB_SpStrSp("and")  ' " and "</code></example>
        Public Function VB_SpStrSp(text As String) As String
            Return TakeText(Dll.VB_SpStrSp(text))
        End Function

        ''' <summary>text in parentheses.</summary>
        ''' <example><code>VB_PStrP("units")  ' "(units)"</code></example>
        Public Function VB_PStrP(text As String) As String
            Return TakeText(Dll.VB_PStrP(text))
        End Function

        ''' <summary>text in square brackets.</summary>
        ''' <example><code>VB_BStrB("1")  ' "[1]"</code></example>
        Public Function VB_BStrB(text As String) As String
            Return TakeText(Dll.VB_BStrB(text))
        End Function

        ''' <summary>A copy of singular if count is less than 2, else of plural.</summary>
        ''' <remarks>The other one is not read.</remarks>
        ''' <example><code>VB_SingPlural("case", Nothing, 0)  ' "case"</code></example>
        Public Function VB_SingPlural(singular As String, plural As String,
            count As Integer) As String
            Return TakeText(Dll.VB_SingPlural(singular, plural, count))
        End Function

        ''' <summary>text with its markup tokens turned into the characters that they mean:
        ''' &lt;BR&gt; into a line feed, &lt;QM&gt; into a double quotation mark, &lt;CM&gt; into a
        ''' comma.</summary>
        ''' <remarks>Case counts.</remarks>
        ''' <example><code>VB_QUVARDHTMLProcessor("&lt;QM&gt;a&lt;QM&gt;")  ' """a"""</code></example>
        Public Function VB_QUVARDHTMLProcessor(text As String) As String
            Return TakeText(Dll.VB_QUVARDHTMLProcessor(text))
        End Function

        ''' <summary>The pattern with a number of decimals.</summary>
        ''' <param name="decimals">0 or below: the pattern "0"; there is no upper limit but
        ''' memory</param>
        ''' <example><code>Cpp_DecimalFormat(2)  ' "0.00"</code></example>
        Public Function Cpp_DecimalFormat(decimals As Integer) As String
            Return TakeText(Dll.Cpp_DecimalFormat(decimals))
        End Function

        ''' <summary>The pattern that shows the decimals a value has, up to 19: "0" for a value
        ''' within 1e-12 of a whole number (infinities and NaN count as whole), otherwise "0." and
        ''' 19 times "#".</summary>
        ''' <remarks>If the value times 1e19 is not whole by the same test, "E-#" follows.</remarks>
        ''' <example><code>VB_OutputFormat(0.5)  ' "0.###################"</code></example>
        Public Function VB_OutputFormat(value As Double) As String
            Return TakeText(Dll.VB_OutputFormat(value))
        End Function

        ''' <summary>The pattern with a chosen number of decimals, in scientific notation where that
        ''' is asked for and the value is small for these decimals, or large.</summary>
        ''' <param name="value">the value that is to be printed</param>
        ''' <param name="decimals">decimals of the pattern; also the limit for small values</param>
        ''' <param name="useExponent">set: there may be an exponent part</param>
        ''' <param name="keepDecimals">matters only with an exponent part. Set: the mantissa stays
        ''' as told. Not set: it becomes "0" if pow(10, -e) times the value is whole</param>
        ''' <remarks>A number x is whole here if it is less than 1e-12 away from x truncated toward
        ''' zero, and that fits 32 bits; an infinity and NaN are not. The mantissa is "0" for a
        ''' whole value, otherwise Cpp_DecimalFormat(decimals). With e the decimal logarithm of the
        ''' magnitude, truncated toward zero, the exponent part is "E-0" if e is below -decimals
        ''' ("E-00" from -10 down), "E+0" if e is 5 or more ("E+00" from 10 up), and empty in
        ''' between. There is none for a magnitude of 1e-12 or less, for an infinity or for
        ''' NaN.</remarks>
        ''' <example><code>VB_OptimalFormat(2.5, 3, False, False)  ' "0.000"</code></example>
        Public Function VB_OptimalFormat(value As Double, decimals As Integer,
            useExponent As Boolean, keepDecimals As Boolean) As String
            Return TakeText(Dll.VB_OptimalFormat(value, decimals, CInt(useExponent),
                CInt(keepDecimals)))
        End Function

        ''' <summary>The constant 3.14159265358979, which is 7 units in the last place below the
        ''' double closest to pi.</summary>
        ''' <remarks>Twice ASin(1) equals it.</remarks>
        ''' <example><code>Pi()  ' 3.14159265358979</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Pi() As Double
        End Function

        ''' <summary>The square root (not the square) of x, correctly rounded.</summary>
        ''' <returns>-1.79769313486231e+308 if x is below 0; -0.0 for -0.0</returns>
        ''' <example><code>SqrDbl(4)  ' 2</code></example>
        <DllImport(Library, EntryPoint:="sqr", ExactSpelling:=True)>
        Public Function SqrDbl(x As Double) As Double
        End Function

        ''' <summary>The decimal logarithm of x, as the platform's log10 gives it.</summary>
        ''' <example><code>Log10(1000)  ' 3</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Log10(x As Double) As Double
        End Function

        ''' <summary>base to the power of exponent, as the platform's pow gives it.</summary>
        ''' <example><code>spow(2, 10)  ' 1024</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function spow(base As Double, exponent As Double) As Double
        End Function

        ''' <summary>exp(x) - 1.</summary>
        ''' <returns>1.79769313486231e+308 for x above 709</returns>
        ''' <example><code>expm1x(1e-6)  ' 1.0000004999999999e-06</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function expm1x(x As Double) As Double
        End Function

        ''' <summary>The arcsine of x in radians, as atan(x / SqrDbl((1 - x) * (x + 1))).</summary>
        ''' <param name="x">from -1 to 1; beyond, SqrDbl() refuses its argument, and the result is
        ''' that of atan(x / -1.79769313486231e+308): its sign is opposite to that of x, it is at
        ''' most 0.006 in magnitude up to 1e306 and half of pi at infinity, and nothing tells it
        ''' from an arcsine</param>
        ''' <returns>at 1 and -1 the constants 1.570796326794895 and -1.570796326794895; 0.0 for
        ''' both zeros</returns>
        ''' <example><code>ASin(1)  ' 1.570796326794895</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function ASin(x As Double) As Double
        End Function

        ''' <summary>a if it is below b, otherwise b: of equal arguments, or with a NaN,
        ''' b.</summary>
        ''' <example><code>Min(2, 1)  ' 1</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Min(a As Double, b As Double) As Double
        End Function

        ''' <summary>a if it is above b, otherwise b: of equal arguments, or with a NaN,
        ''' b.</summary>
        ''' <example><code>Max(2, 1)  ' 2</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Max(a As Double, b As Double) As Double
        End Function

        ''' <summary>The sign of x as a number: 1, -1, or 0.0 for both zeros.</summary>
        ''' <returns>NaN for an infinity or NaN</returns>
        ''' <example><code>FSgn(-0.25)  ' -1</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function FSgn(x As Double) As Double
        End Function

        ''' <summary>The magnitude of a with the sign of b, where -0.0 and NaN count as not
        ''' negative.</summary>
        ''' <example><code>FSign(3, -1)  ' -3</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function FSign(a As Double, b As Double) As Double
        End Function

        ''' <summary>ln(exp(a) + exp(b)), also where the exponentials leave the range of
        ''' doubles.</summary>
        ''' <returns>NaN for two infinities of the same sign</returns>
        ''' <example><code>LogExpAPlusExpB(1000, 1000)  ' 1000.6931471805599</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function LogExpAPlusExpB(a As Double, b As Double) As Double
        End Function

        ''' <summary>Exchanges two integers.</summary>
        ''' <example><code>i = 1 : j = 2 : SwapLng(i, j)  ' i = 2</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Sub SwapLng(ByRef a As Integer, ByRef b As Integer)
        End Sub

        ''' <summary>Exchanges two doubles, bits as they are.</summary>
        ''' <example><code>x = 1 : y = 2 : SwapDbl(x, y)  ' x = 2</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Sub SwapDbl(ByRef a As Double, ByRef b As Double)
        End Sub

        ''' <summary>The natural logarithm of the gamma function.</summary>
        ''' <param name="x">positive. From -6.5 up to 0 the formula runs as it is: +infinity at
        ''' -6.5, -6 and -4 and within 4.4e-16 of -2 and 0; else NaN from -1 (and the two doubles
        ''' before it) up to 0, from -3 up to -2, from -5 up to -4 and from about -6.19 up to -6;
        ''' far off from -6.5 to -6.19</param>
        ''' <returns>-1.79769313486231e+308 for x below -6.5; +infinity from about 2.56e305; NaN for
        ''' +infinity</returns>
        ''' <example><code>GammaLn(0.5) &gt; 0.57236494292 AndAlso GammaLn(0.5) &lt; 0.57236494293  ' True</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function GammaLn(x As Double) As Double
        End Function

        ''' <summary>n factorial, in one table look-up.</summary>
        ''' <returns>1 for n below 2; +infinity above 170</returns>
        ''' <example><code>Fact(5)  ' 120</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Fact(n As Integer) As Double
        End Function

        ''' <summary>The number of ways to choose k of n.</summary>
        ''' <returns>+infinity if the coefficient, or a product on the way to it, is out of range; 1
        ''' + k if n k is 2147483648 or more and k is neither 0 nor below -2147483648</returns>
        ''' <example><code>Cnk(49, 6)  ' 13983816</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function Cnk(n As Double, k As Double) As Double
        End Function

        ''' <summary>The sum of Cnk(n, k) for the whole numbers k from from to to, added
        ''' upward.</summary>
        ''' <param name="from">truncated toward zero; outside the 32-bit range, or NaN, it counts as
        ''' -2147483648</param>
        ''' <param name="to_">the sum ends at the last whole number not above it, and at 2147483647
        ''' in any case</param>
        ''' <returns>0 for an empty range or a NaN to; terms with k above n add nothing</returns>
        ''' <remarks>The result has the bits of the addition term by term, also over billions of
        ''' terms; long ranges of terms that grow by steps of 1 are added in closed form. A call
        ''' takes longest for a fractional n near 1020: about a millisecond.</remarks>
        ''' <example><code>SumCnk(5, 2, 3)  ' 20</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function SumCnk(n As Double, from As Double, to_ As Double) As Double
        End Function

        ''' <summary>The floored remainder of a by b, which has the sign of b.</summary>
        ''' <returns>a if b is 0</returns>
        ''' <example><code>ModLng(-7, 3)  ' 2</code></example>
        <DllImport(Library, EntryPoint:="Mod", ExactSpelling:=True)>
        Public Function ModLng(a As Integer, b As Integer) As Integer
        End Function

        ''' <summary>The floored remainder a - floor(a / b) * b, which the rounded quotient decides:
        ''' it may miss the range from 0 to b by up to two units in the last place of a.</summary>
        ''' <returns>NaN if b is 0 or an argument is infinite; an infinity of the sign opposite to a
        ''' if the quotient, or its floor times b, is out of range; a if the quotient is so small
        ''' that it is rounded to 0</returns>
        ''' <example><code>ModDbl(-7.5, 2)  ' 0.5</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function ModDbl(a As Double, b As Double) As Double
        End Function

        ''' <summary>The largest common divisor.</summary>
        ''' <returns>not negative, but for -2147483648, whose magnitude has no place in 32
        ''' bits</returns>
        ''' <remarks>Zero is neutral and signs do not count.</remarks>
        ''' <example><code>LCD(-12, 18)  ' 6</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function LCD(a As Integer, b As Integer) As Integer
        End Function

        ''' <summary>The largest common divisor of two whole numbers held in doubles.</summary>
        ''' <returns>the magnitude of a if b is 0</returns>
        ''' <remarks>Only the truncated values take part; but if that of a is a multiple of that of
        ''' b, the result is the magnitude of b as it was: LCD2(6, 2.5) is 2.5, LCD2(7, 2.5) is
        ''' 1.</remarks>
        ''' <example><code>LCD2(12, 18)  ' 6</code></example>
        <DllImport(Library, EntryPoint:="_Z4LCD2dd", ExactSpelling:=True)>
        Public Function LCD2(a As Double, b As Double) As Double
        End Function

        ''' <summary>The largest common divisor of two decimal numbers, for instance 0.25 of 0.5 and
        ''' 0.75.</summary>
        ''' <param name="a">times the power of ten, below 2147483648 in magnitude; beyond, the
        ''' result is a divisor of other numbers</param>
        ''' <param name="b">likewise</param>
        ''' <example><code>LCDDbl(0.29, 0.29)  ' 0.29</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Function LCDDbl(a As Double, b As Double) As Double
        End Function

        ''' <summary>Whether x is a whole number within 1e-12, of any size.</summary>
        ''' <remarks>True for infinities and NaN.</remarks>
        ''' <example><code>IsLong(3.0000000000009)  ' True</code></example>
        Public Function IsLong(x As Double) As Boolean
            Return Dll.IsLong(x) <> 0
        End Function

        ''' <summary>Whether x is a whole number within tol, inclusive.</summary>
        ''' <remarks>True if either is NaN.</remarks>
        ''' <example><code>IsLongP(2.75, 0.25)  ' True</code></example>
        Public Function IsLongP(x As Double, tol As Double) As Boolean
            Return Dll.IsLongP(x, tol) <> 0
        End Function

        ''' <summary>Whether half of x, as rounded, is whole or less than 2^-52 above a whole
        ''' number.</summary>
        ''' <remarks>One just below does not count, but for the negative double closest to 0, whose
        ''' half is rounded to 0. False for infinities and NaN.</remarks>
        ''' <example><code>IsEven(-2.0)  ' True</code></example>
        Public Function IsEven(x As Double) As Boolean
            Return Dll.IsEven(x) <> 0
        End Function

        ''' <summary>Whether n is even.</summary>
        ''' <example><code>IsEvenLng(3)  ' False</code></example>
        Public Function IsEvenLng(n As Integer) As Boolean
            Return Dll.IsEvenLng(n) <> 0
        End Function

        ''' <summary>v moved away from zero: a value that is not whole goes to the next whole number
        ''' or, with half, to the next multiple of a half.</summary>
        ''' <returns>+0.0 for both zeros; NaN for an infinity or NaN</returns>
        ''' <remarks>The half point itself goes on to the whole number, and so does a fraction less
        ''' than 1e-12 below it. The step is taken from abs(v) + 1 as rounded, so the last double
        ''' below a power of two from 1 to 2^51 goes on to the grid point after that. From
        ''' 2147483647 in magnitude, half has no effect.</remarks>
        ''' <example><code>Int05(2.1, True)  ' 2.5</code></example>
        Public Function Int05(v As Double, half As Boolean) As Double
            Return Dll.Int05(v, CInt(half))
        End Function

        ''' <summary>v moved to the closest whole number or, with half, to the closest multiple of a
        ''' half.</summary>
        ''' <returns>+0.0 for both zeros, -0.0 for a negative value that comes to nothing; NaN for
        ''' an infinity or NaN</returns>
        ''' <remarks>Of two equally close whole numbers the one nearer to zero is taken, up to 15.5
        ''' (from 16.5 the one further away). So it is for the first doubles beyond the tie: eight
        ''' at 0.5, three at 1.5, one each at 2.5 and 3.5. With half, a quarter point, and a value
        ''' less than 1e-12 beyond it, goes to the whole number.</remarks>
        ''' <example><code>Int05c(2.4, True)  ' 2.5</code></example>
        Public Function Int05c(v As Double, half As Boolean) As Double
            Return Dll.Int05c(v, CInt(half))
        End Function

        ''' <summary>v moved down or up the number line to a whole number or, with half, to a
        ''' multiple of a half.</summary>
        ''' <param name="lower">down if it is True, otherwise up</param>
        ''' <returns>an infinity for itself; NaN for NaN</returns>
        ''' <remarks>A value on the grid stays. No tolerance. Upward, the step to a whole number is
        ''' taken from 1 + v as rounded: from -2^-54 to the last double below 0 the result is 1, and
        ''' the last double below a power of two from 1 to 2^51 goes on to the whole number after
        ''' that.</remarks>
        ''' <example><code>Int05LU(-2.1, True, True)  ' -2.5</code></example>
        Public Function Int05LU(v As Double, half As Boolean, lower As Boolean) As Double
            Return Dll.Int05LU(v, CInt(half), CInt(lower))
        End Function

        ''' <summary>The straight line through (x1, y1) and (x2, y2), used in either
        ''' direction.</summary>
        ''' <example><code>x = 2 : LinearInterpol(1, 3, 2, 6, x, y, True)  ' y = 4</code></example>
        Public Function LinearInterpol(x1 As Double, x2 As Double, y1 As Double, y2 As Double,
            ByRef x As Double, ByRef y As Double, forward As Boolean) As Integer
            Return Dll.LinearInterpol(x1, x2, y1, y2, x, y, CInt(forward))
        End Function

        ''' <summary>The parabola a * x^2 + b * x + c through three points, used in either
        ''' direction.</summary>
        ''' <example><code>x = 5 : QuadraticInterpol(1, 2, 4, 0, 0, 6, x, xSecond, y, True)  ' y = 12</code></example>
        Public Function QuadraticInterpol(x1 As Double, x2 As Double, x3 As Double, y1 As Double,
            y2 As Double, y3 As Double, ByRef x As Double, ByRef xSecond As Double,
            ByRef y As Double, forward As Boolean) As Integer
            Return Dll.QuadraticInterpol(x1, x2, x3, y1, y2, y3, x, xSecond, y, CInt(forward))
        End Function

        ''' <summary>Replaces every occurrence of pattern in text.</summary>
        ''' <param name="text">text to search; it stays as it is</param>
        ''' <param name="pattern">what to look for; Nothing: the result is text</param>
        ''' <param name="replacement">what to put in its place; Nothing: nothing</param>
        ''' <returns>new String; Nothing if text is Nothing</returns>
        ''' <example><code>VB_Replace("a-b-c", "-", "--")  ' "a--b--c"</code></example>
        Public Function VB_Replace(text As String, pattern As String,
            replacement As String) As String
            Dim copy = HostString(text)
            Dim handle = Dll_VB_Replace(copy, pattern, replacement)
            If handle <> copy Then releaseBSTR(copy)
            Return TakeText(handle)
        End Function

        ''' <summary>Replaces every occurrence of pattern in text, and tells what the library did.</summary>
        ''' <param name="text">text to search; it stays as it is</param>
        ''' <param name="pattern">what to look for; Nothing: the result is text</param>
        ''' <param name="replacement">what to put in its place; Nothing: nothing</param>
        ''' <param name="result">tells what the library did to its copy of text</param>
        ''' <returns>new String; Nothing if text is Nothing</returns>
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

        ' A text ends at its first zero unit.
        Private Function IsOneUnit(text As String) As Boolean
            Return text IsNot Nothing AndAlso text.Length > 0 AndAlso AscW(text(0)) <> 0 AndAlso
                (text.Length = 1 OrElse AscW(text(1)) = 0)
        End Function

        <DllImport(Library, EntryPoint:="VB_Replace", CharSet:=CharSet.Unicode, ExactSpelling:=True)>
        Private Function Dll_VB_Replace(
            text As IntPtr, pattern As String, replacement As String) As IntPtr
        End Function

        ''' <summary>Sets the first count elements of an array to one decimal pattern.</summary>
        ''' <param name="formats">the array</param>
        ''' <param name="count">number of elements; below 1 nothing happens</param>
        ''' <param name="digits">digits of the pattern, the one before the point included</param>
        ''' <param name="digitsOverride">if it is not -1, it counts in the place of digits</param>
        ''' <exception cref="ArgumentNullException">formats is Nothing</exception>
        ''' <exception cref="ArgumentOutOfRangeException">formats has less than count
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
        ''' <param name="value">the value</param>
        ''' <param name="pattern">a result of VB_OutputFormat, VB_OptimalFormat, Cpp_DecimalFormat or
        ''' VB_SetFormat</param>
        ''' <param name="provider">the decimal separator and the signs; Nothing: "." and "-" in any
        ''' culture</param>
        ''' <returns>the number as a text</returns>
        ''' <exception cref="ArgumentNullException">pattern is Nothing</exception>
        ''' <remarks>Format of .NET does not know E-# and prints it as letters.</remarks>
        ''' <example><code>FormatByPattern(0.00001, "0.###E-#")  ' "1E-5"</code></example>
        Public Function FormatByPattern(value As Double, pattern As String,
            Optional provider As IFormatProvider = Nothing) As String
            If pattern Is Nothing Then Throw New ArgumentNullException(NameOf(pattern))
            If provider Is Nothing Then provider = CultureInfo.InvariantCulture
            ' A custom format of .NET rounds to 15 digits, "F" does not round.
            If pattern.Contains("#"c) OrElse pattern.Contains("E"c) Then
                Return value.ToString(pattern.Replace("E-#", "E-0"), provider)
            End If
            Return value.ToString("F" & Math.Max(pattern.Length - 2, 0), provider)
        End Function

        ''' <summary>Swaps two host strings, which HostString returned.</summary>
        ''' <param name="a">a handle, or IntPtr.Zero</param>
        ''' <param name="b">a handle, or IntPtr.Zero</param>
        ''' <example><code>Dim a = HostString("a"), b = HostString("b") : SwapStr(a, b)  ' TakeText(a) &amp; TakeText(b) = "ba"</code></example>
        <DllImport(Library, ExactSpelling:=True)>
        Public Sub SwapStr(ByRef a As IntPtr, ByRef b As IntPtr)
        End Sub

        ''' <summary>Returns a new host string, which the caller passes to TakeText once.</summary>
        ''' <param name="text">the text; Nothing: the null handle</param>
        ''' <returns>the handle</returns>
        ''' <example><code>TakeText(HostString("text"))  ' "text"</code></example>
        Public Function HostString(text As String) As IntPtr
            Return If(text Is Nothing, IntPtr.Zero, SysAllocString16(text))
        End Function

        ''' <summary>Releases a host string and returns its text.</summary>
        ''' <param name="handle">the host string; IntPtr.Zero: the result is Nothing</param>
        ''' <returns>new String</returns>
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

        ' The library's own forms: a text that results is a host string, and True is -1.
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
