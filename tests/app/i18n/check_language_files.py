#!/usr/bin/env python3
"""check_language_files.py XML_FOLDER CONTROLS: holds the eighteen language files against each other and against the windows.

Prints a line for each fault and exits with 1 where there is one.
"""
import collections
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

LANGUAGES = ("english", "Dutch", "french", "german", "Italian", "Norwegian", "portuguese", "spanish", "swedish")
OPTIONS_WINDOW = "frmOption"
# How many entries a list has: settings store positions.
LISTS = {
    "cboUserInterfaceLang": 9, "cboLaunchMSWord": 3, "cboOutputFileformat": 3, "cboUseWizard": 2, "cboReconstructionMode": 5,
    "cboCharSpacingType": 2, "cboRecoverImages": 2, "cboConvertAllPages": 2, "cboConversionMethod": 2, "lblProgressStatus": 10,
}
# Pages say the same in several languages: these texts may be equal to the English ones.
SAME_WORDS = {
    "OK", "Status", "Details", "General", "Source", "Destination", "Website", "Help", "Options", "&No", "No", "Type", "to", "a", "Name",
}
SAME_KEYS = re.compile(r"opt(PNG|TIFF|BMP|JPG|PCX|PBM|PNM|PPM|PSD)$|cboUserInterfaceLang$")
# Runs of buttons and entries that are reached by their letter in one window.
SHORTCUT_KINDS = ("button", "menu", "label")


def items(path):
    """{key: [(VALUE, TOOLTIPTEXT)]} of a language file, and its faults of form."""
    root = ElementTree.parse(path).getroot()
    found, faults = collections.OrderedDict(), []
    if root.tag != "Root" or [child.tag for child in root] != ["LANGUAGEOPTIONS"]:
        return found, [f"{path.name}: is not Root with one LANGUAGEOPTIONS"]
    last = None
    for item in root[0]:
        name = item.get("NAME")
        if item.tag != "CONVERTERITEM" or not name or "'" in name:
            faults.append(f"{path.name}: an item without a usable NAME")
            continue
        if name in found and name != last:
            faults.append(f"{path.name}: {name} stands in two places")
        found.setdefault(name, []).append((item.get("VALUE"), item.get("TOOLTIPTEXT")))
        last = name
    return found, faults


def controls(path):
    """[(window, control, kind, note)] of the list of controls."""
    rows = []
    for line in path.read_text(encoding="utf-8").splitlines():
        words = line.split()
        if words and not line.startswith("#"):
            rows.append((words[0], words[1], words[2], words[3] if len(words) > 3 else ""))
    return rows


def value_faults(name, found, with_tooltips):
    for key, entries in found.items():
        for value, tooltip in entries:
            if not value or not value.strip():
                yield f"{name}: {key} has an empty VALUE"
            if with_tooltips and (not tooltip or not tooltip.strip()):
                yield f"{name}: {key} has an empty TOOLTIPTEXT"
        if len(entries) != LISTS.get(key, 1):
            yield f"{name}: {key} has {len(entries)} entries, not {LISTS.get(key, 1)}"


def marks(text):
    """What every translation keeps: number marks, the breaks of a message, the colon and dots at the end, the room around it."""
    return text.count("%ld"), text.startswith(" "), text.rstrip("\n").endswith("..."), text.endswith("\n"), len(text.split("\n")) > 2


def comparison_faults(name, found, english):
    if list(found) != list(english):
        difference = set(found) ^ set(english)
        yield f"{name}: keys differ from English: {', '.join(sorted(difference)) or 'another order'}"
    for key in set(found) & set(english):
        for (value, tooltip), (original, original_tooltip) in zip(found[key], english[key]):
            if marks(value or "") != marks(original or ""):
                yield f"{name}: {key} differs from English in a mark, a line break or a blank: {value!r}"
            if value == original and not SAME_KEYS.match(key) and value not in SAME_WORDS:
                yield f"{name}: {key} is left in English: {value!r}"
            if tooltip and tooltip == original_tooltip:
                yield f"{name}: the tool tip of {key} is left in English"


def coverage_faults(name, found, rows):
    wanted = {control for _, control, _, note in rows if not note}
    unwanted = {control for _, control, _, note in rows if note} - wanted
    for key in sorted(wanted - set(found)):
        yield f"{name}: no entry for the control {key}"
    for key in sorted(set(found) - wanted):
        reason = "the program writes it or nothing is written on it" if key in unwanted else "no window has such a control"
        yield f"{name}: an entry for {key}, but {reason}"


def shortcut_faults(name, found, rows):
    windows = collections.defaultdict(dict)
    for window, control, kind, note in rows:
        if note or kind not in SHORTCUT_KINDS or control not in found:
            continue
        group = "menu" if kind == "menu" else "window"
        for letter in re.findall(r"&([^&])", found[control][0][0] or ""):
            other = windows[window, group].setdefault(letter.lower(), control)
            if other != control:
                yield f"{name}: {control} and {other} of {window} share the letter {letter}"


def faults(folder, rows):
    for suffix, is_options in (("", False), ("options", True)):
        own_rows = [row for row in rows if (row[0] == OPTIONS_WINDOW) == is_options]
        english = {}
        for language in LANGUAGES:
            path = folder / f"{language}{suffix}.xml"
            if not path.is_file():
                yield f"{path.name}: missing"
                continue
            found, form = items(path)
            english = english or found
            yield from form
            yield from value_faults(path.name, found, is_options)
            yield from coverage_faults(path.name, found, own_rows)
            yield from shortcut_faults(path.name, found, own_rows)
            if found is not english:
                yield from comparison_faults(path.name, found, english)


def main():
    found = list(faults(pathlib.Path(sys.argv[1]), controls(pathlib.Path(sys.argv[2]))))
    print("\n".join(found) or "the eighteen language files agree with each other and with the windows")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
