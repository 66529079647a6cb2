#pragma once

// The contrast of two colours as WCAG 2.1 measures it (1:1 to 21:1): AA asks 4.5:1 of text,
// 3:1 of large text (18 pt, or 14 pt bold).

#include <QColor>

#include <algorithm>
#include <cmath>

namespace Ostrel::Test {

inline double relativeLuminance(const QColor& color)
{
    const auto channel = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) +
           0.0722 * channel(color.blueF());
}

inline double contrastRatio(const QColor& a, const QColor& b)
{
    const double la = relativeLuminance(a);
    const double lb = relativeLuminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// `over` drawn with `alpha` on `under`.
inline QColor blend(const QColor& over, const QColor& under, double alpha)
{
    return QColor::fromRgbF(over.redF() * alpha + under.redF() * (1 - alpha),
                            over.greenF() * alpha + under.greenF() * (1 - alpha),
                            over.blueF() * alpha + under.blueF() * (1 - alpha));
}

} // namespace Ostrel::Test
