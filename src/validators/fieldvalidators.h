#pragma once

#include "cabledoc_export.h"

#include <QtGui/QValidator>

/// The validators of an application's edit fields. They answer Acceptable or Invalid at once, never
/// Intermediate, and leave the cursor where it is. Those with a limit accept any text and cut one that is
/// too long.

/// Names of devices: cuts a text of more than 25 characters to 20. Between the two it stays, on purpose.
class CABLEDOC_EXPORT DeviceValidator : public QValidator
{
    Q_OBJECT

public:
    explicit DeviceValidator(QObject *parent = nullptr);
    State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
};

/// Names of files: refuses a "." in front and the characters ; < > | & ? $ * " anywhere, to which a translation
/// may add others. fixup() makes underscores of blanks, which are allowed.
class CABLEDOC_EXPORT FileValidator : public QValidator
{
    Q_OBJECT

public:
    explicit FileValidator(QObject *parent = nullptr);
    State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
};

/// Ids: at most 25 characters.
class CABLEDOC_EXPORT IDValidator : public QValidator
{
    Q_OBJECT

public:
    explicit IDValidator(QObject *parent = nullptr);
    State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
};

/// Free information: at most 44 characters.
class CABLEDOC_EXPORT InfoValidator : public QValidator
{
    Q_OBJECT

public:
    explicit InfoValidator(QObject *parent = nullptr);
    State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
};

/// Lengths: at most 9 digits. A translation may allow further characters.
class CABLEDOC_EXPORT LengthValidator : public QValidator
{
    Q_OBJECT

public:
    explicit LengthValidator(QObject *parent = nullptr);
    State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
};

/// Names of ports: at most 20 characters.
class CABLEDOC_EXPORT PortValidator : public QValidator
{
    Q_OBJECT

public:
    explicit PortValidator(QObject *parent = nullptr);
    State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
};

/// Codes of cable types: at most 5 characters.
class CABLEDOC_EXPORT TypeValidator : public QValidator
{
    Q_OBJECT

public:
    explicit TypeValidator(QObject *parent = nullptr);
    State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
};
