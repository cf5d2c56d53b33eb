"""Runs that cannot write where they were sent fail with status 1, change nothing and leave no temporary."""
import os
import subprocess

from harness import (DELIVER, SERVER_TIME, GroupwareTree, SandboxCase, give_to_nobody, mode_of, must_drop_root,
                     tree_state, write_delivery_project, write_file, write_project)


class MissingServer(SandboxCase):
    def test_send_to_a_missing_server_directory(self):
        server = self.sandbox.path("gone", "srv")
        project = self.sandbox.path("alice")
        write_project(project, {"KestoGroupwareServer": "~" + server})
        write_file(os.path.join(project, "a.cpp"), b"edited\n", SERVER_TIME, 0o644)
        write_file(os.path.join(project, "b.h"), b"reference\n", SERVER_TIME, 0o444)
        before = tree_state(self.sandbox.root)
        result = self.sandbox.run(["gw", "send", "--update", "--go"], project, "alice")
        self.assertStatus(result, 1)
        self.assertIn(("Server directory %s does not exist" % server).encode(), result.stderr)
        self.assertEqual(tree_state(self.sandbox.root), before)


class ReadOnlyServer(SandboxCase):
    def test_send_to_a_read_only_server(self):
        as_nobody = must_drop_root(self)
        tree = GroupwareTree(self.sandbox, ("alice",))
        tree.put_on_server("a.cpp", b"old\n", locked=True)
        tree.edit_locally("alice", "a.cpp", b"new\n", SERVER_TIME + 100)
        if as_nobody:
            give_to_nobody(tree.users["alice"])
        subprocess.run(["chmod", "-R", "a-w", tree.server], check=True)
        before = tree_state(tree.server)
        result = tree.send("alice", "--update", as_nobody=as_nobody)
        self.assertStatus(result, 1)
        self.assertEqual(tree_state(tree.server), before)
        self.assertEqual(mode_of(tree.local_file("alice", "a.cpp")), 0o644)
        self.assertNoTemporaries()


class TargetInTheWay(SandboxCase):
    def test_deliver_onto_a_directory(self):
        # The copy is written in full before the replace fails, so the temporary must be cleaned up then.
        project = self.sandbox.path("demo")
        write_delivery_project(project, {"app.exe": b"app\n"})
        os.makedirs(os.path.join(project, "bin", "app.exe"))
        before = tree_state(os.path.join(project, "bin"))
        self.assertStatus(self.sandbox.run(DELIVER, project), 1)
        self.assertEqual(tree_state(os.path.join(project, "bin")), before)
        self.assertNoTemporaries()
