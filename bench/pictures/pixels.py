"""Pictures as arrays of red, green, blue and opacity."""
import dataclasses

import numpy
from PIL import Image, PngImagePlugin

Image.MAX_IMAGE_PIXELS = None
PngImagePlugin.MAX_TEXT_CHUNK = 1 << 28
PngImagePlugin.MAX_TEXT_MEMORY = 1 << 28


@dataclasses.dataclass
class Pixels:
    rgb: numpy.ndarray
    alpha: "numpy.ndarray | None"
    has_profile: bool = False

    @property
    def size(self):
        return self.rgb.shape[1], self.rgb.shape[0]

    def part(self, x, y, width, height):
        alpha = None if self.alpha is None else self.alpha[y:y + height, x:x + width]
        return Pixels(self.rgb[y:y + height, x:x + width], alpha, self.has_profile)


def load(file):
    with Image.open(file) as image:
        has_profile = "icc_profile" in image.info
        if image.mode.startswith("I"):
            gray = (numpy.asarray(image).astype(numpy.uint32) >> 8).astype(numpy.uint8)
            return Pixels(numpy.repeat(gray[:, :, None], 3, axis=2), None, has_profile)
        has_alpha = image.mode in ("LA", "RGBA", "PA") or "transparency" in image.info
        values = numpy.asarray(image.convert("RGBA" if has_alpha else "RGB"))
    return Pixels(values[:, :, :3], values[:, :, 3] if has_alpha else None, has_profile)


def stretched(values, width, height):
    """Repeats pixels as the engine does where a picture and its mask differ in size."""
    if values.shape[:2] == (height, width):
        return values
    rows = (numpy.arange(height) * 2 + 1) * values.shape[0] // (height * 2)
    columns = (numpy.arange(width) * 2 + 1) * values.shape[1] // (width * 2)
    return values[rows][:, columns]


def distance(a, b):
    """The largest difference of two arrays of one shape."""
    return int(numpy.abs(a.astype(numpy.int16) - b.astype(numpy.int16)).max(initial=0))
