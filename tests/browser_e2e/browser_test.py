"""The built phone in a browser, which opens the printed link and uses the phone by real input.

Usage: browser_test.py SONAVUE [InChromium|InFirefox][.TEST]…
"""

import os
import queue
import re
import shutil
import subprocess
import sys
import tempfile
import threading
import time
import unittest

from web_driver import Chromium, Firefox

DEADLINE = 60
STEPS = 12
BACKSPACE = "\ue003"
HOME = KEY_HOME = "\ue011"
END, LEFT, UP, RIGHT, DOWN, ESCAPE, F9 = "\ue010", "\ue012", "\ue013", "\ue014", "\ue015", "\ue00c", "\ue039"
PHOTOGRAPHS = os.environ.get("SONAVUE_PHOTOGRAPHS")
sonavue = sys.argv[1]


class Phone:
    def __init__(self, home):
        environment = {key: value for key, value in os.environ.items()
                       if key not in ("DISPLAY", "WAYLAND_DISPLAY", "SDL_VIDEODRIVER",
                                      "DBUS_SESSION_BUS_ADDRESS")}
        environment |= {"HOME": home, "SDL_AUDIODRIVER": "dummy"}
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

    def changes(self, expression, *values):
        """Whether the expression gets another value than these before the deadline."""
        deadline = time.monotonic() + DEADLINE
        while self.ask(f"print {expression}") in values and time.monotonic() < deadline:
            time.sleep(0.05)
        return time.monotonic() < deadline

    def kill_home_screen(self):
        subprocess.run(["pkill", "-KILL", "-P", str(self._process.pid), "SpringBoard"], check=True)

    def end(self):
        self._process.stdin.close()
        self._process.terminate()
        self._process.wait()
        for stream in (self._process.stdout, self._process.stderr):
            stream.close()


class FirstHome:
    """A home whose phone has made its music. Each test gets it back at the same place, where the
    phone knows the files again and starts at once."""

    def __init__(self):
        self._folder = tempfile.TemporaryDirectory()
        self.name = os.path.join(self._folder.name, "home")
        self._kept = os.path.join(self._folder.name, "kept")
        os.mkdir(self.name)
        phone = Phone(self.name)
        phone.ask("print isShow")
        phone.end()
        os.rename(self.name, self._kept)

    def restore(self):
        shutil.copytree(self._kept, self.name, symlinks=True)

    def remove(self):
        shutil.rmtree(self.name)

    def cleanup(self):
        self._folder.cleanup()


def setUpModule():
    PhoneInBrowser.home = FirstHome()
    unittest.addModuleCleanup(PhoneInBrowser.home.cleanup)


