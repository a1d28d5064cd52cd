#pragma once

#include "messages/HostMessage.h"
#include "shared/Retranslated.h"

#include <QDialog>

class HostState;
class PayloadTable;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// Composes a message and sends it to the tool strip, as a host or a sibling would: code, sender,
/// entries of the payload, and the extra word as a number or as an object.
class ComposeDialog : public Retranslated<QDialog> {
    Q_OBJECT

public:
    /// `host` sends; it is not owned and must outlive the dialog.
    explicit ComposeDialog(HostState* host, QWidget* parent = nullptr);

    /// Sends the message if everything is valid; otherwise each error is shown at its field, and
    /// nothing is sent.
    bool send();

private:
    void createCode();
    void createPayload();
    void createExtra();
    void createButtons();
    void codeChanged();
    HostMessage::ExtraWord readExtra(int code) const;
    void showExtraHint();
    void retranslate() override;

    HostState* m_host;
    QLabel* m_pComposeCodeTitleLB;
    QComboBox* m_pComposeCodeCMB;
    QLabel* m_pComposeCodeErrorLB;
    QLabel* m_pComposeSenderTitleLB;
    QLineEdit* m_pComposeSenderLE;
    QLabel* m_pComposePayloadTitleLB;
    PayloadTable* m_pComposePayloadTW;
    QLabel* m_pComposePayloadErrorLB;
    QPushButton* m_pComposeAddPB;
    QPushButton* m_pComposeRemovePB;
    QLabel* m_pComposeExtraTitleLB;
    QComboBox* m_pComposeExtraCMB;
    QLineEdit* m_pComposeExtraLE;
    QLabel* m_pComposeExtraErrorLB;
    QLabel* m_pComposeSentLB;
    QPushButton* m_pComposeSendPB;
    QPushButton* m_pComposeClosePB;
};
