#!/usr/bin/env python3
"""Prints a file for Visual Basic, generated from the library's header:

    Hosts/VisualBasic/generate.py vb     declarations for .NET (QUVARDBS1C.vb)
    Hosts/VisualBasic/generate.py bas    declarations for Visual Basic for Applications (QUVARDBS1C.bas)
    Hosts/VisualBasic/generate.py page   the table of all routines (docs/visual-basic-routines.md)

Doxygen reads the header. The template of each file has what is written by hand; a routine that the
template declares is not generated. `scripts/docs --renew` runs this for all three files.
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
ROOT = FOLDER.parents[1]
HEADER = "Sources/Shared/QUVARDBS1C/QUVARDBS1C.h"
WIDTH = 100

# Names that the language or its library has: Mod is an operator, Sqr a function, To a keyword.
RENAMED = {"Mod": "ModLng", "sqr": "SqrDbl"}
RENAMED_ARGUMENTS = {"to": "to_"}
# Symbols of routines with C++ linkage.
SYMBOLS = {"LCD2": "_Z4LCD2dd"}
# Usual values of arguments.
DEFAULTS = {
    ("VB_LocalAN2", "upperAdjective"): "True",
    ("VB_LocalAN2", "lowerResult"): "False",
    ("VB_LocalAN2", "noBlank"): "False",
    ("VB_LowerFirst", "forceDE"): "False",
}
# What the header says to C and C++ callers, and what it means to a macro.
WORDING = [
    (r"^new host string(; )?", ""),
    (r"\bthe null handle\b", "Nothing"), (r"\bnull\b", "Nothing"),
    (r"\bhost string", "String"), (r"\b(is|if) (not )?set\b", r"\1 \2True"),
]


def words(node):
    """The text below a node, without tables, titled paragraphs and lists of parameters."""
    if node.tag in ("parameterlist", "simplesect", "table"):
        return node.tail or ""
    return (node.text or "") + "".join(map(words, node)) + (node.tail or "")


def one_line(text):
    return " ".join(text.split())


class Routine:
    def __init__(self, node):
        self.name = node.findtext("name")
        self.result = kind(node.find("type"))
        self.arguments = [(p.findtext("declname"), kind(p.find("type")))
                          for p in node.iter("param") if p.find("declname") is not None]
        brief = node.find("briefdescription")
        details = node.find("detaileddescription")
        self.brief = one_line(words(brief))
        self.mentioned = {reference.get("refid") for reference in brief.iter("ref")}
        self.id = node.get("id")
        has_table = details.find(".//table") is not None
        self.details = [] if has_table else list(filter(None, (one_line(words(p)) for p in details)))
        self.notes = {item.findtext(".//parametername"): one_line(words(item.find("parameterdescription")))
                      for item in details.findall(".//parameterlist[@kind='param']/parameteritem")}
        self.returns = [one_line("".join(map(words, section)))
                        for section in details.iter("simplesect") if section.get("kind") == "return"]
        code = ["".join(c.itertext()) for c in details.iter("computeroutput")]
        self.example = next((c for c in reversed(code) if self.name + "(" in c), None)

    def is_wide(self):
        return any("wstring" in kind or "wchar" in kind
                   for kind in [self.result, *(kind for _, kind in self.arguments)])


def kind(node):
    return one_line("".join(node.itertext())).replace(" *", "*") if node is not None else ""


def read_header():
    """The topics of the header, each with its title and its routines for Visual Basic."""
    with tempfile.TemporaryDirectory() as folder:
        settings = (f"@INCLUDE = docs/doxygen/Doxyfile\nINPUT = {HEADER}\nOUTPUT_DIRECTORY = {folder}\n"
                    "GENERATE_HTML = NO\nGENERATE_XML = YES\nXML_PROGRAMLISTING = NO\nWARNINGS = NO\n"
                    "WARN_IF_DOC_ERROR = NO\nWARN_AS_ERROR = NO\n")
        subprocess.run(["doxygen", "-"], cwd=ROOT, input=settings, text=True, check=True,
                       stderr=subprocess.DEVNULL)
        index = ElementTree.parse(f"{folder}/xml/{Path(HEADER).stem}_8h.xml")
        pages = [ElementTree.parse(f"{folder}/xml/{group.get('refid')}.xml")
                 for group in index.iter("innergroup")] or [
                ElementTree.parse(path) for path in Path(folder, "xml").glob("group__*.xml")]
    topics = []
    for page in pages:
        nodes = list(page.iter("memberdef"))
        if nodes:
            line = min(int(n.find("location").get("line")) for n in nodes)
            title = re.sub(r" *\(.*", "", page.findtext(".//title"))
            topics.append((line, title, [Routine(n) for n in nodes if n.get("kind") == "function"]))
    topics = [(title, routines) for _, title, routines in sorted(topics, key=lambda topic: topic[0])]
    everything = [r for _, routines in topics for r in routines]
    wide = {r.id: r for r in everything if r.is_wide()}
    translations = dict(RENAMED)
    for routine in everything:
        # A host form, whose contract mentions the wide form that has its arguments, has its text.
        for mentioned in routine.mentioned & wide.keys() if not routine.is_wide() else ():
            form = wide[mentioned]
            if len(form.arguments) == len(routine.arguments):
                translations[form.name] = routine.name
                routine.brief, routine.details = form.brief, form.details
                routine.notes = {**form.notes, **routine.notes}
                if routine.result == "BSTR" or not routine.returns:
                    routine.returns += [r for r in form.returns if r not in routine.returns]
    names = re.compile(r"\b(" + "|".join(map(re.escape, translations)) + r")(?=\()")

    def translated(text):
        for pattern, replacement in WORDING:
            text = re.sub(pattern, replacement, text)
        return names.sub(lambda match: translations[match[0]], text)

    for routine in everything:
        routine.brief = translated(routine.brief)
        routine.details = [translated(d) for d in routine.details]
        routine.notes = {name: translated(note) for name, note in routine.notes.items()}
        routine.returns = list(filter(None, map(translated, routine.returns)))
        if routine.result == "HostBool":
            routine.returns = [re.sub(r"(?<!\S)0\b", "False", r.replace("-1", "True"))
                               for r in routine.returns]
    return [(title, chosen) for title, routines in topics
            if (chosen := [r for r in routines if r.id not in wide])]


# ---- Examples ----

def split(text, separator):
    """The parts of an expression between separators that are in no string and no parentheses."""
    parts, depth = [""], 0
    for token in re.findall(r'"(?:[^"\\]|\\.)*"|' + re.escape(separator) + "|.", text):
        depth += (token in "([{") - (token in ")]}")
        if token == separator and depth == 0:
            parts.append("")
        else:
            parts[-1] += token
    return [part.strip() for part in parts]


def flag(value):
    return {"0": "False"}.get(value, "True")


def example(routine):
    """The example of a contract, `call == value`, as a line of Visual Basic."""
    left, *right = split(routine.example, " == ")
    right = right[0] if right else "-1"
    *statements, value = split(left[1:-1], ",") if left.startswith("(") else [left]
    if routine.result == "HostBool" and routine.name in value or "&&" in value:
        right = flag(right)

    def call(match):
        arguments = split(match[0][len(routine.name) + 1:-1], ",")
        flags = [flag(a) if k == "HostBool" else a
                 for a, (_, k) in zip(arguments, routine.arguments)]
        return f"{RENAMED.get(routine.name, routine.name)}({', '.join(flags)})"

    def basic(text):
        text = re.sub(r"\b" + routine.name + r"\((?:[^()\"]|\"(?:[^\"\\]|\\.)*\"|\([^()]*\))*\)", call, text)
        text = re.sub(r'B\(u("(?:[^"\\]|\\.)*")\)', lambda m: m[1].replace('\\"', '""'), text)
        return re.sub(r"(?<!&)&(?=\w)", "", text.replace("nullptr", "Nothing").replace("&&", "AndAlso"))

    if not statements:
        return f"{basic(value)}  ' {basic(right)}"
    return f"{' : '.join(map(basic, statements))}  ' {basic(value)} = {basic(right)}"


# ---- Declarations ----

def wrapped(line, indent, continuation=""):
    """A line of code, continued after a comma or an opening parenthesis where it is too long."""
    lines = [""]
    for part in re.split(r"(?<=, )|(?<=\()(?<!CInt\()(?<!CLng\()(?<!StrPtr\()(?=\w)|(?= Alias)", line):
        if len(lines[-1] + part.rstrip() + continuation) > WIDTH:
            lines[-1] = lines[-1].rstrip() + continuation
            lines.append(indent + "    ")
            part = part.lstrip()
        lines[-1] += part
    return "\n".join(lines) + "\n"


class Dialect:
    def __init__(self, handle, integer, by_value, by_reference, continuation):
        self.handle, self.integer = handle, integer
        self.by_value, self.by_reference, self.continuation = by_value, by_reference, continuation

    def type_of(self, kind, text, flag):
        return {"BSTR": text, "HostBool": flag, "int32_t": self.integer, "double": "Double"}[kind]

    def signature(self, routine, text, flag, result_text, with_defaults=False):
        parameters = []
        for name, kind in routine.arguments:
            default = with_defaults and DEFAULTS.get((routine.name, name))
            by = self.by_reference if kind.endswith("*") else self.by_value
            type_ = self.type_of(kind.rstrip("*"), text, flag)
            parameters.append(f"{'Optional ' if default else ''}{by}{RENAMED_ARGUMENTS.get(name, name)} "
                              f"As {type_}{f' = {default}' if default else ''}")
        result = "" if routine.result == "void" else f" As {self.type_of(routine.result, result_text, flag)}"
        return f"({', '.join(parameters)}){result}"


NET = Dialect("IntPtr", "Integer", "", "ByRef ", "")
APPLICATIONS = Dialect("LongPtr", "Long", "ByVal ", "ByRef ", " _")


def word(routine):
    return "Sub" if routine.result == "void" else "Function"


def documentation(routine, indent):
    """The XML comment of a routine."""
    def element(name, text, attribute=""):
        return textwrap.wrap(f"<{name}{attribute}>{escape(text)}</{name}>", WIDTH - len(indent) - 4,
                             break_long_words=False, break_on_hyphens=False)
    lines = element("summary", routine.brief)
    for name, _ in routine.arguments:
        if name in routine.notes:
            lines += element("param", routine.notes[name],
                             f' name="{RENAMED_ARGUMENTS.get(name, name)}"')
    if routine.returns:
        lines += element("returns", "; ".join(routine.returns))
    if routine.details:
        lines += element("remarks", " ".join(routine.details))
    lines.append(f"<example><code>{escape(example(routine))}</code></example>")
    return "".join(f"{indent}''' {line}\n" for line in lines)


def net(routine):
    """The declaration of a routine for .NET: public, and that of the library if it differs."""
    indent = " " * 8
    name = RENAMED.get(routine.name, routine.name)
    kinds = {kind for _, kind in routine.arguments}
    needs_function = routine.result in ("BSTR", "HostBool") or "HostBool" in kinds
    symbol = SYMBOLS.get(routine.name, routine.name)
    entry = "" if symbol == name else f', EntryPoint:="{symbol}"'
    characters = ", CharSet:=CharSet.Unicode" if "BSTR" in kinds else ""
    attribute = f"<DllImport(Library{entry}{characters}, ExactSpelling:=True)>"

    def function(indent, access, signature, attribute, body=""):
        start = f"{indent}{access} {word(routine)} {name}{signature}"
        return attribute + wrapped(start, indent) + body + f"{indent}End {word(routine)}\n"

    public = NET.signature(routine, "String", "Boolean", "String", True)
    text = documentation(routine, indent)
    if not needs_function:
        pointers = public.replace("String", "IntPtr") if "BSTR*" in kinds else public
        return text + function(indent, "Public", pointers, f"{indent}{attribute}\n") + "\n", ""
    call = ", ".join(f"CInt({a})" if k == "HostBool" else RENAMED_ARGUMENTS.get(a, a)
                     for a, k in routine.arguments)
    call = f"Dll.{name}({call})"
    call = {"BSTR": f"TakeText({call})", "HostBool": f"{call} <> 0"}.get(routine.result, call)
    body = wrapped(f"{indent}    Return {call}", indent + "    ")
    private = NET.signature(routine, "String", "Integer", "IntPtr")
    return (text + function(indent, "Public", public, "", body) + "\n",
            function(indent + "    ", "Friend Shared", private, f"{indent}    {attribute}\n"))


def applications(routine):
    """The declaration of a routine for Applications, and its function if it needs one."""
    name = RENAMED.get(routine.name, routine.name)
    kinds = {kind for _, kind in routine.arguments} | {routine.result}
    needs_function = bool(kinds & {"BSTR", "HostBool"})
    symbol = SYMBOLS.get(routine.name, routine.name)
    native = f"Dll_{name}" if needs_function else name
    alias = "" if symbol == native else f' Alias "{symbol}"'
    signature = APPLICATIONS.signature(routine, "LongPtr", "Long", "LongPtr")
    access = "Private" if needs_function else "Public"
    declaration = wrapped(f'{access} Declare PtrSafe {word(routine)} {native} Lib "QUVARDBS1C.dll"'
                          f"{alias} {signature}", "", " _")
    summary = "".join(f"' {line}\n" for line in textwrap.wrap(routine.brief, WIDTH - 2))
    summary = summary.replace("Nothing", "vbNullString")
    if not needs_function:
        return summary + declaration, ""
    call = ", ".join({"BSTR": f"StrPtr({a})", "HostBool": f"CLng({a})"}.get(k, a) for a, k in
                     ((RENAMED_ARGUMENTS.get(a, a), k) for a, k in routine.arguments))
    call = f"{native}({call})"
    call = {"BSTR": f"TakeText({call})", "HostBool": f"CBool({call})"}.get(routine.result, call)
    start = f"Public Function {name}{APPLICATIONS.signature(routine, 'String', 'Boolean', 'String', True)}"
    return declaration, (summary + wrapped(start, "", " _")
                         + wrapped(f"    {name} = {call}", "    ", " _") + "End Function\n\n")


def declared_in(text, name):
    return re.search(rf"\b(Function|Sub) {name}\b", text)


def declarations(file, declare):
    """A template with the declarations of all routines that it does not declare itself."""
    template = (FOLDER / f"{file}.in").read_text(encoding="ascii")
    first, second = "", ""
    for _, routines in read_header():
        for routine in routines:
            if not declared_in(template, RENAMED.get(routine.name, routine.name)):
                one, two = declare(routine)
                first, second = first + one, second + two
    return template.replace("@FIRST@\n", first).replace("@SECOND@\n", second)


def page():
    """The table of all routines, with what the file of declarations for .NET says of them."""
    text = declarations("QUVARDBS1C.vb", net)
    rows = {}
    for comment, name, rest in re.findall(
            r"((?: +'''.*\n)+)(?: +<.*>\n)? +Public (?:Function|Sub) (\w+)((?:.*,\n)*.*)", text):
        example_line = unescape(re.search("<example><code>(.*)</code>", comment)[1])
        comment = one_line(re.sub(r"^ +'''", "", comment, flags=re.M))
        rows[name] = (f"| `{name}{one_line(rest)}` | {re.search('<summary>(.*)</summary>', comment)[1]} "
                      f"| `{example_line}` |\n")
    result = (FOLDER / "routines.md.in").read_text(encoding="ascii")
    for title, routines in read_header():
        names = [RENAMED.get(r.name, r.name) for r in routines]
        result += f"\n## {title}\n\n| Routine | What it does | Example |\n| --- | --- | --- |\n"
        result += "".join(rows.pop(name) for name in names)
    result += "\n## Helpers in Visual Basic\n\n| Routine | What it does | Example |\n| --- | --- | --- |\n"
    return result + "".join(rows.values())


if __name__ == "__main__":
    files = {"vb": lambda: declarations("QUVARDBS1C.vb", net),
             "bas": lambda: declarations("QUVARDBS1C.bas", applications), "page": page}
    if len(sys.argv) != 2 or sys.argv[1] not in files:
        sys.exit("usage: generate.py vb|bas|page")
    sys.stdout.write(files[sys.argv[1]]())
