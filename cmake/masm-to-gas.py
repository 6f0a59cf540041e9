#!/usr/bin/env python3
"""Usage: masm-to-gas.py <system-v | win64> <LzmaDecOpt.asm> <output.s>

Translates the LZMA SDK's decoder loop from MASM's syntax to that of GNU as: expands macros, constants,
conditions and fields of structures, and adds unwind information for this calling convention. It knows the
directives that this file and its include file use, and fails with file and line at any other.
"""
import pathlib
import re
import sys

NAME = re.compile(r"[A-Za-z_@$?][\w@$?]*")
SIZES = {"db": (1, "byte"), "dd": (4, "dword"), "dq": (8, "qword")}
OPERATORS = {"shl": "<<", "shr": ">>", "gt": ">", "lt": "<", "eq": "==", "ne": "!="}
TAKE_ALIGNMENT = re.compile(r"and\s+rax\s*,\s*-128", re.I)
FRAME_PADDING = 8

# Directives after the instructions that change the stack.
UNWIND = {
    "system-v": {
        "begin": ".hidden {0}\n.type {0}, @function\n{0}:\n.cfi_startproc",
        "push": ".cfi_adjust_cfa_offset 8\n.cfi_rel_offset {0}, 0",
        "allocate": ".cfi_adjust_cfa_offset {0}",
        "free": ".cfi_adjust_cfa_offset -{0}",
        "pop": ".cfi_adjust_cfa_offset -8\n.cfi_restore {0}",
        "end": '.cfi_endproc\n.size {0}, . - {0}\n.section .note.GNU-stack,"",@progbits',
    },
    "win64": {
        "begin": ".def {0}; .scl 2; .type 32; .endef\n.seh_proc {0}\n{0}:",
        "push": ".seh_pushreg {0}",
        "allocate": ".seh_stackalloc {0}\n.seh_endprologue",
        "end": ".seh_endproc",
    },
}


class Unknown(Exception):
    """What the translator does not know."""


def statements(path):
    """Lines of a file as (place, text), without comments."""
    end_of_comment = None
    for number, line in enumerate(path.read_text(encoding="ascii").splitlines(), 1):
        text = line.split(";")[0].strip()
        if end_of_comment:
            if end_of_comment in text:
                end_of_comment = None
        elif text.lower().startswith("comment "):
            end_of_comment = text.split()[1]
        elif text:
            yield f"{path.name}:{number}", text


