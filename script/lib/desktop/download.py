"""A download: a file from a server on this machine, with its origin recorded."""

import contextlib
import http.server
import os
import pathlib
import plistlib
import shutil
import subprocess
import sys
import threading

from desktop.waiting import Failure

ORIGIN = "user.xdg.origin.url"
MAC_ORIGIN = "com.apple.metadata:kMDItemWhereFroms"


class _Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        if self.path != self.server.path:
            self.send_error(404)
            return
        self.send_response(200)
        self.send_header("Content-Length", str(self.server.file.stat().st_size))
        self.end_headers()
        with self.server.file.open("rb") as file:
            shutil.copyfileobj(file, self.wfile)

    def log_message(self, *_):
        pass


@contextlib.contextmanager
def served(file, folder="vorx"):
    """Serves one file, under a folder, during the block. Yields its address."""
    file = pathlib.Path(file)
    with http.server.ThreadingHTTPServer(("127.0.0.1", 0), _Handler) as server:
        server.file = file
        server.path = f"/{folder}/{file.name}"
        thread = threading.Thread(target=server.serve_forever, kwargs={"poll_interval": 0.05})
        thread.start()
        try:
            yield f"http://127.0.0.1:{server.server_port}{server.path}"
        finally:
            server.shutdown()
            thread.join()


def _record_as_browsers_do(file, address):
    """Records the origin as browsers do on a Mac, since curl records none there."""
    record = plistlib.dumps([address], fmt=plistlib.FMT_BINARY).hex()
    subprocess.run(["xattr", "-wx", MAC_ORIGIN, record, str(file)], check=True)


def _check_record(file):
    try:
        os.getxattr(file, ORIGIN)
    except OSError as error:
        raise Failure(f"{file.parent} keeps no record of a download's origin "
                      f"({error.strerror})") from error


def download(address, folder):
    """Downloads a file into a folder and records its address with it. Returns the file."""
    file = pathlib.Path(folder) / address.rsplit("/", 1)[1]
    done = subprocess.run(["curl", "--xattr", "--fail", "--silent", "--show-error", "--noproxy", "*",
                           "--output", str(file), address], stdin=subprocess.DEVNULL,
                          stderr=subprocess.PIPE, text=True)
    if done.returncode != 0:
        raise Failure(f"the download failed: {done.stderr.strip()}")
    if sys.platform == "darwin":
        _record_as_browsers_do(file, address)
    else:
        _check_record(file)
    return file
