"""A send killed at any moment leaves every server copy whole, either old or new, and still locked."""
import os
import random
import signal
import time

from harness import (SERVER_TIME, GroupwareTree, SandboxCase, TEMPORARY_MARK, digest, is_read_only, read_bytes,
                     temporaries, version_bytes)

FILES = ("a.cpp", "b.cpp", "c.cpp")
KILLS = 20


class KilledSend(SandboxCase):
    def setUp(self):
        super().setUp()
        # Set KESTO_KILL_SEED to replay the kill times of a failed run.
        self.seed = int(os.environ.get("KESTO_KILL_SEED") or time.time_ns() % 2**32)
        self.random = random.Random(self.seed)
        self.tree = GroupwareTree(self.sandbox, ("alice",))
        for name in FILES:
            self.tree.put_on_server(name, version_bytes(name + ":0"), locked=True)
        self.on_server = {name: digest(version_bytes(name + ":0")) for name in FILES}
        self.mtime = SERVER_TIME

    def edit(self, version):
        """Gives every local copy a new version, newer than the server's; returns the new digests."""
        self.mtime += 10
        edited = {}
        for name in FILES:
            data = version_bytes("%s:%d" % (name, version))
            self.tree.edit_locally("alice", name, data, self.mtime)
            edited[name] = digest(data)
        return edited

    def check_server(self, edited, when):
        for name in FILES:
            path = self.tree.server_file(name)
            found = digest(read_bytes(path))
            self.assertIn(found, (self.on_server[name], edited[name]),
                          "%s: the server copy of %s is neither its old nor its new version (seed %d)"
                          % (when, name, self.seed))
            self.assertTrue(is_read_only(path), "%s: the server copy of %s lost its lock (seed %d)"
                            % (when, name, self.seed))
            self.on_server[name] = found
        for left in temporaries(self.sandbox.root):
            self.assertTrue(any(left.startswith(os.path.join("srv", "." + name + TEMPORARY_MARK)) for name in FILES),
                            "%s: %s is not named after a server copy, .NAME%s... (seed %d)"
                            % (when, left, TEMPORARY_MARK, self.seed))

    def test_killed_updates(self):
        edited = self.edit(1)
        began = time.monotonic()
        self.assertStatus(self.tree.send("alice", "--update"), 0)
        duration = time.monotonic() - began
        self.check_server(edited, "a whole run")
        self.assertEqual(self.on_server, edited)
        for kill in range(KILLS):
            edited = self.edit(kill + 2)
            run = self.sandbox.start(["gw", "send", "--update", "--go"], self.tree.users["alice"], "alice")
            time.sleep(self.random.uniform(0, duration * 1.2))
            run.send_signal(signal.SIGKILL)
            run.communicate(timeout=60)
            self.check_server(edited, "kill %d" % kill)
        # A whole run afterwards finishes the job and leaves nothing of its own behind.
        edited = self.edit(KILLS + 2)
        left_by_killed_runs = temporaries(self.sandbox.root)
        self.assertStatus(self.tree.send("alice", "--update"), 0)
        self.check_server(edited, "the last run")
        self.assertEqual(self.on_server, edited)
        self.assertEqual(sorted(set(temporaries(self.sandbox.root)) - set(left_by_killed_runs)), [])
