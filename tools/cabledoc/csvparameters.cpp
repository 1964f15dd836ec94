#include "csvparameters.h"

#include "commandline.h"

#include <QtCore/QMap>

using namespace cabledoc;

namespace {

/// Reads an option whose value is one of some names, in upper or lower case. Keeps the value if the option was left
/// out. "%1" in the message stands for a wrong name.
template <typename Value> ExitCode readChoice(const CommandLine &line, const char *option,
                                              const QMap<QString, Value> &choices, const QString &message, Value *value)
{
    if (!line.isSet(option))
        return Done;
    const auto choice = choices.constFind(line.value(option).toLower());
    if (choice == choices.cend())
        return line.usageError(message.arg(line.value(option)));
    *value = *choice;
    return Done;
}

ExitCode readDelimiter(const CommandLine &line, char *delimiter)
{
    static const QMap<QString, char> delimiters{
        {QStringLiteral("comma"), ','}, {QStringLiteral("semicolon"), ';'}, {QStringLiteral("tab"), '\t'},
        {QStringLiteral(","), ','},     {QStringLiteral(";"), ';'},         {QStringLiteral("\t"), '\t'},
    };
    return readChoice(line, "delimiter", delimiters, Program::tr("\"%1\" is not comma, semicolon or tab"), delimiter);
}

ExitCode readEncoding(const CommandLine &line, CsvEncoding *encoding)
{
    static const QMap<QString, CsvEncoding> encodings{
        {QStringLiteral("utf-8"), CsvEncoding::Utf8},
        {QStringLiteral("utf-16"), CsvEncoding::Utf16},
        {QStringLiteral("windows-1252"), CsvEncoding::Windows1252},
    };
    return readChoice(line, "encoding", encodings, Program::tr("\"%1\" is not UTF-8, UTF-16 or windows-1252"),
                      encoding);
}

} // namespace

ExitCode readCsvOptions(const CommandLine &line, CsvOptions *options)
{
    options->removeProtection = line.isSet("unprotect-formulas");
    const ExitCode error = readDelimiter(line, &options->delimiter);
    return error == Done ? readEncoding(line, &options->encoding) : error;
}

ExitCode readCsvStyle(const CommandLine &line, CsvStyle *style)
{
    style->byteOrderMark = line.isSet("mark");
    style->protectFormulas = line.isSet("protect-formulas");
    return readDelimiter(line, &style->delimiter);
}
