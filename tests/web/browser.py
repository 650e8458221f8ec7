"""Chromium in a window, driven by its DevTools protocol, and a web server for it that compresses as real ones do."""

import base64
import contextlib
import functools
import gzip
import http.server
import itertools
import json
import os
import subprocess
import threading
import time
import urllib.request

import websocket

PATIENCE = 120  # seconds until what must happen has not happened, on a machine that is busy with other things


def wait(what, look):
    """What `look` gives, as soon as it is true."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if found := look():
            return found
        time.sleep(0.05)
    raise AssertionError(f"not within {PATIENCE} seconds: {what}")


class Handler(http.server.SimpleHTTPRequestHandler):
    def do_GET(self):
        path = self.translate_path(self.path.split("?")[0])
        path = os.path.join(path, "index.html") if os.path.isdir(path) else path
        if not os.path.isfile(path):
            return self.send_error(404)
        with open(path, "rb") as file:
            body = self.server.changed.get(os.path.basename(path), file.read())
        body = gzip.compress(body, 6)
        self.server.wire_bytes += len(body)
        self.send_response(200)
        self.send_header("Content-Type", self.guess_type(path))
        self.send_header("Content-Encoding", "gzip")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


def serve(folder):
    """Serves the folder under a path of its own. `changed` has other contents for files, by name."""
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(Handler, directory=folder))
    server.changed = {}
    server.wire_bytes = 0
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return server


class Browser:
    def __init__(self, profile, *options):
        command = ["chromium", "--no-sandbox", f"--user-data-dir={profile}", "--remote-debugging-port=0",
                   "--remote-allow-origins=*", "--no-first-run", "--disable-background-networking", *options, "about:blank"]
        self.process = subprocess.Popen(command, stderr=subprocess.DEVNULL)
        port_file = os.path.join(profile, "DevToolsActivePort")
        wait("Chromium", lambda: os.path.exists(port_file) and open(port_file).read().count("\n"))
        port = open(port_file).read().split()[0]
        pages = lambda: [t for t in json.load(urllib.request.urlopen(f"http://127.0.0.1:{port}/json")) if t["type"] == "page"]
        self.socket = websocket.create_connection(wait("a page", pages)[0]["webSocketDebuggerUrl"], timeout=PATIENCE)
        self.numbers = itertools.count(1)
        self.lines = []  # of the console
        self.errors = []
        self.urls = []
        for domain in ("Runtime", "Log", "Page", "Network"):
            self.call(f"{domain}.enable")

    def call(self, method, **params):
        number = next(self.numbers)
        self.socket.send(json.dumps({"id": number, "method": method, "params": params}))
        while (message := json.loads(self.socket.recv())).get("id") != number:
            self.hear(message.get("method"), message.get("params"))
        assert "error" not in message, message
        return message["result"]

    def hear(self, event, about):
        if event == "Runtime.consoleAPICalled":
            line = " ".join(str(part.get("value", part.get("description"))) for part in about["args"])
            (self.errors if about["type"] in ("error", "warning", "assert") else self.lines).append(line)
        elif event == "Runtime.exceptionThrown":
            self.errors.append(json.dumps(about["exceptionDetails"]))
        elif event == "Log.entryAdded" and about["entry"]["level"] == "error":
            self.errors.append(about["entry"]["text"])
        elif event == "Network.requestWillBeSent":
            self.urls.append(about["request"]["url"])

    def ask(self, expression):
        result = self.call("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True, userGesture=True)
        assert "exceptionDetails" not in result, result
        return result["result"].get("value")

    def await_line(self, line, count=1):
        wait(f"{line} {count} times", lambda: self.ask("1") and self.lines.count(line) >= count)

    def key(self, key, code=None, number=None, text="", modifiers=0):
        number = number or (ord(key.upper()) if len(key) == 1 else 0)
        about = {"key": key, "code": code or key, "windowsVirtualKeyCode": number, "modifiers": modifiers}
        self.call("Input.dispatchKeyEvent", type="keyDown" if text else "rawKeyDown", text=text, **about)
        self.call("Input.dispatchKeyEvent", type="keyUp", **about)

    @contextlib.contextmanager
    def held(self, key, code, number, modifier):
        about = {"key": key, "code": code, "windowsVirtualKeyCode": number}
        self.call("Input.dispatchKeyEvent", type="rawKeyDown", modifiers=modifier, **about)
        yield
        self.call("Input.dispatchKeyEvent", type="keyUp", **about)

    def click(self, x, y):
        for kind in ("mouseMoved", "mousePressed", "mouseReleased"):
            self.call("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left" if kind != "mouseMoved" else "none",
                      clickCount=int(kind != "mouseMoved"))

    def click_on(self, selector):
        box = self.ask(f"(b => [b.x + b.width / 2, b.y + b.height / 2])(document.querySelector('{selector}')"
                       ".getBoundingClientRect())")
        self.click(*box)

    def shot(self, path):
        with open(path, "wb") as file:
            file.write(base64.b64decode(self.call("Page.captureScreenshot")["data"]))

    def close(self):
        self.process.terminate()
        self.process.wait()
