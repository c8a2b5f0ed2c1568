// The form of the seats and the table, by mouse and by key.

#include <QLineEdit>

#include "forms/personal.h"
#include "forms/personal_view.h"
#include "forms/selector.h"
#include "platform/qt/pointers.h"
#include "tests/gui/open_form.h"

using namespace prueba;

class PruebaPersonal : public QObject, protected MesaDeFormas {
    Q_OBJECT

private Q_SLOTS:
    void init() { Empieza(kTute); }

    void ThePanelsLieAsTheSeatsDoRoundTheDirection() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            const auto centro = [&](const QString& nombre) {
                QWidget& cual = forma.En(nombre);
                return cual.mapTo(&forma.dialogo, cual.rect().center());
            };
            const QPoint medio = centro("Pic_Sentido");
            QVERIFY(qAbs(medio.x() - forma.dialogo.rect().center().x()) < 10);
            for (const char* que : {"Txt_Nombre_%1", "Pic_Selector_1%1", "Pic_Potenciometro_1%1"}) {
                const QString nombre = QString::fromLatin1(que);
                QVERIFY(centro(nombre.arg(1)).x() < centro(nombre.arg(2)).x());
                QVERIFY(centro(nombre.arg(3)).x() > centro(nombre.arg(2)).x());
                QVERIFY(centro(nombre.arg(2)).y() < medio.y());
                QVERIFY(centro(nombre.arg(4)).y() > medio.y());
            }
        }));
    }

    void TheSelectorsOfASeatAreNarrowerThanTheTables() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            for (int clase : {kSelEstado, kSelCartas, kSelControl, kSelCaracter}) {
                for (int asiento = 1; asiento <= 4; ++asiento)
                    QCOMPARE(forma.Selector(clase + asiento).width(), 145);
            }
            QCOMPARE(forma.Selector(kSelSentido).width(), 175);
            QCOMPARE(forma.Selector(kSelVentana).width(), 175);
        }));
    }

    void TheCheckBoxesAndSlidersSayWhatTheyAre() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            QCOMPARE(forma.En<QAbstractButton>("Pic_Buleano_1").text(), QString("Sonido"));
            QCOMPARE(forma.En<QAbstractButton>("Pic_Buleano_2").text(),
                     QString("Pausa entre jugadas"));
            QCOMPARE(forma.En("Pic_Potenciometro_1").accessibleName(),
                     QString("Velocidad de juego: 50"));
            QCOMPARE(forma.En("Pic_Potenciometro_14").accessibleName(),
                     QString("Nivel de Juego (abajo): 10.0"));
        }));
    }

    void OnlyTheArrowOfASelectorTakesTheMouse() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            QTest::mouseClick(&forma.Selector(kSelSentido), Qt::LeftButton, {}, QPoint(20, 30));
            QCOMPARE(estado.SentidoJuego, kDirecto);
            forma.Pulsa(kSelSentido);
            QCOMPARE(estado.SentidoJuego, kInverso);
        }));
    }

    void ThePictureOfTheDirectionFlips() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            QWidget& rosa = forma.En("Pic_Sentido");
            const QImage directo = rosa.grab().toImage();
            forma.Pulsa(kSelSentido);
            QVERIFY(rosa.grab().toImage() != directo);
            forma.Pulsa(kSelSentido);
            QCOMPARE(rosa.grab().toImage(), directo);
        }));
    }

    void ASeatThatIsSwitchedOffHidesItsSettings() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            const QSize antes = forma.dialogo.size();
            forma.Pulsa(kSelEstado + 3);
            QVERIFY(!forma.Selector(kSelControl + 3).isVisible());
            QVERIFY(!forma.En("Pic_Potenciometro_13").isVisible());
            QVERIFY(forma.En("Txt_Nombre_3").isVisible());
            QVERIFY(forma.Selector(kSelEstado + 3).isVisible());
            QCOMPARE(forma.dialogo.size(), antes);
        }));
    }

    void TheBankShowsItsNameAndStateOnly() {
        Empieza(kBlackJack);
        estado.NombreJugador(2) = "Banca";
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            QVERIFY(forma.En<QLineEdit>("Txt_Nombre_2").isReadOnly());
            QCOMPARE(forma.En<QLineEdit>("Txt_Nombre_2").text(), QString("Banca"));
            QVERIFY(!forma.Selector(kSelCartas + 2).isVisible());
            QVERIFY(!forma.Selector(kSelCaracter + 2).isVisible());
        }));
    }

    void ANameIsFormedWhileItIsTyped() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            auto& nombre = forma.En<QLineEdit>("Txt_Nombre_1");
            nombre.setFocus();
            nombre.selectAll();
            QTest::keyClicks(&nombre, " maRÍA, ruiz");
            QCOMPARE(nombre.text(), QString("María Rui"));
            QCOMPARE(nombre.cursorPosition(), 9);
            nombre.setCursorPosition(1);
            QTest::keyClicks(&nombre, "x");
            QCOMPARE(nombre.text(), QString("Mxaría Ru"));
            QCOMPARE(nombre.cursorPosition(), 2);
            QCOMPARE(estado.NombreJugador(1), std::string("Mxaría Ru"));
        }));
    }

    void AKnobIsDraggedByTheMousesChange() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            auto& nivel = forma.En<DeslizadorVista>("Pic_Potenciometro_11");
            const QPoint desde = nivel.Pomo().center() + QPoint(3, 2);
            QTest::mouseMove(&nivel, desde);
            QCOMPARE(nivel.cursor().pixmap().toImage(),
                     CursorDe(Puntero::Ordenar).pixmap().toImage());
            QTest::mousePress(&nivel, Qt::LeftButton, {}, desde);
            QTest::mouseMove(&nivel, desde + QPoint(20, 0));
            const Integer tras_20 = estado.NivelJugador(1);
            QVERIFY(tras_20 > 60 && tras_20 < 90);
            QTest::mouseMove(&nivel, desde + QPoint(300, 0));
            QCOMPARE(estado.NivelJugador(1), Integer{100});
            QTest::mouseMove(&nivel, desde - QPoint(300, 0));
            QCOMPARE(estado.NivelJugador(1), Integer{0});
            QTest::mouseMove(&nivel, desde + QPoint(20, 0));
            QCOMPARE(estado.NivelJugador(1), tras_20);
            QTest::mouseRelease(&nivel, Qt::LeftButton, {}, desde + QPoint(20, 0));
            for (int x : {5, 10, 15})
                QTest::mouseMove(&nivel, desde - QPoint(x, 0));
            QCOMPARE(estado.NivelJugador(1), tras_20);
            QTRY_COMPARE(nivel.cursor().shape(), Qt::ArrowCursor);
        }));
    }

    void APressBesideTheKnobMovesNothing() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            auto& nivel = forma.En<DeslizadorVista>("Pic_Potenciometro_11");
            QTest::mouseClick(&nivel, Qt::LeftButton, {}, nivel.Pomo().center() + QPoint(40, 0));
            QCOMPARE(estado.NivelJugador(1), Integer{50});
        }));
    }

    void AQuestionIsAskedOverWhatWasJustPressed() {
        QString al_preguntar;
        mesa_.respuestas = {Boton::No};
        QVERIFY(Con(AbreVistaPersonal, [&](Abierta& forma) {
            forma.Pulsa(kSelCartas + 4);
            QCOMPARE(forma.Selector(kSelCartas + 4).accessibleName(),
                     QString("Cartas del jugador (abajo): Visibles"));
            QCOMPARE(static_cast<int>(mesa_.mensajes.size()), 1);
        }));
    }

    void AClosingThatIsRefusedLeavesTheFormOpen() {
        QVERIFY(Con(AbreVistaPersonal, [this](Abierta& forma) {
            for (int asiento : {1, 2, 3})
                forma.Pulsa(kSelEstado + asiento);
            forma.Sal();
            QVERIFY(forma.dialogo.isVisible());
            QCOMPARE(mesa_.mensajes.back().titulo, std::string("Número de Jugadores"));
            forma.dialogo.close();
            QVERIFY(forma.dialogo.isVisible());
            forma.Pulsa(kSelEstado + 1);
            forma.Sal();
            QVERIFY(!forma.dialogo.isVisible());
        }));
        QCOMPARE(estado.NumJugadores, Integer{2});
        QVERIFY(!personal::Abierta());
    }

    void TakenAwayFromOutsideItPutsTheSeatsBack() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) { forma.Pulsa(kSelEstado + 1); }));
        QCOMPARE(estado.EstadoJugador(1), kActivado);
        QVERIFY(!personal::Abierta());
    }
};

QTEST_MAIN(PruebaPersonal)
#include "personal_form_test.moc"
