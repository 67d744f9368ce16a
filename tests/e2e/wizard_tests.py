"""Walks through both wizards, from the main window to what they make, with the keyboard alone and with the mouse alone."""
import struct

from cases import DesktopTest
from desktop import wait_for
from pdfs import write_pdf_with_picture

# Access keys of the main window in English.
OUTPUT_PATH = "alt+f"
EXTRACT = "alt+e"

PICTURE_SIZE = (40, 30)


def png_size(path):
    """Width and height of a PNG file; nothing while it is not there or not whole."""
    content = path.read_bytes() if path.exists() else b""
    is_whole = content.startswith(b"\x89PNG\r\n\x1a\n") and content.endswith(b"IEND\xaeB`\x82")
    return struct.unpack(">II", content[16:24]) if is_whole else None


class WizardTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.seen = []

    def page(self):
        """The page that came up behind those that were seen."""
        page = self.program.page(*self.seen)
        self.seen.append(page)
        return page

    def turn(self, *keys):
        """Works the next page with these keys."""
        self.desktop.keys(self.page(), *keys)

    def press(self, page, place):
        """Clicks on a button at the foot of a page, counted from the right."""
        self.desktop.click(page, page.width - 90 - 140 * place, page.height - 24)

    def text_of(self, path):
        """The text of an RTF file; empty while it is not there or not whole."""
        text = path.read_text(encoding="ascii", errors="replace") if path.exists() else ""
        return text if text.rstrip("\0\r\n ").endswith("}") else ""

    def wait_for_rtf(self):
        rtf = self.document("report.rtf")
        wait_for("the document", lambda: "harbour quarter" in self.text_of(rtf))
        return self.text_of(rtf)

    def pdf_with_picture(self):
        path = self.program.files / "report.pdf"
        write_pdf_with_picture(path, *PICTURE_SIZE)
        return path

    def wait_for_picture(self):
        """The one picture of the file as a PNG in the folder of documents."""
        def sizes():
            return [png_size(path) for path in self.program.documents.rglob("*.png")]
        wait_for("the picture", lambda: sizes() and all(sizes()))
        self.assertEqual(sizes(), [PICTURE_SIZE])

    def test_the_keyboard_alone_converts(self):
        pdf = self.pdf(pages=2)
        self.start()
        self.browse(pdf)
        main = self.program.main()
        self.desktop.keys(main, OUTPUT_PATH, "Tab", "Tab", "Tab", "Tab", "Down")  # to the arrow beside Convert to Word
        self.desktop.popup_key("w")  # Convert Using Wizard...
        self.turn("alt+n")  # output
        self.turn("alt+n")  # layout
        self.turn("Down", "Return")  # images: to Remove Images
        self.turn("alt+n")  # spacing
        self.turn("Down", "Tab", "ctrl+a", "2", "Return")  # pages: to the list, and into its box
        self.turn("alt+f")  # summary
        self.decline_opening()
        text = self.wait_for_rtf()
        self.assertIn("2.1 The harbour", text)
        self.assertNotIn("1.1 The harbour", text)
        self.program.main()
        self.expect_quiet_end()

    def test_the_mouse_alone_converts(self):
        self.pdf()
        self.start()
        main = self.program.main()
        self.desktop.click(main, main.width - 100, 163)  # Browse...
        self.choose_by_mouse()
        self.desktop.click(main, 237, 110)  # the arrow beside Convert to Word
        self.desktop.popup_click(0, 4)  # Convert Using Wizard...
        self.press(self.page(), 2)  # output: Next
        layout = self.page()
        self.desktop.click(layout, 282, 246)  # Plain Text, in which the page of spacing is left out
        self.press(layout, 2)
        self.press(self.page(), 2)  # images: Next
        self.press(self.page(), 1)  # pages: Last
        self.press(self.page(), 0)  # summary: Finish
        question = self.program.message()
        self.press(question, 0)  # No
        self.program.wait_gone(question)
        self.wait_for_rtf()
        self.assertEqual(len(self.seen), 5)
        self.program.main()
        self.expect_quiet_end()

    def test_the_keyboard_alone_extracts_pictures(self):
        pdf = self.pdf_with_picture()
        self.start()
        self.browse(pdf)
        self.desktop.keys(self.program.main(), EXTRACT)
        self.turn("alt+c", "Down", "alt+n")  # format: to PNG
        self.turn("alt+f")  # summary
        self.program.main()
        self.wait_for_picture()
        self.expect_quiet_end()

    def test_the_mouse_alone_extracts_pictures(self):
        self.pdf_with_picture()
        self.start()
        main = self.program.main()
        self.desktop.click(main, main.width - 100, 163)  # Browse...
        self.choose_by_mouse()
        self.desktop.click(main, 131, 198)  # Extract Images Using Wizard...
        page = self.page()
        self.desktop.click(page, 360, 148)  # the list of formats
        self.desktop.popup_click(1, 9)  # PNG
        self.press(page, 2)  # Next
        self.press(self.page(), 1)  # summary: Finish
        self.program.main()
        self.wait_for_picture()
        self.expect_quiet_end()
