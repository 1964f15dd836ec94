#pragma once

#include "command.h"

#include <cabledoc/drawingoptions.h>

#include <QtCore/QVector>

#include <optional>

class CommandLine;
struct Output;

// What the commands that draw have in common.

/// The kinds of files that a drawing can be written to.
enum class DrawingFormat {
    Unknown, ///< the name of the file does not tell
    Svg,
    Pdf,
    Png,
};

/// Returns the kind of file that an output is. Standard output is SVG.
DrawingFormat formatOf(const Output &output);

/// A value of an option that is one of several words.
template <typename Value> struct Choice
{
    QString word;
    Value value;
};

/// Returns the value that a word stands for, or nothing if it is none of the words.
template <typename Value> std::optional<Value> chosen(const QVector<Choice<Value>> &choices, const QString &word)
{
    for (const Choice<Value> &choice : choices) {
        if (choice.word == word)
            return choice.value;
    }
    return std::nullopt;
}

/// Reads the options of the paper and the revision. Returns what is wrong with them, or an empty text.
QString readPage(const CommandLine &line, cabledoc::DrawingOptions *options);

/// Reads the options of the paper and the title block, and --dpi. Returns what is wrong with the options and the name
/// of the output, or an empty text.
QString readDrawingOptions(const CommandLine &line, cabledoc::DrawingOptions *options, int *dpi);

/// Writes a drawing to the output and prints its warnings. SVG and PNG files have its first page.
ExitCode writeDrawing(const CommandLine &line, const cabledoc::DrawingResult &result, int dpi);
/// Prints warnings about a file that was made from the first argument, except with --quiet.
void printWarnings(const CommandLine &line, const QStringList &warnings);

/// The parameters of the paper.
QVector<Parameter> paperParameters();
/// The parameters that the commands that draw have in common.
QVector<Parameter> drawingParameters();
