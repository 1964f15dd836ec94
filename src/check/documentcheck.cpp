#include "documentcheck.h"

#include "bkxmleditor.h"
#include "childelements.h"
#include "document.h"
#include "jobschema.h"
#include "jobwords.h"
#include "messagetext.h"
#include "testdetails.h"
#include "texthash.h"
#include "xmlnames.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <array>
#include <set>

using namespace cabledoc;

namespace {

QString pathOf(FlatNode element)
{
    QStringList path;
    for (; !element.parent().isNull(); element = element.parent())
        path.prepend(excerpt(element.tagName()));
    return path.join(QLatin1Char('/'));
}

/// A document that is only loaded to check what the tree of a current file cannot show.
class LoadedDocument : public BKXMLEditor
{
    Q_DECLARE_TR_FUNCTIONS(DocumentCheck)

public:
    LoadedDocument(const QString &filename, const CheckOptions &options)
        : BKXMLEditor(QString())
    {
        setMaximumFileSize(options.maximumFileSize);
        inside().lineNumbers = xmlfile::LineNumbers::Read;
        m_isRead = inside().read(filename, QString(),
                                 {tr("A file name is needed"), tr("%1 does not exist"),
                                  tr("%1, line %2, column %3: %4"), tr("%1 is not an XML file")});
    }

    /// Returns why the file could not be read, or an empty text if it was read.
    QString readingError() { return m_isRead ? QString() : inside().error; }
    FlatTree tree() const { return FlatTree::fromDocument(document()); }
    /// Brings the document to the current version. Returns whether this succeeds.
    bool convert()
    {
        return convertToCurrentVersion([] { return true; });
    }

private:
    bool m_isRead = false;
};

/// The check of one file.
class DocumentCheck
{
    Q_DECLARE_TR_FUNCTIONS(DocumentCheck)

public:
    DocumentCheck(const QString &filename, const CheckOptions &options)
        : m_filename(filename)
        , m_options(options)
    {
    }

    CheckReport check()
    {
        if (const auto tree = xmlfile::readCurrent(m_filename, rootNames(), m_options.maximumFileSize)) {
            checkTree(*tree);
        } else {
            LoadedDocument document(m_filename, m_options);
            m_report.error = document.readingError();
            if (m_report.error.isEmpty() && mayBeConverted(document.tree(), &document))
                checkTree(document.tree());
        }
        std::stable_sort(m_report.findings.begin(), m_report.findings.end(),
                         [](const Finding &a, const Finding &b) { return a.line < b.line; });
        return m_report;
    }

private:
    static const QStringList &rootNames()
    {
        static const QStringList names{words::Job, words::Bkt};
        return names;
    }

    void report(const char *rule, FlatNode element, const QString &message)
    {
        // An element without a line was just added because an older file lacks it. Nothing is reported about it.
        if (element.line() > 0)
            m_report.findings.append({QLatin1String(rule), element.line(), pathOf(element), message});
    }

    /// Brings a document with that tree to the current version. Reports why if it cannot be checked.
    bool mayBeConverted(const FlatTree &tree, LoadedDocument *document)
    {
        const FlatNode root = tree.root();
        if (!rootNames().contains(root.tagName())) {
            report("unknown-root", tree.documentElement(),
                   tr("the file does not begin with the element \"%1\" or \"%2\"").arg(words::Job, words::Bkt));
            return false;
        }
        const FlatNode version = root.firstChildElement(words::Version);
        const QString found = attribute(version, words::Number);
        if (!document->convert()) {
            report("unknown-version", version.isNull() ? root : version,
                   tr("\"%1\" is not a known version").arg(excerpt(found)));
            return false;
        }
        if (found != words::CurrentVersion)
            report("old-version", version, tr("version %1 is older than %2").arg(found, words::CurrentVersion));
        return true;
    }

    void checkTree(const FlatTree &tree)
    {
        const FlatNode root = tree.root();
        checkShared(root);
        if (root.hasName(words::Job))
            checkJob(root);
        checkContentsOf(root, nullptr);
    }

    QString attribute(FlatNode element, const QString &name)
    {
        m_attributes.read(element);
        return m_attributes.attribute(name);
    }

    // Names

    /// Lines of elements by their tags or ids.
    using Lines = TextMap<int>;

    /// Checks the tags of the children. All tags that enter the same lines must differ.
    void checkTags(FlatNode list, Lines *lines)
    {
        for (const FlatNode &element : ChildElements(list)) {
            const auto [known, isNew] = lines->try_emplace(element.tagName(), element.line());
            if (!isNew)
                report("duplicate-tag", element,
                       tr("it has the same tag as the element in line %1").arg(known->second));
        }
    }

