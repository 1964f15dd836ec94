#pragma once

#include "testdata.h"

#include <QtCore/QString>

#include <optional>

/// The forms of measurements in tables of test results.
namespace cabledoc {

/// Returns whether lengths can be calculated with a length constant, in hundredths of pF per foot.
bool isUsableLengthConstant(int lengthConstant);
/// Returns whether a length reading is that of a pair that was measured: above 0 and below 60000.
bool isLengthReading(int reading);
/// Returns the reading for a length in feet, or nothing if no reading stands for that length.
std::optional<int> readingOf(double feet, int lengthConstant);
/// Returns the shortest number from which readingOf() gives the reading again, in metres or feet.
QString lengthText(int reading, int lengthConstant, bool metric);

/// The wire map of a table.
struct WireMapText
{
    /// The pair at the far end for each pair, or 0xFF if the text does not say it.
    quint8 farPairs[4] = {0xFF, 0xFF, 0xFF, 0xFF};
    /// Whether the text says more than that.
    bool saysMore = false;
};
/// Reads a wire map such as "12>12 36>36". Returns nothing if it gives a pair two far ends.
std::optional<WireMapText> readWireMap(const QString &text);
/// Returns the text of a wire map. It is empty if no far end is known.
QString wireMapText(const cable_struct &block);

/// Reads a block of 96 hexadecimal digits. Returns nothing if the text is not one.
std::optional<cable_struct> readBlock(const QString &text);
QString blockText(const cable_struct &block);

/// Reads the samples of both series of a curve. Returns nothing if the text does not hold as many numbers.
std::optional<TRUEPHY_PLOT_DATA> readCurve(const QString &text);
/// Returns the samples of a curve with blanks between them, or an empty text if it has none.
QString curveText(const TRUEPHY_PLOT_DATA &curve);

} // namespace cabledoc
