// Windows that are dialogs; its headers differ, so that the module is built anew for it.

#include "Host.h"

const Habits habits = {
    {{"r", 1}, {"s", 1}, {"rect", 2}, {"polygon", 3}},
    1000,   // sizeOfMil
    15,     // digits
    12,     // metricDigits
    2,      // metricAnswer
    "",     // otherUnitText
    false,  // hasFontsForAnyJob
    true,   // takesAnyText
    false,  // deletesOnClose
    true,   // hidesOnChoice
    true,   // boxIsPlain
    false,  // choosesByButton
};
