// What is written in the forms, the reports, the boxes and the help stands out from its ground by 4.5 to 1 and more, as
// measured in pictures of them.

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "forms/normas_view.h"
#include "forms/personal_view.h"
#include "platform/qt/help_viewer.h"
#include "platform/qt/message_box.h"
#include "platform/qt/splash.h"
#include "reports/historic_view.h"
#include "reports/marcador_view.h"
#include "table/game_row.h"
#include "tests/gui/open_form.h"
#include "tests/gui/written_words.h"

using namespace prueba;

namespace {

bool SeLee(Abre abre) {
    bool bien = false;
    return Con(abre, [&](Abierta& forma) { bien = TodoSeLee(forma.dialogo); }) && bien;
}

} // namespace

class PruebaContrasteDeVentanas : public QObject, protected MesaDeFormas {
    Q_OBJECT

    static void LosJuegos() {
        QTest::addColumn<int>("juego");
        for (const FilaJuego* fila : FilasDeJuegos())
            QTest::newRow(fila->nombre) << int{fila->id};
    }

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void LasFormas_data() { LosJuegos(); }
    void LasFormas() {
        QFETCH(int, juego);
        Empieza(static_cast<Integer>(juego));
        QVERIFY(SeLee(AbreVistaPersonal));
        QVERIFY(SeLee(AbreVistaNormas));
    }

    void LosInformes_data() { LosJuegos(); }
    void LosInformes() {
        QFETCH(int, juego);
        Empieza(static_cast<Integer>(juego));
        JuegaUnaPartida();
        QVERIFY(SeLee(AbreVistaMarcador));
        QVERIFY(SeLee(AbreVistaHistoric));
    }

    void LasCajas() {
        for (const int modo : {1, 2, 3}) {
            CajaQt caja(
                {.titulo = "Final de la mano",
                 .texto = "Ana : 70 tantos.\r\nEva : 60 tantos.\r\n\r\nHa ganado la mano Ana",
                 .lineas = 4,
                 .modo = modo},
                nullptr);
            caja.ensurePolished();
            QVERIFY(TodoSeLee(caja));
        }
    }

    void LaCareta() {
        Careta careta;
        QVERIFY(TodoSeLee(careta));
    }

    void LaAyuda() {
        const QString paginas = qEnvironmentVariable("ZOVIN_SOURCE") + "/assets/help";
        VistaAyuda ayuda(paginas, {qEnvironmentVariable("ZOVIN_BIN")});
        ayuda.MuestraTema(0);
        auto* hoja = ayuda.findChild<QTextBrowser*>();
        for (const PaginaAyuda& pagina : LeeContenido(paginas)) {
            ayuda.MuestraTema(pagina.tema);
            ayuda.resize(980, 680);
            QCoreApplication::processEvents();
            ayuda.resize(980, 680 + hoja->verticalScrollBar()->maximum());
            QCoreApplication::processEvents();
            QVERIFY2(TodoSeLee(ayuda), qPrintable(pagina.titulo));
        }
    }

    void LaAyudaMientrasSeBusca() {
        VistaAyuda ayuda(qEnvironmentVariable("ZOVIN_SOURCE") + "/assets/help");
        ayuda.MuestraTema(3130);
        auto* busca = ayuda.findChild<QLineEdit*>();
        for (const char* palabras : {"cante", "zzz"}) {
            busca->setText(palabras);
            QCoreApplication::processEvents();
            QVERIFY(TodoSeLee(ayuda));
        }
    }

    // That the words are looked for where they are, and that those which cannot be read are found.
    void LoQueSeLeeMalSeEncuentra() {
        QWidget ventana;
        auto* columna = new QVBoxLayout(&ventana);
        for (const auto& [texto, letra, se_puede] :
             {std::tuple{"Amarillo", Qt::yellow, true}, std::tuple{"Negro", Qt::black, true},
              std::tuple{"Gris", Qt::lightGray, false}}) {
            auto* linea = new QLabel(texto);
            QPalette paleta(Qt::white);
            paleta.setColor(QPalette::WindowText, letra);
            linea->setPalette(paleta);
            linea->setAutoFillBackground(true);
            linea->setEnabled(se_puede);
            columna->addWidget(linea);
        }
        ventana.resize(200, 120);
        const std::vector<Leido> leidos = LoEscritoEn(ventana);
        QCOMPARE(leidos.size(), std::size_t{2});
        QCOMPARE(leidos[0].texto, "Amarillo");
        QVERIFY(leidos[0].contraste > 1 && leidos[0].contraste < 1.5);
        QCOMPARE(leidos[1].texto, "Negro");
        QVERIFY(leidos[1].contraste > 15);
        QVERIFY(!TodoSeLee(ventana));
    }
};

QTEST_MAIN(PruebaContrasteDeVentanas)
#include "window_contrast_test.moc"
