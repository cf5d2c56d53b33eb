#!/usr/bin/env python3
"""A signal sent to `kesto make` reaches the build it runs: the build cleans up
and ends, kesto ends with the build's status, and nothing is left running.

Usage: signal_forwarding.py KESTO
"""
import os
import signal
import subprocess
import sys
import tempfile
import time

kesto = sys.argv[1]
failures = []
BUILD = ('trap "echo $1 > caught; exit 5" TERM INT; echo $$ > started; '
         'while :; do sleep 0.1; done')

for sig in (signal.SIGTERM, signal.SIGINT):
    with tempfile.TemporaryDirectory(prefix="kesto-make-") as tmp:
        with open(os.path.join(tmp, "demo.kpj"), "w") as f:
            f.write('{"nodes": [], "options": {}}\n')
        env = dict(os.environ, KESTO_SETTINGS=os.path.join(tmp, "settings.reg"),
                   KESTO_CEILING_DIRECTORY=os.path.dirname(tmp))
        run = subprocess.Popen([kesto, "make", "--", "sh", "-c", BUILD, "sh", sig.name], cwd=tmp, env=env,
                               stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        started = os.path.join(tmp, "started")
        deadline = time.time() + 30
        while not os.path.exists(started) and time.time() < deadline:
            time.sleep(0.05)
        time.sleep(0.2)  # the file is written; let the shell reach its loop
        build = int(open(started).read())
        run.send_signal(sig)
        try:
            run.wait(timeout=20)
        except subprocess.TimeoutExpired:
            run.kill()
            failures.append("%s: kesto make did not end" % sig.name)
            continue
        caught = os.path.join(tmp, "caught")
        if not os.path.exists(caught) or open(caught).read().strip() != sig.name:
            failures.append("%s: the build never saw the signal" % sig.name)
        if run.returncode != 5:
            failures.append("%s: kesto ended with %d, not the build's 5" % (sig.name, run.returncode))
        try:
            os.kill(build, 0)
            failures.append("%s: the build is still running" % sig.name)
            os.kill(build, signal.SIGKILL)
        except ProcessLookupError:
            pass

for failure in failures:
    print(failure)
sys.exit(1 if failures else 0)
