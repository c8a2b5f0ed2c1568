#pragma once
// What the words behind the program's name ask for. Read before anything else: to answer most of it takes no screen.

#include <span>
#include <string>

enum class Orden { Juega, Demo, Ayuda, Version, Error };

struct LineaDeOrdenes {
    Orden orden = Orden::Juega;
    std::string queja; // of an Error: a whole sentence
};

// The words without the program's name. Those that the toolkit understands itself, such as -platform and its value, are
// left to it; any other word is an error. --help wins over --version, both over --demo.
LineaDeOrdenes LeeOrdenes(std::span<char* const> palabras);

// How the program is called, several lines.
std::string TextoDeUso();
