#!/usr/bin/env python3
"""merge-coverage.py <root> <build folder>: the counts of a coverage build as one trace file for gcovr, on the output.

gcov reports each instantiation of a template, in each translation unit, on its own. Here a branch counts as taken
where any instantiation of the same shape takes it. Left out are the branches that belong to exceptions: a call and its
way out by an exception, the choice between handlers, and what only such a way leads to, which is never reached. A line
that ends in a comment with GCOVR_EXCL_LINE is left out as well; the comment says why.
"""

import collections
import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys
import tempfile

FOLDERS = ("Utils/", "CollaborationUtils/", "DOM/")


def format_version():
    """That of the trace files which the installed gcovr writes, and so reads."""
    with tempfile.TemporaryDirectory() as folder:
        text = subprocess.run(["gcovr", "--json"], cwd=folder, capture_output=True, text=True, check=True).stdout
    return json.loads(text)["gcovr/format_version"]


def read_counts(data_file):
    """What gcov tells of one translation unit."""
    with tempfile.TemporaryDirectory() as folder:
        text = subprocess.run(
            ["gcov", "--branch-probabilities", "--branch-counts", "--json-format", "--stdout", data_file],
            cwd=folder, capture_output=True, text=True, check=True).stdout
    return [json.loads(line) for line in text.splitlines() if line.startswith("{")]


def real_branches(branches):
    """The counts of the branches, in pairs, that do not belong to exceptions."""
    counts = []
    for index in range(0, len(branches), 2):
        pair = branches[index:index + 2]
        if any(branch["throw"] for branch in pair):
            continue
        counts += [branch["count"] for branch in pair]
    return counts


def add(total, counts):
    return [first + second for first, second in zip(total, counts)] if total else counts


def without_unreached(counts):
    reached = []
    for index in range(0, len(counts), 2):
        pair = counts[index:index + 2]
        if any(pair):
            reached += pair
    return reached


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    # file -> line -> [count, number of branches -> counts]
    files = collections.defaultdict(lambda: collections.defaultdict(lambda: [0, {}]))
    data_files = [str(path.resolve()) for path in sorted(pathlib.Path(sys.argv[2]).rglob("*.gcda"))]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for units in pool.map(read_counts, data_files):
            for file in (file for unit in units for file in unit["files"]):
                name = os.path.relpath(root / file["file"], root)
                if not name.startswith(FOLDERS):
                    continue
                for line in file["lines"]:
                    entry = files[name][line["line_number"]]
                    entry[0] += line["count"]
                    counts = real_branches(line["branches"])
                    if counts:
                        entry[1][len(counts)] = add(entry[1].get(len(counts)), counts)

    report = []
    for name in sorted(files):
        source = (root / name).read_text(encoding="utf-8").splitlines()
        lines = []
        for number, (count, shapes) in sorted(files[name].items()):
            text = source[number - 1]
            if "GCOVR_EXCL_LINE" in text:
                continue
            counts = [] if "catch (" in text else [
                count for shape in sorted(shapes) for count in without_unreached(shapes[shape])]
            lines.append({
                "line_number": number, "count": count, "gcovr/noncode": False, "gcovr/excluded": False,
                "branches": [{"count": taken, "fallthrough": False, "throw": False} for taken in counts]})
        report.append({"file": name, "lines": lines, "functions": []})
    json.dump({"gcovr/format_version": format_version(), "files": report}, sys.stdout)


main()
