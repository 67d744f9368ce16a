#!/usr/bin/python3
"""The reasons of differences.py, on pictures of a few pixels: each is found where it holds, and none where a pixel is wrong."""
import unittest

import numpy

import differences
from peer import Listed
from pixels import Pixels


class Told:
    """What a PDF says of its one picture."""

    def __init__(self, matte=None, in_data=0, matte_in_data=None, has_key=False):
        self._matte, self._in_data, self._matte_in_data, self._has_key = matte, in_data, matte_in_data, has_key

    def matte(self, _):
        return self._matte

    def opacity_in_data(self, _):
        return self._in_data

    def matte_in_data(self, _):
        return self._matte_in_data

    def has_color_key(self, _):
        return self._has_key


def rgb(*pixels):
    return numpy.array([pixels], dtype=numpy.uint8)


def gray(*levels):
    return numpy.array([levels], dtype=numpy.uint8)


def picture(colors, alpha=None, has_profile=False):
    return Pixels(colors, alpha, has_profile)


def mask(*levels):
    return picture(rgb(*[(level,) * 3 for level in levels]))


RED, BLUE, BLACK, WHITE = (255, 0, 0), (0, 0, 255), (0, 0, 0), (255, 255, 255)


class Reasons(unittest.TestCase):
    def check(self, reason, theirs, ours, mask=None, told=Told(), kind="image", color="rgb", in_srgb=None):
        listed = Listed(1, kind, 2, 1, color, "image", 7, None)
        found = differences.reason(listed, theirs, mask, ours, lambda: in_srgb, lambda: told)
        self.assertEqual(found, reason)
        # A wrong pixel is never explained away.
        wrong = ours.rgb.copy()
        wrong[0, 0] ^= 0x40
        broken = picture(wrong, ours.alpha, ours.has_profile)
        if kind == "stencil":
            broken = picture(ours.rgb, ours.alpha ^ 0x40)
        bad_srgb = None if in_srgb is None else picture(in_srgb.rgb ^ 0x40)
        found = differences.reason(listed, theirs, mask, broken, lambda: bad_srgb, lambda: told)
        self.assertEqual(found, differences.UNEXPLAINED)

    def test_the_same(self):
        self.check(differences.SAME, picture(rgb(RED, BLUE)), picture(rgb(RED, BLUE)))

    def test_masks(self):
        ours = picture(rgb(RED, BLUE), gray(128, 255))
        self.check("mask as opacity", picture(rgb(RED, BLUE)), ours, mask=mask(128, 255))
        self.check("mask as opacity", picture(rgb(RED, BLUE)), ours, mask=mask(127, 0))
        self.check("finer mask", picture(rgb(RED)), picture(rgb(RED, RED), gray(128, 255)), mask=mask(128, 255))

    def test_a_wrong_mask(self):
        listed = Listed(1, "image", 2, 1, "rgb", "image", 7, None)
        ours = picture(rgb(RED, BLUE), gray(128, 255))
        found = differences.reason(listed, picture(rgb(RED, BLUE)), mask(128, 254), ours, lambda: None, lambda: Told())
        self.assertEqual(found, differences.UNEXPLAINED)

    def test_a_ground(self):
        self.check("ground taken out", picture(rgb((128, 127, 0), BLUE)), picture(rgb((254, 0, 0), BLUE), gray(128, 255)),
                   mask=mask(128, 255), told=Told(matte=[0, 255, 0]))

    def test_stencils(self):
        self.check("stencil", picture(rgb(BLACK, WHITE)), picture(rgb(RED, RED), gray(255, 0)), kind="stencil")

    def test_colours_that_are_hidden(self):
        ours = picture(rgb(RED, BLUE), gray(0, 255))
        self.check("colour key", picture(rgb(RED, BLUE)), ours, told=Told(has_key=True))
        self.check("mask of the page", picture(rgb(RED, BLUE)), ours)

    def test_profiles(self):
        self.check("profile kept", picture(rgb(RED, BLUE)), picture(rgb(BLUE, RED), has_profile=True), in_srgb=picture(rgb(RED, BLUE)))

    def test_rounding(self):
        self.check("rounding", picture(rgb((254, 0, 0), BLUE)), picture(rgb(RED, BLUE)), color="cmyk")

    def test_opacity_in_the_data(self):
        ours = picture(rgb(RED, BLUE), gray(128, 255))
        self.check("opacity in the data", picture(rgb(RED, (128, 0, 0))), ours, told=Told(in_data=1))
        self.check("opacity in the data", picture(rgb((128, 0, 0), (128, 0, 0))), ours, told=Told(in_data=2, matte_in_data=[0, 0, 0]))


if __name__ == "__main__":
    unittest.main()
