// Two shapes, sizes in micrometres, fonts of its jobs only.

#include "Host.h"

const Habits habits = {
    {{"r", 1}, {"s", 1}},
    25.4,   // sizeOfMil
    12,     // digits
    9,      // metricDigits
    1,      // metricAnswer
    "mil",  // otherUnitText
    false,  // hasFontsForAnyJob
    false,  // takesAnyText
    false,  // deletesOnClose
    true,   // hidesOnChoice
    false,  // boxIsPlain
    true,   // choosesByButton
};
