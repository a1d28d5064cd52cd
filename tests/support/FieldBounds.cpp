#include "FieldBounds.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr FieldBound fieldBounds[] = {
    {"m_pCornerRadiusLE", FieldBound::Kind::Length, 0, 50000},
    {"m_pLengthLE", FieldBound::Kind::Length, 0, 50000},
    {"m_pHeightLE", FieldBound::Kind::Length, 0, 50000},
    {"m_pCannedHoleSizeLE", FieldBound::Kind::Length, 0, 50000},
    {"m_pXSizeLE", FieldBound::Kind::Length, 0, 10000},
    {"m_pYSizeLE", FieldBound::Kind::Length, 0, 10000},
    {"m_pLineWidthLE", FieldBound::Kind::Length, 0, 10000},
    {"m_pDrilDxLE", FieldBound::Kind::Coordinate, -100000, 100000},
    {"m_pDrilDyLE", FieldBound::Kind::Coordinate, -100000, 100000},
    {"m_pDrilNxLE", FieldBound::Kind::Number, 0, 50},
    {"m_pDrilNyLE", FieldBound::Kind::Number, 0, 50},
    {"m_pDrilXsclLE", FieldBound::Kind::Number, -100, 100},
    {"m_pDrilYsclLE", FieldBound::Kind::Number, -100, 100},
    {"m_pAngleLE", FieldBound::Kind::Number, 0, 360},
};

}  // namespace

BoxText FieldBound::box() const
{
    switch (kind) {
        case Kind::Length:
            return BoxTexts::anyLength();
        case Kind::Coordinate:
            return BoxTexts::anyCoordinate();
        case Kind::Number:
            return BoxTexts::anyNumber();
    }
    Q_UNREACHABLE();
}

const FieldBound* FieldBounds::find(const QString& field)
{
    const auto* const found =
        std::find_if(std::begin(fieldBounds), std::end(fieldBounds),
                     [&](const FieldBound& known) { return field == QLatin1String(known.field); });
    return found == std::end(fieldBounds) ? nullptr : found;
}

const FieldBound& FieldBounds::of(const QString& field)
{
    if (const FieldBound* const found = find(field)) {
        return *found;
    }
    qFatal("%s has no bounds", qPrintable(field));
}
