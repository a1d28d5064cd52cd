#include "addfeature/SymbolEntry.h"

#include "addfeature/record/DialogDoor.h"
#include "addfeature/record/FeatureRecord.h"
#include "addfeature/record/RefusalGuard.h"
#include "plugin/Guard.h"
#include "plugin/RecordKeys.h"

#include <cam_api.h>
#include <common_widgets.h>
#include <ui_api.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QRegExpValidator>
#include <QRegularExpression>
#include <QWindow>

#include <algorithm>
#include <optional>
#include <vector>

using ZENTRA::UIAPI::ZTERegExp;
using ZENTRA::UIAPI::ZTLineEdit;

namespace {

Q_LOGGING_CATEGORY(dialogLog, "canvastoolstrip.addfeature")

constexpr int freeText = 6;  // the host's input pattern
constexpr int pickButtonSize = 25;
constexpr int typedToStored = 0;
constexpr int storedToMetric = 1;

constexpr char armedStyle[] =
    "QPushButton{background-image:url(:/Canvas_Tool_Strip/Resources/add_fea.jpg);"
    "border: 1px solid red;}";
constexpr char disarmedStyle[] =
    "QPushButton{background-image:url(:/Canvas_Tool_Strip/Resources/add_fea.jpg);border: none;}";

bool isStandard(const QString& name, bool isArc)
{
    ZENTRA::API::symbol_type type{};
    int a = 0;
    int b = 0;
    return ZENTRA::API::identify_symbol(name.toStdString(), type, a, b, isArc);
}

/// The degrees after the last "_"; nothing unless they are whole degrees.
std::optional<int> suffixOf(const QString& name)
{
    static const QRegularExpression digits(QStringLiteral("\\A[0-9]+\\z"));
    const QString suffix = name.mid(name.lastIndexOf(QLatin1Char('_')) + 1);
    bool fits = false;
    const int degrees = suffix.toInt(&fits);
    return fits && digits.match(suffix).hasMatch() ? std::optional<int>(degrees) : std::nullopt;
}

/// Whether an arc can be drawn with the picked symbol: "r" and its size.
bool isRound(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("\\Ar[0-9.]+\\z"));
    return pattern.match(name).hasMatch();
}

}  // namespace

SymbolEntry::SymbolEntry(DialogDoor& door, QWidget* parent)
    : QWidget(parent),
      m_door(door),
      m_pSymbolPB(new QPushButton(this)),
      m_pSymbolTextLE(new ZTLineEdit(static_cast<ZTERegExp>(freeText),
                                     static_cast<QWidget*>(door.ownerContext()))),
      m_pSelectFromEditorPB(new QPushButton(this)),
      // Not literals: Qt keeps the patterns of QRegExp beyond the life of the library.
      m_lineValidator(new QRegExpValidator(
          QRegExp(QString::fromLatin1("^[rs]?|[rs][0-9]+(\\.[0-9]+)?$")), this)),
      m_padValidator(new QRegExpValidator(QRegExp(QString::fromLatin1("^[a-z0-9_.+-]*$")), this)),
      m_arcValidator(
          new QRegExpValidator(QRegExp(QString::fromLatin1("[r]?|[r][0-9]+(\\.[0-9]+)?$")), this))
{
    setObjectName(QStringLiteral("m_pSymbolWidget"));
    m_pSymbolPB->setObjectName(QStringLiteral("m_pSymbolPB"));
    m_pSymbolTextLE->setObjectName(QStringLiteral("m_pSymbolTextLE"));
    m_pSelectFromEditorPB->setObjectName(QStringLiteral("m_pSelectFromEditorPB"));
    m_pSelectFromEditorPB->setFixedSize(pickButtonSize, pickButtonSize);
    m_pSelectFromEditorPB->setIconSize(m_pSelectFromEditorPB->size());
    m_pSelectFromEditorPB->setIcon(
        QIcon(QStringLiteral(":/Canvas_Tool_Strip/Resources/add_fea.jpg")));
    m_pSymbolTextLE->setValidator(m_lineValidator);
    // Queued: by then Qt has reported what it reports by itself.
    connect(qApp, &QApplication::focusChanged, this, &SymbolEntry::takeLeftEntry,
            Qt::QueuedConnection);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &SymbolEntry::takeLeftEntry,
            Qt::QueuedConnection);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_pSymbolPB);
    row->addWidget(m_pSymbolTextLE);
    row->addWidget(m_pSelectFromEditorPB);
    // The field was created with another parent, and so came last.
    setTabOrder(m_pSymbolPB, m_pSymbolTextLE);
    retranslate();
    door.record().set(RecordKeys::symbolText, text());

    door.connectToSlot(m_pSelectFromEditorPB, SIGNAL(clicked()),
                       SLOT(on_m_pSelectFromEditorPB_clicked()));
    door.connectToSlot(m_pSymbolPB, SIGNAL(clicked()), SLOT(on_m_pSymbolPB_clicked()));
    door.connectToSlot(m_pSymbolTextLE, SIGNAL(editingFinished()),
                       SLOT(on_m_pSymbolTextLE_editingFinished()));
    door.connectToSlot(m_pSymbolTextLE, SIGNAL(textChanged(QString)),
                       SLOT(on_m_pSymbolTextLE_textChanged(QString)));
    door.connectToSlot(m_pSymbolTextLE, SIGNAL(returnPressed()),
                       SLOT(on_m_pSymbolTextLE_returnPressed()));
}

