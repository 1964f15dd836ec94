#pragma once

#include "cabledoc_export.h"

#include <QtGui/QValidator>

/// Validates the names of devices. Accepts any text, and cuts a text of more than 25 characters to 20. Texts of 21 to
/// 25 characters are deliberately not cut.
class CABLEDOC_EXPORT DeviceValidator : public QValidator
{
    Q_OBJECT

public:
    /// Creates a validator with the given parent.
    explicit DeviceValidator(QObject *parent = nullptr);
    /// Returns Acceptable, and cuts a text of more than 25 characters to 20. pos is not changed.
    State validate(QString &input, int &pos) const override;
    /// Cuts the text to 20 characters.
    void fixup(QString &input) const override;
};

/// Validates the names of files. Rejects a "." at the beginning and the characters ; < > | & ? $ * " anywhere. A
/// translation may add further characters to these.
class CABLEDOC_EXPORT FileValidator : public QValidator
{
    Q_OBJECT

public:
    /// Creates a validator with the given parent.
    explicit FileValidator(QObject *parent = nullptr);
    /// Returns Invalid for a text that begins with "." or contains a forbidden character, and Acceptable for any other
    /// text. Neither the text nor pos is changed.
    State validate(QString &input, int &pos) const override;
    /// Replaces blanks by underscores. Blanks are allowed in file names, so validate() does not call this.
    void fixup(QString &input) const override;
};

/// Validates ids. Accepts any text, and cuts it to 25 characters.
class CABLEDOC_EXPORT IDValidator : public QValidator
{
    Q_OBJECT

public:
    /// Creates a validator with the given parent.
    explicit IDValidator(QObject *parent = nullptr);
    /// Returns Acceptable, and cuts a text of more than 25 characters. pos is not changed.
    State validate(QString &input, int &pos) const override;
    /// Cuts the text to 25 characters.
    void fixup(QString &input) const override;
};

/// Validates notes. Accepts any text, and cuts it to 44 characters.
class CABLEDOC_EXPORT InfoValidator : public QValidator
{
    Q_OBJECT

public:
    /// Creates a validator with the given parent.
    explicit InfoValidator(QObject *parent = nullptr);
    /// Returns Acceptable, and cuts a text of more than 44 characters. pos is not changed.
    State validate(QString &input, int &pos) const override;
    /// Cuts the text to 44 characters.
    void fixup(QString &input) const override;
};

/// Validates lengths. Accepts digits, and cuts them to 9. A translation may allow further characters.
class CABLEDOC_EXPORT LengthValidator : public QValidator
{
    Q_OBJECT

public:
    /// Creates a validator with the given parent.
    explicit LengthValidator(QObject *parent = nullptr);
    /// Returns Invalid for a text with a character that is not allowed. Otherwise returns Acceptable, and cuts a text
    /// of more than 9 characters. pos is not changed.
    State validate(QString &input, int &pos) const override;
    /// Cuts the text to 9 characters.
    void fixup(QString &input) const override;
};

/// Validates the names of ports. Accepts any text, and cuts it to 20 characters.
class CABLEDOC_EXPORT PortValidator : public QValidator
{
    Q_OBJECT

public:
    /// Creates a validator with the given parent.
    explicit PortValidator(QObject *parent = nullptr);
    /// Returns Acceptable, and cuts a text of more than 20 characters. pos is not changed.
    State validate(QString &input, int &pos) const override;
    /// Cuts the text to 20 characters.
    void fixup(QString &input) const override;
};

/// Validates the codes of cable types. Accepts any text, and cuts it to 5 characters.
class CABLEDOC_EXPORT TypeValidator : public QValidator
{
    Q_OBJECT

public:
    /// Creates a validator with the given parent.
    explicit TypeValidator(QObject *parent = nullptr);
    /// Returns Acceptable, and cuts a text of more than 5 characters. pos is not changed.
    State validate(QString &input, int &pos) const override;
    /// Cuts the text to 5 characters.
    void fixup(QString &input) const override;
};
