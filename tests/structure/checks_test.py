"""The checks of the source tree find what they are there to find."""
import os
import tempfile
import unittest

import check_includes
import check_numbers


class Checks(unittest.TestCase):
    def tree(self, files):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        for name, text in files.items():
            path = os.path.join(folder.name, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)
        return folder.name

    def test_an_include_against_an_arrow_is_found(self):
        root = self.tree({
            "StyleConversion/encoding/A.h": '#include "StyleConversion/shx/B.h"\n',
            "StyleConversion/shx/B.h": '#include "StyleConversion/encoding/A.h"\n',
            "StyleConversion/pattern/C.h": '#include "TylModel/M.h"\n#include "drawing/D.h"\n',
            "StyleConversion/interfaces/TylModel/M.h": "#include <string>\n",
            "drawing/D.h": '#include "drawing/geometry/E.h"\n',
            "drawing/geometry/E.h": '#include "drawing/D.h"\n',
        })
        found = sorted(line.split(": ")[0] for line in check_includes.findings(root))
        self.assertEqual(found, ["StyleConversion/encoding/A.h:1", "StyleConversion/pattern/C.h:2",
                                 "drawing/geometry/E.h:1"])

    def test_number_formatting_outside_the_encoding_is_found(self):
        root = self.tree({
            "StyleConversion/encoding/A.cpp": "std::to_chars(a, b, value);\n",
            "StyleConversion/shx/B.cpp": "std::snprintf(a, 9, \"%g\", v);\nint printing; // printf is not used\n",
            "drawing/C.cpp": "std::ostringstream out;\n",
        })
        found = sorted(line.split(": ")[0] for line in check_numbers.findings(root))
        self.assertEqual(found, ["StyleConversion/shx/B.cpp:1", "drawing/C.cpp:1"])


if __name__ == "__main__":
    unittest.main()
