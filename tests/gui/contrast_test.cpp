// What is written on the table stands out from its ground by 4.5 to 1 and more, whatever that ground is at the moment:
// each text is measured where it falls, against the picture that lay there before it.

#include <QTest>
#include <cstring>
#include <functional>
#include <map>
#include <set>
#include <string>

#include "core/default_settings.h"
#include "core/game_state.h"
#include "core/random.h"
#include "platform/headless/headless_platform.h"
#include "platform/qt/canvas_qt.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "table/bet_board.h"
#include "table/game_row.h"
#include "table/messages.h"
#include "table/options_menu.h"
#include "table/waiting.h"
#include "table/whole_table.h"
#include "tests/gui/contrast.h"

using namespace prueba;

namespace {

// Which of its pictures has been written on, what it was before, and the colour of the letters.
using AlEscribir =
    std::function<void(const QImage& antes, const QImage& despues, const QPoint& donde,
                       const std::string& texto, const QColor& letra)>;

class LienzoMedido : public LienzoRetenido {
public:
    using LienzoRetenido::LienzoRetenido;
    AlEscribir al_escribir;

    void Texto(int x, int y, std::string_view texto, const Fuente& fuente, Color color,
               Alineacion alineacion) override {
        const QRect banda = QRect(0, y - 2, Tamano().width(), 2 * fuente.alto + 4);
        const QImage antes = Cuadro().copy(banda);
        LienzoRetenido::Texto(x, y, texto, fuente, color, alineacion);
        al_escribir(antes, Cuadro().copy(banda), banda.topLeft(), std::string(texto),
                    ColorQt(color));
    }
};

// The desktop without a screen, all of whose texts are measured.
class MesaMedida : public PlataformaSinPantalla {
public:
    MesaMedida() : imagenes_(1) { siempre_continua = true; }

    std::map<std::string, double> peores; // below the least: what is written, with its control
    std::set<Control> escritos;

    bool HayPantalla() const override { return true; }
    Lienzo& LienzoDe(Control control, int indice) override {
        LienzoMedido& lienzo = Medido({control, indice});
        const QSize mesa(AnchoVentana(), AltoVentana());
        if (control == Control::Mesa && lienzo.Tamano() != mesa)
            lienzo.PonTamano(mesa, true);
        return lienzo;
    }
    void Coloca(Control control, int indice, const Rectangulo& donde) override {
        PlataformaSinPantalla::Coloca(control, indice, donde);
        const QSize tamano(donde.ancho, donde.alto);
        LienzoMedido& lienzo = Medido({control, indice});
        if (control != Control::Mesa && lienzo.Tamano() != tamano)
            lienzo.PonTamano(tamano, false);
    }
    void CargaBaraja(const std::string& ruta, int columnas) override {
        imagenes_.CargaBaraja(QString::fromStdString(ruta), columnas);
    }

private:
    LienzoMedido& Medido(ControlMesa cual) {
        const auto [donde, nuevo] = lienzos_.try_emplace(cual, imagenes_, FondoDe(cual.control));
        if (nuevo) {
            donde->second.al_escribir = [this, cual](const QImage& antes, const QImage& despues,
                                                     const QPoint& sitio, const std::string& texto,
                                                     const QColor& letra) {
                Mide(cual, antes, despues, sitio, texto, letra);
            };
        }
        return donde->second;
    }

    // A control without a ground of its own shows the table behind it.
    QColor FondoEn(ControlMesa cual, const QImage& antes, const QPoint& en_banda,
                   const QPoint& en_control) {
        const QColor propio = antes.pixelColor(en_banda);
        if (propio.alpha() == 255 || cual.control == Control::Mesa)
            return propio;
        const Rectangulo lugar = Tablero().LugarDe(cual);
        const QImage& mesa = Medido({Control::Mesa, 0}).Cuadro();
        const QPoint alli = en_control + QPoint(lugar.x, lugar.y);
        const QColor debajo =
            mesa.rect().contains(alli) ? mesa.pixelColor(alli) : QColor(0, 128, 0);
        const double a = propio.alphaF();
        const auto mezcla = [a](double encima, double abajo) {
            return a * encima + (1 - a) * abajo;
        };
        return QColor::fromRgbF(static_cast<float>(mezcla(propio.redF(), debajo.redF())),
                                static_cast<float>(mezcla(propio.greenF(), debajo.greenF())),
                                static_cast<float>(mezcla(propio.blueF(), debajo.blueF())));
    }

