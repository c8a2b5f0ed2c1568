#include "table/announcements.h"

#include <algorithm>
#include <array>

#include "platform/platform.h"
#include "table/card_names.h"
#include "table/side_buttons.h"
#include "table/table_view.h"

namespace {

bool EsFemenina(Carta carta) {
    constexpr std::array<const char*, 3> kFemeninas{"Sota", "Jota", "Dama"};
    return carta.palo != kComodin &&
           std::ranges::count(kFemeninas, estado.NombreValor(carta.valor)) > 0;
}

} // namespace

void Di(const std::string& texto) {
    plataforma().Anuncia(texto);
}

void DiDe(Integer asiento, const std::string& que_hace) {
    Di(estado.NombreJugador(asiento) + " " + que_hace);
}

std::string ConArticulo(Carta carta) {
    return (EsFemenina(carta) ? "la " : "el ") + NombreDeCarta(carta);
}

std::string Enumera(const std::vector<Carta>& cartas) {
    std::string texto;
    for (std::size_t i = 0; i < cartas.size(); ++i) {
        if (i > 0)
            texto += i + 1 == cartas.size() ? " y " : ", ";
        texto += ConArticulo(cartas[i]);
    }
    return texto;
}

std::vector<Carta> ALaVista(Integer asiento, int desde, int cuantas) {
    const Integer serie = estado.SerieActual;
    std::vector<Carta> cartas;
    for (int lugar = desde; lugar < desde + cuantas; ++lugar) {
        const auto campo = [&](int cual) { return estado.Mano(asiento, serie, lugar, cual); };
        if (campo(kPalo) != kSinCarta && campo(kCara) == kDescubierta)
            cartas.push_back({campo(kPalo), campo(kValor)});
    }
    return cartas;
}

void DiAQuienSeEspera() {
    const Integer asiento = estado.JugadorActual;
    if (!estado.ManoEnCurso)
        return Di("Pulse Continuar");
    if (asiento == 0)
        return;
    if (estado.ControlJugador(asiento) != kManual)
        return Di(vista.verde); // with a pause between moves it plays when the green button says so
    const std::string puntos =
        plataforma().EstaVisible(Control::Pic_Tantos, asiento) ? vista.tantos(asiento) : "";
    Di("Le toca a " + estado.NombreJugador(asiento) + (puntos.empty() ? "" : ", con " + puntos));
}
