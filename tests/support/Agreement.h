#pragma once

#include <QMap>
#include <QObject>
#include <QSet>
#include <QVariantMap>
#include <QVector>

class QLabel;
class QLineEdit;
class QWidget;

/// Whether the dialog's record holds for every field what is stored for the value it shows.
///
/// It watches the dialog from outside, to know which entries are unfinished and which texts the
/// program put into a field. Create it before the dialog is used.
class Agreement : public QObject {
public:
    enum class Result {
        Holds,
        Unfinished,  ///< being edited, or not acceptable to the field's validator
        Excepted,    ///< by one of the prescribed exceptions
        Broken
    };
    struct Finding {
        QString field;
        Result result;
        QString words;  ///< the exception's reason, or what is wrong
    };

    explicit Agreement(QWidget& dialog);

    /// Forgets what has been done with the dialog, which is to be as it was at first.
    void startAgain();

    /// One finding for each field.
    QVector<Finding> look(const QVariantMap& record) const;
    /// What is wrong with the first field that disagrees; empty: all agree.
    QString faultOf(const QVariantMap& record) const;

    /// Whether the text typed in that field has not been reported yet.
    bool isPending(const QString& field) const { return m_pending.contains(field); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void watchEdit(QLineEdit* edit);
    void watchSymbol();
    void watchOthers();
    void noteSuffixes(const QString& symbol);
    bool isUnfinished(const QWidget& widget) const;

    QWidget& m_dialog;
    QVector<QWidget*> m_widgets;  // in the order of the fields
    QLineEdit* m_symbol;
    QLabel* m_unit;
    QSet<QString> m_pending;
    QSet<QString> m_leftUnreported;
    QSet<qint64> m_suffixes;
    QString m_background;
    bool m_isTyping;
    bool m_isEmptiedByProgram;
    bool m_isPendingSinceClose;
};
