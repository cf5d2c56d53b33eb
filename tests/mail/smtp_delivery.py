#!/usr/bin/env python3
"""Delivers kesto's mails through msmtp to an SMTP server listening on loopback
and checks what arrived: the end of a public task mailed at once, then the kept
notifications mailed by hand with the notification file included and consumed.

Usage: smtp_delivery.py KESTO
Needs msmtp and a Python with aiosmtpd (python3-aiosmtpd)."""
import email
import email.header
import email.policy
import os
import shutil
import socket
import subprocess
import sys
import tempfile
import time

SERVER = r'''
import os, sys, time
from aiosmtpd.controller import Controller

class Saver:
    def __init__(self, folder):
        self.folder, self.count = folder, 0
    async def handle_DATA(self, server, session, envelope):
        self.count += 1
        base = os.path.join(self.folder, "mail%d" % self.count)
        with open(base + ".rcpt", "w") as f:
            f.write("\n".join(envelope.rcpt_tos))
        with open(base + ".tmp", "wb") as f:
            f.write(envelope.original_content)
        os.rename(base + ".tmp", base + ".eml")
        return "250 OK"

controller = Controller(Saver(sys.argv[1]), hostname="127.0.0.1", port=int(sys.argv[2]))
controller.start()
print("ready", flush=True)
sys.stdin.read()
controller.stop()
'''


def python_with_aiosmtpd():
    for candidate in (sys.executable, "/usr/bin/python3", shutil.which("python3")):
        if candidate and subprocess.run([candidate, "-c", "import aiosmtpd.controller"],
                                        stderr=subprocess.DEVNULL).returncode == 0:
            return candidate
    sys.exit("no Python with aiosmtpd: install python3-aiosmtpd")


def free_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def main():
    kesto = sys.argv[1]
    if not shutil.which("msmtp"):
        sys.exit("msmtp is not installed")
    failures = []

    def expect(what, actual, expected):
        if actual != expected:
            failures.append("%s: expected %r, got %r" % (what, expected, actual))

    with tempfile.TemporaryDirectory(prefix="kesto-smtp-") as tmp:
        inbox = os.path.join(tmp, "inbox")
        os.mkdir(inbox)
        port = free_port()
        server = subprocess.Popen([python_with_aiosmtpd(), "-c", SERVER, inbox, str(port)],
                                  stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        try:
            if server.stdout.readline().strip() != b"ready":
                sys.exit("the SMTP server did not start")
            config = os.path.join(tmp, "msmtprc")
            with open(config, "w") as f:
                f.write("account default\nhost 127.0.0.1\nport %d\nfrom kesto@example.org\n"
                        "auth off\ntls off\n" % port)
            os.chmod(config, 0o600)
            env = dict(os.environ, KESTO_SETTINGS=os.path.join(tmp, "settings.reg"), LC_ALL="C")

            def run(*args, stdin=b"", status=0):
                result = subprocess.run([kesto] + list(args), cwd=tmp, env=env, input=stdin,
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=60)
                if result.returncode != status or result.stderr:
                    failures.append("kesto %s: status %d, stderr %r" %
                                    (" ".join(a if isinstance(a, str) else repr(a) for a in args),
                                     result.returncode, result.stderr))
                return result.stdout

            def arrived(n):
                path = os.path.join(inbox, "mail%d.eml" % n)
                for _ in range(100):
                    if os.path.exists(path):
                        break
                    time.sleep(0.05)
                if not os.path.exists(path):
                    failures.append("mail %d never arrived" % n)
                    return None, []
                with open(path, "rb") as f:
                    message = email.message_from_bytes(f.read(), policy=email.policy.compat32)
                with open(os.path.join(inbox, "mail%d.rcpt" % n)) as f:
                    return message, f.read().split("\n")

            def subject(message):
                return str(email.header.make_header(email.header.decode_header(message["Subject"])))

            run("project", "new", "demo.kpj")
            run("mail", "recipients", "add", "ann@example.org")
            run("mail", "recipients", "add", "bob@example.org")
            run("settings", "set", "Mail", "Sendmail", "msmtp -C '%s' -t" % config)
            run("settings", "set", "Tasks", "KeyIsDelivery", "0")
            run("tasks", "add", "--name", "Caf\u00e9 release".encode(), "--public", "--text", "Shipped.\nAll good.")
            run("tasks", "edit", "0", "--state", "ended")

            message, recipients = arrived(1)
            if message:
                expect("recipients", recipients, ["ann@example.org", "bob@example.org"])
                expect("subject", subject(message), 'End of task "Caf\xe9 release" (project demo)')
                expect("charset", message.get_content_charset(), "utf-8")
                expect("to", message["To"].replace("\r\n", "").replace("\n", ""), "ann@example.org, bob@example.org")
                expect("body", message.get_payload(decode=True), b"Shipped.\r\nAll good.\r\n")
                if not message["Date"] or not message["From"]:
                    failures.append("Date or From missing")

            # Kept for the next delivery, then mailed with the notifications included.
            run("settings", "set", "Tasks", "KeyIsDelivery", "1")
            run("settings", "set", "Tasks", "EndedReadOnly", "0")
            run("tasks", "edit", "0", "--state", "tested")
            run("tasks", "edit", "0", "--state", "ended")
            if not os.path.exists(os.path.join(tmp, "demo.kpj.tsk.txt")):
                failures.append("no notification file")
            run("mail", "send", "Delivery : demo", "--include", "demo.kpj.tsk.txt", stdin=b"Report\n")
            message, recipients = arrived(2)
            if message:
                rule = b"-" * 70
                expect("included body", message.get_payload(decode=True),
                       b"Report\r\n" + rule + b"\r\n  NOTIFICATIONS FOR ENDED TASKS\r\n" + rule +
                       b"\r\n*** Task : Caf\xc3\xa9 release ***\r\nShipped.\r\nAll good.\r\n" + rule +
                       b"\r\nThat's all folks !\r\n")
            if os.path.exists(os.path.join(tmp, "demo.kpj.tsk.txt")):
                failures.append("the notification file was kept after a successful send")

            # A transport that fails keeps the notifications.
            run("tasks", "edit", "0", "--state", "tested")
            run("tasks", "edit", "0", "--state", "ended")
            run("settings", "set", "Mail", "Sendmail", "false")
            result = subprocess.run([kesto, "mail", "send", "x", "--include", "demo.kpj.tsk.txt"], cwd=tmp, env=env,
                                    input=b"", stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=60)
            expect("failed send status", result.returncode, 1)
            expect("failed send stderr", result.stderr,
                   b"false exited with status 1\nkesto: the mail was not sent\n")
            if not os.path.exists(os.path.join(tmp, "demo.kpj.tsk.txt")):
                failures.append("the notification file was lost by a failed send")
        finally:
            server.stdin.close()
            server.wait(timeout=30)
    if failures:
        print("\n".join(failures))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
