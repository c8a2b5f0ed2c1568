#include "tools/default_settings/default_settings.h"

#include <fmt/format.h>

#include <stdexcept>

#include "core/game_state.h"
#include "games/game_rows.h"
#include "platform/headless/headless_platform.h"
#include "storage/settings.h"
#include "tools/common/fresh_table.h"

namespace {

// The program's own reader writes a file that it misses; nobody is there to be told of it.
class Taller {
public:
    explicit Taller(const std::string& carpeta) : carpeta_(carpeta) {
        mesa_.UsaCarpeta(carpeta);
        UsaPlataforma(mesa_);
    }

    void Pon(const std::string& nombre, Integer juego, void (*lee)()) {
        const std::string ruta = carpeta_ + "/" + nombre;
        if (mesa_.LosArchivos().Existe(ruta))
            return;
        PonMesaNueva();
        estado.JuegoActivo = juego;
        lee();
        if (!mesa_.LosArchivos().Existe(ruta))
            throw std::runtime_error(fmt::format("no se puede escribir {}", ruta));
        puestos_.push_back(nombre);
    }

    const std::vector<std::string>& Puestos() const { return puestos_; }

private:
    std::string carpeta_;
    PlataformaSinPantalla mesa_;
    std::vector<std::string> puestos_;
};

} // namespace

std::vector<std::string> PonAjustesQueFaltan(const std::string& carpeta) {
    Taller taller(carpeta);
    taller.Pon(kIniGeneral, kPoker, LeerIniGeneral);
    for (const FilaJuego* juego : LosJuegos())
        taller.Pon(NombreIniJuego(juego->id), juego->id, LeerIniJuego);
    return taller.Puestos();
}
