#!/usr/bin/env python3
"""Prints a file for Visual Basic, generated from Doxygen's XML of the library's header:

    generate.py QUVARDBS1C.vb              declarations for .NET
    generate.py QUVARDBS1C.bas             declarations for Visual Basic for Applications
    generate.py visual-basic-routines.md   the page of all routines, for docs

Each file has a template beside this script, with the parts written by hand. Routines that a template
declares are not generated. `scripts/docs --renew` updates all three files.
"""
import re
import subprocess
import sys
import tempfile
import textwrap
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from xml.sax.saxutils import escape, unescape

FOLDER = Path(__file__).resolve().parent
HEADER = "Sources/Shared/QUVARDBS1C/QUVARDBS1C.h"
WIDTH = 100

# Names of the language: Mod is an operator, Sqr a function in Applications, To a keyword.
RENAMED = {"Mod": "ModLng", "sqr": "SqrDbl"}
RENAMED_ARGUMENTS = {"to": "to_"}
SYMBOLS = {"LCD2": "_Z4LCD2dd"}  # C++ linkage
DEFAULTS = {  # make flags optional
    "VB_LocalAN2": {"upperAdjective": "True", "lowerResult": "False", "noBlank": "False"},
    "VB_LowerFirst": {"forceDE": "False"},
}
# Terms of C and C++ with their equivalents in Visual Basic.
WORDING = [
    (r"^new host string(; )?", ""), (r"\bhost string", "String"),
    (r"\b(the )?null( handle)?\b", "Nothing"), (r"\b(is|if) (not )?set\b", r"\1 \2True"),
]


# ---- The header ----

def text_of(node):
    """Returns the text below a node on one line, without parameters, result, example, warnings and tables."""
    def words(node):
        title = node.findtext("title")
        if node.tag in ("parameterlist", "table") or node.tag == "simplesect" and title in (None, "Example"):
            return node.tail or ""
        end = ": " if node.tag == "title" else ""
        return (node.text or "") + "".join(map(words, node)) + end + (node.tail or "")
    return " ".join(((node.text or "") + "".join(map(words, node))).split())


class Routine:
    def __init__(self, node):
        brief, details = node.find("briefdescription"), node.find("detaileddescription")
        self.name = node.findtext("name")
        self.title = RENAMED.get(self.name, self.name)
        self.result = text_of(node.find("type"))
        self.arguments = {p.findtext("declname"): text_of(p.find("type")).replace(" ", "")
                          for p in node.iter("param") if p.find("declname") is not None}
        self.kinds = {self.result, *self.arguments.values()}
        self.is_wide = "wstring" in str(self.kinds)
        self.summary = text_of(brief)
        # Text beside a table refers to it.
        self.remarks = "" if details.find(".//table") is not None else text_of(details)
        self.notes = {name.text: text_of(item.find("parameterdescription"))
                      for item in details.findall(".//parameterlist[@kind='param']/parameteritem")
                      for name in item.iter("parametername")}
        self.returns = "; ".join(map(text_of, details.findall(".//simplesect[@kind='return']")))
        code = ["".join(node.itertext()) for node in details.iter("computeroutput")]
        self.example = next((c for c in reversed(code) if self.name + "(" in c), "")

    def wide_form(self):
        """The name of the wide routine whose host form this is."""
        return next(iter(re.findall(r"Host form of (\w+)\(\)", self.remarks)), None)

    def complete_from(self, form):
        """A host form has only those remarks that its wide form does not have."""
        own = re.sub(r" ?Host form of \w+\(\)\.", "", self.remarks)
        self.remarks = f"{form.remarks} {own}".strip()
        if self.returns == "new host string":
            self.returns = form.returns

    def translate(self, names, wide):
        """Translates the contract into terms of Visual Basic."""
        def translated(text):
            for pattern, replacement in WORDING:
                text = re.sub(pattern, replacement, text)
            return re.sub(r"\b\w+(?=\()", lambda name: names.get(name[0], name[0]), text)
        self.summary, self.returns = translated(self.summary), translated(self.returns)
        self.notes = {name: translated(note) for name, note in self.notes.items()}
        # Without sentences on routines that only C++ has.
        self.remarks = " ".join(s for s in re.split(r"(?<=\.) ", translated(self.remarks))
                                if not set(re.findall(r"\w+(?=\()", s)) & wide - {self.name})
        if self.result == "HostBool":
            self.returns = re.sub(r"(?<!\S)0\b", "False", re.sub(r"(?<!\S)-1\b", "True", self.returns))


