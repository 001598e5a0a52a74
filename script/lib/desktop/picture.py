"""A picture of a window, and facts about it."""

import collections
import subprocess


class Picture:
    """RGB pixels, row by row from the top left."""

    def __init__(self, width, height, pixels):
        self.width, self.height, self.pixels = width, height, pixels

    def __eq__(self, other):
        return (self.width, self.height, self.pixels) == (other.width, other.height, other.pixels)

    def crop(self, left, top, width, height):
        rows = [self.pixels[3 * (y * self.width + left):3 * (y * self.width + left + width)]
                for y in range(top, top + height)]
        return Picture(width, height, b"".join(rows))

    def _pixels(self):
        return collections.Counter(tuple(self.pixels[start:start + 3])
                                   for start in range(0, len(self.pixels), 3))

    def main_colour(self):
        """The colour of most pixels."""
        return self._pixels().most_common(1)[0][0]

    def has(self, colour):
        return colour in self._pixels()

    def ppm(self):
        return b"P6 %d %d 255\n" % (self.width, self.height) + self.pixels


def _printed_by(*command):
    data = subprocess.run([*command, "-depth", "8", "ppm:-"], stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, check=True).stdout
    width, height = (int(number) for number in data.split(maxsplit=3)[1:3])
    return Picture(width, height, data[-3 * width * height:])


def picture_of(window):
    """A picture of an X window; the window `root` is the whole display."""
    return _printed_by("import", "-silent", "-window", window)


def picture_in(file):
    """The picture in a file of any form."""
    return _printed_by("convert", str(file))
