"""Rasterises pictures and looks where they have ink: pictures_test.py WRITE_SAMPLES RSVG_CONVERT"""
import os
import subprocess
import sys
import tempfile
import unittest

from PIL import Image

import programs

MILLIMETRE = 96 / 25.4  # pixels
PICTURE = (640, 440)  # of a single symbol, above its caption
MIDDLE = (PICTURE[0] / 2, PICTURE[1] / 2)


class Raster:
    def __init__(self, name):
        svg = os.path.join(samples, name + ".svg")
        png = svg[:-3] + "png"
        subprocess.run([rsvg_convert, svg, "-o", png], check=True)
        image = Image.open(png)
        self.image = Image.new("RGB", image.size, "white")
        self.image.paste(image, mask=image.getchannel("A") if image.mode == "RGBA" else None)

    def at(self, x, y):
        return self.image.getpixel((int(x), int(y)))

    def darkness(self, x, y, reach=1):
        """The darkest pixel near a place: 0 is white, 255 is black."""
        x, y = int(x), int(y)
        return 255 - min(
            min(self.image.getpixel((i, j)))
            for i in range(x - reach, x + reach + 1)
            for j in range(y - reach, y + reach + 1)
        )

    def count(self, box, test):
        """How many pixels of a box (left, top, right, bottom) pass a test."""
        return sum(map(test, self.image.crop(tuple(int(side) for side in box)).getdata()))

    def runs(self, row, left=0, right=PICTURE[0]):
        """Pieces of ink along a row of pixels: (first, last)."""
        found, start = [], None
        for x in range(left, right + 1):
            ink = x < right and self.darkness(x, row, 0) > 90
            if ink and start is None:
                start = x
            elif not ink and start is not None:
                found.append((start, x - 1))
                start = None
        return found


def is_dark(pixel):
    return max(pixel) < 100


