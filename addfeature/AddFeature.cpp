#include "addfeature/AddFeature.h"

#include "addfeature/AttributeRow.h"
#include "addfeature/SymbolEntry.h"
#include "addfeature/pages/ArcPage.h"
#include "addfeature/pages/Choices.h"
#include "addfeature/pages/LinePage.h"
#include "addfeature/pages/PadPage.h"
#include "addfeature/pages/SurfacePage.h"
#include "addfeature/pages/TextPage.h"
#include "plugin/Guard.h"
#include "plugin/RecordKeys.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLoggingCategory>
#include <QScopeGuard>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace {

Q_LOGGING_CATEGORY(dialogLog, "canvastoolstrip.addfeature")

constexpr int dialogWidth = 350;
constexpr int typeIconSize = 32;
constexpr int maximumRotation = 360;

/// A feature type's button, in the order of FeatureType.
struct TypeButton {
    const char* objectName;
    const char* icon;
    const char* name;
};
constexpr TypeButton typeButtons[] = {
    {"m_pLineTB", "Line1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Line")},
    {"m_pPadTB", "Pad1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Pad")},
    {"m_pSurfaceTB", "Surf1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Surface")},
    {"m_pArcTB", "Arc1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Arc")},
    {"m_pTextTB", "Text1.jpg", QT_TRANSLATE_NOOP("AddFeature", "Text")},
};

const Choices polarities = {{QT_TRANSLATE_NOOP("AddFeature", "Positive"), RecordValues::one},
                            {QT_TRANSLATE_NOOP("AddFeature", "Negative"), RecordValues::zero}};
const Choices mirrors = {{QT_TRANSLATE_NOOP("AddFeature", "Mir"), RecordValues::one},
                         {QT_TRANSLATE_NOOP("AddFeature", "No Mir"), RecordValues::two}};
constexpr int notMirrored = 1;

}  // namespace

AddFeature::AddFeature(void* ownerContext, std::string job, std::string step, QWidget* parent)
    : QWidget(parent, Qt::Window),
      m_ownerContext(ownerContext),
      m_job(std::move(job)),
      m_step(std::move(step)),
      m_canvas(ownerContext),
      m_checks(m_refusals, this, ownerContext)
{
    setObjectName(QStringLiteral("AddFeature"));
    setFixedWidth(dialogWidth);
    auto* const layout = new QVBoxLayout(this);
    buildTypeRow(layout);
    buildCommonRows(layout);
    buildPages(layout);
    layout->addStretch();
    retranslateFrame();
    connectFrame();
}

AddFeature::~AddFeature() = default;

void AddFeature::buildTypeRow(QVBoxLayout* layout)
{
    m_featureGroup = new QButtonGroup(this);
    auto* const row = new QHBoxLayout;
    for (const TypeButton& type : typeButtons) {
        auto* const button = new QToolButton(this);
        button->setObjectName(QLatin1String(type.objectName));
        button->setCheckable(true);
        button->setAutoRaise(true);  // only the chosen one has a frame
        button->setIconSize({typeIconSize, typeIconSize});
        button->setIcon(
            QIcon(QStringLiteral(":/Canvas_Tool_Strip/Resources/") + QLatin1String(type.icon)));
        m_featureGroup->addButton(button, m_featureGroup->buttons().size());
        row->addWidget(button);
    }
    row->addStretch();
    layout->addLayout(row);
    m_featureGroup->button(static_cast<int>(FeatureType::Line))->setChecked(true);
    m_record.set(RecordKeys::features, RecordValues::one);
}

