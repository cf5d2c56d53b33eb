"""Many kesto runs changing one task, project or settings file at once must each keep their change."""
import fcntl
import os
import time

from harness import SandboxCase, read_bytes, write_project

WRITERS = 50


class ParallelWriters(SandboxCase):
    def setUp(self):
        super().setUp()
        self.project = self.sandbox.path("demo")
        write_project(self.project)

    def check_all_kept(self, make_args, list_args, expected, key=lambda line: line):
        """Runs every writer at once; each must exit 0 and the list must show, by key, every row expected."""
        results = self.sandbox.run_together([(make_args(n), self.project, None) for n in range(WRITERS)])
        listed = self.sandbox.run(list_args, self.project)
        self.assertStatus(listed, 0)
        missing = sorted(set(expected) - set(key(line) for line in listed.text().splitlines()))
        failed = [result for result in results if result.returncode != 0]
        if failed or missing:
            self.fail("%d of %d runs failed, %d changes lost (%s); the first failure: %s"
                      % (len(failed), WRITERS, len(missing), " ".join(missing[:5]), failed[0] if failed else "none"))
        self.assertNoTemporaries()

    def test_task_adds_keep_every_task(self):
        self.check_all_kept(lambda n: ["tasks", "add", "--name", "t%d" % n], ["tasks"],
                            ["t%d" % n for n in range(WRITERS)], key=lambda row: row.split("\t")[1])

    def test_node_adds_keep_every_node(self):
        self.check_all_kept(lambda n: ["project", "add", "node%d" % n, "--type", ".cpp"], ["project", "show"],
                            ["  node%d\t.cpp" % n for n in range(WRITERS)])

    def test_settings_sets_keep_every_value(self):
        self.check_all_kept(lambda n: ["settings", "set", "Sec", "k%d" % n, "v%d" % n], ["settings", "list", "Sec"],
                            ["k%d\tv%d" % (n, n) for n in range(WRITERS)])


class LockWait(SandboxCase):
    """A run that finds the task file locked by someone else waits for it, up to a limit."""

    def setUp(self):
        super().setUp()
        self.project = self.sandbox.path("demo")
        write_project(self.project)
        self.assertStatus(self.sandbox.run(["tasks", "add", "--name", "first"], self.project), 0)
        self.tasks = os.path.join(self.project, "demo.kpj.tsk")
        self.before = read_bytes(self.tasks)
        # The lock another process would hold on the task file while rewriting it.
        self.holder = open(os.path.join(self.project, ".demo.kpj.tsk.kesto-lock"), "a")
        self.addCleanup(self.holder.close)
        fcntl.flock(self.holder, fcntl.LOCK_EX)

    def test_gives_up_after_the_wait_limit(self):
        result = self.sandbox.run(["tasks", "add", "--name", "second"], self.project, KESTO_LOCK_WAIT=1)
        self.assertStatus(result, 1)
        self.assertEqual(read_bytes(self.tasks), self.before, "the task file was rewritten under another's lock")
        self.assertNoTemporaries()

    def test_goes_on_once_the_lock_is_released(self):
        waiting = self.sandbox.start(["tasks", "add", "--name", "second"], self.project, KESTO_LOCK_WAIT=30)
        self.addCleanup(waiting.kill)
        time.sleep(1)
        still_waiting = waiting.poll() is None
        changed_meanwhile = read_bytes(self.tasks) != self.before
        fcntl.flock(self.holder, fcntl.LOCK_UN)
        stdout, stderr = waiting.communicate(timeout=30)
        self.assertTrue(still_waiting, "the run did not wait for the lock (status %s, stderr %r)"
                        % (waiting.returncode, stderr))
        self.assertFalse(changed_meanwhile, "the task file was rewritten under another's lock")
        self.assertEqual(waiting.returncode, 0, stderr)
        names = [row.split("\t")[1] for row in self.sandbox.run(["tasks"], self.project).text().splitlines()]
        self.assertEqual(sorted(names), ["first", "second"])
