#include "addfeature/SymbolField.h"

#include "addfeature/record/FeatureRecord.h"
#include "addfeature/record/Logging.h"
#include "addfeature/record/RefusalGuard.h"
#include "addfeature/record/ValueChecks.h"
#include "plugin/Guard.h"
#include "plugin/RecordKeys.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QScopeGuard>
#include <QValidator>
#include <QWindow>

#include <optional>
#include <utility>

SymbolField::SymbolField(DialogDoor& door, QWidget* row)
    : LineField(door, row, Pattern::Text,
                {"m_pSymbolTextLE", Caption::spoken(QT_TR_NOOP("Symbol")), RecordKeys::symbolText,
                 SLOT(on_m_pSymbolTextLE_editingFinished()), Sends::Always}),
      m_symbol(door.units())
{
    for (const FeatureType type : {FeatureType::Line, FeatureType::Pad, FeatureType::Arc}) {
        m_validators[type] = createValidator(SymbolText::patternFor(type));
    }
    setValidator(m_validators[FeatureType::Line]);
    store(text());
    retranslate();
    complete(SIGNAL(editingFinished()));
    door.connectToSlot(this, SIGNAL(textChanged(QString)),
                       SLOT(on_m_pSymbolTextLE_textChanged(QString)));
    door.connectToSlot(this, SIGNAL(returnPressed()), SLOT(on_m_pSymbolTextLE_returnPressed()));
    // Later: by then Qt has reported what it reports by itself. A queued connection would register
    // the types of these signals with functions of this library, beyond its life.
    const auto takeLater = [this] {
        QMetaObject::invokeMethod(this, &SymbolField::takeLeftEntry, Qt::QueuedConnection);
    };
    connect(qApp, &QApplication::focusChanged, this, takeLater);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, takeLater);
}

void SymbolField::applyFeatureType()
{
    QValidator* const validator = m_validators.value(m_door.featureType());
    if (validator) {
        setValidator(validator);
        takeLeftEntry();  // one that the previous type did not accept
    }
}

bool SymbolField::isAccepted()
{
    const QString name = text();
    if (!name.isEmpty() && name == m_checked) {
        return false;  // re-entered from the box of its refusal
    }
    bool isAccepted = false;
    m_door.refusals().run(this, [this, &name, &isAccepted] {
        const QPointer<SymbolField> self(this);
        const QString outer = std::exchange(m_checked, name);
        const auto checked = qScopeGuard([self, outer] {
            if (self) {
                self->m_checked = outer;
            }
        });
        isAccepted = SymbolText::isSpecial(name, m_door.job()) || m_door.checks().symbolSizes(name);
        if (self && !isAccepted) {
            dropRefused(name);
        }
    });
    return isAccepted;
}

void SymbolField::dropRefused(const QString& name)
{
    if (text() == name) {
        setText(QString());
    }
    if (m_symbol.isStoredForm(m_door.record().text(RecordKeys::symbolText), name)) {
        store(QString());
    }
}

void SymbolField::refuse(const QString& title, const QString& message)
{
    m_door.refusals().box([&] { QMessageBox::warning(parentWidget(), title, message); });
    setText(QString());
    store(text());
}

void SymbolField::storeRotation()
{
    storeRotation(m_symbol.addedDegrees(text()));
}

void SymbolField::storeRotation(int suffixDegrees)
{
    m_door.record().set(RecordKeys::mirrorRotate,
                        QString::number(qint64(m_door.rotation()) + suffixDegrees));
}

void SymbolField::put(const QString& storedName)
{
    const QString shown = m_symbol.shown(storedName);
    setText(shown);
    store(shown);
}

void SymbolField::choose(const QString& name)
{
    setText(name);
    enterText();
}

void SymbolField::enterText()
{
    if (text().isEmpty()) {
        return;
    }
    store(m_symbol.stored(text()));
    storeRotation(0);
    send();
}

void SymbolField::dropEntry()
{
    setModified(false);
}

void SymbolField::takeText(const QString& typed)
{
    const bool sends = m_door.isToolActive();
    m_symbol.setSuffixed(false);
    storeRotation(0);
    storeEntry(typed);
    if (sends) {
        send();
    }
}

void SymbolField::storeEntry(QString name)
{
    // The first two refusals show their texts untranslated, the last one translated: deliberate.
    const QString untranslatedTitle = QStringLiteral("Illegal Input");
    const QString untranslatedText = QStringLiteral("Unable to create special symbol!");
    const FeatureType type = m_door.featureType();

    if (type == FeatureType::Line && SymbolText::lacksSize(name)) {
        refuse(untranslatedTitle, untranslatedText);
        return;
    }
    if (name.contains(QLatin1Char('_')) && !SymbolText::isStandard(name, false) &&
        !SymbolText::isSpecial(name, m_door.job())) {
        const std::optional<int> degrees = SymbolText::suffixOf(name);
        if (!degrees) {
            refuse(untranslatedTitle, untranslatedText);
            return;
        }
        m_symbol.setSuffixed(true);
        storeRotation(*degrees);
        name = SymbolText::withoutSuffix(name);
    }
    if (SymbolText::isStandard(name, type == FeatureType::Arc)) {
        store(m_symbol.stored(name));
    } else if (SymbolText::isSpecial(name, m_door.job())) {
        store(name);
    } else if (text().isEmpty()) {
        store(QString());
    } else {
        refuse(tr("Illegal Input"), tr("Unable to create special symbol!"));
    }
}

void SymbolField::cutAtCursor()
{
    m_door.refusals().run(this, [this] {
        const QString typed = text().left(cursorPosition());
        setText(typed);
        store(m_symbol.stored(typed));
        send();
    });
}

void SymbolField::noteText(const QString& text, const GuardPosition& guard)
{
    RefusalGuard& refusals = m_door.refusals();
    const QPointer<SymbolField> self(this);
    refusals.run(this, [&] {
        refusals.box([&] {
            const bool isKept = guarded(guard, [&] {
                qCDebug(dialogLog).noquote().nospace() << "text is " << text;
                m_symbol.keep(text);
            });
            if (!isKept && self) {
                // Whatever closing the box has done to the focus is looked at once it is closed.
                QMetaObject::invokeMethod(this, &SymbolField::takeLeftEntry, Qt::QueuedConnection);
            }
        });
    });
}

/// A box that takes the focus is no leaving, nor is its closing, after which no window may be
/// active for a while: the focus is then still this field's within the dialog.
bool SymbolField::isLeft() const
{
    const QWidget* const active = QApplication::activeWindow();
    return !m_door.refusals().isBoxOver(*this) &&
           (window()->focusWidget() != this || (active && active != window()));
}

/// Handles an entry that Qt has not reported, or whose report was lost to a box about a failure,
/// and that is still in the field when the user leaves it.
void SymbolField::takeLeftEntry()
{
    if (isModified() && hasAcceptableInput() && isLeft()) {
        Q_EMIT editingFinished();
    }
}

void SymbolField::changeUnit(bool isMetric)
{
    // Not typed by the user: the kept texts stay.
    const char* const slot = SLOT(on_m_pSymbolTextLE_textChanged(QString));
    m_door.disconnectFromSlot(this, SIGNAL(textChanged(QString)), slot);
    const bool isUntaken = isModified();
    setText(m_symbol.inUnit(isMetric, text()));
    setModified(isUntaken);
    m_door.connectToSlot(this, SIGNAL(textChanged(QString)), slot);
}
