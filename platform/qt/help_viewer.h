#pragma once
// The help: pages beside a tree of their titles, with a search through all of them. It stays open while
// the game goes on.

#include <QHash>
#include <QTextBrowser>
#include <QWidget>

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

class VistaAyuda : public QWidget {
    Q_OBJECT
public:
    explicit VistaAyuda(const QString& carpeta);
    // The topic's page, or the contents for 0 and for a topic that has none.
    void MuestraTema(int tema);

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void Compon();
    void PonPagina(int tema);
    void LlenaArbol(const QList<PaginaAyuda>& paginas);
    void Busca();
    void AbreLaPrimera();
    QStringList Claves() const;
    bool Tiene(const QTreeWidgetItem* rama, const QStringList& claves);
    void SenalaEnArbol(const QUrl& pagina);
    QString TextoDe(int tema);
    QString FicheroDe(int tema) const;
    void DiQueFalta();

    QString carpeta_;
    QTextBrowser* hoja_;
    QTreeWidget* arbol_;
    QLineEdit* busca_;
    QLabel* nada_; // says that a search found no page
    QHash<int, QTreeWidgetItem*> ramas_;
    QHash<int, QString> textos_; // plain, folded for the search, read when first searched
};
