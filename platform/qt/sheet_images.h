#pragma once
// The small images of the sheet, each made ready for a pixel ratio.

#include <QImage>

#include "table/sheet_layout.h"

// Reads the whole sheet for a ratio; what was ready for another ratio is dropped.
void PreparaLamina(double ratio);

// A piece of the sheet, its size in device pixels rounded up; the first call prepares the sheet.
// std::logic_error for what is no piece.
const QImage& PiezaDe(const lamina::Recorte& recorte, double ratio);
