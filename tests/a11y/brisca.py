"""A match of Brisca by ear and by the keys of the accessibility bus alone."""

from lib.match import run
from lib.tricks import play

run(lambda: play("58", counts_last=False))
