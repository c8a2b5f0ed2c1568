#pragma once
// The pointers of the table.

#include <QCursor>

#include "platform/platform.h"

// The pointer of a shape; the eight of the program's own are read from its resources when first wanted.
QCursor CursorDe(Puntero puntero);
