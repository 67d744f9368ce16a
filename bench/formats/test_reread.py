"""Tests of what reread.py measures itself; what it takes from bench/quality is tested there."""
import unittest

from reread import overall, places, table_of

PAGE = [("one", 72.0, 80.0), ("two", 90.0, 80.0), ("one", 72.0, 94.0)]


class Places(unittest.TestCase):
    def test_words_that_stand_where_they_are_wanted_count(self):
        self.assertEqual(places([PAGE], [PAGE]), 1)
        self.assertEqual(places([PAGE], [[(word, x + 1.9, y - 1.9) for word, x, y in PAGE]]), 1)

    def test_words_that_moved_do_not(self):
        moved = [PAGE[0], ("two", 93.0, 80.0), PAGE[2]]
        self.assertAlmostEqual(places([PAGE], [moved]), 2 / 3)
        self.assertEqual(places([PAGE], [[], PAGE]), 0)

    def test_a_word_that_is_there_once_counts_once(self):
        twice = [("one", 72.0, 80.0), ("one", 72.0, 80.0)]
        self.assertAlmostEqual(places([twice], [[("one", 72.0, 80.0)]]), 2 / 3)

    def test_no_words_are_no_measure(self):
        self.assertIsNone(places([[]], [[]]))


class Tables(unittest.TestCase):
    def test_the_mean_passes_over_what_no_document_has(self):
        self.assertEqual(overall({"words": 1.0, "cells": None, "notes": 0.5}), 0.75)

    def test_each_format_has_a_row(self):
        table = table_of({"docx": {"words": 1.0, "pages": 1.0}, "rtf": {"words": 0.5, "pages": 1.0}})
        self.assertIn("| rtf | 0.50 | 1.00 | 0.750 |", table)


if __name__ == "__main__":
    unittest.main()
