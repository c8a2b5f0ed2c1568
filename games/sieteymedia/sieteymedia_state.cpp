#include "games/sieteymedia/sieteymedia_state.h"

EstadoSiete siete;
