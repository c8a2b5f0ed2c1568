#include "core/files.h"

namespace {

std::string CarpetaDe(const std::string& ruta) {
    const auto barra = ruta.rfind('/');
    return barra == std::string::npos ? "" : ruta.substr(0, barra);
}

} // namespace

bool ArchivosMemoria::Protegida(const std::string& ruta) const {
    return de_solo_lectura.contains(CarpetaDe(ruta));
}

Lectura ArchivosMemoria::Lee(const std::string& ruta) {
    const auto donde = contenidos.find(ruta);
    if (donde == contenidos.end())
        return {ErrorArchivo::NoEncontrado, {}};
    return {ErrorArchivo::Ninguno, donde->second};
}

ErrorArchivo ArchivosMemoria::Escribe(const std::string& ruta, std::string_view contenido) {
    if (Protegida(ruta))
        return ErrorArchivo::SinPermiso;
    contenidos[ruta] = contenido;
    return ErrorArchivo::Ninguno;
}

bool ArchivosMemoria::Existe(const std::string& ruta) {
    return contenidos.contains(ruta);
}

ErrorArchivo ArchivosMemoria::Borra(const std::string& ruta) {
    if (!Existe(ruta))
        return ErrorArchivo::NoEncontrado;
    if (Protegida(ruta))
        return ErrorArchivo::SinPermiso;
    contenidos.erase(ruta);
    return ErrorArchivo::Ninguno;
}

ErrorArchivo ArchivosMemoria::Renombra(const std::string& de, const std::string& a) {
    if (!Existe(de))
        return ErrorArchivo::NoEncontrado;
    if (Protegida(de) || Protegida(a))
        return ErrorArchivo::SinPermiso;
    auto nodo = contenidos.extract(de);
    contenidos[a] = std::move(nodo.mapped());
    return ErrorArchivo::Ninguno;
}

ErrorArchivo ArchivosMemoria::CreaCarpeta(const std::string& /*ruta*/) {
    return ErrorArchivo::Ninguno;
}
