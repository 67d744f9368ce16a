"""What the end-to-end tests have in common: one program on one screen for each test, and what users do again and again."""
import unittest
import zipfile

from desktop import CLOSING_PATIENCE, Desktop, Program, happens, wait_for
from pdfs import write_pdf

# Access keys of the main window in English.
BROWSE = "alt+b"
CONVERT = "alt+c"


def document_text(path):
    """The text of a DOCX, with its tags; empty while it is not there or not whole."""
    try:
        with zipfile.ZipFile(path) as document:
            return document.read("word/document.xml").decode("utf-8")
    except (OSError, KeyError, zipfile.BadZipFile):
        return ""


class DesktopTest(unittest.TestCase):
    """One program on one screen for each test."""

    binary = None
    pictures = None  # the folder for a picture of the screen at the end of each test

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()

    @classmethod
    def tearDownClass(cls):
        cls.desktop.close()

    def setUp(self):
        self.program = Program(self.desktop, self.binary)

    def tearDown(self):
        self.desktop.save_picture(self.pictures / f"{self.id().split('.')[-1]}.png")
        self.program.end()
        wait_for("an empty screen", lambda: not self.desktop.windows(title="."))

    def pdf(self, name="report.pdf", pages=1):
        path = self.program.files / name
        write_pdf(path, pages)
        return path

    def document(self, name="report.docx"):
        return self.program.documents / name

    def start(self, *arguments):
        self.program.start(*arguments)

    def browse(self, *paths):
        """Chooses files in the open dialog of the main window."""
        self.desktop.keys(self.program.main(), BROWSE)
        self.choose(*paths)

    def choose(self, *paths):
        dialog = wait_for("the open dialog", lambda: self.desktop.windows(title="^Open$"))[0]
        names = str(paths[0]) if len(paths) == 1 else " ".join(f'"{path}"' for path in paths)
        self.desktop.type(dialog, names)
        self.desktop.keys(dialog, "Return")
        wait_for("the end of the open dialog", lambda: not self.desktop.windows(title="^Open$"))
        self.program.wait_idle()

    def choose_by_mouse(self):
        """Chooses the first file that the open dialog lists."""
        dialog = wait_for("the open dialog", lambda: self.desktop.windows(title="^Open$"))[0]

        def click():
            # The list fills at its own pace, and a click before that chooses nothing.
            self.desktop.click(dialog, 165, 79)
            self.desktop.click(dialog, dialog.width - 71, dialog.height - 62)  # Open
            return happens(lambda: not self.desktop.windows(title="^Open$"), CLOSING_PATIENCE)
        wait_for("the end of the open dialog", click)
        self.program.wait_idle()

    def convert(self):
        self.desktop.keys(self.program.main(), CONVERT)

    def decline_opening(self):
        """Says No to the offer to open the finished document."""
        question = self.program.message()
        self.desktop.keys(question, "Escape")
        self.program.wait_gone(question)

    def wait_for_document(self, path):
        wait_for(f"the document {path.name}", lambda: "harbour quarter" in document_text(path))

    def expect_quiet_end(self):
        self.assertEqual(self.program.error_log(), [])
