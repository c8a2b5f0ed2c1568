// The pointer over every kind of place on the real table, and what a click, a drag or the pop-up does there.

#include <QDialog>
#include <QTest>
#include <QTimer>

#include "games/common/trick_state.h"
#include "table/button_column.h"
#include "table/deck.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "tests/gui/live_window.h"
#include "tests/gui/random_hand.h"

namespace {

void Reparte(Integer asiento, std::initializer_list<Carta> cartas) {
    int lugar = 0;
    for (const Carta& carta : cartas)
        PonCarta(asiento, 1, ++lugar, carta, estado.CartasJugador(asiento));
    estado.NumCartas(asiento, 1) = static_cast<Integer>(lugar);
    RedibujarAsiento(asiento);
}

std::vector<Integer> Valores(int asiento) {
    std::vector<Integer> valores;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
        valores.push_back(estado.Mano(asiento, 1, lugar, kValor));
    return valores;
}

// In the middle of what shows of a card in a fan: near its outer left edge.
QPoint EnLaCarta(int asiento, int lugar) {
    ColocarCarta(asiento, lugar, estado.NumCartas(asiento, 1));
    return {estado.CartaX + 6, estado.CartaY + 6};
}

QPoint EnLugarDelReparto(int palo, int columna) {
    return {estado.ReparteX + (columna - 1) * 29 + 13,
            estado.ReparteY + (palo - 1) * (estado.AltoMiniCarta + 2) + 20};
}

QPoint EnLaZona(int asiento) {
    const Rectangulo zona = ZonaDe(asiento);
    return {zona.x + zona.ancho / 2, zona.y + zona.alto / 2};
}

} // namespace

class PruebaEntrada : public QObject, private prueba::VentanaViva {
    Q_OBJECT

    // The control that shows, by its index.
    VistaControl* Visible(Control control, int indice = 0) {
        for (auto* vista : Tapete()->findChildren<VistaControl*>()) {
            if (vista->Cual() == control && vista->isVisible() && indice-- <= 1)
                return vista;
        }
        return nullptr;
    }
    void Arrastra(const QPoint& desde, const QPoint& hasta) {
        Aprieta(desde);
        Mueve((desde + hasta) / 2, Qt::LeftButton);
        Mueve(hasta, Qt::LeftButton);
        Suelta(hasta);
    }
    Puntero ElPuntero() { return Mesa().PunteroDe(Control::Mesa, 0); }
    Puntero PunteroEn(const QPoint& donde) {
        Mueve(donde);
        return ElPuntero();
    }

    // A hand under way in which the seat is on turn and the game waits for it.
    void PonMano(Integer juego, Integer asiento = 4) {
        estado.JuegoActivo = juego;
        ConstruirBaraja();
        ColocarMazo();
        estado.PartidaEnCurso = true;
        estado.ManoEnCurso = true;
        estado.JugadorActual = asiento;
        estado.EsperandoJugada = true;
        estado.EligeCarta = estado.ControlJugador(asiento) == kManual;
    }
    // Seat 4 with the 5 and 6 of oros, of which the 5 alone may be laid, and the Rey of bastos.
    void PonCinquillo() {
        PonMano(kCinquillo);
        Reparte(4, {{kOros, 5}, {kOros, 6}, {kBastos, 12}});
        Reparte(1, {{kCopas, 1}, {kCopas, 2}});
        bazas.NumJugables = 1;
        bazas.CartasJugables(1, 2) = 1;
    }
    void PonReparto() {
        PonMano(kCinquillo);
        estado.ManoEnCurso = false;
        estado.RepartoEnCurso = true;
        estado.FilasReparto = 4;
        estado.JugadoresEnMano = 4;
        for (Integer palo = kOros; palo <= kBastos; ++palo) {
            for (int valor = 1; valor <= 12; ++valor)
                estado.CartaEnReparto(palo, valor) = estado.ValorEnBaraja(valor);
        }
        RedibujarMesa();
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(PonFicheros()); }
    void init() { QVERIFY(Abre(kCinquillo)); }
    void cleanup() { Cierra(); }

    // Shapes.

    void SinPartidaNoHayNadaQueTocar() {
        for (const QPoint donde : {QPoint(5, 5), EnLaZona(1), EnLaZona(4), QPoint(355, 300)})
            QVERIFY(PunteroEn(donde) == Puntero::Flecha);
    }

