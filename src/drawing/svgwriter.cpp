#include "drawingfile.h"
#include "drawingfonts.h"
#include "drawingwriters.h"
#include "scenepainter.h"
#include "svgfigure.h"
#include "texthash.h"
#include "vocabulary.h"

#include <QtCore/QBuffer>
#include <QtCore/QMap>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>
#include <QtGui/QImage>

#include <cmath>

namespace cabledoc {

namespace {

/// Returns a number with at most three decimals.
QString number(double value)
{
    constexpr double steps = 1000.0;
    const double rounded = std::round(value * steps) / steps;
    QString text = QString::number(rounded == 0.0 ? 0.0 : rounded, 'f', 3);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    return text.endsWith(QLatin1Char('.')) ? text.chopped(1) : text;
}

QString point(const QPointF &position)
{
    return number(position.x()) + QLatin1Char(' ') + number(position.y());
}

QString path(const QVector<QPointF> &points)
{
    QString text;
    for (const QPointF &position : points)
        text += (text.isEmpty() ? QLatin1Char('M') : QLatin1Char('L')) + point(position);
    return text;
}

/// Returns a path through points in which each step is written as its length.
QString pathOfSteps(const QVector<QPointF> &points)
{
    QString text = QStringLiteral("m0 0l");
    for (int i = 1; i < points.size(); ++i) {
        const QPointF step = points.at(i) - points.at(i - 1);
        text += (i > 1 && step.x() >= 0.0 ? QStringLiteral(" ") : QString()) + number(step.x())
                + (step.y() >= 0.0 ? QStringLiteral(" ") : QString()) + number(step.y());
    }
    return text;
}

/// Returns the word for a kind with which ids begin. It is empty for kinds that drawings do not show.
QString wordOf(ElementKind kind)
{
    static const QMap<ElementKind, QString> words{
        {ElementKind::Cables, QStringLiteral("cable")},
        {ElementKind::Connections, QStringLiteral("connection")},
        {ElementKind::Sheets, QStringLiteral("sheet")},
        {ElementKind::Devices, QStringLiteral("device")},
        {ElementKind::Vertices, QStringLiteral("bend")},
        {ElementKind::FreeTexts, QStringLiteral("sheet-text")},
        {ElementKind::Floors, QStringLiteral("floor")},
        {ElementKind::Rooms, QStringLiteral("room")},
        {ElementKind::Ports, QStringLiteral("port")},
        {ElementKind::ActivePorts, QStringLiteral("active-port")},
        {ElementKind::VerticalRuns, QStringLiteral("vertical-run")},
        {ElementKind::Points, QStringLiteral("point")},
        {ElementKind::FloorFreeTexts, QStringLiteral("floor-text")},
    };
    return words.value(kind);
}

/// Returns the text without the characters that XML does not have.
QString allowed(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control || character.unicode() >= 0xFFFE)
            character = QLatin1Char(' ');
    }
    return text;
}

/// Writes a page as SVG. The unit of the file is the millimetre.
class SvgWriter
{
public:
    explicit SvgWriter(const Scene &page)
        : m_page(page)
        , m_items(inDrawingOrder(page))
        , m_svg(&m_content)
    {
    }

    /// Returns the page as an SVG file.
    QByteArray write()
    {
        m_svg.setAutoFormatting(true);
        m_svg.setAutoFormattingIndent(1);
        m_svg.writeStartDocument();
        m_svg.writeStartElement(QStringLiteral("svg"));
        attribute("xmlns", QStringLiteral("http://www.w3.org/2000/svg"));
        attribute("xmlns:xlink", QStringLiteral("http://www.w3.org/1999/xlink"));
        writeSize();
        m_svg.writeTextElement(QStringLiteral("title"), allowed(m_page.title));
        writeDefinitions();
        for (int i = 0; i < m_items.size();)
            i = writeLayer(i);
        m_svg.writeEndDocument();
        return m_content;
    }

    /// Returns the page as an element of an HTML file. It has no ids, because the file has other pictures too.
    QByteArray writeFigure()
    {
        m_svg.writeStartElement(QStringLiteral("svg"));
        writeSize();
        for (const SceneItem *item : m_items)
            std::visit([this, item](const auto &shape) { write(*item, shape); }, item->shape);
        m_svg.writeEndElement();
        return m_content;
    }

private:
    void writeSize()
    {
        attribute("width", number(m_page.size.width()) + QLatin1String("mm"));
        attribute("height", number(m_page.size.height()) + QLatin1String("mm"));
        attribute("viewBox",
                  QStringLiteral("0 0 %1 %2").arg(number(m_page.size.width()), number(m_page.size.height())));
        attribute("font-family", drawingFontFamily() + QLatin1String(", sans-serif"));
    }

