#pragma once
// The fields of the shared state by name: what stands behind `pon`, `di` and `vuelca`.

#include <functional>
#include <string>
#include <variant>

#include "core/currency.h"
#include "core/tabla.h"
#include "tools/sonda/line_reader.h"

// One element, whatever its type.
using Hoja = std::variant<Integer*, Long*, bool*, float*, double*, Currency*, std::string*>;

// The element's value as the console writes it.
std::string Escrito(Hoja hoja);

using VisitaHoja = std::function<void(const std::string& nombre, Hoja hoja)>;

// Visits the element of a path, or, of a table or a record, its elements that are not 0, false or empty, in index
// order, each with its full name. True when the path is that of one single element. ErrorConsola for a name that
// is no field, IndiceFuera for an index outside its bounds.
bool VisitaCampo(const Ruta& ruta, const VisitaHoja& visita);

// Visits the elements of all fields that are not 0, false or empty, in the order of the list of fields.
void VisitaEstado(const VisitaHoja& visita);

// Writes the one element of a path.
void PonCampo(const Ruta& ruta, const Literal& valor);
