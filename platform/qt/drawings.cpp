#include "platform/qt/drawings.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <span>

#include "platform/qt/deck_signature.h"

namespace {

struct Baraja {
    int columnas;
    const char* carpeta;
    std::array<const char*, 4> palos;
};

constexpr std::array kBarajas{
    Baraja{13, "french", {"diamantes", "corazones", "picas", "treboles"}},
    Baraja{12, "spanish", {"oros", "copas", "espadas", "bastos"}},
};

const Baraja* BarajaDe(int columnas) {
    const auto baraja = std::ranges::find(kBarajas, columnas, &Baraja::columnas);
    return baraja == kBarajas.end() ? nullptr : &*baraja;
}

QByteArray FirmaGuardada(const Baraja& baraja) {
    QFile firma(QStringLiteral(":/arte/%1.firma").arg(QLatin1String(baraja.carpeta)));
    return firma.open(QIODevice::ReadOnly) ? firma.readAll().trimmed() : QByteArray();
}

} // namespace

QImage Dibujo(const QString& nombre, const QSize& pixeles, const QColor& fondo) {
    QSvgRenderer dibujo(QStringLiteral(":/dibujos/%1.svg").arg(nombre));
    if (!dibujo.isValid() || pixeles.isEmpty())
        return {};
    QImage imagen(pixeles, QImage::Format_ARGB32_Premultiplied);
    imagen.fill(fondo);
    QPainter p(&imagen);
    dibujo.render(&p, QRectF(imagen.rect()));
    return imagen;
}

bool EsBarajaDelPrograma(const QString& ruta, int columnas) {
    const Baraja* baraja = BarajaDe(columnas);
    QFile fichero(ruta);
    if (baraja == nullptr || !fichero.open(QIODevice::ReadOnly))
        return false;
    const uchar* datos = fichero.map(0, fichero.size());
    if (datos == nullptr)
        return false;
    const std::span bytes(datos, static_cast<std::size_t>(fichero.size()));
    return QByteArray::number(quint64{FirmaDe(std::as_bytes(bytes))}) == FirmaGuardada(*baraja);
}

QString DibujoDeCarta(int columnas, int palo, int valor) {
    const Baraja* baraja = BarajaDe(columnas);
    if (baraja == nullptr || palo < 1 || palo > 4)
        return {};
    return QStringLiteral("cards/%1/%2-%3")
        .arg(QLatin1String(baraja->carpeta),
             QLatin1String(baraja->palos[static_cast<std::size_t>(palo - 1)]))
        .arg(valor, 2, 10, QLatin1Char('0'));
}
