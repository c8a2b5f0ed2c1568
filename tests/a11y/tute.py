"""A match of Tute by ear and by the keys of the accessibility bus alone."""

from lib.match import run
from lib.tricks import play

run(lambda: play("51", counts_last=True))
