"""Steps of scripts: quiet where they succeed, and told of where they fail: steps_test.py ROOT"""
import os
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = sys.argv.pop(1)


class Steps(unittest.TestCase):
    def run_script(self, text):
        """Output, errors, status and logs of a script of this text."""
        with tempfile.TemporaryDirectory() as folder:
            script = os.path.join(folder, "work.sh")
            with open(script, "w", encoding="utf-8") as file:
                file.write(f'set -euo pipefail\ncd "{folder}"\nsource "{ROOT}/scripts/steps.sh"\n{text}')
            run = subprocess.run(["bash", script], capture_output=True, text=True)
            logs = {}
            for path in re.findall(r"The whole log is (.*)", run.stderr):
                with open(path, encoding="utf-8") as file:
                    logs[os.path.relpath(path, folder)] = file.read()
            return run.stdout, run.stderr, run.returncode, logs

    def test_a_step_that_succeeds_says_its_name_only(self):
        output, errors, status, _ = self.run_script('step "Say it" echo said\nstep "Again" echo again\n')
        self.assertEqual((output, errors, status), ("== Say it\n== Again\n", "", 0))

    def test_a_step_that_fails_shows_the_end_of_its_log_and_names_the_whole(self):
        output, errors, status, logs = self.run_script(
            'work() { seq 100; echo broken >&2; exit 7; }\nstep "Do it" work\necho never\n')
        self.assertEqual((output, status), ("== Do it\n", 7))
        self.assertIn('"Do it" failed with status 7', errors)
        self.assertIn("\n  100\n  broken\n", errors)
        self.assertNotIn("\n  50\n", errors)
        self.assertEqual(logs, {"build/logs/work-Do-it.log": "".join(f"{i}\n" for i in range(1, 101)) + "broken\n"})

    def test_what_follows_a_failure_inside_of_a_step_is_not_run(self):
        output, errors, status, logs = self.run_script('work() { false; echo on; }\nstep "Do it" work\n')
        self.assertEqual((output, status), ("== Do it\n", 1))
        self.assertEqual(list(logs.values()), [""])

    def test_a_shown_step_is_seen_and_kept_and_fails_the_same(self):
        output, errors, status, logs = self.run_script('shown_step "Do it" bash -c "echo seen; exit 3"\necho never\n')
        self.assertEqual((output, status), ("== Do it\nseen\n", 3))
        self.assertIn("  seen\n", errors)
        self.assertEqual(list(logs.values()), ["seen\n"])
        output, errors, status, _ = self.run_script('shown_step "Do it" echo seen\necho last\n')
        self.assertEqual((output, errors, status), ("== Do it\nseen\nlast\n", "", 0))

    def test_every_script_that_hides_output_does_so_by_steps(self):
        scripts = os.path.join(ROOT, "scripts")
        for name in os.listdir(scripts):
            if not name.endswith(".sh") or name in ("steps.sh", "packages.sh"):
                continue
            with open(os.path.join(scripts, name), encoding="utf-8") as file:
                text = file.read()
            self.assertNotRegex(text, r"(?m)^\s*(cmake|ctest|ninja)\b.*>\s*/dev/null", name)


if __name__ == "__main__":
    unittest.main()
