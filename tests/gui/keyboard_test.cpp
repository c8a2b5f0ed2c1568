// The keys that are no characters on the real window: frame, focus, function keys, and a match without a mouse.

#include <QTest>
#include <QTimer>

#include "games/common/trick_state.h"
#include "table/button_column.h"
#include "table/deck.h"
#include "table/keyboard_walk.h"
#include "table/seat_drawing.h"
#include "tests/gui/live_window.h"
#include "tests/support/person_by_keys.h"

namespace {

constexpr QColor kAmarillo(255, 200, 40);
constexpr QColor kAnillo(255, 244, 170);

Qt::Key TeclaDe(const Evento& mando) {
    switch (mando.mando) {
    case Mando::Izquierda:
        return Qt::Key_Left;
    case Mando::Arriba:
        return Qt::Key_Up;
    case Mando::Abajo:
        return Qt::Key_Down;
    case Mando::Funcion:
        return static_cast<Qt::Key>(Qt::Key_F1 + mando.indice - 1);
    default:
        return Qt::Key_Right;
    }
}

// A key that the table has not taken yet was pressed for what was to be seen then: nobody presses the next one.
bool tecla_en_camino = false;

void Atiende(const Evento& evento) {
    if (evento.tipo == TipoEvento::Mando)
        tecla_en_camino = false;
    DespachaEvento(evento);
}

} // namespace

class PruebaTeclado : public QObject, private prueba::VentanaViva {
    Q_OBJECT

