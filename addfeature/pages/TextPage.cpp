#include "addfeature/pages/TextPage.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/pages/BarcodePage.h"
#include "addfeature/pages/CannedTextPage.h"
#include "addfeature/pages/Choices.h"
#include "addfeature/pages/Fields.h"
#include "addfeature/pages/PlotStampPage.h"
#include "addfeature/pages/StringPage.h"
#include "plugin/RecordKeys.h"

#include <cam_api.h>
#include <common_widgets.h>
#include <ui_api.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRegExpValidator>

#include <algorithm>

namespace {

enum Format { String, Barcode, PlotStamp, CannedText };
const Choices formats = {
    {QT_TRANSLATE_NOOP("AddFeature", "String"), RecordValues::one},
    // The barcode format is told by the name of its own key; there is no "2".
    {QT_TRANSLATE_NOOP("AddFeature", "Barcode"), RecordKeys::barcodeMode, false},
    {QT_TRANSLATE_NOOP("AddFeature", "Orbotech Plot Stamp"), RecordValues::three, false},
    {QT_TRANSLATE_NOOP("AddFeature", "Canned Text"), RecordValues::four, false},
};

// What the host's list window lists.
constexpr int specialTextList = 16;
constexpr int fontList = 17;

constexpr int shownCharacters = 6;
const QString standardFont = QStringLiteral("standard");
const char textPattern[] = "^[A-Za-z0-9`~!@#$%^&*()\\-_=+<>,./ ]{0,}$";

QLayout* fieldRow(QWidget* button, QWidget* field)
{
    auto* row = new QHBoxLayout;
    row->addWidget(button);
    row->addWidget(field, 1);
    return row;
}

void present(QWidget* window)
{
    window->raise();
    window->show();
}

}  // namespace

TextPage::TextPage(PageHost& host, QWidget* parent)
    : Page(host, parent), m_format(new QComboBox(this)), m_barcodeType(new QComboBox(this))
{
    setObjectName(QStringLiteral("m_pTextPage"));
    m_format->setObjectName(QStringLiteral("m_pTextFormatCMB"));
    fillChoices(m_format, formats);
    m_barcodeType->setObjectName(QStringLiteral("m_pUPCCMB"));
    m_barcodeType->setEnabled(false);
    // Beside each other they cannot both be as wide as their longest items.
    for (QComboBox* const combo : {m_format, m_barcodeType}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(shownCharacters);
    }

    createSubPages();
    createFields();
    layOut();
    retranslate();
    writeDefaults();
    connectControls();
}

TextPage::~TextPage()
{
    // They stand outside the dialog: one is a child of the host's window, one of nothing.
    delete m_fontPopup;
    delete m_specialTextPopup;
}

void TextPage::createSubPages()
{
    m_strings = new StringPage(m_host, this);
    m_barcode = new BarcodePage(m_host, m_barcodeType, this);
    m_plotStamp = new PlotStampPage(m_host, this);
    m_cannedText = new CannedTextPage(m_host, *m_plotStamp, this);
    m_subPages = {m_strings, m_barcode, m_plotStamp, m_cannedText};
    for (Page* page : m_subPages) {
        page->setVisible(page == m_strings);
    }
}

void TextPage::createFields()
{
    m_fontButton = new QPushButton(this);
    m_fontButton->setObjectName(QStringLiteral("m_pFontPB"));
    m_font = Fields::create(m_host, Fields::Pattern::Text, QStringLiteral("m_pFontLE"), this);
    m_font->setReadOnly(true);
    if (isFontOfJob(standardFont)) {
        m_font->setText(standardFont);
    }

    m_textButton = new QPushButton(this);
    m_textButton->setObjectName(QStringLiteral("m_pTextPB"));
    m_text = Fields::create(m_host, Fields::Pattern::Text, QStringLiteral("m_pTextLE"), this);
    m_text->setValidator(new QRegExpValidator(QRegExp(QLatin1String(textPattern)), m_text));
}

void TextPage::layOut()
{
    auto* formatRow = new QHBoxLayout;
    formatRow->addWidget(m_format);
    formatRow->addWidget(m_barcodeType);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(formatRow);
    for (Page* page : m_subPages) {
        rows->addWidget(page);
    }
    rows->addItem(new QSpacerItem(1, 2, QSizePolicy::Minimum, QSizePolicy::Expanding));
    rows->addLayout(fieldRow(m_fontButton, m_font));
    rows->addLayout(fieldRow(m_textButton, m_text));
}

