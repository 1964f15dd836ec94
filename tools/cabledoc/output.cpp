#include "output.h"

#include <cabledoc/version.h>

#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QSaveFile>

#include <algorithm>
#include <cstdio>

namespace {

bool quiet = false;

/// Writes the result of a command piece by piece. After an error it writes nothing more.
class OutputWriter
{
public:
    explicit OutputWriter(const Output &output)
        : m_output(output)
        , m_file(output.fileName)
    {
        if (!output.isStandard() && refuseOutput(output) != Done)
            m_error = CannotSave;
        else if (!output.isStandard() && !m_file.open(QIODevice::WriteOnly))
            m_error = failed();
    }

    void write(const QByteArray &data)
    {
        if (m_error == Done && !append(data))
            m_error = failed();
    }

    /// Puts the file in place. Returns how the command ends.
    ExitCode finish()
    {
        if (m_error == Done && !(m_output.isStandard() ? std::fflush(stdout) == 0 : m_file.commit()))
            m_error = failed();
        return m_error;
    }

private:
    bool append(const QByteArray &data)
    {
        if (!m_output.isStandard())
            return m_file.write(data) == data.size();
        return std::fwrite(data.constData(), 1, std::size_t(data.size()), stdout) == std::size_t(data.size());
    }

    ExitCode failed() const
    {
        if (!m_output.isStandard())
            return fail(CannotSave, m_output.fileName, m_file.errorString());
        printMessage(Program::tr("standard output: %1").arg(qt_error_string()));
        return CannotPrint;
    }

    const Output m_output;
    QSaveFile m_file;
    ExitCode m_error = Done;
};

/// Writes the object with the given lines before its members. All lines but the first are indented.
void writeJson(OutputWriter *writer, const JsonObject &object, const QByteArray &linesBefore, const QByteArray &indent)
{
    static const QByteArray step = "    ";
    QList<QByteArray> parts;
    if (!linesBefore.isEmpty())
        parts.append(linesBefore);
    if (!object.members.isEmpty()) {
        // The braces of the document are in lines of their own.
        parts.append(QJsonDocument(object.members).toJson().mid(int(qstrlen("{\n"))).chopped(int(qstrlen("\n}\n"))));
    }
    if (!object.arrayName.isEmpty())
        parts.append(step + '"' + object.arrayName.toUtf8() + "\": [");
    QByteArray lines = "{\n" + parts.join(",\n");
    writer->write(lines.replace("\n", "\n" + indent));
    const QByteArray elementIndent = indent + step + step;
    for (int number = 0; number < object.count; ++number) {
        writer->write((number == 0 ? "\n" : ",\n") + elementIndent);
        writeJson(writer, object.element(number), {}, elementIndent);
    }
    if (!object.arrayName.isEmpty())
        writer->write("\n" + indent + step + "]");
    writer->write("\n" + indent + "}");
}

} // namespace

QString printable(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\n'))
            character = QLatin1Char('?');
    }
    return text;
}

void printMessage(const QString &message)
{
    std::fprintf(stderr, "cabledoc: %s\n", qPrintable(printable(message)));
}

ExitCode fail(ExitCode code, const QString &fileName, const QString &message)
{
    printMessage(message.contains(fileName) ? message : QStringLiteral("%1: %2").arg(fileName, message));
    return code;
}

void beQuiet()
{
    quiet = true;
}

bool isQuiet()
{
    return quiet;
}

ExitCode refuseOutput(const Output &output)
{
    const QFileInfo file(output.fileName);
    if (output.isStandard() || !file.exists())
        return Done;
    if (!output.mayReplace)
        return fail(CannotSave, output.fileName, Program::tr("%1 exists and is left as it is").arg(output.fileName));
    return file.isFile() ? Done : fail(CannotSave, output.fileName, Program::tr("this is not a regular file"));
}

ExitCode printData(const Output &output, const QByteArray &data)
{
    OutputWriter writer(output);
    writer.write(data);
    return writer.finish();
}

ExitCode printText(const Output &output, const QString &text)
{
    return printData(output, text.toLocal8Bit());
}

ExitCode printJson(const Output &output, const char *form, const JsonObject &object)
{
    OutputWriter writer(output);
    writeJson(&writer, object,
              QByteArray("    \"form\": \"") + form + "\",\n    \"program\": \"" CABLEDOC_VERSION_STR "\"", {});
    writer.write("\n");
    return writer.finish();
}

QString firstLines(const QString &fileName, int count, const std::function<QString(int)> &line)
{
    constexpr int maximum = 50;
    QString text;
    for (int i = 0; i < std::min(count, maximum); ++i)
        text += line(i) + QLatin1Char('\n');
    if (count > maximum)
        text += fileName + QLatin1String(": ") + Program::tr("and %1 more").arg(count - maximum) + QLatin1Char('\n');
    return text;
}