    void EnElTurnoPropioCadaCartaDiceSiSePuedeJugar() {
        PonCinquillo();
        QVERIFY(PunteroEn(EnLaCarta(4, 1)) == Puntero::ManoVerde);
        QVERIFY(PunteroEn(EnLaCarta(4, 2)) == Puntero::ManoRoja);
        QVERIFY(PunteroEn(EnLaCarta(4, 3)) == Puntero::ManoRoja);
        QVERIFY(PunteroEn(EnLaCarta(1, 1)) == Puntero::Flecha);
        QVERIFY(PunteroEn({355, 300}) == Puntero::Flecha);
    }

    void DondeSeSolapanMandaLaDeEncima() {
        PonCinquillo();
        const QPoint segunda = EnLaCarta(4, 2);
        QVERIFY(PunteroEn({segunda.x() - 8, segunda.y()}) == Puntero::ManoVerde);
        QVERIFY(PunteroEn(segunda) == Puntero::ManoRoja);
    }

    void EnUnTurnoAutomaticoNoSeTocanCartas() {
        PonCinquillo();
        estado.ControlJugador(4) = kAutomatico;
        QVERIFY(PunteroEn(EnLaCarta(4, 1)) == Puntero::Flecha);
    }

    void LosAsientosDelLadoSeTocanTumbados() {
        PonCinquillo();
        estado.ControlJugador(1) = kManual;
        estado.JugadorActual = 1;
        const QPoint primera = EnLaCarta(1, 1);
        QVERIFY(PunteroEn({primera.x() + 130, primera.y()}) == Puntero::ManoVerde);
        QVERIFY(PunteroEn({primera.x() + 150, primera.y()}) == Puntero::Flecha);
    }

    void AlOrdenarSeMuevenLasCartasALaVista() {
        PonCinquillo();
        estado.ModoOrdenar = true;
        estado.CartasJugador(1) = kOcultas;
        QVERIFY(PunteroEn(EnLaCarta(4, 2)) == Puntero::Ordenar);
        QVERIFY(PunteroEn(EnLaCarta(1, 1)) == Puntero::Flecha);
        QVERIFY(PunteroEn({355, 300}) == Puntero::Flecha);
        Aprieta(EnLaCarta(4, 2));
        QVERIFY(ElPuntero() == Puntero::ManoCerrada);
        Mueve({355, 300}, Qt::LeftButton);
        QVERIFY(ElPuntero() == Puntero::ManoCerrada);
    }

    void ElRepartoDiceQueCartasQuedan() {
        PonReparto();
        Reparte(4, {{kOros, 1}});
        estado.CartaEnReparto(kOros, 1) = false;
        QVERIFY(PunteroEn(EnLugarDelReparto(kOros, 2)) == Puntero::Ordenar);
        QVERIFY(PunteroEn(EnLugarDelReparto(kOros, 1)) == Puntero::Flecha);
        QVERIFY(PunteroEn(EnLugarDelReparto(kOros, 8)) == Puntero::Flecha);
        QVERIFY(PunteroEn(EnLaCarta(4, 1)) == Puntero::ManoVerde);
        QVERIFY(PunteroEn({10, 10}) == Puntero::Flecha);
        const QPoint hueco = EnLugarDelReparto(kOros, 2) + QPoint(14, 0);
        QVERIFY(PunteroEn(hueco) == Puntero::Flecha);
        Aprieta(EnLugarDelReparto(kOros, 2));
        QVERIFY(ElPuntero() == Puntero::ManoCerrada);
    }

    void ElMazoSeTocaCuandoHayCambio() {
        PonMano(kTute);
        Reparte(4, {{kOros, 7}});
        const QPoint mazo(estado.MazoX + 50, estado.MazoY + 70);
        QVERIFY(PunteroEn(mazo) == Puntero::Flecha);
        bazas.CartaCambio = 7;
        QVERIFY(PunteroEn(mazo) == Puntero::Cambiar);
        QVERIFY(PunteroEn({estado.MazoX - 18, estado.MazoY}) == Puntero::Cambiar);
        QVERIFY(PunteroEn({estado.MazoX - 19, estado.MazoY}) == Puntero::Flecha);
        QVERIFY(PunteroEn({estado.MazoX + 101, estado.MazoY}) == Puntero::Flecha);
        estado.ControlJugador(4) = kAutomatico;
        QVERIFY(PunteroEn(mazo) == Puntero::Flecha);
    }

