#include "jobeditor.h"

#include "jobwords.h"

using namespace cabledoc;

bool JobEditor::checkVersion()
{
    // The first child of the document has to be the root: nothing skips a declaration or a comment.
    const QDomElement root = m_document.firstChild().toElement();
    return root.tagName() == words::Job
           && getChildAttr(words::Number, getElement(words::Version)) == words::CurrentVersion;
}
