#pragma once

#include "addfeature/fields/ButtonField.h"
#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/TextField.h"
#include "addfeature/pages/BarcodePage.h"
#include "addfeature/pages/CannedTextPage.h"
#include "addfeature/pages/Page.h"
#include "addfeature/pages/PlotStampPage.h"
#include "addfeature/pages/StringPage.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>
#include <QPointer>

#include <array>

/// The format, the font and the text to place; the settings of each format are on separate pages,
/// one of which is shown.
class TextPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit TextPage(DialogDoor& door, QWidget* parent = nullptr);
    ~TextPage() override;

    void retranslate() override;
    void changeUnit(bool isMetric) override;

    /// Shows the page of the format and enables what it uses.
    void chooseFormat();
    void openFonts();
    void openSpecialTexts();
    /// Closes the windows that list fonts and special texts.
    void closePopups();

    ChoiceField* const m_pTextFormatCMB = add<ChoiceField>(
        {"m_pTextFormatCMB", Caption::spoken(QT_TR_NOOP("Text format")), RecordKeys::textFormat,
         SLOT(on_Textformart_ComboBox_Changed()), Sends::Never},
        Choices{{QT_TR_NOOP("String"), TextKind::string},
                {QT_TR_NOOP("Barcode"), TextKind::barcode, false},
                {QT_TR_NOOP("Orbotech Plot Stamp"), TextKind::plotStamp, false},
                {QT_TR_NOOP("Canned Text"), TextKind::cannedText, false}},
        ChoiceField::Stores::Text);
    StringPage* const m_strings = new StringPage(m_door, this);
    BarcodePage* const m_barcode = new BarcodePage(m_door, this);
    PlotStampPage* const m_plotStamp = new PlotStampPage(m_door, this);
    CannedTextPage* const m_cannedText = new CannedTextPage(m_door, *m_plotStamp, this);
    ButtonField* const m_pFontPB =
        add<ButtonField>(Details{"m_pFontPB", Caption::own(QT_TR_NOOP("Font\t\t:")), QString(),
                                 SLOT(on_m_pFontPB_clicked()), Sends::Never}
                             .enabledBy(m_pTextFormatCMB, {TextKind::string}));
    TextField* const m_pFontLE = add<TextField>(
        Details{"m_pFontLE", Caption::spoken(QT_TR_NOOP("Font")), RecordKeys::stringTextFont,
                SLOT(on_m_pFontLE_editingFinished()), Sends::WhenAccepted}
            .readOnly()
            .enabledBy(m_pTextFormatCMB, {TextKind::string}),
        LineField::Pattern::Text,
        isFontOfJob(QStringLiteral("standard")) ? QStringLiteral("standard") : QString(),
        [this](const QString& name) { return isFontOfJob(name); });
    ButtonField* const m_pTextPB =
        add<ButtonField>({"m_pTextPB", Caption::own(QT_TR_NOOP("Text\t\t:")), QString(),
                          SLOT(on_Text_clicked()), Sends::Never});
    TextField* const m_pTextLE = add<TextField>(
        Details{"m_pTextLE", Caption::spoken(QT_TR_NOOP("Text")), RecordKeys::textContains,
                SLOT(on_m_pTextLE_editingFinished()), Sends::Always}
            .pattern("^[A-Za-z0-9`~!@#$%^&*()\\-_=+<>,./ ]{0,}$"),
        LineField::Pattern::Text, QString());

private:
    void layOut();
    void alignButtons();
    void showSubPage();
    bool isFontOfJob(const QString& name) const;

    const std::array<Page*, 4> m_subPages = {m_strings, m_barcode, m_plotStamp, m_cannedText};
    QPointer<QWidget> m_fontPopup;
    QPointer<QWidget> m_specialTextPopup;
};
