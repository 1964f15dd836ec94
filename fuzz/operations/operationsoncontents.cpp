#include "operations.h"

#include "randomjob.h"

#include "bkteditor.h"
#include "testfiles.h"

#include <array>

Fields readSettings(PlainJob *file, const PlainSettings &settings, const QString &entry)
{
    PlainElement *list = file->at({"Settings_List", settings.list});
    if (list == nullptr || !settings.entries.contains(entry))
        return fieldsOf(settings.attributes, nullptr);
    PlainElement &element = list->ensure(entry);
    complete(settings.attributes, &element);
    return fieldsOf(settings.attributes, &element);
}

namespace {

using SetText = void (JobEditor::*)(const QString &);

/// Writes the existing attributes of the contractor or the site, and its address if there is one.
void writeInfo(PlainElement *info, const Fields &fields, const Fields &address)
{
    if (info != nullptr)
        write(info, fields);
    if (PlainElement *element = childOf(info, "Address"))
        write(element, address);
}

Fields randomTexts(Choices &choices, const QStringList &names)
{
    Fields fields;
    for (const QString &name : names)
        fields[name] = choices.id();
    return fields;
}

const QStringList &contractorAttributes()
{
    static const QStringList names{"tester", "company", "email", "phone", "logo"};
    return names;
}

ContractorData contractorOf(const Fields &fields, const Fields &address)
{
    return {fields.at("tester"), fields.at("company"), fields.at("email"),
            fields.at("phone"),  fields.at("logo"),    recordOf<Address>(address)};
}

SiteData siteOf(const Fields &fields, const Fields &address)
{
    return {fields.at("contact"), fields.at("jobid"), fields.at("company"),
            fields.at("phone"),   fields.at("email"), recordOf<Address>(address)};
}

void setInfo(Session *session)
{
    const bool isSite = session->choices.oneIn(2);
    const Fields address = randomFields(session->choices, addressAttributes());
    const Fields texts = isSite ? randomTexts(session->choices, {"contact", "jobid", "company", "phone", "email"})
                                : randomTexts(session->choices, contractorAttributes());
    JobEditor &job = session->job;
    if (isSite)
        job.setSiteData(siteOf(texts, address));
    else
        job.setContractorData(contractorOf(texts, address));
    writeInfo(session->file.at({isSite ? "Site_Info" : "Contractor_Info"}), texts, address);
}

void setInfoField(Session *session)
{
    using J = JobEditor;
    const struct
    {
        const char *element;
        const char *attribute;
        SetText set;
    } setters[] = {
        {"Site_Info", "contact", &J::setSiteContact},
        {"Site_Info", "jobid", &J::setSiteJobID},
        {"Site_Info", "company", &J::setSiteCompany},
        {"Site_Info", "phone", &J::setSitePhone},
        {"Site_Info", "email", &J::setSiteEmail},
        {"Contractor_Info", "tester", &J::setContractorTester},
        {"Contractor_Info", "company", &J::setContractorCompany},
        {"Contractor_Info", "email", &J::setContractorEmail},
        {"Contractor_Info", "phone", &J::setContractorPhone},
        {"Contractor_Info", "logo", &J::setContractorLogo},
    };
    const auto &setter = setters[session->choices.number(int(std::size(setters)))];
    const QString text = session->choices.id();
    (session->job.*setter.set)(text);
    if (PlainElement *info = session->file.at({setter.element}))
        info->attributes[setter.attribute] = text;
}

void setAddress(Session *session)
{
    const bool isSite = session->choices.oneIn(2);
    const Fields address = randomFields(session->choices, addressAttributes());
    using J = JobEditor;
    (session->job.*(isSite ? &J::setSiteAddress : static_cast<void (J::*)(const Address &)>(&J::setContractorAddress)))(
        recordOf<Address>(address));
    writeInfo(session->file.at({isSite ? "Site_Info" : "Contractor_Info"}), {}, address);
}

void setNotes(Session *session)
{
    const QString text = session->choices.id();
    session->job.setJobNotesText(text);
    const PlainElement *notes = session->file.at({"JobNotes_Text"});
    if ((notes == nullptr ? QString() : notes->text("text")) != text)
        session->file.root().ensure("JobNotes_Text").attributes["text"] = text;
}

void changeReleases(Session *session)
{
    const QString name = session->choices.tag({"Hall", "plan"});
    const QString value = session->choices.id();
    PlainElement *releases = session->file.at({"Release"});
    if (session->choices.oneIn(3)) {
        session->job.removeRelease(name);
        if (releases != nullptr)
            releases->attributes.erase(name);
        return;
    }
    session->job.addRelease(name, value);
    if (releases != nullptr && isTag(name))
        releases->attributes[name] = value;
}

// Settings

template <typename Settings> using GetSettings = Settings (BKXMLEditor::*)(const QString &);
template <typename Settings> using PutSettings = void (BKXMLEditor::*)(const Settings &, const QString &);

template <typename Settings, GetSettings<Settings> get> Fields settingsOf(BKXMLEditor &job, const QString &entry)
{
    return fieldsOf((job.*get)(entry));
}

template <typename Settings, PutSettings<Settings> put>
void storeSettings(BKXMLEditor &job, const Fields &fields, const QString &entry)
{
    (job.*put)(recordOf<Settings>(fields), entry);
}

/// The getters and setters of the settings, in the order of plainSettings().
const struct
{
    Fields (*get)(BKXMLEditor &, const QString &);
    void (*put)(BKXMLEditor &, const Fields &, const QString &);
} settingsAccess[] = {
    {settingsOf<PrintSettings, &BKXMLEditor::getPrintSettings>,
     storeSettings<PrintSettings, &BKXMLEditor::setPrintSettings>},
    {settingsOf<PageSettings, &BKXMLEditor::getPageSettings>,
     storeSettings<PageSettings, &BKXMLEditor::setPageSettings>},
    {settingsOf<ScaleSettings, &BKXMLEditor::getScaleSettings>,
     storeSettings<ScaleSettings, &BKXMLEditor::setScaleSettings>},
};

void writeSettings(PlainJob *file, const PlainSettings &settings, const QString &entry, const Fields &fields)
{
    PlainElement *list = file->at({"Settings_List", settings.list});
    if (list != nullptr && settings.entries.contains(entry))
        write(&list->ensure(entry), fields);
}

void changeSettings(Session *session)
{
    Choices &choices = session->choices;
    const int number = choices.number(3);
    const PlainSettings &settings = plainSettings().at(std::size_t(number));
    const QString entry =
        choices.oneIn(8) ? choices.oneOf({"none", "", "JobInfo_Settings"}) : choices.oneOf(settings.entries);
    if (choices.oneIn(2)) {
        expectAnswer(settingsAccess[number].get(session->job, entry), readSettings(&session->file, settings, entry),
                     "settings");
        return;
    }
    const Fields fields = randomFields(choices, settings.attributes);
    settingsAccess[number].put(session->job, fields, entry);
    writeSettings(&session->file, settings, entry, fields);
}

// Definitions and bundles

QString someName(Session *session, const char *list)
{
    return session->choices.oneIn(2) ? session->choices.oneOf(namesIn(session->file.at({list}), false))
                                     : session->choices.oneOf({"CAT5E", "Hall", "", "CAT6"});
}

/// Returns the first child with the given name, or the end if there is none.
std::list<PlainElement>::iterator childOfName(std::list<PlainElement> *children, const QString &name)
{
    auto child = children->begin();
    while (child != children->end() && !(child->has("id") && child->text("id") == name))
        ++child;
    return child;
}

bool hasChildOfName(PlainElement *list, const QString &name)
{
    return childOfName(&list->children, name) != list->children.end();
}

/// Returns the prefix with the first number that makes a tag that no child has.
QString freeTag(PlainElement *list, const QString &prefix)
{
    int number = 1;
    while (childOf(list, prefix + QString::number(number)) != nullptr)
        ++number;
    return prefix + QString::number(number);
}

Fields randomTestDef(Session *session)
{
    Fields fields = randomFields(session->choices, testDefAttributes());
    fields["id"] = someName(session, "TestDef_List");
    // These are whole numbers, because they are stored without their fractions.
    for (const char *length : {"length_constant", "max_length"})
        fields[length] = QString::number(session->choices.whole());
    return fields;
}

void addTestDef(PlainJob *file, const Fields &fields)
{
    PlainElement *list = file->at({"TestDef_List"});
    if (list != nullptr && !hasChildOfName(list, fields.at("id")))
        list->add(freeTag(list, "TestDef")).attributes = fields;
}

struct Bundle
{
    Fields attributes;
    QStringList types;

