#include "fieldvalidators.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace {

/// Accepts any text. Lets the validator cut a text that is longer than the limit.
QValidator::State acceptedWithin(int limit, const QValidator &validator, QString *input)
{
    if (input->size() > limit)
        validator.fixup(*input);
    return QValidator::Acceptable;
}

} // namespace

DeviceValidator::DeviceValidator(QObject *parent)
    : QValidator(parent)
{
}

QValidator::State DeviceValidator::validate(QString &input, int &) const
{
    return acceptedWithin(25, *this, &input);
}

void DeviceValidator::fixup(QString &input) const
{
    input.truncate(20);
}

FileValidator::FileValidator(QObject *parent)
    : QValidator(parent)
{
}

QValidator::State FileValidator::validate(QString &input, int &) const
{
    if (input.startsWith(QLatin1Char('.')))
        return Invalid;
    //: Further characters may be added behind these.
    const QString forbidden = tr(";<>|&?$*\"", "forbidden characters in field");
    // The characters are not escaped, because a translation may contain a range.
    const QRegularExpression anyForbidden(QLatin1Char('[') + forbidden + QLatin1Char(']'));
    return input.contains(anyForbidden) ? Invalid : Acceptable;
}

void FileValidator::fixup(QString &input) const
{
    input.replace(QLatin1Char(' '), QLatin1Char('_'));
}

IDValidator::IDValidator(QObject *parent)
    : QValidator(parent)
{
}

QValidator::State IDValidator::validate(QString &input, int &) const
{
    return acceptedWithin(25, *this, &input);
}

void IDValidator::fixup(QString &input) const
{
    input.truncate(25);
}

InfoValidator::InfoValidator(QObject *parent)
    : QValidator(parent)
{
}

QValidator::State InfoValidator::validate(QString &input, int &) const
{
    return acceptedWithin(44, *this, &input);
}

void InfoValidator::fixup(QString &input) const
{
    input.truncate(44);
}

LengthValidator::LengthValidator(QObject *parent)
    : QValidator(parent)
{
}

QValidator::State LengthValidator::validate(QString &input, int &) const
{
    //: Further characters may be added behind these.
    const QString allowed = tr("1234567890");
    if (!std::all_of(input.cbegin(), input.cend(), [&allowed](QChar c) { return allowed.contains(c); }))
        return Invalid;
    return acceptedWithin(9, *this, &input);
}

void LengthValidator::fixup(QString &input) const
{
    input.truncate(9);
}

PortValidator::PortValidator(QObject *parent)
    : QValidator(parent)
{
}

QValidator::State PortValidator::validate(QString &input, int &) const
{
    return acceptedWithin(20, *this, &input);
}

void PortValidator::fixup(QString &input) const
{
    input.truncate(20);
}

TypeValidator::TypeValidator(QObject *parent)
    : QValidator(parent)
{
}

QValidator::State TypeValidator::validate(QString &input, int &) const
{
    return acceptedWithin(5, *this, &input);
}

void TypeValidator::fixup(QString &input) const
{
    input.truncate(5);
}
