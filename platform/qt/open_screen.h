#pragma once
// The application, and with it the screen.

#include <QApplication>
#include <memory>

// The same list, "2" or "uno=1.5;dos=0.5", with 1 for every scale below it. What is no number stays.
QString SinEncoger(const QString& escalas);

// A desktop's scale below 1 counts as 1. Where no screen can be opened the program says so in one sentence and ends with
// status 1.
std::unique_ptr<QApplication> AbrePantalla(int& argc, char** argv);
