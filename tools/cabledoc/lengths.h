#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

// The lengths that commands print.

/// Returns the unit in which lengths are printed: "m" or "ft".
QString lengthUnit(bool metric);
/// Converts feet to the printed unit.
double inUnit(double feet, bool metric);
/// Returns a length with one decimal, for a text.
QString lengthText(double length);
/// Returns a length with at most three decimals, for JSON and CSV. It is not valid if there is none, or if it is not a
/// finite number.
QVariant lengthValue(const std::optional<double> &length);
/// Reads a length such as "305m" or "1000ft", and converts it to the printed unit. Returns nothing if the text is not
/// a length above 0.
std::optional<double> readLength(const QString &text, bool metric);
