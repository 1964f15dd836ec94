#include "bkteditor.h"

#include "document.h"
#include "documentattributes.h"
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
        // This is deliberate: the program ends if a template that is named at construction cannot be loaded.
        qDebug("Load failed in BktEditor::BktEditor(const QString &filename)");
        std::exit(-1);
    }
}

BktEditor::~BktEditor() = default;

bool BktEditor::New(const QString &filename)
{
    if (filename.isNull()) {
        error() = tr("Unable to create template with NULL filename");
        return false;
    }
    if (!inside().takeName(filename))
        return false;
    DocumentTree &tree = inside().tree();
    tree.setDocument(QDomDocument(words::Bkt));
    QDomElement root = tree.append(words::Bkt, tree.document());
    tree.setAttribute(tree.append(words::Version, root), words::Number, words::CurrentVersion);
    inside().addInfo(words::ContractorInfo, contractorInfoAttributes(), root);
    addSettingsList(&root);
    tree.append(words::TestDefList, root);
    tree.append(words::BundledCableList, root);
    tree.setChanged(false);
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
    if (!inside().read(filename, words::Bkt,
                       {tr("Empty or null filename in BktEditor::Load"), tr("Bkt file %1 does not exist"),
                        tr("Error parsing Bkt file %1\n on line %2,\n column %3,\n%4"),
                        tr("Unable to parse Bkt file %1")}))
        return false;
    if (!checkVersion(stepDone)) {
        inside().rejectFile();
        inside().error = QStringLiteral("Incompatible version of Bkt file");
        return false;
    }
    setDirty(false);
    return true;
}

bool BktEditor::save()
{
    return inside().save(words::BktExtension, attributeOrder(documentFileAttributes()), Document::Replace::ExpectedFile,
                         tr("Filename is empty."));
}

bool BktEditor::saveAnyway()
{
    return inside().save(words::BktExtension, attributeOrder(documentFileAttributes()), Document::Replace::AnyFile,
                         tr("Filename is empty."));
}

bool BktEditor::saveAs(const QString &filename)
{
    if (!Document::isSaveName(filename, words::BktExtension)) {
        inside().error = tr("Unable to Save file (NULL)");
        return false;
    }
    return inside().write(filename, attributeOrder(documentFileAttributes()), Document::Replace::AnyFile);
}

bool BktEditor::checkBktExtension(const QString &filename)
{
    return Document::hasExtension(filename, words::BktExtension);
}
