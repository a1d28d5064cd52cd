#include "Popup.h"

#include <QTest>

std::unique_ptr<Dimensious> createPopup()
{
    for (const char* const slot :
         {"on_pushButton_clicked()", "on_m_pSourcesRBGroup_clicked(QAbstractButton*)",
          "on_m_pCreateNewEleRBGroup_clicked(QAbstractButton*)", "on_m_pLinePBGroup_clicked(int)",
          "on_m_pRectPBGroup_buttonClicked(int)", "on_m_pSlotPBGroup_buttonClicked(int)",
          "on_m_pAddDstEleShapeCMB_ComboBox_Changed()"}) {
        const QByteArray text =
            QByteArray("QMetaObject::connectSlotsByName: No matching signal for ") + slot;
        QTest::ignoreMessage(QtWarningMsg, text.constData());
    }
    return std::make_unique<Dimensious>(nullptr);
}
