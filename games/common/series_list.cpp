#include "games/common/series_list.h"

#include <algorithm>
#include <vector>

#include "core/game_state.h"
#include "core/text.h"
#include "games/common/deck_table.h"
#include "games/common/series.h"

namespace {

std::vector<Integer> DesdeLaBancaHastaElTurno() {
    std::vector<Integer> asientos;
    Integer asiento = estado.JugadorBanca;
    for (int pasos = 0; pasos < 4; ++pasos) {
        asientos.push_back(asiento);
        if (asiento == estado.JugadorActual)
            break;
        SiguienteAsiento(asiento);
    }
    return asientos;
}

std::string Cartas(const ListaDeSeries& lista, Integer asiento, Integer serie) {
    std::string texto;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar)
        texto += (lugar > 1 ? "/" : "") + lista.texto_carta(asiento, serie, lugar);
    return texto;
}

struct Renglon {
    PaginaImpresa& pagina;
    const ListaDeSeries& lista;
    int y = 0;

    void DesdeColumna(int columna, const std::string& texto) const {
        pagina.Texto(lista.x + Columna(columna), y, texto, Tinta::Negro);
    }
    void HastaColumna(int columna, const std::string& texto, Tinta tinta = Tinta::Negro) const {
        pagina.Texto(lista.x + Columna(columna), y, texto, tinta, {}, Alineacion::Derecha);
    }
};

void ImprimeSerie(const Renglon& renglon, Integer asiento, Integer serie) {
    const ListaDeSeries& lista = renglon.lista;
    const bool es_banca = asiento == estado.JugadorBanca;
    if (serie == 1)
        renglon.DesdeColumna(0, es_banca ? "Banca" : estado.NombreJugador(asiento));
    renglon.DesdeColumna(lista.serie, Numero(serie));
    if (!es_banca)
        renglon.HastaColumna(lista.apuesta, Formato(lista.apostado(asiento, serie), "#,##0"));
    if (!es_banca && lista.asegurado != nullptr)
        renglon.HastaColumna(lista.seguro, Formato(lista.asegurado(asiento, serie), "#,##0"));
    const bool se_pasa = CuentaSinHuella(asiento, serie).puntos > lista.tope;
    renglon.HastaColumna(lista.puntos, lista.texto_puntos(asiento, serie),
                         se_pasa ? Tinta::Rojo : Tinta::Negro);
    renglon.DesdeColumna(lista.cartas, Cartas(lista, asiento, serie));
}

} // namespace

CuentaDeSerie CuentaSinHuella(Integer asiento, Integer serie) {
    const EstadoSeries antes = series;
    const float puntos = PuntosSerie(asiento, serie);
    const bool blanda = series.ManoBlanda;
    series = antes;
    return {puntos, blanda};
}

int ImprimeSeries(PaginaImpresa& pagina, const ListaDeSeries& lista) {
    pagina.Texto(lista.x, 0, lista.cabecera, Tinta::Negro, kLetraDeTitulo);
    int y = kRenglon;
    for (const Integer asiento : DesdeLaBancaHastaElTurno()) {
        if (CuentaSinHuella(asiento, 1).puntos <= 0)
            continue;
        const Integer series_suyas = std::min(estado.SeriesJugador(asiento), kMaximoSeries);
        for (Integer serie = 1; serie <= series_suyas; ++serie) {
            ImprimeSerie({pagina, lista, y}, asiento, serie);
            y += kRenglon;
        }
    }
    return y;
}
