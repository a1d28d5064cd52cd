// Many shapes, sizes in hundred thousandths, fonts for any job; fields that take everything.

#include "Host.h"

const Habits habits = {
    {{"r", 1},
     {"s", 1},
     {"rect", 2},
     {"oval", 2},
     {"di", 2},
     {"oct", 3},
     {"hex_l", 3},
     {"bfr", 1},
     {"donut_r", 2},
     {"donut_s", 2},
     {"thr", 5},
     {"el", 2},
     {"moire", 6}},
    100000,    // sizeOfMil
    12,        // digits
    12,        // metricDigits
    -1,        // metricAnswer
    "Inches",  // otherUnitText
    true,      // hasFontsForAnyJob
    true,      // takesAnyText
    true,      // deletesOnClose
    false,     // hidesOnChoice
    true,      // boxIsPlain
    false,     // choosesByButton
};
