"""Symbolic links planted where kesto writes must never let a run change a file outside its trees."""
import os

from harness import (DELIVER, SERVER_TIME, GroupwareTree, SandboxCase, account_name, is_read_only, lock_holder,
                     read_bytes, write_delivery_project, write_project)

DELIVERED = {"app.exe": b"new app\n", "lib.dll": b"new lib\n"}


class PlantedLinkCase(SandboxCase):
    def setUp(self):
        super().setUp()
        self.precious = self.make_precious()
        # Where a link to nothing points: a run that follows it creates this file.
        self.nowhere = os.path.join(self.sandbox.outside, "created-through-a-link")
        self.planted = []

    def plant(self, link, target=None):
        # An earlier run may have left a lock sidecar there: a plain file, which the link replaces.
        if os.path.lexists(link):
            os.remove(link)
        os.symlink(target or self.precious, link)
        self.planted.append(link)

    def assertOutsideKept(self):
        self.assertPreciousKept(self.precious)
        self.assertFalse(os.path.lexists(self.nowhere), "a run created a file through a dangling link")
        self.assertNoTemporaries(ignore=self.planted)

    def assertRegularFile(self, path, contents):
        self.assertFalse(os.path.islink(path), "%s is still a link" % path)
        self.assertEqual(read_bytes(path), contents)

    def delivery_project(self):
        project = self.sandbox.path("demo")
        write_delivery_project(project, DELIVERED)
        os.mkdir(os.path.join(project, "bin"))
        return project

    def deliver(self, project):
        return self.sandbox.run(DELIVER, project)

    # alice holds a.cpp and b.cpp on the server and has edited both.
    def sending_tree(self):
        tree = GroupwareTree(self.sandbox, ("alice",))
        for name in ("a.cpp", "b.cpp"):
            tree.put_on_server(name, b"old " + name.encode(), locked=True)
            tree.edit_locally("alice", name, b"new " + name.encode(), SERVER_TIME + 100)
        return tree

    # a.cpp and b.cpp are free on the server; alice has neither.
    def getting_tree(self):
        tree = GroupwareTree(self.sandbox, ("alice",))
        for name in ("a.cpp", "b.cpp"):
            tree.put_on_server(name, b"server " + name.encode(), locked=False)
        return tree

    def send(self, tree):
        # Logged in under the account's own name, so the recorded name is the same wherever it is read from.
        return tree.send("alice", "--update", login=account_name())

    def get(self, tree):
        return tree.get("alice", "--get", login=account_name())

    def task_project(self):
        project = self.sandbox.path("demo")
        write_project(project)
        self.assertStatus(self.sandbox.run(["tasks", "add", "--name", "first"], project), 0)
        return project

    def task_names(self, project):
        return [row.split("\t")[1] for row in self.sandbox.run(["tasks"], project).text().splitlines()]


class LinkAtOldTemporaryName(PlantedLinkCase):
    """The fixed temporary name of earlier versions, TARGET.kesto-tmp, is a trap anyone can set."""

    def test_deliver(self):
        project = self.delivery_project()
        self.plant(os.path.join(project, "bin", "app.exe.kesto-tmp"))
        self.plant(os.path.join(project, "bin", "lib.dll.kesto-tmp"), self.nowhere)
        result = self.deliver(project)
        self.assertOutsideKept()
        self.assertStatus(result, 0)
        for name, data in DELIVERED.items():
            self.assertRegularFile(os.path.join(project, "bin", name), data)

    def test_gw_send(self):
        tree = self.sending_tree()
        self.plant(tree.server_file("a.cpp.kesto-tmp"))
        self.plant(tree.server_file("b.cpp.kesto-tmp"), self.nowhere)
        result = self.send(tree)
        self.assertOutsideKept()
        self.assertStatus(result, 0)
        for name in ("a.cpp", "b.cpp"):
            self.assertRegularFile(tree.server_file(name), b"new " + name.encode())
            self.assertTrue(is_read_only(tree.server_file(name)))

    def test_gw_get(self):
        tree = self.getting_tree()
        self.plant(tree.local_file("alice", "a.cpp.kesto-tmp"))
        self.plant(tree.server_file("b.cpp.lock.kesto-tmp"), self.nowhere)
        result = self.get(tree)
        self.assertOutsideKept()
        self.assertStatus(result, 0)
        for name in ("a.cpp", "b.cpp"):
            self.assertRegularFile(tree.local_file("alice", name), b"server " + name.encode())
            self.assertFalse(os.path.islink(tree.server_file(name + ".lock")))
            self.assertEqual(lock_holder(tree.server_file(name + ".lock")), account_name())

    def test_tasks_add(self):
        project = self.task_project()
        self.plant(os.path.join(project, "demo.kpj.tsk.kesto-tmp"))
        result = self.sandbox.run(["tasks", "add", "--name", "second"], project)
        self.assertOutsideKept()
        self.assertStatus(result, 0)
        self.assertEqual(sorted(self.task_names(project)), ["first", "second"])

    def test_flash(self):
        project = self.task_project()
        self.plant(os.path.join(project, "demo.kpj.fltme.kesto-tmp"))
        result = self.sandbox.run(["flash"], project)
        self.assertOutsideKept()
        self.assertStatus(result, 0)
        self.assertFalse(os.path.islink(os.path.join(project, "demo.kpj.fltme")))

    def test_settings_set(self):
        self.plant(self.sandbox.settings + ".kesto-tmp")
        result = self.sandbox.run(["settings", "set", "Sec", "k", "v"], self.sandbox.root)
        self.assertOutsideKept()
        self.assertStatus(result, 0)
        self.assertEqual(self.sandbox.run(["settings", "get", "Sec", "k"], self.sandbox.root).stdout, b"v\n")


