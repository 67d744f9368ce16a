#!/usr/bin/env python3
"""A document that comes back as it was written measures 1 in everything; one that lost something measures less in that."""
import copy
import os
import sys
import tempfile

sys.dont_write_bytecode = True

from documents import DOCUMENTS
from markup import Document, H, P
from measure import f1, measures
from truth import truth_of
from wordfile import WordFile
from wordread import WordReader


def read_back(document):
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "a.docx")
        WordFile(document).write(path)
        return WordReader(path).run()


def faults():
    for document in DOCUMENTS:
        wanted = truth_of(document)
        if wanted.contents:
            continue  # its entries are plain paragraphs in the source, which a converter is to make entries of
        for name, value in measures(wanted, read_back(document)).items():
            if value is not None and value < 1:
                yield f"{document.name}: {name} of the source itself is {value:.3f}"

    whole = truth_of(DOCUMENTS[0])
    for field, measure in (("headings", "headings"), ("items", "items"), ("cells", "cells"), ("links", "links"), ("notes", "notes"),
                           ("strong", "strong"), ("furniture", "furniture"), ("paragraphs", "paragraphs")):
        damaged = copy.deepcopy(whole)
        getattr(damaged, field).pop(0)
        if not measures(whole, damaged)[measure] < 1:
            yield f"a lost one of {field} goes unseen by {measure}"
    swapped = truth_of(Document("x", "", "en-GB", [P("three four"), H(1, "one two")]))
    if not measures(truth_of(Document("x", "", "en-GB", [H(1, "one two"), P("three four")])), swapped)["order"] < 1:
        yield "a wrong order goes unseen"
    if f1([], []) is not None or f1(["a"], []) != 0 or f1(["a", "a"], ["a"]) != 2 / 3:
        yield "f1 counts wrongly"


if __name__ == "__main__":
    found = list(faults())
    print("\n".join(found) or "1 passed, 0 failed")
    sys.exit(1 if found else 0)
