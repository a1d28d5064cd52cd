#pragma once

#include <cam_api.h>

#include <QStringList>

#include <string>
#include <vector>

/// The directions of ZENTRA::UIAPI::setSymbolUIData().
enum Direction { TypedToStored, StoredToMetric };

/// What ZENTRA::API::identify_symbol() answers. Until then, values that no answer can have.
struct Identified {
    bool isKnown = false;
    ZENTRA::API::symbol_type type = ZENTRA::API::symbol_type(-7);
    int a = -7;
    int b = -7;
};

inline Identified identify(const std::string& name, bool arc)
{
    Identified answer;
    answer.isKnown = ZENTRA::API::identify_symbol(name, answer.type, answer.a, answer.b, arc);
    return answer;
}

inline QStringList texts(const std::vector<std::string>& names)
{
    QStringList all;
    for (const std::string& name : names) {
        all.append(QString::fromStdString(name));
    }
    return all;
}
