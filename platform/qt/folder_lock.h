#pragma once
// Two copies of the program on one folder would write over each other's matches: the first one holds the folder.

#include <QString>

class CerrojoCarpeta {
public:
    // Holds the folder until the end, if nobody else does. The system lets go of it with the process, however that
    // ends, and nothing is written for it. A folder that cannot be written needs no lock: nothing is saved there.
    explicit CerrojoCarpeta(const QString& carpeta);
    ~CerrojoCarpeta();
    CerrojoCarpeta(const CerrojoCarpeta&) = delete;
    CerrojoCarpeta& operator=(const CerrojoCarpeta&) = delete;

    // Another copy holds it.
    bool EnUso() const { return en_uso_; }

private:
    int carpeta_ = -1; // its descriptor, which is what is locked
    bool en_uso_ = false;
};
