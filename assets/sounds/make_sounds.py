#!/usr/bin/env python3
"""Makes the thirteen sounds of the table, from nothing but arithmetic.

    make_sounds.py            write sonido_NN.wav beside this script
    make_sounds.py --check    write nothing; compare each file with what would be
                              written, hold it to its limits and to the figures
                              below; status 1 if anything differs
    make_sounds.py --table    print the figures below, measured anew

The files are 16-bit mono WAVE at 22050 Hz. The noise comes from a generator of
this script, so every run gives the same bytes. A sound is a list of samples at
any height; in the end it is freed of what lies below 70 Hz and above 7 kHz, faded
at both ends and brought to its peak. "Centre" is the root mean square frequency,
which tells a shrill sound from a mellow one.

Sounds 9 and 25 are played while the program waits for them, so they may last
80 ms at most. Sound 4 comes every 120 ms while an arrow is held.

                                          lasts       peak        rms    centre
  4  a step of a number: tiny tick        30 ms    -6.0 dB   -20.8 dB   1311 Hz
  6  bet or side button: soft click       55 ms    -6.0 dB   -21.6 dB    931 Hz
  7  a selector steps: lower click        65 ms    -6.0 dB   -21.0 dB    518 Hz
  9  main button: click, waited for       72 ms    -6.0 dB   -22.8 dB    757 Hz
 10  a page of the folder turns          420 ms    -6.0 dB   -21.0 dB   2773 Hz
 11  alert of Black Jack: small bell     600 ms    -6.0 dB   -22.6 dB    643 Hz
 12  green caption blinks: bright blip   110 ms    -6.0 dB   -14.2 dB   1017 Hz
 14  end of a hand: three notes          860 ms    -6.0 dB   -19.9 dB    533 Hz
 20  the shuffle: riffle                 700 ms    -6.0 dB   -22.9 dB   1623 Hz
 22  a chip moves: clay clink            140 ms    -6.0 dB   -24.3 dB   1925 Hz
 24  a card takes off: swish             150 ms    -6.0 dB   -18.9 dB   2244 Hz
 25  a card lands: slap, waited for       75 ms    -6.0 dB   -21.3 dB    580 Hz
 26  an advised card rises: blip         180 ms    -6.0 dB   -13.7 dB    585 Hz
"""

import argparse
import array
import io
import math
import pathlib
import sys
import wave

MUESTREO = 22050  # samples a second
PICO_DB = -6.0  # of full scale, the peak of every sound
MARGEN_DB = 0.1
CENTRO_MAXIMO = 4000  # Hz; above it a sound would be shrill
SALTO_EN_EXTREMOS = 33  # a step of a thousandth of full scale is not heard as a click


def muestras(segundos):
    return round(segundos * MUESTREO)


# Sources


def ruido(segundos, semilla):
    """White noise between -1 and 1, always the same for a seed."""
    salida = []
    for _ in range(muestras(segundos)):
        semilla = (semilla * 1664525 + 1013904223) & 0xFFFFFFFF
        salida.append((semilla >> 8) / 8388608 - 1)
    return salida


def parcial(segundos, hercios, caida):
    """A sine that dies away: a part 1/e of it is left after `caida` seconds."""
    return [
        math.sin(2 * math.pi * hercios * n / MUESTREO) * math.exp(-n / MUESTREO / caida)
        for n in range(muestras(segundos))
    ]


def deslizado(segundos, desde, hasta):
    """A sine that glides from one pitch to another."""
    total = muestras(segundos)
    fase = 0.0
    salida = []
    for n in range(total):
        salida.append(math.sin(fase))
        fase += 2 * math.pi * (desde + (hasta - desde) * n / total) / MUESTREO
    return salida


# Shapes


def filtrado(sonido, banda, hercios, ancho=0.7):
    """Passes the 'baja', 'media' or 'alta' part; `hercios` may be a function of 0..1."""
    primero = segundo = 0.0
    salida = []
    for n, entrada in enumerate(sonido):
        corte = hercios(n / len(sonido)) if callable(hercios) else hercios
        g = math.tan(math.pi * corte / MUESTREO)
        k = 1 / ancho
        a = 1 / (1 + g * (g + k))
        resto = entrada - segundo
        media = a * primero + g * a * resto
        baja = segundo + g * a * primero + g * g * a * resto
        primero = 2 * media - primero
        segundo = 2 * baja - segundo
        salida.append({"baja": baja, "media": k * media, "alta": entrada - k * media - baja}[banda])
    return salida