    void LosBotonesTienenLosSuyos() {
        for (const int boton : {1, 6, 7})
            QVERIFY(Mesa().PunteroDe(Control::Pic_Boton, boton) == Puntero::ManoIndice);
        for (const int boton : {2, 3, 4, 5, 8}) // their forms are not there, or no hand is on
            QVERIFY(Mesa().PunteroDe(Control::Pic_Boton, boton) == Puntero::Prohibido);
        PedirContinuar(1);
        QVERIFY(Mesa().PunteroDe(Control::Pic_BotContinuar, 0) == Puntero::ManoIndice);
    }

    void SobreLaColumnaLaMesaOlvidaSuPuntero() {
        PonCinquillo();
        QVERIFY(PunteroEn(EnLaCarta(4, 1)) == Puntero::ManoVerde);
        MueveSobre(Visible(Control::Pic_Botonera), {70, 580});
        QVERIFY(ElPuntero() == Puntero::Flecha);
        QCOMPARE(estado.CursorTabla, 0);
    }

    void MientrasUnBotonActuaSeEspera() {
        static Puntero visto;
        static PlataformaQt* mesa;
        mesa = &Mesa();
        visto = Puntero::Flecha;
        Mesa().PonForma(Forma::Marcador,
                        [](QWidget*) { visto = mesa->PunteroDe(Control::Mesa, 0); });
        HabilitaBoton(kBotonMarcador, true);
        QTest::mouseClick(Visible(Control::Pic_Boton, kBotonMarcador), Qt::LeftButton);
        Pasa();
        QVERIFY(visto == Puntero::RelojArena);
        QVERIFY(ElPuntero() == Puntero::Flecha);
    }

    // Clicks.

    void UnClicEnUnaCartaLegalLaElige() {
        PonCinquillo();
        Clic(EnLaCarta(4, 2));
        QVERIFY(!estado.JugadaHecha && estado.EsperandoJugada);
        Clic(EnLaCarta(4, 1));
        QVERIFY(estado.JugadaHecha && !estado.EsperandoJugada);
        QCOMPARE(estado.CartaElegida, 1);
    }

    void UnClicEnLaPausaValeDondeSeDio() {
        PonCinquillo();
        estado.VelocidadJuego = 50;
        const QPoint carta = EnLaCarta(4, 1);
        bool dado = false;
        QTimer::singleShot(20, Tapete(), [&] {
            QTest::mouseClick(Tapete(), Qt::LeftButton, {}, carta);
            dado = true;
        });
        Pausa(120);
        QVERIFY(dado);
        QVERIFY(estado.EsperandoJugada); // nobody has taken it yet
        Mueve({355, 300});
        QVERIFY(estado.JugadaHecha);
        QCOMPARE(estado.CartaElegida, 1);
    }

    void ElMenuSaleSoloSobreCartasALaVista() {
        PonCinquillo();
        estado.CartasJugador(1) = kOcultas;
        Clic(EnLaZona(1), Qt::RightButton);
        QVERIFY(Visible(Control::Pic_SelOpciones) == nullptr);
        Clic({355, 300}, Qt::RightButton);
        QVERIFY(Visible(Control::Pic_SelOpciones) == nullptr);
        Clic(EnLaZona(4), Qt::RightButton);
        QVERIFY(Visible(Control::Pic_SelOpciones) != nullptr);
        QCOMPARE(estado.NumOpciones, 2);
        QCOMPARE(Visible(Control::Pic_SelOpciones)->height(), 2 * 18 + 4);
        Clic({355, 300});
        QVERIFY(Visible(Control::Pic_SelOpciones) == nullptr);
    }

    void ElMenuCabeSiempreEnLaMesa() {
        PonCinquillo();
        Clic({EnLaZona(4).x(), 598}, Qt::RightButton);
        VistaControl* menu = Visible(Control::Pic_SelOpciones);
        QVERIFY(menu != nullptr);
        QVERIFY(QRect(0, 0, estado.AnchoMesa, estado.AltoMesa).contains(menu->geometry()));
    }

