"""Checks the folder icons of iconos.dll (scripts/make_folder_icons.py).
Run from the repository root: /usr/bin/python3 -m unittest discover -s tests/scripts -v
"""

import os
import subprocess
import sys
import tempfile
import unittest

from PIL import Image

HERE = os.path.dirname(os.path.abspath(__file__))
FOLDER_ICONS = os.path.join(HERE, "..", "..", "scripts", "make_folder_icons.py")


def run(*args):
    subprocess.run([sys.executable, *args], check=True)


def read_all(folder):
    result = {}
    for name in sorted(os.listdir(folder)):
        path = os.path.join(folder, name)
        if os.path.isfile(path):
            with open(path, "rb") as f:
                result[name] = f.read()
    return result


def images(ico_path):
    """Every image of an .ico as RGBA, by size."""
    icon = Image.open(ico_path)
    result = {}
    for size in icon.info["sizes"]:
        icon.size = size
        result[size[0]] = icon.convert("RGBA").copy()
    return result


class FolderIconsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tmp = tempfile.TemporaryDirectory()
        cls.out = os.path.join(cls.tmp.name, "a")
        run(FOLDER_ICONS, cls.out)
        with open(os.path.join(cls.out, "iconos.rc")) as f:
            cls.listed = [line.split('"')[1] for line in f if " ICON " in line]

    @classmethod
    def tearDownClass(cls):
        cls.tmp.cleanup()

    def test_rebuild_gives_identical_bytes(self):
        again = os.path.join(self.tmp.name, "b")
        run(FOLDER_ICONS, again)
        self.assertEqual(read_all(self.out), read_all(again))

    def test_symbols_stand_out_at_every_size(self):
        # A folder with a symbol carries near-white pixels on its front flap
        # at every size; a plain one carries none there.
        for name in self.listed:
            plain = name.split("_", 1)[1][:-4] in (
                "folder", "blue", "green", "red", "purple", "orange", "pink", "teal", "graphite")
            for size, image in images(os.path.join(self.out, name)).items():
                flap = image.crop((size // 4, size * 11 // 20, size * 3 // 4, size * 17 // 20))
                white = sum(1 for r, g, b, a in flap.getdata() if min(r, g, b) > 225 and a > 200)
                if plain:
                    self.assertEqual(white, 0, "%s at %d" % (name, size))
                else:
                    self.assertGreater(white, 0, "%s at %d" % (name, size))


if __name__ == "__main__":
    unittest.main()
