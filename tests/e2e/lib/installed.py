"""The program as it is installed for everybody: in a folder that its players do not write."""

import os
import pathlib
import subprocess

from .table import Table


class Installed(Table):
    """An installation, made from the build or given as ZOVIN_PREFIX, and a player who has not been there before."""

    def lay_out(self, programs, prepared):
        given = os.environ.get("ZOVIN_PREFIX")
        self.prefix = pathlib.Path(given) if given else pathlib.Path.home() / "todos"
        if not given:
            subprocess.run(["cmake", "--install", programs.parent, "--prefix", self.prefix, "--strip"], check=True,
                           capture_output=True)
        self.programs = self.prefix / ("games" if (self.prefix / "games" / "zovin").exists() else "bin")
        self.program = self.programs / "zovin"
        self.console = self.programs / "sonda"
        self.data = self.prefix / "share" / "games" / "zovin"
        self.folder = pathlib.Path.home() / ".local" / "share" / "zovin"

    def installed_files(self):
        """Every file, with its bytes: none of them changes by playing."""
        folders = [self.data, self.prefix / "lib" / "zovin"]
        files = [path for folder in folders for path in folder.rglob("*") if path.is_file()]
        return {path: path.read_bytes() for path in [self.program, self.console, *files]}

    def leave(self):
        self.close_window()
        return self.wait_for_end()
