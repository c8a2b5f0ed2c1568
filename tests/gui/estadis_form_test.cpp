// The statistics, opened by their button in the middle of a real match of each game, looked at and closed.
// ZOVIN_RETRATOS=<folder> keeps a picture of each there, for a look by eye.

#include <QApplication>
#include <QDialog>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <memory>

#include "core/default_settings.h"
#include "core/random.h"
#include "core/session_state.h"
#include "games/common/series.h"
#include "platform/qt/control_view.h"
#include "platform/qt/platform_qt.h"
#include "reports/estadis.h"
#include "reports/estadis_view.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "session/state_blocks.h"
#include "storage/settings.h"
#include "table/button_column.h"
#include "table/deck.h"
#include "table/layout.h"
#include "table/waiting.h"
#include "table/whole_table.h"
#include "tests/gui/deck_images.h"
#include "tests/gui/open_form.h"
#include "tests/gui/written_words.h"

using namespace prueba;

namespace {

// The desktop on which no time passes. Every box is closed and every question answered with yes.
class Escritorio : public PlataformaQt {
public:
    using PlataformaQt::PlataformaQt;
    std::function<void()> al_esperar;

    bool EsperaEvento() override {
        if (al_esperar)
            al_esperar();
        return PlataformaQt::EsperaEvento();
    }
    void DuermeHasta(Milisegundos) override {}
    Boton Pregunta(const CajaMensaje& caja) override {
        return caja.modo == 2 ? Boton::Si : Boton::Salir;
    }
};

int PixelesConTinta(const QImage& imagen) {
    int tinta = 0;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x)
            tinta += qGray(imagen.pixel(x, y)) < 128 ? 1 : 0;
    }
    return tinta;
}

void Retrata(QDialog& dialogo, const QString& nombre) {
    const QString carpeta = qEnvironmentVariable("ZOVIN_RETRATOS");
    if (!carpeta.isEmpty())
        dialogo.grab().save(QStringLiteral("%1/estadis-%2.png").arg(carpeta, nombre));
}

} // namespace

class PruebaEstadis : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;
    std::unique_ptr<Escritorio> mesa_;
    QString texto_;       // what a screen reader was told of the page
    int tinta_ = 0;       // of the page as painted
    int esperas_ = 0;     // waits of the match
    bool se_lee_ = false; // every word of the form
    bool cerrada_ = false;

    VistaControl* Vista(Control control, int indice) {
        for (auto* vista : mesa_->Ventana().widget()->findChildren<VistaControl*>()) {
            if (vista->Cual() == control && vista->isVisible() && indice-- <= 1)
                return vista;
        }
        return nullptr;
    }

    // Seats 1 to 3 alone, a person on seat 4, every step waits.
    void PonSesion(Integer juego) {
        BorraEstado();
        PonValoresPorDefecto();
        sesion = {};
        FijaSemilla(7);
        estado.JuegoActivo = juego;
        estado.VelocidadJuego = 100;
        estado.SaltoLinea = "\r\n";
        estado.CarpetaPrograma = estado.CarpetaTrabajo = carpeta_.path().toStdString();
        QCOMPARE(GrabarIniJuego(), ErrorArchivo::Ninguno);
        CalcularMesa();
        mesa_->MuestraMesa();
        CambiaTamano();
        esperas_ = 0;
        se_lee_ = cerrada_ = false;
    }

    // While the form stands open: it is looked at and left by its exit button.
    void MiraLaForma() {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialogo == nullptr || dialogo->objectName() != QStringLiteral("estadis")) {
            QTimer::singleShot(5, this, &PruebaEstadis::MiraLaForma);
            return;
        }
        Abierta forma(*dialogo);
        QWidget& hoja = forma.En("Texto");
        texto_ = hoja.accessibleDescription();
        QImage imagen(hoja.size(), QImage::Format_RGB32);
        imagen.fill(Qt::white);
        hoja.render(&imagen);
        tinta_ = PixelesConTinta(imagen);
        se_lee_ = TodoSeLee(*dialogo);
        Retrata(*dialogo, QString::number(estado.JuegoActivo));
        forma.Sal();
        cerrada_ = !estadis::Abierta();
    }

    // A match begins and goes on by its green button until there is something to tell; then the statistics are opened,
    // and after them the match is left.
    void UnPaso(int pasos) {
        ++esperas_;
        const bool hay_mano = estado.ManoEnCurso && BotonHabilitado(kBotonEstadis);
        if (cerrada_)
            mesa_->Ventana().close();
        else if (!estado.PartidaEnCurso)
            QTest::mouseClick(Vista(Control::Pic_Boton, kBotonNueva), Qt::LeftButton);
        else if (hay_mano && esperas_ >= pasos)
            AbreLaForma();
        else if (VistaControl* continuar = Vista(Control::Pic_BotContinuar, 0))
            QTest::mouseClick(continuar, Qt::LeftButton);
    }

    void AbreLaForma() {
        QTimer::singleShot(0, this, &PruebaEstadis::MiraLaForma);
        QTest::mouseClick(Vista(Control::Pic_Boton, kBotonEstadis), Qt::LeftButton);
    }

    void AbreEnPartida(Integer juego, int pasos) {
        PonSesion(juego);
        mesa_->al_esperar = [this, pasos] { UnPaso(pasos); };
        IniciarSesion();
        BucleSesion();
        mesa_->al_esperar = {};
    }

