#include "bkteditor.h"

#include "messagetext.h"
#include "words.h"

using namespace cabledoc;

bool BktEditor::checkVersion()
{
    return checkVersion([this] { return save(); });
}

bool BktEditor::checkVersion(const std::function<bool()> &stepDone)
{
    // The three texts are for developers: Load() puts its own in their place.
    if (!m_document.hasChildNodes()) {
        m_error = QStringLiteral("_doc has no child nodes in BktEditor::checkVersion");
        return false;
    }
    if (getDomNodeFirstChild().isNull()) {
        m_error = QStringLiteral("there are no nodes below root node in _doc in BktEditor::checkVersion");
        return false;
    }
    if (m_document.firstChild().nodeName() != words::Bkt || getElement(words::Version).isNull()) {
        m_error = QStringLiteral("version Doesn't Exist in BktEditor::checkVersion");
        return false;
    }
    const QString found = version();
    bool isSaved = true;
    if (convertToCurrentVersion([&] { return isSaved = stepDone(); }))
        return true;
    if (isSaved)
        m_error = tr("%1 is a bad version number in BktEditor::checkVersion.").arg(excerpt(found));
    return false;
}
