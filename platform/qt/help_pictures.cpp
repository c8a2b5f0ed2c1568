#include "platform/qt/help_pictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "core/game_state.h"
#include "platform/platform.h"
#include "platform/qt/card_images.h"
#include "platform/qt/drawings.h"
#include "platform/qt/sheet_images.h"
#include "table/sheet_layout.h"

namespace {

constexpr int kAnchoEnPagina = 44;
constexpr int kAnchoEsquina = 22;
constexpr QSize kEsquina(29, 40); // of the card on the table
constexpr int kAnchoMaximo = 1000;
constexpr Integer kUnComodin = 91;

constexpr std::array kClases{"carta", "esquina", "pieza", "puntero", "foto"};

struct BarajaDibujada {
    const char* fichero;
    int columnas;
    std::array<const char*, 4> palos;
};
constexpr std::array kBarajas{
    BarajaDibujada{"Baraja01.bmp", 13, {"diamantes", "corazones", "picas", "treboles"}},
    BarajaDibujada{"Baraja02.bmp", 12, {"oros", "copas", "espadas", "bastos"}}};
constexpr int kFrancesa = 0, kEspanola = 1;

struct NombreDeValor {
    const char* nombre;
    std::array<Integer, 2> valor; // in the French deck and in the Spanish one, 0: not in it
};
constexpr std::array kNombres{NombreDeValor{"as", {1, 1}},       NombreDeValor{"sota", {0, 10}},
                              NombreDeValor{"caballo", {0, 11}}, NombreDeValor{"jota", {11, 0}},
                              NombreDeValor{"dama", {12, 0}},    NombreDeValor{"rey", {13, 12}}};

struct Naipe {
    int baraja;
    ImagenCarta carta;
};

Integer ValorDe(const QString& nombre, int baraja) {
    for (const NombreDeValor& uno : kNombres) {
        if (nombre == QLatin1String(uno.nombre))
            return uno.valor.at(static_cast<std::size_t>(baraja));
    }
    return static_cast<Integer>(nombre.toShort());
}

std::optional<Naipe> NaipeDe(const QString& palo, const QString& valor) {
    for (int baraja : {kFrancesa, kEspanola}) {
        const auto& palos = kBarajas.at(static_cast<std::size_t>(baraja)).palos;
        const auto fila = std::ranges::find_if(
            palos, [&](const char* nombre) { return palo == QLatin1String(nombre); });
        if (fila != palos.end())
            return Naipe{baraja,
                         {.palo = static_cast<Integer>(fila - palos.begin() + 1),
                          .valor = ValorDe(valor, baraja),
                          .cara = kDescubierta,
                          .orientacion = 1}};
    }
    return std::nullopt;
}

int AnchoPedido(const QStringList& partes, qsizetype lugar, int si_no) {
    const int ancho = partes.value(lugar).toInt();
    return ancho > 0 ? std::min(ancho, kAnchoMaximo) : si_no;
}

QImage DibujaPieza(const QStringList& partes, double densidad) {
    const auto pieza = std::ranges::find_if(lamina::kPiezas, [&](const lamina::Pieza& una) {
        return partes.front() ==
               QLatin1String(una.archivo.data(), static_cast<qsizetype>(una.archivo.size()));
    });
    if (pieza == lamina::kPiezas.end())
        return {};
    const int ancho = AnchoPedido(partes, 1, pieza->sitio.ancho);
    return PiezaDe(pieza->sitio, densidad * ancho / pieza->sitio.ancho);
}

QImage DibujaPuntero(const QString& nombre, double densidad) {
    const int lado = qRound(lamina::kLadoPuntero * densidad);
    return Dibujo(QStringLiteral("cursors/") + nombre, {lado, lado});
}

// A text gives its pictures whole pixels of the window: one that ends between two would be stretched, so it is brought up
// to the next with clear ones.
QImage HastaPixelEntero(const QImage& dibujo, double ratio) {
    constexpr double kPolvo = 1e-6; // that only the arithmetic has left
    const auto entero = [ratio](int pixeles) {
        return qRound(std::ceil(pixeles / ratio - kPolvo) * ratio);
    };
    const QSize tamano(entero(dibujo.width()), entero(dibujo.height()));
    return tamano == dibujo.size() ? dibujo
                                   : dibujo.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                                         .copy(QRect(QPoint(0, 0), tamano));
}

} // namespace

