# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""A page in a real browser without a window: Chromium, spoken to through pipes in its DevTools protocol."""

import base64
import json
import os
import shutil
import subprocess
import tempfile
import time

START_LIMIT = 60  # seconds
CALL_LIMIT = 60


class Browser:
    """with Browser() as browser: browser.open(path, 800); browser.evaluate("document.title")"""

    def __enter__(self):
        self.profile = tempfile.mkdtemp(prefix="brenica-browser-")
        toBrowser, self.requests = os.pipe()
        self.answers, fromBrowser = os.pipe()
        command = ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                   "--no-first-run", "--disable-extensions", "--disable-background-networking",
                   "--remote-debugging-pipe", f"--user-data-dir={self.profile}", "about:blank"]
        # The browser reads what it is asked on descriptor 3 and answers on 4.
        script = f'exec "$@" 3<&{toBrowser} 4>&{fromBrowser}'
        self.process = subprocess.Popen(["bash", "-c", script, "browser", *command], close_fds=True,
                                        pass_fds=(toBrowser, fromBrowser), stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(toBrowser)
        os.close(fromBrowser)
        os.set_blocking(self.answers, False)
        self.buffer = b""
        self.number = 0
        self.session = None
        self.events = []
        targets = self.call("Target.getTargets", limit=START_LIMIT)["targetInfos"]
        page = next(target for target in targets if target["type"] == "page")
        attached = self.call("Target.attachToTarget", targetId=page["targetId"], flatten=True)
        self.session = attached["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(f"{domain}.enable")
        return self

    def __exit__(self, *failure):
        self.process.kill()
        self.process.wait()
        os.close(self.requests)
        os.close(self.answers)
        shutil.rmtree(self.profile, ignore_errors=True)

    def call(self, method, limit=CALL_LIMIT, **parameters):
        self.number += 1
        message = {"id": self.number, "method": method, "params": parameters}
        if self.session:
            message["sessionId"] = self.session
        os.write(self.requests, json.dumps(message).encode() + b"\0")
        answer = self.next(lambda found: found.get("id") == self.number, limit)
        if "error" in answer:
            raise RuntimeError(f"{method}: {answer['error']}")
        return answer["result"]

    def next(self, wanted, limit=CALL_LIMIT):
        """The first message from now on that is wanted; events on the way are kept."""
        end = time.monotonic() + limit
        while time.monotonic() < end:
            message = self.read()
            if message is None:
                if self.process.poll() is not None:
                    raise RuntimeError("the browser has ended")
                time.sleep(0.01)
                continue
            if "method" in message:
                self.events.append(message)
            if wanted(message):
                return message
        raise TimeoutError("the browser does not answer")

    def read(self):
        while b"\0" not in self.buffer:
            try:
                piece = os.read(self.answers, 1 << 16)
            except BlockingIOError:
                return None
            if not piece:
                return None
            self.buffer += piece
        message, self.buffer = self.buffer.split(b"\0", 1)
        return json.loads(message)

    def open(self, path, width, dark=False, media=""):
        """Shows a file in a view of this width."""
        self.events.clear()
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=900, deviceScaleFactor=1, mobile=False)
        scheme = {"name": "prefers-color-scheme", "value": "dark" if dark else "light"}
        self.call("Emulation.setEmulatedMedia", media=media, features=[scheme])
        self.call("Page.navigate", url=path.resolve().as_uri())
        self.next(lambda message: message.get("method") == "Page.loadEventFired")

    def messages(self):
        """What the browser had to say of the page: the console, the log, exceptions."""
        kinds = ("Runtime.consoleAPICalled", "Runtime.exceptionThrown", "Log.entryAdded")
        return [event for event in self.events if event["method"] in kinds]

    def requested(self):
        """What the page loaded, itself included."""
        sent = [event for event in self.events if event["method"] == "Network.requestWillBeSent"]
        return [event["params"]["request"]["url"] for event in sent]

    def evaluate(self, expression):
        result = self.call("Runtime.evaluate", expression=expression, returnByValue=True)
        if "exceptionDetails" in result:
            raise RuntimeError(result["exceptionDetails"])
        return result["result"].get("value")

    def pictures(self, height=2000):
        """The whole page as PNGs, from the top, each so high at most."""
        size = self.call("Page.getLayoutMetrics")["cssContentSize"]
        for top in range(0, int(size["height"]), height):
            clip = {"x": 0, "y": top, "width": size["width"], "height": min(height, size["height"] - top), "scale": 1}
            yield base64.b64decode(self.call("Page.captureScreenshot", format="png", clip=clip,
                                             captureBeyondViewport=True)["data"])

    def printed(self):
        """The page as PDF, on the paper that it asks for."""
        return base64.b64decode(self.call("Page.printToPDF", preferCSSPageSize=True, printBackground=True)["data"])
