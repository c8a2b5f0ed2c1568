#pragma once
// The form "Normas" in the window.

class QWidget;

// Opens it over the given window and returns when it is closed.
void AbreVistaNormas(QWidget* sobre);
