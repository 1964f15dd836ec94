#pragma once

#include "jobeditor.h"

#include <QtCore/QRegularExpression>

#include <functional>

/// The text forms of values. Tables of cases use them, and failing tests show them:
///
///     1.5    true    noon            a number, a flag, a text
///     P1,P2                          a list; a position
///     ping:2 ms,ping:3 ms            pairs
///     id=Jack 1; x=2.5; y=3          a record; a field that is left out has its default
///     tester=Ann; address={city=X}   a record in a record; a list of records is {...}{...}
///
/// A results block has the same form as in files. A curve is one number, which is the value of all its samples.

/// A field of a record with its accessors. Its name is that of the attribute in the file.
template <typename Record> struct Field
{
    QString name;
    std::function<QString(const Record &)> get;
    std::function<void(Record *, const QString &)> set;
};

/// Returns the fields of a kind of record.
template <typename Record> const QVector<Field<Record>> &fieldsOf();

using TextPairs = QVector<QPair<QString, QString>>;
using ActiveTestResults = QVector<ActiveTestResult>;

template <typename Value> QString textOf(const Value &value)
{
    QStringList texts;
    if constexpr (std::is_same_v<Value, bool>) {
        return value ? "true" : "false";
    } else if constexpr (std::is_arithmetic_v<Value>) {
        return QString::number(value);
    } else if constexpr (std::is_same_v<Value, QString>) {
        return value;
    } else if constexpr (std::is_same_v<Value, QDomElement>) {
        return value.isNull() ? QString() : QString("%1 of %2").arg(value.tagName()).arg(value.childNodes().size());
    } else if constexpr (std::is_same_v<Value, cable_struct>) {
        return BKXMLEditor::dataToString(value);
    } else if constexpr (std::is_same_v<Value, TRUEPHY_PLOT_DATA>) {
        return BKXMLEditor::responseDataToString(value).section(',', 256, 256);
    } else if constexpr (std::is_same_v<Value, QStringList>) {
        texts = value;
    } else if constexpr (std::is_same_v<Value, QPoint> || std::is_same_v<Value, QPointF>) {
        texts = QStringList{textOf(value.x()), textOf(value.y())};
    } else if constexpr (std::is_same_v<Value, TextPairs>) {
        for (const auto &[first, second] : value)
            texts.append(first + ':' + second);
    } else if constexpr (std::is_same_v<Value, QMap<QString, double>>) {
        for (auto entry = value.cbegin(); entry != value.cend(); ++entry)
            texts.append(entry.key() + ':' + textOf(entry.value()));
    } else if constexpr (std::is_same_v<Value, ActiveTestResults>) {
        for (const ActiveTestResult &result : value)
            texts.append(textOf(result));
        return texts.isEmpty() ? QString() : '{' + texts.join("}{") + '}';
    } else {
        for (const Field<Value> &field : fieldsOf<Value>()) {
            if (field.get(value) != field.get(Value()))
                texts.append(field.name + '=' + field.get(value));
        }
        return texts.join("; ");
    }
    return texts.join(',');
}

template <typename Value> Value valueOf(const QString &text)
{
    const QStringList parts = text.isEmpty() ? QStringList() : text.split(',');
    Value value{};
    bool isValid = true;
    if constexpr (std::is_same_v<Value, bool>) {
        value = text == "true";
        isValid = value || text == "false";
    } else if constexpr (std::is_arithmetic_v<Value>) {
        value = Value(text.toDouble(&isValid));
    } else if constexpr (std::is_same_v<Value, QString>) {
        value = text;
    } else if constexpr (std::is_same_v<Value, cable_struct>) {
        value = BKXMLEditor::stringToData(text);
    } else if constexpr (std::is_same_v<Value, TRUEPHY_PLOT_DATA>) {
        value = BKXMLEditor::responseStringToData((text + ',').repeated(514) + "257");
    } else if constexpr (std::is_same_v<Value, QStringList>) {
        value = parts;
    } else if constexpr (std::is_same_v<Value, QPoint>) {
        value = {valueOf<int>(parts.value(0)), valueOf<int>(parts.value(1))};
    } else if constexpr (std::is_same_v<Value, TextPairs>) {
        for (const QString &part : parts)
            value.append({part.section(':', 0, 0), part.section(':', 1)});
    } else if constexpr (std::is_same_v<Value, QMap<QString, QString>>) {
        for (const auto &[key, mapped] : valueOf<TextPairs>(text))
            value.insert(key, mapped);
    } else if constexpr (std::is_same_v<Value, ActiveTestResults>) {
        for (const QString &result : text.mid(1, text.size() - 2).split("}{"))
            value.append(valueOf<ActiveTestResult>(result));
    } else {
        static const QRegularExpression fieldText("(\\w+)=((?:\\{[^{}]*\\})+|[^;]*)");
        for (auto found = fieldText.globalMatch(text); found.hasNext();) {
            const QRegularExpressionMatch part = found.next();
            const auto named = [&part](const Field<Value> &field) { return field.name == part.captured(1); };
            const auto field = std::find_if(fieldsOf<Value>().cbegin(), fieldsOf<Value>().cend(), named);
            if (field == fieldsOf<Value>().cend())
                qFatal("no such field: \"%s\"", qPrintable(part.captured()));
            field->set(&value, part.captured(2));
        }
    }
    if (!isValid)
        qFatal("not a value: \"%s\"", qPrintable(text));
    return value;
}
