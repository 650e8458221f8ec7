#!/usr/bin/env python3
# Plays the home page's game in Chromium as a player does.
#     play.py SITE BUILD      the folder to serve, and that of the build: tests/unit_tests.js, desktop/*.png (what
#                             tools/tour makes of game.txt) and the place for screenshots

import base64
import functools
import gzip
import http.server
import io
import json
import os
import sys
import threading
import time

import numpy
from PIL import Image
from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.wait import WebDriverWait

PATIENCE = 120  # seconds until what must happen has not happened, on a machine that is busy with other things
LARGEST_LOAD = 4_000_000  # bytes on the wire
LINE_BYTES = 20_000_000 // 8  # a second
HERE = os.path.dirname(__file__)
PLACE = "/any/path/"  # of the page on its server
DAMAGED = {"Image.xpf": "Can not load file", "tervalis.wasm": "cannot be started", "files.json": "cannot be started"}
LACKING = {
    "HTMLCanvasElement.prototype.getContext = () => null": "no canvas",
    "WebAssembly.validate = () => false": "lacks WebAssembly with SIMD",
}


# Compresses as real servers do.
class Handler(http.server.SimpleHTTPRequestHandler):
    wire_bytes = 0
    damaged = None  # the name of a file
    missing = None  # of another

    def do_GET(self):
        path = self.translate_path(self.path.removeprefix(PLACE))
        path = os.path.join(path, "index.html") if os.path.isdir(path) else path
        name = os.path.basename(path)
        if not os.path.isfile(path) or name == Handler.missing:
            return self.send_error(404)
        with open(path, "rb") as file:
            body = gzip.compress(b"damaged" if name == Handler.damaged else file.read(), 6)
        Handler.wire_bytes += len(body)
        self.send_response(200)
        self.send_header("Content-Type", self.guess_type(path))
        self.send_header("Content-Encoding", "gzip")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


def serve(folder):
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(Handler, directory=folder))
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return f"http://127.0.0.1:{server.server_address[1]}{PLACE}"


def start_browser():
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    options.add_argument("--no-sandbox")
    options.add_argument("--window-size=1200,900")
    options.ignore_local_proxy_environment_variables()
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


class Player:
    def __init__(self, browser, url, build):
        self.browser = browser
        self.url = url
        self.build = build
        self.script = read_script()
        self.console = []

    def open(self):
        self.browser.get(self.url)
        self.await_page("!document.getElementById('start').hidden")

    def start(self):
        self.click_on("play")
        self.await_line("CSectionMenu::SectionBegin")

    def ask(self, expression):
        return self.browser.execute_script(f"return {expression}")

    def wait(self, what, look):
        WebDriverWait(self.browser, PATIENCE, poll_frequency=0.05).until(lambda _: look(), what)

    def await_page(self, condition):
        self.wait(condition, lambda: self.ask(condition))

    def await_message(self, text):
        self.await_page(f"document.getElementById('message').textContent.includes('{text}')")

    # On the console, after the line that was awaited before.
    def await_line(self, line):
        def is_new():
            entries = self.browser.get_log("browser")
            self.console += entries
            return any(line in entry["message"] for entry in entries)
        self.wait(line, is_new)

    def picture(self):
        return self.ask("canvas.toDataURL()")

    def await_play(self):
        before = self.picture()
        self.wait("the picture changes", lambda: self.picture() != before)

    def await_rest(self):
        def rests():
            before = self.picture()
            return all(time.sleep(0.1) or self.picture() == before for _ in range(5))
        self.wait("the picture rests", rests)

    def press(self, *keys):
        ActionChains(self.browser).send_keys(*keys).perform()

    def press_alt_enter(self):
        ActionChains(self.browser).key_down(Keys.ALT).send_keys(Keys.ENTER).key_up(Keys.ALT).perform()

    def click(self, x, y):
        canvas = self.browser.find_element("id", "canvas")
        scale = canvas.rect["width"] / 640
        ActionChains(self.browser).move_to_element_with_offset(canvas, (x - 320) * scale, (y - 240) * scale).click().perform()

    def click_on(self, name):
        self.browser.find_element("id", name).click()


def play_with_pauses(player):
    player.click(202, 176)
    player.await_line("CSectionMain::SectionBegin")
    player.await_play()
    player.press(Keys.DOWN, Keys.RIGHT, Keys.SPACE)
    player.await_rest()
    assert player.ask("scrollY") == 0
    player.press(Keys.SPACE)
    player.await_play()

    # A tab in front of it.
    other = player.browser.execute_cdp_cmd("Target.createTarget", {"url": "about:blank"})
    player.await_page("document.hidden")
    player.await_rest()
    player.browser.execute_cdp_cmd("Target.closeTarget", other)
    player.browser.execute_cdp_cmd("Page.bringToFront", {})
    player.await_play()


def read_script():
    with open(os.path.join(HERE, "game.txt")) as file:
        rows = [line.split() for line in file if not line.startswith("#")]
    return [[int(frame), *rest] for frame, *rest in rows]


