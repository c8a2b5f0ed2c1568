#include "platform/qt/places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString PrimeroQueHay(const QStringList& sitios) {
    for (const QString& sitio : sitios) {
        if (QFileInfo::exists(sitio))
            return QDir::cleanPath(sitio);
    }
    return sitios.front();
}

} // namespace

QString CarpetaDeArranque(const QString& orden) {
    const QString programa = orden.contains(u'/') ? orden : QStandardPaths::findExecutable(orden);
    if (programa.isEmpty() || !QFileInfo::exists(programa))
        return QCoreApplication::applicationDirPath();
    return QFileInfo(programa).absolutePath();
}

QString CarpetaAyuda(const QString& programa) {
    const QString real = QCoreApplication::applicationDirPath();
    return PrimeroQueHay({programa + "/ayuda", real + "/ayuda", real + "/../share/zovin/ayuda"});
}

QString FicheroSonido(const QString& programa) {
    const QString real = QCoreApplication::applicationDirPath();
    const QString nombre = QStringLiteral("/zovin_sound.so");
    return PrimeroQueHay({programa + "/plugins" + nombre, real + "/plugins" + nombre,
                          real + "/../lib/zovin" + nombre});
}
