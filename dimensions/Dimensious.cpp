#include "dimensions/Dimensious.h"

#include "ui_Dimensious.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QRadioButton>

namespace {

Q_LOGGING_CATEGORY(dimensionsLog, "canvastoolstrip.dimensions")

/// All texts of the popup are in the form's context.
QString text(const char* source)
{
    return QCoreApplication::translate("m_pDimensions", source);
}

void fill(QComboBox* combo, std::initializer_list<const char*> sources)
{
    QStringList items;
    for (const char* const source : sources) {
        items.append(text(source));
    }
    combo->clear();
    combo->insertItems(0, items);
}

QSpacerItem* createSpacer()
{
    return new QSpacerItem(1, 2, QSizePolicy::Minimum, QSizePolicy::Expanding);
}

}  // namespace

Dimensious::Dimensious(QWidget* parent) : QWidget(parent), m_form(new Ui::m_pDimensions)
{
    m_form->setupUi(this);
    retranslateForm();
    QSpacerItem* const spacer = createSpacer();
    buildElementArea();
    m_form->m_pMainLayoutVL->addItem(spacer);
}

Dimensious::~Dimensious() = default;

void Dimensious::buildElementArea()
{
    m_pElementWidget = new QWidget(this);
    m_pElementWidget->setObjectName(QStringLiteral("m_pElementWidget"));
    // Outside the layout it overlaps the first buttons, which must get the mouse.
    m_pElementWidget->lower();
    m_elementLayout = new QVBoxLayout(m_pElementWidget);
    m_elementLayout->setObjectName(QStringLiteral("m_pElementVL"));
    buildSourceElement();
    buildDestElement();
    m_elementLayout->addWidget(m_pSourceElementGB);
    m_elementLayout->addWidget(m_pDestElementGB);
    m_elementLayout->addItem(createSpacer());
    retranslateElementArea();
}

QGroupBox* Dimensious::createGroup(const char* name)
{
    auto* const group = new QGroupBox(m_pElementWidget);
    group->setObjectName(QLatin1String(name));
    group->setAlignment(Qt::AlignCenter);
    group->hide();
    return group;
}

void Dimensious::buildSourceElement()
{
    m_pSourceElementGB = createGroup("m_pSourceElementGB");
    auto* const grid = new QGridLayout(m_pSourceElementGB);
    m_pSourcesRBGroup = new QButtonGroup(this);
    m_pSourcesRBGroup->setObjectName(QStringLiteral("m_pSourcesRBGroup"));
    for (int id = 0; id < 2; ++id) {
        auto* const button = new QRadioButton(m_pSourceElementGB);
        button->setObjectName(QStringLiteral("m_pSingleSource%1RB").arg(id + 1));
        m_pSourcesRBGroup->addButton(button, id);
        grid->addWidget(button, 0, 2 * id, 1, 2);
    }
    m_pSourcesRBGroup->button(0)->setChecked(true);
    // The second set deliberately overlaps the first, in the same cells.
    m_selectors = {addSelector(grid, QStringLiteral("1")), addSelector(grid, QStringLiteral("2"))};
    connect(m_pSourcesRBGroup, SIGNAL(buttonClicked(QAbstractButton*)), this,
            SLOT(on_m_pSourcesRBGroup_clicked(QAbstractButton*)));
}

Dimensious::Selector Dimensious::addSelector(QGridLayout* grid, const QString& number)
{
    auto* const select = new QPushButton(m_pSourceElementGB);
    auto* const entry = new QLineEdit(m_pSourceElementGB);
    auto* const mode = new QLabel(m_pSourceElementGB);
    auto* const modes = new QComboBox(m_pSourceElementGB);
    select->setObjectName(QStringLiteral("m_pSel%1PB").arg(number));
    entry->setObjectName(QStringLiteral("m_pSel%1LE").arg(number));
    mode->setObjectName(QStringLiteral("m_pMode%1LB").arg(number));
    modes->setObjectName(QStringLiteral("m_pMode%1CMB").arg(number));
    int column = 0;
    for (QWidget* const widget : std::initializer_list<QWidget*>{select, entry, mode, modes}) {
        grid->addWidget(widget, 1, column++);
    }
    return {select, entry, mode, modes};
}

void Dimensious::buildDestElement()
{
    m_pDestElementGB = createGroup("m_pDestElementGB");
    new QVBoxLayout(m_pDestElementGB);  // holds nothing yet
    m_pCreateNewEleLB = new QLabel(m_pDestElementGB);
    m_pCreateNewEleLB->setObjectName(QStringLiteral("m_pCreateNewEleLB"));
    m_pCreateNewEleRBGroup = new QButtonGroup(this);
    m_pCreateNewEleRBGroup->setObjectName(QStringLiteral("m_pCreateNewEleRBGroup"));
    for (int id = 0; id < 2; ++id) {
        auto* const button = new QRadioButton(m_pDestElementGB);
        button->setObjectName(id == 0 ? QStringLiteral("m_pYesRB") : QStringLiteral("m_pNoRB"));
        m_pCreateNewEleRBGroup->addButton(button, id);
    }
    m_createNewRow = std::make_unique<QHBoxLayout>();
    m_createNewRow->addWidget(m_pCreateNewEleLB);
}

