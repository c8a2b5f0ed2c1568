// The two forms as dialogs: reached by keyboard, spoken by name, dragged, held, typed into.

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <set>

#include "core/game_state.h"
#include "core/match_driver.h"
#include "forms/controls_view.h"
#include "forms/normas.h"
#include "forms/normas_view.h"
#include "forms/personal.h"
#include "forms/personal_view.h"
#include "forms/selector.h"
#include "games/game_table.h"
#include "platform/headless/headless_platform.h"
#include "platform/qt/platform_qt.h"
#include "platform/qt/pointers.h"
#include "table/table_ops.h"

namespace {

using Abre = void (*)(QWidget*);

// The open form and its controls by name.
class Abierta {
public:
    explicit Abierta(QDialog& cual) : dialogo(cual) {}

    template <class T = QWidget>
    T& En(const QString& nombre) {
        T* control = dialogo.findChild<T*>(nombre);
        if (control == nullptr)
            qFatal("no hay %s", qPrintable(nombre));
        return *control;
    }
    QAbstractButton& Selector(int control) {
        return En<QAbstractButton>(QStringLiteral("Pic_Selector_%1").arg(control));
    }
    bool Hay(const QString& nombre) { return dialogo.findChild<QWidget*>(nombre) != nullptr; }
    // On the arrow, as with the mouse.
    void Pulsa(int control) {
        auto& vista = En<SelectorVista>(QStringLiteral("Pic_Selector_%1").arg(control));
        QTest::mouseClick(&vista, Qt::LeftButton, {}, vista.Flecha().center());
    }
    void Sal() { QTest::mouseClick(&En("Pic_BotSalir"), Qt::LeftButton); }

    QDialog& dialogo;
};

// Opens a form, does something to it, and takes it away when it is still there afterwards.
bool Con(Abre abre, const std::function<void(Abierta&)>& hace) {
    bool hecho = false;
    QTimer::singleShot(0, [&] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialogo == nullptr || !QTest::qWaitForWindowActive(dialogo))
            return;
        Abierta abierta(*dialogo);
        hace(abierta);
        hecho = true;
        dialogo->done(QDialog::Rejected);
    });
    abre(nullptr);
    return hecho;
}

bool EstaDentro(const QWidget& control, const QWidget& ventana) {
    const QRect sitio(control.mapTo(&ventana, QPoint(0, 0)), control.size());
    return ventana.rect().contains(sitio);
}

} // namespace

class PruebaFormas : public QObject {
    Q_OBJECT

    PlataformaSinPantalla mesa_;

    void Empieza(Integer juego) {
        UsaPlataforma(mesa_);
        mesa_.Limpia();
        estado = {};
        sesion = {};
        PonValoresPorDefecto();
        estado.JuegoActivo = juego;
        estado.VelocidadJuego = 50;
        estado.SonidoActivo = true;
        CalcularMesa();
        IniciarTablas();
        mesa_.sonidos.clear();
    }
    std::vector<int> Sonidos() {
        std::vector<int> ids;
        for (const SonidoPedido& sonido : mesa_.sonidos)
            ids.push_back(sonido.id);
        return ids;
    }

private Q_SLOTS:
    void init() { Empieza(kTute); }

    // ---- what is there, and where

