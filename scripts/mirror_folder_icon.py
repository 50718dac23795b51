#!/usr/bin/python3
"""Shows a folder's customisation, as its Desktop.ini holds it, to Linux file
managers: the icon as PNG files (256, 128 and 48 pixels, kept in STORE under
a hash of the icon's images) named in the folder's GIO metadata (GNOME Files,
Nemo, Caja) and in its .directory (Dolphin), the info tip as the
.directory's Comment. Without an icon in Desktop.ini the marks this script
made go again; marks it did not make are left alone.

Usage: mirror_folder_icon.py FOLDER STORE
       mirror_folder_icon.py --png ICON_FILE INDEX STORE   (prints the PNG)
Windows paths other than Z:\\ are converted by winepath in $WINEPREFIX.
"""

import hashlib
import io
import os
import re
import subprocess
import sys
import tempfile
from urllib.parse import quote, unquote

from PIL import Image

SIZES = (256, 128, 48)
SECTION = ".shellclassinfo"
GIO_KEY = "metadata::custom-icon"
ENTRY_GROUP = "[Desktop Entry]"
ICON_GROUP_TYPE = "14"  # RT_GROUP_ICON


class NoIcon(Exception):
    """The icon Desktop.ini names cannot be shown here; the reason is the text."""


def read_shell_info(folder):
    """The [.ShellClassInfo] values of the folder's Desktop.ini by lower-case
    key, the first of each as Windows reads them; empty without the file."""
    names = [n for n in os.listdir(folder) if n.lower() == "desktop.ini"]
    if not names:
        return {}
    with open(os.path.join(folder, names[0]), "rb") as f:
        data = f.read()
    # Morvane writes UTF-16 with a byte-order mark when the ANSI code page
    # cannot hold a value; otherwise the file is Windows-1252.
    if data.startswith(b"\xff\xfe"):
        text = data[2:].decode("utf-16-le", "replace")
    elif data.startswith(b"\xef\xbb\xbf"):
        text = data[3:].decode("utf-8", "replace")
    else:
        text = data.decode("cp1252", "replace")
    values, section = {}, None
    for line in text.splitlines():
        line = line.strip()
        if line.startswith("[") and "]" in line:
            section = line[1:line.index("]")].strip().lower()
        elif section == SECTION and "=" in line:
            key, value = (part.strip() for part in line.split("=", 1))
            if len(value) > 1 and value[0] == value[-1] and value[0] in "\"'":
                value = value[1:-1]
            values.setdefault(key.lower(), value)
    return values


def linux_path(path, folder):
    """The Linux file a Desktop.ini path names: relative to the folder, on Z:
    (the Linux root), or wherever winepath finds it."""
    if path.startswith("\\\\?\\") and not path.lower().startswith("\\\\?\\unc\\"):
        path = path[4:]
    if re.match(r"^[zZ]:[\\/]", path):
        return "/" + path[3:].replace("\\", "/")
    if not re.match(r"^([A-Za-z]:)?[\\/]", path):
        return os.path.join(folder, path.replace("\\", "/"))
    # Wine names Linux files in the character set of LC_CTYPE.
    answer = subprocess.run(["winepath", "-u", path], capture_output=True, text=True,
                            env=dict(os.environ, LC_CTYPE="C.UTF-8"), stdin=subprocess.DEVNULL)
    if answer.returncode != 0 or not answer.stdout.strip():
        raise NoIcon(f"Wine knows no file {path}")
    return answer.stdout.strip()


def icon_group(path, index):
    """The icon at `index` in the file as an .ico: an .ico file is its only
    icon; in a program or library a position counts icon groups in resource
    order, and a negative index is minus a group's resource number."""
    try:
        with open(path, "rb") as f:
            data = f.read()
    except OSError as error:
        raise NoIcon(f"cannot read {path}: {error.strerror}") from None
    if data[:4] == b"\0\0\1\0":
        if index != 0:
            raise NoIcon(f"{path} holds one icon, not number {index}")
        return data
    if data[:2] != b"MZ":
        raise NoIcon(f"{path} is neither an icon file nor a program or library")
    listing = subprocess.run(["wrestool", "-l", "-t", ICON_GROUP_TYPE, path], capture_output=True,
                             text=True, stdin=subprocess.DEVNULL).stdout
    # One line a group: --type=14 --name=4 --language=1033 [...], a name
    # that is text in quotes.
    groups = re.findall(r"^--type=\S+ --name=('[^']*'|\d+) --language=(\d+)", listing, re.M)
    if index >= 0:
        chosen = groups[index:index + 1]
    else:
        chosen = [g for g in groups if g[0] == str(-index)][:1]
    if not chosen:
        raise NoIcon(f"{path} has no icon {index} ({len(groups)} icons)")
    name, language = chosen[0]
    name = "+" + name.strip("'") if name.startswith("'") else "-" + name
    extracted = subprocess.run(["wrestool", "-x", "-t", ICON_GROUP_TYPE, "-n", name, "-L",
                                language, path], capture_output=True,
                               stdin=subprocess.DEVNULL).stdout
    if extracted[:4] != b"\0\0\1\0":
        raise NoIcon(f"icon {index} of {path} cannot be read")
    return extracted


