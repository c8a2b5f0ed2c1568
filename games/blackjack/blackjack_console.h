#pragma once
// Black Jack at the line console.

#include "table/procedure_call.h"

// What can be called by name.
const ListaDeProcedimientos& ProcedimientosDeBlackJack();
