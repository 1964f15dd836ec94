#include "vocabulary.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <algorithm>
#include <map>

// Q_INIT_RESOURCE works only outside of namespaces. Without it, a program that links the objects from an archive would
// leave out the pictures, because nothing else refers to them.
static void initPictures()
{
    Q_INIT_RESOURCE(vocabulary);
}

namespace cabledoc {

namespace {

/// Returns what paints a picture file. A plan has thousands of the same picture, so each file is read once.
QSvgRenderer *rendererOf(const QString &fileName)
{
    thread_local std::map<QString, QSvgRenderer> renderers;
    auto found = renderers.find(fileName);
    if (found == renderers.end())
        found = renderers.try_emplace(fileName, fileName).first;
    return &found->second;
}

} // namespace

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

void Vocabulary::paint(QPainter *painter, const QString &word, const QRectF &area) const
{
    QRectF square(area.topLeft(), QSizeF(1.0, 1.0).scaled(area.size(), Qt::KeepAspectRatio));
    square.moveCenter(area.center());
    rendererOf(fileName(word))->render(painter, square);
}

QByteArray Vocabulary::svg(const QString &word) const
{
    QFile file(fileName(word));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap Vocabulary::pixmap(const QString &word, int size) const
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(&painter, word, image.rect());
    painter.end();
    return QPixmap::fromImage(image);
}

QString Vocabulary::fileName(const QString &word) const
{
    const QString shown = contains(word) ? word : QStringLiteral("other");
    return QStringLiteral(":/cabledoc/vocabulary/%1%2.svg").arg(m_pictures, shown);
}

const Vocabulary::Entry *Vocabulary::find(const QString &word) const
{
    const auto found =
        std::find_if(m_entries.cbegin(), m_entries.cend(), [&word](const Entry &entry) { return entry.word == word; });
    return found == m_entries.cend() ? nullptr : &*found;
}

} // namespace cabledoc
