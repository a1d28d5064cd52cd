#pragma once

#include <QVector>

#include <functional>

/// The shortest list it finds that still fails: leaves out halves, quarters, ... single numbers, as
/// long as `fails` is true of the rest. `numbers` itself must fail.
QVector<quint32> shrunk(QVector<quint32> numbers,
                        const std::function<bool(const QVector<quint32>&)>& fails);
