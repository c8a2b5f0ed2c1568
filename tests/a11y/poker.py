"""A match of Póker by ear and by the keys of the accessibility bus alone: who has put in what, and who takes it."""

from lib.match import Match, NAMES, expect, run

CHIPS = 10


def move(match):
    """Meets a bet, else bets the largest chip; keeps all cards."""
    stands = match.offered(lambda name: name == "Servido")
    meets = match.offered(lambda name: name.startswith(("Igualar a ", "Voy con mi resto")))
    if stands:
        return stands[0].press()
    if meets:
        meets[0].press()
    else:
        chips = match.offered(lambda name: name.startswith("Ficha de "))
        expect(chips, "chips to bet")
        chips[-1].press()
    match.reader.wait_for(lambda: match.offered(lambda name: name == "Finalizar apuesta") or len(match.heard) > match.taken,
                          20, "the bet")
    for end in match.offered(lambda name: name == "Finalizar apuesta"):
        end.press()


SAID_BETS = ("Voy con mi resto : ", "Voy con ", "Apuesto ", "Igualo a ", "Subo a ")


def bet_in(words, highest):
    """What a seat has put into the round when it has said that; None when it says something else."""
    if words == "Las veo":
        return highest
    return next((int(words.removeprefix(said)) for said in SAID_BETS if words.startswith(said)), None)


def funds_by_ear(heard):
    funds = dict.fromkeys((NAMES[2], NAMES[4]), CHIPS)
    in_round = dict.fromkeys(funds, 0)
    for words in heard:
        name, _, rest = words.partition(" ")
        if words.startswith("Mano ") or rest.startswith(("Descarto ", "No quiero cartas")):
            in_round = dict.fromkeys(funds, 0)
        elif name in funds and rest.startswith("pone "):
            funds[name] -= int(rest.split(" ")[1])
        elif name in funds and rest.startswith("cobra "):
            funds[name] += int(rest.split(" ")[1])
        elif name.endswith(":") and name[:-1] in funds:
            amount = bet_in(rest, max(in_round.values()))
            if amount is not None:
                funds[name[:-1]] -= amount - in_round[name[:-1]]
                in_round[name[:-1]] = amount
    return funds


def play():
    match = Match("01", (2, 4), [f"RestoInicial = {CHIPS}", "ApuestaSalida = 5", "LeyApertura = 14"], move)
    match.play()
    records = match.folder.records()
    hands = "\n".join(match.heard).split("Mano ")[1:]
    expect(len(hands) == len(records), f"{len(hands)} hands heard, {len(records)} written")
    for told, written in zip(hands, records):
        pot = sum(int(line.split(" cobra ")[1]) for line in told.split("\n") if " cobra " in line)
        expect(pot in (0, written.total), f"a pot of {pot} heard, of {written.total} written")
    funds = funds_by_ear(match.heard)
    written = match.folder.funds()
    expect({name: written[name] for name in funds} == funds, f"{funds} heard, {written} written")
    winner = max(funds, key=funds.get)
    expect(funds[winner] == 2 * CHIPS, f"one has all: {funds}")
    expect(winner in match.last_box("Final de Partida"), "the box tells the same winner")
    expect(match.folder.winner() == winner, f"{winner} heard, {match.folder.winner()} in the history")


run(play)