    void attribute(const char *name, const QString &value) { m_svg.writeAttribute(QLatin1String(name), value); }
    void attribute(const char *name, double value) { attribute(name, number(value)); }

    void writeRectangle(const QRectF &area)
    {
        attribute("x", area.x());
        attribute("y", area.y());
        attribute("width", area.width());
        attribute("height", area.height());
    }

    /// Writes each symbol that occurs, and the clip path of the window.
    void writeDefinitions()
    {
        QMap<QString, const SceneSymbol *> symbols;
        for (const SceneItem *item : m_items) {
            if (const auto *symbol = std::get_if<SceneSymbol>(&item->shape))
                symbols.insert(nameOf(*symbol), symbol);
        }
        m_svg.writeStartElement(QStringLiteral("defs"));
        m_svg.writeStartElement(QStringLiteral("clipPath"));
        attribute("id", QStringLiteral("window"));
        m_svg.writeStartElement(QStringLiteral("rect"));
        writeRectangle(m_page.window);
        m_svg.writeEndElement();
        m_svg.writeEndElement();
        for (auto symbol = symbols.cbegin(); symbol != symbols.cend(); ++symbol)
            writeSymbol(symbol.key(), vocabularyOf(**symbol).svg((*symbol)->word));
        m_svg.writeEndElement();
    }

    /// Writes the content of an SVG file as a symbol.
    void writeSymbol(const QString &name, const QByteArray &file)
    {
        QXmlStreamReader reader(file);
        reader.setNamespaceProcessing(false);
        reader.readNextStartElement();
        m_svg.writeStartElement(QStringLiteral("symbol"));
        attribute("id", name);
        attribute("viewBox", reader.attributes().value(QLatin1String("viewBox")).toString());
        m_svg.writeStartElement(QStringLiteral("rect"));
        attribute("width", QStringLiteral("100%"));
        attribute("height", QStringLiteral("100%"));
        attribute("fill", QStringLiteral("white"));
        m_svg.writeEndElement();
        for (int depth = 1; depth > 0 && !reader.atEnd();) {
            reader.readNext();
            if (reader.isStartElement()) {
                ++depth;
                m_svg.writeStartElement(reader.qualifiedName().toString());
                m_svg.writeAttributes(reader.attributes());
            } else if (reader.isEndElement()) {
                --depth;
                m_svg.writeEndElement(); // the last one ends the symbol
            }
        }
    }

    /// Writes the items of a layer, from the given one on. Returns the number of the first item of the next layer.
    int writeLayer(int first)
    {
        const Layer layer = m_items.at(first)->layer;
        m_svg.writeStartElement(QStringLiteral("g"));
        attribute("id", QLatin1String("layer-") + layerWord(layer));
        if (layer != Layer::Sheet)
            attribute("clip-path", QStringLiteral("url(#window)"));
        int i = first;
        for (; i < m_items.size() && m_items.at(i)->layer == layer; ++i)
            std::visit([this, i](const auto &shape) { write(*m_items.at(i), shape); }, m_items.at(i)->shape);
        m_svg.writeEndElement();
        return i;
    }

    void start(const char *name, const SceneItem &item)
    {
        m_svg.writeStartElement(QLatin1String(name));
        if (item.tag.isEmpty() || item.kind == ElementKind::None)
            return;
        const QString id = wordOf(item.kind) + QLatin1Char('-') + item.tag;
        const int uses = ++m_ids.try_emplace(id, 0).first.value();
        attribute("id", uses == 1 ? id : QStringLiteral("%1-%2").arg(id).arg(uses));
    }

    void end(const SceneItem &item)
    {
        if (!item.title.isEmpty())
            m_svg.writeTextElement(QStringLiteral("title"), allowed(item.title));
        m_svg.writeEndElement();
    }