QString SymbolEntry::text() const
{
    return m_pSymbolTextLE->text();
}

const QObject* SymbolEntry::field() const
{
    return m_pSymbolTextLE;
}

void SymbolEntry::dropRefused(const QString& name)
{
    if (text() == name) {
        m_pSymbolTextLE->setText(QString());
    }
    FeatureRecord& record = m_door.record();
    if (isStoredForm(record.text(RecordKeys::symbolText), name)) {
        record.set(RecordKeys::symbolText, QString());
    }
}

/// Whether `symbol` is what an entry or a pick of `name` writes.
bool SymbolEntry::isStoredForm(const QString& symbol, const QString& name) const
{
    return symbol == name || symbol == stored(name) ||
           (m_hasSuffix && symbol == stored(name.left(name.lastIndexOf(QLatin1Char('_')))));
}

void SymbolEntry::retranslate()
{
    m_pSymbolPB->setText(tr("Symbol"));
    m_pSymbolTextLE->setAccessibleName(tr("Symbol"));
    m_pSymbolTextLE->setToolTip(tr("Symbol"));
    m_pSelectFromEditorPB->setToolTip(tr("Select from editor"));
    m_pSelectFromEditorPB->setAccessibleName(tr("Select from editor"));
}

void SymbolEntry::applyFeatureType()
{
    switch (m_door.featureType()) {
        case FeatureType::Line:
            m_pSymbolTextLE->setValidator(m_lineValidator);
            break;
        case FeatureType::Pad:
            m_pSymbolTextLE->setValidator(m_padValidator);
            break;
        case FeatureType::Arc:
            m_pSymbolTextLE->setValidator(m_arcValidator);
            break;
        case FeatureType::Surface:
        case FeatureType::Text:
            return;  // have no symbol; the field is hidden
    }
    takeLeftEntry();  // one that the previous type did not accept
}

void SymbolEntry::setControlsVisible(bool visible)
{
    for (QWidget* const control :
         std::initializer_list<QWidget*>{m_pSymbolPB, m_pSymbolTextLE, m_pSelectFromEditorPB}) {
        control->setVisible(visible);
    }
    setVisible(visible);  // an empty row would leave a gap
}

bool SymbolEntry::isSpecial(const QString& name) const
{
    std::vector<std::string> names;
    ZENTRA::API::get_special_symbol_names(m_door.job(), names);
    return std::find(names.begin(), names.end(), name.toStdString()) != names.end();
}

bool SymbolEntry::isMetric() const
{
    return ZENTRA::UIAPI::getUnit(m_door.ownerContext()) != 0;
}

QString SymbolEntry::stored(const QString& name) const
{
    return isMetric() ? ZENTRA::UIAPI::setSymbolUIData(name, typedToStored) : name;
}

int SymbolEntry::suffixDegrees() const
{
    return m_hasSuffix ? text().section(QLatin1Char('_'), 1, 1).toInt() : 0;
}

void SymbolEntry::storeRotation(int suffixDegrees)
{
    m_door.record().set(RecordKeys::mirrorRotate,
                        QString::number(qint64(m_door.rotation()) + suffixDegrees));
}

