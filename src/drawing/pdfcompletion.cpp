#include "pdfcompletion.h"

#include "drawingtext.h"
#include "drawingtime.h"
#include "filereplacement.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>

#include <algorithm>
#include <unordered_map>

namespace cabledoc {

namespace {

/// Returns a reference to an object, such as "7 0 R".
QByteArray reference(int object)
{
    return QByteArray::number(object) + " 0 R";
}

/// Returns a text as a string of PDF.
QByteArray stringOf(const QString &text)
{
    QByteArray utf16("\xFE\xFF", 2);
    for (const QChar character : text) {
        utf16.append(char(character.row()));
        utf16.append(char(character.cell()));
    }
    return '<' + utf16.toHex() + '>';
}

QByteArray decimal(double value)
{
    constexpr int decimals = 2;
    return QByteArray::number(value, 'f', decimals);
}

/// Returns the number after a word, such as 7 after "/Pages" in "/Pages 7 0 R", or 0 if there is none.
qint64 numberAfter(const QByteArray &word, const QByteArray &text)
{
    const auto position = text.indexOf(word);
    if (position < 0)
        return 0;
    const QByteArray rest = text.mid(position + word.size(), 30).trimmed(); // longer than any number
    const auto end = std::find_if(rest.cbegin(), rest.cend(), [](char digit) { return digit < '0' || digit > '9'; });
    return rest.left(int(end - rest.cbegin())).toLongLong();
}

/// The objects of a file that QPdfWriter wrote.
class PdfSource
{
public:
    explicit PdfSource(QFile *file)
        : m_file(file)
    {
    }

    /// Finds the objects. Returns whether the file has the form that is expected of QPdfWriter.
    bool open()
    {
        constexpr int endSize = 100; // holds the place of the table
        constexpr int entrySize = 20;
        constexpr int offsetSize = 10;
        const qint64 table = numberAfter("startxref", read(m_file->size() - endSize, endSize));
        const QByteArray text = read(table, m_file->size() - table);
        const qint64 count = numberAfter("xref\n0 ", text);
        const auto first = text.indexOf('\n', 5) + 1;
        if (!text.startsWith("xref\n0 ") || first + count * entrySize > text.size())
            return false;
        for (int number = 1; number < count; ++number)
            m_objects.push_back({text.mid(int(first) + number * entrySize, offsetSize).toLongLong(), number});
        std::sort(m_objects.begin(), m_objects.end());
        m_objects.push_back({table, int(count)});
        const QByteArray trailer = text.mid(int(first + count * entrySize));
        m_root = int(numberAfter("/Root", trailer));
        m_information = int(numberAfter("/Info", trailer));
        return m_root > 0 && m_information > 0;
    }

    int objectCount() const { return int(m_objects.size()) - 1; }
    int root() const { return m_root; }
    int information() const { return m_information; }
    /// Returns the number of the object at a position in the file.
    int numberAt(int position) const { return m_objects.at(std::size_t(position)).second; }
    /// Returns what stands at the beginning of the file, before all objects.
    QByteArray header() { return read(0, m_objects.front().first); }
    /// Returns the object at a position in the file, from its number to "endobj".
    QByteArray objectAt(int position)
    {
        const auto object = m_objects.cbegin() + position;
        return read(object->first, std::next(object)->first - object->first);
    }
    /// Returns the object with a number, or no data if there is none.
    QByteArray object(int number)
    {
        for (int position = 0; position < objectCount(); ++position) {
            if (numberAt(position) == number)
                return objectAt(position);
        }
        return {};
    }

private:
    QByteArray read(qint64 offset, qint64 size)
    {
        m_file->seek(std::max<qint64>(0, offset));
        return m_file->read(size);
    }

    QFile *m_file;
    std::vector<std::pair<qint64, int>> m_objects; ///< offsets and numbers, in the order of the file, and the end
    int m_root = 0;
    int m_information = 0;
};

/// Writes a PDF file.
class PdfOutput
{
public:
    explicit PdfOutput(FileReplacement *file)
        : m_file(file)
    {
    }

    /// Returns why something could not be written, or an empty string.
    const QString &error() const { return m_error; }

    void append(const QByteArray &piece)
    {
        m_piece += piece;
        m_size += piece.size();
        if (m_piece.size() >= pieceSize)
            flush();
    }

