#include "JsonPlaces.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace CanvasHost {
namespace {

class Scanner {
public:
    explicit Scanner(const QByteArray& text) : m_text(text) {}

    JsonPlace value()
    {
        skipTo("{[\"-0123456789tfn");
        JsonPlace place;
        place.line = m_line;
        switch (current()) {
            case '{':
                object(place);
                break;
            case '[':
                array(place);
                break;
            case '"':
                string();
                break;
            default:
                skipTo(",]} \t\r\n");
        }
        return place;
    }

private:
    char current() const { return m_position < m_text.size() ? m_text.at(m_position) : '\0'; }

    void advance()
    {
        if (current() == '\n') {
            ++m_line;
        }
        ++m_position;
    }

    void skipTo(const char* wanted)
    {
        const QByteArray set(wanted);
        while (m_position < m_text.size() && !set.contains(current())) {
            advance();
        }
    }

    QByteArray string()
    {
        const int start = m_position;
        do {
            if (current() == '\\') {
                advance();
            }
            advance();
        } while (m_position < m_text.size() && current() != '"');
        advance();
        return m_text.mid(start, m_position - start);
    }

    void object(JsonPlace& place)
    {
        for (advance(), skipTo("\"}"); current() == '"'; skipTo("\"}")) {
            const QString key =
                QJsonDocument::fromJson('[' + string() + ']').array().at(0).toString();
            skipTo(":");
            if (place.repeatedKey < 0 && place.keys.contains(key)) {
                place.repeatedKey = place.keys.size();
            }
            place.keys.append(key);
            place.parts.push_back(value());
        }
        advance();
    }

    void array(JsonPlace& place)
    {
        for (advance(), skipTo(beginOfEntry); m_position < m_text.size() && current() != ']';
             skipTo(beginOfEntry)) {
            place.parts.push_back(value());
        }
        advance();
    }

    static constexpr const char* beginOfEntry = "]{[\"-0123456789tfn";

    const QByteArray& m_text;
    int m_position = 0;
    int m_line = 1;
};

}  // namespace

JsonPlace findJsonPlaces(const QByteArray& text)
{
    return Scanner(text).value();
}

int lineOfOffset(const QByteArray& text, int offset)
{
    return 1 + static_cast<int>(
                   std::count(text.begin(), text.begin() + qBound(0, offset, text.size()), '\n'));
}

}  // namespace CanvasHost
