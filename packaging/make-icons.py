#!/usr/bin/env python3
"""make-icons.py: draws the .ICO files of app/images anew from the .svg files beside them.

For whoever changes a drawing; the icon files are kept in the tree, so that a build needs no drawing program. Needs rsvg-convert
(Debian: librsvg2-bin).
"""
import pathlib
import struct
import subprocess

IMAGES = pathlib.Path(__file__).resolve().parent.parent / "app" / "images"
NAMES = ("W95MBX02", "W95MBX03")
SIZES = (16, 24, 32, 48, 64)  # 64 serves the 32 pixels of a message on a screen of double density


def drawn(svg, size):
    return subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size), str(svg)], check=True, capture_output=True).stdout


def icon(pictures):
    """An icon file of PNG pictures: {size: bytes}."""
    directory = struct.pack("<HHH", 0, 1, len(pictures))
    offset = len(directory) + 16 * len(pictures)
    entries = b""
    for size, picture in pictures.items():
        entries += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(picture), offset)
        offset += len(picture)
    return directory + entries + b"".join(pictures.values())


def main():
    for name in NAMES:
        pictures = {size: drawn(IMAGES / f"{name}.svg", size) for size in SIZES}
        (IMAGES / f"{name}.ICO").write_bytes(icon(pictures))


if __name__ == "__main__":
    main()
