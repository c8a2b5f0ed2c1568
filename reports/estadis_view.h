#pragma once
// The form "estadis" as a dialog.

#include <memory>

class FormaVista;
class QWidget;

// Opens it over the given window and returns when it is closed.
void AbreVistaEstadis(QWidget* sobre);
// The dialog alone, for a picture of the form as it stands.
std::unique_ptr<FormaVista> HazVistaEstadis(QWidget* sobre = nullptr);
