"""Why a picture of ours is not pixel for pixel what pdfimages writes. Each reason is tested against the pixels, not presumed."""
import numpy

import pixels

SAME = "the same"
UNEXPLAINED = "not explained"
# The reasons in the order of the table.
REASONS = {
    SAME: "every pixel is equal",
    "mask as opacity": "pdfimages writes picture and mask apart; ours has the mask as its opacity. Colours and opacity are equal",
    "finer mask": "the same, where the mask has more pixels than the picture, whose pixels are repeated",
    "ground taken out": "the colours are mixed with a ground (`/Matte`), which ours have no more; mixed again they are equal",
    "stencil": "pdfimages writes an image mask in black and white; ours has its shape as opacity in the colour that it is painted in",
    "colour key": "colours of a range are transparent in ours; the others are equal",
    "mask of the page": "a soft mask of the graphics state lies over the picture; colours are equal, opacity is that of the mask",
    "profile kept": "the samples stand as they are and their ICC profile beside them; converted to sRGB they are equal",
    "rounding": "conversion of CMYK rounds differently by one level of 255",
    "opacity in the data": "JPEG 2000 data that holds opacity beside the colours (`/SMaskInData`), which pdfimages takes for colours; as "
                           "such they are equal",
    "part of a mask": "pdfimages writes what a soft mask of the graphics state is made of; that is no picture of the page",
    "of a pattern": "pdfimages does not look into patterns; the picture is painted by one",
    "unreadable": "the data cannot be decoded: ours is left out with a note, pdfimages writes an empty picture",
    UNEXPLAINED: "",
}


# Why a PDF as a whole is not compared.
CLOSED = {
    "not readable": "neither program can open it",
    "forbidden": "its author forbids taking content out; orvane asks for the owner's password, pdfimages does not",
}


def reason_of_closed(is_open_to_peer, result):
    if result == "OwnerPasswordNeeded":
        return "forbidden"
    return UNEXPLAINED if is_open_to_peer or result == "done" else "not readable"


def of_opacity(theirs, mask, ours, width, height):
    """Whether the mask that pdfimages wrote is our opacity. Stencil masks come inverted."""
    levels = pixels.stretched(mask.rgb[:, :, 0], width, height)
    return numpy.array_equal(levels, ours.alpha) or numpy.array_equal(255 - levels, ours.alpha)


def is_mixed_with(theirs, ours, matte):
    """Whether our colours, mixed with the ground again, are theirs. Where lossy coding led out of range ours are cut off there."""
    share = ours.alpha[:, :, None] / 255
    ground = numpy.array(matte)[None, None, :]
    mixed = numpy.where(share > 0, ground + (ours.rgb - ground) * share, ours.rgb)
    is_cut = (ours.rgb == 0) | (ours.rgb == 255)
    return bool((is_cut | (numpy.abs(mixed - theirs) <= 2)).all())


def is_taken_for_colors(theirs, ours, matte):
    """Whether their colours are the samples of the data, ours with the opacity behind each pixel. `matte` is None where they are not
    mixed with a ground."""
    colors = ours.rgb
    if matte is not None:
        share = ours.alpha[:, :, None] / 255
        colors = numpy.array(matte) + (ours.rgb - numpy.array(matte)) * share
    samples = numpy.concatenate([colors, ours.alpha[:, :, None]], axis=2).reshape(-1)[:theirs.size]
    return bool((numpy.abs(samples - theirs.reshape(-1)) <= 2).all())


def reason(listed, theirs, mask, ours, ours_in_srgb, objects):
    """The reason for the difference of one picture; `mask` is the mask of theirs, if any."""
    width, height = ours.size
    if listed.kind == "stencil":
        shape = 255 - pixels.stretched(theirs.rgb[:, :, 0], width, height)
        is_same = ours.alpha is not None and (numpy.array_equal(shape, ours.alpha) or numpy.array_equal(255 - shape, ours.alpha))
        return "stencil" if is_same else UNEXPLAINED
    colors = pixels.stretched(theirs.rgb, width, height)
    has_masks_opacity = mask is not None and ours.alpha is not None and of_opacity(theirs, mask, ours, width, height)
    if mask is not None and not has_masks_opacity:
        return UNEXPLAINED
    in_data = objects().opacity_in_data(listed.object) if ours.alpha is not None else 0
    if in_data:
        matte = objects().matte_in_data(listed.object) if in_data == 2 else None
        return "opacity in the data" if is_taken_for_colors(colors, ours, matte) else UNEXPLAINED
    distance = pixels.distance(colors, ours.rgb)
    if distance == 1 and listed.color == "cmyk":
        return "rounding"
    if distance > 0:
        if ours.has_profile and pixels.distance(colors, ours_in_srgb().rgb) == 0:
            return "profile kept"
        matte = objects().matte(listed.object) if has_masks_opacity else None
        return "ground taken out" if matte is not None and is_mixed_with(colors, ours, matte) else UNEXPLAINED
    if ours.alpha is None:
        return SAME
    if mask is not None:
        return "mask as opacity" if (width, height) == theirs.size else "finer mask"
    if objects().has_color_key(listed.object):
        return "colour key"
    return "mask of the page"


def reason_of_missing(listed, notes, objects):
    if any(note["kind"] == "PictureUnreadable" and f"(object {listed.object})" in note["message"] for note in notes):
        return "unreadable"
    return "part of a mask" if listed.object in objects().of_soft_masks() else UNEXPLAINED


def reason_of_surplus(picture, objects):
    numbers = {part["object"] for part in picture["parts"]}
    return "of a pattern" if numbers <= objects().of_patterns() else UNEXPLAINED