void SymbolEntry::refuse(const QString& title, const QString& text)
{
    m_door.refusals().box([&] { QMessageBox::warning(this, title, text); });
    m_pSymbolTextLE->setText(QString());
    m_door.record().set(RecordKeys::symbolText, this->text());
}

void SymbolEntry::chosen(const QString& name)
{
    m_pSymbolTextLE->setText(name);
    enterText();
}

void SymbolEntry::enterText()
{
    if (text().isEmpty()) {
        return;
    }
    m_door.record().set(RecordKeys::symbolText, stored(text()));
    storeRotation(0);
    m_door.sendRecord();
}

void SymbolEntry::finish()
{
    const RefusalGuard& refusals = m_door.refusals();
    if (!m_pSymbolTextLE->isModified() &&
        (refusals.isHandling(m_pSymbolTextLE) || refusals.isBoxOver(*m_pSymbolTextLE))) {
        return;  // see LineField::finish()
    }
    m_door.refusals().report(m_pSymbolTextLE, [this] { takeEntry(); });
}

void SymbolEntry::dropEntry()
{
    m_pSymbolTextLE->setModified(false);
}

void SymbolEntry::takeEntry()
{
    const bool sends = m_door.isToolActive();
    m_pSymbolTextLE->setModified(false);
    m_hasSuffix = false;
    storeRotation(0);
    storeEntry();
    if (sends) {
        m_door.sendRecord();
    }
}

void SymbolEntry::storeEntry()
{
    // The first two refusals show their texts untranslated, the last one translated: deliberate.
    const QString untranslatedTitle = QStringLiteral("Illegal Input");
    const QString untranslatedText = QStringLiteral("Unable to create special symbol!");
    const FeatureType type = m_door.featureType();
    QString name = text();

    if (type == FeatureType::Line && (name == QLatin1String("r") || name == QLatin1String("s"))) {
        refuse(untranslatedTitle, untranslatedText);
        return;
    }
    if (name.contains(QLatin1Char('_')) && !isStandard(name, false) && !isSpecial(name)) {
        const std::optional<int> degrees = suffixOf(name);
        if (!degrees) {
            refuse(untranslatedTitle, untranslatedText);
            return;
        }
        m_hasSuffix = true;
        storeRotation(*degrees);
        name.truncate(name.lastIndexOf(QLatin1Char('_')));
    }
    if (isStandard(name, type == FeatureType::Arc)) {
        m_door.record().set(RecordKeys::symbolText, stored(name));
    } else if (isSpecial(name)) {
        m_door.record().set(RecordKeys::symbolText, name);
    } else if (text().isEmpty()) {
        m_door.record().set(RecordKeys::symbolText, QString());
    } else {
        refuse(tr("Illegal Input"), tr("Unable to create special symbol!"));
    }
}

void SymbolEntry::returnPressed()
{
    m_door.refusals().run(m_pSymbolTextLE, [this] {
        const QString typed = text().left(m_pSymbolTextLE->cursorPosition());
        m_pSymbolTextLE->setText(typed);
        m_door.record().set(RecordKeys::symbolText, stored(typed));
        m_door.sendRecord();
    });
}

void SymbolEntry::noteText(const QString& text)
{
    m_door.refusals().run(m_pSymbolTextLE, [this, &text] {
        m_door.refusals().box([this, &text] {
            const bool isKept =
                guarded({"AddFeature", QT_TR_NOOP("Information"), "AddFeature.cpp", __LINE__}, [&] {
                    qCDebug(dialogLog).noquote().nospace() << "text is " << text;
                    keepText(text);
                });
            if (!isKept) {
                m_metricText.clear();
                m_otherText.clear();
                // Whatever closing the box has done to the focus is looked at once it is closed.
                QMetaObject::invokeMethod(this, &SymbolEntry::takeLeftEntry, Qt::QueuedConnection);
            }
        });
    });
}

/// A box that takes the focus is no leaving, nor is its closing, after which no window may be
/// active for a while: the focus is then still this field's within the dialog.
bool SymbolEntry::isLeft() const
{
    const QWidget* const active = QApplication::activeWindow();
    return !m_door.refusals().isBoxOver(*m_pSymbolTextLE) &&
           (window()->focusWidget() != m_pSymbolTextLE || (active && active != window()));
}

