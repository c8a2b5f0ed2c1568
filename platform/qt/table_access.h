#pragma once
// The table for assistive tools. To them the felt has more children than its widgets: all that ObjetivosDeLaMesa tells
// (cards, pile, chips, seats, words), and the last things that were announced.

#include <QAccessibleWidget>
#include <deque>
#include <functional>
#include <vector>

#include "table/targets.h"

class AccesoObjetivo;
class AccesoAvisos;

// One for each felt, made before that gets its name: with it assistive tools meet felt and window as what they are. What it hands out lives in Qt's own register of accessible objects, so that a tool finds under the
// same path what it has found there before, as long as that is on the table.
class ArbolDeMesa : private QAccessible::ActivationObserver {
public:
    // pulsa: does what a click at the target does; boton is 1 left, 2 right.
    ArbolDeMesa(QWidget* mesa, std::function<void(const Objetivo&, int boton)> pulsa);
    ~ArbolDeMesa() override;
    ArbolDeMesa(const ArbolDeMesa&) = delete;
    ArbolDeMesa& operator=(const ArbolDeMesa&) = delete;

    // Reads the table and tells what has come, gone or changed. Nothing is read where nobody listens.
    void Refresca();
    // Says something now, unasked: each time in an object of its own, because a tool asks for the words when the next
    // ones may already have been said.
    void Anuncia(const QString& texto);

    // For the interfaces.
    const std::vector<AccesoObjetivo*>& Objetivos() const { return objetivos_; }
    AccesoAvisos* Avisos() const { return avisos_; }
    QWidget* Mesa() const { return mesa_; }
    // As the table is at this moment, not as it was told: the same target if it is still there.
    bool Pulsa(const Objetivo& cual, int boton);

private:
    void accessibilityActiveChanged(bool activo) override;
    bool EsUnControl(const Objetivo& objetivo) const;
    std::vector<Objetivo> Lee() const;
    bool Empareja(std::vector<Objetivo> ahora);

    QWidget* mesa_;
    std::function<void(const Objetivo&, int boton)> pulsa_;
    std::vector<AccesoObjetivo*> objetivos_;
    AccesoAvisos* avisos_;
    bool escuchan_;
};
