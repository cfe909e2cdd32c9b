#!/usr/bin/env python3
"""Lets the services answer as no service should. Whatever they say, stored rows stay unless the answer orders
otherwise, the program stays small and quick, and the token is sent to the report service alone.

hostile.py --program FILE --shim FILE [--short]: each answer is given to one run on a store that holds its
report. Prints one line of figures, and before it each violation."""

import argparse
import gzip
import os
import pathlib
import socket
import ssl
import struct
import subprocess
import sys
import tempfile
import threading
import time
import warnings
import zlib

from program import FINANCE, RATES, SALES, Program, copied, finance_body, month, sales_body
from verifier import contents

MOST_MEMORY = 200 << 20
LONGEST_STALL = 0.1
SECONDS = 100
DAY, PERIOD = f"{month(2)}-07", month(3)
ARGUMENTS = {"sales": ["--do", f"day={DAY}"], "finance": ["--do", f"finance={PERIOD}"], "rates": ["--do", "rates"],
             "test": ["--do", "test"]}
GOOD = gzip.compress(sales_body(DAY, 0).encode())


def answer(status, body=b"", *headers, length=None):
    lines = [f"HTTP/1.1 {status} Answer", f"Content-Length: {len(body) if length is None else length}", *headers]
    return "\r\n".join(lines).encode() + b"\r\n\r\n" + body


def detail(status, words):
    return answer(status, b'{"errors": [{"detail": "%s"}]}' % words.encode())


