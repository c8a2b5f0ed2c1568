#pragma once
// A table as it stands before anybody has sat down, for the tools.

// The whole shared state, the session and the table as they are right after IniciarTablas with the default
// settings: no match, no request, nothing queued for the generator. The platform in use keeps its own things.
void PonMesaNueva();
