#pragma once

#include "testdata.h"

#include <QtCore/QString>

/// The text forms of test data in attributes.
namespace cabledoc {

QString toText(const cable_struct &block);
void fromText(const QString &text, cable_struct *block);
QString toText(const TRUEPHY_PLOT_DATA &curve);
void fromText(const QString &text, TRUEPHY_PLOT_DATA *curve);
/// Returns four flags as "1" or "0" each.
QString toText(const PairFlags &flags);
/// Reads four flags. Returns false at the first character that is missing or is neither "0" nor "1". The flags from
/// there on stay as they are.
bool fromText(const QString &text, PairFlags *flags);

} // namespace cabledoc