    /// Writes how a line looks. The unit of its coordinates is given in millimetres.
    void writeStyle(const LineStyle &style, double unit = 1.0)
    {
        if (style.width <= 0.0)
            return;
        attribute("stroke", style.color.name());
        attribute("stroke-width", style.width / unit);
        QStringList dashes;
        for (const double dash : dashesOf(style))
            dashes.append(number(dash / unit));
        if (!dashes.isEmpty())
            attribute("stroke-dasharray", dashes.join(QLatin1Char(' ')));
    }

    void write(const SceneItem &item, const SceneLine &line)
    {
        start("path", item);
        const double unit = isInDots(line) ? dotSize : 1.0;
        attribute("d", isInDots(line) ? pathOfSteps(pointsInDots(line)) : path(line.points));
        if (isInDots(line))
            attribute("transform", QStringLiteral("translate(%1) scale(%2)")
                                       .arg(point(line.points.constFirst()), QString::number(dotSize, 'g', 8)));
        attribute("fill", QStringLiteral("none"));
        writeStyle(line.style, unit);
        end(item);
    }

    void write(const SceneItem &item, const SceneArea &area)
    {
        start("path", item);
        attribute("d", path(area.corners) + QLatin1Char('Z'));
        attribute("fill", area.fill.isValid() ? area.fill.name() : QStringLiteral("none"));
        writeStyle(area.outline);
        end(item);
    }

    void write(const SceneItem &item, const SceneText &text)
    {
        if (text.background.isValid()) {
            m_svg.writeStartElement(QStringLiteral("rect"));
            writeRectangle(boxOf(text));
            attribute("fill", text.background.name());
            m_svg.writeEndElement();
        }
        // A title inside would keep the writer from writing the text without blanks around it.
        start("text", item);
        if (text.isVertical)
            attribute("transform", QStringLiteral("translate(%1) rotate(-90)").arg(point(text.position)));
        else
            writePosition(text.position);
        attribute("font-size", text.size);
        writeFont(text);
        m_svg.writeCharacters(allowed(text.text));
        m_svg.writeEndElement();
    }

    void writePosition(const QPointF &position)
    {
        attribute("x", position.x());
        attribute("y", position.y());
    }

    void writeFont(const SceneText &text)
    {
        if (text.family.isEmpty()) {
            attribute("textLength", text.width);
            attribute("lengthAdjust", QStringLiteral("spacingAndGlyphs"));
        } else {
            attribute("font-family", QStringLiteral("%1, %2, sans-serif").arg(text.family, drawingFontFamily()));
        }
        if (text.isBold)
            attribute("font-weight", QStringLiteral("bold"));
        if (text.isItalic)
            attribute("font-style", QStringLiteral("italic"));
        if (text.color != QColor(Qt::black))
            attribute("fill", text.color.name());
    }

    void write(const SceneItem &item, const SceneSymbol &symbol)
    {
        start("use", item);
        attribute("xlink:href", QLatin1Char('#') + nameOf(symbol));
        writeRectangle(symbol.area);
        end(item);
    }

    void write(const SceneItem &item, const ScenePicture &picture)
    {
        start("image", item);
        writeRectangle(picture.area);
        attribute("preserveAspectRatio", QStringLiteral("none"));
        attribute("xlink:href", dataAddress(picture.data));
        end(item);
    }

    void write(const SceneItem & /*item*/, const SceneLink & /*link*/)
    {
        // A file has one page.
    }

    const Scene &m_page;
    const QVector<const SceneItem *> m_items;
    QByteArray m_content;
    QXmlStreamWriter m_svg;
    TextMap<int> m_ids; ///< how often each id is used
};

} // namespace

QString dataAddress(const QByteArray &picture)
{
    const auto address = [](const char *type, const QByteArray &data) {
        return QStringLiteral("data:%1;base64,%2").arg(QLatin1String(type), QString::fromLatin1(data.toBase64()));
    };
    if (picture.startsWith("\xFF\xD8"))
        return address("image/jpeg", picture);
    if (picture.trimmed().startsWith('<'))
        return address("image/svg+xml", picture);
    if (picture.startsWith("\x89PNG"))
        return address("image/png", picture);
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    QImage::fromData(picture).save(&png, "PNG");
    return address("image/png", png.data());
}

QByteArray svgFigure(const Scene &figure)
{
    return SvgWriter(figure).writeFigure();
}

QString writeSvg(const Scene &page, const QString &fileName)
{
    const QString fontError = loadDrawingFonts();
    return fontError.isEmpty() ? replaceFile(fileName, SvgWriter(page).write()) : fontError;
}

} // namespace cabledoc
