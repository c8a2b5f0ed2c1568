// The form of the game and its rules: its list, its numbers, its held arrows.

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <map>

#include "forms/normas_view.h"
#include "forms/selector.h"
#include "table/game_row.h"
#include "tests/gui/open_form.h"

using namespace prueba;

class PruebaNormas : public QObject, protected MesaDeFormas {
    Q_OBJECT

private Q_SLOTS:
    void init() { Empieza(kTute); }

    void ThePokerFormIsTheWiderOne() {
        int ancho_tute = 0;
        QVERIFY(Con(AbreVistaNormas, [&](Abierta& f) { ancho_tute = f.dialogo.width(); }));
        Empieza(kPoker);
        QVERIFY(Con(AbreVistaNormas, [&](Abierta& forma) {
            QVERIFY(forma.dialogo.width() > ancho_tute + 100);
            const auto y = [&](const char* nombre) {
                return forma.En(nombre).mapTo(&forma.dialogo, QPoint(0, 0)).y();
            };
            QCOMPARE(y("Pic_Selector_5") - y("Pic_Selector_1"), 60);
            QCOMPARE(y("Pic_Selector_2") - y("Pic_Selector_3"), 60);
            QCOMPARE(y("Pic_Spin_22") - y("Pic_Spin_21"), 60);
            QCOMPARE(y("Pic_Spin_21"), y("Pic_Selector_1"));
        }));
    }

