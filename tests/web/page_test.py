"""Drops files on the page in a browser, and compares what comes with the command line's: page_test.py PAGE STYLECONV EXAMPLES"""
import contextlib
import functools
import http.server
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading
import time
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait

PATIENCE = 60  # seconds; what is waited for comes in a few on an idle machine
FORMATS = {"json": ".json", "svg": ".svg", "html": ".html", "qgis": ".xml"}
GAS = "*GAS,Gas line ----GAS----\nA,.5,-.2,.5,-.2\n"
BRICK = "*BRICK, Bricks\n0, 0,0, 0,.25\n90, 0,0, 0,.5, .25,-.25\n"


def start_browser(home):
    options = Options()
    options.binary_location = shutil.which("chromium")
    for argument in (
        "--headless",
        "--no-sandbox",
        "--disable-gpu",
        "--disable-background-networking",
        "--disable-component-update",
        "--disable-sync",
        "--disable-dev-shm-usage",
        "--no-first-run",
        "--window-size=1280,900",
        "--user-data-dir=" + os.path.join(home, "profile"),
    ):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    return webdriver.Chrome(options=options, service=Service(shutil.which("chromedriver")))


class Page(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.downloads = self.folder / "downloads"
        self.downloads.mkdir()
        browser.execute_cdp_cmd(
            "Browser.setDownloadBehavior", {"behavior": "allow", "downloadPath": str(self.downloads)}
        )
        self.open(PAGE.as_uri())

    def tearDown(self):
        # Whatever a test did, nothing was complained of and nothing left the machine.
        self.assertEqual([entry["message"] for entry in browser.get_log("browser")], [])
        self.assertEqual([address for address in self.requests() if not address.startswith(self.own)], [])

    def requests(self):
        messages = [json.loads(entry["message"])["message"] for entry in browser.get_log("performance")]
        addresses = [
            message["params"]["request"]["url"]
            for message in messages
            if message["method"] == "Network.requestWillBeSent"
        ]
        return [address for address in addresses if not address.startswith(("data:", "blob:", "about:", "chrome:"))]

    def open(self, address):
        self.own = address
        browser.get("about:blank")
        browser.get(address)
        self.wait_for("ready")

    def find(self, selector):
        return browser.find_element(By.CSS_SELECTOR, selector)

    def state(self):
        return self.find("html").get_attribute("data-state")

    def wait(self, condition):
        return WebDriverWait(browser, PATIENCE, poll_frequency=0.05).until(lambda _: condition())

    def wait_for(self, state):
        self.wait(lambda: self.state() == state)

    def status(self):
        return self.find("#status").text

    def write(self, name, content):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content.encode() if isinstance(content, str) else content)
        return path

    def drop(self, *paths):
        data = {"items": [], "files": [str(path) for path in paths], "dragOperationsMask": 1}
        for kind in ("dragEnter", "dragOver", "drop"):
            browser.execute_cdp_cmd("Input.dispatchDragEvent", {"type": kind, "x": 200, "y": 400, "data": data})

    def convert(self, *paths):
        self.drop(*paths)
        self.wait(lambda: self.state() in ("working", "shown"))
        self.wait_for("shown")

    def findings(self):
        return browser.execute_script(
            "return [...document.querySelectorAll('#findings li')].map((item) => item.textContent)"
        )

    def gallery_names(self):
        browser.switch_to.frame(self.find("#gallery"))
        try:
            self.wait(lambda: browser.find_elements(By.CSS_SELECTOR, ".picture svg"))
            return browser.execute_script(
                "return [...document.querySelectorAll('.card .name')].map((name) => name.textContent)"
            )
        finally:
            browser.switch_to.default_content()

    def download(self, form):
        browser.execute_script("document.querySelector(`[data-format=${arguments[0]}]`).click()", form)
        made = lambda: [path for path in self.downloads.iterdir() if path.suffix == FORMATS[form]]
        self.wait(made)
        self.wait_for("shown")
        [path] = made()
        content = path.read_bytes()
        path.unlink()
        return path.name, content

    def tool(self, arguments, folder):
        return subprocess.run([TOOL, *arguments], cwd=folder, capture_output=True, check=False).stdout

    def assert_as_tool(self, arguments, folder, options=()):
        for form in FORMATS:
            expected = self.tool(["convert", *arguments, "--format", form, *options], folder)
            name, content = self.download(form)
            self.assertEqual(content, expected, f"{arguments} {form}")
        return name


