#include "addfeature/AddFeature.h"

#include "addfeature/AttributeRow.h"
#include "addfeature/SymbolEntry.h"
#include "addfeature/SymbolField.h"
#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/RadioField.h"
#include "addfeature/pages/ArcPage.h"
#include "addfeature/pages/LinePage.h"
#include "addfeature/pages/PadPage.h"
#include "addfeature/pages/SurfacePage.h"
#include "addfeature/pages/TextPage.h"
#include "plugin/Guard.h"
#include "plugin/RecordKeys.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace {

constexpr int dialogWidth = 350;
constexpr int maximumRotation = 360;

}  // namespace

AddFeature::AddFeature(void* ownerContext, std::string job, std::string step, QWidget* parent)
    : QWidget(parent, Qt::Window),
      m_hostWidget(static_cast<QWidget*>(ownerContext)),
      m_job(std::move(job)),
      m_step(std::move(step)),
      m_canvas(ownerContext),
      m_units(m_hostWidget),
      m_checks(m_refusals, m_units, this, m_hostWidget)
{
    setObjectName(QStringLiteral("AddFeature"));
    setFixedWidth(dialogWidth);
    auto* const layout = new QVBoxLayout(this);
    buildTypeRow(layout);
    buildCommonRows(layout);
    buildPages(layout);
    layout->addStretch();
    retranslateFrame();
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &AddFeature::stayAbove);
}

AddFeature::~AddFeature() = default;

void AddFeature::buildTypeRow(QVBoxLayout* layout)
{
    m_pFeatureBG =
        new RadioField(*this, this,
                       {"m_pFeatureBG", Caption::none(), RecordKeys::features,
                        SLOT(onFeatureButtonClicked(QAbstractButton*)), Sends::Always},
                       RadioField::Look::Tool,
                       {{"m_pLineTB", "Line1.jpg", QT_TR_NOOP("Line"), FeatureKind::line},
                        {"m_pPadTB", "Pad1.jpg", QT_TR_NOOP("Pad"), FeatureKind::pad},
                        {"m_pSurfaceTB", "Surf1.jpg", QT_TR_NOOP("Surface"), FeatureKind::surface},
                        {"m_pArcTB", "Arc1.jpg", QT_TR_NOOP("Arc"), FeatureKind::arc},
                        {"m_pTextTB", "Text1.jpg", QT_TR_NOOP("Text"), FeatureKind::text}});
    QHBoxLayout* const row = m_pFeatureBG->createRow();
    row->addStretch();
    layout->addLayout(row);
}

void AddFeature::buildCommonRows(QVBoxLayout* layout)
{
    m_attributes = new AttributeRow(*this, this);
    layout->addWidget(m_attributes);

    m_pPolarityCMB = new ChoiceField(
        *this, this,
        {"m_pPolarityCMB", Caption::spoken(QT_TR_NOOP("Polarity")), RecordKeys::polarity,
         SLOT(on_m_pPolarityCMB_ComboBox_Changed()), Sends::Always},
        {{QT_TR_NOOP("Positive"), Polarity::positive},
         {QT_TR_NOOP("Negative"), Polarity::negative}},
        ChoiceField::Stores::Text);
    layout->addWidget(m_pPolarityCMB);

    m_pMirrorCMB =
        new ChoiceField(*this, this,
                        {"m_pMirrorCMB", Caption::spoken(QT_TR_NOOP("Mirror")), RecordKeys::mirror,
                         SLOT(on_m_pMirrorCMB_ComboBox_Changed()), Sends::Always},
                        {{QT_TR_NOOP("Mir"), Mirror::yes}, {QT_TR_NOOP("No Mir"), Mirror::no}},
                        ChoiceField::Stores::Text, Mirror::no);
    m_pMirrorCMB->hide();
    layout->addWidget(m_pMirrorCMB);

    m_pAngleValueSB = new QSpinBox(this);
    m_pAngleValueSB->setObjectName(QStringLiteral("m_pAngleValueSB"));
    m_pAngleValueSB->setRange(0, maximumRotation);
    m_pAngleValueSB->hide();
    layout->addWidget(m_pAngleValueSB);
    m_record.set(RecordKeys::mirrorRotate, QString::number(m_pAngleValueSB->value()));
    connect(m_pAngleValueSB, SIGNAL(editingFinished()), this,
            SLOT(on_m_pAngleValueSB_editingFinished()));

    m_symbol = new SymbolEntry(*this, this);
    layout->addWidget(m_symbol);
}

void AddFeature::buildPages(QVBoxLayout* layout)
{
    m_line = new LinePage(*this, this);
    m_pad = new PadPage(*this, this);
    m_surface = new SurfacePage(*this, this);
    m_arc = new ArcPage(*this, this);
    m_text = new TextPage(*this, this);
    m_pages = {m_line, m_pad, m_surface, m_arc, m_text};
    for (Page* const page : std::as_const(m_pages)) {
        layout->addWidget(page);
    }
    showPage(m_line);
}

void AddFeature::showEvent(QShowEvent* event)
{
    if (parentWidget() && parentWidget()->window()->windowHandle()) {
        parentWidget()->window()->windowHandle()->installEventFilter(this);
    }
    QWidget::showEvent(event);
}

/// A click raises the host's window even if it is already active.
bool AddFeature::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        stayAbove(watched);
    }
    return QWidget::eventFilter(watched, event);
}

/// Not every window system keeps the dialog above the host's window when that becomes active.
void AddFeature::stayAbove(const QObject* active)
{
    const QWindow* const host = parentWidget() ? parentWidget()->window()->windowHandle() : nullptr;
    if (host && host == active && isVisible()) {
        raise();
    }
}

