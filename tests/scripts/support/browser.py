"""Chromium without a window, driven through its debugging protocol on two pipes."""
import base64
import fcntl
import itertools
import json
import os
import shutil
import subprocess
import tempfile


class Browser:
    """One browser with one page. Use it in a with statement."""

    name = "chromium"

    @classmethod
    def is_installed(cls):
        return shutil.which(cls.name) is not None

    def __enter__(self):
        self._numbers = itertools.count(1)
        self._buffer = b""
        self._events = []
        self._folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        commands_out, self._commands = os.pipe()
        self._answers, answers_in = os.pipe()
        # The browser reads from 3 and writes to 4; out of their way first.
        commands_out = fcntl.fcntl(commands_out, fcntl.F_DUPFD, 10)
        answers_in = fcntl.fcntl(answers_in, fcntl.F_DUPFD, 10)

        def put_pipes():
            os.dup2(commands_out, 3)
            os.dup2(answers_in, 4)

        self._process = subprocess.Popen(
            [self.name, "--headless=new", "--no-sandbox", "--disable-gpu", "--remote-debugging-pipe",
             "--user-data-dir=" + self._folder.name, "about:blank"],
            preexec_fn=put_pipes, pass_fds=(3, 4), stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(commands_out)
        os.close(answers_in)
        self._session = None
        target = self.call("Target.createTarget", url="about:blank")["targetId"]
        self._session = self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        self.call("Page.enable")
        return self

    def __exit__(self, *_):
        self._process.terminate()
        self._process.wait()
        os.close(self._commands)
        os.close(self._answers)
        self._folder.cleanup()

    def call(self, method, **parameters):
        """The result of a command of the protocol."""
        number = next(self._numbers)
        message = {"id": number, "method": method, "params": parameters}
        if self._session:
            message["sessionId"] = self._session
        data = json.dumps(message).encode() + b"\0"
        while data:
            data = data[os.write(self._commands, data):]
        while True:
            answer = self._read()
            if answer.get("id") == number:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']}")
                return answer["result"]
            self._take(answer)

    def open(self, address):
        """Opens a page and waits until it and its pictures are loaded."""
        self._events.clear()
        self.call("Page.navigate", url=address)
        while not self.events("Page.loadEventFired"):
            self._take(self._read())

    def events(self, method):
        """What the browser has told of that kind since the page was opened."""
        return [event["params"] for event in self._events if event["method"] == method]

    def set_window(self, width, height):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)

    def set_look(self, media="screen", colours="light"):
        """Shows pages as on a "screen" or in "print", and as users of "light" or "dark" colours get them."""
        self.call("Emulation.setEmulatedMedia", media=media,
                  features=[{"name": "prefers-color-scheme", "value": colours}])

    def screenshot(self, path):
        """Writes what the window shows to a file, as a PNG."""
        with open(path, "wb") as file:
            file.write(base64.b64decode(self.call("Page.captureScreenshot", format="png")["data"]))

    def evaluate(self, script):
        """The value of a script in the page, as JSON can carry it."""
        result = self.call("Runtime.evaluate", expression=script, awaitPromise=True, returnByValue=True)
        if "exceptionDetails" in result:
            raise RuntimeError(result["exceptionDetails"])
        return result["result"].get("value")

    def _take(self, event):
        # A page that asks its user something would wait for ever.
        if event.get("method") == "Page.javascriptDialogOpening":
            self.call("Page.handleJavaScriptDialog", accept=False)
        if "method" in event:
            self._events.append(event)

    def _read(self):
        while b"\0" not in self._buffer:
            piece = os.read(self._answers, 1 << 16)
            if not piece:
                raise RuntimeError("the browser has ended")
            self._buffer += piece
        message, self._buffer = self._buffer.split(b"\0", 1)
        return json.loads(message)
