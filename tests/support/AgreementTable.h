#pragma once

#include <QSet>
#include <QStringList>
#include <QVector>

class QWidget;

/// The dialog's fields, what each stores, and where field and record may differ.
namespace AgreementTable {

enum class Kind {
    Text,      ///< as it is typed
    Length,    ///< in the metric unit
    Symbol,    ///< a name whose sizes are in mil
    Rotation,  ///< degrees, including those of the symbol's suffix
    Index,     ///< of a combo box, from 1
    Choice,    ///< of a combo box: the values of its items
    Box,       ///< a check box: the values of unchecked and checked
    Buttons    ///< a group: the number of the checked one, from 1
};

struct Field {
    QStringList names;  ///< object name; for a group all of them
    QString key;
    Kind kind;
    QStringList values;
};

/// What is known about one field and its key.
struct Shown {
    const QWidget* widget = nullptr;
    QString record;
    bool isMetric = false;
    QSet<qint64> suffixes;             ///< degrees that symbols have added to the rotation
    QString background;                ///< what the markers said when the background was ticked
    bool isEmptiedByProgram = false;   ///< the symbol field
    bool isPendingSinceClose = false;  ///< the symbol field
    bool isLeftUnreported = false;     ///< its validator refused it when it was left
};

const QVector<Field>& fields();

/// What the field shows, to be printed.
QString textOf(const Field& field, const QWidget& widget);

/// Whether the record holds what is stored for the shown value.
bool isStored(const Field& field, const Shown& shown);

/// Why field and record may differ here; empty: they must not.
QString exceptionOf(const Field& field, const Shown& shown);

}  // namespace AgreementTable
