"""Opens galleries in a headless browser and prints what they take of its processor time, so that other programs do not
count: a page of 7,000 glyphs until its first pictures are seen, and a page of 2,000 linetypes while it is scrolled, 150
pixels a frame and then 900: gallery_benchmark.py STYLECONV CHROMIUM CHROMEDRIVER"""
import os
import pathlib
import random
import shutil
import struct
import subprocess
import sys
import tempfile

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

RUNS = 3
EXAMPLES = pathlib.Path(__file__).parent.parent.parent / "examples"
# Two frames, for what is drawn anew stands there in the second.
FRAMES = "requestAnimationFrame(() => requestAnimationFrame(() => done()))"
FIRST_PICTURE = f"""const done = arguments[0];
const look = () => document.querySelector('.picture svg') ? {FRAMES} : requestAnimationFrame(look);
look();"""
SCROLL = f"const done = arguments[1]; scrollBy(0, arguments[0]); {FRAMES};"


def linetype(number, numbers):
    element = numbers.choice(("", "[ARROW,marks.shx,S=.2],-.2,", '["GAS",STANDARD,S=.2,X=-.1,Y=-.1],-.6,'))
    dash = numbers.randint(1, 20) / 4
    return f"*LINE-{number:04},line {number}\nA,{dash},-.25,{element}{dash / 2},-.25\n"


def font(count, numbers):
    """Glyphs of 30 strokes each."""
    strokes = (0x10, 0x14, 0x18, 0x1C, 0x12, 0x16, 0x1A, 0x1E, 0x24, 0x20)
    entries = [(0, b"FONT\0" + bytes((10, 2, 0, 0, 0, 0)))]
    for number in range(count):
        entries.append((0x21 + number, b"\0" + bytes(numbers.choice(strokes) for _ in range(30)) + b"\0"))
    head = b"Vorlanx-86 unifont 1.0\r\n\x1a" + struct.pack("<H", len(entries))
    return head + b"".join(struct.pack("<HH", number, len(entry)) + entry for number, entry in entries)


def pages(styleconv, folder):
    numbers = random.Random(1)
    (folder / "lines.lin").write_text("".join(linetype(number, numbers) for number in range(2000)))
    (folder / "font.shx").write_bytes(font(7000, numbers))
    shutil.copy(EXAMPLES / "shapes" / "marks.shx", folder)
    for name in ("lines.lin", "font.shx"):
        subprocess.run([styleconv, "convert", folder / name, "-o", folder / (name + ".html")], check=True,
                       stderr=subprocess.DEVNULL)


class Browser:
    def __init__(self, chromium, chromedriver, profile):
        options = Options()
        options.binary_location = chromium
        for argument in ("--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
                         "--window-size=1280,900", "--user-data-dir=" + profile):
            options.add_argument(argument)
        self.driver = webdriver.Chrome(options=options, service=Service(chromedriver))
        self.driver.execute_cdp_cmd("Performance.enable", {"timeDomain": "threadTicks"})

    def time(self):
        """Seconds that the thread of the page has computed."""
        metrics = self.driver.execute_cdp_cmd("Performance.getMetrics", {})["metrics"]
        return next(entry["value"] for entry in metrics if entry["name"] == "TaskDuration")

    def load(self, page):
        self.driver.get("about:blank")
        before = self.time()
        self.driver.get(page.as_uri())
        self.driver.execute_async_script(FIRST_PICTURE)
        return self.time() - before

    def frames(self, page, steps):
        self.load(page)
        times = []
        for step in steps:
            before = self.time()
            self.driver.execute_async_script(SCROLL, step)
            times.append(self.time() - before)
        return times


def main(styleconv, chromium, chromedriver):
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as profile:
        pages(styleconv, pathlib.Path(folder))
        browser = Browser(chromium, chromedriver, os.path.join(profile, "profile"))
        try:
            loads = [browser.load(pathlib.Path(folder, "font.shx.html")) for _ in range(RUNS)]
            print(f"7,000 glyphs: {min(loads):.2f} s until the first pictures")
            for step, count in ((150, 150), (900, 50)):
                runs = [browser.frames(pathlib.Path(folder, "lines.lin.html"), [step] * count) for _ in range(RUNS)]
                least = [min(times) for times in zip(*runs)]
                print(f"2,000 linetypes, {step} pixels a step: {1000 * max(least):.0f} ms the longest, "
                      f"{1000 * sorted(least)[count // 2]:.0f} ms the usual one, of {count}")
        finally:
            browser.driver.quit()


if __name__ == "__main__":
    main(*sys.argv[1:4])
