#pragma once

#include "Nag/ostrel_nag_export.h"

#include <QImage>
#include <QSize>
#include <QString>

namespace Ostrel::App::NagScreen {

/// The rendering fingerprint of a nag: a difference hash. The picture is scaled (smoothly, aspect
/// ignored) to (width + 1) x height of `hashSize` and turned to grey; for each row and each pair of
/// neighbours the bit is "1" when the left pixel is brighter than the right one, else "0". The
/// result has width x height characters, row by row. Small changes of colour, antialiasing or
/// scaling flip few bits, while a different text or layout flips many, which is what a
/// comparison of "did the nag render as published" wants.
/// Empty for a null picture or an empty size.
OSTREL_NAG_EXPORT QString DifferenceHash(const QImage& picture, const QSize& hashSize);

/// How far apart two fingerprints are: the number of places where they differ. -1 when either is
/// empty or their lengths differ, since such fingerprints were not taken at the same hash size.
OSTREL_NAG_EXPORT int DifferenceHashDistance(const QString& first, const QString& second);

} // namespace Ostrel::App::NagScreen
