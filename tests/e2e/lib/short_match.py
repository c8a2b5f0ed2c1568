"""A short match between four seats of the computer, which enters the history at its end."""

import subprocess
import time

from .table import expect, wait_for

QUESTION = "Histórico de partidas jugadas"


def prepare(table, game):
    """Settings for a short match that needs nobody, written by the console."""
    orders = [f"juego {int(game)}", "pon PausaEntreJugadas = false", "pon VelocidadJuego = 100",
              "pon LimitePartida = 1", "pon RestoInicial = 10", "pon ApuestaSalida = 5",
              *(f"pon ControlJugador({seat}) = 1" for seat in range(1, 5)),
              'pon NombreJugador(2) = "Banca"' if game == "31" else "",
              "llama GrabarIniGeneral", "llama GrabarIniJuego"]
    subprocess.run([table.console, "--carpeta", table.folder], input="\n".join(orders), text=True,
                   check=True, capture_output=True)


def play_to_the_end(table):
    """Closes the boxes of the match as they come, up to the question, and says yes."""
    end = time.monotonic() + 240
    while time.monotonic() < end:
        title, window = wait_for(table.box, 120, "a box of the match")
        buttons = table.box_buttons(window)
        if not buttons:
            continue
        table.click(*buttons[0 if title == QUESTION else -1])
        wait_for(lambda: table.box() != (title, window), 10, f"«{title}» to close")
        if title == QUESTION:
            return
    expect(False, "the match comes to its end")
