#include "forms/personal_view.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <array>
#include <map>
#include <vector>

#include "core/game_state.h"
#include "forms/controls_view.h"
#include "forms/form.h"
#include "forms/form_view.h"
#include "forms/personal.h"
#include "forms/selector.h"
#include "platform/qt/canvas_qt.h"

namespace {

constexpr int kMargen = 12, kHueco = 4;
constexpr int kAltoBanda = 4 + estilo::kAltoBanda + 2;
constexpr std::array kLugares{"", "izquierda", "arriba", "derecha", "abajo"};

QString Qt8(const std::string& texto) {
    return QString::fromStdString(texto);
}

QString Titulo(int control) {
    return Qt8(estado.TituloSelector(control)).trimmed();
}

// Words that go with a seat, for who does not see where its panel stands.
QString DelAsiento(const QString& que, int asiento) {
    return asiento == 0 ? que
                        : QStringLiteral("%1 (%2)").arg(
                              que, QString::fromUtf8(kLugares[static_cast<std::size_t>(asiento)]));
}

// Which way the turn goes round the table.
class Rosa : public QWidget {
public:
    explicit Rosa(QWidget* padre) : QWidget(padre) {
        setObjectName(QStringLiteral("Pic_Sentido"));
        setFixedSize(lamina::kSentidoDirecto.ancho, lamina::kSentidoDirecto.alto);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        estilo::PintorDeVista p(this);
        estilo::PintaPieza(p, QPointF(0, 0),
                           estado.SentidoJuego == kInverso ? lamina::kSentidoInverso
                                                           : lamina::kSentidoDirecto);
    }
};

// The name of a seat in a frame of its own.
class Nombre : public QWidget {
public:
    Nombre(int asiento, QWidget* padre) : QWidget(padre), texto(new TextoVista(this)) {
        setFixedSize(forma::kAnchoEstrecho, forma::kAltoCelda);
        texto->setObjectName(QStringLiteral("Txt_Nombre_%1").arg(asiento));
        texto->setAccessibleName(DelAsiento(QStringLiteral("Nombre"), asiento));
        texto->setGeometry(8, 18, forma::kAnchoEstrecho - 16, 22);
    }
    TextoVista* const texto;

protected:
    void paintEvent(QPaintEvent*) override {
        estilo::PintorDeVista p(this);
        p.setFont(LetraDe({.alto = 11, .negrita = true}));
        p.setPen(palette().color(QPalette::WindowText));
        estilo::PintaTexto(p, QRect(8, 0, estilo::CajaDe(*this).width() - 8, 15), Qt::AlignVCenter,
                           QStringLiteral("Nombre..:"));
    }
};

// A hidden control keeps its place.
template <class T>
T* ConSitio(T* control) {
    QSizePolicy norma = control->sizePolicy();
    norma.setRetainSizeWhenHidden(true);
    control->setSizePolicy(norma);
    return control;
}

class PersonalVista : public FormaVista {
public:
    explicit PersonalVista(QWidget* sobre)
        : FormaVista(QStringLiteral("Personalizar"), *MandosDe(Forma::Personal), kAyudaPersonal,
                     sobre) {
        setObjectName(QStringLiteral("Personal"));
        auto* rejilla = new QGridLayout(this);
        rejilla->setContentsMargins(kMargen + 4, kAltoBanda + kMargen, kMargen + 4, kMargen + 4);
        rejilla->setHorizontalSpacing(kMargen);
        rejilla->setVerticalSpacing(8);
        rejilla->addLayout(HazIzquierda(), 0, 0, 3, 1);
        rejilla->addWidget(HazPanel(2, 2), 0, 1, Qt::AlignCenter);
        rejilla->addLayout(HazCentro(), 1, 1);
        rejilla->addWidget(HazPanel(4, 2), 2, 1, Qt::AlignCenter);
        rejilla->addLayout(HazDerecha(), 0, 2, 3, 1);
        OrdenaTabulador();
        setFixedSize(sizeHint());
    }

private:
    // ---- making

