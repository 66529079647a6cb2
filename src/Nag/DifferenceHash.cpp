#include "Nag/DifferenceHash.h"

namespace Ostrel::App::NagScreen {

QString DifferenceHash(const QImage& picture, const QSize& hashSize)
{
    if (picture.isNull() || hashSize.isEmpty())
        return {};
    const QImage grey =
        picture.convertToFormat(QImage::Format_ARGB32)
            .scaled(hashSize.width() + 1, hashSize.height(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8);
    QString bits;
    bits.reserve(hashSize.width() * hashSize.height());
    for (int y = 0; y < grey.height(); ++y) {
        const uchar* row = grey.constScanLine(y);
        for (int x = 0; x < hashSize.width(); ++x)
            bits.append(row[x] > row[x + 1] ? QLatin1Char('1') : QLatin1Char('0'));
    }
    return bits;
}

int DifferenceHashDistance(const QString& first, const QString& second)
{
    if (first.isEmpty() || first.size() != second.size())
        return -1;
    int distance = 0;
    for (int i = 0; i < first.size(); ++i)
        distance += first.at(i) != second.at(i) ? 1 : 0;
    return distance;
}

} // namespace Ostrel::App::NagScreen