void TextPage::writeDefaults()
{
    FeatureRecord& record = m_host.record();
    record.set(RecordKeys::textFormat, RecordValues::one);
    record.set(RecordKeys::barcodeMode, RecordValues::one);
    record.set(RecordKeys::stringTextFont, m_font->text());
    record.set(RecordKeys::textContains, m_text->text());
}

void TextPage::connectControls()
{
    QObject* const owner = m_host.slotOwner();
    connect(m_format, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_Textformart_ComboBox_Changed()));
    connect(m_barcodeType, SIGNAL(currentIndexChanged(QString)), owner,
            SLOT(on_UPC_ComboBox_Changed()));
    connect(m_fontButton, SIGNAL(clicked()), owner, SLOT(on_m_pFontPB_clicked()));
    connect(m_font, SIGNAL(editingFinished()), owner, SLOT(on_m_pFontLE_editingFinished()));
    connect(m_textButton, SIGNAL(clicked()), owner, SLOT(on_Text_clicked()));
    connect(m_text, SIGNAL(editingFinished()), owner, SLOT(on_m_pTextLE_editingFinished()));
}

void TextPage::retranslate()
{
    retranslateChoices(m_format, formats);
    m_format->setAccessibleName(tr("Text format"));
    m_barcodeType->setAccessibleName(tr("Barcode type"));
    m_fontButton->setText(tr("Font\t\t:"));
    m_font->setAccessibleName(tr("Font"));
    m_textButton->setText(tr("Text\t\t:"));
    m_text->setAccessibleName(tr("Text"));
    // Rows of their own, whose fields begin at one line.
    const int width = qMax(m_fontButton->sizeHint().width(), m_textButton->sizeHint().width());
    m_fontButton->setMinimumWidth(width);
    m_textButton->setMinimumWidth(width);
    for (Page* page : m_subPages) {
        page->retranslate();
    }
}

void TextPage::changeUnit(bool isMetric)
{
    for (Page* page : m_subPages) {
        page->changeUnit(isMetric);
    }
}

void TextPage::formatChanged()
{
    const int format = m_format->currentIndex();
    const bool hasFont = format == String;
    m_fontButton->setEnabled(hasFont);
    m_font->setEnabled(hasFont);
    m_barcodeType->setEnabled(format == Barcode);

    const Choice* const choice = currentChoice(m_format, formats);
    if (!choice) {
        return;
    }
    if (format == Barcode) {
        m_barcode->barcodeTypeChanged();
    }
    m_host.record().set(RecordKeys::textFormat, choice->value);
    showSubPage(m_subPages[static_cast<size_t>(format)]);
}

void TextPage::showSubPage(const Page* page)
{
    for (Page* subPage : m_subPages) {
        subPage->setVisible(subPage == page);
    }
}

void TextPage::fontClicked()
{
    delete m_fontPopup;
    auto* popup =
        new Widget_listpopup(fontList, m_host.job(), static_cast<QWidget*>(m_host.ownerContext()));
    m_fontPopup = popup;
    connect(popup, SIGNAL(on_send_Font(QString)), m_host.slotOwner(), SLOT(get_font_name(QString)));
    present(popup);
}

void TextPage::setFont(const QString& name)
{
    m_font->setText(name);
    m_host.record().set(RecordKeys::stringTextFont, m_font->text());
    m_host.sendRecord();
}

void TextPage::fontEdited()
{
    if (!isFontOfJob(m_font->text())) {
        m_font->clear();
        return;
    }
    m_host.record().set(RecordKeys::stringTextFont, m_font->text());
    m_host.sendRecord();
}

bool TextPage::isFontOfJob(const QString& name) const
{
    std::vector<std::string> fonts;
    ZENTRA::API::get_fonts(m_host.job(), fonts);
    return std::find(fonts.begin(), fonts.end(), name.toStdString()) != fonts.end();
}

void TextPage::specialTextClicked()
{
    if (!m_specialTextPopup) {
        m_specialTextPopup =
            new Widget_listpopup(specialTextList, m_host.job(), m_host.step(), nullptr);
        connect(m_specialTextPopup, SIGNAL(on_send_changeText(QString)), m_host.slotOwner(),
                SLOT(get_Special_TEXT(QString)));
    }
    present(m_specialTextPopup);
}

void TextPage::setSpecialText(const QString& text)
{
    m_text->setText(QStringLiteral("$$") + text);
    m_host.record().set(RecordKeys::textContains, m_text->text());
    m_host.sendRecord();
}

void TextPage::textEdited()
{
    m_host.record().set(RecordKeys::textContains, m_text->text());
    m_host.sendRecord();
}

void TextPage::closePopups()
{
    for (const QPointer<QWidget>& popup : {m_fontPopup, m_specialTextPopup}) {
        if (popup) {
            popup->close();
        }
    }
}
