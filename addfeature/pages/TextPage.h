#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/fields/TextField.h"
#include "addfeature/pages/Page.h"

#include <QCoreApplication>
#include <QPointer>

#include <array>

class BarcodePage;
class CannedTextPage;
class PlotStampPage;
class QPushButton;
class StringPage;

/// The format, the font and the text to place; the settings of each format stand on a page of
/// their own, of which one is shown.
class TextPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit TextPage(DialogDoor& door, QWidget* parent = nullptr);
    ~TextPage() override;

    void retranslate() override;
    void changeUnit(bool isMetric) override;

    /// Shows the page of the format and enables what it uses. Sends nothing.
    void chooseFormat();
    void openFonts();
    void openSpecialTexts();
    /// Closes the windows that list fonts and special texts.
    void closePopups();

    ChoiceField* const m_pTextFormatCMB;
    StringPage* const m_strings;
    BarcodePage* const m_barcode;
    PlotStampPage* const m_plotStamp;
    CannedTextPage* const m_cannedText;
    QPushButton* const m_pFontPB;
    TextField* const m_pFontLE;
    QPushButton* const m_pTextPB;
    TextField* const m_pTextLE;

private:
    QPushButton* addButton(const char* name, const char* slot);
    void layOut();
    bool isFontOfJob(const QString& name) const;

    const std::array<Page*, 4> m_subPages;
    QPointer<QWidget> m_fontPopup;
    QPointer<QWidget> m_specialTextPopup;
};