private Q_SLOTS:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(PonFicherosDeMesa(carpeta_.path()));
        mesa_ = std::make_unique<Escritorio>(carpeta_.path());
        mesa_->PonForma(Forma::Estadis, AbreVistaEstadis);
        UsaPlataforma(*mesa_);
        RegistraDespacho(DespachaEvento);
    }

    void InARealMatchOfEachGame_data() {
        QTest::addColumn<int>("juego");
        QTest::addColumn<int>("pasos");
        QTest::addColumn<QString>("dice");
        QTest::newRow("Póker") << int{kPoker} << 8 << QStringLiteral("Nro.Orden");
        QTest::newRow("Black Jack") << int{kBlackJack} << 10 << QStringLiteral("Seguro");
        QTest::newRow("Tute") << int{kTute} << 20 << QStringLiteral("Acuses");
        QTest::newRow("Brisca") << int{kBrisca} << 20 << QStringLiteral("Tantos");
        QTest::newRow("Siete y media") << int{kSieteYMedia} << 8 << QStringLiteral("%Relat");
        QTest::newRow("Cinquillo") << int{kCinquillo} << 20 << QStringLiteral("Vuelta");
    }

    void InARealMatchOfEachGame() {
        QFETCH(int, juego);
        QFETCH(int, pasos);
        QFETCH(QString, dice);
        AbreEnPartida(static_cast<Integer>(juego), pasos);
        QVERIFY(cerrada_);
        QVERIFY2(texto_.contains(dice), qPrintable(texto_));
        QVERIFY(tinta_ > 1000);
        QVERIFY(se_lee_);
        QVERIFY(estado.PartidaEnCurso); // it was left to go on another day
    }
};

// The form alone, over a table without a screen.
class PruebaHojaDeEstadis : public QObject, protected MesaDeFormas {
    Q_OBJECT

    // A pair that can be opened, against a 6: the longest page that there is.
    static void PonPar() {
        estado.JugadorBanca = 2;
        estado.JugadorActual = 4;
        estado.SerieActual = 1;
        estado.SeriesJugador(4) = 1;
        PonCarta(2, 1, 1, {kOros, 6}, kDescubierta);
        PonCarta(4, 1, 1, {kOros, 8}, kDescubierta);
        PonCarta(4, 1, 2, {kCopas, 8}, kDescubierta);
        estado.NumCartas(2, 1) = 1;
        estado.NumCartas(4, 1) = 2;
        series.PuedeAbrir = true;
    }

private Q_SLOTS:
    void init() {
        Empieza(kBlackJack);
        series = {};
    }

    void ItHasHelpAndExit() {
        QVERIFY(Con(AbreVistaEstadis, [&](Abierta& forma) {
            QTest::mouseClick(&forma.En("Pic_BotAyuda"), Qt::LeftButton);
            QCOMPARE(mesa_.temas_ayuda, std::vector<int>{kAyudaEstadis});
            QVERIFY(estadis::Abierta());
            forma.Sal();
            QVERIFY(!estadis::Abierta());
            QVERIFY(!forma.dialogo.isVisible());
        }));
        QCOMPARE(Sonidos(), std::vector<int>{9});
    }

    void EscapeLeavesIt() {
        QVERIFY(Con(AbreVistaEstadis, [&](Abierta& forma) {
            QTest::keyClick(&forma.dialogo, Qt::Key_Escape);
            QVERIFY(!estadis::Abierta());
        }));
    }

    void APageHigherThanTheScreenIsMoved() {
        PonPar();
        QVERIFY(Con(AbreVistaEstadis, [&](Abierta& forma) {
            Retrata(forma.dialogo, QStringLiteral("par"));
            const QRect sitio = forma.dialogo.screen()->availableGeometry();
            QVERIFY(sitio.contains(forma.dialogo.geometry()));
            auto* barra = forma.dialogo.findChild<QScrollArea*>()->verticalScrollBar();
            const int falta = forma.En("Texto").height() -
                              forma.dialogo.findChild<QScrollArea*>()->viewport()->height();
            QCOMPARE(barra->maximum(), std::max(falta, 0));
            QTest::keyClick(forma.dialogo.focusWidget(), Qt::Key_PageDown);
            QCOMPARE(barra->value() > 0, falta > 0);
        }));
    }

    void TheWholeWidthIsSeen() {
        PonPar();
        QVERIFY(Con(AbreVistaEstadis, [&](Abierta& forma) {
            auto* ventana = forma.dialogo.findChild<QScrollArea*>();
            QVERIFY(ventana->viewport()->width() >= forma.En("Texto").width());
            QVERIFY(!ventana->horizontalScrollBar()->isVisible());
        }));
    }
};

int main(int argc, char** argv) {
    QApplication programa(argc, argv);
    PruebaEstadis en_partida;
    PruebaHojaDeEstadis sola;
    return QTest::qExec(&en_partida, argc, argv) + QTest::qExec(&sola, argc, argv);
}

#include "estadis_form_test.moc"
