#include "table/tips.h"

// Five lines of 29 characters each, hand-justified, so that every line breaks at a word.
const std::vector<Consejo>& Consejos() { // NOLINT(readability-function-size): the tips themselves
    static const std::vector<Consejo> kConsejos{
        // clang-format off
        {0, 2149,
         "Si cierra esta ventana puede "
         "reactivarla  en  el selector "
         "'Ventana de información'  de "
         "la opción Personalizar.      "
         "                             "},
        {1, 3110,
         "En esta fase,  cada  jugador "
         "realiza su apuesta según las "
         "probabilidades  de  ligar un "
         "buen juego  con  las  cartas "
         "obtenidas en el reparto      "},
        {2, 2500,
         "Este jugador tiene que subir "
         "su apuesta para  igualar  la "
         "máxima  apuesta  que,  hasta "
         "ahora, se ha realizado en la "
         "ronda actual.                "},
        {3, 2300,
         "Vaya pulsando  en las fichas "
         "de  apuestas hasta completar "
         "la cantidad que va a apostar "
         "según las probabilidades  de "
         "ligar jugada con el descarte."},
        {4, 2300,
         "Vaya pulsando  en las fichas "
         "de  apuestas hasta completar "
         "la cantidad que va a apostar "
         "en base a la  jugada  que ha "
         "ligado tras el descarte.     "},
        {5, 2500,
         "Cuando  haya  finalizado  su "
         "apuesta puede pulsar el botón"
         "de la apostadora  'Finalizar "
         "apuesta'  para que  el juego "
         "continúe.                    "},
        {6, 2195,
         "Si  desea  que  el  programa "
         "realize la apuesta por Usted "
         "puede   pulsar    el   botón "
         "'Apuesta automática'  en  la "
         "parte inferior derecha.      "},
        {7, 3110,
         "Se van  a  efectuar apuestas "
         "en base a la jugada que cada "
         "jugador va a  intentar hacer "
         "creer que ha ligado tras los "
         "descartes.                   "},
        {8, 3110,
         "Esta es la fase de descartes "
         "donde los jugadores desechan "
         "las cartas que no ligan, que "
         "serán  sustituidas  por  las "
         "que le repartirá el mano.    "},
        {9, 2400,
         "Seleccione con el cursor las "
         "cartas a descartar  y  pulse "
         "'Descartar  elegidas'   para "
         "finalizar.  Pulse  'Servido' "
         "si no va a descartar ninguna."},
        {10, 2195,
         "Si  desea  que  el  programa "
         "realize su descarte de forma "
         "automática  pulse  el  botón "
         "verde  situado  en  la parte "
         "inferior derecha.            "},
        {15, 3100,
         "Para ampliar la  información "
         "sobre las reglas y  mecánica "
         "de este juego,pulse el botón "
         "'más  ayuda'   en  la  parte "
         "superior de esta ventana.    "},
        {20, 2195,
         "Antes del reparto de cartas, "
         "cada  jugador  debe realizar "
         "su apuesta. Pulse  el  botón "
         "verde de la  parte  inferior "
         "derecha para continuar.      "},
        {21, 2300,
         "Antes del reparto de cartas, "
         "cada  jugador  debe realizar "
         "su apuesta. Pulse las fichas "
         "de apuestas hasta  completar "
         "la cantidad que va a apostar "},
        {22, 3120,
         "Cuando el crupier  tiene  un "
         "As, puede asegurarse  contra "
         "la posibilidad de que  tenga "
         "Black Jack.   El  coste será "
         "la mitad la apuesta inicial. "},
        {23, 2710,
         "Si  sus  dos primeras cartas "
         "son iguales,  puede abrir su "
         "juego en 2 series distintas. "
         "Para ello coloque el  cursor "
         "sobre sus cartas y haga clic."},
        {24, 3120,
         "Si sus dos cartas  iniciales "
         "suman   9 , 10 u 11  tantos, "
         "puede doblar la suma  de  su "
         "apuesta. En ese caso sólo se "
         "puede pedir una nueva carta. "},
        {25, 3120,
         "Debe decidir si está servido "
         "o desea pedir  carta.  Tenga "
         "en cuenta que no puede pasar "
         "de 21 puntos.                "
         "                             "},
        {30, 2195,
         "En esta fase,  cada  jugador "
         "realiza su apuesta según  la "
         "carta  que  haya recibido en "
         "el reparto inicial. Pulse el "
         "botón verde para continuar.  "},
        {31, 2300,
         "En esta fase,  cada  jugador "
         "realiza su apuesta según  la "
         "carta recibida. Pulse en las "
         "fichas de apuestas hasta que "
         "complete la apuesta deseada. "},
        {32, 2720,
         "Cuando su primera  carta  es "
         "un  Cuatro  puede  cambiarla "
         "por otra. Para ello ponga el "
         "cursor sobre  sus  cartas  y "
         "haga clic.                   "},
        {33, 3150,
         "Si  sus  dos primeras cartas "
         "son  medias,  puede abrirlas "
         "en 2 series distintas.  Para "
         "ello coloque el cursor sobre "
         "sus cartas y haga clic.      "},
        {34, 2730,
         "Solo puede tener  una  carta "
         "tapada.  Para que la próxima "
         "la reciba bocabajo vuelva la "
         "tapada colocando sobre  ella "
         "el cursor y haciendo clic.   "},
        {35, 2400,
         "Debe decidir si está servido "
         "o  desea pedir carta.  Tenga "
         "en cuenta que perderá  si se "
         "pasa de 7 y media.           "
         "                             "},
        {36, 2730,
         "Cuando se consigue  siete  y "
         "media, para cantarla, cobrar "
         "doble la apuesta y conseguir "
         "la banca,  tiene que enseñar "
         "la carta tapada.             "},
        {42, 2720,
         "Puede cambiar  su  siete por "
         "la carta que pinta.  Si va a "
         "cambiarla  ponga  el  cursor "
         "sobre el mazo de  reparto  y "
         "haga clic.                   "},
        {43, 2720,
         "Puede cambiar la  carta  que "
         "pinta por la más baja de ese "
         "palo.  Para hacerlo ponga el "
         "cursor en el mazo de reparto "
         "y haga clic.                 "},
        {49, 2170,
         "Si duda sobre la apuesta que "
         "debe realizar,pulse el botón "
         "Tutor de juego para  que  el "
         "programa le aconseje.        "
         "                             "},
        {50, 2170,
         "Si duda sobre la  decisión a "
         "tomar, pulse el botón 'Tutor "
         "de juego'  y  el programa le "
         "aconsejará.                  "
         "                             "},
        // clang-format on
    };
    return kConsejos;
}
