// The table as assistive tools find it: what it is made of, what can be done, and what they are told of a change.

#include <QAccessible>
#include <functional>
#include <initializer_list>

#include "platform/qt/scale.h"
#include "table/card_names.h"
#include "table/deck.h"
#include "table/layout.h"
#include "table/seat_drawing.h"
#include "table/targets.h"
#include "tests/gui/live_window.h"

using namespace prueba;

namespace {

struct Aviso {
    QAccessible::Id de;
    QAccessible::Event tipo;
};
std::vector<Aviso> avisos;

} // namespace

// Without a screen reader Qt drops every event at this call. The program's calls come here instead of there, and are
// kept.
void QAccessible::updateAccessibility(QAccessibleEvent* evento) {
    avisos.push_back({evento->uniqueId(), evento->type()});
}

class PruebaAccesoMesa : public QObject {
    Q_OBJECT

    VentanaViva ventana_;

    static void DaMano(Integer asiento, std::initializer_list<Carta> cartas) {
        estado.NumCartas(asiento, 1) = 0;
        for (const Carta& carta : cartas)
            PonCarta(asiento, 1, ++estado.NumCartas(asiento, 1), carta,
                     estado.CartasJugador(asiento));
    }
    // Seat 4's turn in a hand of Tute, three cards each; those of seat 2 are covered.
    void EmpiezaTurno() {
        estado.PartidaEnCurso = estado.ManoEnCurso = true;
        estado.JugadorActual = estado.JugadorSalida = 4;
        estado.ControlJugador(4) = kManual;
        estado.CartasJugador(4) = kVisibles;
        estado.CartasJugador(2) = kOcultas;
        estado.EligeCarta = estado.EsperandoJugada = true;
        DaMano(4, {{kOros, 1}, {kCopas, 10}, {kBastos, 12}});
        DaMano(2, {{kEspadas, 1}, {kEspadas, 3}, {kEspadas, 12}});
        RedibujarMesa();
        Mira();
    }
    void Mira() { ventana_.Mesa().Bombea(); }

    QAccessibleInterface* Mesa() {
        return QAccessible::queryAccessibleInterface(ventana_.Tapete());
    }
    // All of the tree below the table.
    static void Recorre(QAccessibleInterface* de,
                        const std::function<void(QAccessibleInterface*)>& con) {
        for (int i = 0; i < de->childCount(); ++i) {
            con(de->child(i));
            Recorre(de->child(i), con);
        }
    }
    std::vector<QAccessibleInterface*>
    LosQue(const std::function<bool(QAccessibleInterface*)>& cumplen) {
        std::vector<QAccessibleInterface*> hallados;
        Recorre(Mesa(), [&](QAccessibleInterface* uno) {
            if (cumplen(uno))
                hallados.push_back(uno);
        });
        return hallados;
    }
    static QString Nombre(QAccessibleInterface* uno) { return uno->text(QAccessible::Name); }
    QAccessibleInterface* El(const QString& principio) {
        const auto hallados =
            LosQue([&](QAccessibleInterface* uno) { return Nombre(uno).startsWith(principio); });
        if (hallados.size() != 1)
            qWarning("%s: %zu", qPrintable(principio), hallados.size());
        return hallados.size() == 1 ? hallados.front() : nullptr;
    }
    static void Haz(QAccessibleInterface* uno, const QString& accion) {
        uno->actionInterface()->doAction(accion);
    }
    static int Cuantos(QAccessible::Event tipo) {
        return static_cast<int>(std::ranges::count(avisos, tipo, &Aviso::tipo));
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(ventana_.PonFicheros()); }
    void init() {
        QVERIFY(ventana_.Abre(kTute));
        QAccessible::setActive(true);
        EmpiezaTurno();
        avisos.clear();
    }
    void cleanup() {
        ventana_.Cierra();
        QAccessible::setActive(false);
    }

    void LasCartasPropiasVanLasPrimerasConSuNombreYLoQueSePuede() {
        for (int i = 0; i < 3; ++i) {
            QAccessibleInterface* carta = Mesa()->child(i);
            const Carta suya{estado.Mano(4, 1, i + 1, kPalo), estado.Mano(4, 1, i + 1, kValor)};
            QVERIFY(Nombre(carta).startsWith(QString::fromStdString(NombreDeCarta(suya))));
            QVERIFY(Nombre(carta).endsWith(", se puede jugar"));
            QCOMPARE(carta->role(), QAccessible::Button);
            QVERIFY(!carta->state().disabled);
            QCOMPARE(carta->parent(), Mesa());
            QCOMPARE(Mesa()->indexOfChild(carta), i);
        }
    }

    void LoTapadoNoTieneNombre() {
        const auto espadas =
            LosQue([](QAccessibleInterface* uno) { return Nombre(uno).contains("Espadas"); });
        QVERIFY(espadas.empty());
    }

    void LosAsientosDicenQuienSeSientaYCuantasCartasTiene() {
        QAccessibleInterface* rival =
            El("Asiento de " + QString::fromStdString(estado.NombreJugador(2)));
        QVERIFY(rival != nullptr);
        QVERIFY(Nombre(rival).contains("3 cartas"));
        QCOMPARE(rival->role(), QAccessible::Grouping);
        QAccessibleInterface* propio =
            El("Asiento de " + QString::fromStdString(estado.NombreJugador(4)));
        QVERIFY(Nombre(propio).contains("le toca"));
    }

