#pragma once
// Lines of fixed columns, one Windows-1252 byte a column: a list of fields says where each value stands, and
// the same list writes a line and reads it.

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/tabla.h"

// What stands in the columns of a number is none. Blanks count as 0, and a number beyond 16 bits is another
// matter: it leaves its field as it was.
struct NoEsNumero : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// One field. Columns count from 1. The mask is for numbers, as Formato takes it.
struct Campo {
    int columna = 1;
    int ancho = 1;
    // A constant (written, not read), a text, a number, a flag (-1 or 0).
    std::variant<std::string_view, std::string*, Integer*, bool*> donde;
    std::string_view mascara = {};
};
using Campos = std::vector<Campo>;

// The line in Windows-1252, without its end: blanks, and over them each field, cut to its width. A field never
// gets a control character, and a number that its width cuts down to a bare sign is written 0.
std::string EscribeCampos(const Campos& campos, int ancho);

// Reads the fields from a line of any bytes as one free-format text: leading blanks are skipped, unless they are
// an empty first text of a line that ends where its last field does, a comma ends it, and what is not there reads as blanks. Texts come in UTF-8 without the
// blanks at their end. A field that is no number stays as it was; the others are read all the same, and NoEsNumero
// tells of it afterwards. The answer is false when a number did not fit: its field, too, stays as it was.
bool LeeCampos(std::string_view linea, const Campos& campos);
