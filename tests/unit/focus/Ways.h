#pragma once

#include <QStringList>
#include <QVector>

#include <functional>

class FocusFixture;

/// How a field loses the focus, or the entry in it its turn.
struct Way {
    enum Effect { None, Closes = 1, SetsSymbol = 2 };

    QString name;
    QString type;  ///< possible only with this type chosen; empty: always
    std::function<void(FocusFixture&)> act;
    int effects = None;
    QString sets = {};  ///< the key of what it chooses
    QString box = {};   ///< the box that it opens
    bool isAlways() const { return type.isEmpty(); }
};

const QVector<Way>& allWays();
