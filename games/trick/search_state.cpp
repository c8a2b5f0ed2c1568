#include "games/trick/search_state.h"

EstadoBusqueda busqueda;
