#pragma once
// The pointers of the table.

#include <QCursor>

#include "platform/platform.h"

// The pointer of a shape; the eight of the program's own are drawn for the table's size when first wanted.
QCursor CursorDe(Puntero puntero);