def apagado(sonido, caida):
    return [x * math.exp(-n / MUESTREO / caida) for n, x in enumerate(sonido)]


def joroba(sonido, cima):
    """Swells up to the part `cima` of the sound and falls away behind it."""
    salida = []
    for n, x in enumerate(sonido):
        t = n / len(sonido)
        cerca = t / cima if t < cima else (1 - t) / (1 - cima)
        salida.append(x * math.sin(math.pi / 2 * cerca) ** 2)
    return salida


def mezcla(segundos, *partes):
    """Adds parts, each (start in seconds, height, samples), and cuts at the end."""
    salida = [0.0] * muestras(segundos)
    for inicio, altura, sonido in partes:
        primero = muestras(inicio)
        for n, x in enumerate(sonido[: len(salida) - primero]):
            salida[primero + n] += altura * x
    return salida


def acabado(sonido, entrada=0.001, cola=0.15):
    """Freed of rumble and hiss, faded in (seconds) and out (part of the length), at its peak."""
    sonido = filtrado(filtrado(sonido, "alta", 70), "baja", 7000)
    subida = muestras(entrada)
    bajada = max(muestras(0.004), round(len(sonido) * cola))
    for n in range(subida):
        sonido[n] *= math.sin(math.pi / 2 * n / subida) ** 2
    for n in range(bajada):
        sonido[-1 - n] *= math.sin(math.pi / 2 * n / bajada) ** 2
    escala = 32767 * 10 ** (PICO_DB / 20) / max(abs(x) for x in sonido)
    return array.array("h", [round(x * escala) for x in sonido])


# The sounds


def chasquido(segundos, hercios, caida, semilla):
    """Something small and hard that is touched: a body that rings and a scratch."""
    roce = apagado(filtrado(ruido(segundos, semilla), "media", 2.6 * hercios, 1.0), caida / 3)
    return mezcla(
        segundos,
        (0, 1.0, parcial(segundos, hercios, caida)),
        (0, 0.35, parcial(segundos, 2.3 * hercios, caida / 2)),
        (0, 0.9, roce),
    )


def tic():
    return acabado(chasquido(0.030, 1150, 0.004, 4))


def clic_suave():
    return acabado(chasquido(0.055, 760, 0.008, 6))


def clic_grave():
    return acabado(chasquido(0.065, 430, 0.011, 7))


def clic_de_boton():
    """Down and, weaker, up again."""
    return acabado(
        mezcla(
            0.072,
            (0, 1.0, chasquido(0.05, 560, 0.008, 9)),
            (0.030, 0.45, chasquido(0.04, 820, 0.006, 90)),
        )
    )


def hoja():
    """A big sheet: the air under it first, then the edge that falls."""
    aire = filtrado(ruido(0.36, 10), "media", lambda t: 700 + 1900 * t, 0.8)
    borde = filtrado(ruido(0.12, 101), "media", 1500, 0.7)
    arrugas = [
        (0.03 + 0.021 * n, 0.16 + 0.05 * (n % 3), apagado(filtrado(ruido(0.03, 110 + n), "media", 2400, 1.2), 0.004))
        for n in range(12)
    ]
    return acabado(mezcla(0.42, (0, 1.0, joroba(aire, 0.6)), (0.30, 0.9, apagado(borde, 0.022)), *arrugas), 0.01)


def campana():
    """A small bell, struck once; the partials of a bell are no multiples of each other."""
    golpe = filtrado(ruido(0.02, 11), "media", 2200, 1.0)
    cuerpo = [
        (0, altura, parcial(0.60, 523.25 * razon, caida))
        for razon, altura, caida in (
            (0.5, 0.30, 0.22),
            (1.0, 1.00, 0.20),
            (1.19, 0.55, 0.17),
            (1.5, 0.30, 0.14),
            (2.0, 0.55, 0.12),
            (2.66, 0.25, 0.07),
            (3.98, 0.12, 0.04),
        )
    ]
    return acabado(mezcla(0.60, (0, 0.4, apagado(golpe, 0.004)), *cuerpo), 0.002, 0.3)


