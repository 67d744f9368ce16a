#!/usr/bin/env python3
"""check_includes.py ROOT: every #include "room/..." of the sources stays within what the room may see.

Prints a line for each forbidden include and exits with 1 where there is one. Linking catches most of these too; this catches headers
that need no linking.
"""
import pathlib
import re
import sys

# room: the rooms whose headers it may include (its own always).
ENGINE = {
    "base": set(),
    "pdf": {"base"},
    "document": {"base"},
    "layout": {"base", "pdf", "document"},
    "pictures": {"base", "pdf"},
    "write": {"base", "document"},
    "read": {"base"},
    "protocol": {"base"},
    "worker": {"base", "pdf", "document", "layout", "pictures", "write", "protocol"},
    "component": {"base", "protocol", "orvane"},
    "cli": {"base", "protocol", "read"},
}
APP = {
    "platform": set(),
    "records": set(),
    "services": {"platform", "records"},
    "settings": {"platform", "records", "services"},
    "i18n": {"platform", "records", "services", "settings"},
    "core": {"platform", "records", "services", "settings", "i18n", "orvane"},
    "ui": {"platform", "records", "services", "settings", "i18n", "core"},
    "main.cpp": {"platform", "records", "services", "settings", "i18n", "core", "ui"},
}
# Only these rooms may include headers of the library in question.
LIBRARIES = {
    "poppler": re.compile(r"<(?:poppler/|PDFDoc\.h|Gfx|OutputDev\.h|Object\.h|Splash|GlobalParams\.h|goo/)"),
    "qt": re.compile(r"<Q[A-Za-z]"),
}
LIBRARY_ROOMS = {"poppler": {"engine/pdf"}, "qt": {"app/records", "app/services", "app/settings", "app/i18n", "app/core", "app/ui", "app/main.cpp"}}


def faults(root):
    for side, rooms in (("engine", ENGINE), ("app", APP)):
        known = set().union(*rooms.values()) | set(rooms)
        for path in sorted((root / side).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            room = path.relative_to(root / side).parts[0]
            if room == "include":
                continue
            if room not in rooms:
                yield f"{path.relative_to(root)}: stands in no known room"
                continue
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                quoted = re.match(r'\s*#include "([^"/]+)/', line)
                if quoted and quoted[1] in known and quoted[1] != room and quoted[1] not in rooms[room]:
                    yield f"{path.relative_to(root)}:{number}: {room} may not see {quoted[1]}"
                for library, pattern in LIBRARIES.items():
                    if line.lstrip().startswith("#include") and pattern.search(line) and f"{side}/{room}" not in LIBRARY_ROOMS[library]:
                        yield f"{path.relative_to(root)}:{number}: {room} may not see {library}"


def main():
    found = list(faults(pathlib.Path(sys.argv[1])))
    print("\n".join(found) or "every include stays within what its room may see")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
