"""Cards by their names."""

SUITS = ("Oros", "Copas", "Espadas", "Bastos")
POINTS = {"As": 11, "Tres": 10, "Rey": 4, "Caballo": 3, "Sota": 2}
IN_ORDER = ("As", "Dos", "Tres", "Cuatro", "Cinco", "Seis", "Siete", "Sota", "Caballo", "Rey")


def points(card):
    """What a card brings in Tute and Brisca."""
    return POINTS.get(card.split(" ")[0], 0)


def deck():
    return [f"{rank} de {suit}" for suit in SUITS for rank in IN_ORDER]
