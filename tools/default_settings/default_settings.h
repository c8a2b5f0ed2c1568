#pragma once
// The settings files that come with the program, with the values that a table has at first.

#include <string>
#include <vector>

// Writes each of the seven files that is not in the folder yet, as the program itself would when it misses it; those
// that are there are not touched. The answer is the names of the files written. Takes a platform of its own into
// use and leaves the state as after the last of them. std::runtime_error when one cannot be written.
std::vector<std::string> PonAjustesQueFaltan(const std::string& carpeta);