def read_header():
    """Returns the topics of the header: pairs of a title and the routines for Visual Basic."""
    with tempfile.TemporaryDirectory() as folder:
        settings = (f"@INCLUDE = docs/doxygen/Doxyfile\nINPUT = {HEADER}\nOUTPUT_DIRECTORY = {folder}\n"
                    "GENERATE_HTML = NO\nGENERATE_XML = YES\nWARN_AS_ERROR = NO\n")
        subprocess.run(["doxygen", "-"], cwd=FOLDER.parents[1], input=settings, text=True, check=True,
                       stderr=subprocess.DEVNULL)
        groups = [ElementTree.parse(path) for path in Path(folder, "xml").glob("group__*.xml")]
    topics = []
    for group in groups:
        nodes = group.findall(".//memberdef[@kind='function']")
        line = min(int(node.find("location").get("line")) for node in nodes)
        title = re.sub(r" *\(.*", "", group.findtext(".//title"))
        topics.append((line, title, [Routine(node) for node in nodes]))
    topics.sort(key=lambda topic: topic[0])
    everything = [routine for topic in topics for routine in topic[2]]
    wide = {routine.name: routine for routine in everything if routine.is_wide}
    names = dict(RENAMED)
    for routine in everything:
        if form := routine.wide_form():
            names[form] = routine.name
            routine.complete_from(wide[form])
    for routine in everything:
        routine.translate(names, wide.keys())
    topics = [(title, [r for r in routines if not r.is_wide]) for _, title, routines in topics]
    return [topic for topic in topics if topic[1]]


# ---- Examples ----

STRING = r'"(?:[^"\\]|\\.)*"'


def split(text, separator):
    """Splits an expression at the separators outside strings and parentheses."""
    parts, depth = [""], 0
    for token in re.findall(f"{STRING}|{re.escape(separator)}|.", text):
        depth += (token in "([{") - (token in ")]}")
        if token == separator and depth == 0:
            parts.append("")
        else:
            parts[-1] += token
    return [part.strip() for part in parts]


def flag(value):
    return "False" if value in ("0", "QUVARDBS1C_FALSE") else "True"


def example(routine):
    """Translates "value == expected" of the header into "value  ' expected", and
    "(statements, value) == expected" into "statements  ' value = expected"."""
    if not routine.example:
        sys.exit(f"{HEADER}: {routine.name} has no example")
    left, right, *_ = split(routine.example, " == ") + ["-1"]
    *statements, value = split(left[1:-1], ",") if left.startswith("(") else [left]
    if "&&" in value or routine.result == "HostBool" and routine.name in value:
        right = flag(right)

    def call(match):
        arguments = zip(split(match[1], ","), routine.arguments.values())
        return f"{routine.title}({', '.join(flag(a) if k == 'HostBool' else a for a, k in arguments)})"

    def basic(text):
        text = re.sub(rf'\b{routine.name}\(((?:{STRING}|\([^()]*\)|[^()"])*)\)', call, text)
        text = re.sub(rf"B\(u({STRING})\)", lambda string: string[1].replace('\\"', '""'), text)
        return text.replace("nullptr", "Nothing").replace("&&", "AndAlso").replace(", &", ", ").replace("(&", "(")
    code = " : ".join(map(basic, statements))
    return f"{code}  ' {basic(value)} = {basic(right)}" if code else f"{basic(value)}  ' {basic(right)}"