    // Over every point that a letter covers.
    void Mide(ControlMesa cual, const QImage& antes, const QImage& despues, const QPoint& sitio,
              const std::string& texto, const QColor& letra) {
        double peor = 21;
        for (int y = 0; y < antes.height(); ++y) {
            const auto ancho = static_cast<std::size_t>(antes.bytesPerLine());
            if (std::memcmp(antes.constScanLine(y), despues.constScanLine(y), ancho) == 0)
                continue;
            escritos.insert(cual.control);
            for (int x = 0; x < antes.width(); ++x) {
                const QPoint punto(x, y);
                if (antes.pixel(punto) == despues.pixel(punto))
                    continue;
                const QColor fondo = FondoEn(cual, antes, punto, sitio + punto);
                if (EsLetra(fondo, FondoEn(cual, despues, punto, sitio + punto), letra))
                    peor = std::min(peor, Contraste(letra, fondo));
            }
        }
        if (peor < kContrasteMinimo)
            peores[std::string(NombreDe(cual.control)) + " «" + texto + "»"] = peor;
    }

    Imagenes imagenes_;
    std::map<ControlMesa, LienzoMedido> lienzos_;
};

} // namespace

class PruebaContraste : public QObject {
    Q_OBJECT

    std::unique_ptr<MesaMedida> mesa_;

    void Empieza(int juego) {
        mesa_ = std::make_unique<MesaMedida>();
        UsaPlataforma(*mesa_);
        RegistraDespacho(DespachaEvento);
        FijaSemilla(5);
        estado = {};
        PonValoresPorDefecto();
        estado.SaltoLinea = "\r\n";
        estado.CarpetaPrograma = estado.CarpetaTrabajo =
            qEnvironmentVariable("ZOVIN_BIN").toStdString();
        estado.JuegoActivo = static_cast<Integer>(juego);
        CalcularMesa();
        IniciarSesion();
        estado.VelocidadJuego = 100;
        estado.PausaEntreJugadas = true;
        estado.VentanaInfo = 1;
        estado.LimitePartida = 1;
        estado.RestoInicial = 20;
        estado.ControlJugador(4) = kManual;
    }
    void NadaSeLeeMal() {
        for (const auto& [texto, contraste] : mesa_->peores)
            qWarning("%s: %.2f", texto.c_str(), contraste);
        QVERIFY(mesa_->peores.empty());
    }

private Q_SLOTS:
    void cleanup() { mesa_.reset(); }

    void UnaPartidaEntera_data() {
        QTest::addColumn<int>("juego");
        for (const FilaJuego* fila : FilasDeJuegos())
            QTest::newRow(fila->nombre) << int{fila->id};
    }
    // Names, captions, plates, the bet board, the buttons beside the seats and the green one.
    void UnaPartidaEntera() {
        QFETCH(int, juego);
        Empieza(juego);
        NuevaPartida();
        QVERIFY(mesa_->escritos.contains(Control::Mesa));
        QVERIFY(mesa_->escritos.contains(Control::Pic_BotContinuar));
        QCOMPARE(mesa_->escritos.contains(Control::Pic_Apostadora),
                 static_cast<bool>(JuegoEnMesa().dinero.hay));
        QCOMPARE(mesa_->escritos.contains(Control::Pic_Tantos),
                 JuegoEnMesa().pintura.puntos != nullptr);
        NadaSeLeeMal();
    }

    void TodasLasSugerencias() {
        Empieza(kTute);
        for (int tip = 1; tip <= decltype(estado.Sugerencias)::kTopes[0]; ++tip)
            MostrarSugerencia(tip);
        QVERIFY(mesa_->escritos.contains(Control::Pic_Sugerencia));
        QVERIFY(mesa_->escritos.contains(Control::Pic_MasAyuda));
        NadaSeLeeMal();
    }

    void ElMenuDeOrdenar() {
        Empieza(kTute);
        PonOpciones(true);
        MuestraOpciones();
        QVERIFY(mesa_->escritos.contains(Control::Pic_SelOpciones));
        NadaSeLeeMal();
    }

    // That a bad ground is found.
    void LoQueSeLeeMalSeEncuentra() {
        Empieza(kTute);
        Lienzo& lienzo = mesa_->LienzoDe(Control::Mesa, 0);
        lienzo.Caja({0, 0, 200, 40}, color::kMarfil);
        lienzo.Texto(10, 10, "Amarillo sobre marfil", {.alto = 14}, color::kAmarillo,
                     Alineacion::Izquierda);
        QCOMPARE(mesa_->peores.size(), std::size_t{1});
        QVERIFY(mesa_->peores.begin()->second < 1.5);
    }
};

QTEST_MAIN(PruebaContraste)
#include "contrast_test.moc"
