"""The mistakes that are made on purpose: each changes one thing in one source file."""
import dataclasses
import re

# Each operator and what somebody may have written instead of it.
INSTEAD = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=",
    "std::min": "std::max", "std::max": "std::min", "std::min_element": "std::max_element",
    "std::max_element": "std::min_element", "std::all_of": "std::any_of", "std::any_of": "std::all_of",
    "std::floor": "std::ceil", "std::ceil": "std::floor"}
IN_QUERIES = {"AVG": "MAX", "SUM": "MAX", "MAX": "MIN", "DESC": "ASC", "<": "<=", "<=": "<", ">": ">=", ">=": ">",
              "=": "<>", "+": "-", "*": "/", "/": "*", "AND": "OR"}

# The formatter puts a blank on both sides of an operator, and on none of the angle brackets of a template.
OPERATOR = re.compile(r"(?<= )(?:[<>=!*/+-]=|&&|\|\||[<>+*/%-])(?=[ \n])|\bstd::(?:min|max|min_element|max_element|all_of|"
                      r"any_of|floor|ceil)\b")
QUERY_OPERATOR = re.compile(r"\b(?:AVG|SUM|MAX|DESC|AND)\b|(?<= )(?:[<>]=?|[=+*/])(?= )")
NUMBER = re.compile(r"(?<![\w.'])\d[\d']*(?:\.\d+)?(?![\w.'])")
NOT = re.compile(r"(?<=[ (])!(?=[\w(])")
MINUS = re.compile(r"(?<=[ (])-(?=[a-z(])")
RETURN = re.compile(r"\breturn ([^;]+);")
CONDITION = re.compile(r"\b(?:if|while) \(")
QUESTION = re.compile(r"\s+\? ")
STATEMENT = re.compile(r"(?<=[;{}:])\s*\n\s+((?!return\b|throw\b)(?:[\w.\[\]()*:]|->)+ [-+*/]?= [^;{}]*;|"
                       r"(?:[\w.:]|->)+(?:<[\w:]+>)?\([^;{}]*\);)(?=\n)")
NOT_CODE = re.compile(r"""//[^\n]*|/\*.*?\*/|^[ ]*\#(?:\\\n|[^\n])*|"(?:\\.|[^"\\\n])*"|(?<!\w)'(?:\\.|[^'\\\n])+'|"""
                      r"static_assert\([^;]*;", re.DOTALL | re.MULTILINE)
QUERY = re.compile(r'"[^"\n]*(?:SELECT|INSERT|DELETE|UPDATE|FROM|WHERE|ORDER BY|VALUES|COALESCE|hour [>=]|excluded)[^"\n]*"')


@dataclasses.dataclass(frozen=True)
class Mutant:
    start: int
    end: int
    text: str

    def applied_to(self, source):
        return source[:self.start] + self.text + source[self.end:]

    def line(self, source):
        return source.count("\n", 0, self.start) + 1

    def difference(self, source):
        """The lines as they were and as they are now, each after a - or a +."""
        first = source.rfind("\n", 0, self.start) + 1
        last = source.find("\n", self.end)
        before = source[first:last]
        after = source[first:self.start] + self.text + source[self.end:last]
        return "\n".join(f"{sign} {line.strip()}" for sign, lines in (("-", before), ("+", after))
                         for line in lines.split("\n"))


def blank(text):
    return re.sub(r"[^\n]", " ", text)


def without(pattern, source):
    """Blanks in the place of what matches; of a string its ends stay, because it is part of an expression."""
    def hollow(match):
        quoted = match[0][0] in "'\""
        return match[0][0] + blank(match[0][1:-1]) + match[0][-1] if quoted else blank(match[0])
    return pattern.sub(hollow, source)


def only(pattern, source):
    kept, end = [], 0
    for match in pattern.finditer(source):
        kept += [blank(source[end:match.start()]), match[0]]
        end = match.end()
    return "".join(kept) + blank(source[end:])


def closing(code, opening):
    """Where the parenthesis ends that opens there."""
    depth = 0
    for position in range(opening, len(code)):
        depth += (code[position] == "(") - (code[position] == ")")
        if depth == 0:
            return position
    return len(code)


def beginning(code, end):
    """Where the condition begins that ends before a question mark: behind whatever binds less."""
    depth = 0
    for position in range(end - 1, 0, -1):
        character = code[position]
        depth += (character in ")]}") - (character in "([{")
        opener = depth < 0 or (depth == 0 and character in ",;?:" and code[position - 1] != ":" != code[position + 1])
        assigned = character == "=" and code[position - 1] == " " and code[position + 1] in " \n"
        if opener or (depth == 0 and (assigned or code.startswith("return ", position))):
            start = position + (7 if code[position] == "r" else 1)
            return start + len(code[start:end]) - len(code[start:end].lstrip())
    return end


def neighbours(number):
    """One more and one less, in the last place that is written."""
    number = number.replace("'", "")
    places = len(number.partition(".")[2])
    step = 10 ** -places
    return [f"{float(number) + sign * step:.{places}f}" for sign in (1, -1)]


def swaps(pattern, table, code):
    return [Mutant(*match.span(), table[match[0]]) for match in pattern.finditer(code)]


def numbers(code):
    return [Mutant(*match.span(), text) for match in NUMBER.finditer(code) for text in neighbours(match[0])]


def negations(code):
    mutants = [Mutant(*match.span(), "") for pattern in (NOT, MINUS) for match in pattern.finditer(code)]
    spans = []
    for match in CONDITION.finditer(code):
        start, end = match.end(), closing(code, match.end() - 1)
        semicolon = code.rfind(";", start, end)
        if semicolon >= 0:
            spans.append((semicolon + 2, end))
        elif " = " not in code[start:end]:
            spans.append((start, end))
    spans += [(beginning(code, match.start()), match.start()) for match in QUESTION.finditer(code)]
    return mutants, spans


def results(code):
    mutants = []
    for match in RETURN.finditer(code):
        text = {"true": "false", "false": "true", **dict.fromkeys(("std::nullopt", "{}", '""', "0", "0.0"))}.get(match[1], "{}")
        whole = match[1].count("{") == match[1].count("}")  # and no lambda, cut off at its first statement
        if text is not None and whole:
            mutants.append(Mutant(*match.span(1), text))
    return mutants


def statements(code):
    return [Mutant(*match.span(1), ";") for match in STATEMENT.finditer(code)]


def mutants_of(source):
    code = without(NOT_CODE, source)
    queries = only(QUERY, source)
    removed, conditions = negations(code)
    found = [*swaps(OPERATOR, INSTEAD, code), *numbers(code), *removed, *results(code), *statements(code),
             *swaps(QUERY_OPERATOR, IN_QUERIES, queries), *numbers(queries)]
    found += [Mutant(start, end, f"!({source[start:end]})") for start, end in conditions]
    return sorted(set(found), key=lambda mutant: (mutant.start, mutant.end, mutant.text))
