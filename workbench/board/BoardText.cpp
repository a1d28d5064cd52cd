#include "board/BoardText.h"

#include "board/FeatureJson.h"

namespace Pcb {

QByteArray BoardText::of(const Board& board, const Progress& progress)
{
    QHash<const void*, QByteArray> lines;
    lines.reserve(static_cast<int>(board.features.size()));
    // One line per feature, so that errors have a useful line number and diffs are readable.
    QByteArray text = "{\n  \"format\": " + QByteArray::number(boardFormat);
    text += ",\n  \"job\": " + CanvasHost::compactJson(board.job);
    text += ",\n  \"step\": " + CanvasHost::compactJson(board.step);
    text += ",\n  \"outline\": " + CanvasHost::compactJson(toJsonPoints(board.outline));
    text += ",\n  \"features\": [";
    const char* separator = "\n    ";
    for (const Feature& feature : board.features) {
        progress.at(static_cast<size_t>(lines.size()), board.features.size());
        QByteArray line = m_lines.value(feature.identity());
        if (line.isEmpty()) {
            line = CanvasHost::compactJson(toJsonFeature(feature));
        }
        text += separator + line;
        separator = ",\n    ";
        lines.insert(feature.identity(), line);
    }
    m_lines = lines;
    m_features = board.features;
    return text + (board.features.empty() ? "]\n}\n" : "\n  ]\n}\n");
}

}  // namespace Pcb
