"""Shared pieces of the shared-file tests: fresh sandboxes, projects, groupware trees and kesto runs."""
import hashlib
import json
import os
import pwd
import shutil
import stat
import subprocess
import tempfile
import time
import unittest

# The kesto binary under test; run.py sets it.
KESTO = None

NOBODY = 65534
# Starts a command as uid 65534 with no groups: a second account, subject to file permissions.
AS_NOBODY = ["setpriv", "--reuid=%d" % NOBODY, "--regid=%d" % NOBODY, "--clear-groups"]
TEMPORARY_MARK = ".kesto-tmp"
# Big enough that copying takes a while, so that races and kills land mid-copy.
LARGE_SIZE = 4 * 1024 * 1024
# Seconds since 1970 for server copies; every local edit is made newer than this.
SERVER_TIME = 1_600_000_000
PRECIOUS_CONTENTS = b"precious contents\n"
PRECIOUS_MODE = 0o640


def version_bytes(tag, size=LARGE_SIZE):
    """Contents of one version of a file: a pattern of its own, so that any mix of two versions matches neither."""
    block = hashlib.sha256(tag.encode()).digest()
    return (block * (size // len(block) + 1))[:size]


def digest(data):
    return hashlib.sha256(data).hexdigest()


def read_bytes(path):
    with open(path, "rb") as f:
        return f.read()


def write_file(path, data, mtime=None, mode=None):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    if os.path.lexists(path) and not os.path.islink(path):
        os.chmod(path, 0o644)
    with open(path, "wb") as f:
        f.write(data)
    if mode is not None:
        os.chmod(path, mode)
    if mtime is not None:
        os.utime(path, (mtime, mtime))


def is_read_only(path):
    """Read-only as the system makes it: no write bit at all."""
    return os.stat(path).st_mode & 0o222 == 0


def mode_of(path):
    return stat.S_IMODE(os.lstat(path).st_mode)


def lock_holder(record):
    """The user named by a lock record: its text up to the first end of line or NUL."""
    text = read_bytes(record)
    for end in (b"\0", b"\r", b"\n"):
        text = text.split(end, 1)[0]
    return text.decode(errors="replace")


def account_name():
    """The name of the account running the tests, which the system may take from the password database."""
    return pwd.getpwuid(os.geteuid()).pw_name


def temporaries(root, ignore=()):
    """Every file below root whose name carries the temporary mark, except the paths in ignore."""
    found = []
    for folder, dirs, files in os.walk(root):
        for name in dirs + files:
            path = os.path.join(folder, name)
            if TEMPORARY_MARK in name and path not in ignore:
                found.append(os.path.relpath(path, root))
    return sorted(found)


class Result:
    def __init__(self, args, returncode, stdout, stderr):
        self.args, self.returncode, self.stdout, self.stderr = args, returncode, stdout, stderr

    def text(self):
        return self.stdout.decode(errors="replace")

    def __str__(self):
        return "kesto %s: status %s\nstdout: %s\nstderr: %s" % (
            " ".join(self.args), self.returncode, self.stdout.decode(errors="replace"),
            self.stderr.decode(errors="replace"))


class Sandbox:
    """A fresh directory open to every account, holding the settings file, projects and servers of one test."""

    def __init__(self):
        self.root = os.path.realpath(tempfile.mkdtemp(prefix="kesto-shared-"))
        # uid 65534 runs kesto inside it in some tests.
        os.chmod(self.root, 0o777)
        self.settings = self.path("settings.reg")
        self.outside = self.path("outside")
        os.mkdir(self.outside)

    def path(self, *parts):
        return os.path.join(self.root, *parts)

    def remove(self):
        # Tests leave read-only folders behind; rmtree needs them writable when not run as root.
        for folder, dirs, _ in os.walk(self.root):
            for name in dirs:
                path = os.path.join(folder, name)
                if not os.path.islink(path):
                    os.chmod(path, 0o777)
        shutil.rmtree(self.root, ignore_errors=True)

    def env(self, user=None, **extra):
        env = dict(os.environ)
        env.pop("LANG", None)
        env["LC_ALL"] = "C"
        env["KESTO_SETTINGS"] = self.settings
        if user:
            env["LOGNAME"] = env["USER"] = user
        env.update({key: str(value) for key, value in extra.items()})
        return env

    def command(self, args, as_nobody=False):
        return (AS_NOBODY if as_nobody else []) + [KESTO] + list(args)

    def run(self, args, cwd, user=None, as_nobody=False, timeout=60, **extra):
        done = subprocess.run(self.command(args, as_nobody), cwd=cwd, env=self.env(user, **extra),
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              timeout=timeout)
        return Result(args, done.returncode, done.stdout, done.stderr)

    def start(self, args, cwd, user=None, **extra):
        return subprocess.Popen(self.command(args), cwd=cwd, env=self.env(user, **extra), stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def run_together(self, runs, timeout=120):
        """Runs every (args, cwd, user) at once: each waits on its standard input until all are started."""
        started = []
        try:
            for args, cwd, user in runs:
                gate = ["/bin/sh", "-c", 'read _; exec "$@" </dev/null', "gate"] + self.command(args)
                started.append((args, subprocess.Popen(gate, cwd=cwd, env=self.env(user), stdin=subprocess.PIPE,
                                                       stdout=subprocess.PIPE, stderr=subprocess.PIPE)))
            # The gate opens for all within a moment; communicate closes the pipes afterwards.
            for _, process in started:
                process.stdin.write(b"\n")
                process.stdin.flush()
            results = []
            deadline = time.monotonic() + timeout
            for args, process in started:
                stdout, stderr = process.communicate(timeout=max(1, deadline - time.monotonic()))
                results.append(Result(args, process.returncode, stdout, stderr))
            return results
        finally:
            # Nothing may outlive the test and write into the next one's files.
            for _, process in started:
                if process.poll() is None:
                    process.kill()
                    process.wait()


def write_project(directory, options=None, nodes=None, name="demo.kpj"):
    """A project file NAME in directory with the given option values and node tree; returns its path."""
    os.makedirs(directory, exist_ok=True)
    path = os.path.join(directory, name)
    with open(path, "w") as f:
        json.dump({"nodes": nodes or [], "options": options or {}}, f)
    return path


DELIVER = ["deliver", "--yes", "--no-mail"]


def write_delivery_project(directory, targets):
    """A project delivering each target (a name with its contents, written beside it) into its folder bin,
    one active delivery group per extension."""
    types = sorted(set(os.path.splitext(name)[1] for name in targets))
    options = {"Kesto_NB_ODR": len(types)}
    for index, kind in enumerate(types):
        options.update({"Kesto_ODR_TYP_%d" % index: "+" + kind, "Kesto_ODR_REP_%d" % index: "+bin",
                        "Kesto_ODR_ACT_%d" % index: 1})
    nodes = [{"name": name, "type": os.path.splitext(name)[1]} for name in targets]
    write_project(directory, options, [{"name": "DELIVERY", "type": "SourcePool", "nodes": nodes}])
    for name, data in targets.items():
        write_file(os.path.join(directory, name), data)


def tree_state(root):
    """Every path below root with its mode and, for files, its contents."""
    state = {}
    for folder, dirs, files in os.walk(root):
        for name in dirs + files:
            path = os.path.join(folder, name)
            state[os.path.relpath(path, root)] = (mode_of(path), None if name in dirs else read_bytes(path))
    return state


class GroupwareTree:
    """A server directory and one project directory per user, every project sharing that server."""

    def __init__(self, sandbox, users=("alice", "bob"), base=""):
        self.sandbox = sandbox
        self.server = sandbox.path(base, "srv")
        os.makedirs(self.server, exist_ok=True)
        self.users = {}
        for user in users:
            directory = sandbox.path(base, user)
            write_project(directory, {"KestoGroupwareServer": "~" + self.server})
            self.users[user] = directory

    def server_file(self, name):
        return os.path.join(self.server, name)

    def local_file(self, user, name):
        return os.path.join(self.users[user], name)

    def put_on_server(self, name, data, locked, mtime=SERVER_TIME):
        write_file(self.server_file(name), data, mtime, 0o444 if locked else 0o644)

    def edit_locally(self, user, name, data, mtime):
        """A writable local copy: the user holds it for editing."""
        write_file(self.local_file(user, name), data, mtime, 0o644)

    # The runs of a user in his project directory; login, when given, is the name he logs in with.
    def send(self, user, *options, login=None, **extra):
        return self.sandbox.run(["gw", "send"] + list(options) + ["--go"], self.users[user], login or user, **extra)

    def get(self, user, *options, login=None, **extra):
        return self.sandbox.run(["gw", "get"] + list(options) + ["--go"], self.users[user], login or user, **extra)


class SandboxCase(unittest.TestCase):
    """A test case with a fresh sandbox per test."""

    def setUp(self):
        self.sandbox = Sandbox()
        self.addCleanup(self.sandbox.remove)

    def assertStatus(self, result, status):
        self.assertEqual(result.returncode, status, str(result))

    def assertNoTemporaries(self, ignore=()):
        self.assertEqual(temporaries(self.sandbox.root, ignore), [], "temporaries left behind")

    def make_precious(self):
        """A file outside every tree that no run may change; returns its path."""
        path = os.path.join(self.sandbox.outside, "precious")
        write_file(path, PRECIOUS_CONTENTS, SERVER_TIME - 50, PRECIOUS_MODE)
        return path

    def assertPreciousKept(self, path, mode=None):
        mode = PRECIOUS_MODE if mode is None else mode
        self.assertFalse(os.path.islink(path))
        self.assertEqual(read_bytes(path), PRECIOUS_CONTENTS, "the file outside the trees was written through a link")
        self.assertEqual(oct(mode_of(path)), oct(mode), "the file outside the trees changed its mode through a link")


def require_setpriv(test):
    """Skips test unless setpriv can start kesto as uid 65534 and that account can reach the test's sandbox."""
    if not shutil.which("setpriv"):
        test.skipTest("setpriv (util-linux) is not installed")
    if subprocess.run(AS_NOBODY + ["test", "-x", KESTO], stdin=subprocess.DEVNULL).returncode != 0:
        test.skipTest("uid %d cannot execute %s: a folder above it is not traversable" % (NOBODY, KESTO))
    if subprocess.run(AS_NOBODY + ["test", "-w", test.sandbox.root], stdin=subprocess.DEVNULL).returncode != 0:
        test.skipTest("uid %d cannot reach %s: set TMPDIR to a folder open to every account"
                      % (NOBODY, test.sandbox.root))


def require_root_and_setpriv(test):
    """Skips test unless it can run kesto as a second account, uid 65534."""
    if os.geteuid() != 0:
        test.skipTest("needs root to run kesto as a second account")
    require_setpriv(test)


def must_drop_root(test):
    """True when kesto has to run as uid 65534 to meet file permissions, root ignoring them; skips when it cannot."""
    if os.geteuid() != 0:
        return False
    require_setpriv(test)
    return True


def give_to_nobody(*paths):
    """Hands whole trees to uid 65534, as if that account had made them."""
    for top in paths:
        os.chown(top, NOBODY, NOBODY)
        for folder, dirs, files in os.walk(top):
            for name in dirs + files:
                os.lchown(os.path.join(folder, name), NOBODY, NOBODY)
