#pragma once
// The interface procedures by the names that the game gives them: what stands behind `llama`.

#include <string>

#include "table/procedure_call.h"

// The call of a name. ErrorConsola when no procedure has it.
const Llamada& Procedimiento(const std::string& nombre);