    BundledCable record() const
    {
        return {"ignored", attributes.at("id"), types, attributes.at("color"), attributes.at("default_type") == "1"};
    }
};

Bundle randomBundle(Session *session)
{
    Choices &choices = session->choices;
    Bundle bundle{{{"id", someName(session, "BundledCable_List")}, {"color", choices.id()}}, {}};
    bundle.attributes["default_type"] = textOf(choices.oneIn(2));
    for (int i = choices.number(11); i > 0; --i)
        bundle.types.append(choices.oneOf({"CAT5E", "CAT6", "Hall"}));
    return bundle;
}

void addBundle(PlainJob *file, const Bundle &added)
{
    PlainElement *list = file->at({"BundledCable_List"});
    if (list == nullptr || hasChildOfName(list, added.attributes.at("id")))
        return;
    PlainElement &bundle = list->add(freeTag(list, "BundledCable"));
    bundle.attributes = added.attributes;
    PlainElement &types = bundle.add("BundledCableType_List");
    int number = 0;
    for (const QString &type : added.types.mid(0, 8))
        types.add("BundledCableType" + QString::number(++number)).attributes["id"] = type;
}

void changeTestDefs(Session *session)
{
    const QString name = someName(session, "TestDef_List");
    std::list<PlainElement> &definitions = childrenOf(session->file.at({"TestDef_List"}));
    const auto definition = childOfName(&definitions, name);
    const QString newName = session->choices.id();
    switch (session->choices.number(3)) {
    case 0: {
        const Fields fields = randomTestDef(session);
        session->job.addTestDef(recordOf<TestDef>(fields));
        addTestDef(&session->file, fields);
        break;
    }
    case 1:
        session->job.renameTestDef(name, newName);
        if (definition != definitions.end())
            definition->attributes["id"] = newName;
        break;
    default:
        session->job.removeTestDef(name);
        if (definition != definitions.end())
            definitions.erase(definition);
    }
}

void changeBundles(Session *session)
{
    const QString name = someName(session, "BundledCable_List");
    PlainElement *list = session->file.at({"BundledCable_List"});
    std::list<PlainElement> &bundles = childrenOf(list);
    const auto bundle = childOfName(&bundles, name);
    const QString tag = session->choices.tag(namesIn(list, true));
    const QString newName = session->choices.id();
    switch (session->choices.number(3)) {
    case 0: {
        const Bundle added = randomBundle(session);
        session->job.addBundledCableType(added.record());
        addBundle(&session->file, added);
        break;
    }
    case 1:
        session->job.renameBundledCableType(name, newName);
        if (bundle != bundles.end())
            bundle->attributes["id"] = newName;
        break;
    default:
        session->job.removeBundledCableTypeByTag(tag);
        if (PlainElement *removed = childOf(list, tag))
            bundles.remove_if([removed](const PlainElement &child) { return &child == removed; });
    }
}

void importTemplate(Session *session)
{
    Choices &choices = session->choices;
    const Fields contractor = randomTexts(choices, contractorAttributes());
    const Fields address = randomFields(choices, addressAttributes());
    BktEditor::Destroy();
    BktEditor &bkt = BktEditor::Instance();
    expect(bkt.New(inputFile("fuzzed.bkt", nullptr, 0)), "a template can be made");
    bkt.setContractorData(contractorOf(contractor, address));
    std::array<Fields, 3> settings;
    for (std::size_t i = 0; i < settings.size(); ++i) {
        settings[i] = randomFields(choices, plainSettings().at(i).attributes);
        for (const QString &entry : plainSettings().at(i).entries)
            settingsAccess[i].put(bkt, settings[i], entry);
    }
    // The template is empty at first. It takes the first definition and the first bundle of each name.
    const Fields testDef = randomTestDef(session);
    const Bundle bundle = randomBundle(session);
    bkt.addTestDef(recordOf<TestDef>(testDef));
    bkt.addBundledCableType(bundle.record());
    if (choices.oneIn(2)) {
        session->job.ImportMissingDefaultCableTypes(&bkt);
        if (testDef.at("default_type") == "1")
            addTestDef(&session->file, testDef);
        addBundle(&session->file, bundle);
        return;
    }
    session->job.Import(&bkt);
    writeInfo(session->file.at({"Contractor_Info"}), contractor, address);
    for (std::size_t i = 0; i < settings.size(); ++i) {
        for (const QString &entry : plainSettings().at(i).entries)
            writeSettings(&session->file, plainSettings().at(i), entry, settings[i]);
    }
    addTestDef(&session->file, testDef);
    addBundle(&session->file, bundle);
}

/// Returns the list that a new template has after the definitions or bundles of the job have been added to it.
PlainElement exportedList(PlainJob *file, const char *name)
{
    PlainJob exported(PlainElement{"Bkt", {}, {}});
    exported.root().add(name);
    for (PlainElement &child : childrenOf(file->at({name}))) {
        if (!child.has("id"))
            continue;
        if (exported.at({"TestDef_List"}) != nullptr) {
            Fields fields = fieldsOf(testDefAttributes(), &child);
            for (const char *length : {"length_constant", "max_length"})
                fields[length] = QString::number(wholePart(fields[length]));
            addTestDef(&exported, fields);
        } else {
            const Fields attributes{{"id", child.text("id")},
                                    {"color", child.text("color")},
                                    {"default_type", canonical(Value::Flag, child.text("default_type"))}};
            addBundle(&exported, {attributes, namesIn(childOf(&child, "BundledCableType_List"), false)});
        }
    }
    return *exported.at({name});
}

void exportTemplate(Session *session)
{
    PlainJob &file = session->file;
    const QString name = inputFile("exported.bkt", nullptr, 0);
    expect(session->job.Export(name), "a job can be exported");
    PlainJob exported(parsePlain(readFile(name)));
    for (const char *list : {"TestDef_List", "BundledCable_List"})
        expect(*exported.at({list}) == exportedList(&file, list), "definitions and bundles are exported");
    for (const PlainSettings &settings : plainSettings()) {
        for (const QString &entry : settings.entries)
            expectAnswer(exported.at({"Settings_List", settings.list, entry})->attributes,
                         readSettings(&file, settings, entry), "settings are exported");
    }
    PlainElement *contractor = file.at({"Contractor_Info"});
    for (const QString &attribute : contractorAttributes())
        expectAnswer(exported.at({"Contractor_Info"})->text(attribute),
                     contractor == nullptr ? QString() : contractor->text(attribute), "the contractor is exported");
    expectAnswer(exported.at({"Contractor_Info", "Address"})->attributes,
                 fieldsOf(addressAttributes(), childOf(contractor, "Address")), "the address is exported");
}

// Files

void saveAndLoad(Session *session)
{
    JobEditor &job = session->job;
    // Only saveAs() replaces a file that somebody else has changed.
    expect(session->choices.oneIn(2) ? job.saveAs(inputFile("saved.job", nullptr, 0)) : job.save(),
           "a job can be saved");
    expect(!job.fileChanged(), "a saved job is unchanged");
    if (session->choices.oneIn(2)) {
        const QString saved = job.filename();
        job.Unload();
        expectAnswer(job.error(), "Unloading", "what a job says that was unloaded");
        for (const QString &tag : session->file.tags(Kind::Ports))
            expect(job.portExists(tag, true), "tags are known after unloading");
        expectAnswer(job.getCables(true), namesIn(session->file.at({"Cable_List"}), true), "cables after unloading");
        job.setFilename(saved);
    }
    expect(job.Load(job.filename()), "a saved job can be loaded");
    expect(!job.fileChanged(), "a loaded job is unchanged");
}

void rebuildLists(Session *session)
{
    using J = JobEditor;
    using Rebuild = void (J::*)();
    static const QVector<Rebuild> rebuilds{&J::updateAllInternalLists, &J::populateCurrentCablesLists,
                                           &J::populateCableMap,       &J::populateCableTypeMap,
                                           &J::populateConnectionMap,  &J::populateSheetMap,
                                           &J::populateDeviceMap,      &J::populateVerticeMap,
                                           &J::populateFreeTextMap,    &J::populateFloorMap,
                                           &J::populateRoomMap,        &J::populatePortMap,
                                           &J::populateActivePortMap,  &J::populateVerticalRunMap,
                                           &J::populatePointMap,       &J::populateFloorFreeTextMap};
    (session->job.*rebuilds.at(session->choices.number(int(rebuilds.size()))))();
}

void makeNew(Session *session)
{
    expectAnswer(session->job.New(), QString(), "no new job while one is open");
    expect(!session->job.New("other.job"), "no new job while one is open");
    expect(!session->job.error().isEmpty(), "a new job is refused with a reason");
}

void findConnections(Session *session)
{
    session->job.getToJobNotesList();
    session->file.root().ensure("Connection_List");
}

} // namespace

const Operations &contentOperations()
{
    static const Operations operations{setInfo,        setInfoField,   setAddress,      setNotes,       changeReleases,
                                       changeSettings, changeTestDefs, changeBundles,   importTemplate, exportTemplate,
                                       saveAndLoad,    rebuildLists,   findConnections, makeNew};
    return operations;
}
