"""The menu of GNOME Files and Thunar, in a stand-in for each: file_browsers.py FILE-OF-NAUTILUS FILE-OF-THUNAR

The browsers themselves need a desktop. The stand-in has what the extension uses of them, and calls it as they do.
"""

import importlib.util
import os
import stat
import sys
import tempfile
import time
import types


class Item:
    def __init__(self, name, label, icon):
        self.name, self.label, self.icon = name, label, icon

    def connect(self, signal, function, *arguments):
        assert signal == "activate"
        self.activate = lambda: function(self, *arguments)


class Location:
    def __init__(self, path):
        self.path = path

    def get_path(self):
        return self.path


class File:
    def __init__(self, path, is_folder=True):
        self.path, self.is_folder = path, is_folder

    def is_directory(self):
        return self.is_folder

    def get_location(self):
        return Location(self.path)


def loaded(path, browser):
    module = types.SimpleNamespace(MenuItem=Item, MenuProvider=type("MenuProvider", (), {}))
    repository = types.ModuleType("gi.repository")
    repository.GObject = types.SimpleNamespace(GObject=type("GObject", (), {}))
    setattr(repository, browser, module)
    sys.modules["gi"] = types.ModuleType("gi")
    sys.modules["gi.repository"] = repository
    spec = importlib.util.spec_from_file_location("tessaro_menu_" + browser, path)
    extension = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(extension)
    return extension.TessaroMenu()


def check(menu, asked, folder):
    items = asked(menu)
    assert [item.label for item in items] == ["New Project Here…", "Check Project…"], items
    with tempfile.TemporaryDirectory() as place:
        said = os.path.join(place, "said")
        program = os.path.join(place, "Tessaro")
        with open(program, "w") as script:
            script.write('#!/bin/sh\nprintf "%%s\\n" "$@" >%s.part && mv %s.part %s\n' % (said, said, said))
        os.chmod(program, stat.S_IRWXU)
        os.environ["PATH"] = place + ":" + os.environ["PATH"]
        for item, word in zip(items, ("--new-project-here", "--check-project")):
            item.activate()
            for _ in range(1000):
                if os.path.exists(said):
                    break
                time.sleep(0.01)
            with open(said) as file:
                assert file.read().splitlines() == [word, folder]
            os.remove(said)


os.environ["LC_ALL"] = "C.UTF-8"
folder = "/srv/Ünï code's \"folder\""
nautilus = loaded(sys.argv[1], "Nautilus")
for ask in (lambda menu: menu.get_file_items([File(folder)]),  # since version 43
            lambda menu: menu.get_file_items(None, [File(folder)]),
            lambda menu: menu.get_background_items(File(folder)),
            lambda menu: menu.get_background_items(None, File(folder))):
    check(nautilus, ask, folder)
thunar = loaded(sys.argv[2], "Thunarx")
for ask in (lambda menu: menu.get_file_menu_items(None, [File(folder)]),
            lambda menu: menu.get_folder_menu_items(None, File(folder))):
    check(thunar, ask, folder)
for files in ([], [File(folder), File(folder)], [File(folder, is_folder=False)], [File(None)]):
    assert nautilus.get_file_items(files) == [], files
    assert thunar.get_file_menu_items(None, files) == [], files
