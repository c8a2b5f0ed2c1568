#pragma once
// The table's pixels and the window's: every place that crosses from one to the other goes through here.

#include <QPointF>
#include <QRect>

#include "platform/canvas.h"

// How many pixels of the window a table pixel takes, in each direction.
double FactorDeMesa();

// A place of the table in the window, from the same corner; edges that touch on the table touch in the window.
QRect EnVentana(const Rectangulo& donde);
// The table pixel that holds a point of the window.
QPoint EnMesa(const QPointF& punto);
