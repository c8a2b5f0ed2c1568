#pragma once
// What lies under a point of the table, in pixels.

// The card: AsientoBajoCursor and CartaBajoCursor, 0 none. The seat is found in its strip also beside the cards; of
// cards that overlap the topmost one counts.
void DetectaJdorYCar(int x, int y);
// ZonaBajoCursor: the seat zone that holds the point, 0 none; the later seat wins.
void DetectaZonaCartas(int x, int y);
// FilaReparto and ColumnaReparto of the manual spread, 0 outside it and in the gaps.
void HallaFilyCol(int x, int y);
