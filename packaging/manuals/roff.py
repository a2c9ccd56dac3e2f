"""Manual pages from the documents: the few forms of Markdown that these have."""

import re


def escaped(text):
    text = text.replace("\\", "\\e").replace("-", "\\-").replace("'", "\\(aq").replace("`", "\\(ga")
    text = text.replace("^", "\\(ha").replace("~", "\\(ti").replace("…", "...").replace("›", ">")
    return "\\&" + text if text.startswith(".") else text


def inline(text):
    """Code becomes bold, what is emphasised italic, and of links the words stay."""
    text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", text)
    pieces = re.split(r"(`[^`]*`|\*[^*]+\*)", text)
    result = ""
    for piece in pieces:
        if len(piece) > 1 and piece[0] == "`":
            result += "\\fB" + escaped(piece[1:-1]) + "\\fR"
        elif len(piece) > 2 and piece[0] == "*":
            result += "\\fI" + escaped(piece[1:-1]) + "\\fR"
        else:
            result += escaped(piece)
    return result.removeprefix("\\&") if result.startswith("\\&\\f") else result


def example(lines):
    return [".PP", ".EX", *(escaped(line) for line in lines), ".EE"]


def term(name, text):
    return [".TP", inline(name), inline(text)]


def page(name, section, version, kind, lines):
    head = f'.TH {name.upper()} {section} "" "{name} {version}" "{kind}"'
    # Names of controls and options are not to be broken.
    return "\n".join([head, ".nh", *lines]) + "\n"


def from_markdown(text, without=()):
    """The sections below the title; those of these names are left out."""
    lines, wanted = [], True
    blocks = re.findall(r"```.*?```|^#+ [^\n]*|(?:^(?!#|```)[^\n]+\n?)+", text, re.S | re.M)
    for block in blocks:
        heading = re.match(r"#+ (.*)", block)
        if heading:
            wanted = heading.group(1) not in without
            if wanted and block.startswith("## "):
                lines.append(f'.SH "{heading.group(1).upper()}"')
        elif wanted:
            lines += block_lines(block)
    return lines


def block_lines(block):
    rows = block.strip().splitlines()
    if block.startswith("```"):
        return example(rows[1:-1])
    if rows[0].startswith("|"):
        return [line for row in rows[2:] for line in term(*cells_of(row))]
    if rows[0].startswith("- "):
        items = re.split(r"\n- ", "\n" + block.strip())[1:]
        return [line for item in items for line in [".IP \\(bu 2", inline(" ".join(item.split()))]]
    return [".PP", inline(" ".join(rows))]


def cells_of(row):
    return [cell.strip() for cell in row.strip().strip("|").split(" | ")]
