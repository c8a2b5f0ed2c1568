#!/usr/bin/env python3
"""Every Spanish text that a player reads, word by word against the Spanish dictionary of hunspell.

spelling.py CHECKOUT    fails with the unknown words, each with the files that have it

Words of the games and names stand in words.txt beside this file, one a line; a line with # is a comment.
"""

import html
import re
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
WORD = re.compile(r"[^\W\d_]{2,}")

# Rooms of the program whose literals a player sees. Console words, field names and report keys stand elsewhere.
ROOMS = ("betting", "forms", "games", "platform/qt", "reports", "session", "table")
LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
# A literal is a text when it has a blank between words; what has none is most often a name of the program.
SENTENCE = re.compile(r"[^\W\d_]{2,}[,.:;]? +[^\W\d_]")
# Letters, one by one, of the buttons that are written wide: "P a s o".
WIDE = re.compile(r"\b\w(?: \w\b)+")


def page(text):
    text = re.sub(r"<(style|script)\b.*?</\1>", " ", text, flags=re.S)
    words = re.findall(r'(?:alt|title)="([^"]*)"', text)
    return html.unescape(re.sub(r"<[^>]*>", " ", text) + " ".join(words))


def markdown(text):
    text = re.sub(r"```.*?```", " ", text, flags=re.S)
    text = re.sub(r"`[^`]*`|\]\([^)]*\)|<[^>]*>|https?://\S+", " ", text)
    return text


def literals(text, lines_end_words=False):
    # Comments and what is said to programmers are English.
    text = re.sub(r"//[^\n]*|#include[^\n]*|throw std::\w+\([^;]*;", "", text)
    # Literals that follow each other are one text.
    text = re.sub(r'"\s*\n\s*"', " " if lines_end_words else "", text)
    found = (m.replace("\\r", " ").replace("\\n", " ").replace('\\"', '"') for m in LITERAL.findall(text))
    return "\n".join(WIDE.sub(" ", t) for t in found if SENTENCE.search(t))


def manual(text):
    # Of the requests only headings hold words; the others name commands and their options.
    text = re.sub(r"(?m)^\.(?!S[HS] ).*$", " ", text)
    return re.sub(r"(?m)^\.S[HS]|\\f.|\\\(..|\\.", " ", text)


def desktop_entry(text):
    return " ".join(re.findall(r"(?m)^(?:GenericName|Comment|Keywords)=(.*)", text))


def metainfo(text):
    return " ".join(re.findall(r"<(?:summary|p|li|caption)>([^<]*)<", text))


def texts(root):
    for path in sorted((root / "assets/help").glob("*.html")):
        yield path, page(path.read_text())
    yield root / "assets/help/contents.txt", (root / "assets/help/contents.txt").read_text()
    for path in sorted(root.glob("LEEME*")):
        yield path, markdown(path.read_text())
    for pattern, words in (("*.6", manual), ("*.desktop", desktop_entry), ("*.metainfo.xml", metainfo)):
        for path in sorted((root / "packaging").glob(pattern)):
            yield path, words(path.read_text())
    for room in ROOMS:
        for path in sorted((root / room).rglob("*.cpp")):
            # A tip is five lines, each filled to the last letter.
            yield path, literals(path.read_text(), lines_end_words=path.name == "tips.cpp")


def own_words():
    lines = (HERE / "words.txt").read_text().split("\n")
    return {line.strip() for line in lines if line.strip() and not line.startswith("#")}


def unknown(words):
    answer = subprocess.run(["hunspell", "-i", "UTF-8", "-d", "es_ES", "-l"],
                            input="\n".join(sorted(words)) + "\n",
                            capture_output=True, text=True, check=False)
    if answer.returncode != 0:
        sys.exit("spelling.py: " + (answer.stderr.strip() or "hunspell failed"))
    return set(answer.stdout.split())


def main():
    root = Path(sys.argv[1]).resolve()
    where = {}
    for path, text in texts(root):
        for word in WORD.findall(text):
            where.setdefault(word, set()).add(str(path.relative_to(root)))
    if len(where) < 1000:
        sys.exit(f"spelling.py: only {len(where)} words found in {root}")
    own = own_words()
    wrong = unknown(set(where) - own)
    for word in sorted(wrong):
        print(f"{word}: {', '.join(sorted(where[word])[:4])}")
    if wrong:
        sys.exit(f"spelling.py: {len(wrong)} words are not in the dictionary nor in {HERE / 'words.txt'}")
    print(f"{len(where)} words")


if __name__ == "__main__":
    main()
