#!/usr/bin/env python3
"""check_help.py HELP_FOLDER PROGRAM_FOLDER: no link of the help pages leads nowhere, every page is reached, and the build laid all beside the program.

Prints a line for each fault and exits with 1 where there is one.
"""
import html.parser
import pathlib
import re
import sys


class Page(html.parser.HTMLParser):
    """What a page refers to, and how it is built."""

    def __init__(self, path):
        super().__init__()
        self.targets, self.headings, self.without_alt, self.open = [], 0, 0, []
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        if tag not in ("meta", "link", "img", "br"):
            self.open.append(tag)
        self.targets += [given[name] for name in ("href", "src") if name in given]
        self.headings += tag == "h1"
        self.without_alt += tag == "img" and not given.get("alt")

    def handle_endtag(self, tag):
        if self.open and self.open[-1] == tag:
            self.open.pop()


def faults(help_folder, program_folder):
    pages = {path.name: Page(path) for path in sorted(help_folder.glob("*.html"))}
    project = (help_folder / "Tavrelion.hhp").read_text(encoding="utf-8")
    contents = (help_folder / "Tavrelion.hhc").read_text(encoding="utf-8")
    for name, page in pages.items():
        for target in page.targets:
            if not (program_folder / "help" / target).is_file():
                yield f"{name}: {target} is not there"
            if target not in project.splitlines() and target not in pages:
                yield f"{name}: {target} is not in the help file"
        if page.headings != 1 or page.open:
            yield f"{name}: not one heading, or an element left open: {page.open}"
        if page.without_alt:
            yield f"{name}: a picture without a description"
        if name not in project.splitlines():
            yield f"{name}: not in the help file"
        if f'value="{name}"' not in contents:
            yield f"{name}: not in the contents"
    for name in re.findall(r'value="([^"]+\.html)"', contents):
        if name not in pages:
            yield f"the contents lead to {name}, which is not there"
    if "index.html" not in pages:
        yield "there is no first page"


def main():
    found = list(faults(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])))
    print("\n".join(found) or "the help is whole")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