def icon_pngs(group, store):
    """Writes the icon's PNG files once and names the one a file manager
    shows: the largest that is the icon's own image rather than enlarged."""
    digest = hashlib.sha256(group).hexdigest()[:20]
    try:
        icon = Image.open(io.BytesIO(group))
        entries = icon.ico.entry  # largest and deepest first
        largest = entries[0]["width"]
        os.makedirs(store, exist_ok=True)
        for size in SIZES:
            target = os.path.join(store, f"{digest}-{size}.png")
            if os.path.exists(target):
                continue
            exact = [i for i, e in enumerate(entries) if e["dim"] == (size, size)]
            if exact:
                image = icon.ico.frame(exact[0]).convert("RGBA")
            else:
                image = icon.ico.frame(0).convert("RGBA").resize((size, size), Image.LANCZOS)
            # A file manager may read the store while another run writes it.
            handle, temporary = tempfile.mkstemp(dir=store, suffix=".png")
            with os.fdopen(handle, "wb") as f:
                image.save(f, "PNG")
            os.chmod(temporary, 0o644)
            os.replace(temporary, target)
    except (OSError, SyntaxError, ValueError, IndexError):
        raise NoIcon("the icon's images cannot be read") from None
    shown = max([s for s in SIZES if s <= largest] or [min(SIZES)])
    return os.path.join(store, f"{digest}-{shown}.png")


def is_ours(value, store):
    return value.startswith(os.path.join(store, "")) and value.endswith(".png")


def mirror_gio(folder, png, store):
    """Sets or clears metadata::custom-icon; needs the GVfs metadata service.
    True when it changed the folder's metadata."""
    def gio(*words):
        return subprocess.run(["gio", *words], capture_output=True, text=True,
                              stdin=subprocess.DEVNULL)
    try:
        if png:
            answer = gio("set", folder, GIO_KEY, "file://" + quote(png))
        else:
            info = gio("info", "-a", GIO_KEY, folder).stdout
            current = re.search(r"^\s*" + GIO_KEY + r": file://(.*)$", info, re.M)
            if not current or not is_ours(unquote(current.group(1)), store):
                return False
            answer = gio("set", "-t", "unset", folder, GIO_KEY)
    except FileNotFoundError:
        print("morvane: gio is missing (package libglib2.0-bin); GNOME Files and its kin "
              "will not show the icon", file=sys.stderr)
        return False
    if answer.returncode != 0:
        print(f"morvane: gio could not mark the folder: {answer.stderr.strip()}", file=sys.stderr)
    return answer.returncode == 0


def desktop_value(text):
    """A value as a desktop entry's string type writes it."""
    text = text.replace("\\", "\\\\").replace("\t", "\\t")
    return "\\s" + text[1:] if text.startswith(" ") else text


def mirror_directory_file(folder, png, tip, store):
    """Sets or clears Icon and Comment in the [Desktop Entry] group of the
    folder's .directory; every other line stays as it was. True when it
    wrote the file."""
    path = os.path.join(folder, ".directory")
    try:
        with open(path, encoding="utf-8", errors="surrogateescape") as f:
            lines = f.read().splitlines()
    except FileNotFoundError:
        lines = []
    start = next((i for i, l in enumerate(lines) if l.strip() == ENTRY_GROUP), None)
    if start is None:
        if not png:
            return False
        lines += [ENTRY_GROUP]
        start = len(lines) - 1
    end = next((i for i in range(start + 1, len(lines)) if lines[i].lstrip().startswith("[")),
               len(lines))
    group = lines[start + 1:end]
    current = {l.split("=", 1)[0].strip(): l.split("=", 1)[1].strip() for l in group if "=" in l}
    if not png and not is_ours(current.get("Icon", ""), store):
        return False
    wanted = {"Icon": png, "Comment": desktop_value(tip) if png and tip else None}
    group = [l for l in group if l.split("=", 1)[0].strip() not in wanted]
    group[0:0] = [f"{key}={value}" for key, value in wanted.items() if value]
    lines[start + 1:end] = group
    if not any(l.strip() and l.strip() != ENTRY_GROUP for l in lines):
        os.remove(path)
        return True
    with open(path, "w", encoding="utf-8", errors="surrogateescape") as f:
        f.write("\n".join(lines) + "\n")
    return True


def mirror(folder, store):
    info = read_shell_info(folder)
    png = None
    # Explorer takes IconResource (path,index) before IconFile and IconIndex.
    source, _, index = info.get("iconresource", "").rpartition(",")
    if not source:
        source, index = info.get("iconfile", ""), info.get("iconindex", "0")
    if source:
        # As Windows reads a number: its leading digits, else 0.
        digits = re.match(r"\s*([+-]?[0-9]+)", index)
        number = int(digits.group(1)) if digits else 0
        try:
            png = icon_pngs(icon_group(linux_path(source, folder), number), store)
        except NoIcon as reason:
            print(f"morvane: the folder's icon is not shown on Linux: {reason}", file=sys.stderr)
    changed = mirror_gio(folder, png, store)
    try:
        changed |= mirror_directory_file(folder, png, info.get("infotip", ""), store)
        # A file manager showing the folder reads its icon again when the
        # folder itself changes; a new metadata value alone it does not see.
        if changed:
            os.utime(folder)
    except OSError as error:
        print(f"morvane: cannot write in {folder}: {error.strerror}", file=sys.stderr)


def main(args):
    if len(args) == 4 and args[0] == "--png":
        try:
            print(icon_pngs(icon_group(args[1], int(args[2])), os.path.abspath(args[3])))
        except (NoIcon, ValueError) as reason:
            print(f"morvane: {reason}", file=sys.stderr)
            return 1
        return 0
    if len(args) != 2 or not os.path.isdir(args[0]):
        print(__doc__, file=sys.stderr)
        return 2
    try:
        mirror(os.path.abspath(args[0]), os.path.abspath(args[1]))
    except OSError as error:
        print(f"morvane: cannot read the folder's Desktop.ini: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
