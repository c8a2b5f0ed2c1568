#include "reports/historic.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/game_state.h"
#include "core/tabla.h"
#include "core/text.h"
#include "forms/refresh.h"
#include "reports/historic_pages.h"
#include "storage/history.h"
#include "table/game_row.h"
#include "table/messages.h"

namespace {

// The open form. Nothing of it outlives the closing: a history can be large.
struct Carpeta {
    bool abierta = false;
    Historico historico;
    Totales totales;
    bool contados = false;
    int pestana = 0; // 0: the list
    int pagina = 1;
};
Carpeta carpeta;

const std::vector<Total>& TotalesDe(const Carpeta& de, int pestana) {
    return de.totales[static_cast<std::size_t>(pestana - 1)];
}

int PorPagina(int pestana) {
    return pestana == 0 ? historic::kPartidasPorPagina : historic::kTotalesPorPagina;
}

int LineasEn(const Carpeta& de, int pestana) {
    return pestana == 0 ? de.historico.Partidas() : static_cast<int>(TotalesDe(de, pestana).size());
}

// An empty list still has its heading to show.
int PaginasEn(const Carpeta& de, int pestana) {
    return std::max((LineasEn(de, pestana) - 1) / PorPagina(pestana) + 1, 1);
}

PaginaImpresa Imprime(const Carpeta& de, int pagina) {
    const int primera = (pagina - 1) * PorPagina(de.pestana) + 1;
    const int ultima = std::min(primera + PorPagina(de.pestana) - 1, LineasEn(de, de.pestana));
    return de.pestana == 0 ? ImprimePartidas(de.historico, primera, ultima)
                           : ListaTotales(de.pestana, TotalesDe(de, de.pestana), primera, ultima);
}

PaginaImpresa PaginaDe(const Carpeta& de, int numero) {
    if (numero < 0 || numero > PaginasEn(de, de.pestana))
        throw IndiceFuera("el histórico no tiene esa página");
    return Imprime(de, numero == 0 ? de.pagina : numero);
}

Carpeta Recien() {
    Carpeta nueva;
    nueva.historico = LeeHistorico(estado.JuegoActivo);
    return nueva;
}

void Muestra(int pestana, int pagina) {
    carpeta.pestana = pestana;
    carpeta.pagina = pagina;
    RefrescaForma();
}

// To another page, that is heard; the wheel does not wait for it.
void Vuelve(int pestana, int pagina) {
    if (pestana != carpeta.pestana || pagina != carpeta.pagina)
        Sonido(1, kSonidoPagina);
    Muestra(pestana, pagina);
}

// One page over the edge of a tab lies the next one, or the last page of the one before.
bool PasaPestana(int paso) {
    const int otra = carpeta.pestana + paso;
    if (carpeta.pestana == 0 || otra < 1 || otra > kPestanas)
        return false;
    Vuelve(otra, paso > 0 ? 1 : PaginasEn(carpeta, otra));
    return true;
}

} // namespace

namespace historic {

void Abre() {
    carpeta = Recien();
    carpeta.abierta = true;
}

bool Abierta() {
    return carpeta.abierta;
}

void Cierra() {
    Sonido(0, kSonidoSalir);
    Deja();
}

void Deja() {
    carpeta = {};
}

bool HayTotales() {
    return carpeta.historico.Partidas() > 0;
}

void PulsaTotales() {
    if (!HayTotales())
        return;
    if (!carpeta.contados)
        carpeta.totales = CuentaTotales(carpeta.historico);
    carpeta.contados = true;
    Muestra(carpeta.pestana == 0 ? kPartidasDeJugador : 0, 1);
}

int Pestana() {
    return carpeta.pestana;
}

void PulsaPestana(int pestana) {
    if (carpeta.pestana != 0 && pestana >= 1 && pestana <= kPestanas)
        Vuelve(pestana, 1);
}

std::string NombreDePestana(int pestana) {
    const bool dinero = JuegoEnMesa().dinero.hay;
    switch (pestana) {
    case kPartidasDeJugador:
        return "Partidas por jugador";
    case kFigurasDeJugador:
        return dinero ? "Ganancias por jugador" : "Manos por jugador";
    case kPartidasDePareja:
        return "Partidas por pareja";
    case kFigurasDePareja:
        return dinero ? "Ganancias por pareja" : "Manos por pareja";
    default:
        return "";
    }
}

void PasaPagina(int paso) {
    const int pagina = carpeta.pagina + paso;
    const int paginas = PaginasEn(carpeta, carpeta.pestana);
    if (pagina >= 1 && pagina <= paginas)
        return Vuelve(carpeta.pestana, pagina);
    if (paso == 0 || PasaPestana(paso > 0 ? 1 : -1))
        return;
    Vuelve(carpeta.pestana, std::clamp(pagina, 1, paginas));
}

int PaginaEnVista() {
    return carpeta.pagina;
}

int Paginas() {
    return PaginasEn(carpeta, carpeta.pestana);
}

std::string MarcaDePagina() {
    return "Página " + Numero(PaginaEnVista()) + " de " + Numero(Paginas());
}

PaginaImpresa Pagina(int numero) {
    return carpeta.abierta ? PaginaDe(carpeta, numero) : PaginaDe(Recien(), numero);
}

} // namespace historic