    void LoQueEsUnControlEstaUnaVez() {
        for (const char* nombre : {"Nueva partida", "Personalizar", "Tutor de juego", "Ayuda"}) {
            QAccessibleInterface* boton = El(nombre);
            QVERIFY(boton != nullptr);
            QVERIFY(qobject_cast<VistaControl*>(boton->object()) != nullptr);
        }
    }

    void CadaCosaEstaDondeSeVe() {
        const std::vector<Objetivo> objetivos = ObjetivosDeLaMesa();
        const QRect donde = EnVentana(objetivos.front().donde)
                                .translated(ventana_.Tapete()->mapToGlobal(QPoint(0, 0)));
        QCOMPARE(Mesa()->child(0)->rect(), donde);
        const QPoint en_la_franja(donde.left() + 3, donde.center().y());
        QCOMPARE(Mesa()->childAt(en_la_franja.x(), en_la_franja.y()), Mesa()->child(0));
    }

    void PulsarUnaCartaLaJuega() {
        Haz(Mesa()->child(1), QAccessibleActionInterface::pressAction());
        ventana_.Pasa();
        QVERIFY(estado.JugadaHecha);
        QCOMPARE(estado.CartaElegida, Integer{2});
    }

    void FueraDeTurnoNoHayNadaQuePulsar() {
        QAccessibleInterface* carta = Mesa()->child(1);
        estado.JugadorActual = 2;
        estado.EligeCarta = false;
        Haz(carta, QAccessibleActionInterface::pressAction()); // before anybody has told it
        Mira();
        QVERIFY(!estado.JugadaHecha);
        QVERIFY(carta->state().disabled);
        QVERIFY(!carta->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::pressAction()));
    }

    void ElMenuDeUnaCartaOfreceOrdenarLaMano() {
        Haz(Mesa()->child(0), QAccessibleActionInterface::showMenuAction());
        ventana_.Pasa();
        Mira();
        const auto opciones =
            LosQue([](QAccessibleInterface* uno) { return uno->role() == QAccessible::MenuItem; });
        QCOMPARE(opciones.size(), std::size_t{2});
        Haz(opciones.front(), QAccessibleActionInterface::pressAction());
        ventana_.Pasa();
        QVERIFY(estado.ModoOrdenar);
    }

    void LaMismaCosaConservaSuSitioEnElRegistro() {
        const QAccessible::Id antes = QAccessible::uniqueId(Mesa()->child(0));
        DaMano(4, {{kOros, 5}, {kBastos, 12}});
        RedibujarAsiento(4);
        Mira();
        QCOMPARE(QAccessible::uniqueId(Mesa()->child(0)), antes);
        QVERIFY(Nombre(Mesa()->child(0)).startsWith("Cinco de Oros"));
        QCOMPARE(QAccessible::accessibleInterface(antes), Mesa()->child(0));
    }

    void LoQueSeVaDejaElRegistro() {
        const QAccessible::Id tercera = QAccessible::uniqueId(Mesa()->child(2));
        DaMano(4, {{kOros, 5}, {kBastos, 12}});
        Mira();
        QVERIFY(QAccessible::accessibleInterface(tercera) == nullptr);
    }

    void SiNadaCambiaNoSeAvisaDeNada() {
        Mira();
        QVERIFY(avisos.empty());
    }

    void UnNombreQueCambiaSeAvisa() {
        estado.Mano(4, 1, 2, kValor) = 7;
        const QAccessible::Id carta = QAccessible::uniqueId(Mesa()->child(1));
        Mira();
        QCOMPARE(Cuantos(QAccessible::NameChanged), 1);
        QCOMPARE(avisos.front().de, carta);
        QCOMPARE(Cuantos(QAccessible::ObjectReorder), 0);
    }

    void UnaCartaMenosSeAvisaEnLaMesa() {
        DaMano(4, {{kOros, 1}, {kCopas, 10}});
        Mira();
        QCOMPARE(Cuantos(QAccessible::ObjectReorder), 1);
        QCOMPARE(Cuantos(QAccessible::ObjectDestroyed), 1);
        QCOMPARE(avisos.back().de, QAccessible::uniqueId(Mesa()));
    }

    void AlAcabarElTurnoSeAvisaDeQueNoSePulsa() {
        estado.EligeCarta = false;
        estado.JugadorActual = 2;
        Mira();
        QVERIFY(Cuantos(QAccessible::StateChanged) >= 3);
    }

    // A table that nobody listens to is not read.
    void SinNadieQueEscucheNoSeLeeLaMesa() {
        QAccessible::setActive(false);
        DaMano(4, {{kOros, 5}});
        Mira();
        QVERIFY(avisos.empty());
        QVERIFY(Nombre(Mesa()->child(0)).startsWith("As de Oros"));
        QAccessible::setActive(true);
        QVERIFY(Nombre(Mesa()->child(0)).startsWith("Cinco de Oros"));
    }

    void LaVentanaEsUnaVentana() {
        QCOMPARE(QAccessible::queryAccessibleInterface(&ventana_.Mesa().Ventana())->role(),
                 QAccessible::Window);
        QCOMPARE(Mesa()->role(), QAccessible::Pane);
    }
};

QTEST_MAIN(PruebaAccesoMesa)
#include "table_access_test.moc"
