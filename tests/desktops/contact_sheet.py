"""One picture of a desktop, for a look at what no program can judge."""

import os

from picture import Picture

PART = 560  # points at the right of the screen: as much as the popover needs
MARGIN = 12  # pixels


def write_contact_sheet(folder, name, looks):
    """Of the pictures by their scale and then by what they show: at the usual scale everything, at others how it is open,
    all of them pixel for pixel. Gives the path."""
    row = [picture.right_part(round(PART * scale))
           for scale in sorted(looks)
           for what, picture in looks[scale].items() if scale == 1 or what == "open"]
    width = sum(part.width + MARGIN for part in row) + MARGIN
    height = max(part.height for part in row) + 2 * MARGIN
    sheet = Picture(width, height, b"\x80" * (3 * width * height))
    left = MARGIN
    for part in row:
        sheet = sheet.paste(part, left, MARGIN)
        left += part.width + MARGIN
    os.makedirs(folder, exist_ok=True)
    path = os.path.join(folder, f"{name}.png".replace(" ", "-"))
    sheet.write_png(path)
    return path