    void checkIds(FlatNode list)
    {
        Lines lines;
        for (const FlatNode &element : ChildElements(list)) {
            const QString id = attribute(element, words::Id);
            if (id.isEmpty())
                continue;
            const auto [known, isNew] = lines.try_emplace(id, element.line());
            if (!isNew)
                report("duplicate-id", element,
                       tr("it has the same id \"%1\" as the element in line %2").arg(excerpt(id)).arg(known->second));
        }
    }

    void checkTagsAlone(FlatNode list)
    {
        Lines lines;
        checkTags(list, &lines);
    }

    void reportMissing(FlatNode element, const QString &message) { report("missing-reference", element, message); }

    // Elements of both documents

    void checkShared(FlatNode root)
    {
        checkTagsAlone(root);
        const FlatNode settings = root.firstChildElement(words::SettingsList);
        for (const QString &list : {words::PrintSettingsList, words::PageSettingsList, words::ScaleSettingsList})
            checkTagsAlone(settings.firstChildElement(list));

        const FlatNode definitions = root.firstChildElement(words::TestDefList);
        checkTagsAlone(definitions);
        checkIds(definitions);
        for (const FlatNode &element : ChildElements(definitions))
            checkDefinition(element);

        const FlatNode bundles = root.firstChildElement(words::BundledCableList);
        checkTagsAlone(bundles);
        checkIds(bundles);
        for (const FlatNode &bundle : ChildElements(bundles)) {
            for (const FlatNode &type : ChildElements(bundle.firstChildElement(words::BundledCableTypeList)))
                checkType(bundle, attribute(type, words::Id));
            m_bundles.insert(attribute(bundle, words::Id));
        }
    }

    void checkDefinition(FlatNode element)
    {
        m_attributes.read(element);
        TestDef definition(testDefAttributes().read(m_attributes));
        m_types.insert(definition.id());
        // The maximum length is left out, because it only gives a warning.
        definition.setMaxLength(TestDefFields().maxLength);
        const QString verdict = definition.validDef();
        if (verdict != QLatin1String("GOOD"))
            report("invalid-definition", element, tr("\"%1\": %2").arg(excerpt(definition.id()), verdict.simplified()));
    }

    void checkType(FlatNode element, const QString &type)
    {
        if (!type.isEmpty() && m_types.count(type) == 0)
            reportMissing(element, tr("there is no test definition \"%1\"").arg(excerpt(type)));
    }

    // Elements of jobs

    void checkJob(FlatNode root)
    {
        for (const ElementSchema *kind : jobSchema()) {
            for (const FlatNode &list : listsOf(*kind, root)) {
                // Every floor has a room "Undefined" of its own.
                if (kind->kind == ElementKind::Rooms)
                    linesOf(kind->kind).unordered_erase(words::Undefined);
                checkTags(list, &linesOf(kind->kind));
                checkIds(list);
            }
        }
        for (const ElementSchema *kind : jobSchema()) {
            if (kind->references.isEmpty())
                continue;
            for (const FlatNode &list : listsOf(*kind, root)) {
                for (const FlatNode &element : ChildElements(list))
                    checkReferences(*kind, element);
            }
        }
    }

    /// Returns all lists of a kind.
    static std::vector<FlatNode> listsOf(const ElementSchema &kind, FlatNode root)
    {
        if (kind.holder == ElementKind::None)
            return {kind.listIn(root)};
        std::vector<FlatNode> lists;
        for (const FlatNode &holderList : listsOf(schemaOf(kind.holder), root)) {
            for (const FlatNode &holder : ChildElements(holderList))
                lists.push_back(kind.listIn(holder));
        }
        return lists;
    }

    Lines &linesOf(ElementKind kind) { return m_linesOfTags[std::size_t(kind)]; }

    /// Returns the message about a tag that no element has.
    static QString missingText(const Reference &reference)
    {
        if (reference.targets.contains(ElementKind::Points))
            return tr("\"%1\": there is no point, port or vertical run \"%2\"");
        if (reference.targets.contains(ElementKind::VerticalRuns))
            return tr("\"%1\": there is no port or vertical run \"%2\"");
        if (reference.targets.contains(ElementKind::Ports))
            return tr("\"%1\": there is no port \"%2\"");
        if (reference.targets.contains(ElementKind::Devices))
            return tr("\"%1\": there is no device or bend \"%2\"");
        return tr("\"%1\": there is no cable \"%2\"");
    }