void AddFeature::buildCommonRows(QVBoxLayout* layout)
{
    m_attributes = new AttributeRow(m_record, m_canvas, this);
    layout->addWidget(m_attributes);

    m_pPolarityCMB = new QComboBox(this);
    m_pPolarityCMB->setObjectName(QStringLiteral("m_pPolarityCMB"));
    fillChoices(m_pPolarityCMB, polarities);
    layout->addWidget(m_pPolarityCMB);
    m_record.set(RecordKeys::polarity, RecordValues::one);

    m_pMirrorCMB = new QComboBox(this);
    m_pMirrorCMB->setObjectName(QStringLiteral("m_pMirrorCMB"));
    fillChoices(m_pMirrorCMB, mirrors);
    m_pMirrorCMB->setCurrentIndex(notMirrored);
    m_pMirrorCMB->hide();
    layout->addWidget(m_pMirrorCMB);
    m_record.set(RecordKeys::mirror, RecordValues::two);

    m_pAngleValueSB = new QSpinBox(this);
    m_pAngleValueSB->setObjectName(QStringLiteral("m_pAngleValueSB"));
    m_pAngleValueSB->setRange(0, maximumRotation);
    m_pAngleValueSB->hide();
    layout->addWidget(m_pAngleValueSB);
    m_record.set(RecordKeys::mirrorRotate, QString::number(m_pAngleValueSB->value()));

    m_symbol = new SymbolEntry(*this, this, this);
    layout->addWidget(m_symbol);
    m_record.set(RecordKeys::symbolText, m_symbol->text());
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

void AddFeature::connectFrame()
{
    connect(m_featureGroup, SIGNAL(buttonClicked(QAbstractButton*)), this,
            SLOT(onFeatureButtonClicked(QAbstractButton*)));
    connect(m_pMirrorCMB, SIGNAL(currentIndexChanged(int)), this,
            SLOT(on_m_pMirrorCMB_ComboBox_Changed()));
    connect(m_pAngleValueSB, SIGNAL(editingFinished()), this,
            SLOT(on_m_pAngleValueSB_editingFinished()));
    connect(m_pPolarityCMB, SIGNAL(currentIndexChanged(int)), this,
            SLOT(on_m_pPolarityCMB_ComboBox_Changed()));
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &AddFeature::stayAbove);
}

/// Not every window system keeps the dialog above the host's window when that is clicked.
void AddFeature::stayAbove(const QWindow* active)
{
    const QWidget* const host = parentWidget() ? parentWidget()->window() : nullptr;
    if (active && host && host->windowHandle() == active && isVisible()) {
        raise();
    }
}

void AddFeature::setToolStrip(Canvas_Tool_Strip* toolStrip)
{
    m_toolStrip = toolStrip;
}

FeatureType AddFeature::featureType() const
{
    return static_cast<FeatureType>(m_featureGroup->checkedId());
}

int AddFeature::rotation() const
{
    return m_pAngleValueSB->value();
}

bool AddFeature::isToolActive() const
{
    return m_toolStrip && m_toolStrip->isToolButtonChecked(static_cast<int>(Tool::AddFeature));
}

bool AddFeature::checkLength(const QString& text, double boundInMil)
{
    return m_checks.length(text, boundInMil, m_metric);
}

bool AddFeature::checkCoordinate(double value)
{
    return m_checks.coordinate(value, m_metric);
}

bool AddFeature::checkNumber(double value, double minimum, double maximum)
{
    return m_checks.number(value, minimum, maximum);
}

bool AddFeature::restoreCommonRows()
{
    const QPointer<AddFeature> self(this);
    m_attributes->setCheckBoxVisible(true);
    m_attributes->setFillVisible(true);
    m_attributes->stateChanged();
    if (!self) {
        return false;
    }
    m_pPolarityCMB->show();
    m_symbol->setControlsVisible(true);
    return true;
}

void AddFeature::setRowVisible(CommonRow row, bool visible)
{
    switch (row) {
        case CommonRow::Attributes:
            m_attributes->setCheckBoxVisible(visible);
            break;
        case CommonRow::Values:
            m_attributes->setValuesVisible(visible);
            break;
        case CommonRow::Fill:
            m_attributes->setFillVisible(visible);
            break;
        case CommonRow::Polarity:
            m_pPolarityCMB->setVisible(visible);
            break;
        case CommonRow::Mirror:
            m_pMirrorCMB->setVisible(visible);
            break;
        case CommonRow::Rotation:
            m_pAngleValueSB->setVisible(visible);
            break;
    }
}

void AddFeature::onFeatureButtonClicked(QAbstractButton* /*button*/)
{
    // The order can be seen: hiding the control that has the focus ends its editing, and sends.
    const QPointer<AddFeature> self(this);
    m_pPolarityCMB->show();
    m_symbol->setControlsVisible(true);
    if (!restoreCommonRows() || !hidePlacing()) {
        return;
    }
    const FeatureType type = featureType();
    const int id = static_cast<int>(type);
    m_record.set(RecordKeys::features, id + 1);
    if (id >= 0 && id < m_pages.size()) {
        const bool isPlaced = type == FeatureType::Pad || type == FeatureType::Text;
        m_symbol->applyFeatureType();
        m_pMirrorCMB->setVisible(isPlaced);
        m_pAngleValueSB->setVisible(isPlaced);
        m_attributes->setFillEnabled(type == FeatureType::Surface);
        m_symbol->setControlsVisible(hasSymbol());
        if (!self || !showPage(m_pages[id])) {
            return;
        }
    }
    getChangeCurrentTool();
}

