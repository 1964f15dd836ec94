#include "documentvalues.h"

#include "bkteditor.h"
#include "document.h"
#include "documentattributes.h"
#include "jobattributes.h"
#include "jobeditor_p.h"
#include "jobsnapshot.h"
#include "jobwords.h"
#include "messagetext.h"
#include "papersizes.h"
#include "settingsstrings.h"
#include "xmlnames.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>

#include <algorithm>

namespace cabledoc {

namespace {

/// The translation context of the messages about values.
struct ValueText
{
    Q_DECLARE_TR_FUNCTIONS(Values)
};

/// A report or view, and what the names of its settings call it.
struct Entry
{
    QString name;
    QString element;
};

const QVector<Entry> &printEntries()
{
    static const QVector<Entry> entries{
        {QStringLiteral("job-info"), words::JobInfoSettings},
        {QStringLiteral("network-view"), words::NetViewSettings},
        {QStringLiteral("inventory"), words::InventorySettings},
        {QStringLiteral("floor-plan"), words::FloorPlanSettings},
        {QStringLiteral("test-schedule"), words::TestSchedSettings},
        {QStringLiteral("detailed-cables"), words::DetailedCableSettings},
        {QStringLiteral("job-notes"), words::JobNotesSettings},
        {QStringLiteral("active-tests"), words::ActiveNetworkTestResultsSettings},
    };
    return entries;
}

QVector<Entry> drawingEntries()
{
    QVector<Entry> entries = printEntries();
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                                 [](const Entry &entry) { return !drawingSettingsEntries().contains(entry.element); }),
                  entries.end());
    return entries;
}

// Settings that are easier to name as a whole

constexpr int noStyle = 0;
constexpr int predefinedStyle = 1;
constexpr int customStyle = 2;
constexpr int metricUnits = 1;

const QString &none()
{
    static const QString word = QStringLiteral("none");
    return word;
}

QString scaleText(const ScaleSettingsFields &fields)
{
    if (fields.style != predefinedStyle && fields.style != customStyle)
        return none();
    const ScaleSettings settings(fields);
    return settings.isMetric() ? QStringLiteral("1:%1").arg(settings.scale())
                               : QStringLiteral("%1 ft").arg(settings.scale());
}

QString readScale(const QString &text, ScaleSettingsFields *fields)
{
    static const QRegularExpression form(QStringLiteral("^(?:1\\s*:\\s*([1-9]\\d{0,5})|([1-9]\\d{0,5})\\s*ft)$"));
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (text.trimmed() == none()) {
        fields->style = noStyle;
        return QString();
    }
    if (!match.hasMatch())
        return ValueText::tr("\"%1\" is not a scale such as 1:100 or \"20 ft\" (to the inch), nor \"none\"")
            .arg(excerpt(text));
    const bool isMetric = !match.captured(1).isEmpty();
    fields->style = customStyle;
    fields->heightUnits = isMetric ? metricUnits : 0;
    fields->widthUnits = fields->heightUnits;
    fields->customHeight = match.captured(isMetric ? 1 : 2).toDouble();
    fields->customWidth = 1.0;
    return QString();
}

QString pageText(const PageSettingsFields &fields)
{
    if (fields.pageSizeStyle == predefinedStyle)
        return fields.pageSize;
    return fields.pageSizeStyle == customStyle
               ? QStringLiteral("%1 x %2").arg(toText(fields.customWidth), toText(fields.customHeight))
               : none();
}

QString readPage(const QString &text, PageSettingsFields *fields)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,6}(?:\\.\\d+)?)\\s*x\\s*(\\d{1,6}(?:\\.\\d+)?)$"));
    const QRegularExpressionMatch match = form.match(text.trimmed());
    const QString size = paperSizeNamed(text.trimmed());
    if (text.trimmed() == none()) {
        fields->pageSizeStyle = noStyle;
    } else if (match.hasMatch()) {
        fields->pageSizeStyle = customStyle;
        fields->customWidth = match.captured(1).toDouble();
        fields->customHeight = match.captured(2).toDouble();
    } else if (!size.isEmpty()) {
        fields->pageSizeStyle = predefinedStyle;
        fields->pageSize = size;
    } else {
        return ValueText::tr("\"%1\" is not a page such as A3 or \"17 x 11\" (in inches), nor \"none\"")
            .arg(excerpt(text));
    }
    return QString();
}

