#!/usr/bin/python3
"""Opens a gallery in a headless browser: what moves, is scrubbed, found and copied, and how much it loads.

gallery_in_browser.py ANIMTEXT
"""
import base64
import io
import json
import os
import shlex
import subprocess
import sys
import tempfile
import unittest
from urllib.parse import unquote, urlsplit

from PIL import Image
from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import WebDriverWait

ANIMTEXT = os.path.abspath(sys.argv.pop(1))
TEXT = "Let's go"


class Gallery(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="gallery it's für uns ")
        cls.page = os.path.join(cls.folder.name, "g")
        os.environ["TMPDIR"] = cls.folder.name  # the browser leaves folders behind
        subprocess.run([ANIMTEXT, "gallery", "--text", TEXT, "--hold", "5", "-o", cls.page],
                       check=True, stdout=subprocess.DEVNULL)
        options = webdriver.ChromeOptions()
        for word in ("--headless=new", "--no-sandbox", "--disable-dev-shm-usage",
                     "--window-size=1300,1000", "--allow-file-access-from-files"):
            options.add_argument(word)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        cls.browser = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()
        cls.folder.cleanup()

    def setUp(self):
        self.browser.get("about:blank")
        self.browser.get("file://" + self.page + "/index.html")
        self.motions = self.script("return gallery.motions.map((motion) => motion.id)")

    def tearDown(self):
        self.assertEqual([], self.browser.get_log("browser"))

    def script(self, text, *arguments):
        return self.browser.execute_script(text, *arguments)

    def until(self, text, *arguments):
        return WebDriverWait(self.browser, 240, 0.02).until(lambda _: self.script(text, *arguments))

    def find(self, selector):
        return self.browser.find_element(By.CSS_SELECTOR, selector)

    def test_is_small_and_there_at_once(self):
        size = sum(os.path.getsize(os.path.join(folder, name))
                   for folder, _, names in os.walk(self.page) for name in names)
        self.assertLess(size, 5_000_000)
        self.assertEqual(34, len(self.motions))
        self.browser.get_log("performance")  # that of earlier pages goes
        self.browser.refresh()
        self.until("return performance.timing.loadEventEnd > 0")
        first = []
        for entry in self.browser.get_log("performance"):
            event = json.loads(entry["message"])["message"]
            if event["method"] == "Page.loadEventFired":
                break
            if event["method"] == "Network.requestWillBeSent":
                first.append(unquote(urlsplit(event["params"]["request"]["url"]).path))
        self.assertIn(os.path.join(self.page, "gallery.js"), first)
        # A motion in sight may begin to load before that; none other does.
        motions = os.path.join(self.page, "motions")
        page = [path for path in first if not path.startswith(motions)]
        self.assertLess(sum(map(os.path.getsize, page)), 200_000)
        self.assertNotIn(os.path.join(motions, self.motions[-1] + ".js"), first)

    def test_only_what_is_in_sight_moves(self):
        picture = "return document.querySelector(`#card-${arguments[0]} canvas`).dataset.picture"
        first, last = self.motions[0], self.motions[-1]
        self.until(picture + " > 0", first)
        self.assertIsNone(self.script(picture, last))
        self.script("document.getElementById(`card-${arguments[0]}`).scrollIntoView()", last)
        self.until(picture + " > 0", last)
        self.find("#pause").click()
        stands = self.script(picture, last)
        self.script("return new Promise((done) => setTimeout(done, 200))")
        self.assertEqual(stands, self.script(picture, last))

    def test_every_motion_plays_at_the_speed_of_its_link(self):
        for motion in self.motions:
            self.script("location.hash = `${arguments[0]}-9`", motion)
            self.until("return view.motion?.id === arguments[0] && state.speed === 9 &&"
                       "view.screen.shown > 0", motion)
            self.until("return view.tick > 2")

    def test_every_motion_is_found_by_its_name_and_its_family(self):
        visible = "return cards.filter((c) => !c.element.hidden).map((c) => c.motion.id)"
        search = self.find("#search")
        for motion in self.motions:
            search.clear()
            search.send_keys(motion)
            self.assertIn(motion, self.script(visible))
            self.assertLess(len(self.script(visible)), 4)
        search.clear()
        search.send_keys("characters drop tilted")
        self.assertEqual(["Effect45DegreeAngleDrop"], self.script(visible))
        search.clear()
        self.script("const f = document.getElementById('family'); f.value = 'frogs';"
                    "f.dispatchEvent(new Event('change'))")
        self.assertEqual(2, len(self.script(visible)))
        self.assertIn("2 of 34", self.find("#found").text)

    def test_the_keyboard_alone_leads_to_each_tick(self):
        self.find("#card-WavesEffect a").send_keys(Keys.ENTER)
        self.until("return document.getElementById('view').open")
        tick = lambda: self.script("return view.tick")
        body = self.browser.switch_to.active_element
        for keys, expected in ((Keys.HOME, 0), (Keys.ARROW_RIGHT * 3, 3),
                               (Keys.SHIFT + Keys.ARROW_RIGHT + Keys.SHIFT, 13),
                               (Keys.ARROW_LEFT, 12), ("[", 0)):
            body.send_keys(keys)
            self.assertEqual(expected, tick(), keys)
        body.send_keys(Keys.END)
        self.assertEqual(self.script("return view.play.ticks") - 1, tick())
        body.send_keys("l")
        self.assertIn("radial-gradient", self.find("#big").get_attribute("style"))
        body.send_keys(Keys.ESCAPE)
        self.assertEqual("card-WavesEffect",
                         self.script("return document.activeElement.closest('li').id"))

    def test_pictures_are_those_of_the_command_that_is_shown(self):
        for motion, speed, tick in (("FlyFromLeftEffect", 9, 40), ("WordForWordOutputEffect", 5, 10),
                                    ("SwingEffect", 7, 21), ("RotationEffect", 0, 333),
                                    ("EffectDiagonalMoves", 3, 66), ("EffectTextZoom", 6, 30),
                                    ("EffectTopWithFrog", 4, 50), ("ContinueEffectLeft", 5, 77),
                                    ("ContinueEffectUp", 8, 15)):
            with self.subTest(motion):
                self.script("location.hash = `${arguments[0]}-${arguments[1]}`", motion, speed)
                self.until("return view.motion?.id === arguments[0]", motion)
                self.script("const s = document.getElementById('scrub'); s.value = arguments[0];"
                            "s.dispatchEvent(new Event('input'))", tick)
                self.until("return view.draw()")
                data = self.script("return document.getElementById('big').toDataURL()")
                words = shlex.split(self.find("#command").text.split(" && ")[0])
                scene = os.path.join(self.folder.name, "sign.json")
                still = os.path.join(self.folder.name, "still.png")
                words[words.index("sign.json")] = scene
                for command in (words[1:], ["render", scene, "--frames", str(tick), "-o", still]):
                    subprocess.run([ANIMTEXT, *command], check=True, stdout=subprocess.DEVNULL)
                with Image.open(still) as painted, \
                        Image.open(io.BytesIO(base64.b64decode(data[22:]))) as shown:
                    self.assertEqual(painted.convert("RGB").tobytes(), shown.convert("RGB").tobytes())

    def test_the_map_tells_where_told_and_real_times_part(self):
        self.until("return document.querySelectorAll('#times td').length === 340")
        cell = self.find("#times a[href='#FlyFromRightEffect-5']")
        self.assertRegex(cell.get_attribute("title"), r"told [0-9.]+ s, really [0-9.]+ s, [0-9.]+ s (cut off|left over)")
        cell.send_keys(Keys.ENTER)
        self.until("return view.motion?.id === 'FlyFromRightEffect' && state.speed === 5")

    def test_who_wants_less_motion_gets_posters(self):
        self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {
            "features": [{"name": "prefers-reduced-motion", "value": "reduce"}]})
        try:
            self.browser.refresh()
            self.assertEqual("Play all", self.find("#pause").text)
            self.until("return performance.now() > 500")
            self.assertEqual(0, self.script("return cards.filter((c) => c.screen.shown >= 0).length"))
            self.find("#pause").click()
            self.until("return cards[0].screen.shown > 0")
        finally:
            self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": []})


if __name__ == "__main__":
    unittest.main()
