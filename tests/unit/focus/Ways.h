#pragma once

#include "DialogFixture.h"

#include <QVector>

#include <functional>

/// How a field loses the focus, or how its entry is ended otherwise.
class Way {
public:
    using Act = std::function<void(DialogFixture&)>;

    Way(const QString& name, const Act& act) : m_name(name), m_act(act) {}

    /// Possible only with this type chosen.
    Way& onlyOn(const QString& typeButton) { return m_type = typeButton, *this; }
    /// Chooses the value of this key itself.
    Way& sets(const QString& key) { return m_key = key, *this; }
    Way& opensBox(const BoxText& box) { return m_boxes.append(box), *this; }
    Way& closesTheDialog() { return m_closes = true, *this; }
    Way& putsASymbol() { return m_putsSymbol = true, *this; }

    QString name() const { return m_name; }
    QString key() const { return m_key; }
    /// None or one.
    BoxTextList boxes() const { return m_boxes; }
    bool isAlwaysPossible() const { return m_type.isEmpty(); }
    bool isPossibleOn(const QString& typeButton) const
    {
        return isAlwaysPossible() || m_type == typeButton;
    }
    bool closes() const { return m_closes; }
    /// Whether a symbol that is being entered is replaced, or dropped with the window.
    bool endsASymbol() const { return m_closes || m_putsSymbol; }
    void act(DialogFixture& fixture) const { m_act(fixture); }

private:
    QString m_name;
    Act m_act;
    QString m_type;
    QString m_key;
    BoxTextList m_boxes;
    bool m_closes = false;
    bool m_putsSymbol = false;
};

const QVector<Way>& allWays();
