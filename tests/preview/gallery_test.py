"""Opens galleries in a browser and uses them: gallery_test.py WRITE_SAMPLES CHROMIUM CHROMEDRIVER"""
import io
import os
import pathlib
import subprocess
import sys
import tempfile
import time
import unittest

from PIL import Image, ImageChops
from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import WebDriverWait

import programs

PATIENCE = 30  # seconds; what is waited for comes at once on an idle machine


def start_browser(profile):
    options = Options()
    options.binary_location = chromium
    for argument in (
        "--headless",
        "--no-sandbox",
        "--disable-gpu",
        "--disable-quic",
        "--disable-background-networking",
        "--disable-component-update",
        "--disable-sync",
        "--disable-dev-shm-usage",
        "--no-first-run",
        "--hide-scrollbars",
        "--force-device-scale-factor=1",
        "--window-size=1280,900",
        "--user-data-dir=" + profile,
    ):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(options=options, service=Service(chromedriver))


# The contrast of an element's text with the nearest background that is not transparent.
CONTRAST = """
const parse = (text) => text.match(/[\\d.]+/g).map(Number);
const light = (color) => [0.2126, 0.7152, 0.0722].reduce((sum, share, i) => {
  const channel = color[i] / 255;
  return sum + share * (channel <= 0.04045 ? channel / 12.92 : ((channel + 0.055) / 1.055) ** 2.4);
}, 0.05);
let behind = arguments[0];
const background = () => parse(getComputedStyle(behind).backgroundColor);
while (background()[3] === 0) behind = behind.parentElement;
const pair = [light(parse(getComputedStyle(arguments[0]).color)), light(background())];
return Math.max(...pair) / Math.min(...pair);
"""


def is_red(pixel):
    # A thin line between two rows of pixels is pale.
    return pixel[0] - max(pixel[1:]) > 60


def is_dark(pixel):
    return max(pixel[:3]) < 90


def differs(image, other):
    """How many pixels of two pictures a person could tell apart."""
    if image.size != other.size:
        return image.width * image.height
    pixels = ImageChops.difference(image, other).getdata()
    return sum(max(pixel) > 40 for pixel in pixels)


