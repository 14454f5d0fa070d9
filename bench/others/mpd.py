"""MPD on a socket and in a folder of its own, without sound."""

import os
import shutil
import signal
import socket
import subprocess
import tempfile
import time

CONFIGURATION = """
music_directory "{place}/music"
db_file "{place}/database"
log_file "{place}/log"
bind_to_address "{place}/socket"
max_output_buffer_size "131072"
follow_outside_symlinks "yes"
audio_output {{
  type "null"
  name "none"
}}
"""
PATIENCE = 30


class Mpd:
    """A context: the process ends with it."""

    def __enter__(self):
        self.place = tempfile.mkdtemp(prefix="peer-mpd-")
        os.mkdir(self.place + "/music")
        with open(self.place + "/configuration", "w", encoding="utf-8") as file:
            file.write(CONFIGURATION.format(place=self.place))
        with open(self.place + "/output", "w", encoding="utf-8") as output:
            self.process = subprocess.Popen(
                ["mpd", "--no-daemon", self.place + "/configuration"], stdout=output, stderr=output)
        self.connection = self._connected()
        self.connection.recv(100)
        return self

    def __exit__(self, *_):
        self.connection.close()
        self.process.send_signal(signal.SIGTERM)
        self.process.wait()
        shutil.rmtree(self.place)

    def _connected(self):
        end = time.monotonic() + PATIENCE
        while True:
            connection = socket.socket(socket.AF_UNIX)
            try:
                connection.connect(self.place + "/socket")
                return connection
            except OSError:
                connection.close()
                if self.process.poll() is not None or time.monotonic() > end:
                    raise
                time.sleep(0.02)

    def ask(self, command):
        """The lines of the answer."""
        self.connection.sendall(command.encode() + b"\n")
        parts = []
        last = b""
        while not last.endswith(b"OK\n"):
            parts.append(self.connection.recv(1 << 20))
            if not parts[-1] or parts[-1].startswith(b"ACK"):
                raise RuntimeError(f"MPD answers {command!r} with {parts[-1]!r}")
            last = last[-2:] + parts[-1]
        return b"".join(parts).decode().splitlines()[:-1]

    def scan(self, folder):
        """Adds the folder to the music: the songs, seconds, and seconds of processor time."""
        os.symlink(folder, self.place + "/music/songs")
        start, core = time.monotonic(), self._core_seconds()
        self.ask("update")
        while any(line.startswith("updating_db") for line in self.ask("status")):
            self.ask("idle update")
        seconds, core = time.monotonic() - start, self._core_seconds() - core
        songs = [line for line in self.ask("stats") if line.startswith("songs: ")]
        return int(songs[0].split()[1]), seconds, core

    def search(self, text):
        """The hits, and seconds of processor time."""
        before = self._precise_core_seconds()
        lines = self.ask(f'search title "{text}"')
        seconds = self._precise_core_seconds() - before
        return sum(line.startswith("file: ") for line in lines), seconds

    def most_megabytes(self):
        with open(f"/proc/{self.process.pid}/status", encoding="utf-8") as file:
            peak = [line for line in file if line.startswith("VmHWM")]
        return int(peak[0].split()[1]) / 1024

    def _core_seconds(self):
        """Includes threads that have ended, in hundredths."""
        with open(f"/proc/{self.process.pid}/stat", encoding="utf-8") as file:
            fields = file.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def _precise_core_seconds(self):
        """Of the threads that there are."""
        total = 0
        for task in os.listdir(f"/proc/{self.process.pid}/task"):
            with open(f"/proc/{self.process.pid}/task/{task}/schedstat", encoding="utf-8") as file:
                total += int(file.read().split()[0])
        return total * 1e-9
