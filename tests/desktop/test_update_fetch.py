# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The helper that fetches a document takes it from whom it can trust, and no more than it should."""

import os
import socket
import subprocess
import threading
import unittest
import zlib
from collections import namedtuple

from desktop import web
from desktop.testcase import DesktopTestCase

MAXIMUM_BYTES = 64 * 1024
DOCUMENT = '{"version": "2.0", "url": "https://example.org/žluť"}\n'

# What says nothing about who asks.
ORDINARY_HEADERS = {
    "accept-encoding",
    "accept-language",
    "connection",
    "host",
    "user-agent",
}

# What it may take at any time.
MAXIMUM_KILOBYTES = 384 * 1024

# Longer than the helper gives itself.
PATIENCE_SECONDS = 180

Fetched = namedtuple("Fetched", "exit_code output complaints peak_kilobytes")


class FetchTestCase(DesktopTestCase):
    def setUp(self):
        super().setUp()
        binary = os.environ["KEYVORA_BINARY"]
        self.fetcher = web.fetcher(binary)
        self.authority = web.Authority(self)
        self.trust = {"SSL_CERT_FILE": str(self.authority.certificate)}

    def serve(self, answer, **certificate):
        return web.Server(self, answer, self.authority.issue(certificate.pop("host", "localhost"), **certificate))

    def begin(self, *arguments, **environment):
        self.outputs = [open(self.directory / name, "w+b") for name in ("output", "complaints")]
        return subprocess.Popen(
            [self.fetcher, *arguments],
            stdin=subprocess.DEVNULL,
            stdout=self.outputs[0],
            stderr=self.outputs[1],
            env={**web.without_web(os.environ), **self.trust, **environment},
        )

    def end(self, process):
        """Waits for the helper's own end."""
        guard = threading.Timer(PATIENCE_SECONDS, process.kill)
        guard.start()
        _, status, usage = os.wait4(process.pid, 0)
        guard.cancel()
        process.returncode = os.waitstatus_to_exitcode(status)
        texts = []
        for output in self.outputs:
            with output:
                output.seek(0)
                texts.append(output.read())
        return Fetched(process.returncode, *texts, usage.ru_maxrss)

    def fetch(self, *arguments, **environment):
        return self.end(self.begin(*arguments, **environment))

    def assert_fetched(self, expected, address, **environment):
        fetched = self.fetch(address, **environment)
        expected = expected.encode() if isinstance(expected, str) else expected
        self.assertEqual((0, expected, b""), fetched[:3])
        return fetched

    def assert_refused(self, *arguments, **environment):
        fetched = self.fetch(*arguments, **environment)
        self.assertEqual((1, b"", b""), fetched[:3])
        return fetched


def at(server, path="/document"):
    return f"https://localhost:{server.port}{path}"


class AnswerTest(FetchTestCase):
    def test_takes_what_is_there(self):
        server = self.serve(web.document(DOCUMENT))
        self.assert_fetched(DOCUMENT, at(server, "/a?b=c"))
        self.assertEqual(["/a?b=c"], server.paths)

    def test_takes_nothing_but_200(self):
        server = self.serve(None)
        for status in (201, 203, 206, 304, 400, 401, 403, 404, 410, 500, 503):
            with self.subTest(status):
                # Some answers have no body, whatever is said.
                server.answer = web.document("" if status == 304 else DOCUMENT, status)
                self.assert_refused(at(server))

    def test_asks_once(self):
        server = self.serve(web.document(DOCUMENT, 503, Retry_After="0"))
        self.assert_refused(at(server))
        self.assertEqual(1, len(server.requests))

    def test_tells_no_more_than_it_must(self):
        server = self.serve(web.document("", 302, Location="/next", Set_Cookie="a=b; Path=/"))
        self.assert_refused(at(server, "/first"), LANG="cs_CZ.UTF-8", LANGUAGE="cs")
        self.assertGreater(len(server.requests), 1)
        for _, headers in server.requests:
            names = {name.lower() for name in headers}
            self.assertLessEqual(names, ORDINARY_HEADERS)
            self.assertEqual("Keyvora", headers["User-Agent"])
            self.assertEqual("*", headers["Accept-Language"])

    def test_has_no_password_for_anybody(self):
        server = self.serve(web.document(DOCUMENT, 401, WWW_Authenticate='Basic realm="a"'))
        self.assert_refused(at(server))
        self.assertEqual(1, len(server.requests))

    def test_takes_an_answer_that_takes_its_time(self):
        begun, go_on = threading.Event(), threading.Event()

        def answer(handler):
            body = DOCUMENT.encode()
            handler.send_response(200)
            handler.send_header("Content-Length", str(len(body)))
            handler.end_headers()
            handler.wfile.write(body[:9])
            begun.set()
            go_on.wait(PATIENCE_SECONDS)
            handler.wfile.write(body[9:])

        self.addCleanup(go_on.set)
        server = self.serve(answer)
        process = self.begin(at(server))
        self.assertTrue(begun.wait(PATIENCE_SECONDS))
        self.watch(lambda: process.poll() is not None, "the helper gives up")
        go_on.set()
        self.assertEqual((0, DOCUMENT.encode(), b""), self.end(process)[:3])

    def test_gives_up_on_an_answer_that_does_not_come(self):
        over = threading.Event()
        self.addCleanup(over.set)
        server = self.serve(lambda _: over.wait(2 * PATIENCE_SECONDS))
        self.assert_refused(at(server))