void AddFeature::setToolStrip(Canvas_Tool_Strip* toolStrip)
{
    m_toolStrip = toolStrip;
}

FeatureType AddFeature::featureType() const
{
    return static_cast<FeatureType>(m_pFeatureBG->checkedId());
}

int AddFeature::rotation() const
{
    return m_pAngleValueSB->value();
}

bool AddFeature::isToolActive() const
{
    return m_toolStrip && m_toolStrip->isToolButtonChecked(static_cast<int>(Tool::AddFeature));
}

void AddFeature::sendAttributes(const std::map<std::string, std::string>& attributes)
{
    m_canvas.sendAttributes(attributes);
}

void AddFeature::connectToSlot(QObject* sender, const char* signal, const char* slot)
{
    connect(sender, signal, this, slot);
}

void AddFeature::disconnectFromSlot(QObject* sender, const char* signal, const char* slot)
{
    disconnect(sender, signal, this, slot);
}

void AddFeature::connectSignal(const char* signal, QObject* receiver, const char* slot)
{
    connect(this, signal, receiver, slot);
}

bool AddFeature::restoreCommonRows()
{
    const QPointer<AddFeature> self(this);
    m_attributes->restore();
    m_attributes->stateChanged();
    if (!self) {
        return false;
    }
    m_pPolarityCMB->show();
    m_symbol->setControlsVisible(true);
    return true;
}

void AddFeature::hideAttributeRows()
{
    m_attributes->hideAll();
    m_pPolarityCMB->hide();
}

void AddFeature::hidePlacementRows()
{
    m_pMirrorCMB->hide();
    m_pAngleValueSB->hide();
}

void AddFeature::onFeatureButtonClicked(QAbstractButton* /*button*/)
{
    // Everything is shown before the canvas is told about the attributes, and hidden only
    // afterwards: hiding the control that has the focus ends its editing, which sends.
    m_pPolarityCMB->show();
    m_symbol->setControlsVisible(true);
    if (!restoreCommonRows()) {
        return;
    }
    m_attributes->setFillEnabled(false);
    hidePlacementRows();

    const FeatureType type = featureType();
    const int id = static_cast<int>(type);
    m_pFeatureBG->storeChoice();
    if (id >= 0) {
        const bool isPlaced = type == FeatureType::Pad || type == FeatureType::Text;
        m_symbol->m_pSymbolTextLE->applyFeatureType();
        m_symbol->setControlsVisible(hasSymbol());
        m_attributes->setFillEnabled(type == FeatureType::Surface);
        m_pMirrorCMB->setVisible(isPlaced);
        m_pAngleValueSB->setVisible(isPlaced);
        showPage(m_pages[id]);
    }
    m_pFeatureBG->send();
}

void AddFeature::showPage(const Page* chosen)
{
    for (Page* const page : std::as_const(m_pages)) {
        page->setVisible(page == chosen);
    }
}

bool AddFeature::hasSymbol() const
{
    const FeatureType type = featureType();
    return type != FeatureType::Surface && type != FeatureType::Text;
}

void AddFeature::getChangeCurrentTool()
{
    m_closing = false;
    if (!hasSymbol() || m_symbol->m_pSymbolTextLE->isAccepted()) {
        m_canvas.sendRecord(m_record.map());
    }
}

void AddFeature::on_m_pAngleValueSB_editingFinished()
{
    m_refusals.report(m_pAngleValueSB, [this] { storeRotation(); });
}

void AddFeature::storeRotation()
{
    m_symbol->m_pSymbolTextLE->storeRotation();
    getChangeCurrentTool();
}

void AddFeature::on_m_pSymbolTextLE_textChanged(QString text)
{
    m_symbol->m_pSymbolTextLE->noteText(
        text, {"AddFeature", QT_TR_NOOP("Information"), "AddFeature.cpp", __LINE__});
}

void AddFeature::on_m_pSymbolTextLE_editingFinished()
{
    if (m_closing) {
        // Closing the window takes the focus: that is not an entry by the user.
        m_symbol->m_pSymbolTextLE->dropEntry();
    } else {
        m_symbol->m_pSymbolTextLE->finish();
    }
}

void AddFeature::change_current_units(bool isMM)
{
    m_units.tell(isMM);
    for (Page* const page : std::as_const(m_pages)) {
        page->changeUnit(isMM);
    }
    m_symbol->m_pSymbolTextLE->changeUnit(isMM);
    Q_EMIT unit_changed();
}

void AddFeature::set_job_info(const std::string& job, const std::string& step)
{
    m_job = job;
    m_step = step;
    m_symbol->jobChanged();
}

void AddFeature::change_language()
{
    retranslateFrame();
    for (Page* const page : std::as_const(m_pages)) {
        page->retranslate();
    }
}

void AddFeature::retranslateFrame()
{
    setWindowTitle(tr("Add Feature"));
    m_pFeatureBG->retranslate();
    m_attributes->retranslate();
    m_pPolarityCMB->retranslate();
    m_pMirrorCMB->retranslate();
    m_pAngleValueSB->setAccessibleName(tr("Rotation"));
    m_pAngleValueSB->setToolTip(tr("Rotation"));
    m_symbol->retranslate();
}

void AddFeature::closeEvent(QCloseEvent* event)
{
    m_closing = true;
    m_attributes->closePopups();
    m_symbol->closePopups();
    m_text->closePopups();
    QWidget::closeEvent(event);
    Q_EMIT change_viewtool();
}
