#include "addfeature/pages/TextPage.h"

#include <cam_api.h>
#include <common_widgets.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// What the host's list window offers.
constexpr int specialTextList = 16;
constexpr int fontList = 17;

constexpr int shownCharacters = 6;

QLayout* createRow(QWidget* first, QWidget* second)
{
    auto* const row = new QHBoxLayout;
    row->addWidget(first);
    row->addWidget(second, 1);
    return row;
}

void present(QWidget* window)
{
    window->raise();
    window->show();
}

}  // namespace

TextPage::TextPage(DialogDoor& door, QWidget* parent) : Page(door, "m_pTextPage", parent)
{
    m_pTextFormatCMB->enable(m_barcode->m_pUPCCMB, {TextKind::barcode});
    layOut();
    alignButtons();
}

TextPage::~TextPage()
{
    // They are outside the dialog: one is a child of the host's window, the other has no parent.
    delete m_fontPopup;
    delete m_specialTextPopup;
}

void TextPage::layOut()
{
    auto* const formatRow = new QHBoxLayout;
    // Side by side they cannot both be as wide as their items ask.
    for (QComboBox* const combo : {m_pTextFormatCMB, m_barcode->m_pUPCCMB}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(shownCharacters);
        formatRow->addWidget(combo);
    }
    setTabOrder(m_pTextFormatCMB, m_barcode->m_pUPCCMB);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(formatRow);
    for (Page* const page : m_subPages) {
        rows->addWidget(page);
        page->setVisible(page == m_strings);
    }
    rows->addItem(new QSpacerItem(1, 2, QSizePolicy::Minimum, QSizePolicy::Expanding));
    rows->addLayout(createRow(m_pFontPB, m_pFontLE));
    rows->addLayout(createRow(m_pTextPB, m_pTextLE));
}

void TextPage::retranslate()
{
    Page::retranslate();
    for (Page* const page : m_subPages) {
        page->retranslate();
    }
    alignButtons();
}

/// Their fields, in separate rows, start at the same place.
void TextPage::alignButtons()
{
    const int width = qMax(m_pFontPB->sizeHint().width(), m_pTextPB->sizeHint().width());
    m_pFontPB->setMinimumWidth(width);
    m_pTextPB->setMinimumWidth(width);
}

void TextPage::changeUnit(bool isMetric)
{
    for (Page* const page : m_subPages) {
        page->changeUnit(isMetric);
    }
}

void TextPage::chooseFormat()
{
    m_pTextFormatCMB->enableOthers();
    // The barcode's page is shown before the format is stored, the others afterwards: the page that
    // gets hidden may have an entry to send.
    if (m_pTextFormatCMB->is(TextKind::barcode)) {
        m_barcode->m_pUPCCMB->change();
        showSubPage();
    }
    if (m_pTextFormatCMB->storeChoice()) {
        showSubPage();
    }
}

void TextPage::showSubPage()
{
    const auto chosen = static_cast<size_t>(m_pTextFormatCMB->currentIndex());
    for (Page* const page : m_subPages) {
        page->setVisible(page == m_subPages[chosen]);
    }
}

bool TextPage::isFontOfJob(const QString& name) const
{
    std::vector<std::string> fonts;
    ZENTRA::API::get_fonts(m_door.job(), fonts);
    return std::find(fonts.begin(), fonts.end(), name.toStdString()) != fonts.end();
}

void TextPage::openFonts()
{
    delete m_fontPopup;
    m_fontPopup = new Widget_listpopup(fontList, m_door.job(), m_door.hostWidget());
    m_door.connectToSlot(m_fontPopup, SIGNAL(on_send_Font(QString)), SLOT(get_font_name(QString)));
    present(m_fontPopup);
}

void TextPage::openSpecialTexts()
{
    if (!m_specialTextPopup) {
        m_specialTextPopup =
            new Widget_listpopup(specialTextList, m_door.job(), m_door.step(), nullptr);
        m_door.connectToSlot(m_specialTextPopup, SIGNAL(on_send_changeText(QString)),
                             SLOT(get_Special_TEXT(QString)));
    }
    present(m_specialTextPopup);
}

void TextPage::closePopups()
{
    for (const QPointer<QWidget>& popup : {m_fontPopup, m_specialTextPopup}) {
        if (popup) {
            popup->close();
        }
    }
}
