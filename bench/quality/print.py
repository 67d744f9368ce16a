#!/usr/bin/env python3
"""print.py [FOLDER]: prints every document of documents.py with LibreOffice. Run when a document changed; the PDFs are kept.

The PDFs stand in the tree so that a measurement needs no word processor and compares like with like over the years.
"""
import pathlib
import subprocess
import sys
import tempfile

from documents import DOCUMENTS
from wordfile import WordFile

HERE = pathlib.Path(__file__).parent


def main():
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else HERE / "pdf"
    folder.mkdir(exist_ok=True)
    with tempfile.TemporaryDirectory() as work:
        sources = []
        for document in DOCUMENTS:
            sources.append(f"{work}/{document.name}.docx")
            WordFile(document).write(sources[-1])
        subprocess.run(["soffice", f"-env:UserInstallation=file://{work}/profile", "--headless", "--convert-to", "pdf", "--outdir",
                        str(folder), *sources], check=True, stdout=subprocess.DEVNULL, timeout=300)
    missing = [document.name for document in DOCUMENTS if not (folder / f"{document.name}.pdf").exists()]
    return f"not printed: {', '.join(missing)}" if missing else 0


if __name__ == "__main__":
    sys.exit(main())
