"""Reads the text in a picture, as a person would."""

import difflib
import os
import subprocess


def read(picture, language="eng"):
    """The text in a picture, its words set apart by single blanks. A letter may be misread."""
    large = subprocess.run(["convert", "ppm:-", "-colorspace", "Gray", "-resize", "400%", "png:-"],
                           input=picture.ppm(), stdout=subprocess.PIPE, check=True).stdout
    done = subprocess.run(["tesseract", "stdin", "stdout", "--psm", "6", "-l", language],
                          input=large, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True,
                          env={**os.environ, "OMP_THREAD_LIMIT": "1"})
    return " ".join(done.stdout.decode().split())


def nearest(text, candidates):
    """The one of several texts that was read, allowing for misread letters; else the text itself."""
    return next(iter(difflib.get_close_matches(text, candidates, n=1, cutoff=0.85)), text)
