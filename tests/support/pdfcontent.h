#pragma once

#include "programs.h"

#include <QtCore/QMap>
#include <QtCore/QRectF>
#include <QtCore/QVector>
#include <QtCore/QXmlStreamReader>

#define POINTERHOLDER_TRANSITION 4
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <map>
#include <vector>

// What a PDF file has. Places are in points from the top left corner of a page.

struct PdfWord
{
    QString text;
    QRectF box;
};

struct PdfPage
{
    QSizeF size;
    QVector<PdfWord> words = {}; ///< in the order in which they were written

    QString text() const
    {
        QStringList texts;
        for (const PdfWord &word : words)
            texts.append(word.text);
        return texts.join(' ');
    }

    /// Returns the height of the words at the bottom.
    double footHeight() const { return words.isEmpty() ? 0.0 : words.constLast().box.height(); }

    /// Returns the lines of the chosen words, from the top to the bottom.
    template <typename Predicate> QStringList lines(Predicate isChosen) const
    {
        QMap<int, QMap<double, QString>> found;
        for (const PdfWord &word : words) {
            if (isChosen(word.box))
                found[qRound(word.box.bottom())].insert(word.box.left(), word.text);
        }
        QStringList texts;
        for (const auto &line : found)
            texts.append(QStringList(line.values()).join(' '));
        return texts;
    }

    /// Returns the lines in the size of headings of cables.
    QStringList headings() const
    {
        return lines([least = 1.5 * footHeight()](const QRectF &box) { return box.height() > least; });
    }
};

struct PdfLink
{
    int page;
    int target; ///< number of a page, or -1
    QRectF area;
};

struct PdfEntry
{
    QStringList path; ///< titles of the entry and of those above it
    int page;         ///< number of a page, or -1
};

struct PdfContent
{
    QVector<PdfPage> pages;
    QVector<PdfLink> links;
    QVector<PdfEntry> outline;

    QString text() const
    {
        QString all;
        for (const PdfPage &page : pages)
            all += page.text() + ' ';
        return all;
    }
};

/// Returns a number. That of qpdf would depend on the locale.
inline double numberOf(QPDFObjectHandle number)
{
    return QByteArray::fromStdString(number.unparse()).toDouble();
}

inline void addOutline(std::vector<QPDFOutlineObjectHelper> entries, const QStringList &above,
                       const std::map<QPDFObjGen, int> &numbers, PdfContent *content)
{
    for (QPDFOutlineObjectHelper &entry : entries) {
        const QStringList path = above + QStringList(QString::fromStdString(entry.getTitle()));
        const auto page = numbers.find(entry.getDestPage().getObjGen());
        content->outline.append({path, page == numbers.end() ? -1 : page->second});
        addOutline(entry.getKids(), path, numbers, content);
    }
}

inline void readTexts(const QString &fileName, PdfContent *content)
{
    QXmlStreamReader boxes(printedBy(CABLEDOC_PDFTOTEXT, {"-raw", "-bbox", fileName, "-"}));
    int page = -1;
    while (!boxes.atEnd()) {
        if (boxes.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto number = [&boxes](const char *name) {
            return boxes.attributes().value(QLatin1String(name)).toDouble();
        };
        if (boxes.name() == QLatin1String("page"))
            ++page;
        if (boxes.name() != QLatin1String("word"))
            continue;
        const QRectF box(QPointF(number("xMin"), number("yMin")), QPointF(number("xMax"), number("yMax")));
        content->pages[page].words.append({boxes.readElementText(), box});
    }
    if (boxes.hasError())
        qFatal("%s", qPrintable(boxes.errorString()));
}

/// Reads a PDF file. Ends the test if the file has a mistake.
inline PdfContent readPdf(const QString &fileName)
{
    PdfContent content;
    QPDF pdf;
    pdf.setAttemptRecovery(false);
    pdf.setSuppressWarnings(true);
    pdf.processFile(qPrintable(fileName));
    pdf.getAllObjects();
    std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(pdf).getAllPages();
    std::map<QPDFObjGen, int> numbers;
    for (QPDFPageObjectHelper &page : pages) {
        numbers.emplace(page.getObjectHandle().getObjGen(), int(content.pages.size()));
        QPDFObjectHandle box = page.getMediaBox();
        content.pages.append({QSizeF(numberOf(box.getArrayItem(2)), numberOf(box.getArrayItem(3)))});
    }
    for (std::size_t i = 0; i < pages.size(); ++i) {
        for (QPDFAnnotationObjectHelper &link : pages[i].getAnnotations("/Link")) {
            QPDFObjectHandle destination = link.getObjectHandle().getKey("/Dest");
            const auto target =
                destination.isArray() ? numbers.find(destination.getArrayItem(0).getObjGen()) : numbers.end();
            QPDFObjectHandle corners = link.getObjectHandle().getKey("/Rect");
            const double height = content.pages.at(int(i)).size.height();
            const QPointF topLeft(numberOf(corners.getArrayItem(0)), height - numberOf(corners.getArrayItem(3)));
            const QPointF bottomRight(numberOf(corners.getArrayItem(2)), height - numberOf(corners.getArrayItem(1)));
            content.links.append({int(i), target == numbers.end() ? -1 : target->second, QRectF(topLeft, bottomRight)});
        }
    }
    addOutline(QPDFOutlineDocumentHelper(pdf).getTopLevelOutlines(), {}, numbers, &content);
    for (const QPDFExc &warning : pdf.getWarnings())
        qFatal("%s", warning.what());
    readTexts(fileName, &content);
    return content;
}
