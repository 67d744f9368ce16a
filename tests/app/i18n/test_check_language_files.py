#!/usr/bin/env python3
"""test_check_language_files.py XML_FOLDER CONTROLS: the check of the language files sees each kind of fault."""
import pathlib
import shutil
import sys
import tempfile
import unittest

import check_language_files as check

XML = pathlib.Path(sys.argv[1])
CONTROLS = pathlib.Path(sys.argv[2])


class SeesAFault(unittest.TestCase):
    def faults(self, file, old, new):
        """The faults found after one replacement in a copy of the language files."""
        with tempfile.TemporaryDirectory() as folder:
            copy = pathlib.Path(folder) / "XML"
            shutil.copytree(XML, copy)
            text = (copy / file).read_text(encoding="utf-8")
            self.assertIn(old, text)
            (copy / file).write_text(text.replace(old, new, 1), encoding="utf-8")
            return "\n".join(check.faults(copy, check.controls(CONTROLS)))

    def test_none_in_the_files_as_they_are(self):
        self.assertEqual(self.faults("german.xml", "Hilfe", "Hilfe"), "")

    def test_an_empty_text(self):
        self.assertIn("lblHelp has an empty VALUE", self.faults("german.xml", '"Hilfe"', '" "'))

    def test_an_empty_tool_tip(self):
        self.assertIn("lblHelp has an empty TOOLTIPTEXT", self.faults("germanoptions.xml", '"Öffnet die Hilfe."', '""'))

    def test_a_key_that_no_control_has(self):
        self.assertIn("no window has such a control", self.faults("german.xml", '"lblHelp"', '"lblAid"'))

    def test_a_control_without_an_entry(self):
        self.assertIn("no entry for the control lblHelp", self.faults("german.xml", '"lblHelp"', '"lblAid"'))

    def test_a_text_that_the_program_would_overwrite(self):
        self.assertIn("the program writes it", self.faults("german.xml", '"lblHelp"', '"lblStatus"'))

    def test_a_list_of_another_length(self):
        self.assertIn("cboLaunchMSWord has 2 entries, not 3",
                      self.faults("germanoptions.xml", 'NAME="cboLaunchMSWord" VALUE="Nie"', 'NAME="lblHelp" VALUE="Nie"'))

    def test_a_lost_number_mark(self):
        self.assertIn("differs from English in a mark", self.faults("germanoptions.xml", "Seite %ld", "Seite"))

    def test_a_lost_line_break(self):
        self.assertIn("differs from English in a mark", self.faults("german.xml", "in&#10;aufsteigender", "in aufsteigender"))

    def test_a_text_left_in_english(self):
        self.assertIn("lblExit is left in English", self.faults("german.xml", '"Beenden"', '"Exit"'))

    def test_two_controls_with_one_shortcut(self):
        self.assertIn("share the letter", self.faults("german.xml", "&amp;Nein", "Ne&amp;jn"))

    def test_a_missing_file(self):
        with tempfile.TemporaryDirectory() as folder:
            copy = pathlib.Path(folder) / "XML"
            shutil.copytree(XML, copy)
            (copy / "Dutchoptions.xml").unlink()
            self.assertIn("Dutchoptions.xml: missing", "\n".join(check.faults(copy, check.controls(CONTROLS))))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
