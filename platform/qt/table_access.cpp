#include "platform/qt/table_access.h"

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

#include "platform/qt/control_view.h"
#include "platform/qt/main_window.h"
#include "platform/qt/scale.h"
#include "table/keyboard_walk.h"

namespace {

constexpr int kIzquierdo = 1, kDerecho = 2;
constexpr std::size_t kAvisosGuardados = 40; // more than the moves of a whole round of the table

// Of the felts that are there.
std::map<const QObject*, ArbolDeMesa*>& Arboles() {
    static std::map<const QObject*, ArbolDeMesa*> todos;
    return todos;
}

QAccessible::Role PapelDe(ClaseObjetivo clase) {
    switch (clase) {
    case ClaseObjetivo::CartaDeMano:
    case ClaseObjetivo::CartaDeReparto:
    case ClaseObjetivo::Mazo:
    case ClaseObjetivo::Ficha:
    case ClaseObjetivo::Boton:
        return QAccessible::Button;
    case ClaseObjetivo::CartaDeMesa:
    case ClaseObjetivo::Triunfo:
        return QAccessible::Graphic;
    case ClaseObjetivo::Opcion:
        return QAccessible::MenuItem;
    case ClaseObjetivo::Asiento:
        return QAccessible::Grouping;
    case ClaseObjetivo::Rotulo:
        break;
    }
    return QAccessible::StaticText;
}

// What is there to be pressed, now or at another time: out of its time it is disabled.
bool EsDePulsar(const Objetivo& objetivo) {
    const QAccessible::Role papel = PapelDe(objetivo.clase);
    return papel == QAccessible::Button || papel == QAccessible::MenuItem;
}

QString NombreCompleto(const Objetivo& objetivo) {
    QString nombre = QString::fromStdString(objetivo.nombre);
    if (objetivo.estado.empty())
        return nombre;
    return nombre + QStringLiteral(", ") + QString::fromStdString(objetivo.estado);
}

void Avisa(QAccessibleInterface* de, QAccessible::Event que) {
    QAccessibleEvent aviso(de, que);
    QAccessible::updateAccessibility(&aviso);
}

// Interfaces of their own, without an object of Qt behind them: the register keeps them until they are taken out.
template <typename Acceso>
Acceso* Registra(std::unique_ptr<Acceso> acceso) {
    Acceso* suyo = acceso.release();
    QAccessible::registerAccessibleInterface(suyo);
    return suyo;
}

void Retira(QAccessibleInterface* acceso) {
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(acceso));
}

class AccesoSuelto : public QAccessibleInterface {
public:
    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}
};

} // namespace

class AccesoObjetivo : public AccesoSuelto, public QAccessibleActionInterface {
public:
    AccesoObjetivo(ArbolDeMesa& arbol, Objetivo objetivo)
        : arbol_(arbol), objetivo_(std::move(objetivo)) {}

    const Objetivo& Cual() const { return objetivo_; }

    // The same thing as it is now; whoever listens is told what is different.
    void Pon(Objetivo ahora) {
        const Objetivo antes = std::exchange(objetivo_, std::move(ahora));
        if (NombreCompleto(antes) != NombreCompleto(objetivo_))
            Avisa(this, QAccessible::NameChanged);
        if (antes.se_pulsa == objetivo_.se_pulsa || !EsDePulsar(objetivo_))
            return;
        QAccessible::State distinto;
        distinto.disabled = true;
        QAccessibleStateChangeEvent aviso(this, distinto);
        QAccessible::updateAccessibility(&aviso);
    }

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(arbol_.Mesa());
    }
    QWindow* window() const override { return parent()->window(); }
    QString text(QAccessible::Text cual) const override {
        return cual == QAccessible::Name ? NombreCompleto(objetivo_) : QString();
    }
    QRect rect() const override {
        return EnVentana(objetivo_.donde).translated(arbol_.Mesa()->mapToGlobal(QPoint(0, 0)));
    }
    QAccessible::Role role() const override { return PapelDe(objetivo_.clase); }
    QAccessible::State state() const override {
        QAccessible::State como;
        como.disabled = EsDePulsar(objetivo_) && !objetivo_.se_pulsa;
        como.invisible = !arbol_.Mesa()->isVisible();
        como.readOnly = !EsDePulsar(objetivo_);
        const auto enmarcado = ObjetivoEnmarcado();
        como.focused = enmarcado && enmarcado->EsElMismo(objetivo_);
        como.hasPopup = objetivo_.tiene_menu;
        return como;
    }
    void* interface_cast(QAccessible::InterfaceType cual) override {
        return cual == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override {
        QStringList acciones;
        if (objetivo_.se_pulsa)
            acciones << pressAction();
        if (objetivo_.tiene_menu)
            acciones << showMenuAction();
        return acciones;
    }
    void doAction(const QString& accion) override {
        if (accion == pressAction())
            arbol_.Pulsa(objetivo_, kIzquierdo);
        else if (accion == showMenuAction())
            arbol_.Pulsa(objetivo_, kDerecho);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    ArbolDeMesa& arbol_;
    Objetivo objetivo_;
};

namespace {

class AccesoAviso : public AccesoSuelto {
public:
    AccesoAviso(QAccessibleInterface* lista, QString texto)
        : lista_(lista), texto_(std::move(texto)) {}

    QAccessibleInterface* parent() const override { return lista_; }
    QWindow* window() const override { return lista_->window(); }
    QString text(QAccessible::Text cual) const override {
        return cual == QAccessible::Name ? texto_ : QString();
    }
    QRect rect() const override { return lista_->rect(); }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return lista_->state(); }

private:
    QAccessibleInterface* lista_;
    QString texto_;
};

} // namespace

