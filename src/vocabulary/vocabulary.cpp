#include "vocabulary.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <algorithm>

// Q_INIT_RESOURCE works only outside of namespaces. Without it, a program that links the objects from an archive would
// leave out the pictures, because nothing else refers to them.
static void initPictures()
{
    Q_INIT_RESOURCE(vocabulary);
}

namespace cabledoc {

Vocabulary::Vocabulary(const char *context, const QString &pictures, const QVector<Entry> &entries)
    : m_context(context)
    , m_pictures(pictures)
    , m_entries(entries)
{
    initPictures();
}

const Vocabulary &Vocabulary::portUses()
{
    static const Vocabulary vocabulary("PortUse", QStringLiteral("portuse-"),
                                       {
                                           {QStringLiteral("data"), QT_TRANSLATE_NOOP("PortUse", "Data")},
                                           {QStringLiteral("voice"), QT_TRANSLATE_NOOP("PortUse", "Voice")},
                                           {QStringLiteral("TV"), QT_TRANSLATE_NOOP("PortUse", "TV")},
                                           {QStringLiteral("cable_box"), QT_TRANSLATE_NOOP("PortUse", "Cable box")},
                                           {QStringLiteral("audio"), QT_TRANSLATE_NOOP("PortUse", "Audio")},
                                           {QStringLiteral("video"), QT_TRANSLATE_NOOP("PortUse", "Video")},
                                           {QStringLiteral("security"), QT_TRANSLATE_NOOP("PortUse", "Security")},
                                           {QStringLiteral("fire"), QT_TRANSLATE_NOOP("PortUse", "Fire alarm")},
                                           {QStringLiteral("control"), QT_TRANSLATE_NOOP("PortUse", "Control")},
                                           {QStringLiteral("power"), QT_TRANSLATE_NOOP("PortUse", "Power")},
                                           {QStringLiteral("spare"), QT_TRANSLATE_NOOP("PortUse", "Spare")},
                                           {QStringLiteral("other"), QT_TRANSLATE_NOOP("PortUse", "Other")},
                                       });
    return vocabulary;
}

const Vocabulary &Vocabulary::deviceTypes()
{
    static const Vocabulary vocabulary(
        "DeviceType", QStringLiteral("device-"),
        {
            {QStringLiteral("computer"), QT_TRANSLATE_NOOP("DeviceType", "Computer")},
            {QStringLiteral("laptop"), QT_TRANSLATE_NOOP("DeviceType", "Laptop")},
            {QStringLiteral("server"), QT_TRANSLATE_NOOP("DeviceType", "Server")},
            {QStringLiteral("printer"), QT_TRANSLATE_NOOP("DeviceType", "Printer")},
            {QStringLiteral("phone"), QT_TRANSLATE_NOOP("DeviceType", "Phone")},
            {QStringLiteral("switch"), QT_TRANSLATE_NOOP("DeviceType", "Switch")},
            {QStringLiteral("router"), QT_TRANSLATE_NOOP("DeviceType", "Router")},
            {QStringLiteral("modem"), QT_TRANSLATE_NOOP("DeviceType", "Modem")},
            {QStringLiteral("access_point"), QT_TRANSLATE_NOOP("DeviceType", "Access point")},
            {QStringLiteral("television"), QT_TRANSLATE_NOOP("DeviceType", "Television")},
            {QStringLiteral("camera"), QT_TRANSLATE_NOOP("DeviceType", "Camera")},
            {QStringLiteral("speaker"), QT_TRANSLATE_NOOP("DeviceType", "Speaker")},
            {QStringLiteral("panel"), QT_TRANSLATE_NOOP("DeviceType", "Patch panel")},
            {QStringLiteral("rack"), QT_TRANSLATE_NOOP("DeviceType", "Rack")},
            {QStringLiteral("other"), QT_TRANSLATE_NOOP("DeviceType", "Other")},
        });
    return vocabulary;
}

QStringList Vocabulary::words() const
{
    QStringList words;
    for (const Entry &entry : m_entries)
        words.append(entry.word);
    return words;
}

bool Vocabulary::contains(const QString &word) const
{
    return find(word) != nullptr;
}

QString Vocabulary::name(const QString &word) const
{
    const Entry *entry = find(word);
    return entry == nullptr ? word : QCoreApplication::translate(m_context, entry->name);
}

QPixmap Vocabulary::pixmap(const QString &word, int size) const
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    const QString shown = contains(word) ? word : QStringLiteral("other");
    QSvgRenderer renderer(QStringLiteral(":/cabledoc/vocabulary/%1%2.svg").arg(m_pictures, shown));
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return QPixmap::fromImage(image);
}

const Vocabulary::Entry *Vocabulary::find(const QString &word) const
{
    const auto found =
        std::find_if(m_entries.cbegin(), m_entries.cend(), [&word](const Entry &entry) { return entry.word == word; });
    return found == m_entries.cend() ? nullptr : &*found;
}

} // namespace cabledoc
