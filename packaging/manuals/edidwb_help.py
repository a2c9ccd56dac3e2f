"""What edidwb tells of itself with --help, as data: the source of its manual page and of its completions."""

import re
import subprocess
from dataclasses import dataclass, field

# Where the descriptions of options stand; a longer name has its description in the next line.
COLUMN = 30


@dataclass
class Entry:
    """An option ("-o", "--output-dir") or, without names, an operand."""

    names: list
    placeholder: str  # such as FILE; empty for an option that takes no value
    choices: list
    required: bool
    many: bool
    text: str

    @property
    def shown(self):
        """The value as the help shows it, without what the names of choices and marks add."""
        return self.placeholder + (" ..." if self.many else "")


@dataclass
class Command:
    name: str
    description: str
    usage: str = ""
    operands: list = field(default_factory=list)
    options: list = field(default_factory=list)
    footer: str = ""


def entry_of(head, text):
    words = head.split(" ", 1)
    names = words[0].split(",") if words[0].startswith("-") else []
    value = head if not names else words[1] if len(words) > 1 else ""
    required = value.endswith(" REQUIRED")
    value = value.removesuffix(" REQUIRED")
    many = value.endswith(" ...")
    value = value.removesuffix(" ...")
    choices = re.search(r":\{(.*)\}$", value)
    return Entry(
        names=names,
        placeholder=value[: choices.start()] if choices else value,
        choices=choices.group(1).split(",") if choices else [],
        required=required,
        many=many,
        text=text,
    )


def entries_of(lines):
    entries = []
    for number, line in enumerate(lines):
        if line.startswith(" " * COLUMN):
            continue
        following = lines[number + 1] if number + 1 < len(lines) else ""
        if following.startswith(" " * COLUMN):
            entries.append(entry_of(line.strip(), following.strip()))
        else:
            entries.append(entry_of(line[:COLUMN].strip(), line[COLUMN:].strip()))
    return entries


def sections_of(text):
    """The first paragraph, the sections by their heads ("Options"), and what follows them."""
    head, sections, footer, current = [], {}, [], None
    for line in text.splitlines():
        if line in ("Positionals:", "Options:", "Subcommands:"):
            current = sections.setdefault(line[:-1], [])
        elif current is None:
            head.append(line)
        elif footer or (line and not line.startswith("  ")):
            footer.append(line)
        elif line:
            current.append(line)
        elif "Options" in sections and current is not sections.get("Positionals"):
            # The blank line that ends the last section; the footer may begin with lines that are indented.
            current = footer
    return head, sections, "\n".join(footer).strip("\n")


class Program:
    def __init__(self, path):
        self.path = path
        self.version = self._run("--version").split()[1]
        head, sections, self.footer = sections_of(self._run("--help"))
        self.description = head[0]
        self.options = entries_of(sections["Options"])
        self.commands = [self._command(*line.split(None, 1)) for line in sections["Subcommands"]]

    def _run(self, *arguments):
        return subprocess.run([self.path, *arguments], check=True, capture_output=True, encoding="utf-8").stdout

    def _command(self, name, description):
        head, sections, footer = sections_of(self._run("help", name))
        usage = next(line for line in head if line.startswith("Usage: "))
        return Command(
            name=name,
            description=description,
            usage=usage.removeprefix("Usage: "),
            operands=entries_of(sections.get("Positionals", [])),
            options=entries_of(sections["Options"]),
            footer=footer,
        )