class PhoneInBrowser:
    """The tests, whichever the browser."""

    def setUp(self):
        self.home.restore()
        self.addCleanup(self.home.remove)
        self.phone = Phone(self.home.name)
        self.addCleanup(self.phone.end)

    def open(self, link=None, **kind):
        browser = self.browser(**kind)
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
            kind = self.browser.__name__.lower()
            browser.photograph(os.path.join(PHOTOGRAPHS, f"{kind}-{name}.png"))

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

    def middle(self, view):
        """Where a finger touches the view."""
        return map(float, re.findall(r"[\d.]+", self.phone.ask(f"where {view}")))

    def tap(self, browser, *point, pointer="mouse"):
        self.drag(browser, point, point, 0.1, pointer)

    @staticmethod
    def press(browser, *keys):
        actions = [{"type": kind, "value": key} for key in keys for kind in ("keyDown", "keyUp")]
        browser.perform({"type": "key", "id": "keys", "actions": actions})

    def open_panel(self, browser):
        self.drag(browser, (57, 322), (57, 422), 0.6)
        self.assertTrue(self.phone.becomes("isShow", "YES"))

    @staticmethod
    def click(browser, selector):
        x, y = browser.run("""
            const found = document.querySelector(arguments[0]);
            found.scrollIntoView({block: "center"});
            const at = found.getBoundingClientRect();
            return [at.left + Math.min(at.width / 2, 20), at.top + at.height / 2]""", selector)
        browser.perform({
            "type": "pointer", "id": "mouse", "parameters": {"pointerType": "mouse"},
            "actions": [{"type": "pointerMove", "duration": 0, "x": round(x), "y": round(y)},
                        {"type": "pointerDown", "button": 0}, {"type": "pointerUp", "button": 0}]})

    def open_views(self, browser, text=""):
        """Opens the list, which soon has a row with this text."""
        self.click(browser, "#views-button")
        self.comes_true(browser, f"document.getElementById('views-tree').textContent.includes('{text}')")
        self.comes_true(browser, "document.querySelectorAll('#views-tree [role=treeitem]').length > 100")

    def selected(self, browser):
        """What the selected row says: its class, and its text if it has one."""
        self.comes_true(browser, "!!document.querySelector('[aria-selected=true]')")
        return browser.run("""
            const row = document.querySelector("[aria-selected=true]");
            return [".class", ".says"].map((part) => row.querySelector(part)?.textContent ?? "")""")

    def check_outline(self, browser, view):
        """Checks that the page draws the outline where the phone has the view."""
        told = self.phone.ask(f"print [{view} convertRect:[{view} bounds] toView:nil]")
        drawn = browser.run("""
            const screen = document.getElementById("screen").getBoundingClientRect();
            const at = document.querySelector(".outline:not(.pointed)").getBoundingClientRect();
            return [at.left - screen.left, at.top - screen.top, at.width, at.height]
              .map((value) => value * 375 / screen.width)""")
        for number, found in zip(re.findall(r"-?[\d.]+", told), drawn, strict=True):
            self.assertAlmostEqual(float(number), found, delta=1, msg=told)

    @staticmethod
    def record(browser):
        """Has the page keep what it tells the phone: the kind of each message, and two fields of a
        finger's."""
        browser.run("""
            window.told = [];
            const send = WebSocket.prototype.send;
            WebSocket.prototype.send = function (bytes) {
              const view = new DataView(bytes);
              const kind = view.getUint16(0, true);
              window.told.push(kind === 2 ? [kind, view.getInt32(2, true), view.getUint8(6)] : [kind]);
              send.call(this, bytes);
            };""")

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
        self.assertTrue(self.phone.changes("[tableView contentOffset]", "{0, 31}", "{0, 0}"))
        self.press(browser, HOME)
        self.assertTrue(self.phone.becomes("isShow", "NO"))

    def play(self, browser):
        """Opens the panel and plays a song; returns its title, which the panel shows."""
        self.wait_for_picture(browser)
        self.open_panel(browser)
        self.press(browser, " ")
        self.comes_true(browser, "document.title.includes(' – ')")
        song = browser.run("return document.title.split(' – ')[0]")
        self.assertTrue(self.phone.becomes("[title text]", f'"{song}"'))
        return song

    def test_the_views_are_listed_beside_the_phone_and_a_selected_one_is_outlined(self):
        browser = self.open(width=1280)
        song = self.play(browser)
        self.open_views(browser, f"“{song}”")
        self.comes_true(browser, "document.getElementById('views-count').textContent.endsWith(' views')")
        row = browser.run("""
            const says = [...document.querySelectorAll(".says")];
            return says.find((one) => one.textContent === arguments[0]).parentElement.dataset.key""",
                          f"“{song}”")
        self.click(browser, f"[data-key='{row}'] .class")
        self.assertEqual(self.selected(browser), ["UILabel", f"“{song}”"])
        self.check_outline(browser, "title")
        self.comes_true(browser, "!!document.querySelector('#views-details .description')")
        details = browser.run("return document.getElementById('views-details').innerText")
        for words in ("UILabel : UIView : UIResponder : NSObject", "Alpha\n1", "(id) text"):
            self.assertIn(words, details)
        self.photograph(browser, "views")
        # A text of the phone is no part of the page.
        parent = "[title superview]"
        self.phone.ask(f"print [{parent} addSubview:[[UILabel alloc] init]]")
        self.phone.ask(f'print [[[{parent} subviews] lastObject] setText:@"<b id=bad>Dear</b>"]')
        self.click(browser, "#views-refresh")
        self.comes_true(browser, "document.getElementById('views-tree').textContent"
                                 ".includes('“<b id=bad>Dear</b>”')")
        self.assertIsNone(browser.run("return document.getElementById('bad')"))
        self.assertEqual(browser.complaints(), [])

    def test_a_view_is_picked_on_the_phone_which_does_not_notice(self):
        browser = self.open(width=1280, dark=False)
        song = self.play(browser)
        self.open_views(browser, f"“{song}”")
        self.click(browser, "#views-pick")
        self.tap(browser, *self.middle("title"))
        self.assertEqual(self.selected(browser), ["UILabel", f"“{song}”"])
        self.check_outline(browser, "title")
        # The view in front of it once more, and the one behind.
        for _ in range(2):
            self.tap(browser, *self.middle("play"))
            chosen = self.selected(browser)
        self.comes_true(browser, "!!document.querySelector('#views-details .description')")
        self.assertNotEqual(chosen[0], "UILabel")
        self.check_outline(browser, "play")
        self.photograph(browser, "views-picked-light")
        self.assertTrue(browser.run(
            "return document.getElementById('song').textContent.startsWith('Playing: ')"))
        self.click(browser, "#views-pick")
        self.tap(browser, *self.middle("play"))
        self.comes_true(browser, "document.getElementById('song').textContent.startsWith('Paused: ')")

    def test_the_list_of_views_is_walked_by_keyboard_and_closes_with_escape(self):
        browser = self.open(width=1280)
        self.wait_for_picture(browser)
        self.open_panel(browser)
        self.press(browser, F9)
        self.comes_true(browser, "document.activeElement.getAttribute('role') === 'treeitem'")

        def focused():
            return browser.run("""
                return ["level", "expanded", "selected"]
                  .map((name) => document.activeElement.getAttribute("aria-" + name))""")

        self.press(browser, END, KEY_HOME)
        self.assertEqual(focused(), ["1", "true", "true"])
        self.press(browser, DOWN)
        self.assertEqual(focused()[0], "2")
        self.press(browser, LEFT)
        self.assertEqual(focused(), ["1", "true", "true"])
        self.press(browser, LEFT)
        self.assertEqual(focused(), ["1", "false", "true"])
        self.assertFalse(browser.run("return document.querySelector('[aria-level=\"2\"]').checkVisibility()"))
        self.press(browser, DOWN)
        self.assertEqual(focused(), ["1", "true", "true"])
        self.press(browser, UP, RIGHT, RIGHT)
        self.assertEqual(focused()[0], "2")
        self.press(browser, ESCAPE)
        self.assertTrue(browser.run("return document.getElementById('views').hidden"))
        self.assertEqual(browser.run("return document.activeElement.id"), "keyboard")
        self.assertEqual(self.phone.ask("print isShow"), "YES")
        self.press(browser, ESCAPE)
        self.assertTrue(self.phone.becomes("isShow", "NO"))

    def test_the_views_are_asked_for_only_while_they_are_shown(self):
        browser = self.open(width=1280)
        self.wait_for_picture(browser)
        self.record(browser)
        pictures, asked = ("window.told.filter((one) => one[0] === %d).length" % kind for kind in (10, 11))
        self.open_panel(browser)
        self.comes_true(browser, f"{pictures} > 3")
        self.assertEqual(browser.run(f"return {asked}"), 0)
        self.open_views(browser)
        self.assertEqual(browser.run(f"return {asked}"), 1)
        self.press(browser, ESCAPE)
        self.click(browser, "#views-button")
        self.comes_true(browser, f"{asked} >= 2")
        before = browser.run(f"return {asked}")
        self.assertEqual(self.phone.ask("button home"), "ok")
        self.comes_true(browser, f"{asked} > {before}")

    def test_a_display_of_a_phones_size_shows_the_screen_alone(self):
        browser = self.open(phone=(390, 780))
        self.wait_for_picture(browser)
        self.assertTrue(browser.run("return document.documentElement.classList.contains('bare')"))
        self.photograph(browser, "phone-sized")
        self.drag(browser, (57, 322), (57, 422), 0.6, "touch")
        self.assertTrue(self.phone.becomes("isShow", "YES"))
        self.photograph(browser, "phone-sized-panel")
        self.open_views(browser, "UILabel")
        self.comes_true(browser, "document.getElementById('screen').getBoundingClientRect().bottom"
                                 " <= document.getElementById('views').getBoundingClientRect().top")
        self.click(browser, "#views-pick")
        self.tap(browser, *self.middle("play"), pointer="touch")
        self.check_outline(browser, "play")
        self.photograph(browser, "phone-sized-views")
        self.click(browser, "#views-close")
        self.comes_true(browser, "document.getElementById('views').hidden")

    def test_two_fingers_touch_the_phone_at_once(self):
        browser = self.open(phone=(390, 780))
        self.wait_for_picture(browser)
        self.record(browser)

        def finger(name, x, y):
            start, end = self.place(browser, x, y), self.place(browser, x, y - 60)
            return {"type": "pointer", "id": name, "parameters": {"pointerType": "touch"},
                    "actions": [{"type": "pointerMove", "duration": 0, **start},
                                {"type": "pointerDown", "button": 0},
                                {"type": "pointerMove", "duration": 100, **end},
                                {"type": "pointerUp", "button": 0}]}

        browser.perform(finger("one", 100, 500), finger("two", 250, 500))
        # The kind of the message, the finger, and whether it is down, moved or up.
        touches = "window.told.filter(([kind]) => kind === 2)"
        self.comes_true(browser, f"{touches}.filter((one) => one[2] === 2).length === 2")
        told = browser.run(f"return {touches}.map((one) => [one[1], one[2]])")
        downs = [finger for finger, phase in told if phase == 0]
        self.assertEqual(sorted(downs), [1, 2])
        self.assertLess(told.index([downs[1], 0]), told.index([downs[0], 2]))


class InChromium(PhoneInBrowser, unittest.TestCase):
    browser = Chromium


class InFirefox(PhoneInBrowser, unittest.TestCase):
    browser = Firefox


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])
