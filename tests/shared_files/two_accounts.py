"""Two real accounts sharing a server: the one taking a lock on another's file still gets a read-only copy."""
import os

from harness import (SERVER_TIME, GroupwareTree, SandboxCase, give_to_nobody, is_read_only, lock_holder,
                     read_bytes, require_root_and_setpriv, write_file)


class TwoAccounts(SandboxCase):
    def setUp(self):
        super().setUp()
        require_root_and_setpriv(self)
        self.tree = GroupwareTree(self.sandbox, ("bob",))
        os.chmod(self.tree.server, 0o777)
        # root's copy, free and writable by everyone, as a colleague would have left it.
        self.tree.put_on_server("a.cpp", b"int a;\n", locked=False)
        os.chmod(self.tree.server_file("a.cpp"), 0o666)
        give_to_nobody(self.tree.users["bob"])

    def test_get_then_send_a_file_owned_by_another_account(self):
        server_copy = self.tree.server_file("a.cpp")
        local_copy = self.tree.local_file("bob", "a.cpp")
        self.assertStatus(self.tree.get("bob", "--get", as_nobody=True), 0)
        self.assertTrue(is_read_only(server_copy), "the server copy was not locked")
        self.assertEqual(os.stat(server_copy).st_mtime, SERVER_TIME)
        self.assertEqual(read_bytes(server_copy), b"int a;\n")
        self.assertEqual(lock_holder(self.tree.server_file("a.cpp.lock")), "bob")
        self.assertEqual(read_bytes(local_copy), b"int a;\n")
        self.assertFalse(is_read_only(local_copy))

        write_file(local_copy, b"int a = 1;\n", SERVER_TIME + 100)
        self.assertStatus(self.tree.send("bob", "--send", as_nobody=True), 0)
        self.assertEqual(read_bytes(server_copy), b"int a = 1;\n")
        self.assertFalse(is_read_only(server_copy), "the lock was not released")
        self.assertTrue(is_read_only(local_copy))
        self.assertNoTemporaries()