/// Handles an entry that Qt has not reported, or whose report was lost to a box about a failure,
/// and that is still in the field when the user leaves it.
void SymbolEntry::takeLeftEntry()
{
    if (m_pSymbolTextLE->isModified() && m_pSymbolTextLE->hasAcceptableInput() && isLeft()) {
        Q_EMIT m_pSymbolTextLE->editingFinished();
    }
}

void SymbolEntry::keepText(const QString& text)
{
    const bool metric = isMetric();
    m_metricText = metric ? text : QString();
    m_otherText = metric ? QString() : text;
}

void SymbolEntry::changeUnit(bool isMetric)
{
    QString& kept = isMetric ? m_metricText : m_otherText;
    if (kept.isEmpty()) {
        const QString& other = isMetric ? m_otherText : m_metricText;
        kept =
            converted(other.isEmpty() ? text() : other, isMetric ? storedToMetric : typedToStored);
    }
    // Not typed by the user: the kept texts stay.
    const char* const slot = SLOT(on_m_pSymbolTextLE_textChanged(QString));
    m_door.disconnectFromSlot(m_pSymbolTextLE, SIGNAL(textChanged(QString)), slot);
    const bool isUntaken = m_pSymbolTextLE->isModified();
    m_pSymbolTextLE->setText(kept);
    m_pSymbolTextLE->setModified(isUntaken);
    m_door.connectToSlot(m_pSymbolTextLE, SIGNAL(textChanged(QString)), slot);
}

QString SymbolEntry::converted(const QString& name, int direction) const
{
    const int suffix = name.lastIndexOf(QLatin1Char('_'));
    if (!m_hasSuffix || !suffixOf(name)) {
        return ZENTRA::UIAPI::setSymbolUIData(name, direction);
    }
    return QStringLiteral("%1_%2").arg(ZENTRA::UIAPI::setSymbolUIData(name.left(suffix), direction),
                                       name.mid(suffix + 1));
}

void SymbolEntry::picked(const std::map<int, std::string>& symbols)
{
    const QPointer<SymbolEntry> self(this);
    for (const auto& symbol : symbols) {
        if (!self) {
            return;  // a receiver of what was sent has deleted the dialog
        }
        QString name = QString::fromStdString(symbol.second);
        if (m_door.featureType() == FeatureType::Arc && !isRound(name)) {
            refusePick(name);
            continue;
        }
        if (isMetric()) {
            name = ZENTRA::UIAPI::setSymbolUIData(name, storedToMetric);
        }
        m_pSymbolTextLE->setText(name);
        m_door.record().set(RecordKeys::symbolText, name);
        togglePick();
        m_door.sendRecord();
    }
}

/// A separate handler: what was pending in a field is handled before the next pick.
void SymbolEntry::refusePick(const QString& name)
{
    RefusalGuard& refusals = m_door.refusals();
    refusals.run(nullptr, [&] {
        refusals.box([&] {
            QMessageBox::warning(this, tr("Dialog Box"), tr("Illegal symbol name: ") + name);
        });
    });
}

void SymbolEntry::togglePick()
{
    m_pickArmed = !m_pickArmed;
    m_pSelectFromEditorPB->setStyleSheet(QLatin1String(m_pickArmed ? armedStyle : disarmedStyle));
}

void SymbolEntry::openChooser()
{
    if (!m_chooser) {
        auto* const owner = static_cast<QWidget*>(m_door.ownerContext());
        m_chooser = new Widget_SymbolSelection(m_door.job(), owner, owner);
        m_door.connectToSlot(m_chooser, SIGNAL(sendText(QString)), SLOT(receive_text(QString)));
        m_door.connectSignal(SIGNAL(unit_changed()), m_chooser, SLOT(change_unit()));
    }
    const FeatureType type = m_door.featureType();
    const bool roundAndSquareOnly = type == FeatureType::Line || type == FeatureType::Arc;
    m_chooser->changeAvailableItemView(roundAndSquareOnly ? 0 : 1);
    m_chooser->show();
    m_chooser->read();
}

void SymbolEntry::jobChanged()
{
    if (m_chooser) {
        m_chooser->setJob(m_door.job());
    }
}

void SymbolEntry::readChooser()
{
    if (m_chooser) {
        m_chooser->read();
    }
}

void SymbolEntry::closePopups()
{
    if (m_chooser) {
        m_chooser->close();
    }
}
