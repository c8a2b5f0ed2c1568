"""A match of Póker by ear and by the keys of the accessibility bus alone: who has put in what, and who takes it. The
first hand is void, since nobody bets; what it has brought is won in the next."""

from lib.match import Match, NAMES, expect, run

CHIPS = 20
VOID = "Fin de la mano"  # the box that tells of it
SAID_BETS = ("Voy con mi resto : ", "Voy con ", "Apuesto ", "Igualo a ", "Subo a ")


def move(match):
    """Meets a bet, else bets the largest chip, but never in the first hand; keeps all cards."""
    stands = match.offered(lambda name: name == "Servido")
    meets = match.offered(lambda name: name.startswith(("Igualar a ", "Voy con mi resto")))
    if stands:
        return stands[0].press()
    if meets:
        meets[0].press()
    elif not match.boxes_of(VOID):
        return match.press("Me reservo")
    else:
        chips = match.offered(lambda name: name.startswith("Ficha de "))
        expect(chips, "chips to bet")
        chips[-1].press()
    match.reader.wait_for(lambda: match.offered(lambda name: name == "Finalizar apuesta") or len(match.heard) > match.taken,
                          20, "the bet")
    for end in match.offered(lambda name: name == "Finalizar apuesta"):
        end.press()


def bet_in(words, highest):
    """What a seat has put into the round when it has said that; None when it says something else."""
    if words == "Las veo":
        return highest
    return next((int(words.removeprefix(said)) for said in SAID_BETS if words.startswith(said)), None)


class Ledger:
    """The chips of the seats and of the pot, counted from what is said."""

    def __init__(self):
        self.funds = dict.fromkeys((NAMES[2], NAMES[4]), CHIPS)
        self.in_pot = dict.fromkeys(self.funds, 0)  # what each has put in since somebody took it
        self._new_round()

    def _new_round(self):
        self.in_round = dict.fromkeys(self.funds, 0)

    def _put_in(self, name, amount):
        self.funds[name] -= amount
        self.in_pot[name] += amount

    def hand(self, said):
        """What lay in the pot and what was collected at its end; 0 in a void one, which leaves the pot to the next."""
        self._new_round()
        collected = sum(self._hear(*words.partition(" ")[::2]) for words in said)
        pot = sum(self.in_pot.values())
        if collected:
            self.in_pot = dict.fromkeys(self.funds, 0)
        return pot, collected

    def _hear(self, name, rest):
        if rest.startswith(("Descarto ", "No quiero cartas")):
            self._new_round()
        elif name in self.funds and rest.startswith("pone "):
            self._put_in(name, int(rest.split(" ")[1]))
        elif name in self.funds and rest.startswith("cobra "):
            amount = int(rest.split(" ")[1])
            self.funds[name] += amount
            return amount
        elif name.removesuffix(":") in self.funds:
            self._bet(name.removesuffix(":"), bet_in(rest, max(self.in_round.values())))
        return 0

    def _bet(self, name, amount):
        if amount is not None:
            self._put_in(name, amount - self.in_round[name])
            self.in_round[name] = amount


def hold_to_records(match, ledger):
    """A hand in which somebody collects brings all that lay in the pot, and its record tells as much; a void one none."""
    hands, records = match.hands(), match.folder.records()
    expect(len(hands) == len(records), f"{len(hands)} hands heard, {len(records)} written")
    void = 0
    for said, record in zip(hands, records):
        pot, collected = ledger.hand(said)
        void += collected == 0
        expect(collected in (0, pot), f"{collected} taken from a pot of {pot}")
        expect(record.total == collected, f"{collected} taken, a pot of {record.total} written")
    expect(void == len(match.boxes_of(VOID)), f"{void} hands that nobody won, {len(match.boxes_of(VOID))} told to be void")
    expect(void > 0, "a void hand, to know what becomes of it")


def play():
    match = Match("01", (2, 4), [f"RestoInicial = {CHIPS}", "ApuestaSalida = 5", "LeyApertura = 14"], move)
    match.play()
    ledger = Ledger()
    hold_to_records(match, ledger)
    funds, written = ledger.funds, match.folder.funds()
    expect({name: written[name] for name in funds} == funds, f"{funds} heard, {written} written")
    winner = max(funds, key=funds.get)
    expect(funds[winner] == 2 * CHIPS, f"one has all: {funds}")
    expect(winner in match.last_box("Final de Partida"), "the box tells the same winner")
    expect(match.folder.winner() == winner, f"{winner} heard, {match.folder.winner()} in the history")


run(play)