# Of each pixel, or of one in STEP by STEP, in the game's 5, 6 and 5 bits.
def colours(picture, step=1):
    return numpy.asarray(Image.open(picture).convert("RGB"))[::step, ::step] >> (3, 2, 3)


def load_over_slow_line(player):
    with open(os.path.join(HERE, "frame_probe.js")) as file:
        probe = f"{{const script = {json.dumps(player.script)};\n{file.read()}}}"
    added = player.browser.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": probe})
    player.browser.set_network_conditions(latency=20, download_throughput=LINE_BYTES, upload_throughput=LINE_BYTES)
    player.open()
    player.browser.execute_cdp_cmd("Page.removeScriptToEvaluateOnNewDocument", added)
    begin = time.monotonic()
    player.start()
    print(f"    the menu after {time.monotonic() - begin:.1f} s, {Handler.wire_bytes} bytes on the wire")
    assert Handler.wire_bytes <= LARGEST_LOAD


# From its first frame to its place in the ranking, equal in every pixel.
def compare_game_with_desktop(player):
    names = [row[2] for row in player.script if row[1] == "shot"]
    player.await_page(f"Object.keys(shots).length === {len(names)}")
    factor = player.ask("canvas.width") // 640
    for name in names:
        shot = base64.b64decode(player.ask(f"shots['{name}']").split(",")[1])
        expected = colours(os.path.join(player.build, "desktop", name + ".png"))
        assert (colours(io.BytesIO(shot), factor) == expected).all(), name
    player.await_line("CSectionMain::SectionEnd")
    player.press("Ann", Keys.ENTER, Keys.ENTER)
    player.await_rest()


def leave_game_for_options(player):
    player.press(Keys.ESCAPE, Keys.ENTER)
    player.await_line("CSectionMenu::SectionBegin")
    player.click(507, 285)
    player.press("i", Keys.ENTER)


def cover_screen(player):
    for enter in (player.press_alt_enter, lambda: player.click_on("fullscreen")):
        enter()
        player.await_page("document.fullscreenElement !== null")
        player.press_alt_enter()
        player.await_page("document.fullscreenElement === null")


def reload(player):
    is_kept = """['"Up 1" = 73', '"Name 1" = "Ann"'].every((line) => localStorage['Tervalis/settings.toml'].includes(line))"""
    player.open()
    assert player.ask(is_kept)
    player.start()
    player.click(437, 397)
    player.await_page("!document.body.className && document.getElementById('play').offsetParent !== null")
    assert player.ask(is_kept), "what was read is stored again"


def fail_to_start(player):
    for name, text in DAMAGED.items():
        for Handler.damaged, Handler.missing in ((name, None), (None, name)):
            player.open()
            player.click_on("play")
            player.await_message(text)
    for lack, text in LACKING.items():
        player.browser.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": lack})
        player.open()
        player.await_message(text)


def check_console(player):
    player.console += player.browser.get_log("browser")
    faults = [entry for entry in player.console if entry["level"] == "SEVERE"
              or entry["level"] == "WARNING" and entry["source"] == "console-api"]
    assert faults == [], faults


def check_requests(player):
    events = [json.loads(entry["message"])["message"] for entry in player.browser.get_log("performance")]
    urls = [event["params"]["request"]["url"] for event in events if event["method"] == "Network.requestWillBeSent"]
    assert player.url + "game/tervalis.wasm" in urls
    assert all(url.startswith((player.url, "blob:", "data:")) for url in urls), urls


def replay_recordings(player):
    player.browser.set_script_timeout(5 * PATIENCE)
    player.browser.get(serve(os.path.join(player.build, "tests")) + "unit_tests.js")
    code, lines = player.browser.execute_async_script("""
        const lines = [];
        const say = (line) => lines.push(line);
        const script = document.createElement('script');
        script.src = 'unit_tests.js';
        script.onload = () => UnitTests({ page: { showFrame() {}, enterFullScreen() {}, leaveFullScreen() {}, stepBack() {} },
            print: say, printErr() {}, onExit: (code) => arguments[0]([code, lines]), onAbort: say });
        document.head.append(script);""")
    assert code == 0 and any(line.startswith("[  PASSED  ]") for line in lines), "\n".join(lines)


def main(site, build):
    player = Player(start_browser(), serve(site), build)
    try:
        for act in (load_over_slow_line, compare_game_with_desktop, play_with_pauses, leave_game_for_options, cover_screen,
                    reload, check_console, fail_to_start, check_requests, replay_recordings):
            print(time.strftime("%T"), act.__name__.replace("_", " "), flush=True)
            act(player)
            player.browser.save_screenshot(os.path.join(build, act.__name__ + ".png"))
    except BaseException:
        player.browser.save_screenshot(os.path.join(build, "failure.png"))
        print("\n".join(entry["message"] for entry in player.console[-20:]), file=sys.stderr)
        raise
    finally:
        player.browser.quit()
    print("The page does what it should.")


main(*sys.argv[1:])
