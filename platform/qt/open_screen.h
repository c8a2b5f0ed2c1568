#pragma once
// The application, and with it the screen.

#include <QApplication>
#include <memory>

// A desktop's scale below 1 is not taken. Where no screen can be opened the program says so in one sentence and ends with status 1.
std::unique_ptr<QApplication> AbrePantalla(int& argc, char** argv);