void Dimensious::retranslate()
{
    m_form->retranslateUi(this);
    retranslateForm();
    retranslateElementArea();
}

void Dimensious::retranslateForm()
{
    fill(m_form->m_pFilterCMB, {QT_TRANSLATE_NOOP("m_pDimensions", "Filter"),
                                QT_TRANSLATE_NOOP("m_pDimensions", "None")});
    fill(m_form->m_pSymbolCMB,
         {QT_TRANSLATE_NOOP("m_pDimensions", "Sym"), QT_TRANSLATE_NOOP("m_pDimensions", "No sym")});
    fill(m_form->m_pOverlapCMB, {QT_TRANSLATE_NOOP("m_pDimensions", "Overlap"),
                                 QT_TRANSLATE_NOOP("m_pDimensions", "Opaque")});
    fill(m_form->m_pPrecisionCMB,
         {QT_TRANSLATE_NOOP("m_pDimensions", "1"), QT_TRANSLATE_NOOP("m_pDimensions", "2"),
          QT_TRANSLATE_NOOP("m_pDimensions", "3"), QT_TRANSLATE_NOOP("m_pDimensions", "4"),
          QT_TRANSLATE_NOOP("m_pDimensions", "5")});
}

void Dimensious::retranslateNames()
{
    m_form->m_pFilterCMB->setAccessibleName(text(QT_TRANSLATE_NOOP("m_pDimensions", "Filter")));
    m_form->m_pSymbolCMB->setAccessibleName(text(QT_TRANSLATE_NOOP("m_pDimensions", "Symbols")));
    m_form->m_pOverlapCMB->setAccessibleName(text(QT_TRANSLATE_NOOP("m_pDimensions", "Overlap")));
    m_form->m_pPrecisionCMB->setAccessibleName(
        text(QT_TRANSLATE_NOOP("m_pDimensions", "Precision")));
    for (const Selector& selector : qAsConst(m_selectors)) {
        selector.entry->setAccessibleName(text(QT_TRANSLATE_NOOP("m_pDimensions", "Element")));
        selector.modes->setAccessibleName(text(QT_TRANSLATE_NOOP("m_pDimensions", "Mode")));
    }
}

void Dimensious::retranslateElementArea()
{
    m_pSourceElementGB->setTitle(text(QT_TRANSLATE_NOOP("m_pDimensions", "Source Element")));
    for (QAbstractButton* const button : m_pSourcesRBGroup->buttons()) {
        button->setText(text(QT_TRANSLATE_NOOP("m_pDimensions", "Single Source")));
    }
    m_selectors[0].select->setText(text(QT_TRANSLATE_NOOP("m_pDimensions", "Sel")));
    m_selectors[1].select->setText(text(QT_TRANSLATE_NOOP("m_pDimensions", "sel")));
    for (const Selector& selector : qAsConst(m_selectors)) {
        selector.mode->setText(text(QT_TRANSLATE_NOOP("m_pDimensions", "Mode:")));
        fill(selector.modes,
             {QT_TRANSLATE_NOOP("m_pDimensions", "All"), QT_TRANSLATE_NOOP("m_pDimensions", "Ps"),
              QT_TRANSLATE_NOOP("m_pDimensions", "Pe")});
    }
    m_pDestElementGB->setTitle(text(QT_TRANSLATE_NOOP("m_pDimensions", "Dest Element")));
    m_pCreateNewEleLB->setText(text(QT_TRANSLATE_NOOP("m_pDimensions", "Create New Element")));
    m_pCreateNewEleRBGroup->button(0)->setText(text(QT_TRANSLATE_NOOP("m_pDimensions", "Yes")));
    m_pCreateNewEleRBGroup->button(1)->setText(text(QT_TRANSLATE_NOOP("m_pDimensions", "No")));
    retranslateNames();
}

void Dimensious::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void Dimensious::on_pushButton_clicked()
{
    qCDebug(dimensionsLog, "button clicked!");
}

void Dimensious::on_m_pSourcesRBGroup_clicked(QAbstractButton* /*button*/)
{
    [[maybe_unused]] const int id = m_pSourcesRBGroup->checkedId();
}

void Dimensious::on_m_pCreateNewEleRBGroup_clicked(QAbstractButton* /*button*/)
{
    [[maybe_unused]] const int id = m_pCreateNewEleRBGroup->checkedId();
}

void Dimensious::on_m_pLinePBGroup_clicked(int /*id*/) {}

void Dimensious::on_m_pRectPBGroup_buttonClicked(int) {}

void Dimensious::on_m_pSlotPBGroup_buttonClicked(int) {}

void Dimensious::on_m_pAddDstEleShapeCMB_ComboBox_Changed() {}
