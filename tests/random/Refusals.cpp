#include "Refusals.h"

#include <QRegularExpression>
#include <QToolButton>

#include <algorithm>
#include <iterator>

namespace {

enum class Kind { Length, Coordinate, Number };

struct Field {
    const char* name;
    Kind kind;
    double least;
    double most;
};
const Field fields[] = {
    {"m_pCornerRadiusLE", Kind::Length, 0, 50000},
    {"m_pLengthLE", Kind::Length, 0, 50000},
    {"m_pHeightLE", Kind::Length, 0, 50000},
    {"m_pCannedHoleSizeLE", Kind::Length, 0, 50000},
    {"m_pXSizeLE", Kind::Length, 0, 10000},
    {"m_pYSizeLE", Kind::Length, 0, 10000},
    {"m_pLineWidthLE", Kind::Length, 0, 10000},
    {"m_pDrilDxLE", Kind::Coordinate, -100000, 100000},
    {"m_pDrilDyLE", Kind::Coordinate, -100000, 100000},
    {"m_pDrilNxLE", Kind::Number, 0, 50},
    {"m_pDrilNyLE", Kind::Number, 0, 50},
    {"m_pDrilXsclLE", Kind::Number, -100, 100},
    {"m_pDrilYsclLE", Kind::Number, -100, 100},
    {"m_pAngleLE", Kind::Number, 0, 360},
};

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
    const auto* const found = std::find_if(std::begin(fields), std::end(fields),
                                           [&](const Field& known) { return field == known.name; });
    if (found == std::end(fields)) {
        return true;  // a plain text
    }
    bool isNumber = false;
    double value = text.toDouble(&isNumber);
    if (isMetric && found->kind != Kind::Number) {
        value /= 25.4;
    }
    // An empty pitch counts as 0. Leave some room at the bounds for rounding.
    return (text.isEmpty() && found->kind == Kind::Coordinate) ||
           (isNumber && value >= found->least * 0.999 && value <= found->most * 0.999);
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
