#!/usr/bin/python3
"""Opens a gallery in a headless browser: what moves, is scrubbed, found, linked, compared, saved and
printed, who can use it, and how much it loads.

gallery_in_browser.py ANIMTEXT AXE.JS
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
AXE = os.path.abspath(sys.argv.pop(1))
TEXT = "Let's go"


class Gallery(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="gallery it's für uns ")
        cls.page = os.path.join(cls.folder.name, "g")
        cls.signs = os.path.join(cls.folder.name, "signs")
        os.mkdir(cls.signs)
        os.environ["TMPDIR"] = cls.folder.name  # the browser leaves folders behind
        subprocess.run([ANIMTEXT, "gallery", "--text", TEXT, "--hold", "5", "-o", cls.page],
                       check=True, stdout=subprocess.DEVNULL)
        options = webdriver.ChromeOptions()
        for word in ("--headless=new", "--no-sandbox", "--disable-dev-shm-usage",
                     "--window-size=1300,1000"):
            options.add_argument(word)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        cls.browser = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()
        cls.folder.cleanup()

    def setUp(self):
        self.open()
        self.motions = self.script("return gallery.motions.map((motion) => motion.id)")

    def tearDown(self):
        self.assertEqual([], self.browser.get_log("browser"))

    def open(self, address=""):
        self.browser.get("about:blank")
        self.browser.get("file://" + self.page + "/index.html" + address)

    def emulate(self, width=1300, media="", **features):
        """A screen of that width, or paper, and what the person asked the system for."""
        for command, settings in (
                ("setDeviceMetricsOverride", {"width": width, "height": 844, "mobile": False,
                                              "deviceScaleFactor": 1}),
                ("setEmulatedMedia", {"media": media, "features": [
                    {"name": "prefers-" + name.replace("_", "-"), "value": value}
                    for name, value in features.items()]})):
            self.browser.execute_cdp_cmd("Emulation." + command, settings)
        self.addCleanup(self.browser.execute_cdp_cmd, "Emulation.clearDeviceMetricsOverride", {})
        self.addCleanup(self.browser.execute_cdp_cmd, "Emulation.setEmulatedMedia", {"features": []})

    def still(self, tick):
        """The picture at a tick, painted by the command that the view shows."""
        words = shlex.split(self.find("#details code").text.split(" && ")[0])
        scene = os.path.join(self.signs, "sign.json")
        still = os.path.join(self.signs, "still.png")
        words[words.index("sign.json")] = scene
        for command in (words[1:], ["render", scene, "--frames", str(tick), "-o", still]):
            subprocess.run([ANIMTEXT, *command], check=True, stdout=subprocess.DEVNULL)
        with Image.open(still) as picture:
            return picture.convert("RGB").tobytes()

    def script(self, text, *arguments):
        return self.browser.execute_script(text, *arguments)

    def until(self, text, *arguments):
        return WebDriverWait(self.browser, 240, 0.02).until(lambda _: self.script(text, *arguments))

    def name(self, motion):
        """The motion's name in addresses, made of a title that may change."""
        return self.script("return gallery.motions.find(({ id }) => id === arguments[0]).slug", motion)

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
        page = [path for path in first if path.startswith(self.page) and not path.startswith(motions)]
        self.assertLess(sum(map(os.path.getsize, page)), 200_000)
        self.assertNotIn(os.path.join(motions, self.motions[-1] + ".js"), first)

    def test_only_what_is_in_sight_moves(self):
        picture = "return document.querySelector(`#card-${arguments[0]} canvas`)?.dataset.picture"
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
                       "view.displays[0].screen.shown > 0", motion)
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
        search.send_keys("fall tilted bounce")
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
        self.assertEqual(self.script("return view.ticks") - 1, tick())
        body.send_keys("l")
        self.assertIn("radial-gradient", self.find("#stage canvas").get_attribute("style"))
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
                data = self.script("return view.displays[0].canvas.toDataURL()")
                with Image.open(io.BytesIO(base64.b64decode(data[22:]))) as shown:
                    self.assertEqual(self.still(tick), shown.convert("RGB").tobytes())

    def test_the_table_compares_planned_and_actual_times(self):
        self.until("return document.querySelectorAll('#times td a').length === 340")
        for motion, speed, words in (("EffectTopWithFrog", 6, "begins again for the last"),
                                     ("ContinueEffectLeft", 5, "until it is stopped"),
                                     ("FlyFromRightEffect", 5, "cut off")):
            cell = self.find(f"#times a[href='#{self.name(motion)}-{speed}']")
            self.assertRegex(cell.get_attribute("aria-label"), rf"planned [0-9.]+ s .*{words}")
        cell.send_keys(Keys.ENTER)
        self.until("return view.motion?.id === 'FlyFromRightEffect' && state.speed === 5")

    def test_who_wants_less_motion_gets_posters(self):
        self.emulate(reduced_motion="reduce")
        self.browser.refresh()
        self.assertEqual("Play all", self.find("#pause").text)
        self.until("return performance.now() > 500")
        self.assertEqual(0, self.script("return cards.filter((c) => c.screen.shown >= 0).length"))
        with Image.open(self.page + "/posters.png") as sheet:
            sheet = sheet.convert("RGB")
        for motion in self.motions:
            _, y, width, height = map(int, self.find(f"#card-{motion} svg").get_dom_attribute("viewBox").split())
            with open(f"{self.page}/motions/{motion}.js", encoding="utf-8") as file:
                sheets = json.loads(file.read()[len("showMotion("):-len(");\n")])["sheets"]
            own = [Image.open(io.BytesIO(base64.b64decode(png))).convert("RGB") for png in sheets]
            pictures = {png.crop((0, top, width, top + height)).tobytes()
                        for png in own for top in range(0, png.height, height)}
            self.assertIn(sheet.crop((0, y, width, y + height)).tobytes(), pictures, motion)
        self.find("#pause").click()
        self.until("return cards[0].screen.shown > 0")

    def test_without_scripts_it_is_a_list_with_posters(self):
        self.browser.execute_cdp_cmd("Emulation.setScriptExecutionDisabled", {"value": True})
        self.addCleanup(self.browser.execute_cdp_cmd, "Emulation.setScriptExecutionDisabled",
                        {"value": False})
        self.browser.refresh()
        self.assertEqual(34, len(self.browser.find_elements(By.CSS_SELECTOR, "#motions svg")))
        self.assertEqual(340, len(self.browser.find_elements(By.CSS_SELECTOR, "#times td")))
        dead = [element.tag_name for element in self.browser.find_elements(
            By.CSS_SELECTOR, "button, input, select, a[href]:not([href='#map'], [href='#motions'])")
                if element.is_displayed()]
        self.assertEqual([], dead)

    def test_everyone_can_use_it(self):
        if not os.path.exists(AXE):
            self.skipTest(f"{AXE} is missing: script/test could not fetch it")
        with open(AXE, encoding="utf-8") as file:
            axe = file.read()
        for width in (1300, 320):
            for scheme in ("light", "dark"):
                self.emulate(width, color_scheme=scheme, reduced_motion="reduce")
                for address in ("", "#SwingEffect-7@4.22s", "#SwingEffect-7@4.22s&EffectShake"):
                    with self.subTest(width=width, scheme=scheme, address=address):
                        self.open(address)
                        self.until("return document.querySelectorAll('#times td a').length === 340")
                        self.script(axe)
                        found = self.browser.execute_async_script("axe.run({preload: false}).then(arguments[0])")
                        self.assertEqual([], [(fault["id"], node["target"], node["failureSummary"])
                                              for fault in found["violations"] for node in fault["nodes"]])
                        self.assertGreater(len(found["passes"]), 20)
                        for part in ("body", "#view"):
                            self.assertLessEqual(0, self.script(
                                "const part = document.querySelector(arguments[0]);"
                                "return part.clientWidth - part.scrollWidth", part), part)

    def test_the_bar_hides_no_heading(self):
        for width in (1300, 390):
            self.emulate(width)
            self.open("#map")
            self.until("return document.getElementById('map-title').getBoundingClientRect().top >="
                       "document.getElementById('controls').getBoundingClientRect().bottom")

    def test_paper_holds_every_speed(self):
        self.emulate(718, media="print")  # A4 between the browser's margins
        self.assertTrue(self.script("const w = document.querySelector('.wide');"
                                    "return w.scrollWidth <= w.clientWidth"))
        self.assertFalse(self.find("#controls").is_displayed())

    def test_going_back_leaves_after_any_number_of_views(self):
        for motion in self.motions[:3]:
            self.find(f"#card-{motion} a").send_keys(Keys.ENTER)
            self.until("return view.motion?.id === arguments[0]", motion)
            self.browser.switch_to.active_element.send_keys(Keys.ESCAPE)
            self.until("return !view.motion && !location.hash")
        self.browser.back()
        self.assertEqual("about:blank", self.browser.current_url)

    def test_a_link_leads_to_a_moment_of_two_motions(self):
        one, other = self.name("SwingEffect"), self.name("EffectShake")
        self.assertRegex(one + other, "^[a-z-]+$")
        self.open(f"#{one}-7@4.22s&{other}")
        self.until("return view.draw()")
        self.assertEqual([["SwingEffect", "EffectShake"], 64, 7, False], self.script(
            "return [view.displays.map((display) => display.motion.id), view.tick, state.speed, view.playing]"))
        tops = self.script("return view.displays.map((display) => display.canvas.getBoundingClientRect().top)")
        self.assertEqual(tops[0], tops[1])
        self.find("#on").click()
        self.until("return location.hash === arguments[0]", f"#{one}-7@4.29s&{other}")
        self.find("#other").send_keys("no other")
        self.until("return location.hash === arguments[0]", f"#{one}-7@4.29s")
        self.open("#SwingEffect-7")  # the host's name leads there, too
        self.assertEqual([7, True], self.script("return [state.speed, view.playing]"))

    def test_a_film_is_what_the_sign_shows(self):
        self.browser.execute_cdp_cmd("Browser.setDownloadBehavior", {
            "behavior": "allow", "downloadPath": self.folder.name})
        # The longest frame that there can be is 65.5 s: with longer ticks some are divided.
        for address, tick, factor in (("#WordForWordOutputEffect-9", 15, 1), ("#FlyFromTopEffect-0", 3000, 100)):
            self.open(address)
            length = self.script("return gallery.tick *= arguments[0]", factor)
            self.find("#film").click()
            path = os.path.join(self.folder.name,
                                self.name(address[1:-2]) + f"-speed-{address[-1]}.apng")
            self.until("return document.getElementById('done').textContent === 'Saved'")
            WebDriverWait(self.browser, 60, 0.02).until(lambda _: os.path.exists(path))
            shown = 0
            with Image.open(path) as film:
                for frame in range(film.n_frames):
                    film.seek(frame)
                    if shown <= tick * length < shown + film.info["duration"]:
                        self.assertEqual(self.still(tick), film.convert("RGB").tobytes())
                    shown += film.info["duration"]
            self.assertEqual(self.script("return view.ticks") * length, round(shown))


if __name__ == "__main__":
    unittest.main()
