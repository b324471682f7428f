"""Changes one operator, constant, literal or statement of the libraries at a time and runs the tests.

scripts/mutate calls this in a copy of the checkout. Prints for each mutant whether a test fails. The
reader decides which surviving mutants are equivalent to the original.
"""
import argparse
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys

SWAPS = {
    "<=": "<", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&", "++": "--", "--": "++",
    "+=": "-=", "-=": "+=", "*=": "/=", "|=": "&=", "<<": ">>", ">>": "<<", "<": "<=", ">": ">=",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&", "true": "false",
    "false": "true", "min": "max", "max": "min", "floor": "ceil", "continue": "break",
}
TOKEN = re.compile(
    r"""(?P<comment>//.*) | (?P<string>[Luc]?8?"(?:\\.|[^"\\])*") | (?P<character>[LuU]?'(?:\\.|[^'\\])+')
      | (?P<number>\b(?:0[xX][0-9a-fA-F.]+(?:p[-+]?\d+)?|\d+(?:\.\d*)?(?:[eE][-+]?\d+)?)[uUlLf]*)
      | (?P<word>\b[A-Za-z_]\w*\b) | (?P<arrow>->|::|\[\[.*?\]\])
      | (?P<operator><<=|>>=|<=>|<=|>=|==|!=|&&|\|\||\+\+|--|\+=|-=|\*=|\|=|<<|>>|[-+*/%<>&|])""", re.X)
STATEMENT = re.compile(r"^\s*(?!return\b|using\b|static|case\b|default\b|break\b|namespace|typedef|public|"
                       r"template|struct|class|enum|const\b|constexpr|inline|else\b|extern)[\w*(].*;\s*(//.*)?$")
DECLARATION = re.compile(r"^\s*[\w:<>,&* ]+[\s*&]\w+(\[[^]]*\])?(\s*[={(].*)?;")


def replacement(kind, text, is_spaced):
    if kind == "word" or kind == "operator" and (is_spaced or text in ("++", "--", "-")):
        return SWAPS.get(text)
    if kind == "number":
        integer = re.fullmatch(r"(0[xX][0-9a-fA-F]+|\d+)([uUlL]*)", text)
        return str(int(integer[1], 0) + 1) + integer[2] if integer else f"({text} * 1.5 + ({text} == 0))"
    if kind == "character":
        return text[: text.index("'")] + "'~'"
    return text[:-2] + '~"' if kind == "string" and len(text) > 3 else None


def mutants_of(path):
    """Yields (path, index of the line, line, mutated line, description)."""
    for number, line in enumerate(path.read_text().splitlines()):
        if re.match(r"\s*($|#|//|static_assert|using |template|namespace)", line):
            continue
        for token in TOKEN.finditer(line):
            if token.lastgroup == "comment":
                break
            start, end = token.span()
            new = replacement(token.lastgroup, token[0], line[start - 1 : start] == line[end : end + 1] == " ")
            if new:
                yield path, number, line, line[:start] + new + line[end:], f"{token[0]} -> {new}"
        if STATEMENT.match(line) and not DECLARATION.match(line):
            yield path, number, line, ";", "removed"


def run(command, seconds):
    """Whether a command succeeds within a CPU time in seconds."""
    limit = lambda: resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
    try:
        return subprocess.run(command, capture_output=True, timeout=600, preexec_fn=limit).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def outcome(build, tests):
    if not run(["cmake", "--build", build, "--target", "QUVARDBS1C", "QUVARDCR1C", "QUVARDTests"], 300):
        return "invalid"
    shutil.copy(build / "bin/QUVARDBS1C.dll", build / "bin/recording")
    return "survived" if all(run(*test) for test in tests) else "noticed"


parser = argparse.ArgumentParser()
parser.add_argument("--sample", type=int)
parser.add_argument("--seed", type=int, default=1)
parser.add_argument("build", type=pathlib.Path)
parser.add_argument("files", nargs="+", type=pathlib.Path)
options = parser.parse_args()
programs = options.build / "bin"
commands = [[programs / "QUVARDBits", "Tests/numerics/bits"],  # the quickest first
            [programs / "recording" / "QUVARDRecordingTests", "--gtest_fail_fast"],
            [programs / "QUVARDTests", "--gtest_fail_fast"]]
tests = []
for command in commands:
    before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
    if not run(command, 300):
        sys.exit(f"{command[0]} fails without a mutant.")
    tests.append((command, 2 + round(5 * (resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before))))
mutants = [mutant for path in options.files for mutant in mutants_of(path)]
if options.sample:
    mutants = random.Random(options.seed).sample(mutants, min(options.sample, len(mutants)))
counts = {"noticed": 0, "invalid": 0, "survived": 0}
for path, number, line, mutated, change in mutants:
    text = path.read_text()
    lines = text.splitlines()
    lines[number] = mutated
    path.write_text("\n".join(lines) + "\n")
    try:
        result = outcome(options.build, tests)
    finally:
        path.write_text(text)
    counts[result] += 1
    print(f"{result:8} {path}:{number + 1}: {change}    {line.strip()}", flush=True)
print(", ".join(f"{count} {result}" for result, count in counts.items()))
