#!/usr/bin/env python3
"""test_desktop.py BINARY PICTURES [TEST...]: the application end to end, on a screen of its own: the real program and the
real engine, worked by keys and clicks and judged by the windows that are shown and the files that are written.

The keys are the access keys of the English captions. A picture of the screen is left for each test in the folder PICTURES.
"""
import os
import pathlib
import sys
import unittest
import zipfile

from desktop import CLOSING_PATIENCE, Desktop, Program, happens, missing_tools, wait_for
from pdfs import write_damaged_pdf, write_locked_pdf, write_pdf

BINARY = None
PICTURES = None
SKIP = "TAVRELION_SKIP_DESKTOP_TESTS"

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

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()

    @classmethod
    def tearDownClass(cls):
        cls.desktop.close()

    def setUp(self):
        self.program = Program(self.desktop, BINARY)

    def tearDown(self):
        self.desktop.save_picture(PICTURES / f"{self.id().split('.')[-1]}.png")
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


class MainWindowTest(DesktopTest):
    def test_converts_by_mouse(self):
        pdf = self.pdf()
        self.start()
        main = self.program.main()
        self.desktop.click(main, main.width - 100, 163)  # Browse...
        self.choose(pdf)
        self.desktop.click(main, 110, 110)  # the tile "Convert to Word"
        self.decline_opening()
        self.wait_for_document(self.document())
        self.program.main()
        self.expect_quiet_end()

    def test_asks_before_it_replaces_a_document(self):
        pdf = self.pdf()
        self.document().write_bytes(b"of before")
        self.start()
        self.browse(pdf)
        self.convert()
        self.desktop.keys(self.program.message(), "alt+n")
        self.program.main()
        self.assertEqual(self.document().read_bytes(), b"of before")
        self.browse(pdf)
        self.convert()
        self.desktop.keys(self.program.message(), "alt+y")
        self.wait_for_document(self.document())
        self.decline_opening()
        self.expect_quiet_end()

    def test_refuses_other_files(self):
        other = self.program.files / "notes.txt"
        other.write_text("no PDF")
        self.start()
        self.browse(other)
        refusal = self.program.message()
        self.desktop.keys(refusal, "Return")
        self.program.wait_gone(refusal)
        self.assertEqual(list(self.program.documents.glob("*.docx")), [])

    def test_works_a_batch_with_a_damaged_and_a_locked_file(self):
        names = ["a.pdf", "damaged.pdf", "b.pdf", "locked.pdf", "c.pdf"]
        paths = [self.pdf(name) for name in names]
        write_damaged_pdf(paths[1])
        write_locked_pdf(paths[3], "open", "take")
        self.start()
        self.browse(*paths)
        # The selection is worked from its last file to its first, one file a command.
        self.convert()
        self.decline_opening()
        self.wait_for_document(self.document("c.docx"))
        self.convert()
        self.desktop.keys(self.program.message(), "Escape")  # gives the locked file up
        self.program.main()
        self.convert()
        self.decline_opening()
        self.wait_for_document(self.document("b.docx"))
        self.convert()
        self.leave_through_the_log(self.program.progress())
        self.program.main()
        self.convert()
        self.decline_opening()
        self.wait_for_document(self.document("a.docx"))
        self.assertEqual(sorted(path.name for path in self.program.documents.glob("*.docx")),
                         ["a.docx", "b.docx", "c.docx"])

    def leave_through_the_log(self, progress):
        """View Log, which takes a press only once the run has failed, then Close."""
        def is_gone():
            return progress not in self.desktop.windows()

        def press():
            self.desktop.keys(progress, "alt+v")
            self.desktop.keys(progress, "alt+c")
            # A slow desktop takes its time to close a window, and the main window has the same access key.
            return happens(is_gone, CLOSING_PATIENCE)
        wait_for("the end of the failed run", press)

    def test_leads_to_settings_and_extraction_and_back(self):
        self.start()
        self.browse(self.pdf())
        for key in ("alt+s", "alt+e"):
            main = self.program.main()
            self.desktop.keys(main, key)
            self.program.wait_gone(main)
            other = self.program.wait("the other window", lambda window: not window.is_main)
            self.desktop.keys(other, "Escape")
            self.program.wait_gone(other)
        self.program.main()
        self.expect_quiet_end()

    def test_saves_as_rtf_by_the_menu(self):
        self.start()
        pdf = self.pdf()
        self.browse(pdf)
        main = self.program.main()
        self.desktop.click(main, 237, 110)  # the arrow beside Convert to Word
        self.desktop.keys(main, "r")  # Save as RTF
        self.decline_opening()
        wait_for("the document", lambda: pdf.with_suffix(".rtf").exists())
        self.program.main()
        self.expect_quiet_end()

    def test_opens_the_document_in_the_word_processor(self):
        pdf = self.pdf("with blanks.pdf")
        self.start()
        self.browse(pdf)
        self.convert()
        self.desktop.keys(self.program.message(), "alt+y")
        wait_for("the word processor", lambda: self.desktop.windows(title="^with blanks.docx"), patience=180)

    def test_closes_by_the_question_of_exit(self):
        self.start()
        main = self.program.main()
        self.desktop.keys(main, "alt+x")
        self.desktop.keys(self.program.message(), "alt+n")
        self.assertFalse(self.program.has_ended())
        self.desktop.keys(main, "alt+x")
        self.desktop.keys(self.program.message(), "alt+y")
        self.assertEqual(self.program.exit_code(), 0)
        self.expect_quiet_end()


