#pragma once
// The form "estadis" as a dialog.

class QWidget;

void AbreVistaEstadis(QWidget* sobre);
