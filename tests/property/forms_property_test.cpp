// Whatever is done to the two forms, in whatever order and with whatever answers, the settings stay possible.

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <array>

#include "core/text.h"
#include "forms/form.h"
#include "forms/spin.h"
#include "table/deck.h"
#include "table/pending_rules.h"
#include "tests/support/open_forms.h"
#include "tests/support/valid_settings.h"

namespace {

constexpr int kAcciones = 1000; // in each of the hundred walks
constexpr std::array kJuegos{kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo};
constexpr std::array kTextos{"",       "7",     "4",    "1200",       "-3", "12.5", "999",
                             "pepe",   "  ana", "a,b",  "José Ángel", "0",  "005",  "ñ ñ ñ ñ ñ ñ",
                             "\u00A0", "Ж",     "\xFF", "995",        "6"};

// As likely one as the other from the first walk on, whatever the size of the case.
int Entre(int desde, int hasta) {
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(desde, hasta + 1));
}

std::string UnTexto() {
    return *rc::gen::elementOf(std::vector<std::string>(kTextos.begin(), kTextos.end()));
}

class Paseo {
public:
    Paseo() {
        mesa_.LaPlataforma().registra = false;
        mesa_.Pon(*rc::gen::elementOf(kJuegos));
        LeerIniJuego();
        ConstruirBaraja();
    }

    void Paso() {
        mesa_.LaPlataforma().respuestas = {Entre(0, 1) == 1 ? Boton::Si : Boton::No};
        if (mandos_ == nullptr)
            Abre();
        else
            Toca();
        Comprueba();
    }

private:
    // Between two forms the match may have gone anywhere.
    void Abre() {
        sesion.peticion = Peticion::Ninguna;
        estado.PartidaEnCurso = Entre(0, 2) > 0;
        estado.ManoEnCurso = estado.PartidaEnCurso && Entre(0, 1) == 1;
        estado.RepartoEnCurso = estado.PartidaEnCurso && !estado.ManoEnCurso && Entre(0, 2) == 0;
        estado.JuegosJugados = static_cast<Integer>(estado.PartidaEnCurso ? Entre(1, 3) : 0);
        estado.JugadorActual = static_cast<Integer>(Entre(1, 4));
        sesion.mano_apuntada = !estado.ManoEnCurso;
        mandos_ = MandosDe(Entre(0, 1) == 0 ? Forma::Personal : Forma::Normas);
        AntesDeLaForma();
        mandos_->abre();
    }

    // Mostly what the form has, now and then what it has not.
    void Toca() {
        const int cual = Entre(0, 29);
        if (cual == 0)
            mandos_->cierra();
        else if (cual < 16)
            PulsaSelector();
        else if (mandos_ == MandosDe(Forma::Personal))
            TocaPersonal(cual);
        else
            TocaNormas(cual);
        if (!mandos_->abierta())
            TrasCerrar();
    }

    void PulsaSelector() {
        const int de_asiento = std::array{11, 21, 25, 31}.at(static_cast<std::size_t>(Entre(0, 3)));
        const int indice = mandos_ == MandosDe(Forma::Normas) ? Entre(1, 5)
                           : Entre(0, 9) > 0                  ? de_asiento + Entre(0, 3)
                                                              : Entre(0, 36);
        mandos_->pulsa("Pic_Selector", indice);
    }

    void TocaPersonal(int cual) {
        if (cual < 20)
            mandos_->escribe("Txt_Nombre", Entre(0, 5), UnTexto());
        else if (cual < 25)
            mandos_->desliza("Pic_Potenciometro", Entre(0, 1) == 0 ? 1 : Entre(9, 16),
                             Entre(-20, 120));
        else
            mandos_->pulsa("Pic_Buleano", Entre(0, 3));
    }

    void TocaNormas(int cual) {
        const int indice = Entre(20, 25);
        if (cual < 20)
            mandos_->escribe("Tex_Spin", indice, UnTexto());
        else if (cual < 29)
            mandos_->pulsa(cual < 25 ? "Pic_SpinSube" : "Pic_SpinBaja", indice);
        else
            mandos_->pulsa("Pic_Buleano", *rc::gen::elementOf(kJuegos));
    }

    void TrasCerrar() {
        mandos_ = nullptr;
        estado.VentanaModal = false;
        if (estado.JuegoActivo != estado.JuegoPrevio)
            LeerIniJuego();
        // The hand that may have been on comes to its end.
        estado.ManoEnCurso = false;
        AplicaReglasPendientes();
        ConstruirBaraja();
        RC_ASSERT(prueba::FalloDeReglas() == "");
    }

    void Comprueba() {
        RC_ASSERT(prueba::FalloDeAjustesGenerales() == "");
        for (int asiento = 1; asiento <= 4; ++asiento) {
            RC_ASSERT(Longitud(estado.NombreJugador(asiento)) <= personal::kLetrasNombre);
            RC_ASSERT(estado.NombreJugador(asiento).find(',') == std::string::npos);
            RC_ASSERT(estado.NivelJugador(asiento) >= 0 && estado.NivelJugador(asiento) <= 100);
            RC_ASSERT_FALSE(estado.ControlJugador(asiento) == kManual &&
                            estado.CartasJugador(asiento) == kOcultas);
        }
        RC_ASSERT(estado.LeyApertura >= estado.CartasBaraja);
        RC_ASSERT(prueba::FalloDeBanca() == "");
        // With a form closed the seats are enough as well.
        if (mandos_ == nullptr)
            RC_ASSERT(prueba::FalloDeAsientos() == "");
    }

    prueba::MesaConFormas mesa_;
    const MandosForma* mandos_ = nullptr;
};

RC_GTEST_PROP(Formas, NadaDeLoQueSeHagaDejaAjustesImposibles, ()) {
    Paseo paseo;
    for (int accion = 0; accion < kAcciones; ++accion)
        paseo.Paso();
}

} // namespace
