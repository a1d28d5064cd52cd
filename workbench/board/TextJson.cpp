#include "board/TextJson.h"

#include "board/FeatureJson.h"

#include <QCoreApplication>

namespace Pcb {

using CanvasHost::JsonNode;

namespace {

const QStringList formats = {QStringLiteral("string"), QStringLiteral("barcode"),
                             QStringLiteral("plotStamp"), QStringLiteral("canned")};
const QStringList barcodes = {QStringLiteral("code39"), QStringLiteral("code39ascii"),
                              QStringLiteral("code128b"), QStringLiteral("code128c"),
                              QStringLiteral("matrix")};

struct LengthKey {
    const char* key;
    double TextSpec::*member;
};

constexpr LengthKey lengths[] = {
    {"xSize", &TextSpec::xSize},         {"ySize", &TextSpec::ySize},
    {"lineWidth", &TextSpec::lineWidth}, {"barcodeHeight", &TextSpec::barcodeHeight},
    {"holeSize", &TextSpec::holeSize},
};

struct FlagKey {
    const char* key;
    bool TextSpec::*member;
};

constexpr FlagKey flags[] = {
    {"addString", &TextSpec::addString},       {"addBackground", &TextSpec::addBackground},
    {"addMarkers", &TextSpec::addMarkers},     {"stringOnTop", &TextSpec::stringOnTop},
    {"stampBarcode", &TextSpec::stampBarcode},
};

struct CountKey {
    const char* key;
    int TextSpec::*member;
    int least;
    int most;
};

constexpr CountKey counts[] = {
    {"stampFontSize", &TextSpec::stampFontSize, 1, 4},
    {"stampZoom", &TextSpec::stampZoom, 1, 7},
    {"cannedColumns", &TextSpec::cannedColumns, 5, 6},
};

struct WordKey {
    const char* key;
    QString TextSpec::*member;
};

constexpr WordKey words[] = {
    {"font", &TextSpec::font},
    {"matrix", &TextSpec::matrix},
};

QStringList knownKeys()
{
    QStringList known = {QStringLiteral("format"), QStringLiteral("content"),
                         QStringLiteral("barcode")};
    const auto add = [&known](const auto& table) {
        for (const auto& row : table) {
            known.append(QLatin1String(row.key));
        }
    };
    add(lengths);
    add(flags);
    add(counts);
    add(words);
    return known;
}

/// Calls `read` with each row of the table whose key is present, and with its value.
template <typename Table, typename Read>
void readAll(const JsonNode& node, const Table& table, Read read)
{
    for (const auto& row : table) {
        if (node.has(QLatin1String(row.key))) {
            read(row, node.member(QLatin1String(row.key)));
        }
    }
}

double sizeFromJson(const JsonNode& node)
{
    const double size = node.number(0, farthest);
    if (size <= 0) {
        node.fail(QCoreApplication::translate("FileErrors", "must be more than 0"));
    }
    return size;
}

}  // namespace

QJsonObject toJsonText(const TextSpec& text)
{
    QJsonObject object;
    object.insert(QStringLiteral("format"), formats.at(static_cast<int>(text.format)));
    object.insert(QStringLiteral("content"), text.content);
    object.insert(QStringLiteral("barcode"), barcodes.at(static_cast<int>(text.barcode) - 1));
    const auto add = [&](const auto& table) {
        for (const auto& row : table) {
            object.insert(QLatin1String(row.key), text.*row.member);
        }
    };
    add(lengths);
    add(flags);
    add(counts);
    add(words);
    return object;
}

TextSpec textFromJson(const JsonNode& node)
{
    node.requireObject(knownKeys());
    TextSpec text;
    text.format = static_cast<TextFormat>(node.member(QStringLiteral("format")).choice(formats));
    text.content = node.member(QStringLiteral("content")).text();
    if (node.has(QStringLiteral("barcode"))) {
        const int index = node.member(QStringLiteral("barcode")).choice(barcodes);
        text.barcode = static_cast<BarcodeType>(index + 1);
    }
    readAll(node, lengths, [&text](const LengthKey& row, const JsonNode& value) {
        text.*row.member = sizeFromJson(value);
    });
    readAll(node, flags, [&text](const FlagKey& row, const JsonNode& value) {
        text.*row.member = value.isTrue();
    });
    readAll(node, counts, [&text](const CountKey& row, const JsonNode& value) {
        text.*row.member = value.integer(row.least, row.most);
    });
    readAll(node, words, [&text](const WordKey& row, const JsonNode& value) {
        text.*row.member = value.text();
    });
    return text;
}

}  // namespace Pcb
