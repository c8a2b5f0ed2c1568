#include "table/table_view.h"

VistaMesa vista;
