"""A rewritten file keeps the permissions its owner gave it: the replacement is created with them."""
import os

from harness import DELIVER, SandboxCase, mode_of, read_bytes, write_delivery_project, write_file, write_project


class KeptModes(SandboxCase):
    def setUp(self):
        super().setUp()
        self.project = self.sandbox.path("demo")
        write_project(self.project)

    def run_ok(self, *args):
        self.assertStatus(self.sandbox.run(list(args), self.project), 0)

    def test_private_settings_stay_private(self):
        self.run_ok("settings", "set", "Sec", "k", "v")
        os.chmod(self.sandbox.settings, 0o600)
        self.run_ok("settings", "set", "Sec", "k", "w")
        self.assertEqual(oct(mode_of(self.sandbox.settings)), oct(0o600))

    def test_task_file_keeps_its_mode(self):
        self.run_ok("tasks", "add", "--name", "first")
        tasks = os.path.join(self.project, "demo.kpj.tsk")
        os.chmod(tasks, 0o640)
        self.run_ok("tasks", "add", "--name", "second")
        self.assertEqual(oct(mode_of(tasks)), oct(0o640))

    def test_project_file_keeps_its_mode(self):
        project_file = os.path.join(self.project, "demo.kpj")
        os.chmod(project_file, 0o600)
        self.run_ok("project", "add", "node", "--type", ".cpp")
        self.assertEqual(oct(mode_of(project_file)), oct(0o600))

    def test_delivered_program_stays_executable(self):
        write_delivery_project(self.project, {"app.exe": b"new app\n"})
        delivered = os.path.join(self.project, "bin", "app.exe")
        write_file(delivered, b"old app\n", mode=0o755)
        self.assertStatus(self.sandbox.run(DELIVER, self.project), 0)
        self.assertEqual(read_bytes(delivered), b"new app\n")
        self.assertEqual(oct(mode_of(delivered)), oct(0o755))

    def test_program_delivered_the_first_time_stays_runnable(self):
        write_delivery_project(self.project, {"tool.sh": b"#!/bin/sh\necho run\n"})
        os.chmod(os.path.join(self.project, "tool.sh"), 0o750)
        os.makedirs(os.path.join(self.project, "bin"), exist_ok=True)
        self.assertStatus(self.sandbox.run(DELIVER, self.project), 0)
        mode = mode_of(os.path.join(self.project, "bin", "tool.sh"))
        self.assertNotEqual(mode & 0o100, 0, "a delivered program stays runnable")
        self.assertEqual(mode & 0o111, (mode & 0o444) >> 2, "by whoever may read it")