    void checkReferences(const ElementSchema &kind, FlatNode element)
    {
        m_attributes.read(element);
        for (const Reference &reference : kind.references) {
            for (const QString &attribute : reference.attributes) {
                for (const QString &tag : reference.tagsIn(m_attributes.attribute(attribute))) {
                    const bool isThere =
                        std::any_of(reference.targets.begin(), reference.targets.end(),
                                    [&](ElementKind target) { return linesOf(target).count(tag) != 0; });
                    if (!isThere)
                        reportMissing(element, missingText(reference).arg(attribute, excerpt(tag)));
                }
            }
        }
        if (kind.kind != ElementKind::Cables)
            return;
        checkType(element, m_attributes.attribute(words::Type));
        const QString bundle = m_attributes.attribute(words::BundleName);
        if (!bundle.isEmpty() && m_bundles.count(bundle) == 0)
            reportMissing(element, tr("there is no bundle \"%1\"").arg(excerpt(bundle)));
    }

    // Attachments

    /// Checks that the attachment of a test is there, if the test has one. The attributes have been read.
    void checkAttachment(FlatNode element)
    {
        const QString name = m_attributes.attribute(words::Attachment);
        if (name.isEmpty() || !m_options.attachments)
            return;
        const QString sha256 = m_attributes.attribute(words::AttachmentSha256);
        const QString fileName = attachmentFileName(name, sha256);
        QFile file(QDir(attachmentFolder(m_filename)).filePath(fileName));
        QCryptographicHash hash(QCryptographicHash::Sha256);
        // The job may come from anybody. It does not lead out of the folder.
        if (fileName.contains(QLatin1Char('/')) || !QFileInfo(file).isFile())
            report("missing-attachment", element, tr("there is no file \"%1\"").arg(excerpt(file.fileName())));
        else if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
            report("missing-attachment", element,
                   tr("\"%1\" cannot be read: %2").arg(excerpt(file.fileName()), file.errorString()));
        else if (hash.result().toHex() != sha256.toLatin1())
            report("missing-attachment", element,
                   tr("\"%1\" does not have the content of the test").arg(excerpt(file.fileName())));
    }

    // Characters and numbers

    /// Checks an element and all that it holds. The attributes are those of the elements in its list.
    void checkContentsOf(FlatNode element, const AttributeList *attributes)
    {
        m_attributes.read(element);
        for (const XmlTokens::Attribute &attribute : m_attributes.all()) {
            // A file is Latin-1 text, so only references lead to characters that it cannot hold.
            if (attribute.value.hasReferences)
                checkText(element, XmlPiece{attribute.name}.toString(), attribute.value.toString());
        }
        const QString name = element.tagName();
        checkNumbers(element, attributes);
        checkNumbers(element, jobFileAttributes().ofElement.value(name));
        if (name == words::TestDetails)
            checkAttachment(element);
        const AttributeList *attributesOfChildren = jobFileAttributes().inList.value(name);
        for (FlatNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
            if (child.isElement())
                checkContentsOf(child, attributesOfChildren);
            else
                checkText(element, tr("text"), child.text());
        }
    }

    void checkNumbers(FlatNode element, const AttributeList *attributes)
    {
        if (attributes == nullptr)
            return;
        for (const AttributeRow &row : attributes->rows()) {
            if (row.isValid == nullptr)
                continue;
            const QString value = m_attributes.attribute(row.name);
            if (!row.isValid(value))
                report("invalid-number", element,
                       tr("\"%1\": \"%2\" is not a usable number").arg(row.name, excerpt(value)));
        }
    }

    void checkText(FlatNode element, const QString &name, const QString &text)
    {
        const QString lost = firstLostCharacter(text, m_options.characterReferences);
        if (!lost.isEmpty())
            report("lost-character", element,
                   tr("\"%1\" contains \"%2\", which a save cannot write").arg(excerpt(name), lost));
    }

    const QString m_filename;
    const CheckOptions m_options;
    CheckReport m_report;
    SharedTexts m_texts;
    FlatAttributes m_attributes{&m_texts};
    std::array<Lines, kindCount> m_linesOfTags;
    /// Cable types that have a test definition.
    std::set<QString> m_types;
    std::set<QString> m_bundles;
};

} // namespace

CheckReport cabledoc::checkFile(const QString &filename, const CheckOptions &options)
{
    return DocumentCheck(filename, options).check();
}
