#include "answers.h"

#include "records.h"

#include <set>

namespace {

using Getter = QString (JobEditor::*)() const;

void compareInfo(const JobEditor &job, PlainElement *info, const Address &address,
                 const std::map<QString, Getter> &getters)
{
    for (const auto &[attribute, getter] : getters)
        expectAnswer((job.*getter)(), info == nullptr ? QString() : info->text(attribute), "contractor or site");
    expectAnswer(fieldsOf(address), fieldsOf(addressAttributes(), childOf(info, "Address")), "an address");
}

/// Returns the first child with the given "id", or null if there is none.
PlainElement *childWithId(PlainElement *list, const QString &id)
{
    for (PlainElement &child : childrenOf(list)) {
        if (child.has("id") && child.text("id") == id)
            return &child;
    }
    return nullptr;
}

QStringList namesOf(const PlainElement *list)
{
    QStringList names = namesIn(list, true) + namesIn(list, false) + QStringList{"none", ""};
    names.removeDuplicates();
    return names;
}

/// Returns the first child of each "id".
std::vector<PlainElement *> named(PlainElement *list)
{
    std::vector<PlainElement *> children;
    std::set<QString> ids;
    for (PlainElement &child : childrenOf(list)) {
        if (child.has("id") && ids.insert(child.text("id")).second)
            children.push_back(&child);
    }
    return children;
}

void compareTestDefs(const JobEditor &job, PlainElement *list)
{
    expectAnswer(job.getTestDefElements(), namesIn(list, true), "the tags of definitions");
    expectAnswer(job.getTestDefNames(), namesIn(list, false), "the names of definitions");
    for (const QString &name : namesOf(list)) {
        const PlainElement *definition = childWithId(list, name);
        Fields fields = fieldsOf(testDefAttributes(), definition);
        if (definition == nullptr)
            fields["id"] = name;
        expectAnswer(fieldsOf(job.getTestDef(name)), fields, "a definition");
        expectAnswer(job.testDefExists(name), definition != nullptr, "whether there is a definition");
        expectAnswer(job.testDefElementExists(name), childOf(list, name) != nullptr, "whether a definition has a tag");
    }
    QStringList answers;
    for (const TestDef &definition : job.getTestDefs())
        answers.append(textOf(fieldsOf(definition)));
    QStringList expected;
    for (const PlainElement *definition : named(list))
        expected.append(textOf(fieldsOf(testDefAttributes(), definition)));
    expectAnswer(answers, expected, "all definitions");
}

QString bundleText(const BundledCable &bundle)
{
    return QStringList{bundle.tag(), bundle.id(), bundle.types().join(','), bundle.color(),
                       textOf(bundle.defaultType())}
        .join('|');
}

QString bundleText(PlainElement *bundle)
{
    if (bundle == nullptr)
        return "|error|||0";
    return QStringList{bundle->name, bundle->text("id"),
                       namesIn(childOf(bundle, "BundledCableType_List"), false).join(','), bundle->text("color"),
                       textOf(bundle->text("default_type") == "1")}
        .join('|');
}

void compareBundles(const JobEditor &job, PlainElement *list)
{
    expectAnswer(job.getBundledCableTypeTags(), namesIn(list, true), "the tags of bundles");
    expectAnswer(job.getBundledCableTypeIds(), namesIn(list, false), "the names of bundles");
    for (const QString &name : namesOf(list)) {
        PlainElement *ofName = childWithId(list, name);
        const PlainElement *ofTag = childOf(list, name);
        expectAnswer(bundleText(job.getBundledCableType(name)), bundleText(ofName), "a bundle");
        expectAnswer(job.bundledCableTypeIdExists(name), ofName != nullptr, "whether there is a bundle");
        expectAnswer(job.bundledCableTypeTagExists(name), ofTag != nullptr, "whether a bundle has a tag");
        expectAnswer(job.getBundledCableTypeIdByTag(name), ofTag == nullptr ? QString() : ofTag->text("id"),
                     "the name of a bundle");
        expectAnswer(job.getBundledCableTypeTagById(name), ofName == nullptr ? QString() : ofName->name,
                     "the tag of a bundle");
    }
    QStringList answers;
    for (const BundledCable &bundle : job.getBundledCableTypes())
        answers.append(bundleText(bundle));
    QStringList expected;
    for (PlainElement *bundle : named(list))
        expected.append(bundleText(bundle));
    expectAnswer(answers, expected, "all bundles");
}

} // namespace

void compareContents(const JobEditor &job, PlainJob *file)
{
    using J = JobEditor;
    compareInfo(job, file->at({"Contractor_Info"}), job.getContractorAddress(),
                {{"tester", &J::getContractorTester},
                 {"company", &J::getContractorCompany},
                 {"email", &J::getContractorEmail},
                 {"phone", &J::getContractorPhone},
                 {"logo", &J::getContractorLogo}});
    compareInfo(job, file->at({"Site_Info"}), job.getSiteAddress(),
                {{"contact", &J::getSiteContact},
                 {"jobid", &J::getSiteJobID},
                 {"company", &J::getSiteCompany},
                 {"phone", &J::getSitePhone},
                 {"email", &J::getSiteEmail}});
    const ContractorData contractor(job.getContractorTester(), job.getContractorCompany(), job.getContractorEmail(),
                                    job.getContractorPhone(), job.getContractorLogo(), job.getContractorAddress());
    expectAnswer(job.getContractorData() == contractor, true, "all of the contractor");
    const SiteData site(job.getSiteContact(), job.getSiteJobID(), job.getSiteCompany(), job.getSitePhone(),
                        job.getSiteEmail(), job.getSiteAddress());
    expectAnswer(job.getSiteData() == site, true, "all of the site");
    const PlainElement *notes = file->at({"JobNotes_Text"});
    expectAnswer(job.getJobNotesText(), notes == nullptr ? QString() : notes->text("text"), "the notes");
    const PlainElement *releases = file->at({"Release"});
    Fields values = releases == nullptr ? Fields() : releases->attributes;
    values.insert({"none", QString()}); // unless there is a release with this name
    for (const auto &[name, value] : values)
        expectAnswer(job.getRelease(name), value, "a release");
    compareTestDefs(job, file->at({"TestDef_List"}));
    compareBundles(job, file->at({"BundledCable_List"}));
}
