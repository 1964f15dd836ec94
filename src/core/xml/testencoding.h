#pragma once

#include "testdata.h"

#include <QtCore/QString>

/// The text forms of test data, as attributes hold them.
namespace cabledoc {

QString toText(const cable_struct &block);
void fromText(const QString &text, cable_struct *block);
QString toText(const TRUEPHY_PLOT_DATA &curve);
void fromText(const QString &text, TRUEPHY_PLOT_DATA *curve);
/// Four flags, "1" or "0" each.
QString toText(const PairFlags &flags);
/// False, and the flags from there on as they were, at the first character that is neither or missing.
bool fromText(const QString &text, PairFlags *flags);

} // namespace cabledoc