    void LaPrimeraEntradaPoneYQuitaElModo() {
        PonCinquillo();
        for (const bool puesto : {true, false}) {
            Clic(EnLaZona(4), Qt::RightButton);
            VistaControl* menu = Visible(Control::Pic_SelOpciones);
            MueveSobre(menu, {40, 10});
            QCOMPARE(estado.OpcionResaltada, 1);
            QTest::mouseClick(menu, Qt::LeftButton, {}, {40, 10});
            Pasa();
            QCOMPARE(estado.ModoOrdenar, puesto);
        }
    }

    void LaSegundaEntradaOrdenaLaMano() {
        PonCinquillo();
        Reparte(4, {{kOros, 6}, {kOros, 5}, {kBastos, 12}});
        Clic(EnLaZona(4), Qt::RightButton);
        VistaControl* menu = Visible(Control::Pic_SelOpciones);
        MueveSobre(menu, {40, 30});
        QTest::mouseClick(menu, Qt::LeftButton, {}, {40, 30});
        Pasa();
        QCOMPARE(Valores(4), (std::vector<Integer>{5, 6, 12}));
    }

    void UnClicFueraDeLasZonasDejaDeOrdenar() {
        PonCinquillo();
        estado.ModoOrdenar = true;
        Clic(EnLaZona(2));
        QVERIFY(estado.ModoOrdenar);
        Clic({355, 300});
        QVERIFY(!estado.ModoOrdenar);
    }

    // Drags.

    void UnaCartaSePoneEnOtroSitio() {
        PonCinquillo();
        estado.ModoOrdenar = true;
        Arrastra(EnLaCarta(4, 1), EnLaCarta(4, 3) + QPoint(40, 40));
        QCOMPARE(Valores(4), (std::vector<Integer>{6, 12, 5}));
        QVERIFY(!estado.ArrastraCarta);
        QVERIFY(Visible(Control::Pic_Mover) == nullptr);
    }

    void SoltadaEnSuSitioNoCambiaNada() {
        PonCinquillo();
        estado.ModoOrdenar = true;
        Arrastra(EnLaCarta(4, 2), EnLaCarta(4, 2) + QPoint(20, 20));
        QCOMPARE(Valores(4), (std::vector<Integer>{5, 6, 12}));
    }

    void LaCartaArrastradaNoSaleDeSuBanda() {
        PonCinquillo();
        estado.ModoOrdenar = true;
        Aprieta(EnLaCarta(4, 2));
        for (const QPoint donde : {QPoint(-50, -50), QPoint(355, 300), QPoint(900, 700)}) {
            Mueve(donde, Qt::LeftButton);
            const QPoint centro = Visible(Control::Pic_Mover)->geometry().center();
            const Rectangulo zona = ZonaDe(4);
            QVERIFY(QRect(zona.x, zona.y, zona.ancho, zona.alto).contains(centro));
        }
        Suelta({355, 300});
        QVERIFY(Visible(Control::Pic_Mover) == nullptr);
    }

    // The button is let go over another window: the first move without it lays the card down.
    void UnaCartaSinBotonNoSeQuedaColgada() {
        PonCinquillo();
        estado.ModoOrdenar = true;
        Aprieta(EnLaCarta(4, 2));
        Mueve({355, 300}, Qt::LeftButton);
        QVERIFY(estado.ArrastraCarta);
        Mueve({10, 10});
        QVERIFY(!estado.ArrastraCarta);
        QCOMPARE(Valores(4).size(), 3u);
        QVERIFY(Visible(Control::Pic_Mover) == nullptr);
    }

    // A box that comes and goes between the press and the release has the release swallowed.
    void UnaSueltaTragadaPorUnDialogoPosaLaCarta() {
        PonCinquillo();
        estado.ModoOrdenar = true;
        QWindow* ventana = Mesa().Ventana().windowHandle();
        const QPoint carta = Tapete()->mapTo(&Mesa().Ventana(), EnLaCarta(4, 2));
        prueba::Mano raton;
        raton.Aprieta(ventana, carta, Qt::LeftButton);
        {
            QDialog caja(&Mesa().Ventana());
            caja.setModal(true);
            caja.show();
            QCoreApplication::processEvents();
        }
        Pasa();
        QVERIFY(estado.ArrastraCarta);
        raton.Suelta(ventana, carta, Qt::LeftButton);
        Pasa();
        QVERIFY(!estado.ArrastraCarta);
    }

