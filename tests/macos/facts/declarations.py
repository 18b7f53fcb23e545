"""What our declarations of the frameworks say, by clang's own reading of them.

A type is written in words: "NSString" is an object, "NSString?" one that may be null, "NSRect" a structure, "void*?" a
pointer that may be null; "~" stands for a nullability that the declaration leaves open.
"""

import json
import re
import subprocess

HEADERS = ["Foundation/Foundation.h", "AppKit/AppKit.h", "ServiceManagement/ServiceManagement.h",
           "CoreFoundation/CoreFoundation.h", "IOKit/IOKitLib.h"]
NULLABILITIES = {"_Nullable": "?", "_Nonnull": "", "_Null_unspecified": "~"}
PLAIN_REFERENCES = {"id", "Class", "SEL", "instancetype"}
QUALIFIERS = r"\b(const|__kindof|struct|enum|oneway)\b"


def clang_reads(folder, c_headers):
    """The headers in one text, and what clang makes of it."""
    clang = ["clang++-16", "-target", "arm64-apple-macos13.0", "-std=c++20", "-fblocks", "-fno-objc-arc", "-nostdinc++",
             "-nostdlibinc", "-w", *(f"-isystem{path}" for path in (folder, *c_headers))]

    def run(language, text, *options):
        return subprocess.run([*clang, "-x", language, *options, "-"], input=text, text=True, stdout=subprocess.PIPE,
                              check=True).stdout

    text = run("objective-c++", "".join(f"#import <{header}>\n" for header in HEADERS), "-E", "-P")
    return text, json.loads(run("objective-c++-cpp-output", text, "-fsyntax-only", "-Xclang", "-ast-dump=json"))


def apart(text):
    """What lies between the commas that are in no brackets."""
    parts, depth = [""], 0
    for letter in text:
        depth += (letter in "(<[") - (letter in ")>]")
        if letter == "," and depth == 0:
            parts.append("")
        else:
            parts[-1] += letter
    return [part.strip() for part in parts if part.strip() not in ("", "void")]


def parameters(node):
    return [inner["type"]["qualType"] for inner in node.get("inner", []) if inner["kind"] == "ParmVarDecl"]


def constant(node):
    """The number that a node is made of; None for no number."""
    if "value" in node:
        return float(node["value"])
    for inner in node.get("inner", []):
        found = constant(inner)
        if found is not None:
            return -found if node.get("opcode") == "-" else found
    return None


