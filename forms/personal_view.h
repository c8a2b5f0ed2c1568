#pragma once
// The form "Personalizar" in the window.

#include <memory>

class FormaVista;
class QWidget;

// Opens it over the given window and returns when it is closed.
void AbreVistaPersonal(QWidget* sobre);
// The dialog alone, for a picture of the form as it stands.
std::unique_ptr<FormaVista> HazVistaPersonal(QWidget* sobre = nullptr);
