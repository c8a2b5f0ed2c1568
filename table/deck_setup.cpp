#include "table/deck_setup.h"

#include <array>

#include "core/game_state.h"
#include "core/numeric.h"

namespace {

constexpr Integer kColumnasEspanola = 12, kColumnasFrancesa = 13;
constexpr Integer kLeyNoSeAplica = 14;

constexpr std::array<const char*, 12> kPluralEspanol{"Ases",   "Doses",  "Treses",   "Cuatros",
                                                     "Cincos", "Seises", "Sietes",   "Ochos",
                                                     "Nueves", "Sotas",  "Caballos", "Reyes"};
constexpr std::array<const char*, 12> kNombreEspanol{"As",    "Dos",  "Tres",    "Cuatro",
                                                     "Cinco", "Seis", "Siete",   "Ocho",
                                                     "Nueve", "Sota", "Caballo", "Rey"};
constexpr std::array<const char*, 14> kPluralFrances{
    "Ases",  "Doses",  "Treses", "Cuatros", "Cincos", "Seises", "Sietes",
    "Ochos", "Nueves", "Dieces", "Jotas",   "Damas",  "Reyes",  "Ases"};
constexpr std::array<const char*, 13> kNombreFrances{"As",   "Dos",   "Tres", "Cuatro", "Cinco",
                                                     "Seis", "Siete", "Ocho", "Nueve",  "Diez",
                                                     "Jota", "Dama",  "Rey"};

template <std::size_t N>
void PonNombres(Tabla<std::string, 14>& tabla, const std::array<const char*, N>& nombres) {
    tabla.Borra();
    for (std::size_t i = 0; i < N; ++i)
        tabla(static_cast<int>(i) + 1) = nombres[i];
}

void PonValoresDelTipo(bool francesa) {
    for (int valor = 1; valor <= kColumnasFrancesa; ++valor)
        estado.ValorEnBaraja(valor) = francesa || (valor != 8 && valor != 9 && valor != 13);
}

} // namespace

void PonMedidas(const MedidasBaraja& medidas) {
    const bool francesa = medidas.tipo == kBarajaFrancesa;
    estado.TipoBaraja = medidas.tipo;
    estado.ValoresPorPalo = medidas.valores_por_palo;
    estado.CartasNormales = EnteroDe(4LL * medidas.valores_por_palo * medidas.mazos);
    estado.ComodinesBaraja = medidas.comodines;
    estado.TotalBaraja = EnteroDe(estado.CartasNormales + medidas.comodines);
    estado.MazosBaraja = medidas.mazos;
    estado.CartasReparto = medidas.reparto;
    estado.PasoReparto = medidas.paso;
    estado.MaxCartasMano = medidas.max_mano;
    estado.ColumnasBaraja = francesa ? kColumnasFrancesa : kColumnasEspanola;
    estado.CartasImagen = EnteroDe(4LL * estado.ColumnasBaraja);
    estado.AltoMiniCarta = francesa ? 38 : 46;
    if (francesa) {
        PonNombres(estado.NombreValorPlural, kPluralFrances);
        PonNombres(estado.NombreValor, kNombreFrances);
    } else {
        PonNombres(estado.NombreValorPlural, kPluralEspanol);
        PonNombres(estado.NombreValor, kNombreEspanol);
    }
    PonValoresDelTipo(francesa);
    estado.ValorCarta.Borra();
    estado.OrdenCarta.Borra();
    estado.JuegoConBanca = false;
}

void PonReglasDeBanca() {
    estado.JuegoConBanca = true;
    estado.CartasBaraja = 1;
    estado.LeyApertura = kLeyNoSeAplica;
}
