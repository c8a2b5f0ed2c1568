#include "forms/normas_view.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <map>

#include "core/game_state.h"
#include "forms/controls_view.h"
#include "forms/form.h"
#include "forms/form_view.h"
#include "forms/normas.h"
#include "forms/selector.h"
#include "forms/spin.h"
#include "platform/qt/canvas_qt.h"
#include "table/game_row.h"

namespace {

constexpr int kMargen = 14;
constexpr int kAltoBanda = 4 + estilo::kAltoBanda + 2;
constexpr int kPaso = 60; // from one control of a column to the next

QString Qt8(const std::string& texto) {
    return QString::fromStdString(texto);
}

int ValorDeSpin(int indice) {
    LimitesSpin(indice);
    return spin.valor;
}

// The framed list of games.
class Lista : public QWidget {
public:
    explicit Lista(QWidget* padre) : QWidget(padre) {
        setAccessibleName(QStringLiteral("Juego Activado"));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        estilo::PintorDeVista p(this);
        forma::PintaRecuadro(p, estilo::CajaDe(*this), QStringLiteral("Juego Activado"), palette());
    }
};

class NormasVista : public FormaVista {
public:
    explicit NormasVista(QWidget* sobre)
        : FormaVista(QStringLiteral("Normas"), *MandosDe(Forma::Normas), kAyudaNormas, sobre) {
        setObjectName(QStringLiteral("Normas"));
        auto* rejilla = new QGridLayout(this);
        rejilla->setContentsMargins(kMargen + 4, kAltoBanda + kMargen, kMargen + 4, kMargen + 4);
        rejilla->setHorizontalSpacing(kMargen);
        rejilla->setVerticalSpacing(kMargen);
        rejilla->addWidget(HazLista(), 0, 0, Qt::AlignTop);
        PonControles(*rejilla);
        PonBotones(*rejilla);
        setFixedSize(sizeHint());
        juegos_.at(estado.JuegoActivo)->setFocus();
    }

private:
    // ---- making

    QWidget* HazLista() {
        auto* lista = new Lista(this);
        auto* columna = new QVBoxLayout(lista);
        columna->setContentsMargins(14, 24, 14, 12);
        columna->setSpacing(4);
        for (const FilaJuego* fila : FilasDeJuegos()) {
            PonEncabezado(*columna, fila->id);
            columna->addWidget(HazJuego(*fila));
        }
        lista->setFixedSize(forma::kAnchoAncho, 4 * kPaso - kMargen);
        return lista;
    }

    static void PonEncabezado(QVBoxLayout& columna, Integer juego) {
        const QString texto = QString::fromUtf8(normas::Encabezado(juego));
        if (texto.isEmpty())
            return;
        if (columna.count() > 0)
            columna.addSpacing(8);
        auto* encabezado = new QLabel(texto);
        encabezado->setFont(LetraDe({.alto = 12, .negrita = true}));
        QPalette paleta = encabezado->palette();
        paleta.setColor(QPalette::WindowText, QColor(150, 30, 20));
        encabezado->setPalette(paleta);
        columna.addWidget(encabezado);
    }

    QWidget* HazJuego(const FilaJuego& fila) {
        auto* linea = new OpcionVista(QString::fromUtf8(fila.nombre), this);
        const Integer juego = fila.id;
        linea->setObjectName(QStringLiteral("Pic_Buleano_%1").arg(juego));
        linea->setEnabled(normas::SePuedeElegir(juego) || juego == estado.JuegoActivo);
        connect(linea, &QAbstractButton::clicked, this,
                [this, juego] { Atiende([juego] { normas::PulsaJuego(juego); }); });
        juegos_[juego] = linea;
        return linea;
    }

    // Selectors one under the other, the numbers behind them; where both are many, the numbers beside them.
    void PonControles(QGridLayout& rejilla) {
        const std::vector<int> controles = normas::Controles();
        const bool ancha = controles.size() > 4;
        auto* columna = HazColumna(rejilla, 1);
        auto* numeros = ancha ? HazColumna(rejilla, 2) : columna;
        for (int control : controles) {
            if (EsSpin(control))
                numeros->addWidget(HazSpin(control));
            else
                columna->addWidget(HazSelector(control));
        }
        columna->addStretch();
        if (ancha)
            numeros->addStretch();
    }

    static QVBoxLayout* HazColumna(QGridLayout& rejilla, int cual) {
        auto* columna = new QVBoxLayout;
        columna->setSpacing(kPaso - forma::kAltoCelda);
        rejilla.addLayout(columna, 0, cual);
        return columna;
    }

    QWidget* HazSelector(int control) {
        const QString titulo = Qt8(estado.TituloSelector(control)).trimmed();
        auto* vista = new SelectorVista(titulo, titulo, forma::kAnchoAncho, this);
        vista->setObjectName(QStringLiteral("Pic_Selector_%1").arg(control));
        connect(vista, &QAbstractButton::clicked, this,
                [this, control] { Atiende([control] { normas::PulsaSelector(control); }); });
        selectores_[control] = vista;
        return vista;
    }

    QWidget* HazSpin(int indice) {
        return new SpinVista(
            indice, QString::fromUtf8(RotuloSpin(indice)),
            {.paso = [indice](bool sube) { return normas::PulsaSpin(indice, sube); },
             .escribe =
                 [indice](const QString& texto) {
                     return Qt8(normas::EscribeSpin(indice, texto.toStdString()));
                 },
             .valor = [indice] { return ValorDeSpin(indice); }},
            this);
    }

    void PonBotones(QGridLayout& rejilla) {
        auto* fila = new QHBoxLayout;
        fila->addStretch();
        fila->addWidget(HazBotonAyuda());
        fila->addSpacing(kMargen);
        fila->addWidget(HazBotonSalir());
        fila->addStretch();
        rejilla.addLayout(fila, 1, 0, 1, rejilla.columnCount());
    }

    // ---- showing

    void Refresca() override {
        for (const auto& [control, vista] : selectores_)
            vista->Muestra(Qt8(TextoActual(control)));
        for (const auto& [juego, linea] : juegos_)
            linea->setChecked(juego == normas::JuegoMarcado());
    }

    std::map<int, SelectorVista*> selectores_;
    std::map<Integer, OpcionVista*> juegos_;
};

} // namespace

std::unique_ptr<FormaVista> HazVistaNormas(QWidget* sobre) {
    return std::make_unique<NormasVista>(sobre);
}

void AbreVistaNormas(QWidget* sobre) {
    HazVistaNormas(sobre)->Muestra(sobre);
}
