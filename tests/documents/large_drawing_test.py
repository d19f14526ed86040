"""A large drawing document is read without holding its text or a tree of it: large_drawing_test.py TOOL

The entities have long layer names, of which the drawing keeps each once; so
what the tool may hold is far less than the document."""
import os
import resource
import subprocess
import sys
import tempfile

ENTITIES = 200_000
LAYER = "a layer with a long name " * 24  # 600 characters
KIBIBYTE = 1024  # the unit of the largest resident size


def write_document(file, entities):
    file.write('{"format": "styleconversion/drawing", "version": 1, "blocks": [{"name": "SMALL", "entities": []},\n')
    file.write('{"name": "LARGE", "entities": [\n')
    for index in range(entities):
        file.write(f'{{"type": "line", "layer": "{LAYER}", "start": [{index}, 0], "end": [{index}, 0.5]}},\n')
    file.write('{"type": "point", "position": [0, 0]}]}]}\n')


def main():
    # Freed memory must be used again for the measure to mean anything in a build that looks for memory errors.
    environment = dict(os.environ, ASAN_OPTIONS="quarantine_size_mb=1:" + os.environ.get("ASAN_OPTIONS", ""))
    held = []
    sizes = []
    for entities in (0, ENTITIES):
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            write_document(file, entities)
            file.flush()
            sizes.append(os.path.getsize(file.name))
            # However busy the machine is: this is about memory.
            names = subprocess.run([sys.argv[1], "list", file.name, "--time-limit", "600"], env=environment,
                                   stdout=subprocess.PIPE, text=True, check=True).stdout
        held.append(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss * KIBIBYTE)
        if names.split() != ["SMALL", "LARGE"]:
            sys.exit(f"expected the names of two blocks, found {names!r}")
    grown = held[1] - held[0]
    print(f"document: {sizes[1]} bytes; memory: {held[0]} bytes, and {grown} more for the entities")
    if grown <= 0 or grown > sizes[1] / 2:
        sys.exit("the memory that the entities take is not well below the size of the document")


if __name__ == "__main__":
    main()
