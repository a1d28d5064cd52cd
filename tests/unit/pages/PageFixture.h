#pragma once

#include <QStringList>
#include <QVariant>

#include <memory>

class AddFeature;
class QWidget;

/// The dialog in a host's window, with what it sends recorded and its boxes answered.
class PageFixture {
public:
    explicit PageFixture(bool metric = false);
    ~PageFixture();
    PageFixture(const PageFixture&) = delete;
    PageFixture& operator=(const PageFixture&) = delete;

    AddFeature& dialog();
    QWidget* widget(const QString& name) const;
    template <class Widget>
    Widget& find(const QString& name) const
    {
        return dynamic_cast<Widget&>(*widget(name));
    }

    /// Steps as they are written in PageCases::Case.
    void perform(const QString& step);
    void perform(const QStringList& steps);

    void click(const QString& name);
    void setText(const QString& field, const QString& text);
    void type(const QString& field, const QString& text);
    /// Leaves a field by "Enter", "Tab" or "mouse" (a click on `neighbour`).
    void leave(const QString& field, const QString& way, const QString& neighbour);

    void chooseByMouse(const QString& combo, int item);
    /// Opens the list, goes down by the arrow key from the first item and presses Enter.
    void chooseInList(const QString& combo, int item);
    void chooseByTypingAhead(const QString& combo, int item);
    void press(const QString& combo, int key, int times);
    void turnWheel(const QString& combo, int notches);

    void changeUnit(bool metric);
    void changeLanguage();
    static QString translated(const QString& text);

    /// The codes that were sent since the last forget().
    QList<int> codes() const;
    /// The record that was sent last since forget(), or else the one that the next message carries.
    QVariantMap record();
    /// The boxes since the last forget(), as "title|text".
    QStringList boxes() const;
    void forget();

    QString text(const QString& field) const;
    QString labelText(const QString& label) const;
    int index(const QString& combo) const;
    bool hasState(const QString& state) const;

    QList<int> indices(const QString& page) const;
    QStringList greyedItems(const QString& page) const;
    QStringList visibleTexts(const QString& page) const;

private:
    class Private;
    std::unique_ptr<Private> d;
};
