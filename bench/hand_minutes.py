#!/usr/bin/env python3
"""How long a hand takes at a speed: the figures of the help's page 2215.

hand_minutes.py SONDA    plays five matches of each game, all seats automatic, and adds up the pauses and flights
                         that the console records
"""

import re
import subprocess
import sys
import wave
from pathlib import Path

SOUNDS = Path(__file__).resolve().parent.parent / "assets/sounds"
GAMES = [("Tute", 51, "ManoTute", (2, 3, 4)), ("Brisca", 58, "ManoBrisca", (2, 3, 4)),
         ("Cinquillo", 70, "ManoCinquillo", (4,)), ("Póker", 1, "NuevaPartida", (2, 4)),
         ("Black Jack", 31, "NuevaPartida", (2, 4)), ("Siete y media", 65, "NuevaPartida", (2, 4))]
LEFT_OUT = {2: (1, 3), 3: (3,), 4: ()}
MATCHES = range(1, 6)
SPEEDS = (0, 25, 50, 75, 94)


def factor(speed):
    f = round(((100 - speed) / 50) ** 1.5, 4)
    return round(f * f, 4) if f > 1 else f


def sound_seconds(number):
    with wave.open(str(SOUNDS / f"sonido_{number:02d}.wav")) as sound:
        return sound.getnframes() / sound.getframerate()


def script(game, driver, seats, seed):
    lines = ["mide 1280 720", f"pon NumJugadores = {seats}"]
    lines += [f"pon EstadoJugador({seat}) = 2" for seat in LEFT_OUT[seats]]
    lines += [f"juego {game}", f"semilla {seed}", "pon ControlJugador(4) = 1", "pon PausaEntreJugadas = false",
              "pon LimitePartida = 4", "pon JugadorMano = 2", "pon VelocidadJuego = 50"]
    lines += ["pon PartidaEnCurso = true"] if driver != "NuevaPartida" else []
    return "\n".join(lines + ["siempre continua", "traza si", f"llama {driver}", "di JuegosJugados"]) + "\n"


def measured(sonda, game, driver, seats):
    hands, pauses, sounds = 0, 0, 0
    for seed in MATCHES:
        answer = subprocess.run([sonda], input=script(game, driver, seats, seed), capture_output=True,
                                text=True, check=True).stdout
        hands += int(re.search(r"JuegosJugados = (\d+)", answer).group(1))
        pauses += sum(int(units) for units in re.findall(r"(?m)^Pausa\((\d+)\)", answer))
        sounds += sum(sound_seconds(int(number)) for number in re.findall(r"(?m)^Sonido\(0, (\d+)\)", answer))
    return pauses / 1000 / hands, sounds / hands


def main():
    print("seconds a hand at speed", *SPEEDS, "and what the sounds add", sep="\t")
    for name, game, driver, all_seats in GAMES:
        for seats in all_seats:
            pauses, sounds = measured(sys.argv[1], game, driver, seats)
            print(f"{name} {seats}", *(f"{pauses * factor(speed):.1f}" for speed in SPEEDS), f"{sounds:.1f}", sep="\t")


if __name__ == "__main__":
    main()
