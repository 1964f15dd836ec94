"""Makes the manual pages of the program and the completion of shells, from what the program says about its commands.

Usage: generate.py PROGRAM FOLDER
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys

import completion
import manpages


def main():
    program, folder = sys.argv[1:]
    environment = dict(os.environ, LANGUAGE="en", LC_ALL="C.UTF-8")
    usage = json.loads(subprocess.check_output([program, "--usage-json"], env=environment))
    shutil.rmtree(folder, ignore_errors=True)  # there may be a page of a command that was removed
    files = {**manpages.pages(usage), **completion.scripts(usage)}
    for name, text in files.items():
        path = pathlib.Path(folder, name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")


main()
