#include "tabletext.h"

#include "elementname.h"
#include "messagetext.h"

namespace cabledoc {

QString nounOf(TableKind kind)
{
    switch (kind) {
    case TableKind::TestDefinitions:
        return TableText::tr("test definition");
    case TableKind::Bundles:
        return TableText::tr("bundle");
    case TableKind::Floors:
        return TableText::tr("floor");
    case TableKind::Rooms:
        return TableText::tr("room");
    case TableKind::Ports:
        return TableText::tr("port");
    case TableKind::VerticalRuns:
        return TableText::tr("vertical run");
    case TableKind::Points:
        return TableText::tr("point");
    case TableKind::FloorTexts:
    case TableKind::SheetTexts:
        return TableText::tr("text");
    case TableKind::Sheets:
        return TableText::tr("sheet");
    case TableKind::Devices:
        return TableText::tr("device");
    case TableKind::Bends:
        return TableText::tr("bend");
    case TableKind::Connections:
        return TableText::tr("connection");
    case TableKind::Cables:
        return TableText::tr("cable");
    case TableKind::ActivePorts:
        return TableText::tr("active port");
    case TableKind::Releases:
    case TableKind::Count:
        break;
    }
    return TableText::tr("release");
}

QString namedElement(TableKind kind, const QStringList &name)
{
    return nounOf(kind) + QLatin1String(" \"") + excerpt(nameText(name)) + QLatin1Char('"');
}

} // namespace cabledoc
