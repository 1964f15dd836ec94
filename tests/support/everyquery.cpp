#include "everyquery.h"

#include "jobeditorprobe.h"

namespace {

constexpr int maximumNames = 24;

/// Tags and ids of all kinds of elements, and names of none.
QStringList someNames(const JobEditorProbe &probe)
{
    QStringList names{QString(), QStringLiteral("none")};
    QVector<QDomElement> elements{probe.root()};
    for (int i = 0; i < elements.size() && names.size() < maximumNames; ++i) {
        const QDomElement element = elements.at(i);
        for (const QString &name : {element.tagName(), element.attribute(QStringLiteral("id"))}) {
            if (!names.contains(name))
                names.append(name);
        }
        for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
            elements.append(child);
    }
    return names;
}

/// Calls one query after the other with the same arguments.
template <typename... Queries> auto asker(Queries... queries)
{
    return [queries...](JobEditor &job, const auto &...arguments) { ((void)(job.*queries)(arguments...), ...); };
}

} // namespace

void callEveryQuery(JobEditor &job)
{
    const auto withoutName = asker(
        &JobEditor::getFloorTags, &JobEditor::getSheetTags, &JobEditor::getFloorIds, &JobEditor::getSheetIds,
        &JobEditor::getToCableList, &JobEditor::getToConnectionList, &JobEditor::getToActivePortList,
        &JobEditor::getSiteContact, &JobEditor::getSiteJobID, &JobEditor::getSiteCompany, &JobEditor::getSitePhone,
        &JobEditor::getSiteEmail, &JobEditor::getSiteAddress, &JobEditor::getSiteData, &JobEditor::getJobNotesText,
        &JobEditor::getToJobNotesList, &JobEditor::getTestDefElements, &JobEditor::getTestDefNames,
        &JobEditor::getBundledCableTypeTags, &JobEditor::getBundledCableTypeIds, &JobEditor::getContractorTester,
        &JobEditor::getContractorCompany, &JobEditor::getContractorEmail, &JobEditor::getContractorPhone,
        &JobEditor::getContractorLogo, &JobEditor::getContractorAddress, &JobEditor::getContractorData);
    const auto withName = asker(
        &JobEditor::getFloorIdByTag, &JobEditor::getSheetIdByTag, &JobEditor::getFloorTagById,
        &JobEditor::getSheetTagById, &JobEditor::getToRoomList, &JobEditor::getToPointList,
        &JobEditor::getToFloorFreeTextList, &JobEditor::getToDeviceList, &JobEditor::getToFreeTextList,
        &JobEditor::getToVerticeList, &JobEditor::getFloor, &JobEditor::getFloorCeilingHeight,
        &JobEditor::getFloorBackgroundPic, &JobEditor::getFloorBackgroundOrigin, &JobEditor::getBackgroundOption,
        &JobEditor::getSheet, &JobEditor::getPortByTag, &JobEditor::getPortById, &JobEditor::getPortIdByTag,
        &JobEditor::getPortTagById, &JobEditor::getPortPos, &JobEditor::getPortUse, &JobEditor::getPortIconScale,
        &JobEditor::getPortDropHeight, &JobEditor::getPortRoom, &JobEditor::getPortFloor, &JobEditor::getVertRunByTag,
        &JobEditor::getVertRunById, &JobEditor::getVertRunIdByTag, &JobEditor::getVertRunTagById,
        &JobEditor::getVertRunPos, &JobEditor::getVertRunUse, &JobEditor::getVertRunIconScale,
        &JobEditor::getVertRunDropHeight, &JobEditor::getVertRunRoom, &JobEditor::getVertRunFloor,
        &JobEditor::getVertRunConnected, &JobEditor::getVertRunDisconnected, &JobEditor::getPointByTag,
        &JobEditor::getPointById, &JobEditor::getPointIdByTag, &JobEditor::getPointTagById, &JobEditor::getPointPos,
        &JobEditor::getPointFloor, &JobEditor::getDeviceByTag, &JobEditor::getDeviceById, &JobEditor::getDeviceIdByTag,
        &JobEditor::getDeviceTagById, &JobEditor::getDeviceType, &JobEditor::getDevicePos,
        &JobEditor::getDeviceIconScale, &JobEditor::getDeviceInfo, &JobEditor::getDeviceSheet,
        &JobEditor::getVerticeByTag, &JobEditor::getVerticeById, &JobEditor::getVerticeIdByTag,
        &JobEditor::getVerticeTagById, &JobEditor::getVerticePos, &JobEditor::getVerticeSheet,
        &JobEditor::getFreeTextByTag, &JobEditor::getFreeTextById, &JobEditor::getFreeTextIdByTag,
        &JobEditor::getFreeTextTagById, &JobEditor::getFreeTextText, &JobEditor::getFreeTextPos,
        &JobEditor::getFreeTextFontFamily, &JobEditor::getFreeTextFontSize, &JobEditor::getFreeTextBold,
        &JobEditor::getFreeTextItalic, &JobEditor::getFreeTextColor, &JobEditor::getFreeTextSheet,
        &JobEditor::getFloorFreeTextByTag, &JobEditor::getFloorFreeTextById, &JobEditor::getFloorFreeTextIdByTag,
        &JobEditor::getFloorFreeTextTagById, &JobEditor::getFloorFreeTextText, &JobEditor::getFloorFreeTextPos,
        &JobEditor::getFloorFreeTextFontFamily, &JobEditor::getFloorFreeTextFontSize, &JobEditor::getFloorFreeTextBold,
        &JobEditor::getFloorFreeTextItalic, &JobEditor::getFloorFreeTextColor, &JobEditor::getFloorFreeTextFloor,
        &JobEditor::getActivePortByTag, &JobEditor::getActivePortById, &JobEditor::getActivePortIdByTag,
        &JobEditor::getActivePortTagById, &JobEditor::getActivePortPort, &JobEditor::getActiveTestResults,
        &JobEditor::getCable, &JobEditor::getCableById, &JobEditor::getCableElement, &JobEditor::getCableID,
        &JobEditor::getCableUse, &JobEditor::getCableTo, &JobEditor::getCableFrom, &JobEditor::getCableType,
        &JobEditor::getCablePath, &JobEditor::getCableBundleName, &JobEditor::getCableBundleNum,
        &JobEditor::getCableBundleGroupNum, &JobEditor::getCableColor, &JobEditor::getCableDefaultType,
        &JobEditor::cableIsInBundle, &JobEditor::bundleGroupNumExists, &JobEditor::getCablesByType,
        &JobEditor::getCablesByUse, &JobEditor::getCablesByBundle, &JobEditor::getCablesByBundleGroup,
        &JobEditor::getCablesByPort, &JobEditor::getCablesByFloor, &JobEditor::getCablesByStatus,
        &JobEditor::getCableTestResults, &JobEditor::getCableStatus, &JobEditor::getConnection,
        &JobEditor::getConnectionTagById, &JobEditor::getConnectionTo, &JobEditor::getConnectionFrom,
        &JobEditor::getConnectionType, &JobEditor::getPrintSettings, &JobEditor::getPageSettings,
        &JobEditor::getScaleSettings, &JobEditor::getTestDef, &JobEditor::testDefExists,
        &JobEditor::testDefElementExists, &JobEditor::getBundledCableType, &JobEditor::getBundledCableTypeIdByTag,
        &JobEditor::getBundledCableTypeTagById, &JobEditor::bundledCableTypeTagExists,
        &JobEditor::bundledCableTypeIdExists);
    const auto withNameAndFlag = asker(
        &JobEditor::cableExists, &JobEditor::connectionExists, &JobEditor::floorExists, &JobEditor::sheetExists,
        &JobEditor::roomExists, &JobEditor::portExists, &JobEditor::vertRunExists, &JobEditor::portOrVertRunExists,
        &JobEditor::deviceExists, &JobEditor::verticeExists, &JobEditor::pointExists, &JobEditor::freeTextExists,
        &JobEditor::floorFreeTextExists, &JobEditor::activePortExists, &JobEditor::getRooms, &JobEditor::getPoints,
        &JobEditor::getFloorFreeTexts, &JobEditor::getDevices, &JobEditor::getVertices, &JobEditor::getFreeTexts,
        &JobEditor::estimateCableLength);
    const auto withTwoNames = asker(&JobEditor::getToPortList, &JobEditor::getToVertRunList, &JobEditor::getRoomById,
                                    &JobEditor::isCableInVertRun, &JobEditor::activePortTestResultExists);
    const auto withTwoNamesAndFlag =
        asker(&JobEditor::roomExistsOnFloor, &JobEditor::getPorts, &JobEditor::getVertRuns);

    withoutName(job);
    const QStringList names = someNames(JobEditorProbe(job));
    for (const QString &name : names) {
        withName(job, name);
        (void)job.getRoomByTag(name);
        (void)job.getRelease(name);
        (void)JobEditor::getFloorNumber(name);
        (void)JobEditor::getSheetNumber(name);
        for (const bool flag : {false, true})
            withNameAndFlag(job, name, flag);
        for (int pair = -1; pair <= 4; ++pair)
            (void)job.getRoundedCableLength(name, pair, true);
        (void)job.getMaxRoundedCableLength(name, false, true);
        for (const QString &other : names) {
            withTwoNames(job, name, other);
            (void)job.getRoomByTag(name, other);
            for (const bool flag : {false, true})
                withTwoNamesAndFlag(job, name, other, flag);
        }
    }
    for (const bool flag : {false, true}) {
        (void)job.getCables(flag);
        (void)job.getConnections(flag);
        (void)job.getActivePorts(flag);
        (void)job.estimateCableLengths(flag);
    }
}
