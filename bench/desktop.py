"""What the desktop costs on this machine: start, memory, processor at rest. Run by bench/desktop.sh."""

import os
import pathlib
import struct
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "e2e"))

# pylint: disable=wrong-import-position
from lib.table import Table, expect, is_felt, wait_for  # noqa: E402

PAUSES = 2.0  # seconds that the splash stands
STARTS, QUIET = 9, 20
LAST_LOOK = 31  # seconds after which Qt has looked once more over the pixmaps that it keeps, and sets no further timer
BUDGETS = {"start": 0.17, "memory": 54.0, "processor": 0.0, "wakes": 0}


def glance():
    """Whether the felt is on the screen, and on it the column of buttons. By xwd, which takes a quarter of the time
    of a picture for the eye, and sees nothing in the moment in which a window comes or goes."""
    data = subprocess.run(["xwd", "-silent", "-root"], check=False, capture_output=True).stdout
    if not data:
        return False
    header = struct.unpack(">25I", data[:100])
    width, height, stride, step = header[4], header[5], header[12], header[11] // 8
    pixels = data[header[0] + 12 * header[19]:]

    def felt(x, y):
        at = y * stride + x * step
        return is_felt(pixels[at:at + 3][::-1])

    return felt(width // 5, height // 3) and not all(felt(width - 45, y) for y in range(30, 70))


def start(table):
    """Seconds from the command to the painted table, without the two pauses."""
    begun = time.monotonic()
    table.start()
    time.sleep(PAUSES)
    wait_for(glance, 10, "the table", every=0)
    return time.monotonic() - begun - PAUSES


def length_of_glance():
    begun = time.monotonic()
    glance()
    return time.monotonic() - begun


def field_of(path, field):
    lines = path.read_text(encoding="utf-8").splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith(field + ":"))


def spent(table):
    """Seconds of processor, and how often the program's own thread has slept and woken. The sound library's thread
    answers its server, and wakes when that has something to tell."""
    process = pathlib.Path(f"/proc/{table.process.pid}")
    fields = (process / "stat").read_text(encoding="utf-8").rsplit(")", 1)[1].split()
    wakes = field_of(process / "status", "voluntary_ctxt_switches")
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK"), wakes


def wait_for_rest(table, seconds):
    def rests():
        before = spent(table)
        time.sleep(3)
        return spent(table) == before
    wait_for(rests, seconds, "a table at rest")


def resident(table):
    return field_of(pathlib.Path(f"/proc/{table.process.pid}/status"), "VmRSS") / 1024


def loudspeaker():
    """A sound server that plays into the void, so that the sounds are loaded and played."""
    server = subprocess.Popen(["pulseaudio", "-n", "--exit-idle-time=-1", "--log-target=null",
                               "--load=module-null-sink", "--load=module-native-protocol-unix"])
    asked = ["pactl", "info"]
    wait_for(lambda: subprocess.run(asked, check=False, capture_output=True).returncode == 0, 10,
             "the sound server")
    return server


def switch_sound_on(table):
    settings = table.folder / "ZOV31.INI"
    text = bytearray(settings.read_bytes())
    text[2:4] = b"-1"
    settings.write_bytes(text)


def has_sound(table):
    return "zovin_sound" in pathlib.Path(f"/proc/{table.process.pid}/maps").read_text(encoding="utf-8")


def tell_rest(table, what):
    time.sleep(LAST_LOOK)
    wait_for_rest(table, 60)
    before = spent(table)
    time.sleep(QUIET)
    after = spent(table)
    tell(f"processor in {QUIET} s, {what}", after[0] - before[0], "s", BUDGETS["processor"])
    tell(f"wake-ups in {QUIET} s, {what}", after[1] - before[1], "", BUDGETS["wakes"])
    tell(f"resident, {what}", resident(table), "MB", BUDGETS["memory"])


def tell(what, figure, unit, budget):
    verdict = "" if budget is None else "  good" if figure <= budget else f"  OVER {budget:g} {unit}"
    print(f"{what:<44}{figure:8.2f} {unit}{verdict}", flush=True)


def main():
    table = Table("figures")
    server = loudspeaker()
    try:
        table.begin_empty()
        table.stop()
        switch_sound_on(table)
        glances = sorted(length_of_glance() for _ in range(5))
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
        tell_rest(table, "empty table")
        table.press_main("nueva")
        table.answer("Comienza la Partida", 0, seconds=60)
        tell_rest(table, "a match that waits")
        expect(table.match_on() and has_sound(table), "a match is on, with sound")
    finally:
        table.stop()
        server.terminate()
        server.wait()


if __name__ == "__main__":
    main()
