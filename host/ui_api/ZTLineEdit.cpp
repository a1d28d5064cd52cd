#include "UnitText.h"
#include "ui_api.h"

#include <QRegExpValidator>

namespace ZENTRA {
namespace UIAPI {
namespace {

struct Pattern {
    ZTERegExp id;
    const char* expression;  ///< null: no validator
};

// Expressions do not follow the locale: a point is the decimal sign everywhere.
constexpr Pattern patterns[] = {
    {UnsignedDecimal, "[0-9]*\\.?[0-9]*"},
    {SignedLength, "-?[0-9]*\\.?[0-9]*"},
    {UnsignedInteger, "[0-9]*"},
    {SignedDecimal, "-?[0-9]*\\.?[0-9]*"},
    {SignedInteger, "-?[0-9]*"},
    {SymbolName, "[A-Za-z0-9_.+\\-]*"},
    {FreeText, nullptr},
};

const char* expressionOf(ZTERegExp id)
{
    for (const Pattern& pattern : patterns) {
        if (pattern.id == id) {
            return pattern.expression;
        }
    }
    return nullptr;
}

}  // namespace

ZTLineEdit::ZTLineEdit(ZTERegExp pattern, QWidget* context)
    : QLineEdit(context), m_pattern(pattern), m_metric(CanvasHost::isMetric())
{
    if (const char* const expression = expressionOf(pattern)) {
        setValidator(new QRegExpValidator(QRegExp(QLatin1String(expression)), this));
    }
}

void ZTLineEdit::changeunit(bool isMM)
{
    if (isMM == m_metric) {
        return;
    }
    m_metric = isMM;
    const QString before = text();
    const bool isUnedited = !m_shown.isNull() && before == m_shown;
    const QString after = isUnedited ? m_previous : CanvasHost::convertNumber(before, isMM);
    if (m_pattern == FreeText || after.isNull()) {
        m_shown = QString();
        return;
    }
    m_previous = before;
    m_shown = after;
    setText(after);
}

}  // namespace UIAPI
}  // namespace ZENTRA