    QWidget* HazSelector(int control, QWidget* padre, int ancho) {
        auto* vista = new SelectorVista(
            Titulo(control), DelAsiento(Titulo(control), AsientoDe(control)), ancho, padre);
        vista->setObjectName(QStringLiteral("Pic_Selector_%1").arg(control));
        connect(vista, &QAbstractButton::clicked, this,
                [this, control] { Atiende([control] { personal::PulsaSelector(control); }); });
        selectores_[control] = vista;
        return ConSitio(vista);
    }

    QWidget* HazDeslizador(int control, const QString& titulo, QWidget* padre, int ancho) {
        const int asiento = control == personal::kVelocidad ? 0 : control - personal::kNivel;
        auto* vista = new DeslizadorVista(titulo, DelAsiento(titulo, asiento), ancho, padre);
        vista->setObjectName(QStringLiteral("Pic_Potenciometro_%1").arg(control));
        connect(vista, &QSlider::valueChanged, this, [this, control](int valor) {
            if (valor != personal::Potenciometro(control))
                Atiende([=] { personal::Desliza(control, valor); });
        });
        deslizadores_[control] = vista;
        return ConSitio(vista);
    }

    QWidget* HazCasilla(int control, const QString& texto) {
        auto* vista = new CasillaVista(texto, this);
        vista->setObjectName(QStringLiteral("Pic_Buleano_%1").arg(control));
        connect(vista, &QAbstractButton::clicked, this,
                [this, control] { Atiende([control] { personal::PulsaBuleano(control); }); });
        casillas_[control] = vista;
        return vista;
    }

    QWidget* HazNombre(int asiento, QWidget* padre) {
        auto* vista = new Nombre(asiento, padre);
        nombres_[asiento] = vista->texto;
        connect(vista->texto, &QLineEdit::textEdited, this,
                [this, asiento] { Escribe(static_cast<Integer>(asiento)); });
        return vista;
    }

    // The panel of a seat: name, state, control, cards, character and level, in so many columns.
    QWidget* HazPanel(int asiento, int columnas) {
        auto* panel = new PanelHundido(this);
        QPalette paleta = panel->palette();
        paleta.setColor(QPalette::WindowText, estilo::kTitulo);
        panel->setPalette(paleta);
        panel->setAccessibleName(DelAsiento(QStringLiteral("Jugador"), asiento));
        auto* rejilla = new QGridLayout(panel);
        rejilla->setContentsMargins(kMargen, kMargen, kMargen, kMargen);
        rejilla->setSpacing(kHueco);
        const std::array<QWidget*, 6> celdas{
            HazNombre(asiento, panel),
            HazSelector(kSelEstado + asiento, panel, forma::kAnchoEstrecho),
            HazSelector(kSelControl + asiento, panel, forma::kAnchoEstrecho),
            HazSelector(kSelCartas + asiento, panel, forma::kAnchoEstrecho),
            HazSelector(kSelCaracter + asiento, panel, forma::kAnchoEstrecho),
            HazDeslizador(personal::kNivel + asiento, QStringLiteral("Nivel de Juego"), panel,
                          forma::kAnchoEstrecho)};
        for (int i = 0; i < 6; ++i)
            rejilla->addWidget(celdas[static_cast<std::size_t>(i)], i / columnas, i % columnas);
        panel->setFixedSize(rejilla->sizeHint());
        return panel;
    }

    QLayout* HazIzquierda() {
        auto* columna = new QVBoxLayout;
        columna->addWidget(HazDeslizador(personal::kVelocidad, QStringLiteral("Velocidad de juego"),
                                         this, forma::kAnchoAncho),
                           0, Qt::AlignHCenter);
        columna->addStretch();
        columna->addWidget(HazPanel(1, 1), 0, Qt::AlignHCenter);
        columna->addStretch();
        ayuda_ = HazBotonAyuda();
        columna->addWidget(ayuda_, 0, Qt::AlignHCenter);
        return columna;
    }

    QLayout* HazDerecha() {
        auto* columna = new QVBoxLayout;
        columna->addWidget(HazCasillas(), 0, Qt::AlignHCenter);
        columna->addStretch();
        columna->addWidget(HazPanel(3, 1), 0, Qt::AlignHCenter);
        columna->addStretch();
        salir_ = HazBotonSalir();
        columna->addWidget(salir_, 0, Qt::AlignHCenter);
        return columna;
    }

