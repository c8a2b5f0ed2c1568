// How large the help is: with the table's factor, on screens of several sizes and scales, and what is being read when
// that changes.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "core/game_state.h"
#include "platform/qt/card_images.h"
#include "platform/qt/help_pictures.h"
#include "platform/qt/help_viewer.h"
#include "platform/qt/scale.h"
#include "tests/gui/test_screens.h"

namespace {

constexpr prueba::Pantalla kPantallas[] = {
    {"la menor", 800, 600, "1"},
    {"una grande", 2560, 1440, "1"},
    {"una fina a doble escala", 3200, 2000, "2"},
};

constexpr double kFactores[] = {1, 1.25, 1.5, 1.75, 2, 2.5, 3};
constexpr int kReglas = 3130; // a long page: the rules of Tute
constexpr auto kParrafo = "Después de cada baza un jugador";
constexpr QSize kPrimera(980, 680);
constexpr QSize kMarco(16, 40);

QString Paginas() {
    return qEnvironmentVariable("ZOVIN_SOURCE") + "/assets/help";
}
QStringList Barajas() {
    return {qEnvironmentVariable("ZOVIN_BIN")};
}

QRect Libre() {
    return QGuiApplication::primaryScreen()->availableGeometry();
}

QTextBrowser& Hoja(VistaAyuda& ayuda) {
    return *ayuda.findChild<QTextBrowser*>();
}

// The size of the letters of these words, in points.
double PuntosDe(VistaAyuda& ayuda, const QString& palabras) {
    QTextCursor donde = Hoja(ayuda).document()->find(palabras);
    donde.setPosition(donde.selectionEnd());
    return donde.charFormat().fontPointSize();
}

// The paragraph at the head of the sheet, by its number.
int Cabeza(VistaAyuda& ayuda) {
    return Hoja(ayuda).cursorForPosition({30, 0}).blockNumber();
}

void AbreA(VistaAyuda& ayuda, const QSize& tamano) {
    ayuda.MuestraTema(0);
    QCoreApplication::processEvents(); // it has come to its place; what is asked of it now stays
    ayuda.resize(tamano);
    QCoreApplication::processEvents();
}

QStringList Marcadas(const QTextBrowser& hoja) {
    QStringList marcadas;
    for (const auto& marca : hoja.extraSelections())
        marcadas << marca.cursor.selectedText();
    return marcadas;
}

void PonALaCabeza(VistaAyuda& ayuda, const QString& palabras) {
    QTextBrowser& hoja = Hoja(ayuda);
    const QTextCursor donde = hoja.document()->find(palabras);
    hoja.verticalScrollBar()->setValue(hoja.verticalScrollBar()->value() +
                                       hoja.cursorRect(donde).top() + 4);
}

// The steps that the table can have on this screen.
std::vector<double> Posibles() {
    std::vector<double> posibles;
    for (const double factor : kFactores) {
        if (FactorPara(Libre().size(), factor, 1) == factor)
            posibles.push_back(factor);
    }
    return posibles;
}

// The first above one and the last.
std::vector<double> Extremos() {
    const std::vector<double> todos = Posibles();
    return {todos[todos.size() > 1 ? 1 : 0], todos.back()};
}

void PonFactor(VistaAyuda& ayuda, double factor, const QRect& mesa = QRect()) {
    PonFactorDeMesa(factor);
    ayuda.CreceConLaMesa(mesa);
    QCoreApplication::processEvents();
}

// Whether the picture stands somewhere in the other one, all its full pixels as they are.
bool EstaEn(const QImage& todo, const QImage& dibujo) {
    const auto igual_en = [&](int x0, int y0) {
        for (int y = 0; y < dibujo.height(); ++y) {
            for (int x = 0; x < dibujo.width(); ++x) {
                const QRgb punto = dibujo.pixel(x, y);
                if (qAlpha(punto) == 255 && todo.pixel(x0 + x, y0 + y) != punto)
                    return false;
            }
        }
        return true;
    };
    for (int y = 0; y + dibujo.height() <= todo.height(); ++y) {
        for (int x = 0; x + dibujo.width() <= todo.width(); ++x) {
            if (igual_en(x, y))
                return true;
        }
    }
    return false;
}

} // namespace

class PruebaTamanoDeAyuda : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;

