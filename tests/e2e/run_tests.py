"""Runs from the command line: their questions, their cancelling, their end."""
from cases import DesktopTest
from desktop import wait_for
from pdfs import write_locked_pdf


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
        self.start(self.pdf("long.pdf", pages=900))
        progress = self.program.progress()
        with self.program.held_work():
            self.desktop.keys(progress, "Escape")
            question = self.program.message()
            self.desktop.keys(question, "alt+n")
            self.program.wait_gone(question)
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