// Fields

const QStringList &orientations()
{
    static const QStringList words{QStringLiteral("portrait"), QStringLiteral("landscape")};
    return words;
}

QString shownText(const AttributeRow &row, const QString &text)
{
    return row.name == words::Orientation ? orientations().value(text.toInt(), text) : text;
}

QString addressPrefix()
{
    return QStringLiteral("address.");
}

QString floorPrefix(const QString &id)
{
    return QStringLiteral("floor.%1.").arg(id);
}

const QStringList &pictureFields()
{
    static const QStringList names{QStringLiteral("picture"), QStringLiteral("picture_x"), QStringLiteral("picture_y"),
                                   QStringLiteral("picture_option")};
    return names;
}

/// Returns why a file cannot hold a text, or an empty text if it can.
QString checkText(const QString &text)
{
    return firstLostCharacter(text, true).isEmpty()
               ? QString()
               : ValueText::tr("\"%1\" contains a character that a file cannot hold").arg(excerpt(text));
}

/// Reads the text of a field. Returns why it cannot be, or an empty text.
QString readField(const AttributeRow &row, const QString &text, void *fields)
{
    QString stored = text;
    if (row.name == words::Orientation && orientations().contains(text)) {
        stored = toText(int(orientations().indexOf(text)));
    } else if (row.name == words::PaperSize || row.name == words::PageSize) {
        stored = paperSizeNamed(text);
        if (stored.isEmpty())
            return ValueText::tr("\"%1\" is not one of the paper sizes: %2")
                .arg(excerpt(text), SettingsStrings::paperSizes().join(QLatin1String(", ")));
    }
    if (row.isValid != nullptr && (stored.isEmpty() || !row.isValid(stored)))
        return ValueText::tr("\"%1\" is not a number that %2 can have").arg(excerpt(text), row.name);
    const QString problem = checkText(stored);
    if (problem.isEmpty())
        row.parse(stored, fields);
    return problem;
}

/// Lists the values of a document.
class ValueList
{
public:
    template <typename Fields>
    void append(const QString &prefix, const AttributeTable<Fields> &table, const Fields &fields)
    {
        for (const AttributeRow &row : table.rows())
            m_values.append({prefix + row.name, shownText(row, row.text(&fields))});
    }

    void append(const QString &name, const QString &text) { m_values.append({name, text}); }

    void appendShared(const JobSnapshot &document)
    {
        const QString contractor = QStringLiteral("contractor.");
        append(contractor, contractorInfoAttributes(), document.contractor());
        append(contractor + addressPrefix(), addressAttributes(), document.contractor().address.fields());
    }

    void appendSettings(const JobSnapshot &document)
    {
        for (const Entry &entry : printEntries())
            append(QStringLiteral("print.%1.").arg(entry.name), printSettingsAttributes(),
                   document.printSettings().value(entry.element, initialPrintSettings(entry.element).fields()));
        for (const Entry &entry : drawingEntries()) {
            const PageSettingsFields fields = document.pageSettings().value(entry.element);
            append(QStringLiteral("page.") + entry.name, pageText(fields));
            append(QStringLiteral("page.%1.").arg(entry.name), pageSettingsAttributes(), fields);
        }
        for (const Entry &entry : drawingEntries()) {
            const ScaleSettingsFields fields = document.scaleSettings().value(entry.element);
            append(QStringLiteral("scale.") + entry.name, scaleText(fields));
            append(QStringLiteral("scale.%1.").arg(entry.name), scaleSettingsAttributes(), fields);
        }
    }

    const QVector<DocumentValue> &values() const { return m_values; }

private:
    QVector<DocumentValue> m_values;
};