def destello():
    """Short and bright, and the octave makes it bright without making it sharp."""
    tono = mezcla(0.11, (0, 1.0, deslizado(0.11, 880, 988)), (0, 0.3, deslizado(0.11, 1760, 1976)))
    return acabado(joroba(tono, 0.12), 0.004)


def nota(segundos, hercios):
    """A plucked string, softly."""
    cuerpo = [
        (0, altura, parcial(segundos, hercios * armonico, 0.24 / armonico))
        for armonico, altura in ((1, 1.0), (2, 0.42), (3, 0.16), (4, 0.06))
    ]
    pulsacion = apagado(filtrado(ruido(0.03, round(hercios)), "media", 1800, 0.8), 0.005)
    return mezcla(segundos, (0, 0.15, pulsacion), *cuerpo)


def cadencia():
    """Sol, si and do, the last with the mi below it: the hand is over."""
    return acabado(
        mezcla(
            0.86,
            (0.00, 0.75, nota(0.50, 392.00)),
            (0.14, 0.75, nota(0.50, 493.88)),
            (0.28, 0.90, nota(0.58, 523.25)),
            (0.28, 0.55, nota(0.58, 329.63)),
        ),
        0.003,
        0.35,
    )


def barajado():
    """Two halves that fall into each other card by card, faster and faster, then the squaring."""
    partes = []
    momento, espera = 0.02, 0.030
    for n in range(40):
        carta = filtrado(ruido(0.03, 200 + n), "media", 1300 + 250 * ((n * 7) % 5), 0.9)
        altura = 0.45 + 0.12 * ((n * 5) % 4)
        partes.append((momento, altura, apagado(carta, 0.0045)))
        partes.append((momento, altura * 0.35, parcial(0.03, 240 + 20 * (n % 3), 0.006)))
        momento += espera
        espera = max(0.0075, espera * 0.95)
    roce = filtrado(ruido(0.5, 201), "media", lambda t: 900 + 900 * t, 0.8)
    golpe = filtrado(ruido(0.08, 202), "baja", 900)
    partes.append((0.03, 0.16, joroba(roce, 0.7)))
    partes.append((0.60, 1.0, apagado(golpe, 0.014)))
    partes.append((0.60, 0.7, parcial(0.08, 190, 0.016)))
    return acabado(mezcla(0.70, *partes), 0.004, 0.06)


def ficha(segundos, hercios, semilla):
    """One clay chip on another: it rings for a moment only."""
    cuerpo = [
        (0, altura, parcial(segundos, hercios * razon, caida))
        for razon, altura, caida in ((1, 1.0, 0.011), (1.62, 0.7, 0.008), (2.31, 0.35, 0.005))
    ]
    return mezcla(segundos, (0, 0.5, apagado(filtrado(ruido(0.02, semilla), "media", 1900, 0.9), 0.003)), *cuerpo)


def fichas():
    return acabado(
        mezcla(
            0.14,
            (0.000, 1.0, ficha(0.09, 1480, 22)),
            (0.038, 0.6, ficha(0.08, 1690, 23)),
            (0.066, 0.3, ficha(0.07, 1560, 24)),
        )
    )


def despegue():
    aire = filtrado(ruido(0.15, 24), "media", lambda t: 800 + 1500 * t, 0.9)
    return acabado(joroba(aire, 0.25), 0.006)


def posado():
    """The flat of a card on felt."""
    plano = filtrado(ruido(0.075, 25), "baja", 1500)
    filo = filtrado(ruido(0.03, 26), "media", 2300, 0.8)
    return acabado(
        mezcla(
            0.075,
            (0, 1.0, apagado(plano, 0.010)),
            (0, 0.35, apagado(filo, 0.003)),
            (0, 0.6, parcial(0.075, 175, 0.014)),
        )
    )


def consejo():
    """A question more than an order: a soft tone that rises by a third."""
    tono = mezcla(0.18, (0, 1.0, deslizado(0.18, 523, 659)), (0, 0.12, deslizado(0.18, 1046, 1318)))
    return acabado(joroba(tono, 0.25), 0.01)


