#pragma once
// The help: pages beside a tree of their titles, with a search through all of them. It stays open while
// the game goes on.

#include <QHash>
#include <QRect>
#include <QWidget>
#include <optional>

#include "platform/qt/help_words.h"

class HojaAyuda;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

struct PaginaAyuda {
    int tema = 0;
    QString titulo;
    int padre = 0; // 0: first level
};

// The list of pages, in the tree's order; empty when it is missing. Lines that are none are passed over.
QList<PaginaAyuda> LeeContenido(const QString& carpeta);

// Where a window of that size with its frame stands on the screen beside another one, made narrower where that
// is enough to fit; nothing where there is no room on either side. All in the desktop's pixels.
std::optional<QRect> JuntoA(const QRect& otra, const QSize& tamano, const QRect& pantalla);

class VistaAyuda : public QWidget {
    Q_OBJECT
public:
    // carpeta: the pages; barajas: where the deck images that they show are looked for.
    explicit VistaAyuda(const QString& carpeta, const QStringList& barajas = {});
    ~VistaAyuda() override;
    // The topic's page, or the contents for 0 and for a topic that has none. On its first appearance the window
    // stands where it was left, or beside the table's frame when it would cover it and there is room.
    void MuestraTema(int tema, const QRect& mesa = QRect());

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void Compon();
    QHBoxLayout* HazMandos();
    void Situa(const QRect& mesa);
    void GuardaSitio() const;
    void PonPagina(int tema);
    void LlenaArbol(const QList<PaginaAyuda>& paginas);
    void Busca();
    void AbreLaPrimera();
    QList<ayuda::Clave> Claves() const;
    bool Tiene(const QTreeWidgetItem* rama, const QList<ayuda::Clave>& claves);
    void SenalaEnArbol(const QUrl& pagina);
    const ayuda::TextoPlano& TextoDe(int tema);
    QString FicheroDe(int tema) const;
    void DiQueFalta();

    QString carpeta_;
    HojaAyuda* hoja_;
    QTreeWidget* arbol_;
    QLineEdit* busca_;
    QLabel* nada_; // says that a search found no page
    QHash<int, QTreeWidgetItem*> ramas_;
    QHash<int, ayuda::TextoPlano> textos_; // title and page, read when first searched
    ayuda::Vocabulario vocabulario_;
    bool situada_ = false;
};