class Declarations:
    def __init__(self, folder, c_headers):
        self.typedefs = {}
        self.rows = {}  # what is declared, in the order of the headers, and how
        self.numbers = set()  # the names of numbers some of whose values have names
        self.text, tree = clang_reads(folder, c_headers)
        for node in tree["inner"]:
            self.read(node)
        for name in sorted(self.numbers):
            self.rows[f"width of {name}"] = self.typedefs[name]
            self.rows[f"sort of {name}"] = "number with named values"

    def read(self, node):
        readers = {"LinkageSpecDecl": self.read_linkage, "TypedefDecl": self.read_typedef, "EnumDecl": self.read_enum,
                   "ObjCInterfaceDecl": self.read_class, "ObjCCategoryDecl": self.read_category,
                   "FunctionDecl": self.read_function, "VarDecl": self.read_variable, "CXXRecordDecl": self.read_struct}
        if node["kind"] in readers and not node.get("isImplicit"):
            readers[node["kind"]](node)

    def read_linkage(self, node):
        for inner in node["inner"]:
            self.read(inner)

    def read_typedef(self, node):
        self.typedefs[node["name"]] = node["type"]["qualType"]

    def read_enum(self, node):
        name, width = node.get("name"), node.get("fixedUnderlyingType", {}).get("qualType")
        of_what = f" of {name or width}" if name or width else ""
        value = -1
        for member in node["inner"]:
            if member["kind"] == "EnumConstantDecl":
                given = constant(member)
                value = value + 1 if given is None else int(given)
                self.rows[f"constant {member['name']}"] = f"{value}{of_what}"
        if name:
            self.rows[f"width of {name}"] = width
            self.rows[f"sort of {name}"] = "enumeration"
        elif width:
            self.numbers.add(width)

    def read_class(self, node):
        name = node["name"]
        if "inner" in node or "super" in node:  # otherwise it is only announced
            self.rows[f"parent of {name}"] = node.get("super", {}).get("name", "none")
            self.note_since(name, node)
        self.read_members(name, node)

    def read_category(self, node):
        self.read_members(node["interface"]["name"], node)

    def read_members(self, name, node):
        for member in node.get("inner", []):
            if member["kind"] == "ObjCMethodDecl" and not member.get("isImplicit"):
                title = f"{'-' if member['instance'] else '+'}[{name} {member['name']}]"
                self.rows[title] = self.signature(member["returnType"]["qualType"], parameters(member))
                self.note_since(title, member)
            elif member["kind"] == "ObjCPropertyDecl":
                self.read_property(name, member)

    def read_property(self, name, node):
        prop, kind, sign = node["name"], node["type"]["qualType"], "+" if node.get("class") else "-"
        getter = node.get("getter", {}).get("name", prop)
        setter = None if node.get("readonly") else f"set{prop[0].upper()}{prop[1:]}:"
        self.rows[f"{sign}[{name} {getter}]"] = self.signature(kind, [])
        self.note_since(f"{sign}[{name} {getter}]", node)
        self.rows[f"property {sign}{name}.{prop}"] = f"{getter} {setter or 'without setter'}"
        if setter:
            self.rows[f"{sign}[{name} {setter}]"] = self.signature("void", [kind])
            self.note_since(f"{sign}[{name} {setter}]", node)
            ownership = [word for word in ("copy", "weak") if node.get(word)]
            self.rows[f"ownership of {name}.{prop}"] = ownership[0] if ownership else "strong or plain"

    def read_function(self, node):
        if node.get("storageClass") != "static":
            result = node["type"]["qualType"].partition("(")[0]
            self.rows[f"function {node['name']}"] = self.signature(result, parameters(node))
            self.note_since(node["name"], node)

    def read_variable(self, node):
        value = constant(node)
        kind = self.words(node["type"]["qualType"])
        self.rows[f"variable {node['name']}"] = kind if value is None else f"{kind} {value}"
        self.note_since(node["name"], node)

    def read_struct(self, node):
        fields = [f"{field['name']} {self.words(field['type']['qualType'])}" for field in node.get("inner", [])
                  if field["kind"] == "FieldDecl"]
        if fields:
            self.rows[f"struct {node['name']}"] = ", ".join(fields)

    def note_since(self, title, node):
        """The release that brought it, where that is said."""
        for inner in node.get("inner", []):
            if inner["kind"] == "AvailabilityAttr":
                ends = inner["range"]
                mark = self.text[ends["begin"]["offset"]:ends["end"]["offset"] + ends["end"]["tokLen"]]
                self.rows[f"since {title}"] = re.search(r"introduced\s*=\s*([\d.]+)", mark)[1]

    def signature(self, result, arguments):
        return f"{self.words(result)}({', '.join(map(self.words, arguments))})"

    def words(self, text):
        block = re.fullmatch(r"(.*?)\((\^[^)]*)\)\((.*)\)", text.strip(), re.S)
        if block:
            null = next((sign for word, sign in NULLABILITIES.items() if word in block[2]), "~")
            return f"block {self.signature(block[1], apart(block[3]))}{null}"
        while re.search(r"<[^<>]*>", text):
            text = re.sub(r"<[^<>]*>", "", text)
        base, null, levels = [], "~", []
        for token in re.findall(r"\w+|\*", re.sub(QUALIFIERS, "", text).replace("[]", "*")):
            if token == "*":
                levels.append("~")
            elif token not in NULLABILITIES:
                base.append(token)
            elif levels:
                levels[-1] = NULLABILITIES[token]
            else:
                null = NULLABILITIES[token]
        return self.written(" ".join(base).replace("ObjectType", "id"), null, levels)

    def written(self, base, null, levels):
        if self.typedefs.get(base) == "NSString *":  # a text with a name for what it says
            base, levels = "NSString", [null, *levels]
        if base in PLAIN_REFERENCES or re.fullmatch(r"CF\w+Ref", base):
            return base + null + "".join(f"*{level}" for level in levels)
        if re.match(r"(NS|SM)[A-Z]", base) and levels:
            return base + levels[0] + "".join(f"*{level}" for level in levels[1:])
        return base + "".join(f"*{level}" for level in levels)
