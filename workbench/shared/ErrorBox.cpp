#include "shared/ErrorBox.h"

#include <QDir>
#include <QMessageBox>

void showError(QWidget* parent, const QString& title, const CanvasHost::FileError& error)
{
    // The reason first: paths are long, and the user has just chosen this one.
    QString text = error.reason.left(1).toUpper() + error.reason.mid(1);
    const QString place = QDir::toNativeSeparators(error.place());
    if (!place.isEmpty()) {
        text += QStringLiteral("\n\n") + place;
    }
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    box.setObjectName(QStringLiteral("m_pErrorBox"));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
