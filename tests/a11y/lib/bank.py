"""A match against a bank by ear: the chips of both seats are counted from the bets and payments that were told."""

from .match import ME, NAMES, Match, expect

RIVAL = NAMES[2]


def mover(stands_at):
    """Bets the largest chip; asks for cards up to that many points."""
    def move(match):
        chips = match.offered(lambda name: name.startswith("Ficha de "))
        if chips:
            chips[-1].press()
            return match.press("Finalizar apuesta")
        turn = match.heard[match.taken - 1]
        points = float(turn.split(", con ")[1]) if ", con " in turn else 0
        match.press("Servido" if points >= stands_at else "Carta")
        return None
    return move


def funds_by_ear(heard, chips):
    """What the two seats own when all is told. Who goes over loses what was bet on the serie."""
    funds = {ME: chips, RIVAL: chips}
    bets = {ME: 0, RIVAL: 0}

    def pay(loser, amount):
        winner = RIVAL if loser == ME else ME
        funds[loser] -= amount
        funds[winner] += amount

    for words in heard:
        name, _, rest = words.partition(" ")
        if name not in funds:
            continue
        if rest.startswith("apuesta "):
            bets[name] = int(rest.split(" ")[1])
        elif rest == "dobla su apuesta":
            bets[name] *= 2
        elif rest == "se pasa":
            pay(name, bets[name])
            bets[name] = 0
        elif rest.startswith(("gana ", "cobra ")):
            pay(RIVAL if name == ME else ME, int(rest.split(" ")[1]))
            bets[name] = 0
        elif rest.startswith("pierde "):
            pay(name, int(rest.split(" ")[1]))
            bets[name] = 0
        elif rest.startswith("recupera "):
            bets[name] = 0
    return funds


def play(game, chips, stands_at):
    match = Match(game, (2, 4), [f"RestoInicial = {chips}"], mover(stands_at))
    match.play()
    funds = funds_by_ear(match.heard, chips)
    written = match.folder.funds()
    expect({name: written[name] for name in funds} == funds, f"{funds} heard, {written} written")
    winner = max(funds, key=funds.get)
    expect(funds[winner] == 2 * chips, f"one has all: {funds}")
    expect(match.folder.winner() == winner, f"{winner} heard, {match.folder.winner()} in the history")
    expect("sin fondos" in match.last_box("Final de Partida") or winner in match.last_box("Final de Partida"),
           "the box tells the end")
    return match
