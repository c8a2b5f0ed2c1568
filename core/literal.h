#pragma once
// Values as the console writes and reads them: a number, true or false, a text in double quotes.

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

#include "core/currency.h"
#include "core/tabla.h"

// A line of the console that cannot be carried out; what() says why, in the player's language.
struct ErrorConsola : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Literal = std::variant<double, bool, std::string>;

// The value as an argument or an element of that type. ErrorConsola when it is none: a fraction or a number
// too large for a whole number, a text for a number and the other way round. Booleans are taken as -1 and 0,
// and numbers for Booleans only as that.
template <class T>
T Convierte(const Literal& literal);

// Whole numbers plain, Currency and floating numbers in the shortest form that reads back the same,
// Booleans -1 or 0, texts in double quotes with those inside doubled and line ends written \r\n.
std::string Escrito(long long valor);
std::string Escrito(bool valor);
std::string Escrito(float valor);
std::string Escrito(double valor);
std::string Escrito(Currency valor);
std::string Escrito(std::string_view valor);
