#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/documentvalues.h>
#include <cabledoc/jobsnapshot.h>

#include <algorithm>

using cabledoc::DocumentValue;

namespace {

/// Returns a text in one line, with "\n" for each line break.
QString inOneLine(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

/// Returns the values with the given name, or with a name that begins with it and a point. Returns all values for an
/// empty name.
QVector<DocumentValue> valuesBelow(const QVector<DocumentValue> &values, const QString &name)
{
    QVector<DocumentValue> found;
    std::copy_if(values.cbegin(), values.cend(), std::back_inserter(found), [&name](const DocumentValue &value) {
        return name.isEmpty() || value.name == name || value.name.startsWith(name + QLatin1Char('.'));
    });
    return found;
}

} // namespace

ExitCode runGet(const CommandLine &line)
{
    cabledoc::JobSnapshot document;
    if (const ExitCode error = readDocument(line, &document))
        return error;
    const auto all =
        isTemplate(line.argument(0)) ? cabledoc::valuesOfTemplate(document) : cabledoc::valuesOfJob(document);
    QVector<DocumentValue> values;
    QStringList names = line.arguments().mid(1);
    if (names.isEmpty())
        names.append(QString());
    for (const QString &name : std::as_const(names)) {
        const QVector<DocumentValue> found = valuesBelow(all, name);
        if (found.isEmpty())
            return line.usageError(Program::tr("there is no value \"%1\"").arg(name));
        values += found;
    }
    if (line.isSet("json")) {
        QJsonObject object;
        for (const DocumentValue &value : std::as_const(values))
            object.insert(value.name, value.text);
        return printJson(line.output(), "cabledoc-get-1",
                         {{{QStringLiteral("file"), line.argument(0)}, {QStringLiteral("values"), object}}});
    }
    // The value of a single name is printed as it is, so that scripts can use it.
    const bool isSingle = values.size() == 1 && line.arguments().size() == 2;
    QString text = isSingle ? values.constFirst().text + QLatin1Char('\n') : QString();
    for (const DocumentValue &value : std::as_const(values)) {
        if (!isSingle)
            text += value.name + QLatin1Char('=') + inOneLine(value.text) + QLatin1Char('\n');
    }
    return printText(line.output(), text);
}
