"""The fresh folder in which a session is played, and the steps that change it."""

import json
import os
import pathlib
import shutil
import stat
import tempfile

SESSIONS = pathlib.Path(__file__).resolve().parent
# Hundreds of small folders come and go faster where there is no disk below.
MEMORY = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
CODE_PAGE = "cp1252"
READ_ONLY = stat.S_IRUSR | stat.S_IRGRP | stat.S_IROTH


def lay_over(source, folder):
    shutil.copytree(source, folder, dirs_exist_ok=True, copy_function=shutil.copyfile)


def write(folder, file, text):
    (folder / file).write_bytes(text.encode(CODE_PAGE))


def remove(folder, path):
    if (folder / path).is_dir() and not (folder / path).is_symlink():
        shutil.rmtree(folder / path)
    else:
        (folder / path).unlink()


def make_directory(folder, path):
    (folder / path).mkdir(parents=True, exist_ok=True)


def make_read_only(folder, file):
    (folder / file).chmod(READ_ONLY)


def link(folder, target, path):
    (folder / path).symlink_to(target)


def copy(folder, source, path):
    source = SESSIONS / source
    if source.is_dir():
        lay_over(source, folder / path)
    else:
        (folder / path).parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(source, folder / path)


STEPS = {"write": write, "remove": remove, "mkdir": make_directory, "readonly": make_read_only,
         "link": link, "copy": copy}


def in_json(text):
    return json.dumps(text, ensure_ascii=False)[1:-1]


class Folder:
    """Filled from the before/ and prepare.json of several folders, one over the other."""

    def __init__(self, layers, runner):
        self.layers = layers
        self.runner = runner
        self.path = None

    def __enter__(self):
        self.path = pathlib.Path(tempfile.mkdtemp(prefix="session-", dir=MEMORY))
        try:
            self.fill()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.path)

    def fill(self):
        for layer in self.layers:
            if (layer / "before").is_dir():
                lay_over(layer / "before", self.path)
        if not (self.path / "app").exists():
            lay_over(SESSIONS / "app", self.path / "app")
        for layer in self.layers:
            if (layer / "prepare.json").exists():
                text = (layer / "prepare.json").read_text("utf-8")
                for step in json.loads(text.replace("@DIR@", in_json(str(self.path)))):
                    self.take(step)

    def take(self, step):
        STEPS[step[0]](self.path, *step[1:])

    def name(self, path="."):
        """What the replay calls a path in the folder."""
        return self.runner.name_of(self.path / path)

    def named(self, text):
        """A text of JSON with the folder's name in place of @DIR@."""
        return text.replace("@DIR@", in_json(self.name()))

    def unnamed(self, text):
        return text.replace(in_json(self.name()), "@DIR@")

    def files(self):
        return files_below(self.path)


def files_below(top):
    """The bytes of all files below a folder by their names relative to it; a link isn't followed,
    since it may lead to a device."""
    found = {}
    for folder, _, names in os.walk(top):
        for name in names:
            file = pathlib.Path(folder, name)
            if file.is_symlink():
                found[file.relative_to(top).as_posix()] = b"link to " + os.fsencode(file.readlink())
            elif file.is_file():
                found[file.relative_to(top).as_posix()] = file.read_bytes()
    return found
