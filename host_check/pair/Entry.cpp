#include "Entry.h"

QString Entry::words(bool byReturn) const
{
    switch (kind) {
        case Kind::Typed:
            return QStringLiteral("\"%1\" is typed in %2, %3")
                .arg(text, field, byReturn ? QStringLiteral("Return") : QStringLiteral("Tab"));
        case Kind::Chosen:
            return QStringLiteral("item %1 of %2 is chosen").arg(index).arg(field);
        case Kind::Clicked:
            break;
    }
    return QStringLiteral("%1 is clicked").arg(field);
}
