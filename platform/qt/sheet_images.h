#pragma once
// The small images of the sheet, painted from their drawings at the size in which they are wanted.

#include <QImage>

#include "table/sheet_layout.h"

// A piece of the sheet, so many device pixels large. std::logic_error for what is no piece. The picture stands until the
// next call.
const QImage& PiezaDe(const lamina::Recorte& recorte, const QSize& pixeles);
// As large as it is at a pixel ratio, rounded up.
const QImage& PiezaDe(const lamina::Recorte& recorte, double ratio);
