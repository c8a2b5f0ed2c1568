// The splash: where it stands, that it is painted at once, what takes it away.

#include <QApplication>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "platform/qt/platform_qt.h"
#include "platform/qt/splash.h"

class PruebaCareta : public QObject {
    Q_OBJECT

    static Careta* ALaVista() {
        for (QWidget* ventana : QApplication::topLevelWidgets()) {
            if (auto* careta = qobject_cast<Careta*>(ventana); careta && careta->isVisible())
                return careta;
        }
        return nullptr;
    }

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void SaleEnElCentroDeLaPantalla() {
        Careta careta;
        careta.Aparece();
        QVERIFY(careta.isVisible());
        QCOMPARE(careta.geometry().center(), QGuiApplication::primaryScreen()->geometry().center());
    }

    void UnClicSeLaLleva() {
        Careta careta;
        careta.Aparece();
        QVERIFY(QTest::qWaitForWindowExposed(&careta));
        QTest::mouseClick(&careta, Qt::LeftButton);
        QVERIFY(!careta.isVisible());
    }

    void UnClicEnSuPausaSeLaLlevaSinAcortarla() {
        QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        escritorio.MuestraCareta();
        QVERIFY(ALaVista() != nullptr);
        QTimer::singleShot(50, this, [] { QTest::mouseClick(ALaVista(), Qt::LeftButton); });
        const Milisegundos hasta = escritorio.Reloj() + 300;
        escritorio.DuermeHasta(hasta);
        QVERIFY(escritorio.Reloj() >= hasta);
        QVERIFY(ALaVista() == nullptr);
    }

    void SeVaCuandoLaMesaEstaPintada() {
        QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        escritorio.MuestraCareta();
        escritorio.MuestraMesa();
        QVERIFY(escritorio.Ventana().isVisible());
        QVERIFY(ALaVista() == nullptr);
    }
};

QTEST_MAIN(PruebaCareta)
#include "splash_test.moc"