    /// Appends an object that has its number already.
    void appendWhole(int number, const QByteArray &object)
    {
        if (m_offsets.size() <= std::size_t(number))
            m_offsets.resize(std::size_t(number) + 1);
        m_offsets[std::size_t(number)] = m_size;
        append(object);
    }

    void appendObject(int number, const QByteArray &content)
    {
        appendWhole(number, QByteArray::number(number) + " 0 obj\n" + content + "\nendobj\n");
    }

    /// Writes the table of the objects and the end of the file.
    void finish(int root, int information)
    {
        const qint64 table = m_size;
        const QByteArray count = QByteArray::number(qint64(m_offsets.size()));
        append("xref\n0 " + count + "\n0000000000 65535 f \n");
        for (std::size_t number = 1; number < m_offsets.size(); ++number)
            append(QByteArray::number(m_offsets[number]).rightJustified(10, '0') + " 00000 n \n");
        flush();
        const QByteArray id = '<' + m_hash.result().toHex() + '>';
        append("trailer\n<< /Size " + count + " /Root " + reference(root) + " /Info " + reference(information)
               + " /ID [" + id + id + "] >>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n");
        flush();
    }

private:
    static constexpr int pieceSize = 1 << 16;

    void flush()
    {
        m_hash.addData(m_piece);
        if (m_error.isEmpty())
            m_error = m_file->write(m_piece);
        m_piece.clear();
    }

    FileReplacement *m_file;
    QString m_error;
    QByteArray m_piece; ///< what is not written yet
    qint64 m_size = 0;
    std::vector<qint64> m_offsets; ///< of the objects, by their numbers
    QCryptographicHash m_hash{QCryptographicHash::Md5};
};

/// Copies the objects of a file and adds others.
class PdfCompletion
{
public:
    PdfCompletion(PdfSource *source, const PdfAdditions &additions, PdfOutput *output)
        : m_source(source)
        , m_additions(additions)
        , m_output(output)
    {
    }

    /// Returns whether the file has the form that is expected of QPdfWriter.
    bool complete()
    {
        m_root = m_source->object(m_source->root());
        if (!findPages())
            return false;
        m_output->append(m_source->header());
        for (int position = 0; position < m_source->objectCount(); ++position)
            copy(m_source->numberAt(position), m_source->objectAt(position));
        const int outline = m_source->objectCount() + 1;
        if (!m_additions.outline.isEmpty())
            addOutline(outline);
        addRoot(m_additions.outline.isEmpty() ? 0 : outline);
        addInformation();
        m_output->finish(m_source->root(), m_source->information());
        return true;
    }

private:
    bool findPages()
    {
        const QByteArray tree = m_source->object(int(numberAfter("/Pages", m_root)));
        const auto begin = tree.indexOf('[');
        const QByteArray kids = tree.mid(begin + 1, tree.indexOf(']') - begin - 1);
        for (const QByteArray &kid : kids.simplified().split('R'))
            m_pages.push_back(int(numberAfter("", kid)));
        m_pages.pop_back(); // what follows the last reference
        const bool hasAll =
            std::all_of(m_additions.links.cbegin(), m_additions.links.cend(), [this](const PdfLink &link) {
                return std::max(link.onPage, link.toPage) < int(m_pages.size());
            });
        return !m_pages.empty() && m_pages.front() > 0 && hasAll;
    }

    /// Copies an object, unless another one takes its place.
    void copy(int number, const QByteArray &object)
    {
        const bool isPage = m_copiedPages < int(m_pages.size()) && number == m_pages.at(std::size_t(m_copiedPages));
        const bool isMetadata = object.left(100).contains("/Type /Metadata"); // has the date on which it was painted
        if (isPage)
            m_pageOfLinks.emplace(int(numberAfter("/Annots", object)), m_copiedPages++);
        const auto links = m_pageOfLinks.find(number);
        if (links != m_pageOfLinks.end())
            m_output->appendObject(number, linksOn(links->second));
        else if (isMetadata)
            m_output->appendObject(number, "null");
        else if (number != m_source->root() && number != m_source->information())
            m_output->appendWhole(number, object);
    }

