#include "Judgement.h"

#include <QStringList>
#include <QUrl>

namespace {

// At both ends: a part may be empty.
const QString mark = QStringLiteral("host_check");

QString encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString decoded(const QString& text)
{
    return QUrl::fromPercentEncoding(text.toLatin1());
}

}  // namespace

QString Judgement::toLine() const
{
    const QStringList parts = {mark,          QString::number(int(kind)), QString::number(int(row)),
                               encoded(done), encoded(expected),          encoded(came),
                               mark};
    return parts.join(' ');
}

std::optional<Judgement> Judgement::fromLine(const QString& line)
{
    const QStringList parts = line.split(' ');
    if (parts.size() != 7 || parts.first() != mark || parts.last() != mark) {
        return std::nullopt;
    }
    return Judgement{Kind(parts[1].toInt()), Row(parts[2].toInt()), decoded(parts[3]),
                     decoded(parts[4]), decoded(parts[5])};
}
