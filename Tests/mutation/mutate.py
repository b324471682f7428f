"""Breaks one operator, constant, literal or statement of the libraries at a time, and runs the tests.

Called by scripts/mutate. Results are kept, so that a run goes on where an earlier one was ended.
"""
import argparse
import pathlib
import re
import resource
import signal
import subprocess
import sys

# What is put in the place of an operator, in the code of one of these sizes.
OPERATORS = {
    "<=": "<", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&", "++": "--", "--": "++",
    "+=": "-=", "-=": "+=", "*=": "/=", "|=": "&=", "<<": ">>", ">>": "<<",
    "<": "<=", ">": ">=", "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&",
}
WORDS = {"true": "false", "false": "true", "min": "max", "max": "min", "floor": "ceil",
         "less": "greater", "greater": "less", "continue": "break"}
TOKEN = re.compile(
    r"""(?P<comment>//.*) | (?P<string>[Luc]?8?"(?:\\.|[^"\\])*") | (?P<character>[LuU]?'(?:\\.|[^'\\])+')
      | (?P<number>\b(?:0[xX][0-9a-fA-F.]+(?:p[-+]?\d+)?|\d+(?:\.\d*)?(?:[eE][-+]?\d+)?)[uUlLf]*)
      | (?P<word>\b[A-Za-z_]\w*\b) | (?P<arrow>->|::|\[\[.*?\]\])
      | (?P<operator><<=|>>=|<=>|<=|>=|==|!=|&&|\|\||\+\+|--|\+=|-=|\*=|\|=|<<|>>|[-+*/%<>&|])""", re.X)
STATEMENT = re.compile(r"^\s*(?!return\b|using\b|static|case\b|default\b|break\b|namespace|typedef|public|"
                       r"template|struct|class|enum|const\b|constexpr|inline|else\b|extern)[\w*(].*;\s*(//.*)?$")
DECLARATION = re.compile(r"^\s*[\w:<>,&* ]+[\s*&]\w+(\[[^]]*\])?(\s*[={(].*)?;")


def breaks_of_line(line):
    """Gives (column, length, replacement) for each break of a line."""
    code = line.strip()
    if not code or code.startswith(("#", "//", "static_assert", "using ", "template", "namespace")):
        return
    for token in TOKEN.finditer(line):
        kind, text, at = token.lastgroup, token.group(), token.start()
        if kind == "comment":
            break
        if kind == "operator" and text in OPERATORS:
            spaced = line[at - 1:at] == " " and line[token.end():token.end() + 1] == " "
            unary = text in ("++", "--", "-")
            if spaced or unary:
                yield at, len(text), OPERATORS[text]
        elif kind == "word" and text in WORDS:
            yield at, len(text), WORDS[text]
        elif kind == "number":
            if re.fullmatch(r"\d+[uUlL]*", text):
                digits = re.match(r"\d+", text).group()
                yield at, len(text), str(int(digits) + 1) + text[len(digits):]
            elif re.fullmatch(r"0[xX][0-9a-fA-F]+[uUlL]*", text):
                digits = re.match(r"0[xX][0-9a-fA-F]+", text).group()
                yield at, len(text), hex(int(digits, 16) + 1) + text[len(digits):]
            elif text == "0.0":
                yield at, len(text), "1.0"
            else:
                yield at, len(text), "(" + text + " * 1.5)"
        elif kind == "character":
            yield at, len(text), "L'~'" if text.startswith("L") else "'~'"
        elif kind == "string" and len(text) > 3 and not line.lstrip().startswith("#"):
            yield at, len(text), text[:-2] + "~" + text[-1]
    if STATEMENT.match(line) and not DECLARATION.match(line):
        start = len(line) - len(line.lstrip())
        yield start, len(line.rstrip()) - start, ";"


def breaks_of(path, root):
    for number, line in enumerate((root / path).read_text().splitlines()):
        for column, length, replacement in breaks_of_line(line):
            yield number, column, length, replacement, line


def run(command, seconds=300):
    """Whether a command succeeds, in so many seconds of the processor."""
    try:
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=600,
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
                              ).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def seconds_of_children():
    return resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime


def outcome(build, tests):
    """What becomes of the tree as it is; the tests are pairs of a command and the seconds it may take."""
    if not run(["cmake", "--build", build, "--target", "QUVARDBS1C", "QUVARDCR1C", "QUVARDTests"]):
        return "invalid"
    copy = build / "bin" / "recording" / "QUVARDBS1C.dll"
    copy.write_bytes((build / "bin" / "QUVARDBS1C.dll").read_bytes())
    return "survived" if all(run(*test) for test in tests) else "noticed"


def main():
    parser = argparse.ArgumentParser()
    for name in ("--tree", "--build", "--results", "--equivalent"):
        parser.add_argument(name, type=pathlib.Path, required=True)
    parser.add_argument("files", nargs="+")
    options = parser.parse_args()
    bits = options.tree / "Tests" / "numerics" / "bits"
    programs = options.build / "bin"
    # The quickest first.
    tests = [[programs / "QUVARDBits", bits / "own.txt", bits / "platform.txt"],
             [programs / "recording" / "QUVARDRecordingTests", "--gtest_fail_fast"],
             [programs / "QUVARDTests", "--gtest_fail_fast"]]

    known = {}
    if options.results.exists():
        for row in options.results.read_text().splitlines():
            result, key = row.split("\t", 1)
            known[key] = result
    reasons = {}
    for row in options.equivalent.read_text().splitlines():
        if row and not row.startswith("#"):
            key, reason = row.rsplit("\t", 1)
            reasons[key] = reason

    # An ended run ends the test that it is in, and mends what it has broken.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("Ended."))
    if outcome(options.build, [(test, 300) for test in tests]) != "survived":
        sys.exit("The tests fail before anything is broken.")
    for i, test in enumerate(tests):
        start = seconds_of_children()
        run(test)
        tests[i] = (test, 2 + round(5 * (seconds_of_children() - start)))
    todo = [(path, *item) for path in options.files for item in breaks_of(path, options.tree)]
    counts = {"noticed": 0, "invalid": 0, "equivalent": 0, "survived": 0}
    survivors = []
    seen = {}
    for count, (path, number, column, length, replacement, line) in enumerate(todo, 1):
        old = line[column:column + length]
        key = "\t".join((path, line.strip(), f"{old} -> {replacement}"))
        # The same break of the same text again in the file has a key of its own.
        seen[key] = seen.get(key, 0) + 1
        if seen[key] > 1:
            key += f" ({seen[key]})"
        if key not in known:
            source = options.tree / path
            text = source.read_text()
            lines = text.splitlines(keepends=True)
            lines[number] = line[:column] + replacement + line[column + length:] + "\n"
            try:
                source.write_text("".join(lines))
                known[key] = outcome(options.build, tests)
            finally:
                source.write_text(text)
            with options.results.open("a") as results:
                results.write(f"{known[key]}\t{key}\n")
        result = known[key]
        if result == "survived" and key in reasons:
            result = "equivalent"
        counts[result] += 1
        if result == "survived":
            survivors.append(f"{path}:{number + 1}: {old} -> {replacement}\n    {line.strip()}")
        print(f"{count} of {len(todo)} breaks: " + ", ".join(f"{n} {r}" for r, n in counts.items()),
              end="\r" if sys.stderr.isatty() else "\n", file=sys.stderr, flush=True)
    print(", ".join(f"{number} {result}" for result, number in counts.items()))
    for survivor in survivors:
        print(survivor)
    sys.exit(1 if survivors else 0)


main()
