"""Validates a document against a schema: the one that a command prints, or a file.

validate.py SCHEMA COMMAND...
validate.py SCHEMA --file FILE"""
import json
import subprocess
import sys

import jsonschema


def text_of(words):
    if words[0] == "--file":
        with open(words[1], encoding="utf-8") as file:
            return file.read()
    return subprocess.run(words, stdout=subprocess.PIPE, check=True).stdout


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft202012Validator.check_schema(schema)
    errors = list(jsonschema.Draft202012Validator(schema).iter_errors(json.loads(text_of(sys.argv[2:]))))
    for error in errors[:10]:
        print(f"{error.json_path}: {error.message[:300]}")
    sys.exit(1 if errors else 0)


if __name__ == "__main__":
    main()