/// Sets one value of a document.
class ValueSetter
{
public:
    ValueSetter(const QString &name, const QString &text)
        : m_name(name)
        , m_text(text)
        , m_problem(ValueText::tr("there is no value \"%1\"").arg(excerpt(name)))
    {
    }

    /// Returns why the value could not be set, or an empty text if it was set.
    const QString &problem() const { return m_problem; }

    /// Sets a value that jobs and templates have.
    void setShared(BKXMLEditor *document)
    {
        addMissingSettings(document);
        if (isBelow(QStringLiteral("contractor.")))
            addInfo(document, words::ContractorInfo, contractorInfoAttributes());
        if (ContractorDataFields fields = document->getContractorData().fields();
            setInfo(QStringLiteral("contractor."), contractorInfoAttributes(), &fields))
            document->setContractorData(ContractorData(fields));
        for (const Entry &entry : printEntries()) {
            if (!isBelow(QStringLiteral("print.") + entry.name))
                continue;
            PrintSettingsFields fields = document->getPrintSettings(entry.element).fields();
            if (setField(QStringLiteral("print.%1.").arg(entry.name), printSettingsAttributes(), &fields))
                document->setPrintSettings(PrintSettings(fields), entry.element);
        }
        for (const Entry &entry : drawingEntries()) {
            setPage(document, entry);
            setScale(document, entry);
        }
    }

    /// Sets a value that only jobs have.
    void setOfJob(JobEditor *job)
    {
        if (isBelow(QStringLiteral("site.")))
            addInfo(job, words::SiteInfo, siteInfoAttributes());
        if (SiteDataFields fields = job->getSiteData().fields();
            setInfo(QStringLiteral("site."), siteInfoAttributes(), &fields))
            job->setSiteData(SiteData(fields));
        if (m_name == QLatin1String("notes") && takes(checkText(m_text)))
            job->setJobNotesText(m_text);
        for (const QString &tag : job->getFloorTags())
            setPicture(job, tag);
    }

private:
    bool isBelow(const QString &prefix) const { return m_name.startsWith(prefix); }

    // Files of other programs may lack what holds a value.

    static void addInfo(BKXMLEditor *document, const QString &tagName, const AttributeList &attributes)
    {
        Document &inside = Document::of(*document);
        inside.addInfo(tagName, attributes, inside.tree().root());
    }

    void addMissingSettings(BKXMLEditor *document) const
    {
        const QDomElement lists = Document::of(*document).tree().child(words::SettingsList);
        const auto isMissing = [&](const char *prefix, const QString &list, const QVector<Entry> &entries) {
            return isBelow(QLatin1String(prefix))
                   && std::any_of(entries.cbegin(), entries.cend(), [&](const Entry &entry) {
                          return lists.firstChildElement(list).firstChildElement(entry.element).isNull();
                      });
        };
        QDomElement root = Document::of(*document).tree().root();
        if (isMissing("print.", words::PrintSettingsList, printEntries())
            || isMissing("page.", words::PageSettingsList, drawingEntries())
            || isMissing("scale.", words::ScaleSettingsList, drawingEntries()))
            document->addSettingsList(&root);
    }

    /// Notes the problem with the text of the value. Returns whether there is none.
    bool takes(const QString &problem)
    {
        m_problem = problem;
        return m_problem.isEmpty();
    }

    /// Returns true if the value is a field with the given prefix, and its text could be read.
    template <typename Fields> bool setField(const QString &prefix, const AttributeTable<Fields> &table, Fields *fields)
    {
        if (!isBelow(prefix))
            return false;
        for (const AttributeRow &row : table.rows()) {
            if (m_name == prefix + row.name)
                return takes(readField(row, m_text, fields));
        }
        return false;
    }

    /// Returns true if the value is a field of a contractor or site, or of its address.
    template <typename Fields> bool setInfo(const QString &prefix, const AttributeTable<Fields> &table, Fields *fields)
    {
        AddressFields address = fields->address.fields();
        if (setField(prefix + addressPrefix(), addressAttributes(), &address)) {
            fields->address = Address(address);
            return true;
        }
        return setField(prefix, table, fields);
    }

