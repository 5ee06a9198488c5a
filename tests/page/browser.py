"""One headless Chromium that shows a page in any width, colour scheme and medium, and prints it."""

import base64
import json
import tempfile
import time

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

# It is to load nothing but the page, and to leave nothing behind.
FLAGS = ("--headless --no-sandbox --disable-gpu --disable-dev-shm-usage --disable-quic --no-first-run "
         "--disable-background-networking --disable-component-update --disable-sync "
         "--disable-extensions --hide-scrollbars").split()
# A page learns of a scroll with the next picture that is drawn.
AFTER_SCROLLING = """
const done = arguments[arguments.length - 1];
SCROLL;
requestAnimationFrame(() => requestAnimationFrame(() => setTimeout(done, 0)));
"""
INCHES = {"A4": (8.27, 11.69), "Letter": (8.5, 11)}


class Browser:
    def __init__(self):
        self.profile = tempfile.TemporaryDirectory(prefix="tessera-page-")
        options = Options()
        options.binary_location = "/usr/bin/chromium"
        for flag in (*FLAGS, f"--user-data-dir={self.profile.name}"):
            options.add_argument(flag)
        options.set_capability("goog:loggingPrefs", {"performance": "ALL"})
        self.address = None  # of the page that is shown
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)

    def close(self):
        self.driver.quit()
        self.profile.cleanup()

    def command(self, name, **parameters):
        return self.driver.execute_cdp_cmd(name, parameters)

    def show(self, path, width=1280, scheme="light", medium="screen", script=True):
        """Loads the page afresh."""
        self.command("Emulation.setDeviceMetricsOverride", width=width, height=900,
                     deviceScaleFactor=1, mobile=False)
        self.command("Emulation.setEmulatedMedia", media=medium,
                     features=[{"name": "prefers-color-scheme", "value": scheme}])
        self.command("Emulation.setScriptExecutionDisabled", value=not script)
        self.address = path.resolve().as_uri()
        self.driver.get(self.address)

    def ask(self, script, *arguments):
        """What the body of a function gives."""
        return self.driver.execute_script(script, *arguments)

    def requests(self):
        """The addresses that the page has asked for since the last call."""
        messages = [json.loads(entry["message"])["message"]
                    for entry in self.driver.get_log("performance")]
        return [message["params"]["request"]["url"] for message in messages
                if message["method"] == "Network.requestWillBeSent"
                and message["params"]["documentURL"] == self.address]

    def wait_for(self, script, *arguments):
        """What the body of a function hands to the function that is its last argument."""
        return self.driver.execute_async_script(script, *arguments)

    def ask_until(self, script, is_enough, seconds=4):
        """Asks again until the answer is enough; gives the last one."""
        end = time.monotonic() + seconds
        while not is_enough(answer := self.ask(script)) and time.monotonic() < end:
            time.sleep(0.05)
        return answer

    def keys(self):
        return self.driver.find_elements("css selector", "section.keyboard g.key")

    def point_at(self, element):
        x, y = self.middle_of(element)
        self.command("Input.dispatchMouseEvent", type="mouseMoved", x=x, y=y)

    def tap(self, element):
        x, y = self.middle_of(element)
        self.command("Input.dispatchTouchEvent", type="touchStart", touchPoints=[{"x": x, "y": y}])
        self.command("Input.dispatchTouchEvent", type="touchEnd", touchPoints=[])

    def focus(self, element):
        """From the top of the page, as by Tab: the browser brings it into view."""
        self.wait_for(AFTER_SCROLLING.replace("SCROLL", "scrollTo(0, 0)"))
        self.wait_for(AFTER_SCROLLING.replace("SCROLL", "arguments[0].focus()"), element)

    def leave(self):
        self.command("Input.dispatchMouseEvent", type="mouseMoved", x=0, y=0)
        self.ask("document.activeElement.blur(); document.body.click();")

    def middle_of(self, element):
        self.wait_for(
            AFTER_SCROLLING.replace("SCROLL", "arguments[0].scrollIntoView({block: 'center'})"), element)
        return self.ask("const box = arguments[0].getBoundingClientRect();"
                        "return [(box.left + box.right) / 2, (box.top + box.bottom) / 2];", element)

    def picture(self, scale=1, height=6000):
        """A PNG file of the page from its top, so high at most."""
        width, whole = self.ask("return [innerWidth, document.documentElement.scrollHeight];")
        clip = {"x": 0, "y": 0, "width": width, "height": min(height, whole), "scale": scale}
        shot = self.command("Page.captureScreenshot", format="png", clip=clip,
                            captureBeyondViewport=True)
        return base64.b64decode(shot["data"])

    def print(self, path, paper):
        """On paper of that name, turned as the page says."""
        width, height = INCHES[paper]
        self.command("Emulation.setEmulatedMedia", media="")
        pdf = self.command("Page.printToPDF", paperWidth=width, paperHeight=height,
                           preferCSSPageSize=True, printBackground=False)
        path.write_bytes(base64.b64decode(pdf["data"]))
