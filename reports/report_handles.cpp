#include "reports/report_handles.h"

#include "core/numeric.h"
#include "platform/platform.h"
#include "reports/estadis.h"
#include "reports/historic.h"
#include "reports/marcador.h"

namespace {

bool PulsaAyuda(std::string_view control, int tema) {
    if (control != "Pic_BotAyuda")
        return false;
    plataforma().Ayuda(tema);
    return true;
}

// By its number, or 0 for the button that CualBoton has found.
bool PulsaBotonDePagina(int boton) {
    if (boton < 0 || boton > kAlFinal)
        return false;
    if (boton > 0)
        informe.BotonActivo = EnteroDe(boton);
    marcador::PulsaPagina();
    return true;
}

bool PulsaEnMarcador(std::string_view control, int indice) {
    if (control == "Pic_BotAdeAtr")
        return PulsaBotonDePagina(indice);
    if (control == "Pic_BotHistorico") {
        marcador::PulsaHistorico();
        return true;
    }
    return PulsaAyuda(control, kAyudaMarcador);
}

// The halves of the folder: 1 turns back, 2 turns on; 0, anywhere, turns on.
bool PulsaCarpeta(int mitad) {
    if (mitad < 0 || mitad > 2)
        return false;
    historic::PasaPagina(mitad == 1 ? -1 : 1);
    return true;
}

bool PulsaEnHistoric(std::string_view control, int indice) {
    if (control == "Pic_Carpeta")
        return PulsaCarpeta(indice);
    if (control == "Pic_Pestana" && indice >= 1 && indice <= kPestanas) {
        historic::PulsaPestana(indice);
        return true;
    }
    if (control == "Pic_BotHisTt") {
        historic::PulsaTotales();
        return true;
    }
    return PulsaAyuda(control, kAyudaHistorico);
}

bool PulsaEnEstadis(std::string_view control, int /*indice*/) {
    return PulsaAyuda(control, kAyudaEstadis);
}

bool NadaQueEscribir(std::string_view, int, std::string_view) {
    return false;
}

bool NadaQueDeslizar(std::string_view, int, int) {
    return false;
}

bool CierraMarcador() {
    marcador::Cierra();
    return true;
}

bool CierraHistoric() {
    historic::Cierra();
    return true;
}

bool CierraEstadis() {
    estadis::Cierra();
    return true;
}

} // namespace

const MandosForma kMandosMarcador{.abre = marcador::Abre,
                                  .abierta = marcador::Abierta,
                                  .cierra = CierraMarcador,
                                  .deja = marcador::Deja,
                                  .pulsa = PulsaEnMarcador,
                                  .escribe = NadaQueEscribir,
                                  .desliza = NadaQueDeslizar,
                                  .pagina = marcador::Pagina};

const MandosForma kMandosHistoric{.abre = historic::Abre,
                                  .abierta = historic::Abierta,
                                  .cierra = CierraHistoric,
                                  .deja = historic::Deja,
                                  .pulsa = PulsaEnHistoric,
                                  .escribe = NadaQueEscribir,
                                  .desliza = NadaQueDeslizar,
                                  .pagina = historic::Pagina};

const MandosForma kMandosEstadis{.abre = estadis::Abre,
                                 .abierta = estadis::Abierta,
                                 .cierra = CierraEstadis,
                                 .deja = estadis::Deja,
                                 .pulsa = PulsaEnEstadis,
                                 .escribe = NadaQueEscribir,
                                 .desliza = NadaQueDeslizar,
                                 .pagina = estadis::Pagina};
