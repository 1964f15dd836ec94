#include "drawingfile.h"
#include "drawingfonts.h"
#include "drawingtext.h"
#include "drawingtime.h"
#include "drawingwriters.h"
#include "qtcompat.h"
#include "scenepainter.h"
#include "units.h"

#include <QtCore/QBuffer>
#include <QtCore/QScopeGuard>
#include <QtGui/QPageLayout>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

// Buffers of qpdf are shared pointers of the standard library.
#define POINTERHOLDER_TRANSITION 4
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <vector>

namespace cabledoc {

namespace {

constexpr int resolution = 1200;
constexpr double pointsInAMillimeter = 72.0 / millimetersInAnInch;

QPageLayout layoutOf(const Scene &page)
{
    const QPageSize size(page.size, QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
    return {size, QPageLayout::Portrait, QMarginsF(0.0, 0.0, 0.0, 0.0), QPageLayout::Millimeter};
}

/// Returns the pages as a PDF file, or no data if they cannot be painted.
QByteArray paintedPages(const Drawing &drawing)
{
    // QPdfWriter writes fonts in the order of a hash.
    qtcompat::setHashesOrdered(true);
    const auto restore = qScopeGuard([] { qtcompat::setHashesOrdered(false); });
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    QPdfWriter writer(&content);
    writer.setResolution(resolution);
    writer.setTitle(drawing.title);
    QPainter painter;
    for (const Scene &page : drawing.pages) {
        const bool isReady =
            writer.setPageLayout(layoutOf(page)) && (painter.isActive() ? writer.newPage() : painter.begin(&writer));
        if (!isReady)
            return {};
        painter.resetTransform();
        painter.scale(resolution / millimetersInAnInch, resolution / millimetersInAnInch);
        paintScene(&painter, page);
    }
    return painter.end() ? content.data() : QByteArray();
}

/// Completes a PDF file with what QPdfWriter does not write.
class PdfCompletion
{
public:
    PdfCompletion(const QByteArray &content, const Drawing &drawing)
        : m_drawing(drawing)
    {
        m_pdf.setSuppressWarnings(true);
        m_pdf.processMemoryFile("drawing", content.constData(), std::size_t(content.size()));
        for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(m_pdf).getAllPages())
            m_pages.push_back(page.getObjectHandle());
    }

    QByteArray complete()
    {
        for (int i = 0; i < m_drawing.pages.size(); ++i)
            addLinks(i);
        addOutline();
        addInformation();
        // Viewers offer to print the pages at their exact size.
        m_pdf.getRoot().replaceKey("/ViewerPreferences", QPDFObjectHandle::parse("<< /PrintScaling /None >>"));
        QPDFWriter writer(m_pdf);
        writer.setOutputMemory();
        writer.setDeterministicID(true);
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.write();
        const std::unique_ptr<Buffer> content(writer.getBuffer());
        return QByteArray(reinterpret_cast<const char *>(content->getBuffer()), int(content->getSize()));
    }

private:
    static QPDFObjectHandle name(const char *text) { return QPDFObjectHandle::newName(text); }
    static QPDFObjectHandle text(const QString &value)
    {
        return QPDFObjectHandle::newUnicodeString(value.toStdString());
    }

    /// Returns a destination that shows a whole page.
    QPDFObjectHandle destination(int page)
    {
        return QPDFObjectHandle::newArray({m_pages.at(std::size_t(page)), name("/Fit")});
    }

    void addLinks(int number)
    {
        const Scene &page = m_drawing.pages.at(number);
        QPDFObjectHandle links = QPDFObjectHandle::newArray();
        for (const SceneItem &item : page.items) {
            if (const auto *link = std::get_if<SceneLink>(&item.shape))
                links.appendItem(m_pdf.makeIndirectObject(linkOf(*link, page)));
        }
        if (links.getArrayNItems() > 0)
            m_pages.at(std::size_t(number)).replaceKey("/Annots", links);
    }

    QPDFObjectHandle linkOf(const SceneLink &link, const Scene &page)
    {
        // The vertical axis of a PDF page points up.
        const double bottom = page.size.height() - link.area.bottom();
        const QRectF area(link.area.x() * pointsInAMillimeter, bottom * pointsInAMillimeter,
                          link.area.width() * pointsInAMillimeter, link.area.height() * pointsInAMillimeter);
        QPDFObjectHandle annotation = QPDFObjectHandle::newDictionary();
        annotation.replaceKey("/Type", name("/Annot"));
        annotation.replaceKey("/Subtype", name("/Link"));
        annotation.replaceKey("/Rect", QPDFObjectHandle::newArray(QPDFObjectHandle::Rectangle(
                                           area.left(), area.top(), area.right(), area.bottom())));
        annotation.replaceKey("/Border", QPDFObjectHandle::parse("[0 0 0]"));
        annotation.replaceKey("/F", QPDFObjectHandle::newInteger(4)); // is printed, as PDF/A demands
        annotation.replaceKey("/Dest", destination(link.page));
        return annotation;
    }

    void addOutline()
    {
        std::vector<QPDFObjectHandle> entries;
        QPDFObjectHandle outline = m_pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
        for (int i = 0; i < m_drawing.pages.size(); ++i) {
            if (m_drawing.pages.at(i).title.isEmpty())
                continue;
            QPDFObjectHandle entry = m_pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
            entry.replaceKey("/Title", text(m_drawing.pages.at(i).title));
            entry.replaceKey("/Parent", outline);
            entry.replaceKey("/Dest", destination(i));
            if (!entries.empty()) {
                entry.replaceKey("/Prev", entries.back());
                entries.back().replaceKey("/Next", entry);
            }
            entries.push_back(entry);
        }
        if (entries.empty())
            return;
        outline.replaceKey("/Type", name("/Outlines"));
        outline.replaceKey("/First", entries.front());
        outline.replaceKey("/Last", entries.back());
        outline.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(entries.size())));
        m_pdf.getRoot().replaceKey("/Outlines", outline);
        m_pdf.getRoot().replaceKey("/PageMode", name("/UseOutlines"));
    }

    void addInformation()
    {
        const QString date = drawingTime().toString(QStringLiteral("'D:'yyyyMMddHHmmss'Z'"));
        QPDFObjectHandle information = QPDFObjectHandle::newDictionary();
        information.replaceKey("/Title", text(m_drawing.title));
        information.replaceKey("/Author", text(m_drawing.author));
        information.replaceKey("/Creator", text(QStringLiteral("cabledoc")));
        information.replaceKey("/CreationDate", QPDFObjectHandle::newString(date.toStdString()));
        information.replaceKey("/ModDate", QPDFObjectHandle::newString(date.toStdString()));
        m_pdf.getTrailer().replaceKey("/Info", m_pdf.makeIndirectObject(information));
        m_pdf.getRoot().removeKey("/Metadata"); // it would repeat the date on which the pages were painted
    }

    const Drawing &m_drawing;
    QPDF m_pdf;
    std::vector<QPDFObjectHandle> m_pages;
};

} // namespace

QString writePdf(const Drawing &drawing, const QString &fileName)
{
    const QString fontError = loadDrawingFonts();
    if (!fontError.isEmpty())
        return fontError;
    const QByteArray pages = paintedPages(drawing);
    if (pages.isEmpty())
        return DrawingText::tr("The pages cannot be painted.");
    QByteArray content;
    try {
        content = PdfCompletion(pages, drawing).complete();
    } catch (const std::exception &exception) {
        return QString::fromLocal8Bit(exception.what());
    }
    return replaceFile(fileName, content);
}

} // namespace cabledoc
