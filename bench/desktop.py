"""What the desktop costs on this machine: start, memory, processor at rest. Run by bench/desktop.sh."""

import os
import pathlib
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "e2e"))

# pylint: disable=wrong-import-position
from lib import screen  # noqa: E402
from lib.table import Table, is_felt, wait_for  # noqa: E402

PAUSES = 2.0  # seconds that the splash stands
STARTS, QUIET = 5, 20
BUDGETS = {"start": 0.17, "memory": 54.0, "processor": 0.0}


def painted(picture):
    """The felt is there, and on it the column of buttons: the table stands."""
    middle = picture.pixel(picture.width // 3, picture.height // 2)
    column = picture.crop(picture.width - 80, 20, 70, 40)
    return is_felt(middle) and any(not is_felt(column.data[i:i + 3])
                                   for i in range(0, len(column.data), 3))


def start(table):
    """Seconds from the command to the painted table, without the two pauses."""
    begun = time.monotonic()
    table.start()
    time.sleep(PAUSES)
    wait_for(lambda: painted(screen.take()), 5, "the table", every=0)
    return time.monotonic() - begun - PAUSES


def glance():
    """What the measuring itself takes."""
    begun = time.monotonic()
    painted(screen.take())
    return time.monotonic() - begun


def spent(table):
    fields = pathlib.Path(f"/proc/{table.process.pid}/stat").read_text(encoding="utf-8")
    fields = fields.rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def resident(table):
    status = pathlib.Path(f"/proc/{table.process.pid}/status").read_text(encoding="utf-8")
    line = next(line for line in status.splitlines() if line.startswith("VmRSS:"))
    return int(line.split()[1]) / 1024


def tell(what, figure, unit, budget):
    verdict = "" if budget is None else "  good" if figure <= budget else f"  OVER {budget:g} {unit}"
    print(f"{what:<44}{figure:8.2f} {unit}{verdict}", flush=True)


def main():
    table = Table("figures")
    try:
        table.begin_empty()
        table.stop()
        glances = sorted(glance() for _ in range(5))
        starts = []
        for _ in range(STARTS):
            starts.append(start(table) - glances[2] / 2)
            table.stop()
        starts.sort()
        tell("start to painted table, best", starts[0], "s", BUDGETS["start"])
        tell("start to painted table, median", starts[STARTS // 2], "s", None)
        table.start()
        table.wait_for_window()
        table.answer("Descripción general", 1)
        time.sleep(2)
        tell("resident, empty table", resident(table), "MB", BUDGETS["memory"])
        before = spent(table)
        time.sleep(QUIET)
        tell(f"processor at rest in {QUIET} s", spent(table) - before, "s", BUDGETS["processor"])
        table.press_main("nueva")
        table.answer("Comienza la Partida", 0, seconds=60)
        time.sleep(8)
        tell("resident, with a match on", resident(table), "MB", BUDGETS["memory"])
    finally:
        table.stop()


if __name__ == "__main__":
    main()
