#include "jobeditor.h"

#include "addmode.h"
#include "bkutilities.h"
#include "jobattributes.h"
#include "jobindex.h"
#include "jobwords.h"
#include "sharedattributes.h"

#include <QtCore/QDebug>
#include <QtCore/QFileInfo>

#include <cstdlib>

using namespace cabledoc;

namespace {

QString withTrailingSlash(const QString &directory)
{
    return directory.endsWith(QLatin1Char('/')) ? directory : directory + QLatin1Char('/');
}

} // namespace

JobEditor *JobEditor::s_instance = nullptr;

JobEditor &JobEditor::Instance()
{
    if (s_instance == nullptr)
        s_instance = new JobEditor;
    return *s_instance;
}

void JobEditor::Destroy()
{
    delete s_instance;
    s_instance = nullptr;
}

JobEditor::JobEditor()
    : BKXMLEditor(words::Job)
    , m_index(std::make_unique<JobIndex>())
{
}

JobEditor::JobEditor(const QString &filename)
    : JobEditor()
{
    const QFileInfo file(filename);
    if (file.isDir()) {
        qDebug("Filename given to JobEditor is a directory");
        m_error = tr("Filename given to JobEditor is a directory");
    } else if (file.exists()) {
        // Deliberate: a job named at construction loads, or the program ends.
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
    if (refuseWhenOpen())
        return QString();
    const auto settings = BKUtilities::readSettings({BKUtils::DefaultCeilingHeight, BKUtils::NewJobDirectory});
    const QString directory = withTrailingSlash(settings.value(BKUtils::NewJobDirectory));
    //: File name. It stays as it is: checkUntitledJob() knows the word "Untitled".
    QString candidate = directory + tr("Untitled1.job");
    for (int n = 2; QFileInfo::exists(candidate); ++n)
        //: File name. It stays as it is: checkUntitledJob() knows the word "Untitled".
        candidate = directory + tr("Untitled%1.job").arg(n);
    if (!takeName(candidate))
        return QString();
    create(settings.value(BKUtils::DefaultCeilingHeight).toDouble());
    return candidate;
}

bool JobEditor::New(const QString &filename)
{
    const auto settings = BKUtilities::readSettings({BKUtils::DefaultCeilingHeight});
    if (filename.isNull()) {
        m_error = tr("Null filename given to New(const &Qstring)");
        return false;
    }
    if (refuseWhenOpen())
        return false;
    if (!takeName(checkJobExtension(filename) ? filename : filename + QLatin1String(".job")))
        return false;
    create(settings.value(BKUtils::DefaultCeilingHeight).toDouble());
    return true;
}

/// A second root element beside the first could never be saved.
bool JobEditor::refuseWhenOpen()
{
    if (!m_document.hasChildNodes())
        return false;
    m_error = tr("A job is open. Unload it before making a new one.");
    return true;
}

void JobEditor::create(double ceilingHeight)
{
    // Unload() left the tags and ids of the job before, which must not count for the new one.
    updateAllInternalLists();

    addSkeleton(appendElement(words::Job, m_document));
    getElement(words::Version).setAttribute(words::Number, words::CurrentVersion);
    //: What generated names of floors begin with, such as "Floor_1"; no characters beyond Latin-1.
    const QString floorName = tr("Floor_") + QLatin1Char('1');
    addFloor(floorName, floorName, ceilingHeight, QString(), addmode::GivenId);
    //: What generated names of sheets begin with; no characters beyond Latin-1.
    const QString sheetName = tr("Sheet_") + QLatin1Char('1');
    addSheet(sheetName, sheetName, addmode::GivenId);

    setDirty(false);
}

/// Adds what every job has directly under its root and this one lacks.
void JobEditor::addSkeleton(QDomElement root)
{
    ensureElement(words::Release, root);
    ensureElement(words::Version, root);
    addInfo(words::ContractorInfo, contractorInfoAttributes(), root);
    addInfo(words::SiteInfo, siteInfoAttributes(), root);
    for (const QString &list : {words::CableList, words::ConnectionList, words::FloorList, words::SheetList,
                                words::TestDefList, words::BundledCableList})
        ensureElement(list, root);
    addSettingsList(&root);
    ensureElement(words::ActivePortList, ensureElement(words::ActiveNetworkTestList, root));
}

bool JobEditor::Load(const QString &filename)
{
    const bool isRead =
        readFile(filename, words::Job,
                 {tr("Empty or null filename in JobEditor::Load"), tr("Job file %1 does not exist"),
                  tr("Error parsing job file %1\n on line %2,\n column %3,\n%4"), tr("Unable to parse job file %1")});
    const bool isLoaded = isRead && checkVersion();
    updateAllInternalLists();
    if (isRead && !isLoaded) {
        rejectFile();
        m_error = tr("Incompatible version of job file %1").arg(filename);
    }
    if (isLoaded)
        setDirty(false);
    return isLoaded;
}

void JobEditor::Unload()
{
    // The lists of cables stay, as all names do.
    getCables(true);
    getCablesByType(QString());
    m_document = QDomDocument(words::Job);
    for (ElementIndex &index : m_index->elements)
        index.forgetElements();
    m_index->roomsOfFloor.clear();
    m_index->references.reset();
    m_filename = QLatin1String("");
    m_error = QStringLiteral("Unloading");
    setDirty(false);
}

bool JobEditor::save()
{
    return save(Replace::ExpectedFile);
}

bool JobEditor::saveAnyway()
{
    return save(Replace::AnyFile);
}

bool JobEditor::save(Replace replace)
{
    if (!namesAFile(m_filename, words::JobExtension)) {
        m_error = tr("Filename is Empty");
        return false;
    }
    if (refuseUnloaded() || !writeFile(m_filename, jobAttributeOrder(), replace))
        return false;
    setDirty(false);
    return true;
}

/// Whether a file can have that name: the extension alone cannot be one, nor can a directory.
bool JobEditor::mayBeFile(const QString &filename, const QString &extension)
{
    if (!namesAFile(filename, extension)) {
        m_error = tr("Filename is Empty");
        return false;
    }
    if (QFileInfo(filename).isDir()) {
        // The text for the user is deliberately shorter.
        qDebug("Filename given to JobEditor is a directory");
        m_error = tr("Filename given is a directory");
        return false;
    }
    return true;
}

bool JobEditor::saveAs(const QString &filename)
{
    if (!mayBeFile(filename, words::JobExtension))
        return false;
    if (QFileInfo::exists(filename))
        qDebug("Overwriting in JobEditor::saveAs");
    if (!writeFile(filename, jobAttributeOrder(), Replace::AnyFile))
        return false;
    changeName(filename);
    setDirty(false);
    return true;
}

bool JobEditor::checkJobExtension(const QString &filename)
{
    return hasExtension(filename, words::JobExtension);
}

bool JobEditor::checkUntitledJob(const QString &filename)
{
    const QString untitled = QStringLiteral("untitled");
    return QFileInfo(filename).baseName().left(untitled.size()).toLower() == untitled;
}

void JobEditor::setDefaultBktFile(const QString &filename)
{
    if (!filename.isEmpty())
        m_defaultBktFile = filename;
}
