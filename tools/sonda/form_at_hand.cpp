#include "tools/sonda/form_at_hand.h"

#include <fmt/format.h>

#include <unordered_map>

#include "core/literal.h"
#include "session/main_buttons.h"

namespace {

Forma FormaDe(const std::string& nombre) {
    static const std::unordered_map<std::string, Forma> kFormas{{"Personal", Forma::Personal},
                                                                {"Normas", Forma::Normas},
                                                                {"Marcador", Forma::Marcador},
                                                                {"Historic", Forma::Historic},
                                                                {"estadis", Forma::Estadis}};
    const auto sitio = kFormas.find(nombre);
    if (sitio == kFormas.end() || MandosDe(sitio->second) == nullptr)
        throw ErrorConsola(fmt::format("la forma {} no existe", nombre));
    return sitio->second;
}

// True for its lifetime.
class EnCurso {
public:
    explicit EnCurso(bool& bandera) : bandera_(bandera) { bandera_ = true; }
    ~EnCurso() { bandera_ = false; }
    EnCurso(const EnCurso&) = delete;
    EnCurso& operator=(const EnCurso&) = delete;

private:
    bool& bandera_;
};

bool CierraForma(const MandosForma& mandos) {
    mandos.cierra();
    return true;
}

} // namespace

PaginaImpresa PaginaDeForma(const std::string& nombre, int numero) {
    const MandosForma& mandos = *MandosDe(FormaDe(nombre));
    if (mandos.pagina == nullptr)
        throw ErrorConsola(fmt::format("la forma {} no imprime páginas", nombre));
    return mandos.pagina(numero);
}

void FormaEnMano::Abre(const std::string& nombre) {
    const Forma forma = FormaDe(nombre);
    if (Abierta())
        throw ErrorConsola("ya hay una forma abierta");
    cambia_ajustes_ = forma == Forma::Personal || forma == Forma::Normas;
    if (cambia_ajustes_)
        AntesDeLaForma();
    pila_.push_back(forma);
    MandosDeEncima().abre();
}

std::optional<Forma> FormaEnMano::Encima() const {
    return Abierta() ? std::optional(pila_.back()) : std::nullopt;
}

const MandosForma& FormaEnMano::MandosDeEncima() const {
    return *MandosDe(pila_.back());
}

void FormaEnMano::Olvida() {
    for (const Forma forma : pila_)
        MandosDe(forma)->deja();
    pila_.clear();
    encoladas_.clear();
}

void FormaEnMano::QuitaCerradas() {
    while (Abierta() && !MandosDeEncima().abierta())
        pila_.pop_back();
    if (!Abierta() && cambia_ajustes_)
        TrasLaForma();
}

// On the open form at once, and what comes after a closing; otherwise when a form opens.
bool FormaEnMano::Haz(Accion accion) {
    if (!Abierta()) {
        encoladas_.push_back(std::move(accion));
        return true;
    }
    const EnCurso en_curso(en_accion_);
    const bool hay = accion(MandosDeEncima());
    QuitaCerradas();
    return hay;
}

void FormaEnMano::Cierra() {
    Haz(CierraForma);
}

bool FormaEnMano::Pulsa(const std::string& control, int indice) {
    if (control == "Pic_BotSalir")
        return Haz(CierraForma);
    return Haz([=](const MandosForma& mandos) { return mandos.pulsa(control, indice); });
}

bool FormaEnMano::Escribe(const std::string& control, int indice, const std::string& texto) {
    return Haz([=](const MandosForma& mandos) { return mandos.escribe(control, indice, texto); });
}

bool FormaEnMano::Desliza(const std::string& control, int indice, int valor) {
    return Haz([=](const MandosForma& mandos) { return mandos.desliza(control, indice, valor); });
}

void FormaEnMano::AtiendeLoEncolado(Forma forma) {
    const MandosForma* mandos = MandosDe(forma);
    if (mandos == nullptr)
        return;
    mandos->abre();
    if (en_accion_) {
        pila_.push_back(forma);
        return;
    }
    while (mandos->abierta() && !encoladas_.empty()) {
        const Accion accion = std::move(encoladas_.front());
        encoladas_.pop_front();
        accion(*mandos);
    }
    if (mandos->abierta() && !mandos->cierra())
        mandos->deja();
}