// What was said last, to be heard again.
class AccesoAvisos : public AccesoSuelto {
public:
    explicit AccesoAvisos(QWidget* mesa) : mesa_(mesa) {}
    ~AccesoAvisos() override {
        for (AccesoAviso* aviso : avisos_)
            Retira(aviso);
    }

    void Di(const QString& texto) {
        if (avisos_.size() == kAvisosGuardados) {
            Avisa(avisos_.front(), QAccessible::ObjectDestroyed);
            Retira(avisos_.front());
            avisos_.pop_front();
        }
        avisos_.push_back(Registra(std::make_unique<AccesoAviso>(this, texto)));
        Avisa(avisos_.back(), QAccessible::ObjectCreated);
        Avisa(avisos_.back(), QAccessible::ObjectShow);
    }

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(mesa_);
    }
    QWindow* window() const override { return parent()->window(); }
    QAccessibleInterface* child(int indice) const override {
        const bool hay = indice >= 0 && indice < childCount();
        return hay ? avisos_[static_cast<std::size_t>(indice)] : nullptr;
    }
    int childCount() const override { return static_cast<int>(avisos_.size()); }
    int indexOfChild(const QAccessibleInterface* cual) const override {
        const auto donde = std::ranges::find(avisos_, cual);
        return donde == avisos_.end() ? -1 : static_cast<int>(donde - avisos_.begin());
    }
    QString text(QAccessible::Text cual) const override {
        return cual == QAccessible::Name ? QStringLiteral("Lo que ha pasado") : QString();
    }
    QRect rect() const override { return parent()->rect(); }
    QAccessible::Role role() const override { return QAccessible::List; }
    QAccessible::State state() const override {
        QAccessible::State como;
        como.invisible = !mesa_->isVisible();
        como.readOnly = true;
        return como;
    }

private:
    QWidget* mesa_;
    std::deque<AccesoAviso*> avisos_;
};

void ArbolDeMesa::accessibilityActiveChanged(bool activo) {
    escuchan_ = activo;
    Refresca();
}

// A widget stands for itself: a target that is one would be told twice.
bool ArbolDeMesa::EsUnControl(const Objetivo& objetivo) const {
    return objetivo.control != Control::Mesa && objetivo.clase != ClaseObjetivo::Opcion;
}

std::vector<Objetivo> ArbolDeMesa::Lee() const {
    std::vector<Objetivo> ahora = ObjetivosDeLaMesa();
    std::erase_if(ahora, [this](const Objetivo& objetivo) { return EsUnControl(objetivo); });
    return ahora;
}

// True when others are there than before, or in another order.
bool ArbolDeMesa::Empareja(std::vector<Objetivo> ahora) {
    std::vector<AccesoObjetivo*> antes = objetivos_;
    std::vector<AccesoObjetivo*> despues;
    despues.reserve(ahora.size());
    for (Objetivo& objetivo : ahora) {
        const auto mismo = std::ranges::find_if(antes, [&objetivo](const AccesoObjetivo* viejo) {
            return viejo != nullptr && viejo->Cual().EsElMismo(objetivo);
        });
        if (mismo == antes.end()) {
            despues.push_back(
                Registra(std::make_unique<AccesoObjetivo>(*this, std::move(objetivo))));
            continue;
        }
        AccesoObjetivo* viejo = std::exchange(*mismo, nullptr);
        viejo->Pon(std::move(objetivo));
        despues.push_back(viejo);
    }
    const bool otros = despues != objetivos_;
    objetivos_ = std::move(despues);
    for (AccesoObjetivo* ido : antes) {
        if (ido == nullptr)
            continue;
        Avisa(ido, QAccessible::ObjectDestroyed);
        Retira(ido);
    }
    return otros;
}