    void EveryControlLiesInsideAnd800By600HoldsTheForms() {
        for (const Integer juego : {kPoker, kBlackJack, kTute, kCinquillo}) {
            Empieza(juego);
            for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
                QVERIFY(Con(abre, [](Abierta& forma) {
                    QVERIFY(forma.dialogo.width() <= 800);
                    QVERIFY(forma.dialogo.height() <= 600);
                    for (QWidget* control : forma.dialogo.findChildren<QWidget*>())
                        QVERIFY2(EstaDentro(*control, forma.dialogo),
                                 qPrintable(control->objectName()));
                }));
            }
        }
    }

    void NoControlLiesOnAnother() {
        Empieza(kPoker);
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                std::vector<QWidget*> controles;
                for (QWidget* control : forma.dialogo.findChildren<QWidget*>()) {
                    if (control->focusPolicy() != Qt::NoFocus)
                        controles.push_back(control);
                }
                QVERIFY(controles.size() > 8);
                for (const QWidget* uno : controles) {
                    for (const QWidget* otro : controles) {
                        const QRect sitio(uno->mapTo(&forma.dialogo, QPoint(0, 0)), uno->size());
                        const QRect suyo(otro->mapTo(&forma.dialogo, QPoint(0, 0)), otro->size());
                        QVERIFY2(uno == otro || !sitio.intersects(suyo),
                                 qPrintable(uno->objectName() + " " + otro->objectName()));
                    }
                }
            }));
        }
    }

    void EveryValueOfASelectorFitsItsField() {
        Empieza(kPoker);
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                for (auto* vista : forma.dialogo.findChildren<SelectorVista*>()) {
                    const int control = vista->objectName().section('_', -1).toInt();
                    for (int fila = 1; fila <= ValoresDe(control); ++fila) {
                        const QString valor =
                            QString::fromStdString(TextoValor(fila, control)).trimmed();
                        const int ancho = vista->fontMetrics().horizontalAdvance(valor);
                        QVERIFY2(ancho <= vista->Campo().width() - 8, qPrintable(valor));
                    }
                }
            }));
        }
    }

    void EveryControlHasANameForWhoDoesNotSeeIt() {
        Empieza(kPoker);
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                std::set<QString> nombres;
                int controles = 0;
                for (QWidget* control : forma.dialogo.findChildren<QWidget*>()) {
                    if (control->focusPolicy() == Qt::NoFocus)
                        continue;
                    const auto* boton = qobject_cast<QAbstractButton*>(control);
                    const QString nombre = control->accessibleName().isEmpty() && boton != nullptr
                                               ? boton->text()
                                               : control->accessibleName();
                    QVERIFY2(!nombre.isEmpty(), qPrintable(control->objectName()));
                    nombres.insert(nombre);
                    ++controles;
                }
                QCOMPARE(static_cast<int>(nombres.size()), controles);
            }));
        }
    }

    void TheSpokenNameCarriesTheValue() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            QCOMPARE(forma.Selector(kSelEstado + 1).accessibleName(),
                     QString("Estado del jugador (izquierda): Activado"));
            forma.Pulsa(kSelEstado + 1);
            QCOMPARE(forma.Selector(kSelEstado + 1).accessibleName(),
                     QString("Estado del jugador (izquierda): Desactivado"));
            QCOMPARE(forma.En("Pic_Potenciometro_14").accessibleName(),
                     QString("Nivel de Juego (abajo): 10.0"));
        }));
    }

    // ---- the keyboard

    void TabReachesEveryControl() {
        Empieza(kPoker);
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                std::set<QWidget*> faltan;
                for (QWidget* control : forma.dialogo.findChildren<QWidget*>()) {
                    if ((control->focusPolicy() & Qt::TabFocus) != 0 && control->isEnabled() &&
                        control->isVisible())
                        faltan.insert(control);
                }
                QVERIFY(faltan.size() > 8);
                for (std::size_t vez = faltan.size() + 1; vez > 0; --vez) {
                    faltan.erase(QApplication::focusWidget());
                    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                }
                QVERIFY(faltan.empty());
            }));
        }
    }

    void TabGoesThroughTheTableRoundTheSeatsAndOut() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta&) {
            QStringList debido{"Pic_Potenciometro_1", "Pic_Buleano_1", "Pic_Buleano_2"};
            for (int asiento = 1; asiento <= 4; ++asiento) {
                debido << QStringLiteral("Txt_Nombre_%1").arg(asiento);
                for (int clase : {kSelEstado, kSelControl, kSelCartas, kSelCaracter})
                    debido << QStringLiteral("Pic_Selector_%1").arg(clase + asiento);
                debido << QStringLiteral("Pic_Potenciometro_%1").arg(personal::kNivel + asiento);
            }
            debido << "Pic_Selector_8"
                   << "Pic_Selector_9"
                   << "Pic_BotAyuda"
                   << "Pic_BotSalir";
            QStringList orden;
            for (qsizetype vez = 0; vez < debido.size(); ++vez) {
                orden << QApplication::focusWidget()->objectName();
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(orden, debido);
        }));
    }

    void SpaceAndEnterPressASelector() {
        QVERIFY(Con(AbreVistaPersonal, [this](Abierta& forma) {
            QTest::keyClick(&forma.Selector(kSelCaracter + 1), Qt::Key_Space);
            QCOMPARE(estado.CaracterJugador(1), kAgresivo);
            QTest::keyClick(&forma.Selector(kSelCaracter + 1), Qt::Key_Return);
            QCOMPARE(estado.CaracterJugador(1), kConservador);
            QCOMPARE(Sonidos(), (std::vector<int>{6, 6}));
        }));
    }

    void ArrowsMoveASlider() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            QWidget& nivel = forma.En("Pic_Potenciometro_11");
            QTest::keyClick(&nivel, Qt::Key_Right);
            QCOMPARE(estado.NivelJugador(1), Integer{51});
            QTest::keyClick(&nivel, Qt::Key_PageUp);
            QCOMPARE(estado.NivelJugador(1), Integer{61});
            QTest::keyClick(&nivel, Qt::Key_Home);
            QCOMPARE(estado.NivelJugador(1), Integer{0});
        }));
    }

    void SpaceInvertsACheckBox() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            auto& pausa = forma.En<QAbstractButton>("Pic_Buleano_2");
            QVERIFY(pausa.isChecked());
            QTest::keyClick(&pausa, Qt::Key_Space);
            QVERIFY(!estado.PausaEntreJugadas);
            QVERIFY(!pausa.isChecked());
        }));
    }

    void AClickOnTheWordsOfACheckBoxInvertsItToo() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            auto& pausa = forma.En<QAbstractButton>("Pic_Buleano_2");
            const QPoint palabras(pausa.width() - 3, pausa.height() / 2);
            QTest::mouseClick(&pausa, Qt::LeftButton, {}, palabras);
            QVERIFY(!estado.PausaEntreJugadas);
            QTest::mouseClick(&pausa, Qt::LeftButton, {}, palabras);
            QVERIFY(estado.PausaEntreJugadas);
        }));
    }

    void EscIsTheExitButton() {
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            mesa_.sonidos.clear();
            QVERIFY(Con(abre, [](Abierta& forma) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
                QVERIFY(!forma.dialogo.isVisible());
            }));
            QCOMPARE(Sonidos(), std::vector<int>{9});
        }
    }

    // ---- Personal

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

    void TheHelpButtonsOpenTheirTopics() {
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                QTest::mouseClick(&forma.En("Pic_BotAyuda"), Qt::LeftButton);
            }));
        }
        QCOMPARE(mesa_.temas_ayuda, (std::vector<int>{2210, 2200}));
    }

    // ---- Normas

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

    // ---- on the desktop

    void InputWaitsWhileTheLogicPausesAndAsks() {
        QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        UsaPlataforma(escritorio);
        estado.CarpetaPrograma = estado.CarpetaTrabajo = escritorio.CarpetaDelPrograma();
        estado.SonidoActivo = false;
        bool en_la_pausa = false;
        QVERIFY(Con(AbreVistaNormas, [&](Abierta& forma) {
            // In the pause before the question: the press is kept for later.
            QTimer::singleShot(200, &forma.dialogo, [&] {
                forma.Pulsa(kSelReparto);
                en_la_pausa = estado.SistemaReparto == kRepartoAutomatico;
            });
            QTimer::singleShot(1200, &escritorio, [] {
                QWidget* caja = QApplication::activeModalWidget();
                QTest::mouseClick(caja->findChild<QWidget*>("Pic_No"), Qt::LeftButton);
            });
            QTest::mouseClick(&forma.En("Pic_Buleano_70"), Qt::LeftButton, {}, QPoint(8, 8));
            QTRY_COMPARE(estado.SistemaReparto, kRepartoManual);
            QVERIFY(forma.En<QAbstractButton>("Pic_Buleano_51").isChecked());
        }));
        QVERIFY(en_la_pausa);
    }

    void TheEndOfTheDesktopTakesAFormAndItsQuestionAway() {
        QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        UsaPlataforma(escritorio);
        escritorio.PonForma(Forma::Personal, AbreVistaPersonal);
        estado.SonidoActivo = false;
        bool preguntaba = false;
        QTimer::singleShot(0, &escritorio, [&] {
            Abierta forma(*qobject_cast<QDialog*>(QApplication::activeModalWidget()));
            QTimer::singleShot(100, &escritorio, [&] {
                preguntaba = QApplication::activeModalWidget()->objectName() == "mensajes";
                escritorio.PideTermina();
            });
            forma.Pulsa(kSelEstado + 1);
            forma.Pulsa(kSelCartas + 4);
        });
        escritorio.Abre(Forma::Personal);
        QVERIFY(preguntaba);
        QVERIFY(!personal::Abierta());
        QCOMPARE(estado.EstadoJugador(1), kActivado);
        QCOMPARE(estado.CartasJugador(4), kVisibles);
        QCOMPARE(estado.ControlJugador(4), kManual);
    }
};

QTEST_MAIN(PruebaFormas)
#include "forms_test.moc"