class Gallery(unittest.TestCase):
    def open(self, name):
        browser.get(pathlib.Path(samples, name + ".html").as_uri())
        self.wait(lambda: browser.find_elements(By.CSS_SELECTOR, ".picture svg"))

    def wait(self, condition):
        return WebDriverWait(browser, PATIENCE, poll_frequency=0.05).until(lambda _: condition())

    def find(self, selector):
        return browser.find_element(By.CSS_SELECTOR, selector)

    def card(self, name):
        return next(
            card
            for card in browser.find_elements(By.CSS_SELECTOR, ".card")
            if card.find_element(By.CSS_SELECTOR, ".name").get_attribute("textContent") == name
        )

    def shot(self, element):
        return Image.open(io.BytesIO(element.screenshot_as_png)).convert("RGB")

    def picture(self, card):
        return self.shot(card.find_element(By.CSS_SELECTOR, ".picture"))

    def count(self, image, test):
        return sum(map(test, image.getdata()))

    def unfold(self, card):
        card.find_element(By.CSS_SELECTOR, "summary").send_keys(Keys.ENTER)
        self.wait(lambda: card.find_elements(By.CSS_SELECTOR, ".control"))

    def control(self, card, identifier):
        controls = card.find_elements(By.CSS_SELECTOR, ".control input")
        return next(control for control in controls if control.get_attribute("data-identifier") == identifier)

    def enter(self, control, value):
        control.clear()
        control.send_keys(value)

    def pick(self, control, color):
        """Chooses a colour as the browser's own dialog does, which no keys reach in a headless one."""
        browser.execute_script(
            "arguments[0].value = arguments[1];"
            "arguments[0].dispatchEvent(new Event('input', { bubbles: true }));",
            control,
            color,
        )

    def shown_cards(self):
        return browser.execute_script("return document.querySelectorAll('.card:not([hidden])').length")

    def test_opens_without_network_and_without_complaint(self):
        self.open("typical")
        self.assertEqual(browser.get_log("browser"), [])
        loaded = browser.execute_script("return performance.getEntriesByType('resource').map(r => r.name)")
        self.assertEqual(loaded, [])
        self.assertEqual(self.find("#count").text, "5 symbols")

    def test_a_colour_changes_the_symbol_at_once_and_nothing_else(self):
        self.open("typical")
        card, other = self.card("GAS"), self.card("DASHDOT")
        before, other_before = self.picture(card), self.picture(other)
        self.assertGreater(self.count(before, is_dark), 100)
        self.assertEqual(self.count(before, is_red), 0)
        self.unfold(card)
        self.pick(self.control(card, "LINECOLOR"), "#ff0000")
        after = self.picture(card)
        self.assertGreater(self.count(after, is_red), 100)
        # The dashes have changed; the text, which follows a colour of its own, has not.
        self.assertLess(self.count(after, is_dark), self.count(before, is_dark))
        self.assertGreater(self.count(after, is_dark), 100)
        self.assertEqual(differs(self.picture(other), other_before), 0)

    def test_defaults_bring_the_first_picture_back(self):
        self.open("typical")
        card = self.card("GAS")
        before = self.picture(card)
        self.unfold(card)
        self.pick(self.control(card, "TEXTCOLOR"), "#ff0000")
        self.assertGreater(differs(self.picture(card), before), 100)
        card.find_element(By.CSS_SELECTOR, ".controls button").click()
        self.assertEqual(differs(self.picture(card), before), 0)
        self.assertEqual(self.control(card, "TEXTCOLOR").get_attribute("value"), "#000000")

    def test_a_line_weight_thickens_the_line(self):
        self.open("typical")
        card = self.card("DASHDOT")
        before = self.count(self.picture(card), is_dark)
        self.unfold(card)
        self.enter(self.control(card, "LINEWEIGHT"), "2")
        # Two millimetres are 7.6 pixels; before it was a hairline of one.
        self.assertGreater(self.count(self.picture(card), is_dark), before * 4)

    def test_an_angle_turns_a_tiling(self):
        self.open("typical")
        card = self.card("BRICKS")
        courses = lambda image: sum(
            all(max(image.getpixel((x, y))) < 200 for x in range(60, 240)) for y in range(30, image.height - 30)
        )
        self.assertGreater(courses(self.picture(card)), 4)
        self.unfold(card)
        self.enter(self.control(card, "HATCHANGLE"), "45")
        self.assertEqual(courses(self.picture(card)), 0)

    def test_a_text_parameter_changes_the_text(self):
        self.open("typical")
        card = self.card("TREE")
        self.unfold(card)
        self.enter(self.control(card, "KIND"), "<Elm> & co")
        self.assertEqual(
            card.find_element(By.CSS_SELECTOR, "svg text").get_attribute("textContent"), "<Elm> & co"
        )

    def test_each_parameter_has_a_control_of_its_type_with_a_label(self):
        self.open("typical")
        types = {}
        for name in ("GAS", "BRICKS", "TREE"):
            card = self.card(name)
            self.unfold(card)
            for row in card.find_elements(By.CSS_SELECTOR, ".control"):
                control = row.find_element(By.TAG_NAME, "input")
                label = row.find_element(By.TAG_NAME, "label")
                self.assertEqual(label.get_attribute("for"), control.get_attribute("id"))
                self.assertNotIn("&C", label.text)
                types[control.get_attribute("data-identifier")] = control.get_attribute("type")
        self.assertEqual(
            types,
            {
                "LINECOLOR": "color",
                "LINEWEIGHT": "number",
                "TEXTCOLOR": "color",
                "HATCHCOLOR": "color",
                "HATCHANGLE": "number",
                "COLORBYLAYERTrees & Co": "color",
                "KIND": "text",
                "ROTATION": "number",
            },
        )

    def test_a_search_shows_what_matches(self):
        self.open("typical")
        search = self.find("#search")
        for words, count, status in (
            ("gas", 1, "1 of 5 symbols"),
            ("LINE ----gas", 1, "1 of 5 symbols"),
            ("D", 1, "1 of 5 symbols"),
            ("no such symbol", 0, "0 of 5 symbols"),
        ):
            self.enter(search, words)
            self.assertEqual(self.shown_cards(), count, words)
            self.assertEqual(self.find("#count").text, status)
        self.assertTrue(self.find("#empty").is_displayed())
        search.send_keys(Keys.CONTROL, "a")
        search.send_keys(Keys.DELETE)
        self.assertEqual(self.shown_cards(), 5)

    def test_zoom_makes_pictures_larger_but_not_their_lines(self):
        self.open("typical")
        card = self.card("TREE")
        small = self.picture(card)
        self.find("#zoom").send_keys(Keys.END)
        large = self.picture(card)
        self.assertGreater(large.width, small.width * 1.5)
        green = lambda pixel: pixel[1] > pixel[0] + 40 and pixel[1] > pixel[2] + 40
        thickness = lambda image: sum(
            green(image.getpixel((x, image.height // 2))) for x in range(image.width // 2)
        )
        self.assertGreater(thickness(small), 0)
        self.assertAlmostEqual(thickness(large), thickness(small), delta=1)

    def test_dark_keeps_the_lines_visible(self):
        self.open("typical")
        page = lambda: browser.execute_script("return getComputedStyle(document.body).backgroundColor")
        light = page()
        self.find("#theme").click()
        self.assertNotEqual(page(), light)
        self.assertEqual(self.find("#theme").get_attribute("aria-pressed"), "true")
        picture = self.picture(self.card("DASHDOT"))
        self.assertGreater(self.count(picture, is_dark), 100)
        self.assertGreater(self.count(picture, lambda pixel: min(pixel) > 150), picture.width * picture.height / 2)

    def test_dark_lays_light_paper_under_dark_lines(self):
        self.open("typical")
        card = self.card("DASHDOT")
        self.unfold(card)
        self.find("#theme").click()
        # Blue is nearly as dark as the paper of the dark theme; yellow would not be seen on light paper.
        for color, light in (("#0000ff", True), ("#ffff00", False)):
            self.pick(self.control(card, "LINECOLOR"), color)
            paper = self.picture(card).getpixel((5, 5))
            self.assertEqual(min(paper) > 150, light, (color, paper))

    def test_dark_is_chosen_where_the_system_is_dark(self):
        for scheme in ("dark", "light"):
            browser.execute_cdp_cmd(
                "Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": scheme}]}
            )
            self.open("typical")
            self.assertEqual(self.find("#theme").get_attribute("aria-pressed"), str(scheme == "dark").lower())
        browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": []})

    def test_texts_have_enough_contrast_in_both_themes(self):
        self.open("typical")
        for _ in range(2):
            for selector in (".name", ".description", ".detail", "summary", "#count", ".tool > span", "#theme"):
                ratio = browser.execute_script(CONTRAST, self.find(selector))
                self.assertGreaterEqual(ratio, 4.5, selector)
            self.find("#theme").click()

    def test_the_keyboard_goes_through_all_controls_and_shows_where_it_is(self):
        self.open("typical")
        seen = []
        for _ in range(9):
            browser.switch_to.active_element.send_keys(Keys.TAB)
            element = browser.switch_to.active_element
            seen.append(element.get_attribute("id") or element.get_attribute("class") or element.tag_name)
            self.assertEqual(element.value_of_css_property("outline-style"), "solid", seen[-1])
            self.assertGreaterEqual(int(element.value_of_css_property("outline-width")[:-2]), 2, seen[-1])
        self.assertEqual(
            seen, ["skip", "search", "kind", "zoom", "theme", "picture", "summary", "picture", "summary"]
        )

    def test_zooming_the_close_up_keeps_the_middle(self):
        self.open("typical")
        self.card("TREE").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
        view = self.find("#closeup-picture")
        middle = "const v = arguments[0]; return [(v.scrollLeft + v.clientWidth / 2) / v.scrollWidth," \
            " (v.scrollTop + v.clientHeight / 2) / v.scrollHeight];"
        self.find("#closeup-zoom").send_keys(Keys.END)
        for place in browser.execute_script(middle, view):
            self.assertAlmostEqual(place, 0.5, delta=0.02)
        self.find("#closeup-zoom").send_keys(Keys.ARROW_LEFT)
        for place in browser.execute_script(middle, view):
            self.assertAlmostEqual(place, 0.5, delta=0.02)

    def test_the_keyboard_reaches_search_and_close_up(self):
        self.open("typical")
        self.find("body").send_keys("/")
        self.assertEqual(browser.switch_to.active_element.get_attribute("id"), "search")
        picture = self.card("GAS").find_element(By.CSS_SELECTOR, ".picture")
        picture.send_keys(Keys.ENTER)
        dialog = self.find("#closeup")
        self.assertTrue(dialog.is_displayed())
        self.assertEqual(dialog.find_element(By.TAG_NAME, "h2").text, "GAS")
        self.pick(self.control(dialog, "LINECOLOR"), "#ff0000")
        self.assertGreater(self.count(self.shot(self.find("#closeup-picture")), is_red), 100)
        dialog.send_keys(Keys.ESCAPE)
        self.wait(lambda: not dialog.is_displayed())
        self.assertEqual(browser.switch_to.active_element, picture)
        # What was changed in the close-up holds for the card too.
        self.assertGreater(self.count(self.picture(self.card("GAS")), is_red), 100)

    def test_a_screen_reader_is_told_names(self):
        self.open("typical")
        picture = self.card("GAS").find_element(By.CSS_SELECTOR, ".picture")
        self.assertEqual(picture.accessible_name, "Enlarge GAS")
        self.assertEqual(self.find("#search").accessible_name, "Search")
        self.assertEqual(self.find("#zoom").accessible_name, "Zoom")
        self.assertEqual(self.find("#count").aria_role, "status")
        self.assertEqual(self.find("#symbols").aria_role, "list")
        self.assertEqual(self.card("GAS").aria_role, "listitem")
        picture.send_keys(Keys.ENTER)
        dialog = self.find("#closeup")
        self.assertEqual(dialog.aria_role, "dialog")
        self.assertEqual(dialog.accessible_name, "GAS")
        self.assertEqual(self.control(dialog, "LINECOLOR").accessible_name, "Line Color LINECOLOR")
        svg = self.find("#closeup-picture svg")
        self.assertEqual(svg.find_element(By.TAG_NAME, "title").get_attribute("textContent"),
                         "GAS, Line symbol, repeat 0.95")

    def test_hostile_names_stay_names(self):
        self.open("hostile")
        self.assertEqual(browser.title, "Symbols")
        self.assertEqual(browser.get_log("browser"), [])
        card = self.card("</script><script>document.title='broken'</script>")
        browser.execute_script("arguments[0].scrollIntoView()", card)
        self.wait(lambda: card.find_elements(By.CSS_SELECTOR, "svg"))
        self.unfold(card)
        self.assertEqual(card.find_elements(By.CSS_SELECTOR, "img, b, i"), [])
        self.assertEqual(browser.title, "Symbols")

    def test_two_thousand_symbols_are_drawn_as_they_come_into_view(self):
        start = time.monotonic()
        self.open("many")
        self.assertLess(time.monotonic() - start, PATIENCE)
        drawn = lambda: browser.execute_script("return document.querySelectorAll('.picture svg').length")
        self.wait(lambda: drawn() >= 8)
        self.assertLess(drawn(), 100)
        self.assertEqual(self.find("#count").text, "2000 symbols")
        last = browser.find_elements(By.CSS_SELECTOR, ".card")[-1]
        browser.execute_script("arguments[0].scrollIntoView()", last)
        self.wait(lambda: last.find_elements(By.CSS_SELECTOR, "svg"))
        self.assertGreater(self.count(self.picture(last), lambda pixel: max(pixel) < 200), 50)
        self.wait(lambda: drawn() < 100)
        self.enter(self.find("#search"), "1999")
        self.wait(lambda: self.shown_cards() == 1)

    def test_a_search_in_two_thousand_symbols_costs_little(self):
        self.open("many")
        browser.execute_cdp_cmd("Performance.enable", {})

        def processor_time(script):
            metric = lambda: next(
                entry["value"]
                for entry in browser.execute_cdp_cmd("Performance.getMetrics", {})["metrics"]
                if entry["name"] == "ProcessTime"
            )
            before = metric()
            browser.execute_script(script)
            return metric() - before

        yardstick = processor_time("let sum = 0; for (let i = 0; i < 2e8; ++i) sum += i; return sum;")
        search = "search.value = '%s'; filter(); return document.body.offsetHeight;"
        for words in ("gas 1", "gas 12", "", "tree"):
            cost = processor_time(search % words)
            # Less than a second on a slow machine. When each card that is hidden costs a look at all others it
            # is fifteen times the yardstick.
            self.assertLess(cost, 4 * yardstick, words)


if __name__ == "__main__":
    write_samples, chromium, chromedriver = sys.argv[1:4]
    programs.require(chromium, chromedriver)
    with tempfile.TemporaryDirectory() as samples, tempfile.TemporaryDirectory() as browser_profile:
        subprocess.run([write_samples, samples], check=True)
        # What the browser keeps of its own goes where it is removed again.
        os.environ["HOME"] = browser_profile
        browser = start_browser(os.path.join(browser_profile, "profile"))
        try:
            result = unittest.main(argv=sys.argv[:1], verbosity=2, exit=False).result
        finally:
            browser.quit()
    sys.exit(not result.wasSuccessful())
