#pragma once

#include "addfeature/pages/Page.h"

#include <QCoreApplication>
#include <QPointer>

#include <array>

class BarcodePage;
class CannedTextPage;
class PlotStampPage;
class QComboBox;
class QPushButton;
class StringPage;

namespace ZENTRA {
namespace UIAPI {
class ZTLineEdit;
}  // namespace UIAPI
}  // namespace ZENTRA

/// The format, the font and the text to place; the settings of each format stand on a page of
/// their own, of which one is shown.
class TextPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit TextPage(PageHost& host, QWidget* parent = nullptr);
    ~TextPage() override;

    StringPage& strings() { return *m_strings; }
    BarcodePage& barcode() { return *m_barcode; }
    PlotStampPage& plotStamp() { return *m_plotStamp; }
    CannedTextPage& cannedText() { return *m_cannedText; }

    void retranslate() override;
    void changeUnit(bool isMetric) override;

    void formatChanged();
    void fontClicked();
    void setFont(const QString& name);
    void fontEdited();
    void specialTextClicked();
    void setSpecialText(const QString& text);
    void textEdited();

    /// Closes the windows that list fonts and special texts.
    void closePopups();

private:
    void createSubPages();
    void createFields();
    void layOut();
    void writeDefaults();
    void connectControls();
    void showSubPage(const Page* page);
    bool isFontOfJob(const QString& name) const;

    QComboBox* m_format = nullptr;
    QComboBox* m_barcodeType = nullptr;
    StringPage* m_strings = nullptr;
    BarcodePage* m_barcode = nullptr;
    PlotStampPage* m_plotStamp = nullptr;
    CannedTextPage* m_cannedText = nullptr;
    std::array<Page*, 4> m_subPages{};

    QPushButton* m_fontButton = nullptr;
    ZENTRA::UIAPI::ZTLineEdit* m_font = nullptr;
    QPushButton* m_textButton = nullptr;
    ZENTRA::UIAPI::ZTLineEdit* m_text = nullptr;

    QPointer<QWidget> m_fontPopup;
    QPointer<QWidget> m_specialTextPopup;
};