# number: (what it is, how it is made, the longest that it may last in seconds)
SONIDOS = {
    4: ("a step of a number: tiny tick", tic, 0.035),
    6: ("bet or side button: soft click", clic_suave, 0.080),
    7: ("a selector steps: lower click", clic_grave, 0.080),
    9: ("main button: click, waited for", clic_de_boton, 0.080),
    10: ("a page of the folder turns", hoja, 0.500),
    11: ("alert of Black Jack: small bell", campana, 0.700),
    12: ("green caption blinks: bright blip", destello, 0.150),
    14: ("end of a hand: three notes", cadencia, 0.899),
    20: ("the shuffle: riffle", barajado, 0.750),
    22: ("a chip moves: clay clink", fichas, 0.200),
    24: ("a card takes off: swish", despegue, 0.200),
    25: ("a card lands: slap, waited for", posado, 0.080),
    26: ("an advised card rises: blip", consejo, 0.250),
}

# Files, figures, command line


def fichero(numero):
    return pathlib.Path(__file__).resolve().parent / f"sonido_{numero:02}.wav"


def octetos(valores):
    """The whole WAVE file, as bytes."""
    if sys.byteorder == "big":
        valores = array.array("h", valores)
        valores.byteswap()
    memoria = io.BytesIO()
    with wave.open(memoria, "wb") as onda:
        onda.setnchannels(1)
        onda.setsampwidth(2)
        onda.setframerate(MUESTREO)
        onda.writeframes(valores.tobytes())
    return memoria.getvalue()


def leido(contenido):
    """The samples of a file of this program; ValueError when its form is another."""
    with wave.open(io.BytesIO(contenido)) as onda:
        if (onda.getnchannels(), onda.getsampwidth(), onda.getframerate()) != (1, 2, MUESTREO):
            raise ValueError("not 16-bit mono at 22050 Hz")
        valores = array.array("h", onda.readframes(onda.getnframes()))
    if sys.byteorder == "big":
        valores.byteswap()
    return valores


def medida(valores):
    """Seconds, peak and rms in dB of full scale, centre in Hz."""
    energia = sum(x * x for x in valores)
    cambio = sum((b - a) ** 2 for a, b in zip(valores, valores[1:]))
    return (
        len(valores) / MUESTREO,
        20 * math.log10(max(abs(x) for x in valores) / 32767),
        10 * math.log10(energia / len(valores)) - 20 * math.log10(32767),
        MUESTREO / math.pi * math.asin(math.sqrt(cambio / energia) / 2),
    )


def renglon(numero, valores):
    segundos, pico, eficaz, centro = medida(valores)
    que = SONIDOS[numero][0]
    return f"{numero:3}  {que:34}{segundos * 1000:5.0f} ms {pico:7.1f} dB {eficaz:7.1f} dB {centro:6.0f} Hz"


def defectos(numero):
    """What is wrong with the file of a sound, as texts; none when all is well."""
    _, hacer, maximo = SONIDOS[numero]
    try:
        contenido = fichero(numero).read_bytes()
        valores = leido(contenido)
    except (OSError, EOFError, ValueError, wave.Error) as error:
        return [f"cannot be read: {error!r}"]
    if not valores or not any(valores):
        return ["it is silent"]
    segundos, pico, _, centro = medida(valores)
    faltas = {
        "it is not what this script makes": contenido != octetos(hacer()),
        f"it lasts over {maximo * 1000:.0f} ms": segundos > maximo,
        f"its peak is not {PICO_DB} dB": abs(pico - PICO_DB) > MARGEN_DB,
        "it is shrill": centro > CENTRO_MAXIMO,
        "it clicks at an end": max(abs(valores[0]), abs(valores[-1])) > SALTO_EN_EXTREMOS,
        "its figures above are old": renglon(numero, valores) not in __doc__.splitlines(),
    }
    return [texto for texto, hay in faltas.items() if hay]


def comprueba():
    faltas = [f"{fichero(n).name}: {texto}" for n in SONIDOS for texto in defectos(n)]
    print("\n".join(faltas) or f"{len(SONIDOS)} sounds are as they should be")
    return 1 if faltas else 0


def main():
    opciones = argparse.ArgumentParser(description="Makes the sounds of the table.")
    opciones.add_argument("--check", action="store_true", help="write nothing; compare and measure")
    opciones.add_argument("--table", action="store_true", help="write nothing; print the figures")
    pedido = opciones.parse_args()
    if pedido.check:
        return comprueba()
    for numero, (_, hacer, _) in SONIDOS.items():
        valores = hacer()
        if pedido.table:
            print(renglon(numero, valores))
        else:
            fichero(numero).write_bytes(octetos(valores))
    return 0


if __name__ == "__main__":
    sys.exit(main())
