#include "bkteditor.h"

#include "document.h"
#include "messagetext.h"
#include "words.h"

using namespace cabledoc;

bool BktEditor::checkVersion()
{
    return checkVersion([this] { return save(); });
}

bool BktEditor::checkVersion(const std::function<bool()> &stepDone)
{
    // The three texts are for developers. Load() replaces them with its own text.
    if (!document().hasChildNodes()) {
        inside().error = QStringLiteral("_doc has no child nodes in BktEditor::checkVersion");
        return false;
    }
    if (getDomNodeFirstChild().isNull()) {
        inside().error = QStringLiteral("there are no nodes below root node in _doc in BktEditor::checkVersion");
        return false;
    }
    if (document().firstChild().nodeName() != words::Bkt || getElement(words::Version).isNull()) {
        inside().error = QStringLiteral("version Doesn't Exist in BktEditor::checkVersion");
        return false;
    }
    const QString found = version();
    bool isSaved = true;
    if (convertToCurrentVersion([&] { return isSaved = stepDone(); }))
        return true;
    if (isSaved)
        inside().error = tr("%1 is a bad version number in BktEditor::checkVersion.").arg(excerpt(found));
    return false;
}