    void Teclea(Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), tecla, con);
        Pasa();
    }
    static std::string Enmarcado() {
        const auto uno = ObjetivoEnmarcado();
        return uno ? uno->nombre : "";
    }
    // At a box the key that presses its button, on the table the person's next one.
    void TecleaLaPersona(prueba::PersonaConTeclas& persona) {
        if (QWidget* caja = QApplication::activeModalWidget())
            return QTest::keyClick(caja, Qt::Key_Return);
        if (std::exchange(tecla_en_camino, true))
            return;
        QTest::keyClick(Tapete(), TeclaDe(persona.SiguienteTecla()));
    }
    // Seat 4 chooses in Cinquillo; the first card may be laid.
    void Elige() {
        estado.PartidaEnCurso = estado.ManoEnCurso = true;
        estado.JugadorActual = 4;
        estado.EsperandoJugada = estado.EligeCarta = true;
        PonCarta(4, 1, 1, {kOros, 5}, kDescubierta);
        PonCarta(4, 1, 2, {kBastos, 12}, kDescubierta);
        PonCarta(4, 1, 3, {kCopas, 7}, kDescubierta);
        estado.NumCartas(4, 1) = 3;
        bazas.NumJugables = 1;
        bazas.CartasJugables(1, 2) = 1;
        RedibujarAsiento(4);
    }
    QColor EnElBorde(const Rectangulo& caja) {
        Pasa();
        const QImage mesa = Tapete()->grab().toImage();
        return mesa.pixelColor(caja.x + caja.ancho / 2, caja.y);
    }
    VistaControl* Boton(int indice) {
        for (auto* vista : Tapete()->findChildren<VistaControl*>()) {
            if (vista->Cual() == Control::Pic_Boton &&
                vista->toolTip().endsWith(QStringLiteral("(F%1)").arg(TeclaDelBoton(indice))))
                return vista;
        }
        return nullptr;
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(PonFicheros()); }
    void init() { QVERIFY(Abre(kCinquillo)); }
    void cleanup() {
        OlvidaMarco();
        Cierra();
    }

    void ElMarcoSeVeEnLaCartaYSeVaConElRaton() {
        Elige();
        Teclea(Qt::Key_Right);
        QCOMPARE(Enmarcado(), std::string("Cinco de Oros"));
        const Rectangulo caja = ObjetivoEnmarcado()->donde;
        QCOMPARE(EnElBorde(caja), kAmarillo);
        Mueve({300, 300});
        QVERIFY(EnElBorde(caja) != kAmarillo);
        Teclea(Qt::Key_Right);
        QCOMPARE(EnElBorde(caja), kAmarillo);
    }

    void ArribaJuegaYMayusOrdena() {
        Elige();
        Teclea(Qt::Key_Left);
        Teclea(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(int(estado.Mano(4, 1, 2, kValor)), 5);
        estado.EligeCarta = true;
        Teclea(Qt::Key_Up);
        QVERIFY(estado.JugadaHecha);
        QCOMPARE(int(estado.CartaElegida), 2);
    }

    void ElContornoDelPunteroSeVeEnLaCartaQueSePuedeTocar() {
        Elige();
        const Rectangulo cinco = CartaALaVista(4, 1, 3), rey = CartaALaVista(4, 2, 3);
        Mueve({cinco.x + 20, cinco.y + 60});
        QCOMPARE(EnElBorde(cinco), QColor(120, 255, 120));
        Mueve({rey.x + 20, rey.y + 60});
        QVERIFY(EnElBorde(cinco) != QColor(120, 255, 120));
    }

    void FueraDeLaMesaNoQuedaContorno() {
        Elige();
        const Rectangulo cinco = CartaALaVista(4, 1, 3);
        Mueve({cinco.x + 20, cinco.y + 60});
        QCOMPARE(EnElBorde(cinco), QColor(120, 255, 120));
        QEvent fuera(QEvent::Leave);
        QApplication::sendEvent(Tapete(), &fuera);
        QVERIFY(EnElBorde(cinco) != QColor(120, 255, 120));
    }

    void UnaFlechaDevuelveElFocoALaMesaYTabLoLlevaALosBotones() {
        Elige();
        bazas.NumJugables = 2;
        bazas.CartasJugables(2, 2) = 2;
        Teclea(Qt::Key_Right);
        Teclea(Qt::Key_Tab);
        QVERIFY(QApplication::focusWidget() != Tapete());
        // One mark at a time: the button's own.
        QVERIFY(EnElBorde(ObjetivoEnmarcado()->donde) != kAmarillo);
        Teclea(Qt::Key_Right);
        QCOMPARE(QApplication::focusWidget(), Tapete());
        QCOMPARE(EnElBorde(ObjetivoEnmarcado()->donde), kAmarillo);
    }

    // Dashes with a bar on the edge: without colours it is another one too.
    void LoQueNoSePuedeJugarLlevaUnaBarraYTrazos() {
        Elige();
        Teclea(Qt::Key_Right);
        Teclea(Qt::Key_Right);
        QCOMPARE(Enmarcado(), std::string("Rey de Bastos"));
        const Rectangulo caja = ObjetivoEnmarcado()->donde;
        QCOMPARE(EnElBorde(caja), QColor(190, 0, 0));
        const QImage mesa = Tapete()->grab().toImage();
        QCOMPARE(mesa.pixelColor(caja.x + caja.ancho / 2, caja.y - 4), QColor(Qt::white));
        int cambios = 0;
        for (int y = caja.y + 10; y < caja.y + caja.alto - 10; ++y)
            cambios += (mesa.pixelColor(caja.x, y).green() > 128) !=
                               (mesa.pixelColor(caja.x, y - 1).green() > 128)
                           ? 1
                           : 0;
        QVERIFY(cambios >= 6);
    }

    // The dots of the ring lie around the picture of the second button, 4 pixels to the left of its own place.
    void ElAnilloDelFocoRodeaElBotonDondeSeDibuja() {
        VistaControl* boton = Boton(kBotonPersonal);
        boton->setFocus();
        Pasa();
        const QImage mesa = Tapete()->grab().toImage();
        const QPoint esquina = boton->mapTo(Tapete(), QPoint(0, 0));
        const auto puntos = [&](int x) {
            int cuantos = 0;
            for (int y = esquina.y() + 10; y < esquina.y() + boton->height() - 10; ++y)
                cuantos += mesa.pixelColor(x, y) == kAnillo ? 1 : 0;
            return cuantos;
        };
        QVERIFY(puntos(esquina.x() - 2) >= 5);
        QCOMPARE(puntos(esquina.x() + 2), 0);
    }

    void LosBotonesDicenSuTecla() {
        for (int boton = kBotonNueva; boton <= kBotonEstadis; ++boton)
            QVERIFY(Boton(boton) != nullptr);
        QCOMPARE(Boton(kBotonNueva)->toolTip(), QStringLiteral("Nueva partida (F2)"));
        QCOMPARE(Boton(kBotonAyuda)->toolTip(), QStringLiteral("Ayuda (F8)"));
        QCOMPARE(Boton(kBotonSalir)->toolTip(), QStringLiteral("Salir (F9)"));
    }

    void LasFuncionesPulsanDesdeArriba() {
        int arriba = -1;
        for (int n = 2; n <= 9; ++n) {
            VistaControl* boton = Boton(BotonDesdeArriba(n - 1));
            QVERIFY(boton->y() > arriba);
            arriba = boton->y();
        }
        Teclea(Qt::Key_F9);
        QVERIFY(sesion.peticion == Peticion::Salir);
    }

    void F11OcupaLaPantallaYLaDeja() {
        QVERIFY(!Mesa().Ventana().isFullScreen());
        Teclea(Qt::Key_F11);
        QVERIFY(Mesa().Ventana().isFullScreen());
        Teclea(Qt::Key_F11);
        QVERIFY(!Mesa().Ventana().isFullScreen());
    }

    void UnaPartidaEnteraSinRatonNiLetras() {
        estado.LimitePartida = 1;
        prueba::PersonaConTeclas persona;
        RegistraDespacho(Atiende);
        tecla_en_camino = false;
        QTimer dedos;
        connect(&dedos, &QTimer::timeout, this, [&] { TecleaLaPersona(persona); });
        dedos.start(0);
        BucleSesion();
        dedos.stop();
        QVERIFY(persona.acabada);
        QVERIFY(estado.GanadorPartida != 0);
        QVERIFY(persona.cartas >= 5);
    }
};

QTEST_MAIN(PruebaTeclado)
#include "keyboard_test.moc"
