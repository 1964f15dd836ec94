#include "bkteditor.h"

#include "sharedattributes.h"
#include "words.h"

#include <QtCore/QFileInfo>

#include <cstdlib>

using namespace cabledoc;

BktEditor *BktEditor::s_instance = nullptr;

BktEditor &BktEditor::Instance()
{
    if (s_instance == nullptr)
        s_instance = new BktEditor;
    return *s_instance;
}

void BktEditor::Destroy()
{
    delete s_instance;
    s_instance = nullptr;
}

BktEditor::BktEditor()
    : BKXMLEditor(words::Bkt)
{
}

BktEditor::BktEditor(const QString &filename)
    : BktEditor()
{
    if (!QFileInfo::exists(filename)) {
        New(filename);
    } else if (!Load(filename)) {
        // Deliberate: a template named at construction loads, or the program ends.
        qDebug("Load failed in BktEditor::BktEditor(const QString &filename)");
        std::exit(-1);
    }
}

BktEditor::~BktEditor() = default;

bool BktEditor::New(const QString &filename)
{
    if (filename.isNull()) {
        m_error = tr("Unable to create template with NULL filename");
        return false;
    }
    if (!takeName(filename))
        return false;
    m_document = QDomDocument(words::Bkt);

    QDomElement root = appendElement(words::Bkt, m_document);
    appendElement(words::Version, root).setAttribute(words::Number, words::CurrentVersion);
    addInfo(words::ContractorInfo, contractorInfoAttributes(), root);
    addSettingsList(&root);
    appendElement(words::TestDefList, root);
    appendElement(words::BundledCableList, root);
    setDirty(false);
    return true;
}

bool BktEditor::Load(const QString &filename)
{
    return load(filename, [this] { return save(); });
}

bool BktEditor::LoadWithoutSaving(const QString &filename)
{
    return load(filename, [] { return true; });
}

bool BktEditor::load(const QString &filename, const std::function<bool()> &stepDone)
{
    if (!readFile(filename, words::Bkt,
                  {tr("Empty or null filename in BktEditor::Load"), tr("Bkt file %1 does not exist"),
                   tr("Error parsing Bkt file %1\n on line %2,\n column %3,\n%4"), tr("Unable to parse Bkt file %1")}))
        return false;
    if (!checkVersion(stepDone)) {
        rejectFile();
        m_error = QStringLiteral("Incompatible version of Bkt file");
        return false;
    }
    setDirty(false);
    return true;
}

bool BktEditor::save()
{
    return save(Replace::ExpectedFile);
}

bool BktEditor::saveAnyway()
{
    return save(Replace::AnyFile);
}

bool BktEditor::save(Replace replace)
{
    if (!namesAFile(m_filename, words::BktExtension)) {
        m_error = tr("Filename is empty.");
        return false;
    }
    if (refuseUnloaded() || !writeFile(m_filename, sharedAttributeOrder(), replace))
        return false;
    setDirty(false);
    return true;
}

bool BktEditor::saveAs(const QString &filename)
{
    if (!namesAFile(filename, words::BktExtension)) {
        m_error = tr("Unable to Save file (NULL)");
        return false;
    }
    return writeFile(filename, sharedAttributeOrder(), Replace::AnyFile);
}

bool BktEditor::checkBktExtension(const QString &filename)
{
    return hasExtension(filename, words::BktExtension);
}
