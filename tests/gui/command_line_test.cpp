// What the program answers to the words behind its name, with a screen and without one.

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Respuesta {
    int estado = -1;
    QString dice, se_queja;
};

} // namespace

class PruebaOrdenes : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;

    static QString Programa() { return qEnvironmentVariable("ZOVIN_BIN") + "/zovin"; }
    QProcessEnvironment SinEscritorio() const {
        QProcessEnvironment suyo = QProcessEnvironment::systemEnvironment();
        for (const char* nombre : {"DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET",
                                   "QT_QPA_PLATFORM", "XDG_SESSION_TYPE"})
            suyo.remove(QString::fromLatin1(nombre));
        suyo.insert("XDG_RUNTIME_DIR", carpeta_.path());
        return suyo;
    }
    // The program with a desktop that is not there, or with none at all.
    Respuesta Pide(const QStringList& palabras, const QMap<QString, QString>& entorno = {}) {
        QProcessEnvironment suyo = SinEscritorio();
        for (const auto& [nombre, valor] : entorno.asKeyValueRange())
            suyo.insert(nombre, valor);
        QProcess programa;
        programa.setProcessEnvironment(suyo);
        programa.setWorkingDirectory(carpeta_.path());
        programa.start(Programa(), palabras);
        if (!programa.waitForFinished(60000)) {
            programa.kill();
            programa.waitForFinished();
            return {};
        }
        // One that was aborted has no status of its own.
        return {programa.exitStatus() == QProcess::NormalExit ? programa.exitCode() : -1,
                QString::fromUtf8(programa.readAllStandardOutput()),
                QString::fromUtf8(programa.readAllStandardError())};
    }
    static bool EsUnaFrase(const QString& texto) {
        return texto.startsWith("zovin: ") && texto.endsWith(".\n") && texto.count(u'\n') == 1;
    }

private Q_SLOTS:
    void LaVersionSeDiceSinPantalla() {
        for (const char* palabra : {"--version", "-v"}) {
            const Respuesta respuesta = Pide({palabra});
            QCOMPARE(respuesta.estado, 0);
            QVERIFY(QRegularExpression("^zovin \\d+\\.\\d+\\.\\d+\n$")
                        .match(respuesta.dice)
                        .hasMatch());
            QCOMPARE(respuesta.se_queja, QString());
        }
    }

    void ElUsoSeDiceEnteroEnEspanol() {
        for (const char* palabra : {"--help", "-h"}) {
            const Respuesta respuesta = Pide({palabra});
            QCOMPARE(respuesta.estado, 0);
            QVERIFY(respuesta.dice.startsWith("Uso: zovin [opciones]\n"));
            for (const char* opcion : {"-h, --help", "-v, --version", "--demo"})
                QVERIFY(respuesta.dice.contains(opcion));
            for (const char* ajena : {"Usage", "Options", "Displays", "Arguments"})
                QVERIFY(!respuesta.dice.contains(ajena));
            for (const QString& linea : respuesta.dice.split(u'\n'))
                QVERIFY2(linea.size() <= 80, qPrintable(linea));
            QCOMPARE(respuesta.se_queja, QString());
        }
    }

    void LaAyudaVaDelanteDeLoDemas() {
        QVERIFY(Pide({"--version", "--demo", "--help"}).dice.startsWith("Uso:"));
        QVERIFY(Pide({"--demo", "--version"}).dice.startsWith("zovin "));
    }

    void OtrasPalabrasSonUnError_data() {
        QTest::addColumn<QStringList>("palabras");
        QTest::addColumn<QString>("cual");
        QTest::newRow("opción") << QStringList{"--deno"} << "«--deno»";
        QTest::newRow("letra") << QStringList{"-x"} << "«-x»";
        QTest::newRow("palabra") << QStringList{"tute"} << "«tute»";
        QTest::newRow("vacía") << QStringList{""} << "«»";
        QTest::newRow("guión") << QStringList{"-"} << "«-»";
        QTest::newRow("dos guiones") << QStringList{"--"} << "«--»";
        QTest::newRow("tras una buena") << QStringList{"--version", "más"} << "«más»";
        QTest::newRow("sin su valor") << QStringList{"-platform"} << "«-platform»";
        QTest::newRow("con un valor que sobra") << QStringList{"--demo=2"} << "«--demo=2»";
    }
    void OtrasPalabrasSonUnError() {
        QFETCH(QStringList, palabras);
        QFETCH(QString, cual);
        const Respuesta respuesta = Pide(palabras);
        QCOMPARE(respuesta.estado, 2);
        QVERIFY2(EsUnaFrase(respuesta.se_queja), qPrintable(respuesta.se_queja));
        QVERIFY(respuesta.se_queja.contains(cual));
        QVERIFY(respuesta.se_queja.contains("--help"));
        QCOMPARE(respuesta.dice, QString());
    }

    void SinPantallaUnaFraseYUno_data() {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<QString>("valor");
        QTest::newRow("ninguna") << "LANG"
                                 << "C";
        QTest::newRow("un servidor X que no está") << "DISPLAY"
                                                   << ":4711";
        QTest::newRow("un servidor X lejano") << "DISPLAY"
                                              << "127.0.0.1:4711";
        QTest::newRow("una pantalla mal escrita") << "DISPLAY"
                                                  << "no es una pantalla";
        QTest::newRow("un compositor que no está") << "WAYLAND_DISPLAY"
                                                   << "wayland-4711";
        QTest::newRow("una plataforma que no hay") << "QT_QPA_PLATFORM"
                                                   << "ninguna";
    }
    void SinPantallaUnaFraseYUno() {
        QFETCH(QString, nombre);
        QFETCH(QString, valor);
        const Respuesta respuesta = Pide({}, {{nombre, valor}});
        QCOMPARE(respuesta.estado, 1);
        QVERIFY2(EsUnaFrase(respuesta.se_queja), qPrintable(respuesta.se_queja));
        QVERIFY(respuesta.se_queja.contains("pantalla"));
    }

    void LasOpcionesDeQtSeLeDejanAQt() {
        const Respuesta respuesta = Pide({"-platform", "ninguna"});
        QCOMPARE(respuesta.estado, 1);
        QVERIFY2(EsUnaFrase(respuesta.se_queja), qPrintable(respuesta.se_queja));
    }

    void LaMuestraSeJuegaSinPantalla() {
        QProcess programa;
        programa.setProcessEnvironment(SinEscritorio());
        programa.setWorkingDirectory(carpeta_.path());
        programa.start(Programa(), {"--demo", "-style", "fusion"});
        // It buffers what it tells: that it is still playing after a while is as much as can be seen without waiting
        // for all of it.
        QVERIFY(!programa.waitForFinished(2000));
        QCOMPARE(programa.readAllStandardError(), QByteArray());
        programa.kill();
        programa.waitForFinished();
    }
};

QTEST_GUILESS_MAIN(PruebaOrdenes)
#include "command_line_test.moc"
