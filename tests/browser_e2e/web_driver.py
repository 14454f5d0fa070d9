"""Browsers that a test drives as a person would: Chromium over WebDriver, Firefox over Marionette."""

import base64
import json
import os
import re
import socket
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

PATIENCE = 60


class Browser:
    """What both do, by commands with the names of WebDriver."""

    def __init__(self):
        self._profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)

    def _do(self, command, **parameters):
        raise NotImplementedError

    def open(self, address):
        self._do("Navigate", url=address)

    def reload(self):
        self._do("Refresh")

    def run(self, script, *arguments):
        return self._do("ExecuteScript", script=script, args=arguments, sandbox=None)

    def perform(self, *sources):
        self._do("PerformActions", actions=sources)

    def photograph(self, file):
        with open(file, "wb") as out:
            out.write(base64.b64decode(self._do("TakeScreenshot", full=False)))


class Chromium(Browser):
    ARGUMENTS = ["--headless=new", "--no-sandbox", "--disable-gpu", "--no-first-run",
                 "--disable-background-networking", "--disable-component-update", "--disable-sync",
                 "--disable-quic"]
    PATHS = {"Navigate": "/url", "Refresh": "/refresh", "ExecuteScript": "/execute/sync",
             "PerformActions": "/actions", "TakeScreenshot": "/screenshot"}

    def __init__(self, width=900, height=900, phone=None, dark=True):
        """`phone` is the width and height in points of a display that is touched."""
        super().__init__()
        self._driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, text=True)
        for line in self._driver.stdout:
            if started := re.search(r"started successfully on port (\d+)", line):
                self._address = f"http://127.0.0.1:{started[1]}"
                break
        options = {"args": self.ARGUMENTS + [f"--window-size={width},{height}",
                                             f"--user-data-dir={self._profile.name}"]}
        if phone:
            options["mobileEmulation"] = {"deviceMetrics": {
                "width": phone[0], "height": phone[1], "pixelRatio": 2, "touch": True}}
        capabilities = {"goog:chromeOptions": options, "goog:loggingPrefs": {"browser": "ALL"}}
        made = self._call("POST", "/session", {"capabilities": {"alwaysMatch": capabilities}})
        self._session = f"/session/{made['sessionId']}"
        self._call("POST", self._session + "/goog/cdp/execute", {
            "cmd": "Emulation.setEmulatedMedia", "params": {"features": [
                {"name": "prefers-color-scheme", "value": "dark" if dark else "light"}]}})

    def _call(self, method, path, body=None):
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(self._address + path, method=method, data=data)
        try:
            with urllib.request.urlopen(request, timeout=PATIENCE) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            raise AssertionError(error.read().decode()) from error

    def _do(self, command, **parameters):
        path = self._session + self.PATHS[command]
        if command == "TakeScreenshot":
            return self._call("GET", path)
        return self._call("POST", path, parameters)

    def complaints(self):
        """What the browser has to say against the page."""
        log = self._call("POST", self._session + "/se/log", {"type": "browser"})
        return [entry["message"] for entry in log]

    def close(self):
        try:
            self._call("DELETE", self._session)
        finally:
            self._driver.terminate()
            self._driver.wait()
            self._driver.stdout.close()
            self._profile.cleanup()


class Firefox(Browser):
    PREFERENCES = {
        "marionette.port": 0,
        "remote.prefs.recommended": True,
        "browser.shell.checkDefaultBrowser": False,
        "datareporting.policy.dataSubmissionEnabled": False,
    }
    COMPLAINTS = """
        return Services.console.getMessageArray()
          .filter((one) => one instanceof Ci.nsIScriptError && one.sourceName.startsWith("http://127.0.0.1"))
          .map((one) => one.errorMessage)"""

    def __init__(self, width=900, height=900, phone=None, dark=True):
        """`phone` is the width and height in points of a display that is touched."""
        super().__init__()
        scheme = {"layout.css.prefers-color-scheme.content-override": 0 if dark else 1}
        preferences = self.PREFERENCES | scheme
        if phone:
            preferences |= {"ui.primaryPointerCapabilities": 1, "ui.allPointerCapabilities": 1,
                            "dom.w3c_touch_events.enabled": 1, "layout.css.devPixelsPerPx": "2.0"}
        with open(os.path.join(self._profile.name, "user.js"), "w") as out:
            for name, value in preferences.items():
                out.write(f"user_pref({json.dumps(name)}, {json.dumps(value)});\n")
        self._process = subprocess.Popen(
            ["firefox-esr", "--headless", "--no-remote", "--marionette", "--remote-allow-system-access",
             "--profile", self._profile.name],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            env=os.environ | {"MOZ_HEADLESS_WIDTH": str(width), "MOZ_HEADLESS_HEIGHT": str(height)})
        self._connection = socket.create_connection(("127.0.0.1", self._port()), timeout=PATIENCE)
        self._stream = self._connection.makefile("rb")
        self._receive()
        self._number = 0
        self._do("NewSession")
        self._do("SetWindowRect", width=width, height=height)
        if phone:
            # No window is as narrow as a phone.
            self._in_window("gBrowser.selectedBrowser.style.cssText = arguments[0]",
                            f"flex: none; width: {phone[0]}px; height: {phone[1]}px")

    def _port(self):
        """Where it listens: it writes that down once it does."""
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline and self._process.poll() is None:
            try:
                with open(os.path.join(self._profile.name, "MarionetteActivePort")) as port:
                    return int(port.read())
            except (FileNotFoundError, ValueError):
                time.sleep(0.05)
        raise AssertionError("Firefox has not started")

    def _receive(self):
        size = b""
        while (byte := self._stream.read(1)) != b":":
            size += byte
        return json.loads(self._stream.read(int(size)))

    def _do(self, command, service="WebDriver", **parameters):
        self._number += 1
        message = json.dumps([0, self._number, f"{service}:{command}", parameters]).encode()
        self._connection.sendall(b"%d:%s" % (len(message), message))
        _, number, error, result = self._receive()
        assert number == self._number and not error, error
        return result["value"] if result and "value" in result else result

    def _in_window(self, script, *arguments):
        """Runs a script of the browser's window instead of the page."""
        self._do("SetContext", service="Marionette", value="chrome")
        try:
            return self.run(script, *arguments)
        finally:
            self._do("SetContext", service="Marionette", value="content")

    def complaints(self):
        """What the browser has to say against the page."""
        return self._in_window(self.COMPLAINTS)

    def close(self):
        try:
            self._do("Quit", service="Marionette", flags=["eForceQuit"])
        finally:
            self._stream.close()
            self._connection.close()
            self._process.terminate()
            self._process.wait()
            self._profile.cleanup()