# ---- Declarations ----

def wrapped(line, indent, continuation=""):
    """Breaks a long line of code after commas and opening parentheses."""
    lines = [""]
    for part in re.split(r"(?<=, )|(?<=\()(?<!CInt\(|CLng\()(?<!StrPtr\()(?=\w)|(?= Alias)", line):
        if len(lines[-1] + part.rstrip() + continuation) > WIDTH:
            lines[-1] = lines[-1].rstrip() + continuation
            lines.append(indent + "    ")
            part = part.lstrip()
        lines[-1] += part
    return "\n".join(lines) + "\n"


def signature(routine, types, by_value="", defaults=False):
    """Returns arguments and result, with a type of Visual Basic for each type of C."""
    arguments = []
    for name, kind in routine.arguments.items():
        default = DEFAULTS.get(routine.name, {}).get(name) if defaults else None
        arguments.append(("Optional " if default else "") + ("ByRef " if kind.endswith("*") else by_value)
                         + f"{RENAMED_ARGUMENTS.get(name, name)} As {types[kind.rstrip('*')]}"
                         + (f" = {default}" if default else ""))
    result = "" if routine.result == "void" else f" As {types[routine.result]}"
    return f"({', '.join(arguments)}){result}"


def call(routine, native, conversions, result):
    """Returns a call of the exported routine."""
    arguments = [conversions.get(kind, "{}").format(RENAMED_ARGUMENTS.get(name, name))
                 for name, kind in routine.arguments.items()]
    return result.get(routine.result, "{}").format(f"{native}({', '.join(arguments)})")


def comment(routine):
    """Returns the contract as an XML comment."""
    elements = [("summary", "", routine.summary)]
    elements += [("param", f' name="{RENAMED_ARGUMENTS.get(name, name)}"', routine.notes[name])
                 for name in routine.arguments if name in routine.notes]
    elements += [("returns", "", routine.returns), ("remarks", "", routine.remarks)]
    lines = [line for tag, attribute, text in elements if text
             for line in textwrap.wrap(f"<{tag}{attribute}>{escape(text)}</{tag}>", WIDTH - 12)]
    lines.append(f"<example><code>{escape(example(routine))}</code></example>")
    return "".join(f"        ''' {line}\n" for line in lines)


def declare_net(routine):
    """Returns the public function, and the declaration of the exported routine if that differs."""
    numbers = {"int32_t": "Integer", "double": "Double"}
    word = "Sub" if routine.result == "void" else "Function"
    symbol = SYMBOLS.get(routine.name, routine.name)
    entry = "" if symbol == routine.title else f', EntryPoint:="{symbol}"'
    text = ", CharSet:=CharSet.Unicode" if "BSTR" in routine.arguments.values() else ""
    attribute = f"<DllImport(Library{entry}{text}, ExactSpelling:=True)>\n"

    def procedure(indent, start, types, body="", defaults=False):
        line = f"{indent}{start} {word} {routine.title}{signature(routine, types, defaults=defaults)}"
        return wrapped(line, indent) + body + f"{indent}End {word}\n"
    indent, inner = " " * 8, " " * 12
    public = {**numbers, "BSTR": "String", "HostBool": "Boolean"}
    if routine.result not in ("BSTR", "HostBool") and "HostBool" not in routine.kinds:
        return comment(routine) + indent + attribute + procedure(indent, "Public", public) + "\n", ""
    body = call(routine, f"Dll.{routine.title}", {"HostBool": "CInt({})"},
                {"BSTR": "TakeText({})", "HostBool": "{} <> 0"})
    native = signature(routine, {**numbers, "BSTR": "String", "HostBool": "Integer"})
    native = re.sub("String$", "IntPtr", native)
    return (comment(routine) + procedure(indent, "Public", public,
                                         wrapped(f"{inner}Return {body}", inner), True) + "\n",
            f"{inner}{attribute}" + wrapped(f"{inner}Friend Shared {word} {routine.title}{native}", inner)
            + f"{inner}End {word}\n")


