"""The built phone in a browser: Chromium opens the printed link and uses the phone by real input.

Usage: browser_test.py SONAVUE [TEST…]
"""

import os
import queue
import re
import subprocess
import sys
import tempfile
import threading
import time
import unittest

from web_driver import Browser

DEADLINE = 60
STEPS = 12
BACKSPACE = "\ue003"
HOME = "\ue011"
PHOTOGRAPHS = os.environ.get("SONAVUE_PHOTOGRAPHS")
sonavue = sys.argv[1]


class Phone:
    def __init__(self):
        self._home = tempfile.TemporaryDirectory()
        environment = {key: value for key, value in os.environ.items()
                       if key not in ("DISPLAY", "WAYLAND_DISPLAY", "SDL_VIDEODRIVER",
                                      "DBUS_SESSION_BUS_ADDRESS")}
        environment |= {"HOME": self._home.name, "SDL_AUDIODRIVER": "dummy"}
        self.environment = environment
        # Neither a display nor a word about a browser.
        self._process = subprocess.Popen([sonavue, "--console"],
                                         stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                         stderr=subprocess.PIPE, text=True, env=environment)
        self._lines = queue.Queue()
        self._answers = queue.Queue()
        for stream, lines in ((self._process.stderr, self._lines),
                              (self._process.stdout, self._answers)):
            threading.Thread(target=self._read, args=(stream, lines), daemon=True).start()
        self.link = self.next_link()

    @staticmethod
    def _read(stream, lines):
        for line in stream:
            lines.put(line.rstrip("\n"))

    def next_line(self, pattern):
        while True:
            if found := re.search(pattern, self._lines.get(timeout=DEADLINE)):
                return found[1]

    def next_link(self):
        return self.next_line(r"^The phone is at (http://127\.0\.0\.1:\d+/#[0-9a-f]{32})$")

    def ask(self, line):
        self._process.stdin.write(line + "\n")
        self._process.stdin.flush()
        return self._answers.get(timeout=DEADLINE)

    def becomes(self, expression, *values):
        """Whether the expression gets one of these values before the deadline."""
        deadline = time.monotonic() + DEADLINE
        while (answer := self.ask(f"print {expression}")) not in values:
            if time.monotonic() > deadline:
                print(f"{expression} is {answer}", file=sys.stderr)
                return False
            time.sleep(0.05)
        return True

    def kill_home_screen(self):
        subprocess.run(["pkill", "-KILL", "-P", str(self._process.pid), "SpringBoard"], check=True)

    def end(self):
        self._process.stdin.close()
        self._process.terminate()
        self._process.wait()
        for stream in (self._process.stdout, self._process.stderr):
            stream.close()
        self._home.cleanup()


