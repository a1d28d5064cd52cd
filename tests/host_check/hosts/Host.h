#pragma once

#include <QStringList>

#include <vector>

class QWidget;

/// A host that was written from the interface alone. What the interface leaves open is a habit.
struct Habits {
    struct Shape {
        const char* prefix;
        int sizes;
    };
    std::vector<Shape> shapes;  ///< of the standard symbols
    double sizeOfMil;           ///< what identify_symbol() gives for one mil
    int digits;                 ///< of a number in mil
    int metricDigits;
    int metricAnswer;           ///< of getUnit()
    const char* otherUnitText;  ///< of getUnitString(), when not metric
    bool hasFontsForAnyJob;
    bool takesAnyText;     ///< a line edit, whatever its pattern
    bool deletesOnClose;   ///< a chooser or popup
    bool hidesOnChoice;    ///< a chooser
    bool boxIsPlain;       ///< a box is a QDialog of its own
    bool choosesByButton;  ///< a name, else by a click
};
extern const Habits habits;

/// The unit stands in the file that OTHER_HOST_UNIT names: mil, inch, um or mm.
bool isMetric();

/// The number in the other unit; the text itself if it is not one.
QString converted(const QString& text, bool toMetric);

/// A name taken apart; no sizes: it is not a standard one.
struct Name {
    QString prefix;
    QStringList sizes;
    QString rest;  ///< a rotation
};
Name parsed(const QString& name);

std::vector<std::string> fontsOf(const std::string& job);
const std::vector<std::string>& specialSymbols();

/// Shows a refusal until it is answered.
void showRefusal(QWidget* parent);

/// Whether WRONG_HOST in the environment names this fault. The right hosts have none.
#ifdef WITH_FAULTS
inline bool isWrong(const char* fault)
{
    return qgetenv("WRONG_HOST") == fault;
}
#else
constexpr bool isWrong(const char* /*fault*/)
{
    return false;
}
#endif