class SizeTest(FetchTestCase):
    def test_takes_no_more_than_a_document_may_have(self):
        server = self.serve(web.document("x" * MAXIMUM_BYTES))
        self.assert_fetched("x" * MAXIMUM_BYTES, at(server))
        server.answer = web.document("x" * (MAXIMUM_BYTES + 1))
        self.assert_refused(at(server))

    def test_ends_with_an_endless_body(self):
        def answer(handler):
            handler.send_response(200)
            handler.send_header("Connection", "close")
            handler.end_headers()
            while True:
                handler.wfile.write(b"x" * 4096)

        self.assert_refused(at(self.serve(answer)))

    def test_ends_with_endless_headers(self):
        def answer(handler):
            handler.send_response(200)
            while True:
                handler.send_header("Endless", "x" * 4096)
                handler.flush_headers()

        fetched = self.assert_refused(at(self.serve(answer)))
        self.assertLess(fetched.peak_kilobytes, MAXIMUM_KILOBYTES)

    def test_takes_no_part_for_the_whole(self):
        for claimed in (len(DOCUMENT) + 100, 1 << 40):
            with self.subTest(claimed):
                server = self.serve(web.document(DOCUMENT, Content_Length=claimed))
                self.assert_refused(at(server))

    def test_takes_what_is_compressed(self):
        server = self.serve(web.document(gzipped([DOCUMENT.encode()]), Content_Encoding="gzip"))
        self.assert_fetched(DOCUMENT, at(server))

    def test_what_is_small_and_compressed_may_not_be_large(self):
        mebibyte = bytes(1 << 20)
        for mebibytes in (1, 512):
            with self.subTest(mebibytes):
                bomb = gzipped(mebibyte for _ in range(mebibytes))
                server = self.serve(web.document(bomb, Content_Encoding="gzip"))
                fetched = self.assert_refused(at(server))
                self.assertLess(fetched.peak_kilobytes, MAXIMUM_KILOBYTES)


class RedirectTest(FetchTestCase):
    def test_follows_to_another_server(self):
        target = self.serve(web.document(DOCUMENT))
        for status in (301, 302, 303, 307, 308):
            with self.subTest(status):
                self.assert_fetched(DOCUMENT, at(self.serve(web.redirect(at(target), status))))

    def test_follows_nowhere_without_encryption(self):
        target = web.Server(self, web.document(DOCUMENT))
        self.assert_refused(at(self.serve(web.redirect(f"http://localhost:{target.port}/document"))))
        self.assertEqual(0, target.connections)

    def test_follows_to_nothing_but_the_web(self):
        secret = self.directory / "secret"
        secret.write_text(DOCUMENT, encoding="utf-8")
        for address in (secret.as_uri(), "data:text/plain,document", "ftp://localhost/", "qrc:/a", "://"):
            with self.subTest(address):
                self.assert_refused(at(self.serve(web.redirect(address))))

    def test_does_not_run_in_circles(self):
        server = self.serve(web.redirect("/document"))
        self.assert_refused(at(server))
        self.assertLessEqual(len(server.requests), 10)


