#pragma once
// What plays the sounds: a plugin of the program, loaded when the first one is wanted, so that a silent
// game carries no multimedia libraries.

#include <QtPlugin>

class Reproductor {
public:
    virtual ~Reproductor() = default;
    // Begins a sound and answers its length in milliseconds: 0 when nothing can be heard, for want of the
    // sound or of a device.
    virtual int Toca(int id) = 0;
};

#define Reproductor_iid "zovin.Reproductor/1"
Q_DECLARE_INTERFACE(Reproductor, Reproductor_iid)