    QWidget* HazCasillas() {
        auto* dos = new QWidget(this);
        dos->setFixedSize(forma::kAnchoAncho, forma::kAltoCelda);
        auto* columna = new QVBoxLayout(dos);
        columna->setContentsMargins(kMargen, 0, 0, 0);
        columna->setSpacing(0);
        columna->addWidget(HazCasilla(personal::kSonido, QStringLiteral("Sonido")));
        columna->addWidget(HazCasilla(personal::kPausa, QStringLiteral("Pausa entre jugadas")));
        return dos;
    }

    QLayout* HazCentro() {
        auto* rejilla = new QGridLayout;
        rejilla->setSpacing(kHueco);
        rosa_ = new Rosa(this);
        rejilla->addWidget(rosa_, 0, 0, 1, 2, Qt::AlignCenter);
        rejilla->addWidget(HazSelector(kSelSentido, this, forma::kAnchoAncho), 1, 0);
        rejilla->addWidget(HazSelector(kSelVentana, this, forma::kAnchoAncho), 1, 1);
        return rejilla;
    }

    // The keyboard goes through the table's settings, round the seats, and out.
    void OrdenaTabulador() {
        std::vector<QWidget*> orden{deslizadores_.at(personal::kVelocidad),
                                    casillas_.at(personal::kSonido),
                                    casillas_.at(personal::kPausa)};
        for (int asiento = 1; asiento <= 4; ++asiento) {
            orden.push_back(nombres_.at(asiento));
            for (int clase : {kSelEstado, kSelControl, kSelCartas, kSelCaracter})
                orden.push_back(selectores_.at(clase + asiento));
            orden.push_back(deslizadores_.at(personal::kNivel + asiento));
        }
        orden.insert(orden.end(),
                     {selectores_.at(kSelSentido), selectores_.at(kSelVentana), ayuda_, salir_});
        for (std::size_t i = 1; i < orden.size(); ++i)
            setTabOrder(orden[i - 1], orden[i]);
    }

    // ---- showing

    void Refresca() override {
        for (const auto& [control, vista] : selectores_) {
            vista->Muestra(Qt8(TextoActual(control)));
            vista->setVisible(personal::SeVeSelector(control));
        }
        for (const auto& [control, vista] : deslizadores_) {
            const bool se_ve = personal::SeVePotenciometro(control);
            vista->setVisible(se_ve);
            if (se_ve)
                vista->Muestra(personal::Potenciometro(control),
                               Qt8(personal::TextoPotenciometro(control)));
        }
        for (const auto& [control, vista] : casillas_)
            vista->setChecked(personal::Buleano(control));
        for (const auto& [asiento, texto] : nombres_)
            MuestraNombre(static_cast<Integer>(asiento), *texto);
        rosa_->update();
    }

    static void MuestraNombre(Integer asiento, TextoVista& texto) {
        texto.setReadOnly(!personal::SeEscribeNombre(asiento));
        const QString nombre = Qt8(estado.NombreJugador(asiento));
        if (texto.text() != nombre)
            texto.setText(nombre);
    }

    // The cursor stays behind what has been typed, whatever became of it.
    void Escribe(Integer asiento) {
        TextoVista& texto = *nombres_.at(asiento);
        const QString escrito = texto.text();
        const QString hasta_aqui = escrito.left(texto.cursorPosition());
        const std::string delante = personal::FormaNombre(hasta_aqui.toStdString());
        Atiende([&] { personal::EscribeNombre(asiento, escrito.toStdString()); });
        if (texto.text() != escrito)
            texto.setCursorPosition(static_cast<int>(Qt8(delante).size()));
    }

    std::map<int, SelectorVista*> selectores_;
    std::map<int, DeslizadorVista*> deslizadores_;
    std::map<int, CasillaVista*> casillas_;
    std::map<int, TextoVista*> nombres_;
    Rosa* rosa_ = nullptr;
    QWidget *ayuda_ = nullptr, *salir_ = nullptr;
};

} // namespace

std::unique_ptr<FormaVista> HazVistaPersonal(QWidget* sobre) {
    return std::make_unique<PersonalVista>(sobre);
}

void AbreVistaPersonal(QWidget* sobre) {
    HazVistaPersonal(sobre)->Muestra(sobre);
}
