#include "commandline.h"
#include "output.h"
#include "table.h"

#include <cabledoc/labelformat.h>

using namespace cabledoc;

namespace {

/// Returns a number with two decimals at most.
QString number(double value)
{
    constexpr double parts = 100.0;
    return QString::number(qRound(value * parts) / parts);
}

QString pair(double first, double second)
{
    return QStringLiteral("%1 x %2").arg(number(first), number(second));
}

QString pair(const QSizeF &size)
{
    return pair(size.width(), size.height());
}

QVariantList rowOf(const LabelFormat &format)
{
    const double printedHeight = format.printedPart().height();
    if (format.isTape())
        return {format.name, {}, {}, number(format.label.height()), {}, {}, number(printedHeight)};
    return {format.name,
            pair(format.paper),
            pair(format.columns, format.rows),
            pair(format.label),
            pair(format.first.x(), format.first.y()),
            pair(format.pitch),
            number(printedHeight)};
}

} // namespace

ExitCode runLabelFormats(const CommandLine & /*line*/)
{
    Table table{{{"format", Program::tr("Format")},
                 {"paper", Program::tr("Paper")},
                 {"labels", Program::tr("Labels")},
                 {"size", Program::tr("Size")},
                 {"first", Program::tr("First")},
                 {"next", Program::tr("Distance")},
                 {"printed", Program::tr("Printed height")}},
                {}};
    for (const LabelFormat &format : labelFormats())
        table.rows.append(rowOf(format));
    return printText({}, textOf(table));
}
