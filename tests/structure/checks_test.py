"""The checks of the source tree find what they are there to find."""
import os
import tempfile
import unittest

import check_includes
import check_numbers
import check_required


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
            "StyleConversion/pattern/C.h": '#include "TylModel/TylModel.h"\n#include "drawing/entities/D.h"\n',
            "StyleConversion/interfaces/TylModel/TylModel.h": "#include <string>\n",
            "drawing/entities/D.h": '#include "drawing/geometry/E.h"\n',
            "drawing/geometry/E.h": '#include "drawing/entities/D.h"\n',
        })
        found = sorted(line.split(": ")[0] for line in check_includes.findings(root))
        self.assertEqual(found, ["StyleConversion/encoding/A.h:1", "StyleConversion/pattern/C.h:2",
                                 "drawing/geometry/E.h:1"])

    def test_the_library_sees_a_model_through_its_one_header(self):
        root = self.tree({
            "StyleConversion/block/A.cpp": '#include "OxDb/OxDb.h"\n#include "OxDb/OxArray.h"\n',
            "StyleConversion/interfaces/HostNames.h": '#include "TylModel/M.h"\n',
            "StyleConversion/interfaces/OxDb/OxDb.h": '#include "OxDb/OxArray.h"\n',
            "StyleConversion/interfaces/OxDb/OxArray.h": "#include <vector>\n",
            "StyleConversion/interfaces/TylModel/M.h": "#include <string>\n",
            "drawing/database/D.h": '#include "OxDb/OxArray.h"\n',
        })
        found = sorted(line.split(": ")[0] for line in check_includes.findings(root))
        self.assertEqual(found, ["StyleConversion/block/A.cpp:2", "StyleConversion/interfaces/HostNames.h:1"])

    def test_an_include_against_an_arrow_between_inner_folders_is_found(self):
        root = self.tree({
            "conversions/reading/A.h": '#include "conversions/checking/B.h"\n',
            "conversions/checking/B.h": '#include "conversions/reading/C.h"\n#include "conversions/D.h"\n',
            "conversions/reading/C.h": '#include "styleconv/files/E.h"\n',
            "conversions/D.h": '#include "conversions/checking/B.h"\n#include "conversions/reading/A.h"\n',
            "styleconv/files/E.h": '#include "styleconv/commands/F.h"\n#include "styleconv/process/G.h"\n',
            "styleconv/commands/F.h": '#include "styleconv/files/E.h"\n#include "conversions/D.h"\n',
            "styleconv/process/G.h": '#include "styleconv/files/E.h"\n',
        })
        found = sorted(line.split(": ")[0] for line in check_includes.findings(root))
        self.assertEqual(found, ["conversions/checking/B.h:2", "conversions/reading/A.h:1",
                                 "conversions/reading/C.h:1", "styleconv/files/E.h:1", "styleconv/process/G.h:1"])

    def test_number_formatting_outside_the_encoding_is_found(self):
        root = self.tree({
            "StyleConversion/encoding/A.cpp": "std::to_chars(a, b, value);\n",
            "StyleConversion/shx/B.cpp": "std::snprintf(a, 9, \"%g\", v);\nint printing; // printf is not used\n",
            "drawing/C.cpp": "std::ostringstream out;\n",
        })
        found = sorted(line.split(": ")[0] for line in check_numbers.findings(root))
        self.assertEqual(found, ["StyleConversion/shx/B.cpp:1", "drawing/C.cpp:1"])

    PAGE = "docs/required-behaviour.md"
    ENTRY = "### {} It is so\n- Example: x\n- Seen: y\n- Faithful: z\n- Test: `{}`\n\n"
    TESTS = {"tests/ATest.cpp": "TEST(A, IsSo) {}\nTEST_F(B, IsSo) {}\n"}

    def required(self, page, code):
        root = self.tree({self.PAGE: page, "StyleConversion/A.cpp": code, **self.TESTS})
        return list(check_required.findings(root))

    def test_a_page_of_required_behaviour_that_is_true_passes(self):
        page = "# Page\n\n" + self.ENTRY.format("R1", "A.IsSo`, `B.IsSo") + self.ENTRY.format("R2", "B.IsSo")
        self.assertEqual(self.required(page, "// Required: R1, R2\n  // Required: R1\n"), [])

    def test_a_number_that_only_the_code_or_only_the_page_has_is_found(self):
        page = self.ENTRY.format("R1", "A.IsSo") + self.ENTRY.format("R2", "A.IsSo")
        found = self.required(page, "// Required: R1\n// Required: R3\n")
        self.assertEqual([line.split(": ")[1] for line in found],
                         ["nothing in the code is marked R2", self.PAGE + " has no R3"])

    def test_a_test_that_is_not_there_or_not_named_is_found(self):
        page = self.ENTRY.format("R1", "A.IsNot") + self.ENTRY.format("R2", "no test")
        found = self.required(page, "// Required: R1, R2\n")
        self.assertEqual([line.split(": ", 1)[1] for line in found],
                         ["R1: there is no test A.IsNot", "R2 names no test"])

    def test_more_than_numbers_behind_the_mark_and_a_gap_are_found(self):
        found = self.required(self.ENTRY.format("R2", "A.IsSo"), "// Required: R2\n// Required: R2, since it is so\n")
        self.assertEqual(len(found), 2)

    def test_an_entry_that_lacks_a_line_is_found(self):
        for line in ("- Example: x", "- Seen: y", "- Faithful: z"):
            page = self.ENTRY.format("R1", "A.IsSo").replace(line + "\n", "")
            label = line.partition(":")[0] + ":"
            self.assertEqual(self.required(page, "// Required: R1\n"),
                             [f'{self.PAGE}: R1 needs one line "{label}"'])


if __name__ == "__main__":
    unittest.main()
