#pragma once
// The demonstration: a match of each game between automatic seats, without a window.

class QString;

// Tells each hand on the standard output and leaves the table as the last hand ended in partida.png in the
// current folder. carpeta holds the deck images; nothing is written there. The answer is an exit status.
int JuegaDemo(const QString& carpeta);
