#!/usr/bin/python3
"""speed.py PROGRAM FOLDER [--rounds N] [--only PART]: how long PROGRAM (orvane) takes to take the pictures out of the PDFs of FOLDER as
they stand, against pdfimages -all.

Each PDF is taken apart by both in turn, N times; of each the quickest counts, so that what else the machine does counts less. Prints the
sums over all PDFs with pictures, the share of them, and the PDFs that lose most.
"""
import argparse
import pathlib
import subprocess
import tempfile
import time

import folder as pdfs
import peer

SLOWEST = 8


def seconds(command, output):
    """How long one run takes; its files go to a folder of their own."""
    with tempfile.TemporaryDirectory() as scratch:
        start = time.perf_counter()
        result = subprocess.run([*command, output(pathlib.Path(scratch))], capture_output=True, check=False)
        return time.perf_counter() - start, result.returncode, sum(1 for _ in pathlib.Path(scratch).rglob("*.*"))


def measure(program, pdf, password, rounds):
    """The quickest runs of orvane and of pdfimages; None where one of them fails or there is no picture."""
    with tempfile.NamedTemporaryFile("w", suffix=".txt") as secret:
        secret.write(password + "\n")
        secret.flush()
        ours = [program, "images", "--format", "original", *(["--password-file", secret.name] if password else []), pdf]
        theirs = ["pdfimages", "-all", *peer.secret(password), pdf]
        best = [float("inf"), float("inf")]
        for _ in range(rounds):
            for i, (command, output) in enumerate(((ours, lambda scratch: scratch / "out"), (theirs, lambda scratch: scratch / "p"))):
                taken, code, files = seconds(command, output)
                if code != 0 or files == 0:
                    return None
                best[i] = min(best[i], taken)
    return best


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--only", default="")
    arguments = parser.parse_args()
    rows = []
    for pdf, name, password in pdfs.documents(arguments.folder, arguments.only):
        measured = measure(arguments.program, pdf, password, arguments.rounds)
        if measured:
            rows.append((*measured, name))
    ours, theirs = sum(row[0] for row in rows), sum(row[1] for row in rows)
    print(f"{len(rows)} PDFs with pictures: orvane {ours:.2f} s, pdfimages {theirs:.2f} s, {ours / theirs:.2f} times")
    for mine, peers, name in sorted(rows, key=lambda row: row[1] - row[0])[:SLOWEST]:
        print(f"  {mine - peers:+.2f} s, {mine / peers:.1f} times: {name}")


if __name__ == "__main__":
    main()
