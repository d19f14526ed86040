"""Runs clang-tidy over sources, several at a time: tidy.py BUILD_FOLDER SOURCE...

A source that was found clean is looked at again only when its text, a header that it includes, the checks or the
program have changed; BUILD_FOLDER/clean remembers which were.
"""
import concurrent.futures
import hashlib
import json
import os
import shlex
import subprocess
import sys


def output(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, **options).stdout


def compile_commands(folder):
    with open(os.path.join(folder, "compile_commands.json"), encoding="utf-8") as file:
        return {os.path.realpath(os.path.join(entry["directory"], entry["file"])): entry for entry in json.load(file)}


def preprocessed(entry):
    """What the compiler sees, comments included: some of them silence a check."""
    words = shlex.split(entry["command"])
    compiler = next(i for i, word in enumerate(words) if os.path.basename(word).startswith("clang"))
    words = words[compiler:]
    out = words.index("-o")
    return output(*words[:out], *words[out + 2 :], "-E", "-C", cwd=entry["directory"])


def fingerprint(folder, entry, source, version):
    state = hashlib.sha256(preprocessed(entry))
    state.update(output("clang-tidy", "-p", folder, "--dump-config", source, stderr=subprocess.DEVNULL))
    state.update(version)
    return state.hexdigest()


def check(folder, entry, source, version):
    """What is wrong with a source; nothing when it is clean."""
    clean = os.path.join(folder, "clean", fingerprint(folder, entry, source, version))
    if os.path.exists(clean):
        return ""
    run = subprocess.run(
        ["clang-tidy", "--quiet", "-p", folder, source], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True
    )
    if run.returncode == 0:
        with open(clean, "w", encoding="utf-8"):
            pass
        return ""
    return run.stdout or run.stderr or f"{source}: clang-tidy failed\n"


def main(folder, sources):
    os.makedirs(os.path.join(folder, "clean"), exist_ok=True)
    version = output("clang-tidy", "--version")
    entries = compile_commands(folder)
    missing = [source for source in sources if os.path.realpath(source) not in entries]
    for source in missing:
        print(f"{source}: the build does not compile it")
    findings = len(missing)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        jobs = [
            pool.submit(check, folder, entries[os.path.realpath(source)], source, version)
            for source in sources
            if source not in missing
        ]
        for job in concurrent.futures.as_completed(jobs):
            found = job.result()
            findings += bool(found)
            print(found, end="", flush=True)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2:]))
