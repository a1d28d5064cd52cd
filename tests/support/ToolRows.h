#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

/// A tool as tests/contract/tools.txt pins it.
struct ToolRow {
    QString objectName;
    QString tip;
    QString note;  ///< disambiguation of the tip; empty: none
    /// After a language change; none: `tip` again, empty: the tip stays as it is.
    std::optional<QString> laterTip;
    bool isEnabled = false;
    QString picture;
    QString checkedPicture;
    QString property = QStringLiteral("background-image");  ///< of the style sheet
    QByteArray slot;
    int code = -1;  ///< -1: none
    QString codeName;
    int offCode = -1;  ///< the same as `code` for a tool with one code
    QString offCodeName;
    QString sender = QStringLiteral("Canvas_Tool_Strip.dll");
    bool hasMenu = false;
    bool opensWindow = false;

    QString styleSheet() const;
};

/// In list and grid order.
const QVector<ToolRow>& toolRows();