void ArbolDeMesa::Refresca() {
    if (!escuchan_ || !Empareja(Lee()))
        return;
    QAccessibleEvent otros(mesa_, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&otros);
}

void ArbolDeMesa::Anuncia(const QString& texto) {
    if (escuchan_)
        avisos_->Di(texto);
}

bool ArbolDeMesa::Pulsa(const Objetivo& cual, int boton) {
    const std::vector<Objetivo> ahora = Lee();
    const auto mismo = std::ranges::find_if(
        ahora, [&cual](const Objetivo& objetivo) { return objetivo.EsElMismo(cual); });
    if (mismo == ahora.end() || !(boton == kIzquierdo ? mismo->se_pulsa : mismo->tiene_menu))
        return false;
    pulsa_(*mismo, boton);
    return true;
}

namespace {

// Targets first, own cards ahead of all; then the widgets; what was said last.
class AccesoMesa : public QAccessibleWidget {
public:
    AccesoMesa(QWidget* mesa, ArbolDeMesa& arbol)
        : QAccessibleWidget(mesa, QAccessible::Pane), arbol_(arbol) {}

    int childCount() const override { return static_cast<int>(Hijos().size()); }
    QAccessibleInterface* child(int indice) const override {
        const auto hijos = Hijos();
        const bool hay = indice >= 0 && indice < static_cast<int>(hijos.size());
        return hay ? hijos[static_cast<std::size_t>(indice)] : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* cual) const override {
        const auto hijos = Hijos();
        const auto donde = std::ranges::find(hijos, cual);
        return donde == hijos.end() ? -1 : static_cast<int>(donde - hijos.begin());
    }
    // What is painted later lies above: the widgets over the felt, a card over its left neighbour.
    QAccessibleInterface* childAt(int x, int y) const override {
        QWidget* bajo = widget()->childAt(widget()->mapFromGlobal(QPoint(x, y)));
        if (const auto* vista = qobject_cast<VistaControl*>(bajo); vista != nullptr)
            return QAccessible::queryAccessibleInterface(bajo);
        const auto& objetivos = arbol_.Objetivos();
        const auto encima =
            std::find_if(objetivos.rbegin(), objetivos.rend(), [x, y](AccesoObjetivo* objetivo) {
                return objetivo->role() != QAccessible::Grouping && objetivo->rect().contains(x, y);
            });
        return encima == objetivos.rend() ? nullptr : *encima;
    }

private:
    std::vector<QAccessibleInterface*> Hijos() const {
        const auto& objetivos = arbol_.Objetivos();
        std::vector<QAccessibleInterface*> hijos(objetivos.begin(), objetivos.end());
        for (QObject* hijo : widget()->children()) {
            const auto* vista = qobject_cast<VistaControl*>(hijo);
            if (vista != nullptr && !vista->EsMovil())
                hijos.push_back(QAccessible::queryAccessibleInterface(hijo));
        }
        hijos.push_back(arbol_.Avisos());
        return hijos;
    }

    ArbolDeMesa& arbol_;
};

QAccessibleInterface* HazAcceso(const QString&, QObject* objeto) {
    if (const auto suyo = Arboles().find(objeto); suyo != Arboles().end())
        return new AccesoMesa(static_cast<QWidget*>(objeto), *suyo->second);
    // A scroll area counts as a part of a window, and this is one.
    if (auto* ventana = qobject_cast<VentanaPrincipal*>(objeto))
        return new QAccessibleWidget(ventana, QAccessible::Window);
    return nullptr;
}

} // namespace

ArbolDeMesa::ArbolDeMesa(QWidget* mesa, std::function<void(const Objetivo&, int boton)> pulsa)
    : mesa_(mesa),
      pulsa_(std::move(pulsa)),
      avisos_(Registra(std::make_unique<AccesoAvisos>(mesa))),
      escuchan_(QAccessible::isActive()) {
    Arboles()[mesa] = this;
    QAccessible::installFactory(HazAcceso);
    QAccessible::installActivationObserver(this);
}

ArbolDeMesa::~ArbolDeMesa() {
    QAccessible::removeActivationObserver(this);
    // What is still to be taken down of the widget must not ask for children that are gone.
    Retira(QAccessible::queryAccessibleInterface(mesa_));
    Arboles().erase(mesa_);
    for (AccesoObjetivo* objetivo : objetivos_)
        Retira(objetivo);
    Retira(avisos_);
}
