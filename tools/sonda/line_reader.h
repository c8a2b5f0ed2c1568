#pragma once
// Reads a line of the console from left to right. Blanks between the parts do not matter; whatever is not
// there when it is asked for is an ErrorConsola.

#include <string>
#include <string_view>
#include <vector>

#include "core/literal.h"

// One part of the path to a field: Jugadas(4,8).Cartas has two.
struct Tramo {
    std::string nombre;
    std::vector<int> indices;
};
using Ruta = std::vector<Tramo>;

class Lector {
public:
    explicit Lector(std::string_view linea) : resto_(linea) {}

    bool Fin();
    void ExigeFin();
    bool Acepta(char c);
    void Exige(char c);

    // Up to the next blank; empty at the end of the line.
    std::string Palabra();
    // Letters, digits and underscores, not beginning with a digit.
    std::string Identificador();
    int Entero();
    double Numero();
    Literal Valor();
    // What is left, one blank after the last part aside.
    std::string Resto();

    Ruta RutaDeCampo();
    // (a,b,...): none without brackets.
    std::vector<Literal> Argumentos();

private:
    void SaltaBlancos();
    std::string Texto();

    std::string_view resto_;
};
