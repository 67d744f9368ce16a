"""The input files of the end-to-end tests, each made when it is asked for. Locked ones are made by qpdf."""
import pathlib
import subprocess

LINES_A_PAGE = 45


def _page_text(page):
    lines = [f"({page}.{line} The harbour quarter keeps its roofs green through the year.) Tj 0 -16 Td"
             for line in range(1, LINES_A_PAGE + 1)]
    return "BT /F1 10 Tf 60 780 Td\n" + "\n".join(lines) + "\nET"


def write_pdf(path, pages=1):
    """A PDF of so many pages of text."""
    objects = ["<< /Type /Catalog /Pages 2 0 R >>", None, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"]
    kids = []
    for page in range(1, pages + 1):
        text = _page_text(page)
        objects.append(f"<< /Length {len(text)} >>\nstream\n{text}\nendstream")
        objects.append(f"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents {len(objects)} 0 R"
                       " /Resources << /Font << /F1 3 0 R >> >> >>")
        kids.append(f"{len(objects)} 0 R")
    objects[1] = f"<< /Type /Pages /Count {pages} /Kids [{' '.join(kids)}] >>"

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
