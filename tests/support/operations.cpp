#include "operations.h"

#include "bkteditor.h"
#include "jobeditorprobe.h"

namespace {

/// Returns a callable for the overload with the given result and first argument.
template <typename Class, typename Result, typename First, typename... Rest>
Callable byFirst(const char *name, Result (Class::*function)(First, Rest...))
{
    return callable<JobEditor>(name, function);
}

/// Returns a callable for the overload with exactly the given type.
template <typename Function, typename Document = JobEditor>
Callable exact(const char *name, Function Document::*function)
{
    return callable<Document>(name, function);
}

void importTemplate()
{
    JobEditor::Instance().Import(&BktEditor::Instance());
}

void importMissing()
{
    JobEditor::Instance().ImportMissingDefaultCableTypes(&BktEditor::Instance());
}

void importJob()
{
    BktEditor::Instance().Import(&JobEditor::Instance());
}

} // namespace

#define OP(name) callable<JobEditor>(#name, &JobEditor::name)
#define TEMPLATE(name) callable<BktEditor>("template." #name, &BktEditor::name)
#define ACCESS(name) OP(get##name), OP(set##name)
#define BY_FIRST(Class, name, Result, First) byFirst<Class, Result, First>(#name, &Class::name)
#define EXACT(name, ...) exact<__VA_ARGS__>(#name, &JobEditor::name)
#define ADD_AND_REMOVE(Kind, Record)                                                                                   \
    BY_FIRST(JobEditor, add##Kind, QString, Text), BY_FIRST(JobEditor, add##Kind, QString, const Record &),            \
        BY_FIRST(JobEditor, remove##Kind, void, Text), BY_FIRST(JobEditor, remove##Kind, void, const Record &)
#define DRAWN(Kind, Record)                                                                                            \
    ADD_AND_REMOVE(Kind, Record), OP(get##Kind##ByTag), OP(get##Kind##ById), OP(get##Kind##IdByTag),                   \
        OP(get##Kind##TagById), OP(set##Kind##ID)

#define OPERATIONS(...)                                                                                                \
    const QVector<Callable> &operations()                                                                              \
    {                                                                                                                  \
        using Text = const QString &;                                                                                  \
        static const QVector<Callable> all{__VA_ARGS__};                                                               \
        return all;                                                                                                    \
    }

OPERATIONS(
    EXACT(New, QString()), EXACT(New, bool(Text)), EXACT(save, bool()), OP(Load), OP(Unload), OP(saveAnyway),
    OP(saveAs), OP(filename), OP(error), OP(fileChanged), OP(checkJobExtension), OP(checkUntitledJob),
    OP(defaultBktFile), OP(setDefaultBktFile), OP(setRelease), EXACT(getRelease, int() const),
    EXACT(getRelease, QString(Text) const), OP(addRelease), OP(removeRelease), ACCESS(JobNotesText), OP(cableExists),
    OP(connectionExists), OP(floorExists), OP(sheetExists), OP(roomExists), OP(portExists), OP(vertRunExists),
    OP(portOrVertRunExists), OP(deviceExists), OP(verticeExists), OP(pointExists), OP(freeTextExists),
    OP(floorFreeTextExists), OP(activePortExists), OP(roomExistsOnFloor), OP(getCables), OP(getConnections),
    OP(getActivePorts), OP(getRooms), OP(getPorts), OP(getVertRuns), OP(getPoints), OP(getFloorFreeTexts),
    OP(getDevices), OP(getVertices), OP(getFreeTexts), OP(getToCableList), OP(getToConnectionList),
    OP(getToActivePortList), OP(getToRoomList), OP(getToPortList), OP(getToVertRunList), OP(getToPointList),
    OP(getToFloorFreeTextList), OP(getToDeviceList), OP(getToFreeTextList), OP(getToVerticeList), OP(getToJobNotesList),
    ADD_AND_REMOVE(Floor, Floor), OP(getFloorTags), OP(getFloorIds), OP(getFloorIdByTag), OP(getFloorTagById),
    OP(getFloor), OP(setFloorId), OP(setAllFloorIds), ACCESS(FloorCeilingHeight), ACCESS(FloorBackgroundPic),
    OP(getFloorBackgroundOrigin), ACCESS(BackgroundOption), OP(getFloorNumber), OP(copyFloor),
    BY_FIRST(JobEditor, addSheet, QString, Text), BY_FIRST(JobEditor, addSheet, QString, const Sheet &),
    OP(removeSheet), OP(getSheetTags), OP(getSheetIds), OP(getSheetIdByTag), OP(getSheetTagById), OP(getSheet),
    OP(setSheetID), OP(setAllSheetIDs), OP(getSheetNumber), OP(copySheet), ADD_AND_REMOVE(Room, Room),
    EXACT(getRoomByTag, Room(Text)), EXACT(getRoomByTag, Room(Text, Text)), OP(getRoomById), OP(setRoomPos),
    OP(setRoomName), OP(setRoomNamePos), OP(setRoomLayer), OP(setShowRoomName), OP(setShowRoomDimensions),
    DRAWN(Port, Port), ACCESS(PortPos), ACCESS(PortUse), ACCESS(PortIconScale), ACCESS(PortDropHeight),
    ACCESS(PortRoom), OP(getPortFloor), DRAWN(VertRun, VertRun), ACCESS(VertRunPos), ACCESS(VertRunUse),
    ACCESS(VertRunIconScale), ACCESS(VertRunDropHeight), ACCESS(VertRunRoom), OP(getVertRunFloor),
    ACCESS(VertRunConnected), ACCESS(VertRunDisconnected), OP(isCableInVertRun), OP(connectCableToVertRun),
    OP(disconnectCableFromVertRun), OP(removeCableFromVertRun), DRAWN(Point, Point), ACCESS(PointPos),
    OP(getPointFloor), DRAWN(Vertice, Vertice), ACCESS(VerticePos), OP(getVerticeSheet), DRAWN(Device, Device),
    ACCESS(DeviceType), ACCESS(DevicePos), ACCESS(DeviceIconScale), ACCESS(DeviceInfo), OP(getDeviceSheet),
    DRAWN(FreeText, FreeText), ACCESS(FreeTextText), ACCESS(FreeTextPos), ACCESS(FreeTextFontFamily),
    ACCESS(FreeTextFontSize), ACCESS(FreeTextBold), ACCESS(FreeTextItalic), ACCESS(FreeTextColor), OP(getFreeTextSheet),
    DRAWN(FloorFreeText, FreeText), ACCESS(FloorFreeTextText), ACCESS(FloorFreeTextPos),
    ACCESS(FloorFreeTextFontFamily), ACCESS(FloorFreeTextFontSize), ACCESS(FloorFreeTextBold),
    ACCESS(FloorFreeTextItalic), ACCESS(FloorFreeTextColor), OP(getFloorFreeTextFloor), DRAWN(ActivePort, ActivePort),
    ACCESS(ActivePortPort), OP(getActiveTestResults), OP(addActiveTestResult), OP(removeActiveTestResult),
    OP(activePortTestResultExists), BY_FIRST(JobEditor, addCable, QString, const Cable &),
    EXACT(addCable, QString(Text, Text, int)), EXACT(addCable, QString(Text, Text, Text, int)),
    EXACT(addCable, QString(Text, Text, Text, Text, int)), EXACT(addCable, QString(Text, Text, Text, Text, Text, int)),
    EXACT(addCable, QString(Text, Text, Text, Text, Text, Text, int)),
    EXACT(addCable, QString(Text, Text, Text, Text, Text, Text, const TestResults &, int)),
    EXACT(addCable, QString(Text, Text, Text, Text, Text, Text, Text, Text, Text, Text, const QStringList &,
                            const TestResults &, int)),
    BY_FIRST(JobEditor, removeCable, void, Text), BY_FIRST(JobEditor, removeCable, void, const Cable &), OP(getCable),
    OP(getCableById), OP(getCableElement), ACCESS(CableID), ACCESS(CableUse), ACCESS(CableTo), ACCESS(CableFrom),
    ACCESS(CableType), ACCESS(CablePath), ACCESS(CableBundleName), ACCESS(CableBundleNum), ACCESS(CableBundleGroupNum),
    ACCESS(CableColor), ACCESS(CableDefaultType), ACCESS(CableTestResults), OP(getCableStatus), OP(cableIsInBundle),
    OP(bundleGroupNumExists), OP(getCablesByType), OP(getCablesByUse), OP(getCablesByBundle),
    OP(getCablesByBundleGroup), OP(getCablesByPort), OP(getCablesByFloor), OP(getCablesByStatus),
    OP(getRoundedCableLength), OP(getMaxRoundedCableLength), OP(estimateCableLength), OP(estimateCableLengths),
    EXACT(addConnection, QString(Text, Text, Text, Text, Text, int)),
    BY_FIRST(JobEditor, addConnection, QString, const DeviceConnection &),
    BY_FIRST(JobEditor, removeConnection, void, Text),
    BY_FIRST(JobEditor, removeConnection, void, const DeviceConnection &), OP(getConnection), OP(getConnectionTagById),
    ACCESS(ConnectionTo), ACCESS(ConnectionFrom), OP(getConnectionType), EXACT(setConnectionType, void(Text, Text)),
    ACCESS(SiteContact), ACCESS(SiteJobID), ACCESS(SiteCompany), ACCESS(SitePhone), ACCESS(SiteEmail),
    ACCESS(SiteAddress), OP(getSiteData), BY_FIRST(JobEditor, setSiteData, void, const SiteData &),
    BY_FIRST(JobEditor, setSiteData, void, Text), ACCESS(ContractorTester), ACCESS(ContractorCompany),
    ACCESS(ContractorEmail), ACCESS(ContractorPhone), ACCESS(ContractorLogo), ACCESS(ContractorAddress),
    OP(getContractorData), BY_FIRST(BKXMLEditor, setContractorData, void, const ContractorData &),
    BY_FIRST(BKXMLEditor, setContractorData, void, Text), ACCESS(PrintSettings), ACCESS(PageSettings),
    ACCESS(ScaleSettings), OP(addTestDef), OP(renameTestDef), OP(removeTestDef), OP(getTestDef), OP(testDefExists),
    OP(testDefElementExists), OP(getTestDefElements), OP(getTestDefNames),
    BY_FIRST(BKXMLEditor, addBundledCableType, void, Text),
    BY_FIRST(BKXMLEditor, addBundledCableType, void, const BundledCable &), OP(renameBundledCableType),
    OP(removeBundledCableTypeByTag), OP(getBundledCableType), OP(getBundledCableTypeIdByTag),
    OP(getBundledCableTypeTagById), OP(getBundledCableTypeTags), OP(getBundledCableTypeIds),
    OP(bundledCableTypeTagExists), OP(bundledCableTypeIdExists), OP(Export), callable("Import", importTemplate),
    callable("ImportMissingDefaultCableTypes", importMissing), callable("template.Import", importJob), TEMPLATE(New),
    TEMPLATE(Load), TEMPLATE(LoadWithoutSaving), exact<bool(), BktEditor>("template.save", &BktEditor::save),
    TEMPLATE(saveAnyway), TEMPLATE(saveAs), TEMPLATE(filename), TEMPLATE(setFilename), TEMPLATE(error),
    TEMPLATE(fileChanged), TEMPLATE(checkBktExtension), TEMPLATE(getTestDefNames), TEMPLATE(setContractorTester))

namespace {

/// Returns the attributes of the element that begins in a line, with their values.
QStringList attributesIn(const QString &line)
{
    static const QRegularExpression attribute("[^ =<]+=\"[^\"]*\"");
    QStringList attributes;
    for (auto found = attribute.globalMatch(line); found.hasNext();)
        attributes.append(found.next().captured());
    return attributes;
}

/// Returns the tags of the elements in the lines that differ between two texts of a job, each with its new or changed
/// attributes. Cuts long attributes. Returns "elements" if the numbers of lines differ.
QString changesBetween(const QByteArray &before, const QByteArray &after)
{
    const QStringList oldLines = QString::fromLatin1(before).split('\n');
    const QStringList newLines = QString::fromLatin1(after).split('\n');
    if (oldLines.size() != newLines.size())
        return " elements";
    constexpr int longestShown = 120;
    QString changes;
    for (int i = 0; i < newLines.size(); ++i) {
        if (oldLines.at(i) == newLines.at(i))
            continue;
        changes += ' ' + newLines.at(i).section(QRegularExpression("[<>/ ]+"), 1, 1);
        const QStringList oldAttributes = attributesIn(oldLines.at(i));
        for (const QString &attribute : attributesIn(newLines.at(i))) {
            if (!oldAttributes.contains(attribute))
                changes += ' ' + (attribute.size() > longestShown ? attribute.left(20) + "..." : attribute);
        }
    }
    return changes;
}

/// Returns tags and ids of elements, and two names that no element has.
QStringList someNames(const JobEditorProbe &probe)
{
    constexpr int maximumNames = 24;
    QStringList names{QString(), "none"};
    QVector<QDomElement> elements{probe.root()};
    for (int i = 0; i < elements.size() && names.size() < maximumNames; ++i) {
        const QDomElement element = elements.at(i);
        for (const QString &name : {element.tagName(), element.attribute("id")}) {
            if (!names.contains(name))
                names.append(name);
        }
        for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
            elements.append(child);
    }
    return names;
}

} // namespace

QString transcriptOf(const QString &line)
{
    JobEditor &job = JobEditor::Instance();
    const JobEditorProbe probe(job);
    const QByteArray before = probe.text();
    job.setDirty(false);
    if (line != "error")
        job.error().clear();
    const QString answer = answerTo(operations(), wordsOf(line));
    QString transcript = answer.isEmpty() ? line : line + " = " + answer;
    const QByteArray after = probe.text();
    if (job.fileChanged())
        transcript += " ->" + changesBetween(before, after);
    else if (before != after)
        transcript += " -> another job";
    return line == "error" || job.error().isEmpty() ? transcript : transcript + " !";
}

void callEveryQuery(JobEditor &job)
{
    static const QVector<Callable> queries = [] {
        QVector<Callable> found;
        for (const Callable &operation : operations()) {
            if (operation.name.contains(QRegularExpression("^(get|is|estimate)|Exists|IsIn"))
                && !operation.arguments.contains(ArgumentKind::Other))
                found.append(operation);
        }
        return found;
    }();
    const QMap<ArgumentKind, QStringList> choices{{ArgumentKind::Text, someNames(JobEditorProbe(job))},
                                                  {ArgumentKind::Flag, {"false", "true"}},
                                                  {ArgumentKind::Number, {"-1", "0", "3", "4"}}};
    for (const Callable &query : queries) {
        QVector<QStringList> calls{QStringList()};
        for (const ArgumentKind kind : query.arguments) {
            QVector<QStringList> longerCalls;
            for (const QStringList &call : std::as_const(calls)) {
                for (const QString &choice : choices.value(kind))
                    longerCalls.append(call + QStringList(choice));
            }
            calls = longerCalls;
        }
        for (const QStringList &call : std::as_const(calls))
            query.call(call);
    }
}