DibujosAyuda::DibujosAyuda(const QString& paginas, const QStringList& barajas)
    : paginas_(paginas), barajas_(barajas) {}
DibujosAyuda::~DibujosAyuda() = default;

bool DibujosAyuda::EsSuyo(const QUrl& cual) {
    return std::ranges::any_of(
        kClases, [&](const char* clase) { return cual.scheme() == QLatin1String(clase); });
}

// A whole deck at once: a page with one of its cards has most often a dozen.
Imagenes* DibujosAyuda::Baraja(int cual, double densidad) {
    auto& lista = listas_[{cual, densidad}];
    if (lista)
        return lista.get();
    const BarajaDibujada& baraja = kBarajas.at(static_cast<std::size_t>(cual));
    for (const QString& carpeta : barajas_) {
        auto nueva = std::make_unique<Imagenes>(densidad);
        try {
            nueva->CargaBaraja(carpeta + '/' + QLatin1String(baraja.fichero), baraja.columnas);
            lista = std::move(nueva);
            return lista.get();
        } catch (const FalloGrave&) {
            continue;
        }
    }
    return nullptr;
}

QImage DibujosAyuda::Carta(const QStringList& partes, double densidad) {
    if (partes.front() == QLatin1String("dorso") || partes.front() == QLatin1String("comodin")) {
        const bool dorso = partes.front() == QLatin1String("dorso");
        const Imagenes sueltas(densidad * AnchoPedido(partes, 1, kAnchoEnPagina) / kAnchoCarta);
        return sueltas.Carta({.palo = kComodin,
                              .valor = kUnComodin,
                              .cara = dorso ? kDorso : kDescubierta,
                              .orientacion = 1});
    }
    const auto naipe = NaipeDe(partes.front(), partes.value(1));
    const double suyo = densidad * AnchoPedido(partes, 2, kAnchoEnPagina) / kAnchoCarta;
    const Imagenes* baraja = naipe ? Baraja(naipe->baraja, suyo) : nullptr;
    return baraja == nullptr ? QImage() : baraja->Carta(naipe->carta);
}

QImage DibujosAyuda::Esquina(const QStringList& partes, double densidad) {
    const auto naipe = NaipeDe(partes.front(), partes.value(1));
    const double suyo = densidad * AnchoPedido(partes, 2, kAnchoEsquina) / kEsquina.width();
    const Imagenes* baraja = naipe ? Baraja(naipe->baraja, suyo) : nullptr;
    return baraja == nullptr ? QImage()
                             : baraja->MiniCarta(naipe->carta, {baraja->Px(kEsquina.width()),
                                                                baraja->Px(kEsquina.height())});
}

QImage DibujosAyuda::Foto(const QStringList& partes, double densidad, double tope) const {
    const QImage foto(paginas_ + '/' + partes.front());
    const double ancho = std::min(1.0 * AnchoPedido(partes, 1, foto.width()), tope);
    const int pixeles = std::min(qRound(ancho * densidad), foto.width());
    return pixeles == foto.width() ? foto : foto.scaledToWidth(pixeles, Qt::SmoothTransformation);
}

QImage DibujosAyuda::Dibujo(const QUrl& cual, double ratio, double aumento, int tope) {
    const QStringList partes = cual.path().split(u'/');
    const QString clase = cual.scheme();
    const double densidad = ratio * aumento;
    QImage dibujo = clase == QLatin1String("carta")     ? Carta(partes, densidad)
                    : clase == QLatin1String("esquina") ? Esquina(partes, densidad)
                    : clase == QLatin1String("pieza")   ? DibujaPieza(partes, densidad)
                    : clase == QLatin1String("puntero") ? DibujaPuntero(partes.front(), densidad)
                                                        : Foto(partes, densidad, tope / aumento);
    dibujo.setDevicePixelRatio(1);
    dibujo = HastaPixelEntero(dibujo, ratio);
    dibujo.setDevicePixelRatio(ratio);
    return dibujo;
}

void DibujosAyuda::Olvida() {
    listas_.clear();
}