class TrustTest(FetchTestCase):
    def test_refuses_a_certificate_of_an_unknown_authority(self):
        server = self.serve(web.document(DOCUMENT))
        other = web.Authority(self, "Other")
        self.assert_refused(at(server), SSL_CERT_FILE=str(other.certificate))
        self.assertEqual([], server.requests)

    def test_refuses_a_certificate_of_another_host(self):
        server = self.serve(web.document(DOCUMENT), host="localhost.example")
        self.assert_refused(at(server))
        self.assertEqual([], server.requests)

    def test_refuses_a_certificate_that_has_expired(self):
        server = self.serve(web.document(DOCUMENT), days=-1)
        self.assert_refused(at(server))
        self.assertEqual([], server.requests)

    def test_trusts_no_unknown_authority_where_nothing_is_said(self):
        self.trust = {}
        self.assert_refused(at(self.serve(web.document(DOCUMENT))))

    def test_takes_authorities_from_a_directory(self):
        server = self.serve(web.document(DOCUMENT))
        directory = self.authority.hashed_directory()
        empty = self.directory / "empty"
        empty.mkdir()
        self.trust = {}
        self.assert_fetched(DOCUMENT, at(server), SSL_CERT_DIR=str(directory))
        self.assert_fetched(DOCUMENT, at(server), SSL_CERT_DIR=f"{empty}:{directory}")
        self.assert_refused(at(server), SSL_CERT_DIR=str(empty))

    def test_trusts_nobody_where_no_authority_can_be_read(self):
        server = self.serve(web.document(DOCUMENT))
        self.assert_refused(at(server), SSL_CERT_FILE=str(self.directory / "missing.pem"))


class ConnectionTest(FetchTestCase):
    def test_refuses_whatever_is_no_address(self):
        server = web.Server(self, web.document(DOCUMENT))
        for arguments in (
            (),
            ("",),
            (f"http://localhost:{server.port}/document",),
            ("file:///etc/hostname",),
            ("https://",),
            ("https:///document",),
            ("https://localhost:document",),
            ("--help",),
            ("https://localhost/", "https://localhost/"),
        ):
            with self.subTest(arguments):
                self.assert_refused(*arguments)
        self.assertEqual(0, server.connections)

    def test_nobody_is_there(self):
        server = web.RawServer(self, lambda _: None)
        self.assert_refused(f"https://localhost:{server.port}/")
        # A port that was free a moment ago.
        with socket.socket() as place:
            place.bind(("localhost", 0))
            port = place.getsockname()[1]
        self.assert_refused(f"https://localhost:{port}/")
        self.assert_refused("https://keyvora.invalid/")

    def test_somebody_else_is_there(self):
        for talk in (
            lambda client: client.sendall(b"\0\xff" * 500_000),
            lambda client: client.sendall(b"HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}"),
            lambda client: client.sendall(b"\x16\x03\x03\xff\xff" + b"\0" * 70_000),
        ):
            server = web.RawServer(self, talk)
            self.assert_refused(f"https://localhost:{server.port}/")
            self.assertGreater(server.connections, 0)

    def test_goes_through_the_proxy(self):
        server = self.serve(web.document(DOCUMENT), host="keyvora.example")
        proxy = web.Proxy(self, "keyvora.example:443", server)
        self.assert_fetched(DOCUMENT, "https://keyvora.example/document", https_proxy=proxy.address)
        self.assertEqual(["CONNECT keyvora.example:443"], proxy.asked)
        self.assert_refused("https://other.example/document", https_proxy=proxy.address)
        self.assertIn("CONNECT other.example:443", proxy.asked)

    def test_goes_past_the_proxy_where_that_is_said(self):
        server = self.serve(web.document(DOCUMENT), host="keyvora.example")
        proxy = web.Proxy(self, "keyvora.example:443", server)
        self.assert_refused("https://keyvora.example/document", https_proxy=proxy.address, no_proxy="keyvora.example")
        self.assertEqual(0, proxy.connections)


def gzipped(pieces):
    compressor = zlib.compressobj(9, zlib.DEFLATED, 31)
    return b"".join([compressor.compress(piece) for piece in pieces] + [compressor.flush()])


if __name__ == "__main__":
    unittest.main()
