#include "games/common/trick_state.h"

EstadoBazas bazas;
