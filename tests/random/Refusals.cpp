#include "Refusals.h"

#include "FieldBounds.h"

#include <QRegularExpression>
#include <QToolButton>

#include <algorithm>
#include <iterator>

namespace {

bool matches(const char* pattern, const QString& text)
{
    return QRegularExpression(QLatin1String(pattern)).match(text).hasMatch();
}

bool isLegalSymbol(const QString& text, const QString& type)
{
    if (text.isEmpty()) {
        return true;
    }
    return matches(
        type == QLatin1String("m_pArcTB") ? "\\Ar[1-9][0-9]{0,2}\\z" : "\\A[rs][1-9][0-9]{0,2}\\z",
        text);
}

}  // namespace

bool Refusals::isSurelyLegal(const QString& field, const QString& text, const QString& type,
                             bool isMetric)
{
    if (field == QLatin1String("m_pSymbolTextLE")) {
        return isLegalSymbol(text, type);
    }
    const FieldBound* const bound = FieldBounds::find(field);
    if (!bound) {
        return true;  // a plain text
    }
    bool isNumber = false;
    double value = text.toDouble(&isNumber);
    if (isMetric && bound->kind != FieldBound::Kind::Number) {
        value /= 25.4;
    }
    // An empty pitch counts as 0. Leave some room at the bounds for rounding.
    return (text.isEmpty() && bound->kind == FieldBound::Kind::Coordinate) ||
           (isNumber && value >= bound->minimum * 0.999 && value <= bound->maximum * 0.999);
}

QString Refusals::chosenType(const QWidget& dialog)
{
    for (const char* const name :
         {"m_pLineTB", "m_pPadTB", "m_pSurfaceTB", "m_pArcTB", "m_pTextTB"}) {
        const auto* const button = dialog.findChild<QToolButton*>(QLatin1String(name));
        if (button && button->isChecked()) {
            return button->objectName();
        }
    }
    return {};
}

QString Refusals::doubtfulField(const QWidget& dialog, bool isMetric)
{
    const QString type = chosenType(dialog);
    for (const QLineEdit* const field : dialog.findChildren<QLineEdit*>()) {
        if (!isSurelyLegal(field->objectName(), field->text(), type, isMetric)) {
            return field->objectName();
        }
    }
    return {};
}

bool Refusals::isKnown(const QString& title, const QString& text)
{
    // The other language of a random run puts texts into angle quotes.
    const QString words = QString(title + '|' + text).remove('<').remove('>');
    // Title and text, as a pattern: the host's own checks have boxes of their own.
    static const char* const known[] = {
        "\\AIllegal Input\\|Unable to create special symbol!\\z",
        "\\ADialog Box\\|Illegal symbol name: .*\\z",
        "\\AInformation\\|The current text box can only enter a value from 0 to[0-9]+\\z",
        "\\AInformation\\|The current value out of range:-[0-9]+ to [0-9]+\\z",
        "\\AInformation\\|The value must lie between -?[0-9.]+ and [0-9.]+\\.\\z",
    };
    return std::any_of(std::begin(known), std::end(known),
                       [&](const char* pattern) { return matches(pattern, words); });
}
