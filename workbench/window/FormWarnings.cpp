#include "window/FormWarnings.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* withoutSignal[] = {
    "on_pushButton_clicked()",
    "on_m_pSourcesRBGroup_clicked(QAbstractButton*)",
    "on_m_pCreateNewEleRBGroup_clicked(QAbstractButton*)",
    "on_m_pLinePBGroup_clicked(int)",
    "on_m_pRectPBGroup_buttonClicked(int)",
    "on_m_pSlotPBGroup_buttonClicked(int)",
    "on_m_pAddDstEleShapeCMB_ComboBox_Changed()",
};
QtMessageHandler shownBy = nullptr;

void leaveOut(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const bool isExpected =
        type == QtWarningMsg &&
        std::any_of(std::begin(withoutSignal), std::end(withoutSignal), [&](const char* slot) {
            return text ==
                   QLatin1String("QMetaObject::connectSlotsByName: No matching signal for ") +
                       QLatin1String(slot);
        });
    if (!isExpected) {
        shownBy(type, context, text);
    }
}

}  // namespace

FormWarnings::FormWarnings()
{
    shownBy = qInstallMessageHandler(leaveOut);
}

FormWarnings::~FormWarnings()
{
    qInstallMessageHandler(shownBy);
}