/// Greys "Fill..." and hides mirror and rotation. False when a receiver of what this makes the
/// rotation send has deleted the dialog.
bool AddFeature::hidePlacing()
{
    const QPointer<AddFeature> self(this);
    m_attributes->setFillEnabled(false);
    m_pMirrorCMB->hide();
    m_pAngleValueSB->hide();
    return self;
}

/// False when a receiver of what a hidden field sends has deleted the dialog.
bool AddFeature::showPage(const Page* chosen)
{
    const QPointer<AddFeature> self(this);
    const QList<Page*> pages = m_pages;
    for (Page* const page : pages) {
        page->setVisible(page == chosen);
        if (!self) {
            return false;
        }
    }
    return true;
}

bool AddFeature::hasSymbol() const
{
    const FeatureType type = featureType();
    return type != FeatureType::Surface && type != FeatureType::Text;
}

/// Has the host check the symbol, and takes a refused one out of field and record.
bool AddFeature::isSymbolAccepted()
{
    if (m_isSymbolChecked) {
        return false;  // asked by a message that arrives while the box of its refusal is open
    }
    bool isAccepted = false;
    m_refusals.run(m_symbol->field(), [this, &isAccepted] {
        const QPointer<AddFeature> self(this);
        const auto checked = qScopeGuard([self] {
            if (self) {
                self->m_isSymbolChecked = false;
            }
        });
        m_isSymbolChecked = true;
        const QString symbol = m_symbol->text();
        isAccepted = m_symbol->isSpecial(symbol) || m_checks.symbolSizes(symbol);
        if (self && !isAccepted) {
            m_symbol->dropRefused();
        }
    });
    return isAccepted;
}

void AddFeature::getChangeCurrentTool()
{
    m_closing = false;
    if (!hasSymbol() || isSymbolAccepted()) {
        m_canvas.sendRecord(m_record.map());
    }
}

void AddFeature::on_m_pPolarityCMB_ComboBox_Changed()
{
    if (const Choice* const polarity = currentChoice(m_pPolarityCMB, polarities)) {
        m_record.set(RecordKeys::polarity, polarity->value);
    }
    getChangeCurrentTool();
}

void AddFeature::on_m_pMirrorCMB_ComboBox_Changed()
{
    if (const Choice* const mirror = currentChoice(m_pMirrorCMB, mirrors)) {
        m_record.set(RecordKeys::mirror, mirror->value);
    }
    getChangeCurrentTool();
}

void AddFeature::on_m_pAngleValueSB_editingFinished()
{
    finish("m_pAngleValueSB", this, &AddFeature::storeRotation);
}

void AddFeature::storeRotation()
{
    m_record.set(RecordKeys::mirrorRotate,
                 QString::number(qint64(rotation()) + m_symbol->suffixDegrees()));
    getChangeCurrentTool();
}

void AddFeature::on_m_pSymbolTextLE_editingFinished()
{
    // Closing the window takes the focus from the field: no entry of the user's.
    if (!m_closing) {
        finish("m_pSymbolTextLE", m_symbol, &SymbolEntry::editingFinished);
    }
}

void AddFeature::on_m_pSymbolTextLE_textChanged(QString text)
{
    m_refusals.run(m_symbol->field(), [&] {
        m_refusals.box([&] {
            guarded({"AddFeature", QT_TRANSLATE_NOOP("AddFeature", "Information"), "AddFeature.cpp",
                     __LINE__},
                    [&] {
                        qCDebug(dialogLog).noquote().nospace() << "text is " << text;
                        m_symbol->keepText(text);
                    });
        });
    });
}

void AddFeature::change_current_units(bool isMM)
{
    m_metric = isMM;
    for (Page* const page : std::as_const(m_pages)) {
        page->changeUnit(isMM);
    }
    m_symbol->changeUnit(isMM);
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
    for (int id = 0; id < m_featureGroup->buttons().size(); ++id) {
        m_featureGroup->button(id)->setAccessibleName(tr(typeButtons[id].name));
        m_featureGroup->button(id)->setToolTip(tr(typeButtons[id].name));
    }
    m_attributes->retranslate();
    retranslateChoices(m_pPolarityCMB, polarities);
    retranslateChoices(m_pMirrorCMB, mirrors);
    m_pPolarityCMB->setAccessibleName(tr("Polarity"));
    m_pMirrorCMB->setAccessibleName(tr("Mirror"));
    m_pAngleValueSB->setAccessibleName(tr("Rotation"));
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