def endless(start, piece, pause=0.0, most=1 << 30):
    def pieces():
        yield start
        for _ in range(most // len(piece)):
            time.sleep(pause)
            yield piece

    return pieces


def bomb(header, piece, count):
    """A gzip member of little else than `piece`."""
    packer = zlib.compressobj(9, zlib.DEFLATED, 31)
    packed = packer.compress(header.encode())
    block = piece * ((1 << 20) // len(piece))
    for _ in range(count):
        packed += packer.compress(block)
    return answer(200, packed + packer.flush())


def chunked(*chunks):
    return b"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + b"".join(chunks)


def chunk(data):
    return b"%x\r\n%s\r\n" % (len(data), data)


def broken(kind, header, foreign):
    """Answers that any report could get, none of which is the report."""
    yield "closed at once", kind, b""
    yield "not HTTP", kind, b"\x00\xff220 smtp ready\r\n" * 50
    yield "half a status line", kind, b"HTTP/1.1 2"
    yield "half of the headers", kind, b"HTTP/1.1 200 OK\r\nContent-Type: text"
    yield "cut in the body", kind, answer(200, GOOD[:-200], length=len(GOOD))
    yield "reset in the body", kind, ["reset", answer(200, GOOD[:-200], length=len(GOOD))]
    yield "a web page", kind, answer(200, b"<html><body>Sign in</body></html>")
    yield "an empty body", kind, answer(200)
    yield "errors under 200", kind, detail(200, "There were no sales for the date specified.")
    yield "a header of too few columns", kind, answer(200, "\t".join(header.split("\t")[:5]).encode() + b"\n")
    yield "redirected abroad", kind, answer(302, b"", f"Location: {foreign}/v1/salesReports")
    yield "an endless body", kind, endless(b"HTTP/1.1 200 OK\r\n\r\n" + header.encode(), b"APPLE\t\n" * 20000)
    yield "an endless error", kind, endless(b"HTTP/1.1 500 No\r\n\r\n", b"no " * 50000)
    yield "a bomb of line feeds", kind, bomb(header + "x" * 300000, b"\n", 400)
    yield "a bomb of tabs", kind, bomb(header, b"\t", 600)


def of_sales(foreign):
    for status in (301, 303, 307, 308):
        yield f"redirected abroad by {status}", "sales", answer(status, b"", f"Location: {foreign}/")
    yield "redirected to a file", "sales", answer(302, b"", "Location: file:///etc/passwd")
    yield "redirected to itself", "sales", answer(302, b"", "Location: /v1/salesReports")
    yield "sent abroad by headers", "sales", answer(
        503, b"", f"Refresh: 0; url={foreign}/", f"Link: <{foreign}/>; rel=preload", f'Alt-Svc: h2="{foreign[7:]}"')
    for scheme in ("Basic", "Digest", "Negotiate", "Bearer"):
        yield f"asked for {scheme}", "sales", answer(401, b"", f'WWW-Authenticate: {scheme} realm="x", nonce="y"')
    yield "a proxy's question", "sales", answer(407, b"", 'Proxy-Authenticate: Basic realm="x"')
    for status in (201, 202, 204, 205, 206, 300, 304, 305, 418, 500, 599, 999):
        yield f"status {status}", "sales", answer(status, GOOD)
    for words in ("The latest version for this report is 9_9.", "version " + "9" * 5000 + "_1", "Invalid _ version _."):
        yield f"version {words[:30]}", "sales", detail(400, words)
    for status, words in ((404, "Not available yet."), (404, "It is no longer available."), (404, ""), (410, "")):
        yield f"{status} {words}", "sales", detail(status, words)
    yield "nested errors", "sales", answer(400, b'{"errors":' + b"[" * 400000)
    yield "a negative length", "sales", answer(200, GOOD, length=-5)
    yield "a length of letters", "sales", answer(200, GOOD, length="many")
    yield "a huge length", "sales", answer(200, GOOD, length=10**19)
    yield "two lengths", "sales", answer(200, GOOD[:-200], f"Content-Length: {len(GOOD)}")
    yield "cut between chunks", "sales", chunked(chunk(GOOD[:-200]))
    yield "cut in a chunk", "sales", chunked(chunk(GOOD)[:-200])
    yield "a chunk without a size", "sales", chunked(chunk(GOOD[:-200]), b"zz\r\n", GOOD[-200:])
    yield "a huge chunk", "sales", chunked(b"fffffffffffffff\r\n", GOOD)
    yield "endless headers", "sales", endless(b"HTTP/1.1 200 OK\r\n", b"X-More: and more\r\n" * 100, most=1 << 22)
    yield "one endless header", "sales", endless(b"HTTP/1.1 200 OK\r\nX: ", b"x" * 65536, most=1 << 24)
    yield "no end of continuing", "sales", endless(b"", b"HTTP/1.1 100 Continue\r\n\r\n" * 50, most=1 << 20)
    yield "another protocol", "sales", b"HTTP/1.1 101 Switch\r\nUpgrade: h2c\r\n\r\n" + GOOD
    yield "an old protocol", "sales", GOOD
    yield "a damaged stream", "sales", answer(200, GOOD[:30] + bytes(60) + GOOD[90:])
    yield "packed twice", "sales", answer(200, gzip.compress(GOOD))
    yield "an encoding unasked for", "sales", answer(200, gzip.compress(b"<html>"), "Content-Encoding: gzip")
    yield "larger than is read", "sales", answer(200, bytes(65 << 20))
    yield "a bomb of zeros", "sales", bomb("", b"\0", 600)
    yield "a bomb of rows", "sales", bomb(SALES, ("APPLE" + "\t01/02/2026" * 12 + "\n").encode(), 500)
    yield "a bomb of bad UTF-8", "sales", bomb(SALES, b"\xff", 500)
    yield "slow bytes", "sales", endless(b"HTTP/1.1 200 OK\r\nContent-Length: 999\r\n\r\n", b"x", 0.2, 20)


def of_others(foreign):
    for body in (b"<html>", b"[" * 100000, b'{"result":"success","rates":{"EUR":NaN}}', b'{"result":"error"}',
                 b'{"result":"success","rates":{"EUR":1e999,"JPY":-1,"USD":0}}'):
        yield f"rates {body[:40]}", "rates", answer(200, body)
    yield "endless rates", "rates", endless(b"HTTP/1.1 200 OK\r\n\r\n", b" " * 65536)
    yield "rates abroad", "rates", answer(302, b"", f"Location: {foreign}/rates")
    yield "a test sent abroad", "test", answer(307, b"", f"Location: {foreign}/")


def of_tls(folder):
    """By servers that the system doesn't trust, so that nothing may be asked at all."""
    def certificate(name, *options, days=1):
        file, key = (str(folder / f"{name}.{kind}") for kind in ("pem", "key"))
        make = ["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes"]
        subprocess.run([*make, "-out", file, "-keyout", key, *options], check=True, capture_output=True)
        sign = ["openssl", "x509", "-in", file, "-signkey", key, "-days", str(days), "-copy_extensions", "copyall"]
        subprocess.run([*sign, "-out", file], check=True, capture_output=True)
        return file, key

    local = ["-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost"]
    foreign = ["-subj", "/CN=elsewhere", "-addext", "subjectAltName=DNS:elsewhere.example"]
    for name, made, version in (("its own", certificate("own", *local), None),
                                ("expired", certificate("old", *local, days=-1), None),
                                ("a foreign name", certificate("foreign", *foreign), None),
                                ("an old version", certificate("version", *local), ssl.TLSVersion.TLSv1_1)):
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(*made)
        if version:
            warnings.simplefilter("ignore", DeprecationWarning)  # no more than they deserve
            context.minimum_version, context.maximum_version = ssl.TLSVersion.TLSv1, version
            context.set_ciphers("ALL:@SECLEVEL=0")
        yield f"TLS: {name}", "sales", answer(200, GOOD), context
    yield "TLS: none", "sales", answer(200, GOOD), "plain"
    yield "TLS: cut in the handshake", "sales", b"\x16\x03\x03\x00\x7a\x02\x00\x00\x76\x03\x03", "plain"


class Server:
    """Gives one answer to requests of one kind, and good ones to all others. Notes who was sent a token."""

    def __init__(self, kind, content, tls=None):
        self.kind, self.content, self.tls = kind, content, tls
        self.tokens, self.asked = 0, threading.Event()
        self.listener = socket.create_server(("127.0.0.1", 0), backlog=64)
        scheme = "https" if tls else "http"
        self.origin = f"{scheme}://{'localhost' if tls else '127.0.0.1'}:{self.listener.getsockname()[1]}"
        threading.Thread(target=self.accept, daemon=True).start()

    def accept(self):
        while True:
            try:
                connection, _ = self.listener.accept()
            except OSError:
                return
            threading.Thread(target=self.serve, args=(connection,), daemon=True).start()

    def serve(self, connection):
        try:
            if self.tls == "plain":
                self.asked.set()
                connection.sendall(self.content)
                connection.close()
                return
            if self.tls:
                self.asked.set()
                connection = self.tls.wrap_socket(connection, server_side=True)
            request = b""
            while b"\r\n\r\n" not in request and (more := connection.recv(65536)):
                request += more
            self.tokens += b"bearer " in request.lower()
            target = request.split(b" ")[1] if b" " in request else b""
            kinds = {b"/v1/s": ("sales", "test"), b"/v1/f": ("finance",), b"/v6/l": ("rates",)}.get(target[:5], ())
            if self.kind in kinds or not kinds:
                self.asked.set()
                self.send(connection)
            else:
                connection.sendall(answer(200, RATES if "rates" in kinds else finance_body(PERIOD, 0).encode()))
        except OSError:
            pass
        connection.close()

    def send(self, connection):
        if isinstance(self.content, list):
            connection.sendall(self.content[1])
            time.sleep(0.2)
            connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        elif callable(self.content):
            for piece in self.content():
                connection.sendall(piece)
        else:
            connection.sendall(self.content)


def watched(process, asked):
    """Its exit code, the most memory it took, and the longest that its main thread computed without waiting for
    anything since it was answered."""
    task = pathlib.Path(f"/proc/{process.pid}/task/{process.pid}")
    longest, waits, began, deadline = 0.0, None, 0, time.monotonic() + SECONDS
    while True:
        pid, status, usage = os.wait4(process.pid, os.WNOHANG)
        if pid:
            process.returncode = os.waitstatus_to_exitcode(status)
            return process.returncode, usage.ru_maxrss << 10, longest
        if time.monotonic() > deadline:
            process.kill()
            deadline += SECONDS
        try:
            spent = int((task / "schedstat").read_text().split()[0])
            now = (task / "status").read_text().partition("\nvoluntary_ctxt_switches:")[2].split("\n")[0]
        except (OSError, IndexError, ValueError):
            continue
        if now != waits or not asked.is_set():
            waits, began = now, spent
        longest = max(longest, (spent - began) / 1e9)
        time.sleep(0.005)


def rows(folder):
    return {key: report[1:] for key, report in contents(folder).items()}


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--program", type=pathlib.Path, required=True)
    options.add_argument("--shim", type=pathlib.Path, required=True)
    options.add_argument("--short", action="store_true")
    chosen = options.parse_args()
    with tempfile.TemporaryDirectory() as name:
        scratch = pathlib.Path(name)
        program = Program(chosen.program, chosen.shim, scratch)
        stored = scratch / "stored"
        for arguments in (ARGUMENTS["sales"], ARGUMENTS["finance"]):
            program.run(stored, arguments)
        before = rows(stored)
        if len([found for _, found, _ in before.values() if found]) != 2:
            raise SystemExit(f"the undisturbed runs stored {before}")

        def outcome(kind, content, tls):
            server, folder = Server(kind, content, tls), copied(stored, scratch / "disturbed")
            process = program.start(folder, ARGUMENTS[kind], origin=server.origin)
            code, memory, stall = watched(process, server.asked)
            server.listener.close()
            return folder, server, code, memory, stall

        _, _, code, idle, _ = outcome("sales", answer(200, GOOD), None)
        foreign = Server("nothing", answer(200, GOOD))
        scripts = [(*script, None) for kind, header in (("sales", SALES), ("finance", FINANCE))
                   for script in broken(kind, header, foreign.origin)]
        scripts += [(*script, None) for of in (of_sales, of_others) for script in of(foreign.origin)]
        scripts += of_tls(scratch)
        violations = tokens = 0
        most, longest = 0, 0.0
        scripts = scripts[:: 6 if chosen.short else 1]
        for title, kind, content, tls in scripts:
            folder, server, code, memory, stall = outcome(kind, content, tls)
            most, longest, tokens = max(most, memory - idle), max(longest, stall), tokens + server.tokens
            found = []
            if code not in (0, 3):
                found.append(f"exit {code}")
            if rows(folder) != before:
                found.append("rows changed")
            if not program.sanitizer and memory - idle > MOST_MEMORY:
                found.append(f"{(memory - idle) >> 20} MiB")
            if not program.sanitizer and stall > LONGEST_STALL:
                found.append(f"a stall of {stall * 1000:.0f} ms")
            if foreign.tokens or (tls and server.tokens):
                found.append("a token to a stranger")
                foreign.tokens = 0
            violations += bool(found)
            if found:
                print(f"  {title}, {kind}: {', '.join(found)}", flush=True)
        print(f"hostile services: {len(scripts)} answers, {tokens} tokens to the report service alone, at most "
              f"{most >> 20} MiB above a quiet run, {longest * 1000:.0f} ms without a pause: {violations} violations")
    return 1 if violations or not tokens else 0


sys.exit(main())
