#include "Agreement.h"

#include "AgreementTable.h"
#include "FindChild.h"
#include "plugin/RecordKeys.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace {

const QString symbolField = QStringLiteral("m_pSymbolTextLE");

}  // namespace

Agreement::Agreement(QWidget& dialog)
    : m_dialog(dialog),
      m_symbol(&findNamed<QLineEdit>(dialog, symbolField)),
      m_unit(&findNamed<QLabel>(dialog, "m_pCornerRadiusUnitLB"))
{
    startAgain();
    for (const AgreementTable::Field& field : AgreementTable::fields()) {
        m_widgets.append(&findNamed(dialog, field.names.first()));
        if (auto* const edit = qobject_cast<QLineEdit*>(m_widgets.last())) {
            watchEdit(edit);
        }
    }
    watchSymbol();
    watchOthers();
    dialog.installEventFilter(this);
}

void Agreement::startAgain()
{
    m_pending.clear();
    m_leftUnreported.clear();
    m_suffixes.clear();
    noteSuffixes(m_symbol->text());
    m_background = Added::no;
    m_isTyping = false;
    m_isEmptiedByProgram = false;
    m_isPendingSinceClose = false;
}

void Agreement::watchEdit(QLineEdit* edit)
{
    const QString name = edit->objectName();
    connect(edit, &QLineEdit::textEdited, this, [this, name] {
        m_pending.insert(name);
        m_leftUnreported.remove(name);
    });
    connect(edit, &QLineEdit::editingFinished, this, [this, name] {
        m_pending.remove(name);
        m_leftUnreported.remove(name);
    });
    edit->installEventFilter(this);
}

void Agreement::watchSymbol()
{
    connect(m_symbol, &QLineEdit::textEdited, this, [this] {
        m_isTyping = true;
        m_isPendingSinceClose = false;
    });
    connect(m_symbol, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_isEmptiedByProgram = text.isEmpty() && !m_isTyping;
        m_isTyping = false;
        noteSuffixes(text);
    });
}

/// What the entry and the rotation's handler add: the degrees after the last and the first "_".
void Agreement::noteSuffixes(const QString& symbol)
{
    m_suffixes.insert(symbol.section('_', 1, 1).toInt());
    m_suffixes.insert(symbol.mid(symbol.lastIndexOf('_') + 1).toInt());
}

void Agreement::watchOthers()
{
    auto& rotation = findNamed<QSpinBox>(m_dialog, "m_pAngleValueSB");
    const QString name = rotation.objectName();
    connect(&rotation, qOverload<int>(&QSpinBox::valueChanged), this,
            [this, name] { m_pending.insert(name); });
    connect(&rotation, &QSpinBox::editingFinished, this, [this, name] { m_pending.remove(name); });

    const auto& markers = findNamed<QCheckBox>(m_dialog, "m_pAddMarkersCB");
    connect(&findNamed<QCheckBox>(m_dialog, "m_pBackgroundCB"), &QCheckBox::stateChanged, this,
            [this, &markers] { m_background = markers.isChecked() ? Added::yes : Added::no; });
}

bool Agreement::eventFilter(QObject* object, QEvent* event)
{
    if (object == &m_dialog && event->type() == QEvent::Close && isPending(symbolField)) {
        m_isPendingSinceClose = true;
    }
    const auto* const edit = qobject_cast<const QLineEdit*>(object);
    if (edit && event->type() == QEvent::FocusOut && isPending(edit->objectName()) &&
        !edit->hasAcceptableInput()) {
        m_leftUnreported.insert(edit->objectName());
    }
    return QObject::eventFilter(object, event);
}

bool Agreement::isUnfinished(const QWidget& widget) const
{
    const auto* const edit = qobject_cast<const QLineEdit*>(&widget);
    return (edit && !edit->hasAcceptableInput()) ||
           (isPending(widget.objectName()) && widget.hasFocus());
}

QVector<Agreement::Finding> Agreement::look(const QVariantMap& record) const
{
    const QVector<AgreementTable::Field>& fields = AgreementTable::fields();
    QVector<Finding> findings;
    findings.reserve(fields.size());
    AgreementTable::Shown shown;
    shown.isMetric = m_unit->text().contains(QLatin1String("my"));
    shown.suffixes = m_suffixes;
    shown.background = m_background;
    shown.isEmptiedByProgram = m_isEmptiedByProgram;
    shown.isPendingSinceClose = m_isPendingSinceClose;
    for (int i = 0; i < fields.size(); ++i) {
        const AgreementTable::Field& field = fields[i];
        shown.widget = m_widgets[i];
        shown.isLeftUnreported = m_leftUnreported.contains(field.names.first());
        shown.record = record.value(field.key).toString();
        Finding finding{field.names.first(), Result::Holds, {}};
        if (isUnfinished(*shown.widget)) {
            finding.result = Result::Unfinished;
        } else if (!AgreementTable::isStored(field, shown)) {
            finding.words = AgreementTable::exceptionOf(field, shown);
            finding.result = finding.words.isEmpty() ? Result::Broken : Result::Excepted;
        }
        if (finding.result == Result::Broken) {
            finding.words = QStringLiteral("%1 shows \"%2\", %3 is \"%4\"")
                                .arg(finding.field, AgreementTable::textOf(field, *shown.widget),
                                     field.key, shown.record);
        }
        findings.append(finding);
    }
    return findings;
}

QString Agreement::faultOf(const QVariantMap& record) const
{
    for (const Finding& finding : look(record)) {
        if (finding.result == Result::Broken) {
            return finding.words;
        }
    }
    return {};
}
