"""The completion of bash, zsh and fish, as scripts."""

BASH = r"""# Completion of cabledoc for bash

_cabledoc() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local word words=() choices='' options='' extensions=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $word == -* ]] || words+=("$word")
    done
    case "${words[0]-} ${words[1]-}" in
%s
    esac
    [[ $current != -* ]] || choices=$options
    if [[ -n $choices ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$current")
        return
    fi
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(
        for extension in "${extensions[@]}"; do
            compgen -f -X "!*$extension" -- "$current"
        done
        [[ ${#extensions[@]} == 0 ]] || compgen -d -- "$current"
    )
}

complete -F _cabledoc cabledoc
"""

ZSH = r"""#compdef cabledoc
# Completion of cabledoc for zsh

%s
_cabledoc "$@"
"""

ZSH_FUNCTION = r"""%s() {
    local curcontext=$curcontext state
    local -a commands
    _arguments -C \
%s
        '1:command:->command' \
        '*:: :->arguments' && return
    case $state in
        command)
            commands=(
%s
            )
            _describe command commands
            ;;
        arguments)
            case $words[1] in
%s
            esac
            ;;
    esac
}
"""

FISH = r"""# Completion of cabledoc for fish

function __cabledoc_words -d 'Prints the words before the cursor that are no options'
    set -l words (commandline -opc | string match -v -- '-*')
    string join \n -- $words[2..-1]
end

function __cabledoc_only -d 'Tells whether these are the words before the cursor'
    set -l words (__cabledoc_words)
    test "$words" = "$argv"
end

function __cabledoc_command -d 'Tells whether these words name the command'
    set -l words (__cabledoc_words)
    set -l number (count $argv)
    test "$words[1..$number]" = "$argv"
end

complete -c cabledoc -f
%s
"""


def first_words(usage):
    """Returns the first words of commands, each with what it means and its commands."""
    words = {}
    for command in usage["commands"]:
        words.setdefault(command["name"].split()[0], []).append(command)
    return words


def is_group(commands):
    return " " in commands[0]["name"]


def second_word(command):
    return command["name"].split()[1]


def meaning(commands):
    return ", ".join(command["name"] for command in commands) if is_group(commands) else commands[0]["sentence"]


def names_of(options):
    return [name for option in options for name in option["names"]]


def quoted(text):
    """Returns the text as one word of bash or zsh."""
    return "'" + text.replace("'", "'\\''") + "'"


def names_commands(argument):
    return argument["value"] == "COMMAND"


def extension_of(parameter):
    return "." + parameter["extension"] if parameter["extension"] else ""


# bash

def bash_extensions(parameters):
    extensions = [quoted(extension_of(parameter)) for parameter in parameters if parameter["file"]]
    return f"extensions=({' '.join(extensions)})"


def bash_command(command, usage):
    words = command["name"].split()
    pattern = quoted(" ".join(words)) if len(words) == 2 else quoted(words[0] + " ") + "*"
    lines = [f"{pattern})", f"    options={quoted(' '.join(names_of(command['options'] + usage['generalOptions'])))}"]
    if any(names_commands(argument) for argument in command["arguments"]):
        lines.append(f"    choices={quoted(' '.join(first_words(usage)))}")
    lines.append("    " + bash_extensions(command["arguments"]))
    lines.append("    case $previous in")
    for option in command["options"]:
        if option["value"]:
            lines.append(f"        {' | '.join(option['names'])}) options='' {bash_extensions([option])} ;;")
    lines += ["    esac", "    ;;"]
    return lines


def bash(usage):
    commands = first_words(usage)
    options = names_of(usage["generalOptions"] + usage["programOptions"])
    lines = ["' ')", f"    choices={quoted(' '.join(commands))}", f"    options={quoted(' '.join(options))}", "    ;;"]
    for word, group in commands.items():
        if is_group(group):
            lines.append(f"{quoted(word + ' ')}) choices={quoted(' '.join(map(second_word, group)))} ;;")
        for command in group:
            lines += bash_command(command, usage)
    return BASH % "\n".join("        " + line for line in lines)


# zsh

def zsh_text(text):
    return text.replace("\\", "\\\\").replace(":", "\\:").replace("[", "\\[").replace("]", "\\]")