class RunTest(DesktopTest):
    def test_converts_the_file_of_the_command_line(self):
        pdf = self.pdf("Büro – A 文書.pdf")
        self.start(pdf)
        self.decline_opening()
        self.wait_for_document(self.document("Büro – A 文書.docx"))

    def test_runs_the_wizard_from_the_command_line(self):
        self.start(f"{self.pdf()}~!~2")
        first = self.program.page()
        self.desktop.keys(first, "alt+l")  # Last >>
        summary = self.program.page(first)
        self.desktop.keys(summary, "alt+f")  # Finish
        self.decline_opening()
        self.wait_for_document(self.document())
        self.expect_quiet_end()

    def test_cancels_in_the_middle_of_a_long_file(self):
        self.start(self.pdf("long.pdf", pages=300))
        progress = self.program.progress()
        wait_for("the work", self.program.workers)
        self.desktop.keys(progress, "Escape")
        self.desktop.keys(self.program.message(), "alt+y")
        self.program.main()
        wait_for("the end of the work", lambda: not self.program.workers())
        self.assertEqual([path.name for path in self.program.documents.iterdir() if "long" in path.name], [])

    def test_goes_on_when_cancelling_is_taken_back(self):
        self.start(self.pdf("long.pdf", pages=60))
        progress = self.program.progress()
        self.desktop.keys(progress, "Escape")
        self.desktop.keys(self.program.message(), "alt+n")
        self.decline_opening()
        self.wait_for_document(self.document("long.docx"))

    def test_asks_for_the_passwords_until_they_are_right(self):
        locked = self.program.files / "locked.pdf"
        write_locked_pdf(locked, "open", "take")
        self.start(locked)
        for password in ("wrong", "open", "take"):
            prompt = self.program.message()
            self.desktop.type(prompt, password)
            self.desktop.keys(prompt, "Return")
            self.program.wait_gone(prompt)
        self.decline_opening()
        self.wait_for_document(self.document("locked.docx"))
        self.expect_quiet_end()

    def test_closes_with_the_box_during_a_run(self):
        self.start(self.pdf("long.pdf", pages=300))
        progress = self.program.progress()
        wait_for("the work", self.program.workers)
        self.desktop.close_by_box(progress)
        question = self.program.message()
        self.desktop.keys(question, "alt+y")
        self.assertEqual(self.program.exit_code(), 0)

    def test_refuses_a_document_on_the_command_line(self):
        self.start("/in/letter.doc")
        self.desktop.keys(self.program.message(), "Return")
        self.assertEqual(self.program.exit_code(), 0)

    def test_a_second_copy_brings_the_first_back(self):
        self.start()
        main = self.program.main()
        self.desktop.minimise(main)
        wait_for("a minimised window", lambda: not self.desktop.windows())
        second = self.program.start_another(self.pdf())
        self.assertEqual(second.wait(60), 0)
        self.program.main()
        self.assertFalse(self.document().exists())
        self.assertFalse(self.program.has_ended())


def main():
    global BINARY, PICTURES
    if os.environ.get(SKIP):
        print(f"*** The application is NOT tested end to end: {SKIP} is set. ***", file=sys.stderr)
        return 77
    if missing_tools():
        print(f"Missing: {', '.join(missing_tools())}. packaging/install-packages.sh installs them; {SKIP}=1 leaves the"
              " end-to-end tests out.", file=sys.stderr)
        return 1
    BINARY = pathlib.Path(sys.argv[1]).resolve()
    PICTURES = pathlib.Path(sys.argv[2])
    PICTURES.mkdir(parents=True, exist_ok=True)
    program = unittest.main(argv=[sys.argv[0], "-v", *sys.argv[3:]], exit=False)
    return 0 if program.result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
