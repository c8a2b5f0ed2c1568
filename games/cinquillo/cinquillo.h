#pragma once
// Cinquillo: four seats lay a Spanish deck of 40 cards, each suit outward from its 5 in both directions. Who
// empties the hand first wins it; the hands won decide the match. The cards left count negative points, told
// and recorded, that decide nothing. Departures from common play, on purpose: any 5 may open and may be laid at
// any time, and a seat that cannot lay passes without a sign.

// The whole match, hand after hand; returns when it is over or was left.
void ManoCinquillo();

// The cards laid, painted on the felt: a column a suit, the Rey on top and the As at the bottom.
void PintaTendido();
