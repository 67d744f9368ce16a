"""What poppler's pdfimages finds in a PDF: its list of pictures, and their pixels as PNG files."""
import dataclasses
import pathlib
import re
import subprocess

LINE = re.compile(r"\s*(?P<page>\d+)\s+(?P<number>\d+)\s+(?P<kind>image|mask|smask|stencil)\s+(?P<width>\d+)\s+(?P<height>\d+)\s+"
                  r"(?P<color>\S+)\s+(?P<components>\d+)\s+(?P<bits>\d+)\s+(?P<coding>\S+)\s+(?:yes|no)\s+(?P<object>\[inline\]|\[none\]|\d+)")


@dataclasses.dataclass
class Listed:
    """One painting of a picture, with its mask where it has one."""
    page: int
    kind: str
    width: int
    height: int
    color: str
    coding: str
    object: int  # 0: inline
    file: pathlib.Path
    mask: "Listed | None" = None


def secret(password):
    return ["-upw", password, "-opw", password] if password else []


def run(pdf, folder, password):
    """All paintings in the order of pdfimages; None when it cannot open the file."""
    listing = subprocess.run(["pdfimages", "-list", *secret(password), pdf], capture_output=True, text=True, errors="replace")
    if listing.returncode != 0:
        return None
    subprocess.run(["pdfimages", "-png", *secret(password), pdf, folder / "p"], capture_output=True, check=False)
    paintings = []
    for line in listing.stdout.splitlines()[2:]:
        match = LINE.match(line)
        if not match:
            continue
        number = match["object"]
        listed = Listed(int(match["page"]), match["kind"], int(match["width"]), int(match["height"]), match["color"], match["coding"],
                        int(number) if number.isdigit() else 0, folder / f"p-{int(match['number']):03}.png")
        if listed.kind in ("mask", "smask"):
            paintings[-1].mask = listed
        else:
            paintings.append(listed)
    return paintings
