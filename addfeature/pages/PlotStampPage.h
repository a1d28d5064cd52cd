#pragma once

#include "addfeature/fields/ChoiceField.h"
#include "addfeature/pages/Page.h"
#include "plugin/RecordKeys.h"

#include <QCoreApplication>

/// The settings of a plot stamp. They are stored only, as Sends::Never says.
class PlotStampPage final : public Page {
    Q_DECLARE_TR_FUNCTIONS(AddFeature)

public:
    explicit PlotStampPage(DialogDoor& door, QWidget* parent = nullptr);

    ChoiceField* const m_pOrbotechTypeCMB = add<ChoiceField>(
        {"m_pOrbotechTypeCMB", Caption::label(QT_TR_NOOP("Type\t\t:")), RecordKeys::orbotechType,
         SLOT(on_m_pOrbotechTypeCMB_ComboBox_Changed()), Sends::Never},
        Choices{{QT_TR_NOOP("String"), PlotStampType::string},
                {QT_TR_NOOP("Barcode"), PlotStampType::barcode}},
        ChoiceField::Stores::TextElseNumber);
    ChoiceField* const m_pOrbotechFontSizeCMB =
        add<ChoiceField>({"m_pOrbotechFontSizeCMB", Caption::label(QT_TR_NOOP("Font Size\t:")),
                          RecordKeys::orbotechFontSize,
                          SLOT(on_m_pOrbotechFontSizeCMB_ComboBox_Changed()), Sends::Never},
                         Choices{{QT_TR_NOOP("1"), RecordValues::one},
                                 {QT_TR_NOOP("2"), RecordValues::two},
                                 {QT_TR_NOOP("3"), RecordValues::three},
                                 {QT_TR_NOOP("4"), RecordValues::four}},
                         ChoiceField::Stores::Number);
    ChoiceField* const m_pOrbotechZoomCMB = add<ChoiceField>(
        {"m_pOrbotechZoomCMB", Caption::label(QT_TR_NOOP("Zoom Factor\t:")),
         RecordKeys::orbotechZoom, SLOT(on_m_pOrbotechZoomCMB_ComboBox_Changed()), Sends::Never},
        Choices{{QT_TR_NOOP("1"), RecordValues::one},
                {QT_TR_NOOP("2"), RecordValues::two},
                {QT_TR_NOOP("3"), RecordValues::three},
                {QT_TR_NOOP("4"), RecordValues::four},
                {QT_TR_NOOP("5"), RecordValues::five},
                {QT_TR_NOOP("6"), RecordValues::six},
                {QT_TR_NOOP("7"), RecordValues::seven}},
        ChoiceField::Stores::Number);
};