private Q_SLOTS:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        for (const auto& [nombre, texto] :
             {std::pair{"contents.txt", "10 | Una carta | 0\n"},
              std::pair{"10.html", "<p>La <img src='carta:oros/sota' alt=''> y "
                                   "<img src='puntero:mano_verde' alt=''>.</p>"},
              std::pair{"index.html", "<p>Nada</p>"}}) {
            QFile fichero(carpeta_.filePath(nombre));
            QVERIFY(fichero.open(QIODevice::WriteOnly));
            fichero.write(texto);
        }
    }
    void init() {
        PonFactorDeMesa(1);
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
            .removeRecursively();
    }
    void cleanup() { PonFactorDeMesa(1); }

    // ---- as large as the table

    void AlAbrirseEsTanGrandeComoLaMesa_data() {
        QTest::addColumn<double>("factor");
        for (const double factor : Posibles())
            QTest::addRow("%g", factor) << factor;
    }
    void AlAbrirseEsTanGrandeComoLaMesa() {
        QFETCH(double, factor);
        PonFactorDeMesa(factor);
        VistaAyuda ayuda(Paginas(), Barajas());
        ayuda.MuestraTema(kReglas);
        QCOMPARE(ayuda.Aumento(), factor);
        QCOMPARE(ayuda.size(), (kPrimera * factor).boundedTo(Libre().size() - kMarco));
        QCOMPARE(ayuda.findChild<QTreeWidget*>()->font().pixelSize(), qRound(14 * factor));
        QCOMPARE(ayuda.findChild<QLineEdit*>()->font().pixelSize(), qRound(14 * factor));
        QCOMPARE(ayuda.findChild<QPushButton*>()->height(), qRound(34 * factor));
        QCOMPARE(PuntosDe(ayuda, kParrafo), 12 * factor);
        QCOMPARE(PuntosDe(ayuda, "Tute"), 20 * factor);
    }

    void AbiertaCreceYMenguaConLaMesa() {
        VistaAyuda ayuda(Paginas(), Barajas());
        ayuda.MuestraTema(kReglas);
        for (const double factor : {2.0, 1.25, 3.0, 1.0}) {
            PonFactor(ayuda, factor);
            QVERIFY(Libre().contains(ayuda.frameGeometry()));
            const double aumento = ayuda.Aumento(); // less on a screen too small for it
            QVERIFY(aumento == factor || std::ranges::count(Posibles(), factor) == 0);
            QVERIFY(std::abs(PuntosDe(ayuda, kParrafo) - 12 * aumento) < 0.001);
            QCOMPARE(ayuda.findChild<QTreeWidget*>()->font().pixelSize(), qRound(14 * aumento));
            QCOMPARE(ayuda.findChild<QPushButton*>()->height(), qRound(34 * aumento));
        }
        const QSize marco = ayuda.frameGeometry().size() - ayuda.size();
        QCOMPARE(ayuda.size(),
                 kPrimera.boundedTo(Libre().size() -
                                    marco)); // what found no room meanwhile is not forgotten
    }

    void ElTamanoQueDaElJugadorCreceDesdeAhi() {
        VistaAyuda ayuda(carpeta_.path());
        ayuda.MuestraTema(0);
        ayuda.resize(500, 300);
        PonFactor(ayuda, 1.5);
        QCOMPARE(ayuda.size(), QSize(500, 300) * ayuda.Aumento());
        PonFactor(ayuda, 1);
        QCOMPARE(ayuda.size(), QSize(500, 300));
    }

    void LasHojasDeMesaCabenTambienCrecidas() {
        for (const double factor : Extremos()) {
            PonFactorDeMesa(factor);
            VistaAyuda ayuda(Paginas(), Barajas());
            AbreA(ayuda, kPrimera * factor);
            const QTextBrowser& hoja = Hoja(ayuda);
            for (const int tema : {3119, 3129, 3139, 3149, 3159, 3169}) {
                ayuda.MuestraTema(tema);
                const double sobra = hoja.viewport()->height() - hoja.document()->size().height();
                QVERIFY2(
                    sobra >= 0,
                    qPrintable(QStringLiteral("%1 a %2: %3").arg(tema).arg(factor).arg(sobra)));
                QCOMPARE(hoja.horizontalScrollBar()->maximum(), 0);
            }
        }
    }

    void NingunaPaginaSeSaleDeLaVentanaCrecida() {
        for (const double factor : Extremos()) {
            PonFactorDeMesa(factor);
            VistaAyuda ayuda(Paginas(), Barajas());
            AbreA(ayuda, kPrimera * factor);
            for (const int tema : {1010, 2100, 3130, 3131, 3140, 3160}) { // the broad ones
                ayuda.MuestraTema(tema);
                QVERIFY2(Hoja(ayuda).horizontalScrollBar()->maximum() == 0,
                         qPrintable(QStringLiteral("%1 a %2").arg(tema).arg(factor)));
            }
        }
    }

    // ---- what is being read

    void LoQueSeLeeSigueALaVista() {
        VistaAyuda ayuda(Paginas(), Barajas());
        ayuda.MuestraTema(kReglas);
        PonALaCabeza(ayuda, kParrafo);
        const int leido = Cabeza(ayuda), corrido = Hoja(ayuda).verticalScrollBar()->value();
        QVERIFY(leido > 5);
        for (const double factor : {1.25, 2.0, 3.0, 1.5, 1.0}) {
            PonFactor(ayuda, factor);
            QCOMPARE(Cabeza(ayuda), leido);
        }
        QCOMPARE(Hoja(ayuda).verticalScrollBar()->value(), corrido);
    }

    void AlEstrecharLaVentanaTampocoSePierde() {
        VistaAyuda ayuda(Paginas(), Barajas());
        ayuda.MuestraTema(kReglas);
        PonALaCabeza(ayuda, kParrafo);
        const int leido = Cabeza(ayuda), corrido = Hoja(ayuda).verticalScrollBar()->value();
        const QSize antes = ayuda.size();
        for (int ancho = antes.width(); ancho > 560; ancho -= 7) {
            ayuda.resize(ancho, antes.height());
            QCOMPARE(Cabeza(ayuda), leido);
        }
        ayuda.resize(antes);
        QCOMPARE(Hoja(ayuda).verticalScrollBar()->value(), corrido);
    }

    void OtraPaginaEmpiezaPorArriba() {
        VistaAyuda ayuda(Paginas(), Barajas());
        ayuda.MuestraTema(kReglas);
        PonALaCabeza(ayuda, kParrafo);
        PonFactor(ayuda, 1.5);
        ayuda.MuestraTema(3140);
        PonFactor(ayuda, 2);
        QCOMPARE(Hoja(ayuda).verticalScrollBar()->value(), 0);
    }

    void LoElegidoYLoMarcadoSigueElegidoYMarcado() {
        VistaAyuda ayuda(Paginas(), Barajas());
        ayuda.MuestraTema(kReglas);
        ayuda.findChild<QLineEdit*>()->setText("triunfo");
        QTextBrowser& hoja = Hoja(ayuda);
        hoja.setTextCursor(hoja.document()->find(kParrafo));
        const QStringList marcadas = Marcadas(hoja);
        QVERIFY(marcadas.contains("triunfo"));
        PonFactor(ayuda, 1.75);
        QCOMPARE(hoja.textCursor().selectedText(), kParrafo);
        QCOMPARE(Marcadas(hoja), marcadas);
    }

    void AtrasSigueVolviendoALaPaginaDeAntes() {
        VistaAyuda ayuda(Paginas(), Barajas());
        ayuda.MuestraTema(kReglas);
        ayuda.MuestraTema(3140);
        PonFactor(ayuda, 2);
        PonFactor(ayuda, 1);
        Hoja(ayuda).backward();
        QVERIFY(Hoja(ayuda).source().fileName().startsWith(QString::number(kReglas)));
        QVERIFY(!Hoja(ayuda).isBackwardAvailable());
    }

    // ---- how it is drawn

    // A card of the page is to the pixel the card that is painted for so many pixels of the screen.
    void LosDibujosSonNitidos_data() { AlAbrirseEsTanGrandeComoLaMesa_data(); }
    void LosDibujosSonNitidos() {
        QFETCH(double, factor);
        VistaAyuda ayuda(carpeta_.path(), Barajas());
        ayuda.MuestraTema(10);
        PonFactor(ayuda, factor);
        const double ratio = ayuda.devicePixelRatioF(), ancho = 44 * factor * ratio;
        Imagenes justas(ancho / kAnchoCarta);
        justas.CargaBaraja(Barajas().front() + "/Baraja02.bmp", 12);
        const QImage sota =
            justas.Carta({.palo = 1, .valor = 10, .cara = kDescubierta, .orientacion = 1});
        QVERIFY(std::abs(sota.width() - ancho) <= 1);
        QWidget* vista = Hoja(ayuda).viewport();
        const QImage pagina = vista->grab(QRect(0, 0, vista->width(), qRound(200 * factor)))
                                  .toImage()
                                  .convertToFormat(QImage::Format_ARGB32);
        QVERIFY(EstaEn(pagina, sota.convertToFormat(QImage::Format_ARGB32)));
        DibujosAyuda dibujos(carpeta_.path(), Barajas());
        QImage mano = dibujos.Dibujo(QUrl("puntero:mano_verde"), ratio, factor);
        QCOMPARE(mano.width(), qRound(32 * factor * ratio));
        QVERIFY(EstaEn(pagina, mano.convertToFormat(QImage::Format_ARGB32)));
    }

    void UnaFotoNoSeEstira() {
        DibujosAyuda dibujos(Paginas(), Barajas());
        const int suyo = QImage(Paginas() + "/mesa.png").width();
        QVERIFY(suyo >= 1200); // sharp at twice the size
        QCOMPARE(dibujos.Dibujo(QUrl("foto:mesa.png/600"), 1, 2).width(), 1200);
        QCOMPARE(dibujos.Dibujo(QUrl("foto:mesa.png/600"), 2, 3).width(), suyo);
        QCOMPARE(dibujos.Dibujo(QUrl("foto:mesa.png/600"), 1, 2, 500).width(), 500);
    }

    // Its picture is 600 pixels wide, the page most often less.
    void LaMesaDeLaAyudaCabeEnLaPagina() {
        VistaAyuda ayuda(Paginas(), Barajas());
        ayuda.MuestraTema(0);
        ayuda.MuestraTema(2100);
        QCoreApplication::processEvents();
        const QScrollBar& de_lado = *Hoja(ayuda).horizontalScrollBar();
        QCOMPARE(de_lado.maximum(), 0);
        PonALaCabeza(ayuda, "El mazo y");
        const int leido = Cabeza(ayuda);
        for (const int ancho : {640, 780, 700}) {
            ayuda.resize(ancho, ayuda.height());
            QCOMPARE(de_lado.maximum(), 0);
            QCOMPARE(Cabeza(ayuda), leido);
        }
        PonFactor(ayuda, 1.5);
        QCOMPARE(de_lado.maximum(), 0);
        QCOMPARE(Cabeza(ayuda), leido);
    }

    // ---- where it stands

    void JuntoALaMesaSiHaySitio() {
        const QRect mesa(0, 0, 1600, 900);
        PonFactorDeMesa(1.25);
        VistaAyuda ayuda(carpeta_.path());
        ayuda.MuestraTema(0, mesa);
        QVERIFY(Libre().contains(ayuda.frameGeometry()));
        const bool hay_sitio = Libre().width() - mesa.width() >= 640 * 1.25;
        QCOMPARE(!ayuda.frameGeometry().intersects(mesa), hay_sitio);
        PonFactor(ayuda, 1.5, mesa);
        QVERIFY(Libre().contains(ayuda.frameGeometry()));
        QCOMPARE(!ayuda.frameGeometry().intersects(mesa), hay_sitio);
    }

    void LoGuardadoCreceConElFactorDeAhora() {
        {
            VistaAyuda ayuda(carpeta_.path());
            ayuda.MuestraTema(0);
            ayuda.setGeometry(30, 20, 400, 300);
            ayuda.close();
        }
        PonFactorDeMesa(1.5);
        VistaAyuda otra(carpeta_.path());
        otra.MuestraTema(0);
        QCOMPARE(otra.size(), QSize(400, 300) * otra.Aumento());
        QCOMPARE(otra.geometry().topLeft(), QPoint(30, 20));
        PonFactorDeMesa(3);
        otra.close();
        VistaAyuda enorme(carpeta_.path());
        enorme.MuestraTema(0);
        QVERIFY(Libre().contains(enorme.frameGeometry()));
    }

    void LoGuardadoQueNoValeNoCuenta_data() {
        QTest::addColumn<QVariant>("en_mesa");
        constexpr double kInfinito = std::numeric_limits<double>::infinity();
        QTest::newRow("nada") << QVariant();
        QTest::newRow("vacío") << QVariant(QSizeF(0, 0));
        QTest::newRow("negativo") << QVariant(QSizeF(-5, 300));
        QTest::newRow("enorme") << QVariant(QSizeF(1e300, 1e300));
        QTest::newRow("infinito") << QVariant(QSizeF(kInfinito, kInfinito));
        QTest::newRow("no es un número") << QVariant(QSizeF(std::nan(""), std::nan("")));
        QTest::newRow("letras") << QVariant("grande");
    }
    void LoGuardadoQueNoValeNoCuenta() {
        QFETCH(QVariant, en_mesa);
        {
            VistaAyuda ayuda(carpeta_.path());
            ayuda.MuestraTema(0);
        }
        QSettings(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                      "/ventana.ini",
                  QSettings::IniFormat)
            .setValue("ayuda/en_mesa", en_mesa);
        VistaAyuda otra(carpeta_.path());
        otra.MuestraTema(0);
        QVERIFY(Libre().contains(otra.frameGeometry()));
        QVERIFY(otra.width() > 300 && otra.height() > 200);
    }
};

int main(int argc, char** argv) {
    return prueba::CorreEnPantallas<PruebaTamanoDeAyuda>(kPantallas, argc, argv);
}

#include "help_size_test.moc"