class Pictures(unittest.TestCase):
    def at_millimetres(self, raster, box_middle, x, y, reach=1):
        """Darkness at a place of a drawing that is shown at its size, its box in the middle."""
        return raster.darkness(
            MIDDLE[0] + (x - box_middle[0]) * MILLIMETRE, MIDDLE[1] - (y - box_middle[1]) * MILLIMETRE, reach
        )

    def assert_ink(self, raster, middle, points):
        for point in points:
            self.assertGreater(self.at_millimetres(raster, middle, *point), 100, point)

    def assert_blank(self, raster, middle, points):
        for point in points:
            self.assertLess(self.at_millimetres(raster, middle, *point), 10, point)

    def test_a_clockwise_half_circle_goes_over_the_top(self):
        raster = Raster("half-circle-clockwise")
        self.assert_ink(raster, (0, 25), [(0, 50), (-50, 0), (50, 0), (35.36, 35.36)])
        self.assert_blank(raster, (0, 25), [(0, 0), (0, -20), (35.36, 14.64)])

    def test_a_counterclockwise_half_circle_goes_underneath(self):
        raster = Raster("half-circle-counterclockwise")
        self.assert_ink(raster, (0, -25), [(0, -50), (-50, 0), (50, 0), (35.36, -35.36)])
        self.assert_blank(raster, (0, -25), [(0, 0), (0, 20), (35.36, -14.64)])

    def test_a_large_bulge_reaches_as_high_as_half_its_chord_times_the_bulge(self):
        raster = Raster("large-bulge")
        self.assert_ink(raster, (50, 50), [(50, 100), (-12.5, 37.5), (112.5, 37.5)])
        self.assert_blank(raster, (50, 50), [(50, 0), (50, 37.5), (0, 90)])

    def test_a_large_bulge_in_the_other_sense_reaches_as_low(self):
        raster = Raster("large-bulge-counterclockwise")
        self.assert_ink(raster, (50, -50), [(50, -100), (-12.5, -37.5), (112.5, -37.5)])
        self.assert_blank(raster, (50, -50), [(50, 0), (50, -37.5), (0, -90)])

    def test_a_tilted_ellipse_leans_to_the_right(self):
        raster = Raster("tilted-ellipse")
        self.assert_ink(raster, (0, 0), [(43.3, 25), (-43.3, -25), (-5, 8.66), (5, -8.66)])
        self.assert_blank(raster, (0, 0), [(43.3, -25), (-43.3, 25), (0, 0), (20, 11.5)])

    def test_a_dashed_circle_has_its_gaps(self):
        from math import cos, radians, sin

        raster = Raster("dashed-circle")
        on_circle = lambda degrees: (50 * cos(radians(degrees)), 50 * sin(radians(degrees)))
        self.assert_ink(raster, (0, 0), [on_circle(30 * i + 7.5) for i in range(12)])
        self.assert_blank(raster, (0, 0), [on_circle(30 * i + 22.5) for i in range(12)])

    def test_a_loop_inside_a_filled_loop_is_a_hole(self):
        raster = Raster("square-with-a-hole")
        for x, y in ((35, 0), (-35, 0), (0, 35), (0, -35), (-45, -45)):
            place = (MIDDLE[0] + x * MILLIMETRE, MIDDLE[1] - y * MILLIMETRE)
            self.assertEqual(raster.at(*place), (0, 0, 255), (x, y))
        self.assertEqual(raster.at(*MIDDLE), (255, 255, 255))

    def test_texts_stand_where_they_are_anchored(self):
        raster = Raster("texts")
        x, y = MIDDLE
        size = 50 * MILLIMETRE
        red = lambda pixel: pixel[0] > 200 and pixel[1] < 80 and pixel[2] < 80
        blue = lambda pixel: pixel[2] > 200 and pixel[0] < 80 and pixel[1] < 80
        # To the right of the anchor and above it; to the left and below; upwards and to the left.
        self.assertGreater(raster.count((x, y - size, x + size, y), red), 100)
        self.assertEqual(raster.count((0, 0, x - 1, PICTURE[1]), red), 0)
        self.assertEqual(raster.count((0, y + 1, PICTURE[0], PICTURE[1]), red), 0)
        self.assertGreater(raster.count((x - size, y, x, y + size), blue), 100)
        self.assertEqual(raster.count((x + 1, 0, PICTURE[0], PICTURE[1]), blue), 0)
        self.assertEqual(raster.count((0, 0, PICTURE[0], y - 1), blue), 0)
        self.assertGreater(raster.count((x - size / 2, y - size, x, y), is_dark), 100)
        self.assertEqual(raster.count((0, y + 2, PICTURE[0], PICTURE[1]), is_dark), 0)

    def test_capitals_are_as_high_as_the_text(self):
        raster = Raster("texts")
        red = lambda pixel: pixel[0] > 200 and pixel[1] < 80 and pixel[2] < 80
        x, y = MIDDLE
        rows = [row for row in range(PICTURE[1]) if raster.count((x, row, PICTURE[0], row + 1), red)]
        self.assertAlmostEqual(len(rows), 10 * MILLIMETRE, delta=3)

    def test_a_line_weight_is_millimetres_of_the_scale_shown(self):
        # Drawn as large as it is; 20 m, where a millimetre cannot be seen; 1 m in the width less its margins.
        for name, expected in (
            ("weight-small", 2.54 * MILLIMETRE),
            ("weight-large", 1),
            ("weight-of-a-sign", 20 * (PICTURE[0] - 2 * 20) / 1000),
        ):
            raster = Raster(name)
            inked = lambda pixel: max(pixel) < 200
            thick = raster.count((MIDDLE[0], 0, MIDDLE[0] + 1, PICTURE[1]), inked)
            self.assertAlmostEqual(thick, expected, delta=1, msg=name)
            self.assertGreater(thick, 0, name)

    def test_white_lines_are_shown_on_dark_paper(self):
        raster = Raster("white")
        self.assertLess(max(raster.at(100, 100)), 80)
        self.assertGreater(min(raster.at(MIDDLE[0], MIDDLE[1] - 0.5)), 120)

    def test_the_joints_of_bricks_are_staggered(self):
        raster = Raster("BRICKS")
        x, y = MIDDLE
        # A column of pixels beside the joints meets the courses only; their distance is one unit.
        column = int(x) + 5
        courses = [row for row in range(25, 415) if raster.darkness(column, row, 0) > 90]
        tops = [row for row, before in zip(courses, [0] + courses) if row - before > 2]
        unit = (tops[-1] - tops[0]) / (len(tops) - 1)
        self.assertGreater(unit, 8)
        for course in range(-3, 3):
            row = y - (course + 0.5) * unit
            for step in range(-4, 5):
                joint = (step - course) % 2 == 0
                darkness = raster.darkness(x + step * unit, row)
                self.assertEqual(darkness > 90, joint, (course, step, darkness))
                self.assertLess(raster.darkness(x + (step + 0.5) * unit, row), 10)

    def test_lines_that_go_on_in_the_next_tile_have_no_seam(self):
        raster = Raster("joined-lines")
        x, y = MIDDLE
        along = [raster.darkness(x + step, y - step) for step in range(-150, 150)]
        self.assertGreater(min(along), 0.75 * max(along))

    def test_a_dash_over_the_tiles_edge_goes_on_in_the_next_tile(self):
        raster = Raster("over-the-edge")
        row = next(row for row in range(30, 200) if len(raster.runs(row, 24, 616)) > 4)
        runs = raster.runs(row, 24, 616)[1:-1]
        lengths = [last - first + 1 for first, last in runs]
        gaps = [after[0] - before[1] - 1 for before, after in zip(runs, runs[1:])]
        self.assertLessEqual(max(lengths) - min(lengths), 1)
        # Dash and gap are both half of the repeat.
        self.assertAlmostEqual(sum(lengths) / len(lengths), sum(gaps) / len(gaps), delta=1.5)

    def test_lines_that_cross_many_tiles_are_straight(self):
        raster = Raster("slanted")
        x, y = MIDDLE
        along = [(x + step, y - 0.6 * step) for step in range(-220, 221)]
        on_line = [raster.darkness(*place) for place in along]
        self.assertGreater(min(on_line), 0.75 * max(on_line))
        # The lines through all corners of tiles of one unit lie 1/5 apart upwards; the next one is found first.
        above = next(up for up in range(6, 100) if raster.darkness(x, y - up, 0) > 90)
        between = [raster.darkness(px, py - above / 2, 0) for px, py in along]
        self.assertLess(max(between), 60)

    def test_rows_of_dashes_of_any_length_fill_the_area(self):
        for length in (0.5, 3.5, 4.0, 9.5):
            raster = Raster(f"rows-{length}")
            x, y = MIDDLE
            grey = lambda pixel: max(pixel) < 165
            inked = [row for row in range(23, 417) if raster.count((24, row, 616, row + 1), grey) > 20]
            rows = [row for row, before in zip(inked, [0] + inked) if row - before > 1]
            unit = (rows[-1] - rows[0]) / (len(rows) - 1)
            self.assertGreater(unit, 6, length)
            for number in range(-4, 5):
                start = 0.5 * (number % 3)
                for step in range(-int(1160 / unit), int(1160 / unit)):
                    place = step * 0.25 + 0.125
                    expected = (place - start) % 4 < length
                    darkness = raster.darkness(x + place * unit, y - number * unit, 1 if expected else 0)
                    self.assertEqual(darkness > 90, expected, (length, number, place, darkness))

    def assert_ticks(self, raster, unit, spot_at):
        """Red ticks at each unit across the line, blue ones at 0.5, 2.5, ... upright; 4 pixels from the line."""
        red = lambda pixel: pixel[0] > 150 and pixel[1] < 130 and pixel[2] < 130
        blue = lambda pixel: pixel[2] > 150 and pixel[0] < 130 and pixel[1] < 130
        near = lambda x, y, test: raster.count((round(x) - 1, round(y) - 1, round(x) + 1, round(y) + 1), test) > 0
        for number in range(3):
            (x, y), (across_x, across_y) = spot_at(number * unit)
            for side in (-4, 4):
                self.assertTrue(near(x + side * across_x, y + side * across_y, red), (number, side))
            (x, y), _ = spot_at((number + 0.5) * unit)
            for side in (-4, 4):
                self.assertEqual(near(x, y + side, blue), number % 2 == 0, (number, side))

    def test_each_member_has_its_own_repeat_offset_and_angle_along_every_line(self):
        from math import atan2, cos, hypot, sin

        raster = Raster("ticks")
        left, right, height = 24, 616, PICTURE[1]
        row = int(height * 0.14)
        red = lambda pixel: pixel[0] > 150 and pixel[1] < 130 and pixel[2] < 130
        columns = [x for x in range(left + 4, right) if raster.count((x, row - 4, x + 1, row + 4), red) > 4]
        ticks = [x for x, before in zip(columns, [0] + columns) if x - before > 1]
        unit = (ticks[-1] - ticks[0]) / (len(ticks) - 1)
        self.assertGreater(unit, 20)

        def on_straight(along):
            return (left + along, height * 0.14), (0, 1)

        def on_zigzag(along):
            dx, dy = (right - left) / 4, -0.23 * height
            x, y = dx / hypot(dx, dy), dy / hypot(dx, dy)
            return (left + along * x, height * 0.53 + along * y), (-y, x)

        def on_arc(along):
            half, rise = (right - left) / 2, height * 0.26
            radius = (half * half + rise * rise) / (2 * rise)
            middle_y = height * 0.91 - rise + radius
            angle = atan2(height * 0.91 - middle_y, -half) + along / radius
            x, y = cos(angle), sin(angle)
            return ((left + right) / 2 + radius * x, middle_y + radius * y), (x, y)

        for spot_at in (on_straight, on_zigzag, on_arc):
            with self.subTest(spot_at.__name__):
                self.assert_ticks(raster, unit, spot_at)

    def test_a_gas_lines_text_stands_in_its_gap(self):
        raster = Raster("GAS")
        row = int(PICTURE[1] * 0.14)
        first, last = next(run for run in raster.runs(row, 20) if run[0] >= 22)
        self.assertAlmostEqual(first, 24, delta=1)
        unit = (last - first + 1) / 0.5
        self.assertGreater(unit, 50)
        place = lambda length: 24 + length * unit
        # Between dash and text, in the text, above the dash, and in the text of the next repetition.
        self.assertEqual(raster.count((place(0.51), row - 9, place(0.555), row + 9), is_dark), 0)
        self.assertGreater(raster.count((place(0.56), row - 6, place(0.80), row + 6), is_dark), 30)
        self.assertEqual(raster.count((place(0.02), row - 9, place(0.48), row - 2), is_dark), 0)
        self.assertGreater(raster.count((place(1.51), row - 6, place(1.75), row + 6), is_dark), 30)

    def test_sheets_and_hostile_symbols_can_be_rasterised(self):
        for name in ("typical", "hostile"):
            self.assertGreater(Raster(name).image.width, 600)


if __name__ == "__main__":
    write_samples, rsvg_convert = sys.argv[1:3]
    programs.require(rsvg_convert)
    with tempfile.TemporaryDirectory() as samples:
        subprocess.run([write_samples, samples], check=True)
        unittest.main(argv=sys.argv[:1], verbosity=2)