class Kinds(Page):
    def test_each_example_comes_out_as_from_the_command_line_to_the_byte(self):
        compared = 0
        for source in sorted(EXAMPLES.rglob("*")):
            if source.suffix not in (".lin", ".pat", ".shx", ".dxf", ".json"):
                continue
            path = self.write(f"{compared}/{source.name}", source.read_bytes())
            if not self.tool(["convert", source.name, "--format", "json"], path.parent):
                continue
            self.convert(path)
            self.assert_as_tool([source.name], path.parent)
            browser.execute_script("document.getElementById('start-over').click()")
            self.wait_for("ready")
            compared += 1
        self.assertGreaterEqual(compared, 12)

    def test_the_gallery_is_shown_and_restyles(self):
        self.convert(self.write("gas.lin", GAS))
        self.assertEqual(self.status(), "1 file, 1 symbol")
        self.assertEqual(self.gallery_names(), ["GAS"])
        browser.switch_to.frame(self.find("#gallery"))
        drawn = lambda: self.find(".picture").get_attribute("innerHTML")
        before = drawn()
        browser.execute_script(
            "const all = document.querySelector('[data-all=color]'); all.value = '#ff0000';"
            "all.dispatchEvent(new Event('input', {bubbles: true}));"
            "all.dispatchEvent(new Event('change', {bubbles: true}));"
        )
        self.wait(lambda: drawn() != before)
        self.assertIn("ff0000", drawn().lower())
        browser.switch_to.default_content()

    def test_files_are_chosen_by_a_button_too(self):
        self.find("#files").send_keys(str(self.write("gas.lin", GAS)))
        self.wait_for("shown")
        self.assertEqual(self.gallery_names(), ["GAS"])

    def test_several_files_are_one_result(self):
        gas, brick = self.write("gas.lin", GAS), self.write("brick.pat", BRICK)
        self.convert(gas, brick)
        self.assertEqual(self.status(), "2 files, 2 symbols")
        for form in ("json", "svg", "html"):
            expected = self.tool(["convert", "gas.lin", "brick.pat", "--format", form], self.folder)
            self.assertEqual(self.download(form)[1], expected, form)

    def test_options_are_those_of_the_command_line(self):
        path = self.write("gas.lin", GAS + "*BROKEN,Broken\nA,.5,x\n")
        self.convert(path)
        self.assertEqual(self.status(), "1 file, 0 symbols")
        self.assertTrue(any("gas.lin, line 4" in finding for finding in self.findings()), self.findings())
        browser.execute_script("document.getElementById('tolerant').click()")
        self.wait(lambda: self.status() == "1 file, 1 symbol")
        self.assert_as_tool(["gas.lin"], self.folder, ["--tolerant"])


class Folders(Page):
    def make_folder(self):
        complex_lines = (EXAMPLES / "linetypes" / "complex.lin").read_bytes()
        self.write("site/lines/complex.lin", complex_lines)
        for shapes in (EXAMPLES / "shapes").glob("*.shx"):
            self.write(f"site/lines/{shapes.name.upper()}", shapes.read_bytes())
        self.write("site/lines/gas.lin", GAS)
        self.write("site/brick.pat", BRICK)
        self.write("site/notes.txt", "nothing to convert")
        self.write("site/package.json", '{"name": "other"}')
        return self.folder / "site"

    def test_a_folder_comes_out_as_from_the_command_line_with_its_shape_files(self):
        self.convert(self.make_folder())
        self.assertIn("; 2 files of no kind that is converted", self.status())
        for form in ("json", "svg", "html"):
            expected = self.tool(["convert", "site", "--format", form], self.folder)
            self.assertGreater(len(expected), 0)
            self.assertEqual(self.download(form)[1], expected, form)
        expected = self.tool(["convert", "site", "--format", "qgis"], self.folder)
        self.assertEqual(self.download("qgis")[1], expected)

    def test_shape_files_are_found_elsewhere_among_what_was_dropped(self):
        lines = self.write("a/complex.lin", (EXAMPLES / "linetypes" / "complex.lin").read_bytes())
        self.convert(lines)
        alone = len(self.findings())
        self.assertGreater(alone, 0)
        shapes = self.folder / "b"
        for source in (EXAMPLES / "shapes").glob("*.shx"):
            self.write(f"b/{source.name.upper()}", source.read_bytes())
        self.drop(shapes)
        self.wait(lambda: "symbols" in self.status() and self.state() == "shown" and "0 symbols" not in self.status())
        self.assertFalse(any("shape file" in finding for finding in self.findings()), self.findings())


