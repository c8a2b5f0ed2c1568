#pragma once
// The history over the table or over the score report, as an open folder.

#include <memory>

class FormaVista;
class QWidget;

// Opens it over the given window and returns when it is closed.
void AbreVistaHistoric(QWidget* sobre);
// The dialog alone, for a picture of the form as it stands.
std::unique_ptr<FormaVista> HazVistaHistoric(QWidget* sobre = nullptr);
