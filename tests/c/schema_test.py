"""The schema of options names those that the calls have: schema_test.py SCHEMA LIBRARY-SOURCE"""
import json
import re
import sys

with open(sys.argv[1], encoding="utf-8") as file:
    named = list(json.load(file)["properties"])
with open(sys.argv[2], encoding="utf-8") as file:
    read = re.findall(r'\{"(\w+)",\s*kIn', file.read())
assert read and named == read, f"the schema names {named}, the calls read {read}"
