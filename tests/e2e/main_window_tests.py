"""The main window: files, pages and output, its commands and questions."""
from cases import DesktopTest
from desktop import CLOSING_PATIENCE, happens, wait_for
from pdfs import write_damaged_pdf, write_locked_pdf


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
        self.desktop.popup_key("r")  # Save as RTF
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