class LinkAtLockSidecar(PlantedLinkCase):
    """A link at .TARGET.kesto-lock is refused: that file's operation fails, nothing is followed."""

    def test_tasks_add(self):
        project = self.task_project()
        before = read_bytes(os.path.join(project, "demo.kpj.tsk"))
        self.plant(os.path.join(project, ".demo.kpj.tsk.kesto-lock"))
        result = self.sandbox.run(["tasks", "add", "--name", "second"], project)
        self.assertOutsideKept()
        self.assertStatus(result, 1)
        self.assertEqual(read_bytes(os.path.join(project, "demo.kpj.tsk")), before)

    def test_settings_set(self):
        self.assertStatus(self.sandbox.run(["settings", "set", "Sec", "k", "v"], self.sandbox.root), 0)
        before = read_bytes(self.sandbox.settings)
        self.plant(self.sandbox.path(".settings.reg.kesto-lock"))
        result = self.sandbox.run(["settings", "set", "Sec", "k", "w"], self.sandbox.root)
        self.assertOutsideKept()
        self.assertStatus(result, 1)
        self.assertEqual(read_bytes(self.sandbox.settings), before)

    def test_project_add(self):
        project = self.sandbox.path("demo")
        before = read_bytes(write_project(project))
        self.plant(os.path.join(project, ".demo.kpj.kesto-lock"))
        result = self.sandbox.run(["project", "add", "node", "--type", ".cpp"], project)
        self.assertOutsideKept()
        self.assertStatus(result, 1)
        self.assertEqual(read_bytes(os.path.join(project, "demo.kpj")), before)

    def test_gw_send(self):
        tree = self.sending_tree()
        self.plant(tree.server_file(".a.cpp.kesto-lock"))
        result = self.send(tree)
        self.assertOutsideKept()
        self.assertStatus(result, 1)
        self.assertRegularFile(tree.server_file("a.cpp"), b"old a.cpp")
        self.assertRegularFile(tree.server_file("b.cpp"), b"new b.cpp")
        self.assertTrue(is_read_only(tree.server_file("a.cpp")) and is_read_only(tree.server_file("b.cpp")))

    def test_gw_get(self):
        tree = self.getting_tree()
        # Whichever side's copy the lock guards, a link stands there.
        self.plant(tree.server_file(".a.cpp.kesto-lock"))
        self.plant(tree.local_file("alice", ".a.cpp.kesto-lock"))
        result = self.get(tree)
        self.assertOutsideKept()
        self.assertStatus(result, 1)
        self.assertRegularFile(tree.local_file("alice", "b.cpp"), b"server b.cpp")
        self.assertTrue(is_read_only(tree.server_file("b.cpp")))

    def test_deliver(self):
        project = self.delivery_project()
        self.plant(os.path.join(project, "bin", ".app.exe.kesto-lock"))
        self.plant(os.path.join(project, "bin", ".lib.dll.kesto-lock"), self.nowhere)
        self.deliver(project)
        self.assertOutsideKept()


class LinkAtTarget(PlantedLinkCase):
    """A link standing in for the file itself is replaced by a regular file, never written through."""

    def test_deliver(self):
        project = self.delivery_project()
        self.plant(os.path.join(project, "bin", "app.exe"))
        result = self.deliver(project)
        self.assertOutsideKept()
        self.assertStatus(result, 0)
        self.assertRegularFile(os.path.join(project, "bin", "app.exe"), DELIVERED["app.exe"])

    def test_ended_task_note(self):
        # Ending a public task keeps a note for the next delivery in demo.kpj.tsk.txt.
        self.assertStatus(self.sandbox.run(["settings", "set", "Tasks", "KeyIsDelivery", "1"], self.sandbox.root), 0)
        project = self.sandbox.path("demo")
        write_project(project)
        self.assertStatus(self.sandbox.run(["tasks", "add", "--name", "pub", "--public"], project), 0)
        notes = os.path.join(project, "demo.kpj.tsk.txt")
        self.plant(notes)
        result = self.sandbox.run(["tasks", "edit", "0", "--state", "ended"], project)
        self.assertOutsideKept()
        self.assertStatus(result, 0)
        self.assertFalse(os.path.islink(notes))
        self.assertIn(b"*** Task : pub ***", read_bytes(notes))

    def test_gw_send_to_a_linked_server_copy(self):
        # Read-only, the link looks like a locked server copy, so the send goes ahead.
        os.chmod(self.precious, 0o444)
        tree = self.sending_tree()
        os.remove(tree.server_file("a.cpp"))
        self.plant(tree.server_file("a.cpp"))
        result = self.send(tree)
        self.assertPreciousKept(self.precious, mode=0o444)
        self.assertNoTemporaries(ignore=self.planted)
        self.assertStatus(result, 0)
        self.assertRegularFile(tree.server_file("a.cpp"), b"new a.cpp")
        self.assertTrue(is_read_only(tree.server_file("a.cpp")))

    def test_gw_get_of_a_linked_server_copy(self):
        tree = self.getting_tree()
        os.remove(tree.server_file("a.cpp"))
        self.plant(tree.server_file("a.cpp"))
        self.get(tree)
        self.assertOutsideKept()

    def test_gw_get_with_a_linked_lock_record(self):
        tree = self.getting_tree()
        self.plant(tree.server_file("a.cpp.lock"))
        result = self.get(tree)
        self.assertOutsideKept()
        self.assertStatus(result, 0)
        self.assertFalse(os.path.islink(tree.server_file("a.cpp.lock")))
        self.assertEqual(lock_holder(tree.server_file("a.cpp.lock")), account_name())
