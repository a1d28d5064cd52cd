#include "PlainFields.h"
#include "plugin/RecordKeys.h"

#include <cam_api.h>
#include <ui_api.h>

#include <QIntValidator>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QVBoxLayout>

namespace {

constexpr char lineSymbol[] = "^[rs]?|[rs][0-9]+(\\.[0-9]+)?$";
const QString noRotation = QStringLiteral("0");

/// As deep in its window as a field of the dialog: an unused key is passed up from there.
QLineEdit* addField(QWidget* window, const QString& text)
{
    auto* const row = new QWidget(window);
    auto* const field = new QLineEdit(text, row);
    (new QVBoxLayout(row))->addWidget(field);
    if (!window->layout()) {
        new QVBoxLayout(window);
    }
    window->layout()->addWidget(row);
    return field;
}

}  // namespace

PlainSymbolWindow::PlainSymbolWindow(PlainRecord& record, const QString& symbol)
    : m_record(record), m_field(addField(this, symbol))
{
    m_field->setValidator(new QRegExpValidator(QRegExp(QLatin1String(lineSymbol)), m_field));
    connect(m_field, &QLineEdit::returnPressed, this, &PlainSymbolWindow::returnPressed);
    connect(m_field, &QLineEdit::editingFinished, this, &PlainSymbolWindow::editingFinished);
}

QString PlainSymbolWindow::stored(const QString& name)
{
    return ZENTRA::UIAPI::getUnit(this) != 0 ? ZENTRA::UIAPI::setSymbolUIData(name, 0) : name;
}

void PlainSymbolWindow::returnPressed()
{
    const QString typed = m_field->text().left(m_field->cursorPosition());
    m_field->setText(typed);
    m_record.insert(RecordKeys::symbolText, stored(typed));
    m_record.send(typed);
}

void PlainSymbolWindow::editingFinished()
{
    m_record.insert(RecordKeys::mirrorRotate, noRotation);
    const QString name = m_field->text();
    ZENTRA::API::symbol_type type{};
    int a = 0;
    int b = 0;
    if (ZENTRA::API::identify_symbol(name.toStdString(), type, a, b, false)) {
        m_record.insert(RecordKeys::symbolText, stored(name));
        m_record.send(name);
    }
}

PlainCountWindow::PlainCountWindow(PlainRecord& record, const QString& symbol)
    : m_record(record),
      m_symbol(addField(this, symbol)),
      m_field(addField(this, QStringLiteral("1")))
{
    m_field->setValidator(new QIntValidator(m_field));
    connect(m_field, &QLineEdit::textChanged, this, &PlainCountWindow::textChanged);
}

void PlainCountWindow::textChanged(const QString& text)
{
    if (ZENTRA::UIAPI::isNumValueLegal(text.toDouble(), 0, 50, this)) {
        m_record.insert(RecordKeys::padNx, text);
        m_record.send(m_symbol->text());
    }
}
