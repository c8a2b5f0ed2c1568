#include "platform/qt/player_folder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <algorithm>

#include "platform/qt/places.h"

namespace {

// The folder of an installation may forbid to write what is copied from it.
void Copia(const QDir& datos, const QDir& propia, const QString& nombre) {
    const QString copia = propia.filePath(nombre);
    if (QFile::copy(datos.filePath(nombre), copia))
        QFile::setPermissions(copia, QFile::permissions(copia) | QFile::WriteOwner);
}

QStringList LoQueSeLleva(const QDir& de) {
    return de.entryList({QStringLiteral("*.INI"), QStringLiteral("*.HIS"), QStringLiteral("*.bmp"),
                         QStringLiteral("*.ZOV")},
                        QDir::Files);
}

bool EsAjuste(const QString& nombre) {
    return nombre.endsWith(QStringLiteral(".INI"));
}

// Stands in a folder as long as it is being filled for the first time.
constexpr const char* kAMedias = "A-MEDIAS.WRK";

// The first start: no settings at all, or a first filling that was cut off.
bool EsEstreno(const QDir& carpeta) {
    return carpeta.entryList({QStringLiteral("*.INI")}, QDir::Files).isEmpty() ||
           carpeta.exists(QString::fromLatin1(kAMedias));
}

bool SePuedeEscribir(const QDir& carpeta) {
    return QTemporaryFile(carpeta.filePath(QStringLiteral("CSCD.XXXXXX.WRK"))).open();
}

// Copies what is missing. False when something is missing still.
bool Completa(const QDir& datos, const QDir& carpeta, bool con_ajustes) {
    QStringList nombres = LoQueSeLleva(datos);
    if (!con_ajustes)
        nombres.removeIf(EsAjuste);
    for (const QString& nombre : nombres) {
        if (!carpeta.exists(nombre))
            Copia(datos, carpeta, nombre);
    }
    return std::ranges::all_of(nombres,
                               [&](const QString& nombre) { return carpeta.exists(nombre); });
}

} // namespace

QString CarpetaDeLoQueTrae(const QString& orden) {
    const QString datos = CarpetaDeInstalacion();
    return datos.isEmpty() ? CarpetaDeArranque(orden) : datos;
}

bool LlenaCarpeta(const QString& datos, const QString& propia) {
    QDir().mkpath(propia);
    const QDir origen(datos), destino(propia);
    if (!SePuedeEscribir(destino))
        return false;
    if (!EsEstreno(destino))
        return Completa(origen, destino, false);
    QFile a_medias(destino.filePath(QString::fromLatin1(kAMedias)));
    return a_medias.open(QFile::WriteOnly) && Completa(origen, destino, true) && a_medias.remove();
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
    // First what the player has so far: the match that waits can be gone on with.
    const bool con_lo_suyo = LlenaCarpeta(propia_, prestada_->path());
    if (!con_lo_suyo || !LlenaCarpeta(datos, prestada_->path()))
        prestada_.reset();
}