class PhoneInBrowser(unittest.TestCase):
    def setUp(self):
        self.phone = Phone()
        self.addCleanup(self.phone.end)

    def open(self, link=None, **kind):
        browser = Browser(**kind)
        self.addCleanup(browser.close)
        browser.open(link or self.phone.link)
        return browser

    def comes_true(self, browser, script):
        deadline = time.monotonic() + DEADLINE
        while not (result := browser.run("return " + script)) and time.monotonic() < deadline:
            time.sleep(0.05)
        self.assertTrue(result, script)

    def wait_for_picture(self, browser):
        self.comes_true(browser, """(() => {
            const screen = document.getElementById("screen");
            const copy = document.createElement("canvas");
            copy.getContext("2d").drawImage(screen, -screen.width / 2, -9);
            const [red, green, blue] = copy.getContext("2d").getImageData(0, 0, 1, 1).data;
            return red + green + blue > 0;
        })()""")

    def photograph(self, browser, name):
        if PHOTOGRAPHS:
            time.sleep(1)
            browser.photograph(os.path.join(PHOTOGRAPHS, f"browser-{name}.png"))

    @staticmethod
    def place(browser, x, y):
        """A point of the phone's screen on the page."""
        left, top, width = browser.run(
            "const at = document.getElementById('screen').getBoundingClientRect();"
            "return [at.left, at.top, at.width]")
        return {"x": round(left + x * width / 375), "y": round(top + y * width / 375)}

    def drag(self, browser, start, end, seconds, pointer="mouse"):
        start, end = self.place(browser, *start), self.place(browser, *end)
        # The driver jumps: it makes one step of each move.
        steps = [{axis: round(start[axis] + (end[axis] - start[axis]) * i / STEPS)
                  for axis in ("x", "y")} for i in range(1, STEPS + 1)]
        moves = [{"type": "pointerMove", "duration": int(seconds * 1000 / STEPS), **step}
                 for step in steps]
        browser.perform({
            "type": "pointer", "id": pointer, "parameters": {"pointerType": pointer},
            "actions": [{"type": "pointerMove", "duration": 0, **start},
                        {"type": "pointerDown", "button": 0}, *moves,
                        {"type": "pointerUp", "button": 0}]})

    def tap(self, browser, *point, pointer="mouse"):
        self.drag(browser, point, point, 0.1, pointer)

    @staticmethod
    def press(browser, *keys):
        actions = [{"type": kind, "value": key} for key in keys for kind in ("keyDown", "keyUp")]
        browser.perform({"type": "key", "id": "keys", "actions": actions})

    def open_panel(self, browser):
        self.drag(browser, (57, 322), (57, 422), 0.6)
        self.assertTrue(self.phone.becomes("isShow", "YES"))

    def open_songs(self, browser):
        """Opens the list of all songs, which is there once something plays."""
        self.open_panel(browser)
        self.press(browser, " ")
        self.comes_true(browser, "document.title.includes(' – ')")
        time.sleep(1.5)
        self.drag(browser, (340, 500), (100, 500), 0.2)
        self.assertTrue(self.phone.becomes("[container contentOffset]", "{375, 0}"))
        time.sleep(1)

    def test_a_drag_of_the_icon_opens_the_player_and_its_song_is_the_pages_title(self):
        browser = self.open()
        self.wait_for_picture(browser)
        self.photograph(browser, "home")
        self.open_panel(browser)
        self.press(browser, " ")
        self.comes_true(browser, "document.title.includes(' – ')")
        self.comes_true(browser,
                        "document.getElementById('song').textContent.startsWith('Playing: ')")
        self.photograph(browser, "panel")
        self.assertEqual(browser.complaints(), [])

    def test_text_is_typed_into_the_field_that_has_the_keyboard(self):
        browser = self.open()
        self.wait_for_picture(browser)
        self.open_songs(browser)
        self.drag(browser, (200, 330), (200, 410), 0.4)
        self.assertTrue(self.phone.becomes("[tableView contentOffset]", "{0, 0}", "{0, -0}"))
        middle = self.phone.ask("print [searchBar convertPoint:{100, 20} toView:nil]")
        self.tap(browser, *map(float, re.findall(r"[\d.]+", middle)))
        self.assertTrue(self.phone.becomes("[searchBar isFirstResponder]", "YES"))
        self.press(browser, "d", "e", "ä", BACKSPACE, "a")
        self.assertTrue(self.phone.becomes("[searchBar text]", '"dea"'))
        self.photograph(browser, "search")

    def test_a_reload_goes_on_and_another_visitor_is_told_so(self):
        browser = self.open()
        self.wait_for_picture(browser)
        self.assertNotIn("#", browser.run("return location.href"))
        browser.reload()
        self.wait_for_picture(browser)
        other = self.open()
        self.comes_true(other, "document.querySelector('#notice:not([hidden])')"
                               "?.textContent.includes('open on another page')")
        self.photograph(other, "refused")
        self.comes_true(browser, "document.getElementById('notice').hidden")

    def test_the_page_comes_back_after_a_restart_of_the_home_screen(self):
        browser = self.open()
        self.wait_for_picture(browser)
        self.phone.kill_home_screen()
        self.comes_true(browser, "!document.getElementById('notice').hidden")
        self.comes_true(browser, "document.getElementById('notice').hidden")
        self.open_panel(browser)

    def test_a_page_that_is_closed_leaves_a_new_link(self):
        browser = self.open()
        self.wait_for_picture(browser)
        browser.open("about:blank")
        self.wait_for_picture(self.open(self.phone.next_link()))

    def test_a_second_start_has_the_first_print_its_link_again(self):
        browser = self.open()
        self.wait_for_picture(browser)
        second = subprocess.run([sonavue], env=self.phone.environment, capture_output=True,
                                text=True, timeout=DEADLINE)
        self.assertEqual(second.returncode, 0)
        self.assertIn("which prints a new link", second.stderr)
        other = self.open(self.phone.next_link())
        self.wait_for_picture(other)
        self.comes_true(browser, "document.getElementById('notice')"
                                 ".textContent.includes('in another tab')")

    def test_a_finger_the_wheel_and_the_home_key_use_the_phone(self):
        browser = self.open()
        self.wait_for_picture(browser)
        self.tap(browser, 320, 322, pointer="touch")
        settings = "[[[UIApplication sharedApplication] delegate] class]"
        deadline = time.monotonic() + DEADLINE
        while self.phone.ask("process Preferences") != "ok" and time.monotonic() < deadline:
            time.sleep(0.05)
        self.assertNotIn("error", self.phone.ask(f"print {settings}"))
        self.assertEqual(self.phone.ask("process SpringBoard"), "ok")
        self.photograph(browser, "settings")
        self.press(browser, HOME)
        time.sleep(1.5)
        self.open_songs(browser)
        browser.perform({"type": "wheel", "id": "wheel", "actions": [
            {"type": "scroll", "duration": 0, "deltaX": 0, "deltaY": 300,
             **self.place(browser, 200, 330)}]})
        time.sleep(1.5)
        self.assertNotIn(self.phone.ask("print [tableView contentOffset]"), ("{0, 31}", "{0, 0}"))
        self.press(browser, HOME)
        self.assertTrue(self.phone.becomes("isShow", "NO"))

    def test_a_display_of_a_phones_size_shows_the_screen_alone(self):
        browser = self.open(phone=(390, 780))
        self.wait_for_picture(browser)
        self.assertTrue(browser.run("return document.documentElement.classList.contains('bare')"))
        self.photograph(browser, "phone-sized")
        self.drag(browser, (57, 322), (57, 422), 0.6, "touch")
        self.assertTrue(self.phone.becomes("isShow", "YES"))
        self.photograph(browser, "phone-sized-panel")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])
