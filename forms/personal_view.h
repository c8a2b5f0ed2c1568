#pragma once
// The form "Personalizar" in the window.

class QWidget;

// Opens it over the given window and returns when it is closed.
void AbreVistaPersonal(QWidget* sobre);
