#!/usr/bin/env python3
"""The hand of Tute that the help plays, held against the scenario that plays it again.

played_hand.py CHECKOUT    fails when a trick of assets/help/3131.html is not what the console answered
"""

import html
import re
import sys
from pathlib import Path

RANKS = {"As": 1, "Dos": 2, "Tres": 3, "Cuatro": 4, "Cinco": 5, "Seis": 6, "Siete": 7,
         "Sota": 10, "Caballo": 11, "Rey": 12}
SUITS = {"Oros": 1, "Copas": 2, "Espadas": 3, "Bastos": 4}
SEATS = {"Marta": 2, "Usted": 4}
CARD = re.compile(r"(\w+) de (Oros|Copas|Espadas|Bastos)")
PICTURE = re.compile(r'src="carta:(\w+)/(\w+)/\d+" alt="(\w+) de (\w+)"')
TRICKS = 20
LAST_TRICK = 10


def cards(text):
    """The cards of a cell by their words, which its pictures have to show too."""
    told = [(SUITS[suit], RANKS[rank]) for rank, suit in CARD.findall(plain(text))]
    shown = [(SUITS[suit.capitalize()], int(rank) if rank.isdigit() else RANKS[rank.capitalize()])
             for suit, rank, *_ in PICTURE.findall(text)]
    named = [(SUITS[suit], RANKS[rank]) for *_, rank, suit in PICTURE.findall(text)]
    if told != shown or told != named:
        sys.exit(f"the words say {told}, the pictures show {shown}, named {named}")
    return told


def plain(text):
    return html.unescape(re.sub(r"<[^>]*>", "", text))


def tables(page):
    for table in re.findall(r"<table.*?</table>", page, flags=re.S):
        yield [re.findall(r"<t[hd]([^>]*)>(.*?)</t[hd]>", row, flags=re.S)
               for row in re.findall(r"<tr>(.*?)</tr>", table, flags=re.S)]


def told(page):
    """For each trick of the page: the cards by seat, who leads, who wins, its points."""
    tricks = {}
    for table in tables(page):
        if plain(table[0][0][1]) != "Baza":
            continue
        for number, marta, usted, points, _ in table[1:]:
            cells = {SEATS["Marta"]: marta, SEATS["Usted"]: usted}
            tricks[int(number[1])] = {
                "cards": {seat: cards(cell[1])[0] for seat, cell in cells.items()},
                "leads": [seat for seat, cell in cells.items() if "(sale)" in cell[1]],
                "wins": [seat for seat, cell in cells.items() if "gana" in cell[0]],
                "points": int(points[1])}
    return tricks


def played(answer):
    """The same from what the console answered; points without the cantes."""
    log, winner, points = {}, {}, {}
    for name, target in (("RegistroBazas", log), ("GanadorDeBaza", winner), ("TantosDeBaza", points)):
        for where, value in re.findall(rf"^{name}\(([\d,]+)\) = (\d+)$", answer, flags=re.M):
            target[tuple(int(i) for i in where.split(","))] = int(value)
    return log, winner, points


def card_points(card):
    return {1: 11, 3: 10, 12: 4, 11: 3, 10: 2}.get(card[1], 0)


def compare(tricks, answer):
    log, winner, points = played(answer)
    # Of each seat the console keeps five numbers a trick: suit and rank are the second and fourth of the seat's.
    places = {2: (7, 12), 4: (9, 14)}
    leads = 2
    for number in range(1, TRICKS + 1):
        trick = tricks.get(number) or sys.exit(f"trick {number} is not on the page")
        for seat, (suit, rank) in places.items():
            card = (log.get((suit, number)), log.get((rank, number)))
            if trick["cards"][seat] != card:
                sys.exit(f"trick {number}: seat {seat} played {card}, the page says {trick['cards'][seat]}")
        if trick["leads"] != [leads] or trick["wins"] != [winner[(number,)]]:
            sys.exit(f"trick {number}: led by {leads}, won by {winner[(number,)]}, the page says {trick}")
        told_points = sum(card_points(c) for c in trick["cards"].values())
        told_points += LAST_TRICK if number == TRICKS else 0
        sung = points.get((number,), 0) - told_points
        if trick["points"] != told_points or sung not in (0, 20, 40):
            sys.exit(f"trick {number}: {points.get((number,), 0)} points, the page says {trick['points']}")
        leads = winner[(number,)]


def totals(page, answer):
    final = dict(re.findall(r"^TantosJugador\((\d)\) = (\d+)$", answer, flags=re.M))
    rows = [row for table in tables(page) if plain(table[0][-1][1]) == "Total" for row in table[1:]]
    said = {str(SEATS[plain(row[0][1])]): row[-1][1] for row in rows}
    if said != final:
        sys.exit(f"the page adds up to {said}, the console to {final}")


def dealt(page, script):
    """The cards at the head of the page are those that the scenario deals by hand, in the same order."""
    head = next(table for table in tables(page) if plain(table[0][0][1]) == "Marta")
    said = [card for row in head for card in cards(row[1][1])]
    spread = re.findall(r"^raton pulsa (\d+) (\d+)$", script, flags=re.M)
    given = [((int(y) - 204) // 48 + 1, (int(x) - 181) // 29 + 1) for x, y in spread]
    if len(said) != 12 or said != given:
        sys.exit(f"the page deals {said}, the scenario {given}")


def main():
    root = Path(sys.argv[1])
    page = (root / "assets/help/3131.html").read_text()
    scenario = root / "tests/scenarios/help/tute_for_two"
    answer = scenario.with_suffix(".out").read_text()
    dealt(page, scenario.with_suffix(".esc").read_text())
    compare(told(page), answer)
    totals(page, answer)
    print(f"{TRICKS} tricks")


if __name__ == "__main__":
    main()
