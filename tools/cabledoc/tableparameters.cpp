#include "tableparameters.h"

#include "commandline.h"
#include "documents.h"

ExitCode readTableKind(const CommandLine &line, cabledoc::TableKind *kind)
{
    const QString name = line.argument(1);
    const std::optional<cabledoc::TableKind> found = cabledoc::tableOfName(name);
    if (!found)
        return line.usageError(Program::tr("there is no table \"%1\"; there are %2")
                                   .arg(name, cabledoc::tableNames().join(QLatin1String(", "))));
    if (isTemplate(line.argument(0)) && !cabledoc::isTableOfTemplates(*found))
        return line.usageError(Program::tr("templates do not have the table \"%1\"").arg(name));
    *kind = *found;
    return Done;
}

ExitCode readTableUnit(const CommandLine &line, cabledoc::TableUnit *unit)
{
    const QStringList names{QStringLiteral("px"), QStringLiteral("ft"), QStringLiteral("m")};
    if (!line.isSet("unit"))
        return Done;
    const auto number = names.indexOf(line.value("unit"));
    if (number < 0)
        return line.usageError(Program::tr("\"%1\" is not one of the units px, ft and m").arg(line.value("unit")));
    *unit = cabledoc::TableUnit(number);
    return Done;
}
