"""Completions of the shells for edidwb: commands, options, the values of options, files, folders and connectors."""

import re

HEAD = "# Made from what edidwb tells of itself."


def kind_of(entry):
    """What a value is, for a shell: "file", "folder", "connector", "command" or "" for what nobody can guess."""
    if entry.placeholder == "CONNECTOR":
        return "connector"
    if entry.placeholder == "COMMAND":
        return "command"
    if entry.placeholder == "DIR":
        return "folder"
    # The only values that are called after what they are and are no files.
    is_file = entry.placeholder == "FILE" or (not entry.names and entry.placeholder in ("IN", "OUT", "A", "B"))
    return "file" if is_file else ""


def names_of(program):
    return [command.name for command in program.commands]


def option_names(entries):
    return [name for entry in entries for name in entry.names]


BASH = """{head}
_edidwb_commands="{commands}"

_edidwb_words()
{{
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$cur")
}}

# The values of a kind, or words.
_edidwb_values()
{{
    case $1 in
        @file) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$cur") ;;
        @folder) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$cur") ;;
        @connector) _edidwb_words "$(edidwb monitors 2>/dev/null | sed 's/:.*//')" ;;
        @command) _edidwb_words "$_edidwb_commands" ;;
        *) _edidwb_words "$1" ;;
    esac
}}

_edidwb()
{{
    local cur=${{COMP_WORDS[COMP_CWORD]}} prev=${{COMP_WORDS[COMP_CWORD - 1]}} command=${{COMP_WORDS[1]}}
    local options= valued= place=0 i
    local -a operands=()
    COMPREPLY=()
    # The shell takes "=" for a word of its own.
    if [[ $cur == = ]]; then
        cur=
    elif [[ $prev == = ]]; then
        prev=${{COMP_WORDS[COMP_CWORD - 2]}}
    fi
    if ((COMP_CWORD == 1)); then
        _edidwb_words "$_edidwb_commands {options}"
        return
    fi
    case $command:$prev in
{values}
    esac
    case $command in
{options_of_commands}
        *) return ;;
    esac
    if [[ $cur == -* ]]; then
        _edidwb_words "$options"
        return
    fi
    for ((i = 2; i < COMP_CWORD; ++i)); do
        if [[ " $valued " == *" ${{COMP_WORDS[i]}} "* ]]; then
            ((++i))
            if [[ ${{COMP_WORDS[i]}} == = ]]; then
                ((++i))
            fi
        elif [[ ${{COMP_WORDS[i]}} != -?* ]]; then
            ((++place))
        fi
    done
    if ((${{#operands[@]}})); then
        if ((place >= ${{#operands[@]}})); then
            [[ ${{operands[-1]}} == *... ]] || return
            place=$((${{#operands[@]}} - 1))
        fi
        _edidwb_values "${{operands[place]%...}}"
    fi
}}

complete -F _edidwb edidwb
"""


def bash_values(command):
    lines = []
    for option in command.options:
        if option.placeholder:
            kind = kind_of(option)
            values = " ".join(option.choices) or (f"@{kind}" if kind else "")
            names = "|".join(f"{command.name}:{name}" for name in option.names)
            action = f'_edidwb_values "{values}"; return' if values else "return"
            lines.append(f"        {names}) {action} ;;")
    return lines


def bash_options(command):
    valued = option_names([option for option in command.options if option.placeholder])
    operands = [f"@{kind_of(operand)}" + ("..." if operand.many else "") for operand in command.operands]
    return [
        f"        {command.name})",
        f'            options="{" ".join(option_names(command.options))}"',
        f'            valued="{" ".join(valued)}"',
        f"            operands=({' '.join(operands)})",
        "            ;;",
    ]


def bash(program):
    return BASH.format(
        head=HEAD,
        commands=" ".join(names_of(program)),
        options=" ".join(option_names(program.options)),
        values="\n".join(line for command in program.commands for line in bash_values(command)),
        options_of_commands="\n".join(line for command in program.commands for line in bash_options(command)),
    )


def quoted(text):
    return "'" + text.replace("'", "'\\''") + "'"


ZSH_ACTIONS = {
    "file": "_files",
    "folder": "_files -/",
    "connector": "_edidwb_connectors",
    "command": "_edidwb_commands",
    "": " ",
}

