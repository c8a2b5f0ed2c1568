#include "forms/form.h"

#include "forms/normas.h"
#include "forms/personal.h"
#include "forms/selector.h"
#include "forms/spin.h"
#include "reports/report_handles.h"
#include "table/game_row.h"

namespace {

bool Entre(int indice, int primero, int ultimo) {
    return indice >= primero && indice <= ultimo;
}

// ---- Personal

bool PulsaEnPersonal(std::string_view control, int indice) {
    if (control == "Pic_BotAyuda") {
        plataforma().Ayuda(kAyudaPersonal);
        return true;
    }
    if (control == "Pic_Selector" && EsSelector(indice) && indice > kSelBaraja) {
        personal::PulsaSelector(indice);
        return true;
    }
    if (control == "Pic_Buleano" && Entre(indice, personal::kSonido, personal::kPausa)) {
        personal::PulsaBuleano(indice);
        return true;
    }
    return false;
}

bool EscribeEnPersonal(std::string_view control, int indice, std::string_view texto) {
    if (control != "Txt_Nombre" || !Entre(indice, 1, 4))
        return false;
    personal::EscribeNombre(static_cast<Integer>(indice), texto);
    return true;
}

bool DeslizaEnPersonal(std::string_view control, int indice, int valor) {
    const bool hay =
        indice == personal::kVelocidad || Entre(indice, personal::kNivel + 1, personal::kNivel + 4);
    if (control != "Pic_Potenciometro" || !hay)
        return false;
    personal::Desliza(indice, valor);
    return true;
}

// ---- Normas

// The upper arrow of a spin goes by the spin's own name too.
bool PulsaFlecha(std::string_view control, int indice) {
    const bool sube = control == "Pic_SpinSube" || control == "Pic_Spin";
    if ((!sube && control != "Pic_SpinBaja") || !EsSpin(indice))
        return false;
    normas::PulsaSpin(indice, sube);
    return true;
}

bool PulsaEnNormas(std::string_view control, int indice) {
    if (control == "Pic_BotAyuda") {
        plataforma().Ayuda(kAyudaNormas);
        return true;
    }
    if (control == "Pic_Selector" && Entre(indice, kSelReparto, kSelBaraja)) {
        normas::PulsaSelector(indice);
        return true;
    }
    const bool es_juego = Entre(indice, 1, 99) && FilaDe(static_cast<Integer>(indice)) != nullptr;
    if (control == "Pic_Buleano" && es_juego) {
        normas::PulsaJuego(static_cast<Integer>(indice));
        return true;
    }
    return PulsaFlecha(control, indice);
}

bool EscribeEnNormas(std::string_view control, int indice, std::string_view texto) {
    if (control != "Tex_Spin" || !EsSpin(indice))
        return false;
    normas::EscribeSpin(indice, texto);
    return true;
}

bool NadaQueDeslizar(std::string_view, int, int) {
    return false;
}

bool CierraNormas() {
    normas::Cierra();
    return true;
}

constexpr MandosForma kPersonal{personal::Abre,   personal::Abierta, personal::Cierra,
                                personal::Deja,   PulsaEnPersonal,   EscribeEnPersonal,
                                DeslizaEnPersonal};
constexpr MandosForma kNormas{normas::Abre,  normas::Abierta, CierraNormas,   normas::Deja,
                              PulsaEnNormas, EscribeEnNormas, NadaQueDeslizar};

} // namespace

const MandosForma* MandosDe(Forma forma) {
    switch (forma) {
    case Forma::Personal:
        return &kPersonal;
    case Forma::Normas:
        return &kNormas;
    case Forma::Marcador:
        return &kMandosMarcador;
    case Forma::Historic:
        return &kMandosHistoric;
    case Forma::Estadis:
        return &kMandosEstadis;
    default:
        return nullptr;
    }
}
