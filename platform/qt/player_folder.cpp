#include "platform/qt/player_folder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <algorithm>

#include "platform/qt/places.h"
#include "storage/settings.h"

namespace {

// The folder of an installation may forbid to write what is copied from it.
void Copia(const QDir& datos, const QDir& propia, const QString& nombre) {
    const QString copia = propia.filePath(nombre);
    if (QFile::copy(datos.filePath(nombre), copia))
        QFile::setPermissions(copia, QFile::permissions(copia) | QFile::WriteOwner);
}

bool EsAjuste(const QString& nombre) {
    return nombre.endsWith(QStringLiteral(".INI"));
}

// The general settings come last: a copying that was cut off is begun anew at the next start.
QStringList PorCopiar(const QDir& datos, bool con_ajustes) {
    QStringList nombres = datos.entryList(QDir::Files);
    if (!con_ajustes)
        nombres.removeIf(EsAjuste);
    const QString general = QString::fromLatin1(kIniGeneral);
    if (nombres.removeOne(general))
        nombres.append(general);
    return nombres;
}

} // namespace

QString CarpetaDeLoQueTrae(const QString& orden) {
    const QString datos = CarpetaDeInstalacion();
    return datos.isEmpty() ? CarpetaDeArranque(orden) : datos;
}

bool LlenaCarpeta(const QString& datos, const QString& propia) {
    QDir().mkpath(propia);
    const QDir origen(datos), destino(propia);
    const bool estreno = !destino.exists(QString::fromLatin1(kIniGeneral));
    const QStringList nombres = PorCopiar(origen, estreno);
    for (const QString& nombre : nombres) {
        if (!destino.exists(nombre))
            Copia(origen, destino, nombre);
    }
    return std::ranges::all_of(nombres,
                               [&](const QString& nombre) { return destino.exists(nombre); });
}

CarpetaDeJuego::CarpetaDeJuego(const QString& orden) {
    const QString datos = CarpetaDeInstalacion();
    if (datos.isEmpty()) {
        propia_ = CarpetaDeArranque(orden);
        return;
    }
    propia_ = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (LlenaCarpeta(datos, propia_))
        return;
    prestada_.emplace();
    if (!LlenaCarpeta(datos, prestada_->path()))
        prestada_.reset();
}
