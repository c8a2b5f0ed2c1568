#include "betting/bet_state.h"

EstadoApuestas apuestas;