class Translator:
    def __init__(self, convention, folder):
        self.unwind = UNWIND[convention]
        self.folder = folder
        self.constants = {"rax": "rax"}  # MASM for 64-bit code knows this name
        if convention == "system-v":
            self.constants["abi_linux"] = "1"
        self.macros = {}
        self.structs = {}
        self.conditions = []  # for each open "if": [its lines count, no later branch can]
        self.anonymous = 0
        self.frame = None
        self.output = []

    def translate(self, lines):
        lines = iter(lines)
        for place, text in lines:
            try:
                self.statement(text, lines)
            except Unknown as error:
                raise Unknown(f"{place}: {error}") from None
            except (LookupError, TypeError):
                raise Unknown(f"{place}: {text}") from None

    def statement(self, text, lines):
        words = text.split()
        first, second = words[0].lower(), words[1].lower() if len(words) > 1 else ""
        call = re.match(r"([A-Za-z_]\w*)\s*(.*)", text)
        if self.condition(first, text[len(first):]):
            return
        if not all(condition[0] for condition in self.conditions):
            return
        if second == "macro":
            self.define_macro(first, words[2:], lines)
        elif second == "struct":
            self.define_struct(first, lines)
        elif second in ("equ", "="):
            self.define_constant(first, text.split(None, 2)[2] if len(words) > 2 else "")
        elif first == "include":
            self.translate(statements(self.folder / words[1]))
        elif call and call[1].lower() in self.macros:
            self.expand_macro(call[1].lower(), call[2])
        elif second in ("proc", "endp"):
            self.procedure(self.expand(words[0]), second == "proc")
        elif first == "align":
            self.output.append(f".balign {self.evaluate(words[1])}")
        elif text == "@@:":
            self.anonymous += 1
            self.output.append(f".Lanonymous{self.anonymous}:")
        elif text.endswith(":"):
            self.output.append(f".L{text}")
        elif first[0] == "." and first != ".code":
            raise Unknown(f"directive {text}")
        elif first not in (".code", "option", "end") and second not in ("segment", "ends"):
            self.instruction(text)

    def condition(self, word, rest):
        """Follows if ... endif; returns whether the statement belongs to it."""
        if word in ("if", "ifdef", "ifndef"):
            counts = all(condition[0] for condition in self.conditions)
            taken = counts and self.holds(word, rest)
            self.conditions.append([taken, taken or not counts])
        elif word in ("elseif", "else"):
            _, done = self.conditions[-1]
            taken = not done and (word == "else" or self.holds("if", rest))
            self.conditions[-1] = [taken, done or taken]
        elif word == "endif":
            self.conditions.pop()
        else:
            return False
        return True

    def holds(self, word, rest):
        if word == "if":
            return bool(self.evaluate(rest))
        return (rest.strip().lower() in self.constants) == (word == "ifdef")

    def define_macro(self, name, parameters, lines):
        names = [word.split(":")[0] for word in " ".join(parameters).split(",")]
        body = []
        for line in lines:
            if line[1].lower() == "endm":
                self.macros[name] = ([word.strip() for word in names], body)
                return
            body.append(line)

    def expand_macro(self, name, text):
        parameters, body = self.macros[name]
        text = text[1:-1] if text.startswith("(") and text.endswith(")") else text
        values = [value.strip() for value in text.split(",")]
        values += [""] * (len(parameters) - len(values))
        arguments = dict(zip(parameters, values))

        def replace(line):
            line = NAME.sub(lambda match: arguments.get(match[0], match[0]), line)
            return re.sub(r"@CatStr\((\w+),\s*(\w+)\)", r"\1\2", line)

        self.translate([(place, replace(line)) for place, line in body])

    def define_constant(self, name, value):
        """Numbers are computed, and other texts are kept as they are."""
        try:
            self.constants[name] = str(self.evaluate(value))
        except Unknown:
            self.constants[name] = self.expand(value)

    def define_struct(self, name, lines):
        fields, offset = {}, 0
        for _, text in lines:
            words = self.expand(text).split()
            if words[1].lower() == "ends":
                self.structs[name] = (fields, offset)
                return
            size, unit = SIZES[words[1]]
            fields[words[0].lower()] = (offset, unit)
            offset += size

    def expand(self, text):
        """Replaces constants until none is left, and operators by the signs that GNU as and Python share."""
        before = None
        while text != before:
            before = text
            text = NAME.sub(lambda match: self.constants.get(match[0].lower(), match[0]), text)
        text = re.sub(r"\b(\d[\da-f]*)h\b", r"0x\1", text, flags=re.I)
        text = re.sub(r"\bsizeof\s+(\w+)", lambda match: str(self.structs[match[1].lower()][1]), text, flags=re.I)
        text = re.sub(r"\[(\w+)\]\.(\w+)\.\s*(\w+)", self.field, text)
        return text

    def field(self, match):
        offset, unit = self.structs[match[2].lower()][0][match[3].lower()]
        return f"{unit} ptr [{match[1]} + {offset}]"

    @staticmethod
    def with_signs(text):
        return re.sub(r"\b(shl|shr|gt|lt|eq|ne)\b", lambda match: OPERATORS[match[0].lower()], text, flags=re.I)

    def evaluate(self, text):
        text = self.with_signs(self.expand(text))
        if not re.fullmatch(r"(0x[\da-fA-F]+|\d+|[-+*()\s]|<<|>>|[<>]|==|!=)+", text):
            raise Unknown(f"expression {text}")
        return int(eval(text))

    def procedure(self, name, begins):
        if begins:
            self.output += [f".globl {name}", self.unwind["begin"].format(name)]
        else:
            self.output.append(self.unwind["end"].format(name))

    def instruction(self, text):
        code, _, operands = self.expand(text).partition(" ")
        operands = self.with_signs(operands).strip()
        operands = re.sub(r"\b(short|near ptr)\s+", "", operands, flags=re.I)
        if code.startswith("j"):
            operands = self.target(operands)
        line = f"{code} {operands}".strip()
        if TAKE_ALIGNMENT.fullmatch(line):
            # A frame of constant size, which unwind information can describe without a frame register.
            line = f"sub rax, {FRAME_PADDING}"
            self.frame += FRAME_PADDING
        self.output.append("        " + line)
        self.describe(code.lower(), operands.lower())

    def target(self, label):
        number = {"@f": self.anonymous + 1, "@b": self.anonymous}.get(label.lower())
        return f".L{label}" if number is None else f".Lanonymous{number}"

    def describe(self, code, operands):
        """Adds the unwind directives for an instruction that changes the stack."""
        start_of_frame = re.fullmatch(r"rax\s*,\s*\[rsp - \((\d+)\)\]", operands)
        if code == "lea" and start_of_frame:
            self.frame = int(start_of_frame[1])
        elif code in ("push", "pop"):
            self.directive(code, operands)
        elif re.match(r"rsp\s*,", operands):
            if operands == "rsp, rax" and self.frame and self.frame % 16 == 8:
                self.directive("allocate", self.frame)
            elif operands == "rsp, qword ptr [rsp + 0]":
                self.directive("free", self.frame)
            else:
                raise Unknown(f"change of the stack: {code} {operands}")

    def directive(self, kind, operand):
        if kind in self.unwind:
            self.output.append(self.unwind[kind].format(operand))


def main(convention, source, target):
    source = pathlib.Path(source)
    translator = Translator(convention, source.parent)
    try:
        translator.translate(statements(source))
    except (Unknown, OSError) as error:
        sys.exit(f"masm-to-gas.py: {error}")
    lines = [".intel_syntax noprefix", ".text", ".p2align 6"] + translator.output
    pathlib.Path(target).write_text("\n".join(lines) + "\n", encoding="ascii")


if __name__ == "__main__":
    if len(sys.argv) != 4 or sys.argv[1] not in UNWIND:
        sys.exit(__doc__.splitlines()[0])
    main(*sys.argv[1:])
