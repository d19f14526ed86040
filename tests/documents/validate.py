"""Runs a command and validates the document that it prints: validate.py SCHEMA COMMAND..."""
import json
import subprocess
import sys

import jsonschema


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft202012Validator.check_schema(schema)
    text = subprocess.run(sys.argv[2:], stdout=subprocess.PIPE, check=True).stdout
    errors = list(jsonschema.Draft202012Validator(schema).iter_errors(json.loads(text)))
    for error in errors[:10]:
        print(f"{error.json_path}: {error.message[:300]}")
    sys.exit(1 if errors else 0)


if __name__ == "__main__":
    main()
