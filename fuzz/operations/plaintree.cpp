#include "plaintree.h"

#include "fuzzing.h"

#include <QtCore/QXmlStreamReader>

#include <iterator>

QString PlainElement::text(const QString &attribute, const QString &missing) const
{
    const auto found = attributes.find(attribute);
    return found == attributes.end() ? missing : found->second;
}

PlainElement &PlainElement::add(const QString &childName)
{
    children.push_back({childName, {}, {}});
    return children.back();
}

PlainElement &PlainElement::ensure(const QString &childName)
{
    PlainElement *child = childOf(this, childName);
    return child == nullptr ? add(childName) : *child;
}

PlainElement *childOf(PlainElement *element, const QString &childName)
{
    if (element == nullptr)
        return nullptr;
    for (PlainElement &child : element->children) {
        if (child.name == childName)
            return &child;
    }
    return nullptr;
}

std::list<PlainElement> &childrenOf(PlainElement *element)
{
    static std::list<PlainElement> none;
    return element == nullptr ? none : element->children;
}

QStringList namesIn(const PlainElement *element, bool byTag)
{
    QStringList names;
    if (element == nullptr)
        return names;
    for (const PlainElement &child : element->children)
        names.append(byTag ? child.name : child.text("id"));
    return names;
}

PlainElement parsePlain(const QByteArray &text)
{
    QXmlStreamReader reader(QString::fromLatin1(text));
    PlainElement document;
    QVector<PlainElement *> open{&document};
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            open.append(&open.constLast()->add(reader.name().toString()));
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                open.constLast()->attributes.emplace(attribute.name().toString(), attribute.value().toString());
        } else if (reader.isEndElement()) {
            open.removeLast();
        }
    }
    expect(!reader.hasError() && document.children.size() == 1, "a job is saved as XML");
    return std::move(document.children.front());
}

namespace {

void appendText(const PlainElement &element, QString *text)
{
    *text += '<' + element.name;
    for (const auto &[name, value] : element.attributes) {
        QString escaped = value.toHtmlEscaped();
        for (const char character : {'\t', '\n', '\r'})
            escaped.replace(QLatin1Char(character), QString("&#%1;").arg(int(character)));
        *text += ' ' + name + "=\"" + escaped + '"';
    }
    *text += '>';
    for (const PlainElement &child : element.children)
        appendText(child, text);
    *text += "</" + element.name + ">\n";
}

} // namespace

QByteArray plainText(const PlainElement &element)
{
    QString text;
    appendText(element, &text);
    return text.toLatin1();
}

const PlainElement *nextChildIn(const PlainElement &otherRoot, const PlainElement &root, const PlainElement &list)
{
    if (&root == &list) {
        const bool isThere = otherRoot.children.size() > list.children.size();
        return isThere ? &*std::next(otherRoot.children.begin(), std::ptrdiff_t(list.children.size())) : nullptr;
    }
    auto other = otherRoot.children.begin();
    for (const PlainElement &child : root.children) {
        if (other == otherRoot.children.end())
            return nullptr;
        if (const PlainElement *next = nextChildIn(*other, child, list))
            return next;
        ++other;
    }
    return nullptr;
}
