#!/usr/bin/env python3
"""Plays the home page's game in Chromium as a player does.

    play.py SITE SHOTS      the folder to serve, and that for screenshots
"""

import os
import sys
import tempfile
import time

from browser import Browser, serve, wait

LARGEST_LOAD = 4_000_000  # bytes on the wire
LINE_BYTES = 20_000_000 / 8  # a second


class Player:
    def __init__(self, browser, server):
        self.browser = browser
        self.server = server
        self.url = f"http://127.0.0.1:{server.server_address[1]}/"

    def open(self):
        self.browser.call("Page.navigate", url=self.url)
        self.await_page("document.readyState === 'complete' && !document.getElementById('start').hidden")

    def await_page(self, condition):
        wait(condition, lambda: self.browser.ask(condition))

    def start(self):
        self.browser.lines.clear()
        self.browser.click_on("#play")
        self.browser.await_line("CSectionMenu::SectionBegin")

    def click(self, x, y):
        left, top, scale = self.browser.ask("(b => [b.x, b.y, b.width / 640])(canvas.getBoundingClientRect())")
        self.browser.click(left + x * scale, top + y * scale)

    def picture(self):
        return self.browser.ask("canvas.toDataURL()")

    def await_play(self):
        before = self.picture()
        wait("the picture changes", lambda: self.picture() != before)

    def await_rest(self):
        def rests():
            before = self.picture()
            return all(time.sleep(0.1) or self.picture() == before for _ in range(5))
        wait("the picture rests", rests)

    def press(self, key, number=None, **about):
        self.browser.key(key, number=number, **about)

    def stored(self):
        return self.browser.ask("localStorage['Tervalis/settings.toml'] || ''")

    def quit(self):
        self.click(437, 397)
        self.await_page("!document.body.className && document.getElementById('play').offsetParent !== null")


def step(text):
    print(time.strftime("%T"), text, flush=True)


def play_a_game(player):
    step("A game by keys, with pauses")
    player.click(202, 176)
    player.browser.await_line("CSectionMain::SectionBegin")
    player.await_play()
    for key, number in (("ArrowDown", 40), ("ArrowRight", 39)):
        player.press(key, number)
    player.press(" ", 32, code="Space", text=" ")
    player.await_rest()
    assert player.browser.ask("scrollY") == 0
    player.press(" ", 32, code="Space", text=" ")
    player.await_play()

    step("A tab in front of it")
    other = player.browser.call("Target.createTarget", url="about:blank")["targetId"]
    wait("the page is hidden", lambda: player.browser.ask("document.hidden"))
    player.await_rest()
    player.browser.call("Target.closeTarget", targetId=other)
    player.browser.call("Page.bringToFront")
    player.await_play()


def leave_game(player):
    step("Out of the game")
    player.browser.lines.clear()
    player.press("Escape", 27)
    player.press("Enter", 13, text="\r")
    player.browser.await_line("CSectionMenu::SectionBegin")


def change_options(player):
    step("Another key")
    player.click(507, 285)
    player.press("i", 73, code="KeyI", text="i")
    player.press("Enter", 13, text="\r")


def cover_screen(player):
    step("Full screen")

    def alt_enter():
        with player.browser.held("Alt", "AltLeft", 18, modifier=1):
            player.press("Enter", 13, modifiers=1)
    alt_enter()
    player.await_page("document.fullscreenElement !== null")
    alt_enter()
    player.await_page("document.fullscreenElement === null")
    player.browser.click_on("#fullscreen")
    player.await_page("document.fullscreenElement !== null")
    alt_enter()
    player.await_page("document.fullscreenElement === null")


def fail_to_start(player):
    step("Damaged and missing files")
    for name, text in (("Image.xpf", "Can not load file"), ("tervalis.wasm", "cannot be started"), ("files.json", "cannot be started")):
        player.server.changed = {name: b"damaged"}
        player.open()
        player.browser.click_on("#play")
        player.await_page(f"document.getElementById('message').textContent.includes('{text}')")
    player.server.changed = {}


def main(site, shots):
    with tempfile.TemporaryDirectory() as folder:
        server = serve(site)
        browser = Browser(folder, "--window-size=1200,900")
        player = Player(browser, server)
        try:
            step("The first load over a line of 20 Mbit/s")
            browser.call("Network.emulateNetworkConditions", offline=False, latency=20, downloadThroughput=LINE_BYTES,
                         uploadThroughput=LINE_BYTES)
            player.open()
            begin = time.monotonic()
            player.start()
            print(f"    the menu after {time.monotonic() - begin:.1f} s, {server.wire_bytes} bytes on the wire")
            assert server.wire_bytes <= LARGEST_LOAD
            browser.shot(os.path.join(shots, "menu.png"))
            play_a_game(player)
            browser.shot(os.path.join(shots, "game.png"))
            leave_game(player)
            change_options(player)
            cover_screen(player)

            step("A reload")
            player.open()
            assert '"Up 1" = 73' in player.stored(), player.stored()
            player.start()
            player.quit()
            assert '"Up 1" = 73' in player.stored(), "what was read is stored again"
            assert browser.errors == [], browser.errors
            fail_to_start(player)
            assert all(url.startswith((player.url, "blob:", "data:")) for url in browser.urls), browser.urls
        except BaseException:
            browser.shot(os.path.join(shots, "failure.png"))
            print("\n".join(browser.lines[-20:] + browser.errors), file=sys.stderr)
            raise
        finally:
            browser.close()
    print("The page does what it should.")


main(*sys.argv[1:])
