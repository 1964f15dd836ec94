#pragma once

#include "plainjob.h"

#include "jobeditor.h"

/// Conversions of values and records of the library to texts and fields, and back.

inline QString textOf(const QString &text)
{
    return text;
}
inline QString textOf(const QStringList &list)
{
    return list.join(',');
}
inline QString textOf(double number)
{
    return plainNumber(number);
}
inline QString textOf(int number)
{
    return QString::number(number);
}
inline QString textOf(bool flag)
{
    return flag ? "1" : "0";
}
QString textOf(const Fields &fields);

Fields fieldsOf(const Floor &floor);
Fields fieldsOf(const Sheet &sheet);
Fields fieldsOf(const Room &room);
Fields fieldsOf(const Port &port);
Fields fieldsOf(const VertRun &vertRun);
Fields fieldsOf(const Point &point);
Fields fieldsOf(const Device &device);
Fields fieldsOf(const FreeText &text);
Fields fieldsOf(const ActivePort &activePort);
Fields fieldsOf(const DeviceConnection &connection);
Fields fieldsOf(const Cable &cable);
Fields fieldsOf(const TestResults &results);
Fields fieldsOf(const ActiveTestResult &result);
Fields fieldsOf(const Address &address);
Fields fieldsOf(const TestDef &definition);
Fields fieldsOf(const PrintSettings &settings);
Fields fieldsOf(const PageSettings &settings);
Fields fieldsOf(const ScaleSettings &settings);

/// Returns a record with the given fields. These include the tags of the element and of the elements that hold it.
template <typename Record> Record recordOf(const Fields &fields);
template <> Floor recordOf(const Fields &fields);
template <> Sheet recordOf(const Fields &fields);
template <> Room recordOf(const Fields &fields);
template <> Port recordOf(const Fields &fields);
template <> VertRun recordOf(const Fields &fields);
template <> Point recordOf(const Fields &fields);
template <> Vertice recordOf(const Fields &fields);
template <> Device recordOf(const Fields &fields);
template <> FreeText recordOf(const Fields &fields);
template <> ActivePort recordOf(const Fields &fields);
template <> DeviceConnection recordOf(const Fields &fields);
template <> Cable recordOf(const Fields &fields);
template <> TestResults recordOf(const Fields &fields);
template <> ActiveTestResult recordOf(const Fields &fields);
template <> Address recordOf(const Fields &fields);
template <> TestDef recordOf(const Fields &fields);
template <> PrintSettings recordOf(const Fields &fields);
template <> PageSettings recordOf(const Fields &fields);
template <> ScaleSettings recordOf(const Fields &fields);

/// Ends the process and prints both if an answer is not the expected one.
void expectAnswer(const QString &answer, const QString &expected, const char *what);
void expectAnswer(const QStringList &answer, const QStringList &expected, const char *what);
/// Compares only the fields that the answer has.
void expectAnswer(const Fields &answer, const Fields &expected, const char *what);
inline void expectAnswer(bool answer, bool expected, const char *what)
{
    expectAnswer(textOf(answer), textOf(expected), what);
}
