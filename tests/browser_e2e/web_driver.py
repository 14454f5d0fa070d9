"""A browser that a test drives as a person would, over WebDriver."""

import base64
import json
import re
import subprocess
import tempfile
import urllib.error
import urllib.request

ARGUMENTS = ["--headless=new", "--no-sandbox", "--disable-gpu", "--no-first-run",
             "--disable-background-networking", "--disable-component-update", "--disable-sync",
             "--disable-quic"]
PATIENCE = 60


class Browser:
    def __init__(self, width=900, height=900, phone=None):
        """`phone` is the width and height in points of a display that is touched."""
        self._profile = tempfile.TemporaryDirectory()
        self._driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, text=True)
        for line in self._driver.stdout:
            if started := re.search(r"started successfully on port (\d+)", line):
                self._address = f"http://127.0.0.1:{started[1]}"
                break
        options = {"args": ARGUMENTS + [f"--window-size={width},{height}",
                                        f"--user-data-dir={self._profile.name}"]}
        if phone:
            options["mobileEmulation"] = {"deviceMetrics": {
                "width": phone[0], "height": phone[1], "pixelRatio": 2, "touch": True}}
        capabilities = {"goog:chromeOptions": options, "goog:loggingPrefs": {"browser": "ALL"}}
        made = self._call("POST", "/session", {"capabilities": {"alwaysMatch": capabilities}})
        self._session = f"/session/{made['sessionId']}"

    def _call(self, method, path, body=None):
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(self._address + path, method=method, data=data)
        try:
            with urllib.request.urlopen(request, timeout=PATIENCE) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            raise AssertionError(error.read().decode()) from error

    def open(self, address):
        self._call("POST", self._session + "/url", {"url": address})

    def reload(self):
        self._call("POST", self._session + "/refresh", {})

    def run(self, script, *arguments):
        return self._call("POST", self._session + "/execute/sync",
                          {"script": script, "args": arguments})

    def perform(self, *sources):
        self._call("POST", self._session + "/actions", {"actions": sources})

    def complaints(self):
        """What the browser has to say against the page."""
        log = self._call("POST", self._session + "/se/log", {"type": "browser"})
        return [entry["message"] for entry in log]

    def photograph(self, file):
        with open(file, "wb") as out:
            out.write(base64.b64decode(self._call("GET", self._session + "/screenshot")))

    def close(self):
        try:
            self._call("DELETE", self._session)
        finally:
            self._driver.terminate()
            self._driver.wait()
            self._driver.stdout.close()
            self._profile.cleanup()
