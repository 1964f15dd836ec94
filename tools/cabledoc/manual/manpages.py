"""The manual pages of the program, as text for man."""

INTRODUCTION = """\
The program makes, changes, checks and lists the documents of structured-cabling jobs.
Job files (.job) hold the floors of a site with their rooms, ports and vertical runs, drawing sheets, cables and test results.
Template files (.bkt) hold what new jobs start from."""

CONVENTIONS = """\
Options may stand before or after the arguments.
"--" ends the options.

A file that is read may be "-" for standard input, and a file that is written may be "-" for standard output.
A file is written whole or not at all.
An existing file is only replaced with --overwrite.

A command that changes a job locks it with FILE.job.lock.
Another command waits for five seconds and then gives up.

Data goes to standard output, and messages go to standard error.
JSON begins with the name and version of its form, "form", and the version of the program, "program".
If reading or saving takes more than a second and standard error is a terminal, the program shows what it is doing."""

ENVIRONMENT = """\
The variables LANGUAGE, LC_ALL, LC_MESSAGES and LANG choose the language of messages and headings.
Numbers are written in the same way in all languages."""


def escaped(text):
    """Returns the text with the characters that have a meaning in a manual page protected."""
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return "\\&" + text if text[:1] in (".", "'") else text


def paragraphs(text):
    return "\n".join(".PP" if line == "" else escaped(line) for line in text.split("\n")) + "\n"


def section(heading, text):
    return f".SH {heading}\n{text}" if text else ""


def bold(text):
    return f"\\fB{escaped(text)}\\fR"


def italic(text):
    return f"\\fI{escaped(text)}\\fR"


def rows(pairs):
    """Returns a list of terms and what they mean. The terms are already escaped."""
    return "".join(f".TP\n{term}\n{escaped(meaning)}\n" for term, meaning in pairs)


def option_term(option):
    term = ", ".join(bold(name) for name in option["names"])
    return f"{term} {italic(option['value'])}" if option["value"] else term


def argument_term(argument):
    return italic(argument["value"]) + ("..." if argument["repeated"] else "")


def option_rows(options):
    return rows((option_term(option), option["sentence"]) for option in options)


def synopsis(command):
    words = [bold("cabledoc " + command["name"]), "[" + italic("options") + "]"]
    for option in command["options"]:
        if option["required"]:
            words.append(f"{bold(option['names'][0])} {italic(option['value'])}")
    for argument in command["arguments"]:
        term = argument_term(argument)
        words.append(term if argument["required"] else f"[{term}]")
    return " ".join(words) + "\n"


def page_name(command):
    return "cabledoc-" + command["name"].replace(" ", "-")


def page(name, sentence, version, body):
    heading = f'.TH {name.upper()} 1 "" "cabledoc {version}" "cabledoc"\n.nh\n.ad l\n'
    return heading + section("NAME", f"{escaped(name)} \\- {escaped(sentence.rstrip('.'))}\n") + body


def see_also(names):
    return section("SEE ALSO", ",\n".join(f".BR {escaped(name)} (1)" for name in names) + "\n")


def command_page(command, usage):
    return page(
        page_name(command), command["sentence"], usage["program"],
        section("SYNOPSIS", synopsis(command))
        + section("DESCRIPTION", paragraphs(f"{command['sentence']} {command['details']}".strip()))
        + section("ARGUMENTS", rows((argument_term(a), a["sentence"]) for a in command["arguments"]))
        + section("OPTIONS", option_rows(command["options"] + usage["generalOptions"]))
        + section("EXIT STATUS", exit_codes(usage))
        + see_also(["cabledoc"]))


def exit_codes(usage):
    return rows((bold(str(code["code"])), code["sentence"]) for code in usage["exitCodes"])


def program_page(usage):
    commands = rows((f".BR {escaped(page_name(c))} (1)", c["sentence"]) for c in usage["commands"])
    return page(
        "cabledoc", "plan and document structured-cabling jobs", usage["program"],
        section("SYNOPSIS", f"{bold('cabledoc')} {italic('command')} [{italic('options')}] [{italic('arguments')}]\n")
        + section("DESCRIPTION", paragraphs(INTRODUCTION))
        + section("COMMANDS", commands)
        + section("OPTIONS", option_rows(usage["generalOptions"] + usage["programOptions"]))
        + section("FILES AND OUTPUT", paragraphs(CONVENTIONS))
        + section("EXIT STATUS", exit_codes(usage))
        + section("ENVIRONMENT", paragraphs(ENVIRONMENT))
        + see_also(page_name(c) for c in usage["commands"]))


def pages(usage):
    """Returns the text of each page by the name of its file."""
    texts = {page_name(command) + ".1": command_page(command, usage) for command in usage["commands"]}
    texts["cabledoc.1"] = program_page(usage)
    return texts
