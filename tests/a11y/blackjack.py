"""A match of Black Jack by ear and by the keys of the accessibility bus alone."""

from lib.bank import play
from lib.match import run

run(lambda: play("31", chips=10, stands_at=15))
