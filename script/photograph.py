"""Takes the gallery's screenshots: photograph.py GALLERY FOLDER"""
import os
import sys

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.support.ui import WebDriverWait

gallery, folder = sys.argv[1:]
options = webdriver.ChromeOptions()
for word in ("--headless=new", "--no-sandbox", "--hide-scrollbars", "--window-size=1300,1000"):
    options.add_argument(word)
browser = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
try:
    def photograph(address, ready, name):
        browser.get("about:blank")
        browser.get(f"file://{os.path.abspath(gallery)}/index.html{address}")
        WebDriverWait(browser, 30).until(lambda _: browser.execute_script(f"return {ready}"))
        browser.save_screenshot(os.path.join(folder, name))

    photograph("", "cards[0].tick > 40", "gallery.png")
    browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {
        "features": [{"name": "prefers-color-scheme", "value": "dark"}]})
    photograph("#SwingEffect-7", "view.tick > 60", "gallery-motion.png")
finally:
    browser.quit()