def zsh_action(parameter, usage):
    if names_commands(parameter):
        return "(" + " ".join(first_words(usage)) + ")"
    if not parameter["file"]:
        return " "
    return f'_files -g "*{extension_of(parameter)}"' if parameter["extension"] else "_files"


def zsh_option(option, usage):
    spec = f"[{zsh_text(option['sentence'])}]"
    if option["value"]:
        spec += f":{option['value']}:{zsh_action(option, usage)}"
    if len(option["names"]) == 1:
        return quoted(option["names"][0] + spec)
    return f"'({' '.join(option['names'])})'{{{','.join(option['names'])}}}{quoted(spec)}"


def zsh_argument(number, argument, usage):
    position = "*" if argument["repeated"] else str(number)
    optional = "" if argument["required"] or argument["repeated"] else ":"
    return quoted(f"{position}:{optional}{argument['value']}:{zsh_action(argument, usage)}")


def zsh_command(command, usage):
    specs = [zsh_option(option, usage) for option in command["options"] + usage["generalOptions"]]
    specs += [zsh_argument(number, argument, usage) for number, argument in enumerate(command["arguments"], 1)]
    return "_arguments " + " ".join(specs)


def zsh_function(name, options, meanings, actions, usage):
    indented = lambda indent, lines: "\n".join(" " * indent + line for line in lines)
    return ZSH_FUNCTION % (
        name,
        indented(8, [zsh_option(option, usage) + " \\" for option in options]),
        indented(16, [quoted(f"{word}:{zsh_text(sentence)}") for word, sentence in meanings.items()]),
        indented(16, [f"{word}) {action} ;;" for word, action in actions.items()]))


def zsh(usage):
    functions = []
    actions = {}
    for word, group in first_words(usage).items():
        if not is_group(group):
            actions[word] = zsh_command(group[0], usage)
            continue
        actions[word] = "_cabledoc_" + word
        functions.append(zsh_function(
            actions[word], usage["generalOptions"],
            {second_word(command): command["sentence"] for command in group},
            {second_word(command): zsh_command(command, usage) for command in group}, usage))
    functions.append(zsh_function(
        "_cabledoc", usage["generalOptions"] + usage["programOptions"],
        {word: meaning(group) for word, group in first_words(usage).items()}, actions, usage))
    return ZSH % "\n".join(functions)


# fish

def fish_quoted(text):
    return "'" + text.replace("\\", "\\\\").replace("'", "\\'") + "'"


def fish_files(parameter):
    if not parameter["file"]:
        return "-f"
    return f"-f -k -a '(__fish_complete_suffix {extension_of(parameter)})'" if parameter["extension"] else "-F"


def fish_option(option):
    words = ["-l " + name[2:] if name.startswith("--") else "-s " + name[1:] for name in option["names"]]
    if option["value"]:
        words.append("-r " + fish_files(option))
    return " ".join(words + ["-d " + fish_quoted(option["sentence"])])


def fish_choices(condition, meanings):
    return [f"complete -c cabledoc -n '{condition}' -a {word} -d {fish_quoted(sentence)}"
            for word, sentence in meanings.items()]


def fish_command(command, usage):
    condition = f"__cabledoc_command {command['name']}"
    lines = [f"complete -c cabledoc -n '{condition}' {fish_option(option)}" for option in command["options"]]
    for argument in command["arguments"]:
        if names_commands(argument):
            lines += fish_choices(condition, {word: meaning(group) for word, group in first_words(usage).items()})
        else:
            lines.append(f"complete -c cabledoc -n '{condition}' {fish_files(argument)}")
    return lines


def fish(usage):
    commands = first_words(usage)
    lines = [f"complete -c cabledoc {fish_option(option)}" for option in usage["generalOptions"]]
    lines += [f"complete -c cabledoc -n __cabledoc_only {fish_option(option)}" for option in usage["programOptions"]]
    lines += fish_choices("__cabledoc_only", {word: meaning(group) for word, group in commands.items()})
    for word, group in commands.items():
        if is_group(group):
            sentences = {second_word(command): command["sentence"] for command in group}
            lines += fish_choices(f"__cabledoc_only {word}", sentences)
        for command in group:
            lines += fish_command(command, usage)
    return FISH % "\n".join(lines)


def scripts(usage):
    """Returns the text of each script by the name of its file."""
    return {"cabledoc": bash(usage), "_cabledoc": zsh(usage), "cabledoc.fish": fish(usage)}
