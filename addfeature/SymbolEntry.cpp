#include "addfeature/SymbolEntry.h"

#include "addfeature/SymbolField.h"
#include "addfeature/fields/ButtonField.h"
#include "addfeature/record/RefusalGuard.h"

#include <common_widgets.h>

#include <QHBoxLayout>
#include <QMessageBox>

namespace {

constexpr int pickButtonSize = 25;

constexpr char armedStyle[] =
    "QPushButton{background-image:url(:/Canvas_Tool_Strip/Resources/add_fea.jpg);"
    "border: 1px solid red;}";
constexpr char disarmedStyle[] =
    "QPushButton{background-image:url(:/Canvas_Tool_Strip/Resources/add_fea.jpg);border: none;}";

}  // namespace

SymbolEntry::SymbolEntry(DialogDoor& door, QWidget* parent)
    : QWidget(parent),
      m_pSymbolPB(new ButtonField(door, this,
                                  {"m_pSymbolPB", Caption::own(QT_TR_NOOP("Symbol")), QString(),
                                   SLOT(on_m_pSymbolPB_clicked()), Sends::Never})),
      m_pSymbolTextLE(new SymbolField(door, this)),
      m_pSelectFromEditorPB(new ButtonField(
          door, this,
          {"m_pSelectFromEditorPB", Caption::spoken(QT_TR_NOOP("Select from editor")), QString(),
           SLOT(on_m_pSelectFromEditorPB_clicked()), Sends::Never})),
      m_door(door)
{
    setObjectName(QStringLiteral("m_pSymbolWidget"));
    m_pSelectFromEditorPB->setFixedSize(pickButtonSize, pickButtonSize);
    m_pSelectFromEditorPB->setIconSize(m_pSelectFromEditorPB->size());
    m_pSelectFromEditorPB->setIcon(
        QIcon(QStringLiteral(":/Canvas_Tool_Strip/Resources/add_fea.jpg")));

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_pSymbolPB);
    row->addWidget(m_pSymbolTextLE);
    row->addWidget(m_pSelectFromEditorPB);
}

void SymbolEntry::retranslate()
{
    for (Field* const field :
         std::initializer_list<Field*>{m_pSymbolPB, m_pSymbolTextLE, m_pSelectFromEditorPB}) {
        field->retranslate();
    }
}

void SymbolEntry::setControlsVisible(bool visible)
{
    for (QWidget* const control :
         std::initializer_list<QWidget*>{m_pSymbolPB, m_pSymbolTextLE, m_pSelectFromEditorPB}) {
        control->setVisible(visible);
    }
    setVisible(visible);  // an empty row would leave a gap
}

void SymbolEntry::picked(const std::map<int, std::string>& symbols)
{
    const QPointer<SymbolEntry> self(this);
    for (const auto& symbol : symbols) {
        if (!self) {
            return;  // a receiver of what was sent has deleted the dialog
        }
        const QString name = QString::fromStdString(symbol.second);
        if (m_door.featureType() == FeatureType::Arc && !SymbolText::isRound(name)) {
            refusePick(name);
            continue;
        }
        m_pSymbolTextLE->put(name);
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
        m_chooser =
            new Widget_SymbolSelection(m_door.job(), m_door.hostWidget(), m_door.hostWidget());
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
