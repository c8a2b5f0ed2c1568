// The bet board on the real table: shown, pressed by the mouse and by the keyboard, hidden; a chip on its way.

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <memory>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/default_settings.h"
#include "games/game_rows.h"
#include "platform/qt/platform_qt.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "session/state_blocks.h"
#include "table/bet_board.h"
#include "table/deck.h"
#include "table/layout.h"
#include "table/trace.h"
#include "table/waiting.h"
#include "table/whole_table.h"
#include "tests/gui/deck_images.h"

class PruebaApostadora : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;
    std::unique_ptr<PlataformaQt> mesa_;

    QWidget* Tapete() { return mesa_->Ventana().widget(); }
    VistaControl* Vista(Control control) {
        const auto vistas = Tapete()->findChildren<VistaControl*>();
        const auto vista = std::ranges::find_if(
            vistas, [control](VistaControl* una) { return una->Cual() == control; });
        return vista == vistas.end() ? nullptr : *vista;
    }
    bool SeVe(Control control) {
        VistaControl* vista = Vista(control);
        return vista != nullptr && vista->isVisible();
    }
    void Pasa() { PaseDeEventos(Pase::DeEspera); }
    void Pulsa(Control control) {
        QTest::mouseClick(Vista(control), Qt::LeftButton);
        Pasa();
    }
    QPoint SobreFicha(int d) { return {estado.PosFichaX(3, d) + 16, estado.PosFichaY(3, d) + 16}; }
    void ClicEnFicha(int d) {
        QTest::mouseClick(Tapete(), Qt::LeftButton, {}, SobreFicha(d));
        Pasa();
    }

private Q_SLOTS:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(BarajaDeColores(13).save(carpeta_.filePath("Baraja01.bmp")));
        QVERIFY(BarajaDeColores(12).save(carpeta_.filePath("Baraja02.bmp")));
        QVERIFY(PonTablaDeDescartes(carpeta_.path()));
    }

    // Póker, seat 4 by hand and on turn in its first round, with 100 points.
    void init() {
        mesa_ = std::make_unique<PlataformaQt>(carpeta_.path());
        UsaPlataforma(*mesa_);
        RegistraDespacho(DespachaEvento);
        mesa_->Ventana().resize(800, 600);
        mesa_->Ventana().show();
        QVERIFY(QTest::qWaitForWindowActive(&mesa_->Ventana()));
        BorraEstado();
        sesion = {};
        PonValoresPorDefecto();
        estado.JuegoActivo = kPoker;
        estado.VelocidadJuego = 100;
        estado.LeyApertura = 14; // anybody may open
        estado.SaltoLinea = "\r\n";
        estado.CarpetaPrograma = estado.CarpetaTrabajo = carpeta_.path().toStdString();
        CalcularMesa();
        LimpiarMesa();
        IniciarTablas();
        estado.PartidaEnCurso = estado.ManoEnCurso = estado.EsperandoJugada = true;
        estado.JugadorActual = 4;
        estado.SerieActual = estado.SerieEnJuego = 1;
        apuestas.ModoApuesta = true;
        apuestas.FaseApuesta = kFasePrimeraRonda;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            PonCarta(asiento, 1, 1, {kOros, asiento}, kDorso);
            estado.NumCartas(asiento, 1) = 1;
            AsignarResto(asiento, 100);
        }
        RedibujarMesa();
        MuestraApostadora();
        Pasa();
    }
    void cleanup() {
        EscuchaTraza({});
        mesa_.reset();
    }

    void SeMuestraConLosBotonesQueTocan() {
        QVERIFY(SeVe(Control::Pic_Apostadora));
        QVERIFY(SeVe(Control::Pic_APBotPasar));
        QVERIFY(!SeVe(Control::Pic_APBotApostar));
        QCOMPARE(Vista(Control::Pic_APBotPasar)->accessibleName(), QString("Me reservo"));
        QVERIFY(Tapete()->rect().contains(Vista(Control::Pic_Apostadora)->geometry()));
    }

    void UnaFichaPulsadaVaAlBoteYElTableroLoDice() {
        ClicEnFicha(4);
        QCOMPARE(int{RestoDe(kBote)}, 10);
        QVERIFY(SeVe(Control::Pic_APBotApostar));
        QVERIFY(SeVe(Control::Pic_APBotAnular));
        QVERIFY(!SeVe(Control::Pic_APBotPasar));
        QCOMPARE(Vista(Control::Pic_APApoJugAct)->accessibleName(), QString("Apuesta actual: 10"));
    }

    void PulsadoSeHundeYCambiaDeAspecto() {
        const QImage arriba = Vista(Control::Pic_APBotPasar)->grab().toImage();
        QImage pulsado;
        EscuchaTraza([&](const std::string& linea) {
            if (linea == "Pausa(160)")
                pulsado = Vista(Control::Pic_APBotPasar)->grab().toImage();
        });
        Pulsa(Control::Pic_APBotPasar);
        QVERIFY(!pulsado.isNull());
        QVERIFY(pulsado != arriba);
        QVERIFY(estado.JugadaHecha);
        QVERIFY(!SeVe(Control::Pic_APBotPasar));
    }

    void ElTecladoTambienLoPulsa() {
        ClicEnFicha(4);
        VistaControl* anular = Vista(Control::Pic_APBotAnular);
        anular->setFocus();
        QTest::keyClick(anular, Qt::Key_Space);
        Pasa();
        QCOMPARE(int{RestoDe(kBote)}, 0);
        QVERIFY(SeVe(Control::Pic_APBotPasar));
    }

    void LosVisoresDejanPasarElRaton() {
        QVERIFY(Vista(Control::Pic_APApoJugAct)->testAttribute(Qt::WA_TransparentForMouseEvents));
        ClicEnFicha(4);
        QVERIFY(
            Vista(Control::Pic_NumerosCristal)->testAttribute(Qt::WA_TransparentForMouseEvents));
    }

    void LaFichaSeVePorElCaminoYLuegoYaNo() {
        int cuadros = 0;
        EscuchaTraza([&](const std::string& linea) {
            if (linea == "Pausa(12)" && SeVe(Control::Pic_NumerosCristal))
                ++cuadros;
        });
        ClicEnFicha(4);
        QVERIFY(cuadros >= 5);
        QVERIFY(!SeVe(Control::Pic_NumerosCristal));
    }

    void OcultaDesapareceConSusBotones() {
        OcultaControlesMesa();
        QVERIFY(!SeVe(Control::Pic_Apostadora));
        QVERIFY(!SeVe(Control::Pic_APBotPasar));
        QVERIFY(!SeVe(Control::Pic_APApoJugAct));
    }

    void ConOtroTamanoSigueEnSuEsquina() {
        mesa_->Ventana().resize(1100, 760);
        QVERIFY(QTest::qWaitFor([this] {
            Pasa();
            return estado.AltoMesa == 760;
        }));
        const QRect tablero = Vista(Control::Pic_Apostadora)->geometry();
        QCOMPARE(tablero.right() + 3, int{estado.AnchoMesa});
        QCOMPARE(tablero.bottom() + 3, int{estado.AltoMesa});
    }
};

QTEST_MAIN(PruebaApostadora)
#include "bet_board_test.moc"
