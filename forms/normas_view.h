#pragma once
// The form "Normas" in the window.

#include <memory>

class FormaVista;
class QWidget;

// Opens it over the given window and returns when it is closed.
void AbreVistaNormas(QWidget* sobre);
// The dialog alone, for a picture of the form as it stands.
std::unique_ptr<FormaVista> HazVistaNormas(QWidget* sobre = nullptr);
