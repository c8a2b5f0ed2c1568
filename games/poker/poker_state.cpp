#include "games/poker/poker_state.h"

EstadoPoker poker;
