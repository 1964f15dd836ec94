#include "bkutilities.h"
#include "childelements.h"
#include "documentattributes.h"
#include "jobeditor_p.h"
#include "jobwords.h"

#include <QtCore/QDebug>
#include <QtCore/QFileInfo>

#include <cstdlib>

using namespace cabledoc;

namespace {

QString withTrailingSlash(const QString &directory)
{
    return directory.endsWith(QLatin1Char('/')) ? directory : directory + QLatin1Char('/');
}

/// Adds the elements under the root that every job has and that this one lacks.
void addSkeleton(JobEditor *job, QDomElement root)
{
    Document &document = JobEditorPrivate::of(*job).document;
    DocumentTree &tree = document.tree();
    tree.ensure(words::Release, root);
    tree.ensure(words::Version, root);
    document.addInfo(words::ContractorInfo, contractorInfoAttributes(), root);
    document.addInfo(words::SiteInfo, siteInfoAttributes(), root);
    for (const QString &list : {words::CableList, words::ConnectionList, words::FloorList, words::SheetList,
                                words::TestDefList, words::BundledCableList})
        tree.ensure(list, root);
    job->addSettingsList(&root);
    tree.ensure(words::ActivePortList, tree.ensure(words::ActiveNetworkTestList, root));
}

/// Adds the elements that a job of an older version lacks and that operations expect in every job.
void addWhatOlderJobsLack(JobEditor *job)
{
    JobTree &tree = JobEditorPrivate::of(*job).tree;
    addSkeleton(job, tree.root());
    for (const QDomElement &floor : ChildElements(floorKind().listIn(tree.root()))) {
        tree.undefinedRoom(floor);
        for (const QDomElement &room : ChildElements(roomKind().listIn(floor)))
            tree.addLists(room, ElementKind::Rooms);
    }
    for (const QDomElement &sheet : ChildElements(sheetKind().listIn(tree.root())))
        tree.addLists(sheet, ElementKind::Sheets);
}

/// Makes a new job in an empty tree.
void create(JobEditor *job, double ceilingHeight)
{
    JobTree &tree = JobEditorPrivate::of(*job).tree;
    // Unload() kept the tags and ids of the last job. They must not count for the new one.
    tree.index().rebuild();

    addSkeleton(job, tree.append(words::Job, tree.document()));
    tree.setAttribute(tree.child(words::Version), words::Number, words::CurrentVersion);
    //: What generated names of floors begin with, such as "Floor_1"; no characters beyond Latin-1.
    const QString floorName = JobEditor::tr("Floor_") + QLatin1Char('1');
    job->addFloor(floorName, floorName, ceilingHeight, QString(), addmode::GivenId);
    //: What generated names of sheets begin with; no characters beyond Latin-1.
    const QString sheetName = JobEditor::tr("Sheet_") + QLatin1Char('1');
    job->addSheet(sheetName, sheetName, addmode::GivenId);

    tree.setChanged(false);
}

/// Returns whether no job is open. Sets error() if one is open. A new job would become a second root element, which
/// could not be saved.
bool isClosed(Document *document)
{
    if (!document->tree().document().hasChildNodes())
        return true;
    document->error = JobEditor::tr("A job is open. Unload it before making a new one.");
    return false;
}

JobEditor *instance = nullptr;

} // namespace

JobEditor &JobEditor::Instance()
{
    if (instance == nullptr)
        instance = new JobEditor;
    return *instance;
}

void JobEditor::Destroy()
{
    delete instance;
    instance = nullptr;
}

JobEditor::JobEditor()
    : BKXMLEditor(std::make_unique<Document>(std::make_unique<JobTree>(JobEditorPrivate::cableIdPrefix())))
    , d(std::make_unique<JobEditorPrivate>(&inside(), static_cast<JobTree *>(&inside().tree())))
{
}

JobEditor::JobEditor(const QString &filename)
    : JobEditor()
{
    const QFileInfo file(filename);
    if (file.isDir()) {
        qDebug("Filename given to JobEditor is a directory");
        error() = tr("Filename given to JobEditor is a directory");
    } else if (file.exists()) {
        // This is deliberate: the program ends if a job that is named at construction cannot be loaded.
        if (!JobEditor::Load(filename)) {
            qDebug("Load failed in JobEditor::JobEditor(const QString &filename)");
            std::exit(-1);
        }
    } else {
        JobEditor::New(filename);
    }
}

JobEditor::~JobEditor() = default;

