#!/usr/bin/env python3
"""Runs one kesto end-to-end case in a fresh temporary directory and checks
standard output, standard error, the exit status and, optionally, files left behind.

A case folder holds:
  args      the arguments, one per line (required)
  setup/    copied into the temporary directory, which is the working directory
  setup_of  the name of another case whose setup/ this one uses (one set of files
            for the cases that run other commands on it)
  prepare   a shell script run there after the copy, for what a folder cannot hold
            (FIFOs, links to devices, very deep or very large files)
  stdin     fed to standard input (default: nothing)
  env       extra environment, KEY=VALUE per line
  stdout    expected standard output (default: empty)
  stderr    expected standard error (default: empty)
  status    expected exit status (default: 0)
  after/    files expected in the directory afterwards, compared byte for byte
  gone      paths that must not exist afterwards, one per line
  terminal  present: standard output and standard error go to one terminal,
            and stdout holds what it shows (line ends as "\n")
  cwd       the directory to run in, relative to the temporary one (default: itself)
The temporary directory's path is written @TMP@ in every expected text, and the
settings file is @TMP@/settings.reg unless env says otherwise.
"""
import os
import pty
import shutil
import subprocess
import sys
import tempfile


def read(path, default=b""):
    try:
        with open(path, "rb") as f:
            return f.read()
    except FileNotFoundError:
        return default


def run_on_terminal(command, cwd, env, stdin):
    """Runs command with standard output and standard error on one new terminal."""
    master, slave = pty.openpty()
    process = subprocess.Popen(command, cwd=cwd, env=env, stdin=subprocess.PIPE, stdout=slave, stderr=slave)
    os.close(slave)
    process.stdin.write(stdin)
    process.stdin.close()
    shown = b""
    while True:
        try:
            chunk = os.read(master, 4096)
        except OSError:  # the terminal's last writer has gone
            break
        if not chunk:
            break
        shown += chunk
    os.close(master)
    process.wait(timeout=120)
    return subprocess.CompletedProcess(command, process.returncode, shown.replace(b"\r\n", b"\n"), b"")


def main():
    kesto, case = sys.argv[1], sys.argv[2]
    args = [line for line in read(os.path.join(case, "args")).decode().split("\n") if line != ""]
    failures = []
    with tempfile.TemporaryDirectory(prefix="kesto-cli-") as tmp:
        tmp = os.path.realpath(tmp)
        setup = os.path.join(case, "setup")
        shared = read(os.path.join(case, "setup_of")).decode().strip()
        if shared:
            setup = os.path.join(os.path.dirname(os.path.abspath(case)), shared, "setup")
        if os.path.isdir(setup):
            shutil.copytree(setup, tmp, dirs_exist_ok=True)
        prepare = os.path.join(case, "prepare")
        if os.path.isfile(prepare):
            subprocess.run(["sh", os.path.abspath(prepare)], cwd=tmp, check=True)
        env = dict(os.environ)
        env["KESTO_SETTINGS"] = os.path.join(tmp, "settings.reg")
        # A project file left above the case's directory must not be found.
        env["KESTO_CEILING_DIRECTORY"] = os.path.dirname(tmp)
        env["LC_ALL"] = "C"
        env.pop("LANG", None)
        for line in read(os.path.join(case, "env")).decode().splitlines():
            if "=" in line:
                key, value = line.split("=", 1)
                env[key] = value.replace("@TMP@", tmp)
        args = [a.replace("@TMP@", tmp) for a in args]
        cwd = os.path.join(tmp, read(os.path.join(case, "cwd")).decode().strip())
        if os.path.isfile(os.path.join(case, "terminal")):
            result = run_on_terminal([kesto] + args, cwd, env, read(os.path.join(case, "stdin")))
        else:
            result = subprocess.run([kesto] + args, cwd=cwd, env=env, input=read(os.path.join(case, "stdin")),
                                    stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120)

        def check(name, actual, expected):
            actual = actual.replace(tmp.encode(), b"@TMP@")
            if actual != expected:
                failures.append("%s differs\n--- expected\n%s\n--- actual\n%s" %
                                (name, expected.decode(errors="replace"), actual.decode(errors="replace")))

        check("stdout", result.stdout, read(os.path.join(case, "stdout")))
        check("stderr", result.stderr, read(os.path.join(case, "stderr")))
        expected_status = int(read(os.path.join(case, "status"), b"0").strip() or 0)
        if result.returncode != expected_status:
            failures.append("exit status %d, expected %d" % (result.returncode, expected_status))
        after = os.path.join(case, "after")
        for root, _, files in os.walk(after):
            for name in files:
                expected_path = os.path.join(root, name)
                relative = os.path.relpath(expected_path, after)
                check("file " + relative, read(os.path.join(tmp, relative), b"<missing>"), read(expected_path))
        for relative in read(os.path.join(case, "gone")).decode().splitlines():
            if relative and os.path.lexists(os.path.join(tmp, relative)):
                failures.append("file %s should not exist" % relative)
    if failures:
        print("case %s failed; to reproduce: cd into a copy of %s/setup and run %s %s" %
              (case, case, kesto, " ".join(args)))
        print("\n".join(failures))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
