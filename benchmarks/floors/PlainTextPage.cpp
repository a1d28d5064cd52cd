#include "PlainPages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace PlainPages {
namespace {

constexpr char decimal[] = "-?[0-9]*\\.?[0-9]*";
constexpr char unsignedDecimal[] = "^[0-9]*(\\.[0-9]+)?$";
constexpr char characters[] = "^[A-Za-z0-9`~!@#$%^&*()\\-_=+<>,./ ]{0,}$";

QLabel* label(const QString& text, QWidget* parent, QWidget* buddy = nullptr)
{
    auto* const created = new QLabel(text, parent);
    created->setBuddy(buddy);
    return created;
}

QWidget* strings(QWidget* text)
{
    struct Size {
        const char* name;
        const char* value;
    };
    static constexpr Size sizes[] = {
        {"X Size  : ", "200"}, {"Y Size  : ", "200"}, {"Line Width : ", "24"}};
    auto* const page = new QWidget(text);
    auto* const grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    int row = 0;
    for (const Size& size : sizes) {
        auto* const value = field(QLatin1String(size.value), unsignedDecimal, page);
        grid->addWidget(label(QLatin1String(size.name), page, value), row, 0);
        grid->addWidget(value, row, 1);
        grid->addWidget(label("mil", page), row, 2);
        ++row;
    }
    return page;
}

QWidget* barcode(QWidget* text)
{
    auto* const page = new QWidget(text);
    auto* const grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    auto* const position = combo({"Top", "Bottom"}, page);
    auto* const markers = new QCheckBox("Add Markers", page);
    auto* const height = field("250", decimal, page);
    auto* const heightRow = new QHBoxLayout;
    heightRow->addWidget(height);
    heightRow->addWidget(label("mil", page));
    auto* const matrixButton = new QPushButton("Matrix\t:", page);
    auto* const matrix = field("Minimal", nullptr, page);
    for (QWidget* const disabled :
         {static_cast<QWidget*>(position), static_cast<QWidget*>(markers),
          static_cast<QWidget*>(matrixButton), static_cast<QWidget*>(matrix)}) {
        disabled->setEnabled(false);
    }
    grid->addWidget(new QCheckBox("Add String", page), 0, 0);
    grid->addWidget(position, 0, 1);
    grid->addWidget(new QCheckBox("Background", page), 1, 0);
    grid->addWidget(markers, 1, 1);
    grid->addWidget(label("Height\t:", page, height), 2, 0);
    grid->addLayout(heightRow, 2, 1);
    grid->addWidget(matrixButton, 3, 0);
    grid->addWidget(matrix, 3, 1);
    return page;
}

QWidget* plotStamp(QWidget* text)
{
    auto* const page = new QWidget(text);
    auto* const grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    auto* const type = combo({"String", "Barcode"}, page);
    auto* const fontSize = combo({"1", "2", "3", "4"}, page);
    auto* const zoom = combo({"1", "2", "3", "4", "5", "6", "7"}, page);
    grid->addWidget(label("Type\t\t:", page, type), 0, 0);
    grid->addWidget(type, 0, 1);
    grid->addWidget(label("Font Size\t:", page, fontSize), 1, 0);
    grid->addWidget(fontSize, 1, 1);
    grid->addWidget(label("Zoom Factor\t:", page, zoom), 2, 0);
    grid->addWidget(zoom, 2, 1);
    return page;
}

QWidget* cannedText(QWidget* text)
{
    auto* const page = new QWidget(text);
    auto* const row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    auto* const mode = combo({"5 X 7", "6 X 7"}, page);
    row->addWidget(label("Type\t\t:", page, mode));
    row->addWidget(mode);
    row->addWidget(field("20", decimal, page), 1);
    row->addWidget(label("mil", page));
    return page;
}

QLayout* fieldRow(const char* text, QWidget* field)
{
    auto* const row = new QHBoxLayout;
    row->addWidget(new QPushButton(text, field->parentWidget()));
    row->addWidget(field, 1);
    return row;
}

}  // namespace

QWidget* text(QWidget* dialog)
{
    auto* const page = new QWidget(dialog);
    auto* const formats =
        combo({"String", "Barcode", "Orbotech Plot Stamp", "Canned Text"}, page, {1, 2, 3});
    auto* const types = combo({"UPC39", "UPC39 ascii", "CODE128B", "CODE128C", "ECC-200"}, page);
    types->setEnabled(false);
    auto* const formatRow = new QHBoxLayout;
    for (QComboBox* const narrow : {formats, types}) {
        narrow->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        narrow->setMinimumContentsLength(6);
        formatRow->addWidget(narrow);
    }
    auto* const rows = new QVBoxLayout(page);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(formatRow);
    rows->addWidget(strings(page));
    for (QWidget* const hidden : {barcode(page), plotStamp(page), cannedText(page)}) {
        rows->addWidget(hidden);
        hidden->hide();
    }
    rows->addItem(new QSpacerItem(1, 2, QSizePolicy::Minimum, QSizePolicy::Expanding));
    auto* const font = field("standard", nullptr, page);
    font->setReadOnly(true);
    rows->addLayout(fieldRow("Font\t\t:", font));
    rows->addLayout(fieldRow("Text\t\t:", field({}, characters, page)));
    return page;
}

}  // namespace PlainPages
