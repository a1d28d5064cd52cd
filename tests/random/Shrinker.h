#pragma once

#include <QVector>

#include <functional>

/// The shortest list that it finds which still fails: leaves out halves, quarters, ... single
/// numbers, as long as `fails` holds of what is left. `numbers` itself must fail.
QVector<quint32> shrunk(QVector<quint32> numbers,
                        const std::function<bool(const QVector<quint32>&)>& fails);
