#pragma once
// The one generator of random numbers of the program.

#include <cstdint>
#include <vector>

// The next number, uniform on [0, 1): from the queue while it holds any, then from the generator.
double Azar();

// The number of a turn: the next draw in single precision, below 1 still.
float AzarDeTurno();

// A whole number 1..n: Int(n x r + 1) of the next draw.
int AzarEntre(int n);

// Seeds from the given moment (milliseconds), unless FijaSemilla has been called. Leaves the queue.
void SiembraDelReloj(std::int64_t milisegundos);

// Seeds for good: from here on no clock seeds again. Leaves the queue.
void FijaSemilla(std::uint64_t semilla);

// The numbers that the next draws answer, in order, behind those that wait already.
// Throws std::invalid_argument, with nothing queued, when one lies outside [0, 1).
void EncolaAzar(const std::vector<double>& numeros);

// Empties the queue.
void VaciaColaAzar();
