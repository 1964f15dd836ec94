#pragma once

#include "cabledoc_export.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtGui/QPixmap>

namespace cabledoc {

/// Words that documents store and that a user interface offers for choice, each with a name in the user's
/// language and a picture. A word is found only as it is stored; "tv" is not "TV".
class CABLEDOC_EXPORT Vocabulary
{
public:
    /// What ports are used for: "data", "voice", "TV" and so on.
    static const Vocabulary &portUses();
    /// What devices there are: "computer", "switch", "panel" and so on.
    static const Vocabulary &deviceTypes();

    /// All words, in the order in which they are offered; the last is "other".
    QStringList words() const;
    bool contains(const QString &word) const;
    /// The translated name; the word itself when it is not in the vocabulary.
    QString name(const QString &word) const;
    /// The word's picture on a transparent square with sides of that many device pixels; the picture of "other"
    /// when the word is not in the vocabulary. Null for a size below 1. It is drawn anew at each call, and the
    /// program must have a QGuiApplication.
    QPixmap pixmap(const QString &word, int size) const;

private:
    struct Entry
    {
        QString word;
        const char *name; // not translated
    };

    Vocabulary(const char *context, const QString &pictures, const QVector<Entry> &entries);
    const Entry *find(const QString &word) const;

    const char *m_context; // of the names' translations
    QString m_pictures;    // what the names of the picture files begin with
    QVector<Entry> m_entries;
};

} // namespace cabledoc
