#pragma once
// Where the program finds what is its own: beside it as built, or in the folders of an installation.

#include <QString>

// What an installed program comes with, for all its players; empty for a program that lies in one folder with its files.
QString CarpetaDeInstalacion();
// The folder through which the program was started, its last link not followed; the program's own when nothing but the
// link lies there, as in ~/bin.
QString CarpetaDeArranque(const QString& orden);
// The help pages, and the sound plugin; the first candidate when there is none at all.
QString CarpetaAyuda(const QString& programa);
QString FicheroSonido(const QString& programa);
