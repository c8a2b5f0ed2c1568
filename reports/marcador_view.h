#pragma once
// The score report over the table, as a sheet of paper that rises from it.

#include <memory>

class FormaVista;
class QWidget;

// Opens it over the given window and returns when it is closed.
void AbreVistaMarcador(QWidget* sobre);
// The dialog alone, for a picture of the form as it stands.
std::unique_ptr<FormaVista> HazVistaMarcador(QWidget* sobre = nullptr);