def declare_applications(routine):
    """Returns the function that converts, if there is one, and the declaration."""
    numbers = {"int32_t": "Long", "double": "Double"}
    word = "Sub" if routine.result == "void" else "Function"
    needs_function = bool(routine.kinds & {"BSTR", "HostBool"})
    native = ("Dll_" if needs_function else "") + routine.title
    symbol = SYMBOLS.get(routine.name, routine.name)
    alias = "" if symbol == native else f' Alias "{symbol}"'
    arguments = signature(routine, {**numbers, "BSTR": "LongPtr", "HostBool": "Long"}, "ByVal ")
    declaration = wrapped(f"{'Private' if needs_function else 'Public'} Declare PtrSafe {word} {native} "
                          f'Lib "QUVARDBS1C.dll"{alias} {arguments}', "", " _")
    summary = textwrap.fill(routine.summary.replace("Nothing", "vbNullString"), WIDTH,
                            initial_indent="' ", subsequent_indent="' ") + "\n"
    if not needs_function:
        return "", summary + declaration
    arguments = signature(routine, {**numbers, "BSTR": "String", "HostBool": "Boolean"}, "ByVal ", True)
    body = call(routine, native, {"BSTR": "StrPtr({})", "HostBool": "CLng({})"},
                {"BSTR": "TakeText({})", "HostBool": "CBool({})"})
    return (summary + wrapped(f"Public {word} {routine.title}{arguments}", "", " _")
            + wrapped(f"    {routine.title} = {body}", "    ", " _") + f"End {word}\n\n", declaration)


# ---- Files ----

def template(file):
    return (FOLDER / f"{file}.in").read_text(encoding="utf-8")


def declarations(file, declare):
    text, public, native = template(file), "", ""
    for routine in (r for _, routines in read_header() for r in routines):
        if not re.search(rf"\b(Function|Sub) {routine.title}\b", text):
            parts = declare(routine)
            public, native = public + parts[0], native + parts[1]
    return text.replace("@PUBLIC@\n", public).replace("@NATIVE@\n", native)


def page(file):
    """Returns a table for each topic with its public members for .NET. The others are helpers."""
    rows = {}
    members = r"((?: +'''.*\n)+)(?: +<.*>\n)? +Public (?:Function|Sub) (\w+)((?:.*,\n)*.*)"
    for text, name, rest in re.findall(members, declarations("QUVARDBS1C.vb", declare_net)):
        code = unescape(re.search("<example><code>(.*)</code>", text)[1])
        summary = re.search("<summary>(.*)</summary>", " ".join(re.sub("'''", "", text).split()))[1]
        rows[name] = rows.get(name, "") + f"| `{name}{' '.join(rest.split())}` | {summary} | `{code}` |\n"
    result = template(file)
    topics = [(title, [r.title for r in routines]) for title, routines in read_header()]
    helpers = rows.keys() - {name for _, names in topics for name in names}
    for title, names in topics + [("Helpers", sorted(helpers))]:
        result += f"\n## {title}\n\n| Routine | What it does | Example |\n| --- | --- | --- |\n"
        result += "".join(rows[name] for name in names)
    return result


if __name__ == "__main__":
    writers = {"QUVARDBS1C.vb": lambda file: declarations(file, declare_net),
               "QUVARDBS1C.bas": lambda file: declarations(file, declare_applications),
               "visual-basic-routines.md": page}
    if len(sys.argv) != 2 or sys.argv[1] not in writers:
        sys.exit(f"usage: generate.py {'|'.join(writers)}")
    sys.stdout.buffer.write(writers[sys.argv[1]](sys.argv[1]).encode())