ZSH = """#compdef edidwb
{head}

_edidwb_connectors() {{
    local -a connectors
    connectors=(${{${{(f)"$(edidwb monitors 2>/dev/null)"}}%%:*}})
    compadd -a connectors
}}

_edidwb_commands() {{
    local -a commands
    commands=(
{commands}
    )
    _describe command commands
}}

_edidwb() {{
    if ((CURRENT == 2)); then
        _arguments {options} '1:command:_edidwb_commands'
        return
    fi
    local command=$words[2]
    shift words
    ((--CURRENT))
    case $command in
{cases}
    esac
}}

_edidwb "$@"
"""


def zsh_words(text):
    return re.sub(r"([\[\]:\\])", r"\\\1", text)


def zsh_option(option):
    value = ""
    if option.placeholder:
        action = f"({' '.join(option.choices)})" if option.choices else ZSH_ACTIONS[kind_of(option)]
        value = f":{zsh_words(option.placeholder)}:{action}"
    words = f"[{zsh_words(option.text)}]{value}"
    if option.many:
        return [quoted(f"*{name}{words}") for name in option.names]
    others = f"({' '.join(option.names)})" if len(option.names) > 1 else ""
    return [quoted(f"{others}{name}{words}") for name in option.names]


def zsh_operand(number, operand):
    place = "*" if operand.many else str(number + 1)
    return quoted(f"{place}:{zsh_words(operand.placeholder)}:{ZSH_ACTIONS[kind_of(operand)]}")


def zsh_case(command):
    arguments = [argument for option in command.options for argument in zsh_option(option)]
    arguments += [zsh_operand(number, operand) for number, operand in enumerate(command.operands)]
    rows = " \\\n".join(f"                {argument}" for argument in arguments)
    return f"        {command.name})\n            _arguments -s \\\n{rows}\n            ;;"


def zsh(program):
    return ZSH.format(
        head=HEAD,
        commands="\n".join(f"        {quoted(f'{c.name}:{zsh_words(c.description)}')}" for c in program.commands),
        options=" ".join(argument for option in program.options for argument in zsh_option(option)),
        cases="\n".join(zsh_case(command) for command in program.commands),
    )


FISH_VALUES = {
    "folder": "(__fish_complete_directories)",
    "connector": "(edidwb monitors 2>/dev/null | string replace -r ':.*' '')",
}

FISH = """{head}
function __edidwb_command
    set -l words (commandline -opc)
    test (count $words) -ge 2; and test $words[2] = $argv[1]
end

complete -c edidwb -n __fish_use_subcommand -f
"""


def fish_quoted(text):
    return "'" + text.replace("\\", "\\\\").replace("'", "\\'") + "'"


def fish_names(option):
    return " ".join(f"-l {name[2:]}" if name.startswith("--") else f"-s {name[1:]}" for name in option.names)


def fish_option(condition, option):
    line = f"complete -c edidwb -n {fish_quoted(condition)} {fish_names(option)}"
    kind = kind_of(option)
    if option.placeholder:
        values = " ".join(option.choices) or FISH_VALUES.get(kind, "")
        line += " -r" if kind == "file" else " -x"
        line += f" -a {fish_quoted(values)}" if values else ""
    return line + f" -d {fish_quoted(option.text)}"


def fish_operands(program, command):
    condition = fish_quoted(f"__edidwb_command {command.name}")
    kinds = [kind_of(operand) for operand in command.operands]
    lines = [] if "file" in kinds else [f"complete -c edidwb -n {condition} -f"]
    if "connector" in kinds:
        lines.append(f"complete -c edidwb -n {condition} -a {fish_quoted(FISH_VALUES['connector'])}")
    if "command" in kinds:
        lines.append(f"complete -c edidwb -n {condition} -a {fish_quoted(' '.join(names_of(program)))}")
    return lines


def fish(program):
    lines = [fish_option("__fish_use_subcommand", option) for option in program.options]
    for command in program.commands:
        lines.append(
            f"complete -c edidwb -n __fish_use_subcommand -a {command.name} -d {fish_quoted(command.description)}"
        )
    for command in program.commands:
        lines += fish_operands(program, command)
        lines += [fish_option(f"__edidwb_command {command.name}", option) for option in command.options]
    return FISH.format(head=HEAD) + "\n".join(lines) + "\n"