    /// Returns the links on a page. Pages are asked for in their order.
    QByteArray linksOn(int page)
    {
        const std::vector<PdfLink> &links = m_additions.links;
        QByteArray annotations = "[";
        for (; m_nextLink < links.size() && links[m_nextLink].onPage == page; ++m_nextLink) {
            const PdfLink &link = links[m_nextLink];
            const QByteArray area = decimal(link.area.left()) + ' ' + decimal(link.area.top()) + ' '
                                    + decimal(link.area.right()) + ' ' + decimal(link.area.bottom());
            // The flag 4 lets the link be printed, as PDF/A demands.
            annotations += "\n<< /Type /Annot /Subtype /Link /Border [0 0 0] /F 4 /Rect [" + area + "] /Dest "
                           + destination(link.toPage) + " >>";
        }
        return annotations + ']';
    }

    /// Returns a destination that shows a whole page.
    QByteArray destination(int page) const { return '[' + reference(m_pages.at(std::size_t(page))) + " /Fit]"; }

    /// Adds the outline as objects from the given number on.
    void addOutline(int root)
    {
        const QVector<OutlineEntry> &entries = m_additions.outline;
        // The root stands before the entries, so that entry i has the number root + 1 + i.
        std::vector<Branch> branches(std::size_t(entries.size()) + 1);
        std::vector<int> path{0}; // the positions in branches that lead to the last entry
        for (int i = 1; i <= entries.size(); ++i) {
            path.resize(std::min(path.size(), std::size_t(entries.at(i - 1).level) + 1));
            Branch &parent = branches[std::size_t(path.back())];
            Branch &entry = branches[std::size_t(i)];
            entry.parent = path.back();
            entry.previous = parent.last;
            (parent.last == 0 ? parent.first : branches[std::size_t(parent.last)].next) = i;
            parent.last = i;
            ++parent.count;
            path.push_back(i);
        }
        for (int i = 0; i < int(branches.size()); ++i) {
            const Branch &branch = branches[std::size_t(i)];
            QByteArray content = "<<";
            const auto add = [&content, root](const char *name, int entry) {
                if (entry > 0)
                    content += QByteArray(name) + reference(root + entry);
            };
            add(" /First ", branch.first);
            add(" /Last ", branch.last);
            add(" /Prev ", branch.previous);
            add(" /Next ", branch.next);
            // Entries below the first level are folded, which a negative number says.
            if (branch.count > 0)
                content += " /Count " + QByteArray::number(i == 0 ? branch.count : -branch.count);
            if (i > 0)
                content += " /Parent " + reference(root + branch.parent) + " /Title "
                           + stringOf(entries.at(i - 1).title) + " /Dest " + destination(entries.at(i - 1).page);
            m_output->appendObject(root + i, content + " >>");
        }
    }

    void addRoot(int outline)
    {
        QByteArray root = "<< /Type /Catalog /Pages " + reference(int(numberAfter("/Pages", m_root)));
        // Viewers offer to print the pages at their exact size.
        root += " /ViewerPreferences << /PrintScaling /None >>";
        if (outline > 0)
            root += " /Outlines " + reference(outline) + " /PageMode /UseOutlines";
        m_output->appendObject(m_source->root(), root + " >>");
    }

    void addInformation()
    {
        const QByteArray date = drawingTime().toString(QStringLiteral("'(D:'yyyyMMddHHmmss'Z)'")).toLatin1();
        m_output->appendObject(m_source->information(),
                               "<< /Title " + stringOf(m_additions.title) + " /Author " + stringOf(m_additions.author)
                                   + " /Creator (cabledoc) /CreationDate " + date + " /ModDate " + date + " >>");
    }

    /// How an entry of the outline is tied to others. 0 stands for the root, or for no entry.
    struct Branch
    {
        int parent = 0;
        int previous = 0;
        int next = 0;
        int first = 0;
        int last = 0;
        int count = 0; ///< number of entries directly below it
    };

    PdfSource *m_source;
    const PdfAdditions &m_additions;
    PdfOutput *m_output;
    QByteArray m_root;
    std::vector<int> m_pages; ///< numbers of the objects of the pages
    int m_copiedPages = 0;
    std::unordered_map<int, int> m_pageOfLinks; ///< the pages of objects with links, by the numbers of the objects
    std::size_t m_nextLink = 0;
};

} // namespace

QString temporaryFileProblem()
{
    return DrawingText::tr("The pages cannot be written to a temporary file in %1.").arg(QDir::tempPath());
}

QString completePdf(QFile *pages, const PdfAdditions &additions, FileReplacement *file)
{
    PdfSource source(pages);
    PdfOutput output(file);
    const bool isComplete = source.open() && PdfCompletion(&source, additions, &output).complete();
    return isComplete ? output.error() : temporaryFileProblem();
}

} // namespace cabledoc
