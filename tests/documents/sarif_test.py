"""SARIF logs of checks have what version 2.1.0 requires, and agree with the findings document of the same files:
sarif_test.py STYLECONV ROOT"""
import json
import os
import subprocess
import sys
import unittest
from urllib.parse import unquote

import jsonschema

ROOT = sys.argv.pop(2)
TOOL = sys.argv.pop(1)

MESSAGE = {"type": "object", "required": ["text"], "properties": {"text": {"type": "string", "minLength": 1}}}
LOCATION = {
    "type": "object",
    "required": ["physicalLocation"],
    "properties": {
        "physicalLocation": {
            "type": "object",
            "required": ["artifactLocation"],
            "properties": {
                "artifactLocation": {"type": "object", "required": ["uri"], "additionalProperties": False,
                                     "properties": {"uri": {"type": "string", "pattern": "^[!-~]+$"}}},
                "region": {"type": "object", "minProperties": 1, "additionalProperties": False,
                           "properties": {"startLine": {"type": "integer", "minimum": 1},
                                          "byteOffset": {"type": "integer", "minimum": 0}}},
            },
            "additionalProperties": False,
        },
        "logicalLocations": {"type": "array", "items": {
            "type": "object", "additionalProperties": False,
            "properties": {"fullyQualifiedName": {"type": "string", "minLength": 1}}}},
    },
    "additionalProperties": False,
}
SCHEMA = {
    "type": "object",
    "required": ["version", "runs"],
    "properties": {
        "$schema": {"type": "string", "format": "uri"},
        "version": {"const": "2.1.0"},
        "runs": {"type": "array", "minItems": 1, "maxItems": 1, "items": {
            "type": "object",
            "required": ["tool", "results"],
            "additionalProperties": False,
            "properties": {
                "tool": {"type": "object", "required": ["driver"], "additionalProperties": False, "properties": {
                    "driver": {
                        "type": "object", "required": ["name", "version", "rules"],
                        "properties": {"rules": {"type": "array", "uniqueItems": True, "items": {
                            "type": "object", "required": ["id", "shortDescription", "help"],
                            "additionalProperties": False,
                            "properties": {"id": {"type": "string"}, "shortDescription": MESSAGE, "help": MESSAGE},
                        }}},
                    }}},
                "results": {"type": "array", "items": {
                    "type": "object",
                    "required": ["message", "ruleId", "ruleIndex", "level", "locations"],
                    "additionalProperties": False,
                    "properties": {
                        "ruleId": {"type": "string"},
                        "ruleIndex": {"type": "integer", "minimum": 0},
                        "level": {"enum": ["none", "note", "warning", "error"]},
                        "message": MESSAGE,
                        "locations": {"type": "array", "items": LOCATION},
                        "occurrenceCount": {"type": "integer", "minimum": 1},
                        "properties": {"type": "object"},
                    },
                }},
            },
        }},
    },
    "additionalProperties": False,
}


def run(form, *files):
    return json.loads(subprocess.run([TOOL, "check", *files, "--notes", "--format", form], capture_output=True,
                                     encoding="utf-8", check=False).stdout)


class Sarif(unittest.TestCase):
    def setUp(self):
        self.folder = os.path.join(ROOT, "examples")
        self.log = run("sarif", self.folder)
        self.run = self.log["runs"][0]

    def test_the_log_has_what_is_required(self):
        jsonschema.validate(self.log, SCHEMA)

    def test_each_result_has_its_rule(self):
        rules = self.run["tool"]["driver"]["rules"]
        self.assertGreater(len(rules), 2)
        for result in self.run["results"]:
            self.assertEqual(rules[result["ruleIndex"]]["id"], result["ruleId"])

    def test_results_are_the_findings(self):
        findings = run("json", self.folder)["findings"]
        self.assertGreater(len(findings), 5)
        self.assertEqual([(result["ruleId"], result["level"]) for result in self.run["results"]],
                         [(finding["code"], finding["severity"]) for finding in findings])
        for result, finding in zip(self.run["results"], findings):
            place = result["locations"][0]["physicalLocation"]
            uri = unquote(place["artifactLocation"]["uri"])
            self.assertTrue(uri.endswith(finding["file"].replace("\\", "/")), uri)
            self.assertEqual(place.get("region", {}).get("startLine"), finding.get("line"))


if __name__ == "__main__":
    unittest.main()
