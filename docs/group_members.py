"""A filter for Doxygen: a comment holds for all the declarations below it, up to the next empty line or comment, as
people read it. group_members.py HEADER prints the header with such declarations marked as a group."""
import sys

TYPE_WORDS = ("class ", "struct ", "enum ", "namespace ", "union ", "template", "using ", "#")


def lines_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read().splitlines()


def declarations_end(lines, start):
    """The index behind the run of declarations at `start`, and how many there are."""
    depth = count = 0
    index = start
    while index < len(lines):
        text = lines[index].strip()
        if depth == 0 and (not text or text.startswith(("//", "}", "#", "public:", "private:", "protected:"))):
            break
        depth += text.count("{") + text.count("(") - text.count("}") - text.count(")")
        index += 1
        if depth == 0 and text.split(" //")[0].endswith((";", "}")):
            count += 1
    return index, count


def grouped(lines):
    index = 0
    while index < len(lines):
        if not lines[index].strip().startswith("///"):
            yield lines[index]
            index += 1
            continue
        first = index
        while lines[index].strip().startswith("///"):
            index += 1
        end, count = declarations_end(lines, index)
        if count < 2 or lines[index].strip().startswith(TYPE_WORDS):
            yield from lines[first:index]
        else:
            # Doxygen copies the first one's comment to the others.
            yield from ["///@{", *lines[first:end], "///@}"]
            index = end


def explained(line):
    """What says the same in every class is explained here."""
    text = line.strip()
    if text == "static const OxRxClass* desc();":
        return line + " ///< The descriptor of this class."
    if text.startswith("OxGe") and text.endswith("= default;") and "const OxGe" in text:
        return line + " ///< Member by member."
    return line


def with_file_comment(lines):
    """A header's first line says what it is about: without that, functions and enumerations of no class have no page."""
    if lines and lines[0].startswith("// "):
        yield "/// @file"
        while lines and lines[0].startswith("// "):
            yield "/" + lines.pop(0)
        yield ""
    yield from lines


if __name__ == "__main__":
    lines = list(with_file_comment(lines_of(sys.argv[1])))
    print("\n".join(explained(line) for line in grouped(lines)))
