#!/usr/bin/env python3
"""kesto's completion scripts complete in each shell, its manual page is clean roff,
and `cmake --install` puts both where man and the shells look.

Usage: reference_files.py KESTO BUILD_DIR
"""
import os
import subprocess
import sys
import tempfile

kesto, build = sys.argv[1], sys.argv[2]
failures = []


def script(shell):
    return subprocess.run([kesto, "completion", shell], capture_output=True, check=True, text=True).stdout


# What a user types, and words that must (and must not) be offered.
CASES = [
    ("kesto ta", {"tags", "tasks"}, {"settings"}),
    ("kesto tasks s", {"sort", "show"}, {"add"}),
    ("kesto tasks add --pr", {"--priority"}, set()),
    ("kesto find m", {"method"}, set()),
    ("kesto --project demo.kpj tasks e", {"edit"}, set()),
    ("kesto gw locks --j", {"--json"}, set()),
    ("kesto completion ", {"bash", "zsh", "fish"}, {"tasks"}),
]


def bash_offers(path, line):
    words = line.split(" ")
    program = 'source "$1"; COMP_WORDS=(%s); COMP_CWORD=%d; _kesto; printf "%%s\\n" "${COMPREPLY[@]}"' % (
        " ".join("'%s'" % w for w in words), len(words) - 1)
    result = subprocess.run(["bash", "-c", program, "bash", path], capture_output=True, text=True)
    return set(result.stdout.split())


def fish_offers(path, line):
    result = subprocess.run(["fish", "--no-config", "-c", 'source %s; complete -C "%s"' % (path, line)],
                            capture_output=True, text=True)
    return {row.split("\t")[0] for row in result.stdout.splitlines()}


with tempfile.TemporaryDirectory(prefix="kesto-shell-") as tmp:
    paths = {}
    for shell in ("bash", "zsh", "fish"):
        paths[shell] = os.path.join(tmp, shell)
        with open(paths[shell], "w") as f:
            f.write(script(shell))
    for shell, offers in (("bash", bash_offers), ("fish", fish_offers)):
        for line, wanted, unwanted in CASES:
            got = offers(paths[shell], line)
            if not wanted <= got or got & unwanted:
                failures.append("%s: %r offered %s" % (shell, line, sorted(got)))
    # A value after --project is a file: bash leaves it to its own file completion.
    if bash_offers(paths["bash"], "kesto --project "):
        failures.append("bash: offered words after --project")
    syntax = subprocess.run(["zsh", "-n", paths["zsh"]], capture_output=True, text=True)
    if syntax.returncode != 0:
        failures.append("zsh: " + syntax.stderr)

    prefix = os.path.join(tmp, "prefix")
    subprocess.run(["cmake", "--install", build, "--prefix", prefix], capture_output=True, check=True)
    installed = ["bin/kesto", "share/man/man1/kesto.1", "share/bash-completion/completions/kesto",
                 "share/zsh/site-functions/_kesto", "share/fish/vendor_completions.d/kesto.fish"]
    for relative in installed:
        if not os.path.isfile(os.path.join(prefix, relative)):
            failures.append("not installed: " + relative)
    page = os.path.join(prefix, "share/man/man1/kesto.1")
    if os.path.isfile(page):
        lint = subprocess.run(["groff", "-man", "-ww", "-z", page], capture_output=True, text=True)
        if lint.stderr:
            failures.append("roff warnings:\n" + lint.stderr)
        text = open(page).read()
        help_text = subprocess.run([kesto, "--help"], capture_output=True, text=True).stdout
        commands = [line.split()[0] for line in help_text.split("Subcommands:")[1].splitlines() if line.strip()]
        for name in commands:
            if '.SS "kesto %s' % name not in text:
                failures.append("manual page lacks the command " + name)
        if ".SS \"kesto tasks add" not in text:
            failures.append("manual page lacks the subcommands")

for failure in failures:
    print(failure)
sys.exit(1 if failures else 0)
