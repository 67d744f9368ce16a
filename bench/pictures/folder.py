"""The PDFs of a folder with their passwords."""
import csv
import re


def documents(folder, only=""):
    """(path, name, password) of each PDF. A manifest.tsv may tell passwords: columns path and encrypted, with "password='...'" in the
    latter; the owner's is taken before the user's, since some files forbid their user to take pictures out."""
    passwords = {}
    manifest = folder / "manifest.tsv"
    if manifest.exists():
        with manifest.open(encoding="utf-8", newline="") as lines:
            for row in csv.DictReader(lines, delimiter="\t"):
                told = dict(re.findall(r"(user|owner) password='([^']*)'", row.get("encrypted") or ""))
                passwords[row["path"]] = told.get("owner", told.get("user", ""))
    for path in sorted(folder.rglob("*.pdf")):
        name = path.relative_to(folder).as_posix()
        if only in name:
            yield path, name, passwords.get(name, "")
