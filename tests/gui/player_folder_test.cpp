// The own folder of whoever plays a program that is installed for all.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <optional>

#include "platform/qt/places.h"
#include "platform/qt/player_folder.h"

class PruebaCarpetaDelJugador : public QObject {
    Q_OBJECT

    static void Escribe(const QString& ruta, const QByteArray& que) {
        QFile fichero(ruta);
        QVERIFY(fichero.open(QFile::WriteOnly));
        fichero.write(que);
    }
    static QByteArray Lee(const QString& ruta) {
        QFile fichero(ruta);
        return fichero.open(QFile::ReadOnly) ? fichero.readAll() : "no está";
    }
    QString Datos(const QString& nombre) const { return casa_->filePath("datos/" + nombre); }
    QString Propia(const QString& nombre) const { return casa_->filePath("ana/zovin/" + nombre); }
    bool Llena() const {
        return LlenaCarpeta(casa_->filePath("datos"), casa_->filePath("ana/zovin"));
    }

    std::optional<QTemporaryDir> casa_;

private Q_SLOTS:
    void init() {
        casa_.emplace();
        QDir(casa_->path()).mkpath("datos/ayuda");
        for (const char* nombre : {"ZOV31.INI", "ZOV5831.INI", "Baraja02.bmp", "PkFDes.ZOV"})
            Escribe(Datos(nombre), nombre);
    }

    void LaPrimeraVezSeLlenaConTodoLoQueTrae() {
        QVERIFY(Llena());
        for (const char* nombre : {"ZOV31.INI", "ZOV5831.INI", "Baraja02.bmp", "PkFDes.ZOV"})
            QCOMPARE(Lee(Propia(nombre)), QByteArray(nombre));
        QVERIFY2(!QDir(Propia("ayuda")).exists(), "the help is read where it is installed");
    }

    void LoQueSeJugoSigueComoEstaba() {
        QVERIFY(Llena());
        Escribe(Propia("ZOV5831.INI"), "una partida");
        Escribe(Propia("Baraja02.bmp"), "otros dibujos");
        QVERIFY(Llena());
        QCOMPARE(Lee(Propia("ZOV5831.INI")), QByteArray("una partida"));
        QCOMPARE(Lee(Propia("Baraja02.bmp")), QByteArray("otros dibujos"));
    }

    void UnaBarajaQuitadaVuelveYUnAjustePerdidoNo() {
        QVERIFY(Llena());
        QFile::remove(Propia("Baraja02.bmp"));
        QFile::remove(Propia("ZOV5831.INI"));
        QVERIFY(Llena());
        QCOMPARE(Lee(Propia("Baraja02.bmp")), QByteArray("Baraja02.bmp"));
        QVERIFY2(!QFile::exists(Propia("ZOV5831.INI")), "the table tells of it and makes it anew");
    }

    void ElAjusteGeneralPerdidoNoTraeConsigoLosDemas() {
        QVERIFY(Llena());
        Escribe(Datos("ZOV0131.INI"), "ZOV0131.INI");
        QFile::remove(Propia("ZOV31.INI"));
        QVERIFY(Llena());
        QVERIFY2(!QFile::exists(Propia("ZOV31.INI")), "the table tells of it and makes it anew");
        QVERIFY(!QFile::exists(Propia("ZOV0131.INI")));
        QCOMPARE(Lee(Propia("ZOV5831.INI")), QByteArray("ZOV5831.INI"));
    }

    void SinNingunAjusteEsLaPrimeraVez() {
        QVERIFY(Llena());
        QFile::remove(Propia("ZOV31.INI"));
        QFile::remove(Propia("ZOV5831.INI"));
        QVERIFY(Llena());
        QCOMPARE(Lee(Propia("ZOV5831.INI")), QByteArray("ZOV5831.INI"));
        QCOMPARE(Lee(Propia("ZOV31.INI")), QByteArray("ZOV31.INI"));
    }

    // The power failed between two files: what is there stays, the rest comes.
    void UnaCopiaCortadaSeAcabaLaVezSiguiente() {
        QDir(casa_->path()).mkpath("ana/zovin");
        Escribe(Propia("A-MEDIAS.WRK"), "");
        Escribe(Propia("ZOV31.INI"), "ya estaba");
        QVERIFY(Llena());
        QCOMPARE(Lee(Propia("ZOV31.INI")), QByteArray("ya estaba"));
        QCOMPARE(Lee(Propia("ZOV5831.INI")), QByteArray("ZOV5831.INI"));
        QVERIFY(!QFile::exists(Propia("A-MEDIAS.WRK")));
    }

    void LaMarcaDeLaCopiaNoQueda() {
        QVERIFY(Llena());
        QCOMPARE(QDir(casa_->filePath("ana/zovin")).entryList(QDir::Files).size(), 4);
    }

    // Nobody may make a file there, not even root: the folder lacks nothing, and nothing can be written.
    void UnaCarpetaLlenaQueYaNoSePuedeEscribirSeDice() {
        QDir(casa_->path()).mkpath("nada");
        QVERIFY(!LlenaCarpeta(casa_->filePath("nada"), "/proc/self"));
        QVERIFY(LlenaCarpeta(casa_->filePath("nada"), casa_->filePath("ana/zovin")));
    }

    void UnEnlaceSoloLlevaALaCarpetaDelPrograma() {
        QDir(casa_->path()).mkpath("bin");
        const QString enlace = casa_->filePath("bin/zovin");
        QVERIFY(QFile::link(QCoreApplication::applicationFilePath(), enlace));
        QCOMPARE(CarpetaDeArranque(enlace), QCoreApplication::applicationDirPath());
        for (const char* nombre : {"Baraja01.bmp", "Baraja02.bmp", "PkFDes.ZOV"}) {
            const QString pieza = casa_->filePath(QStringLiteral("bin/") + nombre);
            Escribe(pieza, nombre);
            QCOMPARE(CarpetaDeArranque(enlace), casa_->filePath("bin"));
            QFile::remove(pieza);
        }
    }

    void LoCopiadoDeUnaInstalacionCerradaSePuedeEscribir() {
        QFile::setPermissions(Datos("ZOV5831.INI"), QFile::ReadOwner | QFile::ReadOther);
        QVERIFY(Llena());
        QVERIFY(QFile::permissions(Propia("ZOV5831.INI")).testFlag(QFile::WriteOwner));
    }

    void DondeNoHayCarpetaQueLlenarSeDice() {
        Escribe(casa_->filePath("ana"), "un fichero");
        QVERIFY(!Llena());
    }
};

QTEST_MAIN(PruebaCarpetaDelJugador)
#include "player_folder_test.moc"