QString JobEditor::New()
{
    if (!isClosed(&inside()))
        return QString();
    const auto settings = BKUtilities::readSettings({BKUtils::DefaultCeilingHeight, BKUtils::NewJobDirectory});
    const QString directory = withTrailingSlash(settings.value(BKUtils::NewJobDirectory));
    //: File name. It stays as it is: checkUntitledJob() knows the word "Untitled".
    QString candidate = directory + tr("Untitled1.job");
    for (int n = 2; QFileInfo::exists(candidate); ++n)
        //: File name. It stays as it is: checkUntitledJob() knows the word "Untitled".
        candidate = directory + tr("Untitled%1.job").arg(n);
    if (!inside().takeName(candidate))
        return QString();
    create(this, settings.value(BKUtils::DefaultCeilingHeight).toDouble());
    return candidate;
}

bool JobEditor::New(const QString &filename)
{
    const auto settings = BKUtilities::readSettings({BKUtils::DefaultCeilingHeight});
    if (filename.isNull()) {
        error() = tr("Null filename given to New(const &Qstring)");
        return false;
    }
    if (!isClosed(&inside()))
        return false;
    if (!inside().takeName(checkJobExtension(filename) ? filename : filename + QLatin1String(".job")))
        return false;
    create(this, settings.value(BKUtils::DefaultCeilingHeight).toDouble());
    return true;
}

bool JobEditor::Load(const QString &filename)
{
    const bool isRead = inside().read(
        filename, words::Job,
        {tr("Empty or null filename in JobEditor::Load"), tr("Job file %1 does not exist"),
         tr("Error parsing job file %1\n on line %2,\n column %3,\n%4"), tr("Unable to parse job file %1")});
    // The first child of the document must be the root element. A file with a comment before it is refused.
    const bool isJob = isRead && d->tree.root().tagName() == words::Job;
    const bool isOlder = isJob && version() != words::CurrentVersion;
    // The file is not written. It keeps its version until the job is saved.
    const bool isLoaded = isJob && convertToCurrentVersion([] { return true; });
    if (isLoaded && isOlder)
        addWhatOlderJobsLack(this);
    updateAllInternalLists();
    // The conversion may have changed what was noted.
    if (!isOlder)
        d->tree.index().take(&d->document.notes);
    d->document.notes.values.clear();
    if (isRead && !isLoaded) {
        inside().rejectFile();
        error() = tr("Incompatible version of job file %1").arg(filename);
    }
    if (isLoaded)
        setDirty(false);
    return isLoaded;
}

void JobEditor::Unload()
{
    d->tree.unload();
    filename() = QLatin1String("");
    error() = QStringLiteral("Unloading");
    setDirty(false);
}

bool JobEditor::save()
{
    return inside().save(words::JobExtension, jobAttributeOrder(), Document::Replace::ExpectedFile,
                         tr("Filename is Empty"));
}

bool JobEditor::saveAnyway()
{
    return inside().save(words::JobExtension, jobAttributeOrder(), Document::Replace::AnyFile, tr("Filename is Empty"));
}

bool JobEditorPrivate::mayBeFile(const QString &filename, const QString &extension)
{
    if (!Document::isSaveName(filename, extension)) {
        document.error = JobEditor::tr("Filename is Empty");
        return false;
    }
    if (QFileInfo(filename).isDir()) {
        // The text for the user is deliberately shorter.
        qDebug("Filename given to JobEditor is a directory");
        document.error = JobEditor::tr("Filename given is a directory");
        return false;
    }
    return true;
}

bool JobEditor::saveAs(const QString &filename)
{
    if (!d->mayBeFile(filename, words::JobExtension))
        return false;
    if (QFileInfo::exists(filename))
        qDebug("Overwriting in JobEditor::saveAs");
    if (!inside().write(filename, jobAttributeOrder(), Document::Replace::AnyFile))
        return false;
    inside().changeName(filename);
    setDirty(false);
    return true;
}

bool JobEditor::checkJobExtension(const QString &filename)
{
    return Document::hasExtension(filename, words::JobExtension);
}

bool JobEditor::checkUntitledJob(const QString &filename)
{
    const QString untitled = QStringLiteral("untitled");
    return QFileInfo(filename).baseName().left(untitled.size()).toLower() == untitled;
}

void JobEditor::setDefaultBktFile(const QString &filename)
{
    if (!filename.isEmpty())
        d->defaultBktFile = filename;
}

const QString &JobEditor::defaultBktFile() const
{
    return d->defaultBktFile;
}

int JobEditor::getRelease() const
{
    return d->release;
}

void JobEditor::setRelease(int release)
{
    d->release = release;
}
