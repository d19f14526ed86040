"""The programs that tests of pictures run."""
import shutil
import sys


def require(*programs):
    """Ends the test as failed, with a sentence, where one of the programs is not there."""
    missing = [program for program in programs if not shutil.which(program)]
    if missing:
        sys.exit("missing: " + ", ".join(missing) + "; scripts/test.sh installs it")
