#include "pdffile.h"

#include "filereplacement.h"
#include "missingcharacters.h"
#include "pdfcompletion.h"
#include "qtcompat.h"
#include "scenepainter.h"
#include "units.h"

#include <QtCore/QTemporaryFile>
#include <QtGui/QPageLayout>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

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

PdfLink linkOf(const SceneLink &link, const Scene &page, int number)
{
    // The vertical axis of a PDF page points up.
    const double bottom = page.size.height() - link.area.bottom();
    return {number,
            link.page,
            {link.area.x() * pointsInAMillimeter, bottom * pointsInAMillimeter, link.area.width() * pointsInAMillimeter,
             link.area.height() * pointsInAMillimeter}};
}

} // namespace

struct PdfFile::Data
{
    PdfAdditions additions;
    MissingCharacters missing;
    QTemporaryFile pages;
    std::unique_ptr<QPdfWriter> writer;
    QPainter painter;
    int pageCount = 0;
    bool hasFailed = false;
};

PdfFile::PdfFile(const QString &title, const QString &author)
    : d(std::make_unique<Data>())
{
    d->additions.title = title;
    d->additions.author = author;
    // QPdfWriter writes fonts in the order of a hash.
    qtcompat::setHashesOrdered(true);
    d->hasFailed = !d->pages.open();
    d->writer = std::make_unique<QPdfWriter>(&d->pages);
    d->writer->setResolution(resolution);
    d->writer->setTitle(title);
}

PdfFile::~PdfFile()
{
    if (d->painter.isActive())
        d->painter.end(); // before its writer is destroyed
    qtcompat::setHashesOrdered(false);
}

void PdfFile::addPage(const Scene &page)
{
    if (d->hasFailed)
        return;
    const bool isReady = d->writer->setPageLayout(layoutOf(page))
                         && (d->painter.isActive() ? d->writer->newPage() : d->painter.begin(d->writer.get()));
    if (!isReady) {
        d->hasFailed = true;
        return;
    }
    d->painter.resetTransform();
    d->painter.scale(resolution / millimetersInAnInch, resolution / millimetersInAnInch);
    paintScene(&d->painter, page);
    d->missing.collect(page);
    for (const SceneItem &item : page.items) {
        if (const auto *link = std::get_if<SceneLink>(&item.shape))
            d->additions.links.push_back(linkOf(*link, page, d->pageCount));
    }
    ++d->pageCount;
    d->hasFailed = d->pages.error() != QFileDevice::NoError;
}

void PdfFile::warn(QStringList *warnings) const
{
    d->missing.warn(warnings);
}

QString PdfFile::save(const QString &fileName, const QVector<OutlineEntry> &outline)
{
    if (d->hasFailed || !d->painter.end() || !d->pages.flush())
        return temporaryFileProblem();
    d->writer.reset();
    FileReplacement file(fileName);
    QString error = file.open();
    if (!error.isEmpty())
        return error;
    d->additions.outline = outline;
    error = completePdf(&d->pages, d->additions, &file);
    return error.isEmpty() ? file.commit({}) : error;
}

} // namespace cabledoc
