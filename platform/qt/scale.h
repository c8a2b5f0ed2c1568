#pragma once
// The table's pixels and the window's: every place that crosses from one to the other goes through here.
//
// The factor is the program's; the desktop's own scale (Qt's pixel ratio) comes on top of it and is never part of it.

#include <QPointF>
#include <QRect>

#include "platform/canvas.h"

// How many pixels of the window a table pixel takes, in each direction.
double FactorDeMesa();
void PonFactorDeMesa(double factor);

// The factor for a table widget of so many window pixels on a screen of that pixel ratio. deseo is one of the steps
// that a player may choose, or 0 for the largest at which 1280 by 720 table pixels show. Never one at which less than
// 800 by 600 of them would show; where not even 1 does that, less than 1, but no table pixel below a screen's pixel.
double FactorPara(const QSize& ventana, double deseo, double ratio);
// The step above (sentido 1) or below (-1) a factor; the factor itself where there is none.
double PasoDeFactor(double factor, int sentido);
bool EsPasoDeFactor(double factor);
// The smallest factor that there is on a screen of that pixel ratio: a table pixel shows no less than one of the screen's.
double MenorFactor(double ratio);
// The fewest window pixels in which the table need not be scrolled on a screen of that pixel ratio.
QSize VentanaMinima(double ratio);

// The table pixels of a widget of the window; one that shows only in part counts.
QSize TamanoEnMesa(const QSize& ventana);
// A place of the table in the window, from the same corner; edges that touch on the table touch in the window.
QRect EnVentana(const Rectangulo& donde);
// The table pixel that holds a point of the window.
QPoint EnMesa(const QPointF& punto);
