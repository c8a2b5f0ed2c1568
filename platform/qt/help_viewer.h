#pragma once
// The help: pages beside a tree of their titles, with a search through all of them. It stays open while
// the game goes on.

#include <QHash>
#include <QWidget>

#include "platform/qt/help_words.h"
#include "platform/qt/suite_paint.h"

class HojaAyuda;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QSplitter;
class QTreeWidget;
class QTreeWidgetItem;

struct PaginaAyuda {
    int tema = 0;
    QString titulo;
    int padre = 0; // 0: first level
};

// The list of pages, in the tree's order; empty when it is missing. Lines that are none are passed over.
QList<PaginaAyuda> LeeContenido(const QString& carpeta);

// It grows with the table: letters, pictures, list and the size in which it comes up.
class VistaAyuda : public QWidget, public estilo::VentanaCrecida {
    Q_OBJECT
public:
    // carpeta: the pages; barajas: where the deck images that they show are looked for.
    explicit VistaAyuda(const QString& carpeta, const QStringList& barajas = {});
    ~VistaAyuda() override;
    // The topic's page, or the contents for 0 and for a topic that has none. On its first appearance the window
    // stands where it was left, or beside the table's frame when it would cover it and there is room.
    void MuestraTema(int tema, const QRect& mesa = QRect());
    // To be called when the table's factor has changed. What is read stays in sight; the window grows on its screen, and
    // one that stood clear of the table's frame stays clear.
    void CreceConLaMesa(const QRect& mesa = QRect());
    // That of the table, or what the screen has room for: the help may stand on another one.
    double Aumento() const override { return aumento_; }

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void Compon();
    double AumentoPosible() const;
    void PonArbol();
    void PonLetras();
    QHBoxLayout* HazMandos();
    void Situa(const QRect& mesa);
    bool VuelveADondeEstaba();
    void PonTamano(const QSizeF& en_mesa, const QRect& mesa);
    QSizeF Pedido() const;
    QSize Marco() const;
    void CabeEnPantalla();
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
    QLabel* nada_;      // says that a search found no page
    QSplitter* partes_; // list and page
    QHash<int, QTreeWidgetItem*> ramas_;
    QHash<int, ayuda::TextoPlano> textos_; // title and page, read when first searched
    ayuda::Vocabulario vocabulario_;
    bool situada_ = false;
    double ancho_arbol_; // wanted, in pixels of the table
    double aumento_ = 1;
    QSizeF pedido_; // the size wanted, in pixels of the table,
    QSize puesto_;  // and what of it found room, in those of the window
};
