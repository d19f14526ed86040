"""A test that cannot look at pictures fails instead of passing: missing_programs_test.py WRITE_SAMPLES"""
import os
import subprocess
import sys
import unittest

FOLDER = os.path.dirname(os.path.abspath(__file__))


class MissingPrograms(unittest.TestCase):
    def run_script(self, script, *programs):
        command = [sys.executable, "-B", os.path.join(FOLDER, script), write_samples, *programs]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def test_pictures_fail_without_a_rasteriser(self):
        run = self.run_script("pictures_test.py", "RSVG_CONVERT-NOTFOUND")
        self.assertNotEqual(run.returncode, 0)
        self.assertIn("missing: RSVG_CONVERT-NOTFOUND;", run.stderr)

    def test_galleries_fail_without_a_browser_or_its_driver(self):
        for programs in (("CHROMIUM-NOTFOUND", sys.executable), (sys.executable, "CHROMEDRIVER-NOTFOUND")):
            run = self.run_script("gallery_test.py", *programs)
            self.assertNotEqual(run.returncode, 0)
            self.assertIn("-NOTFOUND;", run.stderr)


if __name__ == "__main__":
    write_samples = sys.argv[1]
    unittest.main(argv=sys.argv[:1], verbosity=2)
