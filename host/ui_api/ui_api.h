#pragma once

#include <HostExport.h>
#include <cam_api.h>

#include <QLineEdit>

/// The host's user-interface helpers: the user's unit, checks of entries, and the line edit that
/// knows its unit. The untyped `context` is the host widget that holds the calling module.
namespace ZENTRA {
namespace UIAPI {

/// Whether the EQ tool is offered.
CANVAS_HOST_EXPORT bool getEQVisible();

/// "MM" when the user works in metric units, "INCH" otherwise. May throw.
CANVAS_HOST_EXPORT QString getUnitString(void* context);

/// 1 when the user works in metric units, 0 otherwise.
CANVAS_HOST_EXPORT int getUnit(void* context);

/// A length in mil, in the user's unit: micrometres when metric, mil otherwise.
CANVAS_HOST_EXPORT double getUnitData(void* context, double value);

/// A bound in mil, in the user's unit, for display beside a refusal.
CANVAS_HOST_EXPORT double getUnitJudgeDouble(void* context, double mils);

/// Whether minimum <= value <= maximum, as plain numbers. A refusal is reported to the user in one
/// modal box before the call returns.
CANVAS_HOST_EXPORT bool isNumValueLegal(double value, double minimum, double maximum,
                                        void* context);

/// Whether every size of a standard symbol name, taken in the user's unit (micrometre or mil), lies
/// within the bounds in mil. A rotation suffix is not a size. The empty name, a name without sizes
/// and any other name are accepted. A refusal is reported to the user in one modal box before the
/// call returns.
CANVAS_HOST_EXPORT bool isSymbolValueLegal(const QString& name, double minimum, double maximum,
                                           void* context);

/// Converts the sizes of a standard symbol name. `direction` 0: the metric name as typed
/// (micrometre) to the stored one (mil); 1: stored to metric display. Any other name, a rotation
/// suffix, letters and separators are left alone. Converting there and back gives the same name,
/// except for trailing zeros ("r10.50" comes back as "r10.5") and sizes of more than six digits.
CANVAS_HOST_EXPORT QString setSymbolUIData(const QString& name, int direction);

/// Fills `out` with how values are shown to the user.
CANVAS_HOST_EXPORT void getShowPara(void* context, API::show_param& out);

/// What a ZTLineEdit lets the user type. An incomplete number ("", "-", ".") is accepted as well:
/// otherwise Qt would not emit editingFinished, and the user would never learn what is wrong.
enum ZTERegExp {
    UnsignedDecimal = 0,
    SignedLength = 1,  ///< signed decimal, a length
    UnsignedInteger = 2,
    SignedDecimal = 3,
    SignedInteger = 4,
    SymbolName = 5,  ///< letters, digits and "_.+-"
    FreeText = 6,    ///< anything; changeunit() does nothing
};

/// A line edit that knows in which unit its number is shown.
class CANVAS_HOST_EXPORT ZTLineEdit : public QLineEdit {
    Q_OBJECT
public:
    /// `context` is the host widget that holds the module; it also becomes the parent. It may be
    /// null. The field starts in the user's unit.
    ZTLineEdit(ZTERegExp pattern, QWidget* context);

    /// Shows the number in micrometres or millimetres (`isMM`) or in mil or inch. Does nothing if
    /// the field is already in that unit. An empty text, one that is not a number, and free text
    /// are left alone. Switching back restores the previous text unless it was edited in between.
    /// Never emits editingFinished.
    void changeunit(bool isMM);

private:
    ZTERegExp m_pattern;
    bool m_metric;
    QString m_shown;     // what changeunit last wrote; null when it left the text alone
    QString m_previous;  // the text before that, in the other unit
};

}  // namespace UIAPI
}  // namespace ZENTRA
