# Converts the examples in docs/visual-basic-routines.md to a module that runs them.
BEGIN { print "Imports QUVARDBS1C.Routines\nModule Examples\n  Private i, j As Integer, x, xSecond, y As Double\n  Sub RunExamples()" }
/^\| `/ {
  example = $0
  sub(/.* \| `/, "", example)
  sub(/` \|$/, "", example)
  at = index(example, "  ' ")
  code = substr(example, 1, at - 1)
  expected = substr(example, at + 4)
  print "    If True Then"
  # Either "value  ' expected", or "statements  ' value = expected".
  if (code ~ / : /) {
    print code
    code = substr(expected, 1, index(expected, " = ") - 1)
    expected = substr(expected, index(expected, " = ") + 3)
  }
  print "      Expect(" code ", " expected ")"
  print "    End If"
}
END { print "  End Sub\nEnd Module" }
