#!/usr/bin/env python3
"""Checks that an editor jumps where a kesto tags file says: vim reads the file
kesto wrote and lands on each definition's line, a method's and a class's too."""
import os
import shutil
import subprocess
import sys
import tempfile

SOURCES = {
    "src/stack.h": "#pragma once\n\nclass EXPORT Stack : public Base {\npublic:\n  void push(int);\n};\n",
    "src/stack.cpp": "#include \"stack.h\"\n\nvoid Stack::push(int v)\n{\n}\n\nstatic int helper(void)\n{\n  return 0;\n}\n",
    "main.c": "int main(int argc, char** argv)\n{\n  return helper();\n}\n",
}
EXPECTED = {"Stack": ("src/stack.h", 3), "push": ("src/stack.cpp", 3), "helper": ("src/stack.cpp", 7),
            "main": ("main.c", 1)}


def main():
    kesto = sys.argv[1]
    vim = shutil.which("vim")
    if not vim:
        print("vim is missing: install it to run this test")
        return 1
    failures = []
    with tempfile.TemporaryDirectory(prefix="kesto-tags-") as tmp:
        for relative, text in SOURCES.items():
            os.makedirs(os.path.join(tmp, os.path.dirname(relative)), exist_ok=True)
            with open(os.path.join(tmp, relative), "w") as f:
                f.write(text)
        env = dict(os.environ, KESTO_SETTINGS=os.path.join(tmp, "settings.reg"), LC_ALL="C")
        subprocess.run([kesto, "tags"], cwd=tmp, env=env, check=True, timeout=60)
        for name, (file, line) in EXPECTED.items():
            out = os.path.join(tmp, "landed.txt")
            subprocess.run([vim, "-es", "-N", "-u", "NONE", "-i", "NONE", "-c", "set tags=./tags", "-c", "tag " + name,
                            "-c", "call writefile([expand('%') . ':' . line('.')], '" + out + "')", "-c", "qa!"],
                           cwd=tmp, env=env, stdin=subprocess.DEVNULL, timeout=60)
            landed = open(out).read().strip() if os.path.exists(out) else "nowhere"
            if landed != "%s:%d" % (file, line):
                failures.append(":tag %s landed on %s, expected %s:%d" % (name, landed, file, line))
    for failure in failures:
        print(failure)
    print("%d passed, %d failed" % (len(EXPECTED) - len(failures), len(failures)))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