    void TheListShowsTheGamesInOrderUnderTheirDecks() {
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            const auto altura = [&](const QWidget& cual) {
                return cual.mapTo(&forma.dialogo, QPoint(0, 0)).y();
            };
            std::map<int, QString> lineas;
            for (const QLabel* rotulo : forma.dialogo.findChildren<QLabel*>())
                lineas[altura(*rotulo)] = rotulo->text();
            for (int juego : {1, 31, 51, 58, 65, 70}) {
                auto& linea =
                    forma.En<QAbstractButton>(QStringLiteral("Pic_Buleano_%1").arg(juego));
                lineas[altura(linea)] = linea.text();
            }
            QStringList vistas;
            for (const auto& [y, texto] : lineas)
                vistas += texto;
            QCOMPARE(vistas,
                     (QStringList{"Baraja Francesa", "Póker", "Black Jack", "Baraja Española",
                                  "Tute", "Brisca", "Siete y media", "Cinquillo"}));
        }));
    }

    void EveryNumberIsShownAsItIsSet() {
        Empieza(kPoker);
        estado.RestoInicial = 345;
        estado.ApuestaSalida = 7;
        estado.ApuestaMaxima = 60;
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            QCOMPARE(forma.En<QLineEdit>("Tex_Spin_21").text(), QString("345"));
            QCOMPARE(forma.En<QLineEdit>("Tex_Spin_22").text(), QString("7"));
            QCOMPARE(forma.En<QLineEdit>("Tex_Spin_23").text(), QString("60"));
        }));
    }

    void InBlackJackThereAreTheListAndTwoNumbers() {
        Empieza(kBlackJack);
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            QVERIFY(forma.Hay("Tex_Spin_21") && forma.Hay("Tex_Spin_23"));
            QVERIFY(!forma.Hay("Tex_Spin_22") && !forma.Hay("Tex_Spin_24"));
            QVERIFY(forma.dialogo.findChildren<SelectorVista*>().isEmpty());
        }));
    }

    void AHeldArrowKeepsSteppingUntilItIsReleased() {
        QVERIFY(Con(AbreVistaNormas, [this](Abierta& forma) {
            QWidget& flecha = forma.En("Pic_SpinSube_24");
            QCOMPARE(flecha.size(), QSize(15, 9));
            const QImage arriba = flecha.grab().toImage();
            QTest::mousePress(&flecha, Qt::LeftButton);
            QCOMPARE(estado.LimitePartida, Integer{4});
            QCOMPARE(flecha.cursor().shape(), Qt::BlankCursor);
            QVERIFY(flecha.grab().toImage() != arriba);
            QTRY_COMPARE_WITH_TIMEOUT(estado.LimitePartida, Integer{7}, 2000);
            QTest::mouseRelease(&flecha, Qt::LeftButton);
            QCOMPARE(flecha.cursor().shape(), Qt::ArrowCursor);
            const Integer al_soltar = estado.LimitePartida;
            QTest::qWait(400);
            QCOMPARE(estado.LimitePartida, al_soltar);
            QCOMPARE(flecha.grab().toImage(), arriba);
            QCOMPARE(forma.En<QLineEdit>("Tex_Spin_24").text(), QString::number(al_soltar));
            QCOMPARE(Sonidos(), std::vector<int>(static_cast<std::size_t>(al_soltar - 3), 4));
        }));
    }

    void AStepOfAHeldArrowTakesTwice60AtTheMiddleSpeed() {
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            QWidget& flecha = forma.En("Pic_SpinSube_24");
            QElapsedTimer reloj;
            reloj.start();
            QTest::mousePress(&flecha, Qt::LeftButton);
            QTRY_COMPARE_WITH_TIMEOUT(estado.LimitePartida, Integer{6}, 5000);
            QTest::mouseRelease(&flecha, Qt::LeftButton);
            QVERIFY2(reloj.elapsed() >= 230, qPrintable(QString::number(reloj.elapsed())));
        }));
    }

    void AClickOnAnArrowIsOneStepAlsoAtFullSpeed() {
        estado.VelocidadJuego = 100;
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            QWidget& flecha = forma.En("Pic_SpinBaja_24");
            QTest::mousePress(&flecha, Qt::LeftButton);
            QTest::mouseRelease(&flecha, Qt::LeftButton, {}, {}, 50);
            QTest::qWait(200);
            QCOMPARE(estado.LimitePartida, Integer{2});
        }));
    }

    void AHeldArrowStopsAtTheExtreme() {
        estado.LimitePartida = 998;
        QVERIFY(Con(AbreVistaNormas, [this](Abierta& forma) {
            QWidget& flecha = forma.En("Pic_SpinSube_24");
            QTest::mousePress(&flecha, Qt::LeftButton);
            QTest::qWait(400);
            QCOMPARE(estado.LimitePartida, Integer{999});
            QCOMPARE(Sonidos(), std::vector<int>{4});
            QTest::mouseRelease(&flecha, Qt::LeftButton);
        }));
    }

    void UpAndDownStepFromTheTextBox() {
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            auto& numero = forma.En<QLineEdit>("Tex_Spin_24");
            QTest::keyClick(&numero, Qt::Key_Up);
            QCOMPARE(numero.text(), QString("4"));
            QTest::keyClick(&numero, Qt::Key_Down);
            QTest::keyClick(&numero, Qt::Key_Down);
            QCOMPARE(numero.text(), QString("2"));
            QCOMPARE(estado.LimitePartida, Integer{2});
        }));
    }

    void ATypedNumberOverTheMaximumShowsTheMaximum() {
        Empieza(kBlackJack);
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            auto& resto = forma.En<QLineEdit>("Tex_Spin_21");
            QCOMPARE(resto.text(), QString("200"));
            resto.selectAll();
            QTest::keyClicks(&resto, "99");
            QCOMPARE(resto.text(), QString("99"));
            QTest::keyClicks(&resto, "9");
            QCOMPARE(resto.text(), QString("995"));
            resto.selectAll();
            QTest::keyClicks(&resto, "doce");
            QCOMPARE(resto.text(), QString("doce"));
            QCOMPARE(estado.RestoInicial, Integer{0});
            forma.Sal();
        }));
        QCOMPARE(estado.RestoInicial, Integer{5});
    }

    void AGameThatCannotBePlayedIsListedAndGrey() {
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            for (const FilaJuego* fila : FilasDeJuegos()) {
                const QString nombre = QStringLiteral("Pic_Buleano_%1").arg(fila->id);
                auto& linea = forma.En<QAbstractButton>(nombre);
                QCOMPARE(linea.text(), QString::fromUtf8(fila->nombre));
                QCOMPARE(linea.isChecked(), fila->id == estado.JuegoActivo);
                QCOMPARE(linea.isEnabled(),
                         fila->driver != nullptr || fila->id == estado.JuegoActivo);
            }
        }));
    }

    void CancelarPutsTheMarksOfTheListBack() {
        mesa_.respuestas = {Boton::No};
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            auto& cinquillo = forma.En<QAbstractButton>("Pic_Buleano_70");
            QTest::mouseClick(&cinquillo, Qt::LeftButton, {}, QPoint(8, 8));
            QVERIFY(!cinquillo.isChecked());
            QVERIFY(forma.En<QAbstractButton>("Pic_Buleano_51").isChecked());
            QTest::mouseClick(&forma.En("Pic_Buleano_51"), Qt::LeftButton, {}, QPoint(8, 8));
            QVERIFY(forma.En<QAbstractButton>("Pic_Buleano_51").isChecked());
        }));
        QCOMPARE(estado.JuegoActivo, kTute);
    }

    void AceptarClosesTheFormWithTheNewGame() {
        mesa_.respuestas = {Boton::Si};
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            QTest::mouseClick(&forma.En("Pic_Buleano_70"), Qt::LeftButton, {}, QPoint(8, 8));
            QVERIFY(!forma.dialogo.isVisible());
        }));
        QCOMPARE(estado.JuegoActivo, kCinquillo);
    }
};

QTEST_MAIN(PruebaNormas)
#include "normas_form_test.moc"
