#include "platform/qt/places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/data_folder.h"
#include "storage/settings.h"

namespace {

QString DatosInstalados() {
    return QCoreApplication::applicationDirPath() + u'/' + QString::fromLatin1(kDatosInstalados);
}

// Whether some of what the program comes with lies there.
bool HayJuegoEn(const QString& carpeta) {
    const QDir dir(carpeta);
    return dir.exists(QStringLiteral("Baraja01.bmp")) ||
           dir.exists(QStringLiteral("Baraja02.bmp")) || dir.exists(QStringLiteral("PkFDes.ZOV"));
}

QString PrimeroQueHay(const QStringList& sitios) {
    for (const QString& sitio : sitios) {
        if (QFileInfo::exists(sitio))
            return QDir::cleanPath(sitio);
    }
    return sitios.front();
}

} // namespace

QString CarpetaDeInstalacion() {
    const QString datos = QDir::cleanPath(DatosInstalados());
    return QFileInfo::exists(datos + u'/' + QString::fromLatin1(kIniGeneral)) ? datos : QString();
}

QString CarpetaDeArranque(const QString& orden) {
    const QString programa = orden.contains(u'/') ? orden : QStandardPaths::findExecutable(orden);
    if (programa.isEmpty() || !QFileInfo::exists(programa))
        return QCoreApplication::applicationDirPath();
    const QString carpeta = QFileInfo(programa).absolutePath();
    return HayJuegoEn(carpeta) ? carpeta : QCoreApplication::applicationDirPath();
}

QString CarpetaAyuda(const QString& programa) {
    const QString real = QCoreApplication::applicationDirPath();
    return PrimeroQueHay({programa + "/ayuda", real + "/ayuda", DatosInstalados() + "/ayuda"});
}

QString FicheroSonido(const QString& programa) {
    const QString real = QCoreApplication::applicationDirPath();
    const QString nombre = QStringLiteral("/zovin_sound.so");
    return PrimeroQueHay({programa + "/plugins" + nombre, real + "/plugins" + nombre,
                          real + "/../lib/zovin" + nombre});
}
