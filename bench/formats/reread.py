#!/usr/bin/env python3
"""reread.py PROGRAM [--only NAME ...] [--write PAGE.md] [--slack FORMAT=SHARE ...]: what RTF and DOC lose against DOCX.

PROGRAM (orvane) converts the documents of bench/quality into each format. LibreOffice opens the results, saves them as DOCX, which is
measured like any other, and prints them. So the same reader stands between all formats and the measure; the DOCX as it was written is
measured too, to tell what that reader loses. Two measures of bench/formats are added:
  places  words that stand within two points of where they stand in the print of the DOCX
  pages   1 where the print has as many pages as that of the DOCX
With --slack it fails where the mean over all measures is lower than that of the DOCX by more.
"""
import argparse
import collections
import pathlib
import re
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).parent
sys.path.insert(0, str(HERE.parent / "quality"))
import measure  # noqa: E402
from documents import DOCUMENTS  # noqa: E402
from truth import truth_of  # noqa: E402
from wordread import WordReader  # noqa: E402

FORMATS = ("docx", "rtf", "doc")
NEAR = 2.0  # points; by less a word does not seem to have moved
WORD = re.compile(r'<word xMin="([\d.-]+)" yMin="([\d.-]+)"[^>]*>(.*?)</word>')


def convert(program, documents, folder):
    for form in FORMATS:
        target = folder / form
        target.mkdir()
        for document in documents:
            source = measure.HERE / "pdf" / f"{document.name}.pdf"
            subprocess.run([program, "convert", str(source), str(target / f"{document.name}.{form}")], check=True,
                           stdout=subprocess.DEVNULL, timeout=60)


def save_as(kind, form, folder):
    """Has LibreOffice open all results of a format and save them as `kind`."""
    target = folder / f"{form}-{kind}"
    subprocess.run(["soffice", f"-env:UserInstallation=file://{folder}/profile", "--headless", "--convert-to", kind, "--outdir",
                    str(target), *map(str, sorted((folder / form).iterdir()))],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=600)
    return target


def pages_of(pdf):
    """The words of each page with the places of their top left corners. Units: points."""
    text = subprocess.run(["pdftotext", "-bbox", str(pdf), "-"], check=True, capture_output=True, timeout=60).stdout.decode()
    return [[(word, float(x), float(y)) for x, y, word in WORD.findall(page)] for page in text.split("<page ")[1:]]


def places(wanted, found):
    """The share of words that stand where they are wanted, each place taken once."""
    total = sum(len(page) for page in wanted) + sum(len(page) for page in found)
    same = 0
    for page, other in zip(wanted, found):
        free = collections.defaultdict(list)
        for word, x, y in other:
            free[word].append((x, y))
        for word, x, y in page:
            for place in free[word]:
                if abs(place[0] - x) <= NEAR and abs(place[1] - y) <= NEAR:
                    free[word].remove(place)
                    same += 1
                    break
    return 2 * same / total if total else None


def rows_of(program, documents):
    """format -> document -> measures; "docx as written" beside the formats."""
    rows = collections.defaultdict(dict)
    with tempfile.TemporaryDirectory() as work:
        folder = pathlib.Path(work)
        convert(program, documents, folder)
        saved = {form: (save_as("docx", form, folder), save_as("pdf", form, folder)) for form in FORMATS}
        for document in documents:
            truth = truth_of(document)
            printed = pages_of(saved["docx"][1] / f"{document.name}.pdf")
            written = folder / "docx" / f"{document.name}.docx"
            rows["docx as written"][document.name] = measure.measures(truth, WordReader(written).run())
            for form, (words, prints) in saved.items():
                row = measure.measures(truth, WordReader(words / f"{document.name}.docx").run())
                own = pages_of(prints / f"{document.name}.pdf")
                rows[form][document.name] = row | {"places": places(printed, own), "pages": float(len(own) == len(printed))}
    return rows


def overall(means):
    values = [value for value in means.values() if value is not None]
    return sum(values) / len(values)


def table_of(means):
    names = list(means["docx"])
    lines = ["| | " + " | ".join(names) + " | all |", "|---|" + "---:|" * (len(names) + 1)]
    for form, values in means.items():
        shown = [measure.shown(values.get(name)) for name in names]
        lines.append(f"| {form} | " + " | ".join(shown) + f" | {overall(values):.3f} |")
    return "\n".join(lines) + "\n"


def write_page(path, table):
    """Puts the table between the marks that the page has for it."""
    page = pathlib.Path(path)
    before, rest = page.read_text(encoding="utf-8").split("<!-- reread -->\n", 1)
    behind = rest.split("<!-- /reread -->", 1)[1]
    page.write_text(f"{before}<!-- reread -->\n{table}<!-- /reread -->{behind}", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--only", nargs="*")
    parser.add_argument("--write", help="the page to write the table into")
    parser.add_argument("--slack", nargs="*", default=[], help="by how much a format's mean may be lower, as rtf=0.02")
    options = parser.parse_args()
    documents = [document for document in DOCUMENTS if not options.only or document.name in options.only]
    means = {form: measure.means(rows) for form, rows in rows_of(options.program, documents).items()}
    table = table_of(means)
    print(table)
    if options.write:
        write_page(options.write, table)
    lost = {form: overall(means["docx"]) - overall(means[form]) for form in FORMATS}
    fallen = [form for form, slack in (entry.split("=") for entry in options.slack) if lost[form] > float(slack)]
    print("".join(f"{form} lost {lost[form]:.3f} against DOCX\n" for form in fallen))
    return 1 if fallen else 0


if __name__ == "__main__":
    sys.exit(main())
