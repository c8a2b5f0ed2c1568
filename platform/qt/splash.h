#pragma once
// The splash `careta`: the program's face while it finds its place. A click takes it away.

#include <QWidget>

class Careta : public QWidget {
    Q_OBJECT
public:
    Careta();
    // Centred on the screen and painted when this returns; the emblem follows with the event loop.
    void Aparece();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void timerEvent(QTimerEvent* evento) override;

private:
    bool con_emblema_ = false;
};
