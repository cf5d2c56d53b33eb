"""Colleagues sending and getting the same server file at the same moment."""
from harness import (SERVER_TIME, GroupwareTree, SandboxCase, digest, is_read_only, lock_holder, read_bytes,
                     version_bytes)

USERS = ("alice", "bob")


class SendRace(SandboxCase):
    ROUNDS = 3

    def test_parallel_updates_leave_one_whole_version(self):
        tree = GroupwareTree(self.sandbox, USERS)
        tree.put_on_server("a.cpp", version_bytes("server"), locked=True)
        versions = {user: version_bytes(user) for user in USERS}
        names = {digest(data): user for user, data in versions.items()}
        mtime = SERVER_TIME
        for round_number in range(self.ROUNDS):
            # Each round both edits are newer than whatever the server copy holds now.
            for user in USERS:
                mtime += 10
                tree.edit_locally(user, "a.cpp", versions[user], mtime)
            results = self.sandbox.run_together(
                [(["gw", "send", "--update", "--go"], tree.users[user], user) for user in USERS])
            for result in results:
                self.assertStatus(result, 0)
            server_copy = read_bytes(tree.server_file("a.cpp"))
            self.assertIn(digest(server_copy), names,
                          "round %d: the server copy is neither user's version (%d bytes)"
                          % (round_number, len(server_copy)))
            self.assertTrue(is_read_only(tree.server_file("a.cpp")), "round %d: the lock was lost" % round_number)
            self.assertNoTemporaries()


class GetRace(SandboxCase):
    RUNS_PER_USER = 12
    ROUNDS = 3

    def test_one_user_takes_the_lock(self):
        for round_number in range(self.ROUNDS):
            with self.subTest(round=round_number):
                self.race_once(round_number)

    def race_once(self, round_number):
        # A server and projects of its own for each round.
        tree = GroupwareTree(self.sandbox, USERS, base="round%d" % round_number)
        # Large, so that taking it lasts long enough for the runs to overlap.
        tree.put_on_server("a.cpp", version_bytes("server"), locked=False)
        runs = [(["gw", "get", "--get", "--go"], tree.users[user], user)
                for _ in range(self.RUNS_PER_USER) for user in USERS]
        results = self.sandbox.run_together(runs)
        winners = sorted(set(user for (_, _, user), result in zip(runs, results) if result.returncode == 0))
        self.assertEqual(len(winners), 1, "runs of both %s took the lock" % " and ".join(winners))
        self.assertTrue(is_read_only(tree.server_file("a.cpp")), "the server copy is not locked")
        holder = lock_holder(tree.server_file("a.cpp.lock"))
        self.assertIn(holder, USERS, "the lock record names %r" % holder)
        holder_statuses = []
        for (_, _, user), result in zip(runs, results):
            if user == holder:
                self.assertIn(result.returncode, (0, 1), str(result))
                holder_statuses.append(result.returncode)
            else:
                self.assertStatus(result, 1)
        self.assertIn(0, holder_statuses, "no run of %s took the lock" % holder)
        self.assertNoTemporaries()
