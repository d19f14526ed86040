"""Opens galleries in a browser and uses them: gallery_test.py WRITE_SAMPLES CHROMIUM CHROMEDRIVER"""
import io
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time
import unittest
import xml.etree.ElementTree as ElementTree

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
        """The card's picture without the bar, whose ink is not the symbol's."""
        browser.execute_script(
            "for (const bar of document.querySelectorAll('.card .scale-bar')) bar.style.visibility = 'hidden'"
        )
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

    def menu(self, name):
        """Opens a menu of the bar, or closes it."""
        menus = browser.find_elements(By.CSS_SELECTOR, ".menu > summary")
        next(menu for menu in menus if menu.text.startswith(name)).send_keys(Keys.ENTER)

    def choose(self, selector, value):
        browser.execute_script(
            "arguments[0].value = arguments[1]; arguments[0].dispatchEvent(new Event('change', { bubbles: true }));",
            self.find(selector),
            value,
        )

    def theme(self):
        return browser.execute_script("return document.documentElement.dataset.theme")

    def switch_theme(self):
        browser.execute_script("arguments[0].click()", self.find("#theme"))
        # What is drawn anew stands there two frames later.
        browser.execute_async_script(
            "const done = arguments[0]; requestAnimationFrame(() => requestAnimationFrame(done));"
        )

    def texts(self, selector):
        return browser.execute_script(
            "return [...document.querySelectorAll(arguments[0])].filter((e) => !e.closest('[hidden]'))"
            ".map((e) => e.textContent)",
            selector,
        )

    def address(self):
        return browser.execute_script("return location.hash")

    def taken(self, selector):
        """The name and the text of the file that a button gives the reader."""
        return browser.execute_async_script(
            """
            const done = arguments[1];
            const original = HTMLAnchorElement.prototype.click;
            HTMLAnchorElement.prototype.click = function () {
              HTMLAnchorElement.prototype.click = original;
              const name = this.download;
              files.get(this.href).text().then((text) => done([name, text]));
            };
            const files = new Map();
            const create = URL.createObjectURL;
            URL.createObjectURL = (blob) => {
              const address = create(blob);
              files.set(address, blob);
              URL.createObjectURL = create;
              return address;
            };
            arguments[0].click();
            """,
            self.find(selector),
        )

    def processor_time(self, work, metric="ProcessTime"):
        """What the browser computes for the work, in seconds: other programs do not count."""
        browser.execute_cdp_cmd("Performance.enable", {"timeDomain": "threadTicks"})
        now = lambda: next(
            entry["value"]
            for entry in browser.execute_cdp_cmd("Performance.getMetrics", {})["metrics"]
            if entry["name"] == metric
        )
        before = now()
        work()
        return now() - before

    def yardstick(self):
        """What a fixed piece of work costs that the browser has no faster way for the more often it does it."""
        work = (
            """const text = '[' + '{"length":1.5,"name":"GAS"},'.repeat(5e4) + '0]';"""
            "for (let i = 0; i < 10; ++i) JSON.parse(text);"
        )
        browser.get("about:blank")
        return min(self.processor_time(lambda: browser.execute_script(work), "TaskDuration") for _ in range(3))

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
        # Two millimetres are as long as two units of the dashes; before it was a hairline of a pixel.
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

    def test_zoom_makes_pictures_larger_with_their_weights(self):
        self.open("typical")
        card = self.card("TREE")
        small = self.picture(card)
        self.menu("View")
        self.find("#zoom").send_keys(Keys.END)
        self.menu("View")
        large = self.picture(card)
        self.assertGreater(large.width, small.width * 1.5)
        green = lambda pixel: pixel[1] > pixel[0] + 40 and pixel[1] > pixel[2] + 40
        thickness = lambda image: sum(
            green(image.getpixel((x, image.height // 2))) for x in range(image.width // 2)
        )
        # Half a millimetre of ten, which are 180 pixels of a picture 300 wide.
        for image in (small, large):
            self.assertAlmostEqual(thickness(image), 9 * image.width / 300, delta=2)

    def test_a_hairline_stays_one_until_its_weight_can_be_seen(self):
        self.open("typical")
        card = self.card("DASHDOT")
        self.unfold(card)
        self.enter(self.control(card, "LINEWEIGHT"), "0.003")
        card.find_element(By.CSS_SELECTOR, ".picture").click()
        stroke = lambda: browser.execute_script(
            "const line = document.querySelector('#closeup-picture [data-weight]');"
            "return [line.getAttribute('vector-effect'), Number(line.getAttribute('stroke-width'))]"
        )
        self.assertEqual(stroke(), ["non-scaling-stroke", 1])
        self.find("#closeup-zoom").send_keys(Keys.END)
        scale = browser.execute_script("return closeup.symbol.scale")
        self.assertGreater(0.003 * scale * 8, 1)
        self.assertEqual(stroke(), [None, 0.003 * scale])
        self.find("#closeup-zoom").send_keys(Keys.HOME)
        self.assertEqual(stroke(), ["non-scaling-stroke", 1])
        self.enter(self.control(self.find("#closeup"), "LINEWEIGHT"), "0.3")
        self.assertEqual(stroke(), [None, 0.3 * scale])

    def test_dark_keeps_the_lines_visible(self):
        self.open("typical")
        page = lambda: browser.execute_script("return getComputedStyle(document.body).backgroundColor")
        light = page()
        self.menu("View")
        self.assertEqual(self.find("#theme").text, "Dark page")
        self.find("#theme").click()
        self.assertNotEqual(page(), light)
        self.assertEqual(self.find("#theme").text, "Light page")
        self.menu("View")
        picture = self.picture(self.card("DASHDOT"))
        self.assertGreater(self.count(picture, is_dark), 100)
        self.assertGreater(self.count(picture, lambda pixel: min(pixel) > 150), picture.width * picture.height / 2)

    def test_dark_lays_light_paper_under_dark_lines(self):
        self.open("typical")
        card = self.card("DASHDOT")
        self.unfold(card)
        self.switch_theme()
        # Blue is nearly as dark as the paper of the dark theme; yellow would not be seen on light paper.
        for color, light in (("#0000ff", True), ("#ffff00", False)):
            self.pick(self.control(card, "LINECOLOR"), color)
            paper = self.picture(card).getpixel((5, 5))
            self.assertEqual(min(paper) > 150, light, (color, paper))
            bar = card.find_element(By.CSS_SELECTOR, ".scale-bar")
            self.assertGreaterEqual(browser.execute_script(CONTRAST, bar), 4.5, color)

    def test_dark_is_chosen_where_the_system_is_dark(self):
        for scheme in ("dark", "light"):
            browser.execute_cdp_cmd(
                "Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": scheme}]}
            )
            self.open("typical")
            self.assertEqual(self.theme(), scheme)
        browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": []})

    def test_texts_have_enough_contrast_in_both_themes(self):
        self.open("typical")
        for _ in range(2):
            self.menu("View")
            for selector in (".name", ".description", ".detail", ".card summary", "#count", ".tool > span", "#theme"):
                ratio = browser.execute_script(CONTRAST, self.find(selector))
                self.assertGreaterEqual(ratio, 4.5, selector)
            self.menu("View")
            self.switch_theme()

    def test_the_keyboard_goes_through_all_controls_and_shows_where_it_is(self):
        self.open("typical")
        seen = []
        for _ in range(6):
            browser.switch_to.active_element.send_keys(Keys.TAB)
            element = browser.switch_to.active_element
            seen.append(element.get_attribute("id") or element.get_attribute("class") or element.tag_name)
            self.assertEqual(element.value_of_css_property("outline-style"), "solid", seen[-1])
            self.assertGreaterEqual(int(element.value_of_css_property("outline-width")[:-2]), 2, seen[-1])
        self.assertEqual(
            seen, ["skip", "search", "button", "button", "button", "picture"]
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
        self.menu("View")
        self.assertEqual(self.find("#zoom").accessible_name, "Size of the cards, pixels")
        self.menu("View")
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
        self.assertEqual(browser.title, "hostile.html")
        self.assertEqual(browser.get_log("browser"), [])
        card = self.card("</script><script>document.title='broken'</script>")
        browser.execute_script("arguments[0].scrollIntoView()", card)
        self.wait(lambda: card.find_elements(By.CSS_SELECTOR, "svg"))
        self.unfold(card)
        self.assertEqual(card.find_elements(By.CSS_SELECTOR, "img, b, i"), [])
        self.assertEqual(browser.title, "hostile.html")

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
        self.assertLess(drawn(), 200)
        self.enter(self.find("#search"), "1999")
        self.wait(lambda: self.shown_cards() == 1)

    def test_two_thousand_symbols_are_laid_out_in_blocks_of_whole_rows(self):
        self.open("many")
        sizes = "return [...document.querySelectorAll('.rows')].map((block) => block.childElementCount)"
        # The window has room for four cards beside each other, and for two as soon as they are twice as wide.
        for width, columns in ((280, 4), (560, 2)):
            browser.execute_script(
                "zoom.value = arguments[0]; zoom.dispatchEvent(new Event('input'))", width
            )
            blocks = browser.execute_script(sizes)
            self.assertEqual(sum(blocks), 2000)
            self.assertEqual(set(blocks[:-1]), {8 * columns})
        styles = "return [...document.querySelectorAll('.rows')].map((b) => getComputedStyle(b).contentVisibility)"
        self.assertEqual(set(browser.execute_script(styles)), {"auto"})

    def test_a_search_in_two_thousand_symbols_costs_little(self):
        yardstick = self.yardstick()
        self.open("many")
        processor_time = lambda script: self.processor_time(lambda: browser.execute_script(script))
        search = "search.value = '%s'; arrangement.arrange(); return document.body.offsetHeight;"
        for words in ("gas 1", "gas 12", "", "tree"):
            cost = processor_time(search % words)
            # Less than a second on a slow machine. When each card that is hidden costs a look at all others it
            # is fifteen times the yardstick.
            self.assertLess(cost, 4 * yardstick, words)

    def test_two_thousand_symbols_scroll_without_long_frames(self):
        step = "const done = arguments[0]; scrollBy(0, 150); requestAnimationFrame(() => requestAnimationFrame(done));"
        runs = []
        for _ in range(3):
            self.open("many")
            frame = lambda: self.processor_time(lambda: browser.execute_async_script(step), "TaskDuration")
            runs.append([frame() for _ in range(30)])
        longest = max(min(frames) for frames in zip(*runs))
        # 50 ms would be seen: that is three quarters of the yardstick where it takes 67 ms.
        self.assertLess(longest, 0.75 * self.yardstick())

    def test_seven_thousand_glyphs_are_there_at_once(self):
        def load():
            browser.get("about:blank")
            return self.processor_time(lambda: self.open("glyphs"))

        loads = [load() for _ in range(2)]
        self.assertEqual(self.find("#count").text, "7000 symbols")
        # Six times where each takes its time; it was twenty-six times when cards had parts without a text.
        self.assertLess(min(loads), 15 * self.yardstick())

    def test_cards_stand_in_groups_with_counts(self):
        self.open("folders")
        self.assertEqual(self.texts(".group h2"), [])
        for group, headings in (
            ("kind", ["Area symbols 1", "Line symbols 3", "Point symbols 1"]),
            ("file", ["roads/a.lin 2", "water/b.lin 2", "water/c.pat 1"]),
            ("folder", ["roads 2", "water 3"]),
            ("none", []),
        ):
            self.choose("#group", group)
            self.assertEqual(self.texts(".group h2"), headings)
        self.choose("#group", "folder")
        self.enter(self.find("#search"), "gas")
        self.assertEqual(self.texts(".group h2"), ["roads 1"])

    def test_groups_that_would_be_one_are_not_offered(self):
        offered = "return [...document.querySelectorAll('#group option:not([hidden])')].map((o) => o.value)"
        self.open("typical")
        self.assertEqual(browser.execute_script(offered), ["none", "kind"])
        self.open("folders")
        self.assertEqual(browser.execute_script(offered), ["none", "kind", "file", "folder"])

    def offered_tags(self):
        options = "return [...document.getElementById('tag').options].slice(1).map((option) => option.text)"
        return browser.execute_script(options)

    def test_tags_are_folders_and_files_with_their_counts(self):
        self.open("folders")
        self.assertEqual(self.offered_tags(), ["a (2)", "b (2)", "c (1)", "roads (2)", "water (3)"])
        self.assertEqual(len(self.texts("#symbols .name")), 5)
        for tag, count in (("roads", 2), ("c", 1), ("water", 3)):
            self.choose("#tag", tag)
            self.assertEqual(len(self.texts("#symbols .name")), count)
        self.assertEqual(self.find("#count").text, "3 of 5 symbols")
        self.assertEqual(self.address(), "#?tag=water")

    def test_what_loses_something_has_a_tag_that_a_search_finds_too(self):
        self.open("compared")
        self.assertEqual(self.offered_tags(), ["differs from the drawing (2)"])
        self.choose("#tag", "differs from the drawing")
        marked = self.texts("#symbols .name")
        self.assertEqual(len(marked), 2)
        self.assertNotIn("RIGHT", marked)
        self.choose("#tag", "")
        self.enter(self.find("#search"), "differs drawing")
        self.assertEqual(self.texts("#symbols .name"), marked)

    def test_tags_that_tell_no_symbols_apart_are_not_offered(self):
        self.open("typical")
        self.assertEqual(self.offered_tags(), [])
        self.menu("View")
        self.assertTrue(self.find("#kind").is_displayed())
        self.assertFalse(self.find("#tag").is_displayed())

    def test_the_large_view_leads_to_all_with_a_tag(self):
        self.open("folders")
        self.find(".picture").click()
        self.assertEqual(self.texts("#closeup-tags .tag"), ["a", "roads"])
        button = self.find("#closeup-tags .tag:nth-child(2)")
        self.assertEqual(button.get_attribute("title"), "Show all with this tag: roads (2)")
        button.click()
        self.assertFalse(self.find("#closeup").is_displayed())
        self.assertEqual(len(self.texts("#symbols .name")), 2)
        self.assertEqual(self.address(), "#?tag=roads")
        browser.get("about:blank")
        browser.get(pathlib.Path(samples, "folders.html").as_uri() + "#?tag=roads")
        self.wait(lambda: len(self.texts("#symbols .name")) == 2)
        self.assertEqual(self.find("#tag").get_attribute("value"), "roads")
        browser.get("about:blank")
        browser.get(pathlib.Path(samples, "folders.html").as_uri() + "#?tag=nowhere")
        self.wait(lambda: len(self.texts("#symbols .name")) == 5)

    def test_cards_stand_in_the_order_that_is_chosen(self):
        self.open("typical")
        for order, names in (
            ("name", ["BRICKS", "DASHDOT", "FENCE", "GAS", "TREE"]),
            ("kind", ["TREE", "DASHDOT", "GAS", "FENCE", "BRICKS"]),
            ("place", ["DASHDOT", "GAS", "FENCE", "BRICKS", "TREE"]),
        ):
            self.choose("#sort", order)
            self.assertEqual(self.texts(".name"), names)

    def test_a_search_finds_descriptions_and_files(self):
        self.open("folders")
        for words, names in (
            ("works", ["DASHDOT", "FENCE", "BRICKS", "TREE"]),
            ("water/", ["FENCE", "BRICKS", "TREE"]),
            ("roads gas", ["GAS"]),
        ):
            self.enter(self.find("#search"), words)
            self.assertEqual(self.texts(".name"), names, words)

    def test_the_tab_is_called_as_the_page(self):
        self.open("folders")
        self.assertEqual(browser.title, "folders.html")
        self.assertEqual(self.find("h1").text, "folders.html")

    def test_a_bar_tells_how_large_a_picture_is(self):
        self.open("typical")
        # The dashes of GAS come again after 0.95 units, which are 91 pixels of a picture of 300.
        bar = self.card("GAS").find_element(By.CSS_SELECTOR, ".scale-bar")
        self.assertEqual(bar.text, "0.5")
        share = bar.rect["width"] / self.card("GAS").find_element(By.CSS_SELECTOR, "svg").rect["width"]
        self.assertAlmostEqual(share, 91 / 300 / 0.95 * 0.5, delta=0.005)

    def test_all_of_a_kind_are_shown_at_one_scale(self):
        self.open("typical")
        lengths = lambda: {
            name: float(bar.text) / bar.rect["width"]
            for name in ("DASHDOT", "GAS", "FENCE")
            for bar in [self.card(name).find_element(By.CSS_SELECTOR, ".scale-bar")]
        }
        before = lengths()
        self.assertNotAlmostEqual(before["DASHDOT"], before["GAS"], delta=before["GAS"] / 20)
        self.menu("View")
        self.find("#one-scale").click()
        self.menu("View")
        self.wait(lambda: max(lengths().values()) < min(lengths().values()) * 1.02)
        self.menu("View")
        self.find("#one-scale").click()
        self.menu("View")
        self.wait(lambda: max(lengths().values()) > min(lengths().values()) * 1.02)

    def test_the_reader_chooses_the_ground(self):
        self.open("typical")
        card = self.card("DASHDOT")
        self.choose("#paper", "grey")
        self.wait(lambda: self.picture(card).getpixel((5, 5)) == (128, 128, 128))
        self.choose("#paper", "photo")
        self.wait(lambda: len(set(self.picture(card).getdata())) > 500)
        self.choose("#paper", "")
        self.wait(lambda: min(self.picture(card).getpixel((5, 5))) == 255)

    def test_one_colour_restyles_all_symbols_but_those_with_a_colour_of_their_own(self):
        self.open("typical")
        gas, fence = self.card("GAS"), self.card("FENCE")
        self.unfold(gas)
        self.pick(self.control(gas, "LINECOLOR"), "#0000ff")
        self.pick(self.find("[data-all=color]"), "#ff0000")
        self.wait(lambda: self.count(self.picture(fence), is_red) > 100)
        self.assertEqual(self.count(self.picture(fence), is_dark), 0)
        # Its text follows a colour that was not changed; its line is blue.
        self.wait(lambda: self.count(self.picture(gas), is_red) > 20)
        blue = lambda pixel: pixel[2] - max(pixel[:2]) > 60
        self.assertGreater(self.count(self.picture(gas), blue), 100)
        browser.execute_script("arguments[0].click()", self.find("#all-defaults"))
        self.wait(lambda: self.count(self.picture(gas), is_dark) > 100 and self.count(self.picture(gas), blue) == 0)
        self.assertEqual(self.control(gas, "LINECOLOR").get_attribute("value"), "#000000")

    def test_one_angle_and_one_weight_and_one_text_restyle_all_symbols(self):
        self.open("typical")
        self.menu("Restyle")
        self.enter(self.find("[data-all=text]"), "Elm")
        self.enter(self.find("[data-all=weight]"), "2")
        self.menu("Restyle")
        self.wait(lambda: self.texts("svg text")[-1] == "Elm")
        widths = "return [...arguments[0].querySelectorAll('[data-weight]')].map((e) => e.getAttribute('stroke-width'))"
        thick = {round(float(width), 2) for width in browser.execute_script(widths, self.card("DASHDOT"))}
        scale = browser.execute_script("return symbols.find((symbol) => symbol.name === 'DASHDOT').scale")
        self.assertEqual(thick, {round(2 * scale, 2)})  # two millimetres of the scale shown

    def test_one_angle_turns_all_symbols_and_stands_in_the_address(self):
        self.open("typical")
        turned = lambda name: browser.execute_script(
            "return [...arguments[0].querySelectorAll('[data-angle]')].map((e) => e.getAttribute('transform'))",
            self.card(name),
        )
        self.assertEqual(turned("BRICKS"), ["rotate(0)", "rotate(-90)"])
        self.menu("Restyle")
        self.enter(self.find("[data-all=angle]"), "30")
        self.menu("Restyle")
        self.wait(lambda: turned("BRICKS") == ["rotate(-30)", "rotate(-120)"])
        self.wait(lambda: turned("TREE") == ["rotate(-30)"])
        self.assertEqual(self.address(), "#?angle=30")
        browser.get("about:blank")
        browser.get(pathlib.Path(samples, "typical.html").as_uri() + "#?angle=30")
        self.wait(lambda: turned("TREE") == ["rotate(-30)"])

    def test_units_stand_behind_controls_and_tiles_have_sizes(self):
        self.open("typical")
        units = {}
        for name in ("GAS", "TREE"):
            card = self.card(name)
            self.unfold(card)
            for row in card.find_elements(By.CSS_SELECTOR, ".control"):
                identifier = row.find_element(By.TAG_NAME, "input").get_attribute("data-identifier")
                units[identifier] = [unit.text for unit in row.find_elements(By.CSS_SELECTOR, ".unit")]
        self.assertEqual(units["LINEWEIGHT"], ["mm"])
        self.assertEqual(units["ROTATION"], ["°"])
        self.assertEqual(units["LINECOLOR"], [])
        self.open("compared")
        detail = self.card("COURSES").find_element(By.CSS_SELECTOR, ".detail").text
        self.assertEqual(detail, "Area symbol, tile 1 × 0.1")

    def test_escape_closes_menus(self):
        self.open("typical")
        for name in ("View", "Restyle", "Download"):
            self.menu(name)
            body = self.find(".menu[open] .menu-body")
            self.assertTrue(body.is_displayed())
            browser.switch_to.active_element.send_keys(Keys.ESCAPE)
            self.assertFalse(body.is_displayed(), name)

    def test_long_names_are_whole_on_a_sheet_that_is_taken_out(self):
        self.open("hostile")
        long_names = [name for name in self.texts(".name") if len(name) > 36]
        self.assertGreater(len(long_names), 0)
        root = ElementTree.fromstring(self.taken("#take-svg")[1])
        captions = [text for text in root.findall("{http://www.w3.org/2000/svg}text") if len(text.text or "") > 36]
        self.assertEqual([caption.text for caption in captions], long_names)
        for caption in captions:
            self.assertLessEqual(float(caption.get("textLength")), 300 - 16)

    def test_a_phone_does_all_that_a_desk_does_in_light_and_dark(self):
        def walk():
            self.open("folders")
            for dark in (False, True):
                browser.execute_script("setTheme(arguments[0])", dark)
                for name in ("View", "Restyle", "Download"):
                    self.menu(name)
                    place = self.find(".menu[open] .menu-body").rect
                    self.assertGreaterEqual(place["x"], 0)
                    self.assertLessEqual(place["x"] + place["width"], 375, name)
                    self.menu(name)
                self.choose("#group", "folder")
                self.enter(self.find("#search"), "water")
                self.assertEqual(self.texts(".group h2"), ["water 3"])
                self.assertEqual(len(json.loads(self.taken("#take-json")[1])["symbols"]), 3)
                self.assertEqual(self.taken("#take-svg")[0], "symbols.svg")
                self.assertTrue(self.taken("#take-style")[1].startswith("<styles>"))
                self.card("FENCE").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
                self.assertEqual(self.address(), "#FENCE?search=water&group=folder")
                dialog = self.find("#closeup")
                self.pick(self.control(dialog, "LINECOLOR"), "#ff0000")
                self.assertGreater(self.count(self.shot(self.find("#closeup-picture")), is_red), 100)
                dialog.find_element(By.CSS_SELECTOR, ".controls .button").click()
                for selector in ("#closeup-close", "#closeup-svg", "#closeup-copy", "#closeup-next", "#closeup-zoom"):
                    place = self.find(selector).rect
                    self.assertLessEqual(place["x"] + place["width"], 375, selector)
                self.find("#closeup-next").click()
                self.assertEqual(self.find("#closeup-name").text, "BRICKS")
                self.find("#closeup-close").click()

        self.on_a_phone(walk)

    def test_the_address_keeps_what_was_changed_and_opened(self):
        self.open("typical")
        self.pick(self.find("[data-all=color]"), "#00aa00")
        card = self.card("GAS")
        self.unfold(card)
        self.enter(self.control(card, "LINEWEIGHT"), "1.5")
        card.find_element(By.CSS_SELECTOR, ".picture").click()
        address = self.address()
        self.assertTrue(address.startswith("#GAS?color=%2300aa00&set="), address)
        browser.get("about:blank")
        browser.get(pathlib.Path(samples, "typical.html").as_uri() + address)
        self.wait(lambda: self.find("#closeup").is_displayed())
        self.assertEqual(self.find("#closeup-name").text, "GAS")
        self.assertEqual(self.control(self.find("#closeup"), "LINEWEIGHT").get_attribute("value"), "1.5")
        self.assertEqual(self.control(self.find("#closeup"), "LINECOLOR").get_attribute("value"), "#00aa00")
        self.find("#closeup-close").click()
        # A dialogue tells that it is closed a moment later.
        self.wait(lambda: self.address().startswith("#?color="))

    def test_an_address_that_was_made_up_harms_nothing(self):
        for address in ("#%", "#no such?set=a&set=%/%/%&weight=x&color=<b>", "#GAS?set=GAS/LINEWEIGHT"):
            browser.get("about:blank")
            browser.get(pathlib.Path(samples, "typical.html").as_uri() + address)
            self.wait(lambda: browser.find_elements(By.CSS_SELECTOR, ".picture svg"))
            self.assertEqual([entry["message"] for entry in browser.get_log("browser")], [])

    def test_names_that_stand_twice_have_addresses_of_their_own(self):
        self.open("typical")
        self.assertEqual(
            browser.execute_script("return [...linkNames.values()]"), ["DASHDOT", "GAS", "FENCE", "BRICKS", "TREE"]
        )
        self.assertEqual(
            browser.execute_script("return uniqueNames(['A', 'A', 'A~2', 'A'])"), ["A", "A~2", "A~2~2", "A~3"]
        )

    def test_arrows_go_from_card_to_card_which_are_one_stop_of_the_tabulator(self):
        self.open("typical")
        self.card("DASHDOT").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ARROW_RIGHT)
        focused = lambda: browser.execute_script(
            "return document.activeElement.closest('.card').querySelector('.name').textContent"
        )
        self.assertEqual(focused(), "GAS")
        for key, name in (
            (Keys.END, "TREE"),
            (Keys.ARROW_UP, "DASHDOT"),  # it stands below the first of a row of four
            (Keys.ARROW_DOWN, "TREE"),
            (Keys.ARROW_LEFT, "BRICKS"),
            (Keys.HOME, "DASHDOT"),
            (Keys.ARROW_LEFT, "DASHDOT"),
        ):
            browser.switch_to.active_element.send_keys(key)
            self.assertEqual(focused(), name)
        stops = "return document.querySelectorAll('.picture[tabindex=\"0\"]').length"
        self.assertEqual(browser.execute_script(stops), 1)

    def test_arrows_go_from_symbol_to_symbol_in_the_large_view(self):
        self.open("typical")
        self.card("TREE").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
        shown = lambda: self.find("#closeup-name").text
        browser.switch_to.active_element.send_keys(Keys.ARROW_RIGHT)
        self.assertEqual(shown(), "DASHDOT")
        browser.switch_to.active_element.send_keys(Keys.ARROW_LEFT)
        self.assertEqual(shown(), "TREE")
        self.find("#closeup-previous").click()
        self.assertEqual(shown(), "BRICKS")
        self.assertEqual(self.address(), "#BRICKS")

    def test_a_wheel_zooms_the_large_view_about_the_pointer(self):
        self.open("typical")
        self.card("TREE").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
        width = lambda: self.find("#closeup-picture svg").rect["width"]
        before = width()
        browser.execute_script(
            "const v = arguments[0], r = v.getBoundingClientRect();"
            "v.dispatchEvent(new WheelEvent('wheel', {deltaY: -400, clientX: r.left, clientY: r.top, cancelable: true}));",
            self.find("#closeup-picture"),
        )
        self.assertGreater(width(), before * 2)
        self.assertEqual(browser.execute_script("return closeup.picture.scrollLeft"), 0)

    def test_two_fingers_zoom_the_large_view(self):
        self.open("typical")
        self.card("TREE").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
        width = lambda: self.find("#closeup-picture svg").rect["width"]
        before = width()
        browser.execute_script(
            "const v = arguments[0], r = v.getBoundingClientRect();"
            "const send = (type, pointerId, x) => v.dispatchEvent("
            "  new PointerEvent(type, {pointerId, pointerType: 'touch', clientX: r.left + x, clientY: r.top + 100}));"
            "send('pointerdown', 1, 100); send('pointerdown', 2, 200); send('pointermove', 2, 400);"
            "send('pointerup', 1, 100); send('pointerup', 2, 400);",
            self.find("#closeup-picture"),
        )
        self.assertAlmostEqual(width(), before * 3, delta=before * 0.1)

    def test_a_symbol_can_be_taken_out_as_svg_as_it_is_restyled(self):
        self.open("typical")
        self.card("GAS").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
        self.pick(self.control(self.find("#closeup"), "LINECOLOR"), "#ff0000")
        name, text = self.taken("#closeup-svg")
        self.assertEqual(name, "GAS.svg")
        root = ElementTree.fromstring(text)
        self.assertEqual(root.tag, "{http://www.w3.org/2000/svg}svg")
        self.assertIn('stroke="#ff0000"', text)
        self.assertNotIn("data-", text)

    def test_a_name_can_be_copied(self):
        self.open("typical")
        self.card("GAS").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
        browser.execute_cdp_cmd("Browser.grantPermissions", {"permissions": ["clipboardReadWrite"]})
        self.find("#closeup-copy").click()
        read = "navigator.clipboard.readText().then(arguments[0], (fault) => arguments[0](String(fault)))"
        self.wait(lambda: browser.execute_async_script(read) == "GAS")

    def test_what_is_shown_can_be_taken_out_as_a_sheet_and_as_a_document(self):
        self.open("typical")
        self.enter(self.find("#search"), "line symbol")
        self.enter(self.find("#search"), "S")
        shown = self.texts(".name")
        self.assertEqual(shown, ["DASHDOT", "GAS", "BRICKS"])
        name, text = self.taken("#take-svg")
        self.assertEqual(name, "symbols.svg")
        root = ElementTree.fromstring(text)
        space = "{http://www.w3.org/2000/svg}"
        self.assertEqual([caption.text for caption in root.findall(space + "text")], shown)
        self.assertEqual(len(root.findall(space + "svg")), 3)
        name, text = self.taken("#take-json")
        self.assertEqual(name, "symbols.json")
        self.assertEqual(
            json.loads(text),
            {
                "format": "styleconversion/symbols",
                "version": 1,
                "symbols": [{"name": f"</script>{place}"} for place in (0, 1, 3)],
            },
        )

    def test_what_is_shown_can_be_taken_out_as_styles_where_the_page_has_them(self):
        self.open("folders")
        self.enter(self.find("#search"), "water")
        self.menu("Download")
        self.assertTrue(self.find("#take-style").is_displayed())
        self.menu("Download")
        entry = lambda place: f'<style>ä "{place}" &lt;/script></style>\n'
        self.assertEqual(
            self.taken("#take-style"),
            ["symbols.xml", "<styles>\n" + entry(2) + entry(3) + entry(4) + "</styles>\n"],
        )
        self.open("typical")
        self.menu("Download")
        self.assertTrue(self.find("#take-json").is_displayed())
        self.assertFalse(self.find("#take-style").is_displayed())

    def test_a_phone_has_a_small_bar_and_whole_names(self):
        size = browser.get_window_size()
        browser.execute_cdp_cmd(
            "Emulation.setDeviceMetricsOverride",
            {"width": 375, "height": 812, "deviceScaleFactor": 1, "mobile": True},
        )
        try:
            for name in ("typical", "hostile", "font"):
                self.open(name)
                self.assertLess(self.find(".bar").rect["height"], 100)
                self.assertEqual(browser.execute_script("return document.documentElement.scrollWidth"), 375)
                clipped = (
                    "return [...document.querySelectorAll('.name')]"
                    ".filter((e) => e.scrollWidth > e.clientWidth + 1).map((e) => e.textContent)"
                )
                self.assertEqual(browser.execute_script(clipped), [])
            # In the large view the bar that tells the scale is on the picture, above the controls.
            self.open("typical")
            self.card("GAS").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
            bottom = lambda selector: browser.execute_script(
                "return document.querySelector(arguments[0]).getBoundingClientRect().bottom", selector
            )
            self.assertLessEqual(bottom("#closeup-scale"), bottom("#closeup-picture"))
            self.assertLess(bottom("#closeup-picture"), bottom("#closeup-controls"))
        finally:
            browser.execute_cdp_cmd("Emulation.clearDeviceMetricsOverride", {})
            browser.set_window_size(size["width"], size["height"])

    def test_symbols_that_lose_something_are_marked(self):
        self.open("compared")
        marks = lambda name: [mark.text for mark in self.card(name).find_elements(By.CSS_SELECTOR, ".loss")]
        self.assertEqual(marks("RIGHT"), [])
        self.assertEqual(marks("OPEN"), ["drawn up to 50 % <out> of place"])
        self.assertEqual(
            browser.execute_script("return symbols.map((symbol) => symbol.data.faithful !== undefined)"),
            [False, True, True],
        )

    def compare(self, name):
        """Opens the symbol and lays its faithful drawing over the strict one, if that can be done."""
        if self.find("#closeup").is_displayed():
            self.find("#closeup-close").click()
        self.card(name).find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
        button = self.find("#closeup-compare")
        if button.is_displayed() and button.get_attribute("aria-pressed") != "true":
            button.click()
        return self.shot(self.find("#closeup-picture"))

    def test_both_drawings_lie_one_over_the_other(self):
        self.open("compared")
        over = lambda pixel: pixel[0] > 180 and pixel[2] > 150 and pixel[1] < 120
        self.assertEqual(self.count(self.compare("RIGHT"), over), 0)
        self.assertFalse(self.find("#closeup-compare").is_displayed())
        self.find("#closeup-close").click()
        # The side that the strict drawing lacks; the other three lie on it.
        for common in (False, True):
            browser.execute_script("scales.set(arguments[0])", common)
            image = self.compare("OPEN")
            self.assertIn("drawn up to 50 %", self.find("#closeup-description").text)
            places = browser.execute_script(
                "const box = (svg) => svg.querySelector('path').getBoundingClientRect();"
                "const [strict, faithful] = [...closeup.picture.children].map(box);"
                "const view = closeup.picture.getBoundingClientRect();"
                "return { strict: [strict.left, strict.top, strict.right].map(Math.round),"
                " faithful: [faithful.left, faithful.top, faithful.right].map(Math.round),"
                " column: strict.left - view.left, row: (strict.top + strict.bottom) / 2 - view.top }"
            )
            self.assertEqual(places["strict"], places["faithful"])
            x, y = round(places["column"]), round(places["row"])
            self.assertTrue(any(over(image.getpixel((x + step, y))) for step in (-1, 0, 1)))
            self.assertFalse(is_dark(image.getpixel((x, y))))
        self.find("#closeup-compare").click()
        self.assertEqual(self.count(self.shot(self.find("#closeup-picture")), over), 0)

    def test_the_drawing_laid_over_follows_changed_values(self):
        self.open("compared")
        values = lambda: browser.execute_script(
            "return [...closeup.picture.children].map((svg) => {"
            "  const path = svg.querySelector('path[stroke]'), { a, b, c, d, e, f } = path.getScreenCTM();"
            "  return { place: [a, b, c, d, e, f].map((value) => Math.round(value * 1000) / 1000),"
            "    weight: Number(path.getAttribute('stroke-width')), color: getComputedStyle(path).stroke }; })"
        )
        for name, angle in (("OPEN", "30"), ("OPEN", "90"), ("COURSES", "30")):
            self.compare(name)
            before, _ = values()
            browser.execute_script("restyling.set('angle', Number(arguments[0]))", angle)
            strict, over = values()
            self.assertNotEqual(before["place"], strict["place"], name)
            self.assertEqual(strict["place"], over["place"], name)
            browser.execute_script("restyling.set('angle', undefined)")
        # The weight of a line, at every zoom; the colour of the drawing laid over stays its own.
        own = values()[1]["color"]
        browser.execute_script("restyling.set('weight', 0.05); restyling.set('color', '#00aa00')")
        for key in (Keys.HOME, Keys.END):
            self.find("#closeup-zoom").send_keys(key)
            strict, over = values()
            self.assertGreater(strict["weight"], 1.5)
            self.assertEqual(strict["weight"], over["weight"])
            self.assertEqual((strict["color"], over["color"]), ("rgb(0, 170, 0)", own))

    def test_a_hatch_is_compared_at_every_zoom_in_light_and_dark(self):
        self.open("compared")
        over = lambda pixel: pixel[0] > 150 and pixel[2] > 120 and pixel[1] < 130
        for theme in ("light", "dark"):
            self.assertGreater(self.count(self.compare("COURSES"), over), 1000, theme)
            self.find("#closeup-zoom").send_keys(Keys.END)
            widths = browser.execute_script(
                "return [...closeup.picture.children].map((svg) => svg.getBoundingClientRect().width)"
            )
            self.assertEqual(len(widths), 2)
            self.assertEqual(widths[0], widths[1])
            self.assertGreater(self.count(self.shot(self.find("#closeup-picture")), over), 100, theme)
            browser.execute_script("setTheme(true)")

    def courses(self, image):
        """How many lines run across a picture of bricks, and how far each is from the next, in pixels."""
        dark = [
            y
            for y in range(image.height)
            if sum(max(image.getpixel((x, y))) < 160 for x in range(image.width // 3, image.width // 2))
            > image.width / 8
        ]
        lines = [y for i, y in enumerate(dark) if i == 0 or y > dark[i - 1] + 1]
        return len(lines), (lines[-1] - lines[0]) / max(1, len(lines) - 1)

    def zoom_to(self, percent):
        browser.execute_script(
            "closeup.zoom.value = arguments[0]; closeup.zoom.dispatchEvent(new Event('input'))", percent
        )

    def units_of_a_pixel(self, bar):
        return float(bar.text) / bar.rect["width"]

    def on_a_phone(self, test):
        browser.execute_cdp_cmd(
            "Emulation.setDeviceMetricsOverride",
            {"width": 375, "height": 812, "deviceScaleFactor": 1, "mobile": True},
        )
        try:
            test()
        finally:
            browser.execute_cdp_cmd("Emulation.clearDeviceMetricsOverride", {})

    def test_a_hatch_that_is_made_smaller_shows_more_of_itself(self):
        def zoom_out():
            self.open("typical")
            self.card("BRICKS").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
            bar, view = self.find("#closeup-scale"), self.find("#closeup-picture svg")
            count, step = self.courses(self.shot(view))
            units = self.units_of_a_pixel(bar)
            self.zoom_to(50)
            count_of_half, step_of_half = self.courses(self.shot(view))
            self.assertAlmostEqual(step_of_half, step / 2, delta=step / 20)
            self.assertAlmostEqual(count_of_half, 2 * count, delta=2)
            self.assertAlmostEqual(self.units_of_a_pixel(bar), 2 * units, delta=units / 10)
            self.zoom_to(100)
            self.assertEqual(self.courses(self.shot(view)), (count, step))

        zoom_out()
        self.on_a_phone(zoom_out)

    def test_a_wheel_makes_a_hatch_smaller_and_nothing_else(self):
        self.open("typical")
        for name, smallest in (("BRICKS", 25), ("TREE", 100), ("DASHDOT", 100)):
            self.card(name).find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
            browser.execute_script(
                "closeup.picture.dispatchEvent(new WheelEvent('wheel', {deltaY: 4000, cancelable: true}))"
            )
            self.assertEqual(float(self.find("#closeup-zoom").get_attribute("value")), smallest, name)
            self.find("#closeup-close").click()

    def test_a_hatch_fills_its_frame_at_every_angle_and_zoom(self):
        self.open("typical")
        self.card("BRICKS").find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
        for angle in (0, 30, 45):
            self.enter(self.control(self.find("#closeup"), "HATCHANGLE"), str(angle))
            self.zoom_to(25)
            image = self.shot(self.find("#closeup-picture svg"))
            inks = []
            for column, row in ((0.1, 0.13), (0.7, 0.13), (0.4, 0.4), (0.1, 0.67), (0.7, 0.67)):
                left, top = round(column * image.width), round(row * image.height)
                part = image.crop((left, top, left + image.width // 5, top + image.height // 5))
                inks.append(self.count(part, lambda pixel: max(pixel) < 200))
            self.assertGreater(min(inks), 0.8 * max(inks), (angle, inks))

    def test_copies_of_a_tile_lie_where_the_picture_has_them(self):
        for page, name in (("typical", "BRICKS"), ("compared", "COURSES")):
            self.open(page)
            self.card(name).find_element(By.CSS_SELECTOR, ".picture").send_keys(Keys.ENTER)
            view = self.find("#closeup-picture svg")
            before = self.shot(view)
            count = browser.execute_script(
                "let count = 0;"
                "for (const { step, paths } of tilesIn(closeup.svg)) for (const { path, pieces } of paths) {"
                "  path.setAttribute('d', copiesOf(step, pieces, radiusAt(1))); ++count; }"
                "return count;"
            )
            self.assertGreater(count, 0)
            self.assertEqual(differs(self.shot(view), before), 0, name)

    def test_a_larger_card_shows_more_of_a_hatch_and_it_larger(self):
        self.open("typical")
        card = self.card("BRICKS")
        picture = self.picture(card)
        count, step = self.courses(picture)
        self.menu("View")
        self.find("#zoom").send_keys(Keys.END)
        self.menu("View")
        self.wait(lambda: self.courses(self.picture(card))[0] > 1.3 * count)
        larger, larger_step = self.courses(self.picture(card))
        self.assertGreater(larger_step, 1.2 * step)
        # Both at once: the card grew by their product.
        grown = self.picture(card).width / picture.width
        self.assertAlmostEqual(larger / count * larger_step / step, grown, delta=0.15 * grown)

    def test_a_hatch_is_compared_where_it_is_made_smaller(self):
        self.open("compared")
        over = lambda pixel: pixel[0] > 150 and pixel[2] > 120 and pixel[1] < 130
        whole = self.count(self.compare("COURSES"), over)
        self.zoom_to(50)
        boxes = browser.execute_script(
            "return [...closeup.picture.children].map((svg) => svg.getAttribute('viewBox'))"
        )
        self.assertEqual(boxes, ["-150 -110 600 440"] * 2)
        self.assertGreater(self.count(self.shot(self.find("#closeup-picture")), over), 1.5 * whole)

    def places_of_letters(self):
        """Where each letter of the first sample line begins and how wide it is, in units of the font."""
        return browser.execute_script(
            "const svg = document.querySelector('.sample svg'), { left } = svg.getBoundingClientRect();"
            "const { x, width } = svg.viewBox.baseVal, unit = svg.getBoundingClientRect().width / width;"
            "return [...svg.querySelectorAll('path')].map((path) => {"
            "  const box = path.getBoundingClientRect();"
            "  return [path.dataset.character, (box.left - left) / unit + x, box.width / unit]"
            "    .map((value) => typeof value === 'number' ? Math.round(value * 10) / 10 : value); })"
        )

    def test_a_reader_types_a_line_in_the_font(self):
        self.open("font")
        # A font without most letters shows its own first.
        self.assertEqual(self.find("#sample-text").get_attribute("value"), "IJ")
        for theme in ("light", "dark"):
            self.enter(self.find("#sample-text"), "JIé I")
            # Advances are 5, 3, 7 (what is lacking) and 6 (the space, which draws nothing).
            letters = self.places_of_letters()
            self.assertEqual([letter for letter, _, _ in letters], list("JIé I"))
            self.assertEqual(letters[:3] + letters[4:], [["J", 0, 4], ["I", 5, 2], ["é", 9, 5], ["I", 21, 2]])
            self.assertEqual(self.texts(".sample .notes"), ["Not in the font: é"])
            view = self.find(".sample svg")
            self.assertEqual(view.accessible_name, "JIé I in one.shx")
            self.assertGreaterEqual(browser.execute_script(CONTRAST, view), 4.5, theme)
            image = self.shot(view)
            paper = image.getpixel((0, 0))
            unlike = lambda pixel: max(abs(a - b) for a, b in zip(pixel, paper)) > 60
            self.assertGreater(self.count(image, unlike), 200, theme)
            self.switch_theme()
        self.enter(self.find("#sample-text"), "I")
        self.assertEqual(self.texts(".sample .notes"), [])

    def test_the_address_keeps_the_line_that_was_typed(self):
        self.open("font")
        self.enter(self.find("#sample-text"), "I & J")
        address = self.address()
        self.assertEqual(address, "#?sample=I+%26+J")
        browser.get("about:blank")
        browser.get(pathlib.Path(samples, "font.html").as_uri() + address)
        self.wait(lambda: browser.find_elements(By.CSS_SELECTOR, ".sample svg"))
        self.assertEqual(self.find("#sample-text").get_attribute("value"), "I & J")
        self.assertEqual([letter for letter, _, _ in self.places_of_letters()], list("I & J"))

    def test_the_address_keeps_what_is_shown(self):
        self.open("typical")
        self.enter(self.find("#search"), "line & gas")
        self.choose("#kind", "line")
        self.choose("#group", "kind")
        self.choose("#sort", "name")
        address = self.address()
        self.assertEqual(address, "#?search=line+%26+gas&kind=line&group=kind&sort=name")
        self.find(".skip").send_keys(Keys.ENTER)
        self.wait(lambda: browser.execute_script("return document.activeElement.id") == "symbols")
        self.assertEqual(self.address(), address)
        for address, names, controls in (
            (address, [], ["line & gas", "line", "kind", "name"]),
            ("#?kind=line&sort=name", ["DASHDOT", "FENCE", "GAS"], ["", "line", "none", "name"]),
            ("#?search=gas", ["GAS"], ["gas", "", "none", "place"]),
            # One file makes no group, and there is no such order.
            ("#?kind=point&group=file&sort=odd", ["TREE"], ["", "point", "none", "place"]),
            ("", ["DASHDOT", "GAS", "FENCE", "BRICKS", "TREE"], ["", "", "none", "place"]),
        ):
            browser.get("about:blank")
            browser.get(pathlib.Path(samples, "typical.html").as_uri() + address)
            self.wait(lambda: self.texts("#symbols .name") == names)
            shown = browser.execute_script(
                "return ['search', 'kind', 'group', 'sort'].map((id) => document.getElementById(id).value)"
            )
            self.assertEqual(shown, controls)

    def test_each_font_has_a_line_with_its_name(self):
        self.open("fonts")
        self.enter(self.find("#sample-text"), "II")
        self.assertEqual(self.texts(".sample figcaption"), ["one.shx", "two.shx"])
        lines = browser.execute_script(
            "return [...document.querySelectorAll('.sample svg')].map((svg) => svg.viewBox.baseVal.width)"
        )
        # Twice an advance and a margin of a unit at either side.
        self.assertEqual(lines, [2 * 3 + 2, 2 * 9 + 2])

    def test_pages_without_fonts_have_no_line_to_type(self):
        self.open("typical")
        self.assertFalse(self.find("#sample").is_displayed())

    def test_two_controls_of_one_name_are_told_apart(self):
        self.open("typical")
        self.assertEqual(
            browser.execute_script(
                "return labelsOf([{label: 'Hatch &Color', type: 7}, {label: 'Hatch &Color', type: 5},"
                " {label: 'A && B', type: 0}])"
            ),
            ["Hatch Color (colour)", "Hatch Color (angle)", "A & B"],
        )


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
