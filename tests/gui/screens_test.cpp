// The window on screens of all kinds: large, small, of many or few pixels, other than those of the last time.

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "platform/qt/message_box.h"
#include "platform/qt/platform_qt.h"
#include "platform/qt/scale.h"
#include "tests/gui/test_screens.h"

namespace {

// The last two are really below the smallest table: it is scrolled there.
constexpr prueba::Pantalla kPantallas[] = {
    {"una corriente", 1280, 800, "1"},
    {"la menor", 800, 600, "1"},
    {"una de 4K", 3840, 2160, "1"},
    {"una de 4K a doble escala", 3840, 2160, "2"},
    {"una a media escala", 1280, 800, "0.5"},
    {"una a cinco escalas", 1920, 1080, "5"},
    {"una pequeña a doble", 1280, 800, "2"},
    {"una de escala quebrada", 1920, 1080, "1.4"},
    {"una enana", 640, 480, "1"},
    {"una baja", 1024, 500, "1"},
};

bool EsEnana() {
    const QScreen& pantalla = *QGuiApplication::primaryScreen();
    return pantalla.devicePixelRatio() <= 1 &&
           (pantalla.size().width() < 800 || pantalla.size().height() < 600);
}

QString Ajustes() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/ventana.ini";
}

} // namespace

class PruebaPantallas : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;
    std::unique_ptr<PlataformaQt> mesa_;

    static QRect Libre() { return QGuiApplication::primaryScreen()->availableGeometry(); }
    void Abre() {
        mesa_.reset();
        mesa_ = std::make_unique<PlataformaQt>(carpeta_.path());
        mesa_->MuestraMesa();
        while (mesa_->SiguienteEvento(Pase::DeEspera)) {
        }
    }
    void CompruebaQueSeVe() {
        VentanaPrincipal& ventana = mesa_->Ventana();
        QVERIFY(Libre().contains(ventana.geometry()));
        QVERIFY(mesa_->AnchoVentana() >= 800);
        QVERIFY(mesa_->AltoVentana() >= 600);
        QCOMPARE(ventana.horizontalScrollBar()->maximum() > 0 ||
                     ventana.verticalScrollBar()->maximum() > 0,
                 EsEnana());
        // The factor is one of the steps, or less than one; a table pixel is never less than the screen's.
        const double ratio = ventana.devicePixelRatioF();
        QVERIFY(ratio >= 1);
        QVERIFY(FactorDeMesa() * ratio >= 1);
        QVERIFY(EsPasoDeFactor(FactorDeMesa()) || FactorDeMesa() < 1);
        // Nothing stretched: the picture is as large as the screen's pixels that show it.
        const QImage& cuadro =
            dynamic_cast<LienzoRetenido&>(mesa_->LienzoDe(Control::Mesa, 0)).Cuadro();
        const QSizeF justo = QSizeF(ventana.widget()->size()) * ratio;
        QVERIFY(cuadro.width() >= justo.width() - 1 && cuadro.height() >= justo.height() - 1);
        QVERIFY(cuadro.width() < justo.width() + FactorDeMesa() * ratio + 1);
    }

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() {
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
            .removeRecursively();
    }
    void cleanup() { mesa_.reset(); }

    void LaMesaSeVeEnteraYSePuedeJugar() {
        Abre();
        CompruebaQueSeVe();
        // A click in the last corner is told where the table has its own.
        QWidget* tapete = mesa_->Ventana().widget();
        QTest::mouseClick(tapete, Qt::LeftButton, {}, tapete->rect().bottomRight());
        mesa_->Bombea();
        Evento ultimo;
        while (const auto evento = mesa_->SiguienteEvento(Pase::DeEspera))
            ultimo = *evento;
        QVERIFY(ultimo.x >= mesa_->AnchoVentana() - 4 && ultimo.x < mesa_->AnchoVentana());
        QVERIFY(ultimo.y >= mesa_->AltoVentana() - 4 && ultimo.y < mesa_->AltoVentana());
    }

    void LaPantallaSeCuentaEnSusPropiosPixeles() {
        Abre();
        const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
        const QSize logica = QGuiApplication::primaryScreen()->size();
        QVERIFY(std::abs(mesa_->AnchoEscritorio() - logica.width() * ratio) <= 1);
        QVERIFY(std::abs(mesa_->AltoEscritorio() - logica.height() * ratio) <= 1);
    }

    void UnSitioQueYaNoCabeVuelveALaPantalla_data() {
        QTest::addColumn<QRect>("sitio");
        QTest::newRow("enorme") << QRect(0, 0, 9000, 7000);
        QTest::newRow("en una pantalla que no está") << QRect(7000, 5000, 1000, 700);
        QTest::newRow("arriba a la izquierda de todo") << QRect(-4000, -3000, 900, 650);
    }
    void UnSitioQueYaNoCabeVuelveALaPantalla() {
        QFETCH(QRect, sitio);
        QWidget otra;
        otra.setGeometry(sitio);
        QSettings(Ajustes(), QSettings::IniFormat).setValue("ventana/sitio", otra.saveGeometry());
        Abre();
        CompruebaQueSeVe();
    }

    void UnSitioQueNoEsNadaNoCuenta() {
        QSettings(Ajustes(), QSettings::IniFormat)
            .setValue("ventana/sitio", QByteArray("\x01\xd9x"));
        Abre();
        CompruebaQueSeVe();
    }

    void UnFactorQueYaNoCabeCede() {
        QSettings(Ajustes(), QSettings::IniFormat).setValue("ventana/factor", 3);
        Abre();
        CompruebaQueSeVe();
    }

    void UnaCajaCabeEnLaPantalla() {
        Abre();
        const CajaQt caja({.titulo = "Una", .texto = "Hola", .lineas = 6, .modo = 2},
                          &mesa_->Ventana());
        QVERIFY(caja.width() <= Libre().width() && caja.height() <= Libre().height());
    }
};

int main(int argc, char** argv) {
    return prueba::CorreEnPantallas<PruebaPantallas>(kPantallas, argc, argv);
}

#include "screens_test.moc"
