#pragma once
// Columns of characters, trimming, casing and number masks. Texts are UTF-8 in memory; every position
// and length below counts characters, never bytes, from 1. Bytes that are no UTF-8 count as one
// character each. Nothing here touches the state.

#include <string>
#include <string_view>

#include "core/currency.h"
#include "core/tabla.h"

// Number of characters.
int Longitud(std::string_view texto);

// At most n characters from position desde (1 is the first); empty beyond the end.
std::string Medio(std::string_view texto, int desde, int n);

// Fixed columns: puts texto into the columns columna..columna+ancho-1 of linea, cut or followed by
// blanks to exactly ancho. The line grows with blanks when it is shorter.
void Superpone(std::string& linea, int columna, int ancho, std::string_view texto);

// Without the blanks at both ends, or at the left end only.
std::string Recorta(std::string_view texto);
std::string RecortaIzquierda(std::string_view texto);

// The first letter of each word in capitals, all others small; Spanish letters included.
std::string NombrePropio(std::string_view texto);

// A number under a mask of '0' (digit always), '#' (digit if needed), ',' (thousands), '.' and '@'
// (a column, blanks at the left). The value is rounded to the decimals of the mask, halves to the even
// neighbour of the decimal value; a negative one carries its sign in front: Formato(-1, "00") is "-01".
std::string Formato(double valor, std::string_view mascara);
std::string Formato(Currency valor, std::string_view mascara);

// A text under a mask of '@': right-aligned in that many columns, left-aligned when it begins with '!'.
// A longer text stays whole.
std::string Formato(std::string_view texto, std::string_view mascara);

// A number as plain text: "12", "-3", "7.5".
std::string Numero(long long valor);
std::string Numero(Currency valor);

// The number at the start of a text, blanks ignored, as a report reads its own figures; 0 without one.
double Val(std::string_view texto);

// Windows-1252 bytes from UTF-8, and back. A character without a place there becomes '?'; the bytes
// that the code page leaves free read as the control characters of the same number.
std::string AWindows1252(std::string_view texto);
std::string DeWindows1252(std::string_view bytes);