    void setPage(BKXMLEditor *document, const Entry &entry)
    {
        const QString name = QStringLiteral("page.") + entry.name;
        if (!isBelow(name))
            return;
        PageSettingsFields fields = document->getPageSettings(entry.element).fields();
        if (m_name == name ? takes(readPage(m_text, &fields))
                           : setField(name + QLatin1Char('.'), pageSettingsAttributes(), &fields))
            document->setPageSettings(PageSettings(fields), entry.element);
    }

    void setScale(BKXMLEditor *document, const Entry &entry)
    {
        const QString name = QStringLiteral("scale.") + entry.name;
        if (!isBelow(name))
            return;
        ScaleSettingsFields fields = document->getScaleSettings(entry.element).fields();
        if (m_name == name ? takes(readScale(m_text, &fields))
                           : setField(name + QLatin1Char('.'), scaleSettingsAttributes(), &fields))
            document->setScaleSettings(ScaleSettings(fields), entry.element);
    }

    void setPicture(JobEditor *job, const QString &tag)
    {
        const QString prefix = floorPrefix(job->getFloorIdByTag(tag));
        // If several floors have the same id, the first one counts.
        if (!isBelow(prefix) || m_problem.isEmpty())
            return;
        const QString picture = job->getFloorBackgroundPic(tag);
        const QPoint place = job->getFloorBackgroundOrigin(tag);
        bool isNumber = false;
        const int number = m_text.toInt(&isNumber);
        const QString numberProblem =
            isNumber ? QString() : ValueText::tr("\"%1\" is not a whole number").arg(excerpt(m_text));
        if (m_name == prefix + pictureFields().at(0) && takes(checkText(m_text)))
            job->setFloorBackgroundPic(tag, m_text, place.x(), place.y());
        else if (m_name == prefix + pictureFields().at(1) && takes(numberProblem))
            job->setFloorBackgroundPic(tag, picture, number, place.y());
        else if (m_name == prefix + pictureFields().at(2) && takes(numberProblem))
            // setFloorBackgroundPic() does not change the vertical position that a floor has.
            JobEditorPrivate::of(*job).tree.set(ElementKind::Floors, tag, words::PictureY, toText(number));
        else if (m_name == prefix + pictureFields().at(3) && takes(checkText(m_text)))
            job->setBackgroundOption(tag, m_text);
    }

    QString m_name;
    QString m_text;
    QString m_problem;
};

} // namespace

QVector<DocumentValue> valuesOfTemplate(const JobSnapshot &bkt)
{
    ValueList list;
    list.appendShared(bkt);
    list.appendSettings(bkt);
    return list.values();
}

QVector<DocumentValue> valuesOfJob(const JobSnapshot &job)
{
    ValueList list;
    list.appendShared(job);
    list.append(QStringLiteral("site."), siteInfoAttributes(), job.site());
    list.append(QStringLiteral("site.") + addressPrefix(), addressAttributes(), job.site().address.fields());
    list.append(QStringLiteral("notes"), job.notes());
    list.appendSettings(job);
    for (const snapshot::Floor &floor : job.floors()) {
        const QStringList texts{floor.pic, toText(floor.picturePosition.x()), toText(floor.picturePosition.y()),
                                floor.pictureOption};
        for (int field = 0; field < texts.size(); ++field)
            list.append(floorPrefix(floor.id) + pictureFields().at(field), texts.at(field));
    }
    return list.values();
}

QString setValue(JobEditor &job, const QString &name, const QString &text)
{
    ValueSetter setter(name, text);
    setter.setShared(&job);
    setter.setOfJob(&job);
    return setter.problem();
}

QString setValue(BktEditor &bkt, const QString &name, const QString &text)
{
    ValueSetter setter(name, text);
    setter.setShared(&bkt);
    return setter.problem();
}

} // namespace cabledoc
