#pragma once
// What is on disk follows the match: at its start, after each finished hand, at its end.

// Writes both settings files. The first write that fails in a run of the program is told in a message; play goes
// on. True when both were written, or the platform keeps no matches.
bool GuardarPartida();
