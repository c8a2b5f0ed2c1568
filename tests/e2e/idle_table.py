"""A table at which nobody does anything uses no processor and does not wake up; what it takes to start
and to stand there is told."""

import pathlib
import time

from lib.table import expect, run, xdotool

QUIET = 10  # seconds


def field_of(path, field):
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.startswith(field + ":"):
            return int(line.split()[1])
    return 0


def spent(table):
    """Processor time in hundredths of a second, and how often the threads have slept and woken."""
    process = pathlib.Path(f"/proc/{table.process.pid}")
    fields = (process / "stat").read_text(encoding="utf-8").rsplit(")", 1)[1].split()
    wakes = sum(field_of(thread / "status", "voluntary_ctxt_switches")
                for thread in (process / "task").iterdir())
    return int(fields[11]) + int(fields[12]), wakes


def is_quiet(table, what):
    time.sleep(2)
    before = spent(table)
    time.sleep(QUIET)
    after = spent(table)
    ticks, wakes = after[0] - before[0], after[1] - before[1]
    print(f"{what}: {ticks / 100:.2f} s of processor and {wakes} wake-ups in {QUIET} s")
    expect(ticks == 0, f"{what} uses the processor")
    expect(wakes == 0, f"{what} wakes up")


def play(table):
    table.begin_empty()
    xdotool("mousemove", 600, 400)
    is_quiet(table, "the empty table")
    resident = field_of(pathlib.Path(f"/proc/{table.process.pid}/status"), "VmRSS")
    print(f"{resident / 1024:.1f} MB resident")
    table.press_main("salir")
    expect(table.wait_for_end() == 0, "a good end")

    begun = time.monotonic()
    table.start()
    table.wait_for_window()
    print(f"{time.monotonic() - begun:.2f} s to the table, two of them in the pauses of the splash")
    table.wait_for_box("Descripción general", 5)
    is_quiet(table, "an open box")


run(play)