    void UnaCartaDelRepartoEntraEnLaZonaSinSoltarla() {
        PonReparto();
        Aprieta(EnLugarDelReparto(kCopas, 3));
        QVERIFY(Visible(Control::Pic_Mover) != nullptr);
        Mueve(EnLaZona(1), Qt::LeftButton);
        QCOMPARE(Valores(1), std::vector<Integer>{3});
        QVERIFY(!estado.ArrastraReparto && !estado.CartaEnReparto(kCopas, 3));
        QVERIFY(Visible(Control::Pic_Mover) == nullptr);
        Suelta(EnLaZona(1));
        QCOMPARE(Valores(1), std::vector<Integer>{3});
    }

    void UnAsientoLlenoNoTomaMas() {
        PonReparto();
        estado.CartasReparto = 3;
        Reparte(4, {{kOros, 1}, {kOros, 2}, {kOros, 3}});
        for (const int valor : {1, 2, 3})
            estado.CartaEnReparto(kOros, valor) = false;
        Aprieta(EnLugarDelReparto(kBastos, 12));
        Mueve(EnLaZona(4), Qt::LeftButton);
        QVERIFY(estado.ArrastraReparto);
        QCOMPARE(Valores(4).size(), 3u);
        Suelta(EnLaZona(4));
        QVERIFY(!estado.ArrastraReparto && estado.CartaEnReparto(kBastos, 12));
    }

    void UnaCartaDadaSePuedeRecoger() {
        PonReparto();
        Arrastra(EnLugarDelReparto(kCopas, 3), EnLaZona(4));
        QCOMPARE(Valores(4), std::vector<Integer>{3});
        Clic(EnLaCarta(4, 1) + QPoint(30, 30));
        QVERIFY(Valores(4).empty());
        QVERIFY(estado.CartaEnReparto(kCopas, 3));
    }

    void UnBotonDevuelveLoQueCuelga() {
        PonReparto();
        HabilitaBoton(kBotonAyuda, true);
        Aprieta(EnLugarDelReparto(kOros, 2));
        QVERIFY(estado.ArrastraReparto);
        Mesa().PonForma(Forma::Marcador, [](QWidget*) {});
        HabilitaBoton(kBotonMarcador, true);
        Visible(Control::Pic_Boton, kBotonMarcador)->Pulsa();
        Pasa();
        QVERIFY(!estado.ArrastraReparto && estado.CartaEnReparto(kOros, 2));
        QVERIFY(Visible(Control::Pic_Mover) == nullptr);
    }

    void OtroTamanoEnMedioDeUnArrastreNoPierdeLaCarta() {
        PonReparto();
        Aprieta(EnLugarDelReparto(kOros, 2));
        Mesa().Ventana().resize(1200, 760);
        Pasa();
        QCOMPARE(estado.AnchoPantalla, 1200);
        Mueve(EnLaZona(3), Qt::LeftButton);
        QCOMPARE(Valores(3), std::vector<Integer>{2});
    }

    // Keys.

    void EscapeYQMinimizan() {
        for (const char* letra : {"\x1b", "q", "Q"}) {
            Mesa().Ventana().showNormal();
            QKeyEvent tecla(QEvent::KeyPress, Qt::Key_Q, Qt::NoModifier, letra);
            QApplication::sendEvent(Tapete(), &tecla);
            Pasa();
            QVERIFY(Mesa().Ventana().isMinimized());
        }
    }

    void OtraTeclaEsElBotonVerde() {
        PonCinquillo();
        PedirContinuar(1);
        QTest::keyClick(Tapete(), Qt::Key_X);
        Pasa();
        QVERIFY(!estado.EsperandoJugada);
        QVERIFY(sesion.peticion == Peticion::Ninguna);
    }

    void SinPartidaUnaTeclaEmpiezaUna() {
        QTest::keyClick(Tapete(), Qt::Key_X);
        Pasa();
        QVERIFY(sesion.peticion == Peticion::NuevaPartida);
    }
};

QTEST_MAIN(PruebaEntrada)
#include "table_input_test.moc"