class Hardships(Page):
    def test_garbage_is_refused_and_the_page_lives_on(self):
        garbage = bytes((index * 7919) % 251 for index in range(20000))
        names = ("a.lin", "b.pat", "c.shx", "d.dxf", "e.json", "f.bin")
        self.convert(*(self.write(name, garbage) for name in names))
        self.assertEqual(self.status(), "6 files, 0 symbols")
        found = "\n".join(self.findings())
        for name in names:
            self.assertIn(name, found)
        self.convert_gas()

    def convert_gas(self):
        self.drop(self.write("gas.lin", GAS))
        self.wait(lambda: self.state() == "shown" and "1 symbol" in self.status())
        self.assertEqual(self.gallery_names(), ["GAS"])

    def test_a_hundred_megabytes_are_read_and_the_page_lives_on(self):
        self.convert(self.write("large.lin", b"no linetype here\n" * 6_000_000))
        self.assertEqual(self.status(), "1 file, 0 symbols")
        self.assertTrue(any("large.lin" in finding for finding in self.findings()), self.findings())
        self.convert_gas()

    def test_a_file_beyond_the_limit_says_so_and_the_others_are_converted(self):
        huge = self.write("huge.pat", b"")
        os.truncate(huge, 300 << 20)
        self.convert(huge, self.write("gas.lin", GAS))
        self.assertTrue(any("huge.pat" in finding and "memory" in finding for finding in self.findings()))
        self.assertEqual(self.gallery_names(), ["GAS"])

    def test_a_module_that_runs_out_of_memory_says_so_and_the_others_are_converted(self):
        # Twenty million values of a document take more than a gigabyte.
        many = '{"format":"styleconversion/symbols","version":1,"symbols":[' + "{}," * 20_000_000 + "{}]}"
        self.convert(self.write("many.json", many), self.write("gas.lin", GAS))
        self.assertTrue(any("many.json" in finding and "memory" in finding for finding in self.findings()))
        self.assertEqual(self.gallery_names(), ["GAS"])

    def test_a_conversion_is_cancelled_and_the_page_lives_on(self):
        slow = "".join(f"*LINE{index},a line\nA,.5,-.2\n" for index in range(60_000))
        self.drop(self.write("slow.lin", slow))
        self.wait_for("working")
        self.find("#cancel").click()
        self.assertEqual(self.state(), "cancelled")
        self.assertEqual(self.status(), "Cancelled")
        browser.execute_script("document.getElementById('start-over').click()")
        self.wait_for("ready")
        self.convert_gas()


class Looks(Page):
    def test_a_phone_shows_all_of_it(self):
        browser.set_window_size(500, 800)
        self.addCleanup(browser.set_window_size, 1280, 900)
        self.convert(self.write("gas.lin", GAS + "*GAS,Again\nA,.5,-.2\n"), self.write("x.bin", b"\0"))
        wide = browser.execute_script("return document.documentElement.scrollWidth - innerWidth")
        self.assertLessEqual(wide, 0)
        for selector in ("#gallery", "#messages", "#choose-files", "#downloads"):
            self.assertTrue(self.find(selector).is_displayed(), selector)

    def test_dark_and_light_are_legible(self):
        for scheme in ("light", "dark"):
            browser.execute_cdp_cmd(
                "Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": scheme}]}
            )
            pair = browser.execute_script(
                "const style = getComputedStyle(document.querySelector('.welcome h2'));"
                "return [style.color, getComputedStyle(document.body).backgroundColor]"
            )
            levels = [sum(map(int, text[text.index("(") + 1 : -1].split(",")[:3])) / 3 for text in pair]
            self.assertGreater(abs(levels[0] - levels[1]), 150, scheme)
        browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": []})

    def test_every_control_has_a_name_and_is_reached_by_keyboard(self):
        browser.execute_script("document.getElementById('options').open = true")
        nameless = [
            element.get_attribute("outerHTML")
            for element in browser.find_elements(By.CSS_SELECTOR, "button, select, input, summary")
            if element.is_displayed() and not element.accessible_name
        ]
        self.assertEqual(nameless, [])
        reached = browser.execute_script(
            "return [...document.querySelectorAll('button, select, summary')].every((each) => each.tabIndex === 0)"
        )
        self.assertTrue(reached)


class Speed(Page):
    def test_it_is_ready_and_converts_436_hatches_in_seconds(self):
        started = time.monotonic()
        self.open(PAGE.as_uri() + "?again")
        ready = time.monotonic() - started
        hatches = "".join(
            f"*H{index}, hatch\n{index % 90}, 0,0, 0,.25\n{(index + 45) % 180}, 0,0, .125,.25, .25,-.25\n"
            for index in range(436)
        )
        started = time.monotonic()
        self.convert(self.write("hatches.pat", hatches))
        converted = time.monotonic() - started
        self.assertIn("1 file, ", self.status())
        print(f"ready after {ready:.2f} s, {self.status()} after {converted:.2f} s")
        # Other programs may keep the machine busy.
        self.assertLess(max(ready, converted), 10)
        self.own = "file:"


class Served(Page):
    def test_the_same_file_works_from_a_server_of_static_files(self):
        class Quiet(http.server.SimpleHTTPRequestHandler):
            def log_message(self, *_):
                pass

        server = http.server.ThreadingHTTPServer(
            ("127.0.0.1", 0), functools.partial(Quiet, directory=str(PAGE.parent))
        )
        threading.Thread(target=server.serve_forever, daemon=True).start()
        with contextlib.closing(server.socket):
            self.requests()
            self.open(f"http://127.0.0.1:{server.server_port}/{PAGE.name}")
            self.convert(self.write("gas.lin", GAS))
            self.assertEqual(self.gallery_names(), ["GAS"])
            # Nothing but the page itself is asked for.
            self.assertEqual(self.requests(), [self.own])
            server.shutdown()


if __name__ == "__main__":
    PAGE, TOOL, EXAMPLES = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    with tempfile.TemporaryDirectory() as home:
        os.environ["HOME"] = home
        browser = start_browser(home)
        try:
            result = unittest.main(argv=sys.argv[:1] + sys.argv[4:], verbosity=2, exit=False).result
        finally:
            browser.quit()
    sys.exit(not result.wasSuccessful())
