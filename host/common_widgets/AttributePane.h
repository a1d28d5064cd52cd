#pragma once

#include <CamApiStandIn.h>

#include <QWidget>

class QPushButton;
class QTableWidget;

/// The contents of the attribute window: the current job's attributes, each with a tick and an
/// editor for its kind of value.
class AttributePane : public QWidget {
    Q_OBJECT
public:
    using Values = std::vector<std::pair<std::string, std::string>>;

    explicit AttributePane(QWidget* window);

    /// Name and value of each attribute that is ticked, in the order of the table.
    Values values() const;
    /// Ticks exactly these; a name that the job does not know gets its own row.
    void setValues(const Values& values);

Q_SIGNALS:
    void changed();
    void applied();
    void editorAsked();

protected:
    void changeEvent(QEvent* event) override;

private:
    int addRow(const CanvasHost::AttributeDefinition& definition);
    int rowOf(const QString& name);
    QWidget* createEditor(const CanvasHost::AttributeDefinition& definition, int row);
    void tick(int row);
    QString valueAt(int row) const;
    void setValueAt(int row, const QString& value);
    void retranslate();

    QTableWidget* m_table;
    QPushButton* m_fromEditor;
    QPushButton* m_clear;
    QPushButton* m_apply;
};
