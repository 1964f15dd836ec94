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

/// Whether the name says where to save; an extension alone does not.
bool isUsableName(const QString &filename)
{
    return !filename.isEmpty() && filename != QLatin1String(".job");
}

QString withTrailingSlash(const QString &directory)
{
    return directory.endsWith(QLatin1Char('/')) ? directory : directory + QLatin1Char('/');
}

void addEmptyAttributes(QDomElement element, const QStringList &names)
{
    for (const QString &name : names)
        element.setAttribute(name, QLatin1String(""));
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
    QString candidate = directory + tr("Untitled1.job");
    for (int n = 2; QFileInfo::exists(candidate); ++n)
        candidate = directory + tr("Untitled%1.job").arg(n);
    m_filename = candidate;
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
    m_filename = checkJobExtension(filename) ? filename : filename + QLatin1String(".job");
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

    QDomElement root = appendElement(words::Job, m_document);
    appendElement(words::Release, root);
    appendElement(words::Version, root).setAttribute(words::Number, words::CurrentVersion);
    const QDomElement contractor = appendElement(words::ContractorInfo, root);
    addEmptyAttributes(contractor, contractorInfoAttributes());
    addressAttributes().write(appendElement(words::Address, contractor), AddressFields());
    const QDomElement site = appendElement(words::SiteInfo, root);
    addEmptyAttributes(site, siteInfoAttributes());
    addressAttributes().write(appendElement(words::Address, site), AddressFields());
    appendElement(words::CableList, root);
    appendElement(words::ConnectionList, root);
    appendElement(words::FloorList, root);
    const QString floorName = tr("Floor_") + QLatin1Char('1');
    addFloor(floorName, floorName, ceilingHeight, QString(), addmode::GivenId);
    appendElement(words::SheetList, root);
    const QString sheetName = tr("Sheet_") + QLatin1Char('1');
    addSheet(sheetName, sheetName, addmode::GivenId);
    appendElement(words::TestDefList, root);
    appendElement(words::BundledCableList, root);
    addSettingsList(&root);
    appendElement(words::ActivePortList, appendElement(words::ActiveNetworkTestList, root));

    setDirty(false);
}

bool JobEditor::Load(const QString &filename)
{
    if (filename.isEmpty()) {
        m_error = tr("Empty or null filename in JobEditor::Load");
        return false;
    }
    // Before anything is checked: a failed load leaves the new name in place.
    m_filename = filename;
    if (!QFileInfo::exists(filename)) {
        m_error = tr("Job file %1 does not exist").arg(filename);
        return false;
    }

    const xmlfile::ReadResult result = xmlfile::read(filename, words::Job);
    if (result.status == xmlfile::ReadResult::NotOpened) {
        m_error = result.deviceError;
        return false;
    }
    m_document = result.document;
    updateAllInternalLists();
    if (result.status == xmlfile::ReadResult::NotParsed) {
        const XmlProblem &problem = result.problem;
        if (problem.line != 0 && problem.column != 0) {
            qDebug().noquote() << "errMsg = " << problem.message;
            qDebug("errLine = %d", problem.line);
            qDebug("errColumn = %d", problem.column);
            m_error =
                tr("Error parsing job file %1\n on line %2,\n column %3,\n%4")
                    .arg(filename, QString::number(problem.line), QString::number(problem.column), problem.message);
        } else {
            m_error = tr("Unable to parse job file %1").arg(filename);
        }
        return false;
    }
    if (!checkVersion()) {
        m_error = tr("Incompatible version of job file %1").arg(filename);
        return false;
    }
    setDirty(false);
    return true;
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
    m_filename = QLatin1String("");
    m_error = QStringLiteral("Unloading");
    setDirty(false);
}

bool JobEditor::save()
{
    if (!isUsableName(m_filename)) {
        m_error = tr("Filename is Empty");
        return false;
    }
    if (!writeFile(m_filename, jobAttributeOrder()))
        return false;
    setDirty(false);
    return true;
}

bool JobEditor::saveAs(const QString &filename)
{
    if (!isUsableName(filename)) {
        m_error = tr("Filename is Empty");
        return false;
    }
    const QFileInfo file(filename);
    if (file.isDir()) {
        // The text for the user is deliberately shorter.
        qDebug("Filename given to JobEditor is a directory");
        m_error = tr("Filename given is a directory");
        return false;
    }
    if (file.exists())
        qDebug("Overwriting in JobEditor::saveAs");
    if (!writeFile(filename, jobAttributeOrder()))
        return false;
    m_filename = filename;
    setDirty(false);
    return true;
}

bool JobEditor::checkJobExtension(const QString &filename)
{
    return QFileInfo(filename).suffix().toLower() == words::JobExtension;
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
