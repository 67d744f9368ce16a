"""The input files of the end-to-end tests, each made when it is asked for. Locked ones are made by qpdf."""
import pathlib
import subprocess

LINES_A_PAGE = 45


def _page_text(page):
    lines = [f"({page}.{line} The harbour quarter keeps its roofs green through the year.) Tj 0 -16 Td"
             for line in range(1, LINES_A_PAGE + 1)]
    return "BT /F1 10 Tf 60 780 Td\n" + "\n".join(lines) + "\nET"


def _stream(entries, content):
    return f"<< {entries} /Length {len(content)} >>\nstream\n{content}\nendstream"


def write_pdf(path, pages=1):
    """A PDF of so many pages of text."""
    font = "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"
    _write_pages(path, font, [(_page_text(page), "/Font << /F1 3 0 R >>") for page in range(1, pages + 1)])


def write_pdf_with_picture(path, width, height):
    """A PDF of one page with a picture of that size in pixels, all of it green."""
    picture = _stream(f"/Type /XObject /Subtype /Image /Width {width} /Height {height} /ColorSpace /DeviceRGB"
                      " /BitsPerComponent 8 /Filter /ASCIIHexDecode", "2E8B57" * width * height + ">")
    _write_pages(path, picture, [("q 400 0 0 300 90 400 cm /P Do Q", "/XObject << /P 3 0 R >>")])


def _write_pages(path, shared, pages):
    """A PDF of pages, each given by its content and its resources; the shared object is number 3."""
    objects = ["<< /Type /Catalog /Pages 2 0 R >>", None, shared]
    kids = []
    for content, resources in pages:
        objects.append(_stream("", content))
        objects.append(f"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents {len(objects)} 0 R"
                       f" /Resources << {resources} >> >>")
        kids.append(f"{len(objects)} 0 R")
    objects[1] = f"<< /Type /Pages /Count {len(kids)} /Kids [{' '.join(kids)}] >>"
    _write_objects(path, objects)


def _write_objects(path, objects):
    body = b"%PDF-1.7\n"
    offsets = []
    for number, content in enumerate(objects, 1):
        offsets.append(len(body))
        body += f"{number} 0 obj\n{content}\nendobj\n".encode("ascii")
    table = "".join(f"{offset:010} 00000 n \n" for offset in offsets)
    trailer = (f"xref\n0 {len(objects) + 1}\n0000000000 65535 f \n{table}"
               f"trailer << /Size {len(objects) + 1} /Root 1 0 R >>\nstartxref\n{len(body)}\n%%EOF\n")
    pathlib.Path(path).write_bytes(body + trailer.encode("ascii"))


def write_locked_pdf(path, user, owner):
    """A PDF that opens with the user password and gives its text away only for the owner password."""
    plain = pathlib.Path(path).with_suffix(".plain")
    write_pdf(plain)
    subprocess.run(["qpdf", "--encrypt", user, owner, "256", "--extract=n", "--", plain, path], check=True)
    plain.unlink()


def write_damaged_pdf(path):
    """A file that has nothing of a PDF but its first line."""
    pathlib.Path(path).write_bytes(b"%PDF-1.7\nnothing of what a PDF needs follows here\n")
