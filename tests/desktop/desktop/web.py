# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""A web of its own: an authority for certificates, servers, and a proxy that leads to them."""

import contextlib
import http.server
import os
import pathlib
import select
import shutil
import socket
import socketserver
import ssl
import subprocess
import tempfile
import threading

# What would lead programs past the servers here.
VARIABLES = ("https_proxy", "http_proxy", "all_proxy", "no_proxy")
FOREIGN = {*VARIABLES, *map(str.upper, VARIABLES), "SSL_CERT_FILE", "SSL_CERT_DIR"}

ELLIPTIC = ("-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes")


def without_web(environment):
    """The environment without anything that tells programs how to get to the web."""
    return {name: value for name, value in environment.items() if name not in FOREIGN}


class Authority:
    """Whoever trusts its certificate trusts those that it issues."""

    def __init__(self, test, name="Authority"):
        self.directory = pathlib.Path(tempfile.mkdtemp(prefix="authority-"))
        test.addCleanup(shutil.rmtree, self.directory)
        self.certificate = self.directory / "authority.pem"
        self._key = self.directory / "authority.key"
        self._openssl(
            *("req", "-x509", *ELLIPTIC, "-days", "2", "-subj", f"/CN={name}", "-out", self.certificate),
            *("-keyout", self._key, "-addext", "keyUsage=critical,keyCertSign,cRLSign"),
        )
        self._issued = 0

    def issue(self, host, days=2):
        """The files of a certificate for that host and of its key. Negative days are over."""
        self._issued += 1
        stem = self.directory / str(self._issued)
        certificate, key, request, extensions = (stem.with_suffix(end) for end in (".pem", ".key", ".csr", ".ext"))
        extensions.write_text(f"subjectAltName=DNS:{host}\nextendedKeyUsage=serverAuth\n", encoding="ascii")
        self._openssl("req", "-new", *ELLIPTIC, "-subj", f"/CN={host}", "-keyout", key, "-out", request)
        self._openssl(
            *("x509", "-req", "-in", request, "-CA", self.certificate, "-CAkey", self._key, "-CAcreateserial"),
            *("-days", str(days), "-extfile", extensions, "-out", certificate),
        )
        return certificate, key

    def hashed_directory(self):
        """A directory with its certificate under the name by which certificates are looked up."""
        place = self.directory / "hashed"
        place.mkdir()
        shutil.copy(self.certificate, place)
        self._openssl("rehash", place)
        return place

    @staticmethod
    def _openssl(*arguments):
        subprocess.run(["openssl", *map(str, arguments)], check=True, capture_output=True)


class _Server:
    """Serves in the background until the test is over; what goes wrong with a client is the client's business."""

    daemon_threads = True
    block_on_close = False
    request_queue_size = 50

    def serve(self, test):
        thread = threading.Thread(target=self.serve_forever, kwargs={"poll_interval": 0.05})
        thread.start()
        test.addCleanup(self._end, thread)

    @property
    def port(self):
        return self.server_address[1]

    def handle_error(self, request, client_address):
        pass

    def _end(self, thread):
        self.shutdown()
        thread.join()
        self.server_close()


class _Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_GET(self):
        self.server.requests.append((self.path, dict(self.headers)))
        self.close_connection = True
        self.server.answer(self)

    def log_message(self, *_):
        pass


class Server(_Server, http.server.ThreadingHTTPServer):
    """A web server; with a certificate and its key one over TLS.

    `answer` is called with the handler of each request. `requests` are the paths and headers, `connections` the number
    of those who came.
    """

    def __init__(self, test, answer, certificate=None):
        super().__init__(("127.0.0.1", 0), _Handler)
        self.answer = answer
        self.requests = []
        self.connections = 0
        self._tls = None
        if certificate:
            self._tls = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            self._tls.load_cert_chain(*certificate)
        self.serve(test)

    def get_request(self):
        connection, address = super().get_request()
        self.connections += 1
        if self._tls:
            # Who does not speak TLS, or does not trust us, must not hold up the others.
            connection = self._tls.wrap_socket(connection, server_side=True, do_handshake_on_connect=False)
        return connection, address

    @property
    def paths(self):
        return [path for path, _ in self.requests]


class RawServer(_Server, socketserver.ThreadingTCPServer):
    """Hands each connection to a function."""

    def __init__(self, test, talk):
        self._talk = talk
        self.connections = 0
        super().__init__(("127.0.0.1", 0), None)
        self.serve(test)

    def finish_request(self, request, client_address):
        self.connections += 1
        self._talk(request)


class Proxy(RawServer):
    """Leads tunnels for one host and port to a server here, and refuses all others; `asked` is what was asked for."""

    def __init__(self, test, target, server):
        self.asked = []
        self._target = target
        self._server = server
        super().__init__(test, self._lead)

    @property
    def address(self):
        return f"http://127.0.0.1:{self.port}"

    def _lead(self, client):
        head = b""
        while b"\r\n\r\n" not in head:
            received = client.recv(4096)
            if not received:
                return
            head += received
        method, target = head.split()[:2]
        self.asked.append(f"{method.decode()} {target.decode()}")
        if self.asked[-1] != f"CONNECT {self._target}":
            client.sendall(b"HTTP/1.1 403 Forbidden\r\nContent-Length: 0\r\n\r\n")
            return
        with socket.create_connection(("127.0.0.1", self._server.port)) as server:
            client.sendall(b"HTTP/1.1 200 Connection established\r\n\r\n")
            _tunnel(client, server)


def _tunnel(client, server):
    other = {client: server, server: client}
    while True:
        for ready in select.select(list(other), [], [])[0]:
            received = ready.recv(65536)
            if not received:
                return
            other[ready].sendall(received)


def document(body, status=200, **headers):
    """An answer with a body, whole and of the right length."""
    body = body.encode() if isinstance(body, str) else body

    def answer(handler):
        handler.send_response(status)
        for name, value in {"Content_Length": len(body), **headers}.items():
            handler.send_header(name.replace("_", "-"), str(value))
        handler.end_headers()
        handler.wfile.write(body)

    return answer


def redirect(address, status=302):
    """An answer that sends the client elsewhere."""
    return document(b"", status, Location=address)


def fetching(pid):
    """The children of a program, which it has while it asks the web."""
    children = []
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        with contextlib.suppress(FileNotFoundError, ProcessLookupError):
            # The name, which may hold anything, stands in brackets before the state and the parent.
            if int(stat.read_text(encoding="utf-8", errors="replace").rpartition(")")[2].split()[1]) == pid:
                children.append(int(stat.parent.name))
    return children


def fetcher(binary):
    """The helper of a built program."""
    return os.path.join(os.path.dirname(binary), "lib", "keyvora", "keyvora-update-fetch")
