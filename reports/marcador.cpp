#include "reports/marcador.h"

#include <algorithm>
#include <array>

#include "core/numeric.h"
#include "forms/refresh.h"
#include "platform/platform.h"
#include "reports/marcador_pages.h"
#include "table/messages.h"

EstadoMarcador informe;

namespace {

constexpr int kBotones = 4;
constexpr int kPrimerBoton = 1, kPasoBoton = 29, kLadoBoton = 24; // in Pic_BotAdeAtr

bool abierta = false;

bool EnBoton(int x, int boton) {
    const int izquierda = kPrimerBoton + (boton - 1) * kPasoBoton;
    return x >= izquierda && x < izquierda + kLadoBoton;
}

EstadoMarcador LaHoja() {
    return abierta ? informe : HojaInicial();
}

} // namespace

void CualBoton(int x, int y) {
    informe.BotonActivo = 0;
    if (y < kPrimerBoton || y >= kPrimerBoton + kLadoBoton)
        return;
    for (int boton = 1; boton <= kBotones; ++boton) {
        if (EnBoton(x, boton))
            informe.BotonActivo = EnteroDe(boton);
    }
}

namespace marcador {

void Abre() {
    informe = HojaInicial();
    abierta = true;
}

bool Abierta() {
    return abierta;
}

void Cierra() {
    Sonido(0, kSonidoSalir);
    Deja();
}

void Deja() {
    abierta = false;
}

void PulsaPagina() {
    Integer primera = informe.PrimeraLinea;
    switch (informe.BotonActivo) {
    case kAlPrincipio:
        primera = 1;
        break;
    case kRetrocede:
        primera = EnteroDe(primera - informe.LineasPagina);
        break;
    case kAvanza:
        primera = EnteroDe(primera + informe.LineasPagina);
        break;
    case kAlFinal:
        primera = informe.PrimeraUltimaPagina;
        break;
    default:
        return;
    }
    informe.PrimeraLinea =
        std::clamp<Integer>(primera, 1, std::max<Integer>(informe.PrimeraUltimaPagina, 1));
    RefrescaForma();
}

const char* Sugerencia(int boton) {
    // The blank at the end is meant.
    static constexpr std::array kSugerencias{"", "Ir al principio ", "Retroceder una página ",
                                             "Avanzar una página ", "Ir al final "};
    return boton >= 1 && boton <= kBotones ? kSugerencias[static_cast<std::size_t>(boton)] : "";
}

void PulsaHistorico() {
    plataforma().Abre(Forma::Historic);
}

PaginaImpresa Pagina(int numero) {
    EstadoMarcador hoja = LaHoja();
    if (numero < 0 || numero > PaginasDe(hoja))
        throw IndiceFuera("el informe no tiene esa página");
    if (numero > 0)
        hoja.PrimeraLinea = EnteroDe((numero - 1) * kLineasPagina + 1);
    return ImprimePagina(hoja);
}

int NumeroDePaginas() {
    return PaginasDe(LaHoja());
}

} // namespace marcador
