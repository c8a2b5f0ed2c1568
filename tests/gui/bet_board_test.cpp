// The bet board on the real table: shown, pressed by the mouse and by the keyboard, hidden; a chip on its way.

#include <QTest>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "games/game_rows.h"
#include "table/bet_board.h"
#include "table/deck.h"
#include "table/layout.h"
#include "table/trace.h"
#include "tests/gui/live_window.h"

class PruebaApostadora : public QObject, private prueba::VentanaViva {
    Q_OBJECT

    void Pulsa(Control control) {
        QTest::mouseClick(Vista(control), Qt::LeftButton);
        Pasa();
    }
    QPoint SobreFicha(int d) { return {estado.PosFichaX(3, d) + 16, estado.PosFichaY(3, d) + 16}; }
    void ClicEnFicha(int d) { Clic(SobreFicha(d)); }

private Q_SLOTS:
    void initTestCase() { QVERIFY(PonFicheros()); }

    // Póker, seat 4 by hand and on turn in its first round, with 100 points.
    void init() {
        QVERIFY(Abre(kPoker));
        estado.LeyApertura = 14; // anybody may open
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
        Cierra();
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
        Mesa().Ventana().resize(1100, 760);
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
