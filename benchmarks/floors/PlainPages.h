#pragma once

#include <initializer_list>

class QComboBox;
class QLineEdit;
class QString;
class QStringList;
class QWidget;

/// The pages of the plain dialog, and the widgets that they are made of.
namespace PlainPages {

QWidget* line(QWidget* dialog);
QWidget* pad(QWidget* dialog);
QWidget* surface(QWidget* dialog);
QWidget* arc(QWidget* dialog);
QWidget* text(QWidget* dialog);

/// A combo box with these items, of which those at `greyed` are not to be chosen.
QComboBox* combo(const QStringList& items, QWidget* parent, std::initializer_list<int> greyed = {});

/// A field with that text, which takes what `pattern` says; null: anything.
QLineEdit* field(const QString& text, const char* pattern, QWidget* parent);

}  // namespace PlainPages
